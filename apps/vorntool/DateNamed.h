#pragma once

#include <VornCommon.h>

#include <optional>
#include <string>

namespace vorn::tool
{

/// How help texts explain the words for moments.
inline constexpr const char* kMomentWords =
    "A moment is a day of Universal Time, with or without its time of day\n"
    "(2024-02-29, 2024-02-29T12:34, \"2024-02-29 12:34:56Z\"), a Julian day (2460370.25),\n"
    "seconds since 1970 (@1709210096) or \"now\".";

/// The moment that a word names; nothing for any other word. A Julian day counts in quarter days, as it is kept.
std::optional<Date> DateNamed(const std::string& word);

/// Whether it is a moment that has texts: one from 1970 to 3000.
bool HasTexts(Date& date);

} // namespace vorn::tool
