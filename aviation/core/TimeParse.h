#pragma once

#include "aviation/core/LocalClock.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vorn
{

/// An hour of the day with its minute.
struct HourMinute
{
    int hour = 0;
    int minute = 0;

    friend bool operator==(const HourMinute&, const HourMinute&) = default;
};

/// The first four digits of `text` as HHMM, or its only three as HMM; every other character is skipped ("7:45").
/// Nothing for any other number of digits, an hour above 23 or a minute above 59.
std::optional<HourMinute> ParseHourMinute(std::string_view text);

/// The typed time on the local day of `base`, at the second of `base`. `base` itself when the text holds no time, the
/// clock refuses, or the result does not fit 32 bits.
std::int32_t TypedTimeOnDayOf(std::int32_t base, std::string_view text, const LocalClock& clock);

/// A typed HHMM brought into range: "0" in front up to four characters, the first four kept, 24:00 written "0000",
/// hours above 23 as "23", minutes above 59 as "59". Characters that are no digits stay, and count as `atoi` counts
/// them.
std::string ValidatedTime(std::string_view hhmm);

/// `t` moved by whole days into [now, now + 24 h]. A whole number of days ago lands 24 hours ahead, a whole number of
/// days ahead on `now`.
std::int64_t WithinNextDay(std::int64_t t, std::int64_t now);

} // namespace vorn
