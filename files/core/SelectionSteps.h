#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorn
{

/// The folders that a tree of folders has to select in turn so that every level down to @p folder opens. A backslash at
/// the folder's end makes no difference. None for an empty text.
///
///     C:\Data\Maps          gives  C:\  C:\Data  C:\Data\Maps
///     \\server\share\Maps   gives  \\server\  \\server\share  \\server\share\Maps
std::vector<std::string> SelectionSteps(std::string_view folder);

} // namespace vorn
