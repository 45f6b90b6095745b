#pragma once

namespace vorn
{

/// Counts for character arrays that more than one object holds. An array is entered when it gets its second holder and
/// leaves the table with its last but one, so an array that is not in the table has one holder; while nothing is
/// shared, no question takes a lock. Safe over threads. Null is no array. False, with nothing entered, when memory is
/// short.
bool AddHolder(const char* array);

/// Takes one holder off and says whether it was the last one, who has to release the array.
bool RemoveHolder(const char* array);

} // namespace vorn
