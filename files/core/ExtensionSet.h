#pragma once

#include <string_view>

namespace vorn
{

/// The entry of this index (from 0) of a set of file extensions such as "dbf|.dbt| txt": entries stand between "|",
/// blanks (spaces and tabs) around an entry do not count, and one dot before it is left out.
///
/// What has no character between its separators is no entry; blanks alone are one, whose extension is empty. Empty also
/// past the last entry and for an index below 0. The text returned is part of @p set.
std::string_view ExtensionAt(std::string_view set, int index);

} // namespace vorn
