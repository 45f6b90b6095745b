#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorn::tool
{

/// The messages of a log: its lines without their ends, which are CR LF or LF. What stands behind the last end is a
/// message too, unless it is empty.
std::vector<std::string_view> LogLines(std::string_view text);

} // namespace vorn::tool
