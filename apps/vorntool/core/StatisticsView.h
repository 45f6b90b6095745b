#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vorn::tool
{

/// What a statistics file tells.
struct StatisticsView
{
    std::int64_t startDate = 0; ///< seconds since 1970-01-01 UTC; 0 when the file names none
    std::vector<long> counters;
    bool isWhole = true; ///< whether the file is as long as its count says
};

/// When counting began: "2024-02-29T12:34:56Z", "@" and seconds outside the years 1 to 9999, empty for 0.
std::string StartText(std::int64_t startDate);

/// The facts lined up, then every counter with its index.
std::string TextOf(const StatisticsView& view);

/// One line of JSON.
std::string JsonOf(const StatisticsView& view, const std::string& file);

} // namespace vorn::tool
