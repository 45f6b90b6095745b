#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorn
{

/// The folders that a tree of folders has to select in turn so that every level down to @p folder opens: "C:\Data\Maps"
/// gives "C:\", "C:\Data" and "C:\Data\Maps"; "\\server\share\Maps" gives "\\server\", "\\server\share" and the whole.
/// A backslash at the folder's end makes no difference. None for an empty text.
std::vector<std::string> SelectionSteps(std::string_view folder);

} // namespace vorn
