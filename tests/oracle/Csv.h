#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vorn::test
{

using Row = std::vector<std::string>;

/// Lines of comma-separated values, each in quotes, with doubled quotes inside.
std::string CsvOf(const std::vector<Row>& rows);

/// Reads such lines, also those without quotes; line ends are "\n" or "\r\n".
std::vector<Row> ParseCsv(std::string_view text);

} // namespace vorn::test
