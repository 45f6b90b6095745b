#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// @file
/// Moments as words of the command line: Universal Time, seconds since 1970, years 1 to 9999.
namespace vorn::tool
{

/// "2024-02-29", "2024-02-29T12:34" or "2024-02-29 12:34:56" (all with or without a "Z"), "@1709210096", or "now";
/// nothing for any other text or a day that no calendar has.
std::optional<std::int64_t> ParseMoment(std::string_view text, std::int64_t now);

/// "2024-02-29T12:34:56Z".
std::string MomentText(std::int64_t moment);

/// A moment taken apart.
struct MomentFields
{
    int year;
    unsigned month; ///< 1 to 12
    unsigned day;
    unsigned weekday; ///< 0 is Sunday
    unsigned hour;
    unsigned minute;
    unsigned second;
};

MomentFields FieldsOf(std::int64_t moment);

} // namespace vorn::tool
