#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorn
{

using CsvLine = std::vector<std::string>;

/// Splits comma-separated values into lines of cells. A cell may stand in double quotes, where commas and line ends are
/// text and two quotes are one. Lines end with LF or CR LF; empty lines are left out. Nothing when a quote is not
/// closed.
std::optional<std::vector<CsvLine>> ParseCsv(std::string_view text);

} // namespace vorn
