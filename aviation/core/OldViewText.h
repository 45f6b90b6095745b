#pragma once

#include <functional>
#include <string>

namespace vorn
{
/// Reads one field of a view: its text under a key, or the given text where there is none.
using ViewFieldReader = std::function<std::string(const char* key, const char* otherwise)>;

/// The text of a new view.
inline constexpr const char* kDefaultViewText = "v1|1|0|0|0|0|0|0|180|0|25|0|";

/// The text of a view that is stored in the older layout, one key for each field. Field texts pass as they are; the
/// parameters "Param1", "Param2", ... end before the first that is empty.
std::string OldViewText(const ViewFieldReader& read);
} // namespace vorn
