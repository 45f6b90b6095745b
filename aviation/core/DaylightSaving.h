#pragma once

#include "aviation/core/Calendar.h"

#include <cstdint>

namespace vorn
{

/// Whether the host says that daylight saving is in force now. `Unknown` also stands for a zone without daylight
/// saving.
enum class ZoneState
{
    Unknown,
    Standard,
    Daylight,
};

/// When standard or daylight time begins: a date when `year` is not zero, else the `day`-th Sunday (5: the last) of
/// `month` in every year. Minutes and the weekday of the host's record are not looked at.
struct ZoneTransition
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
};

/// What the host knows about its time zone. Biases are minutes to add to local time to get Universal Time, so positive
/// west of Greenwich.
struct ZoneFacts
{
    int bias = 0;
    int daylightBias = 0; ///< added to `bias` in daylight time only; present (-60) in zones without daylight time too
    ZoneState state = ZoneState::Unknown;
    ZoneTransition standard; ///< end of daylight time
    ZoneTransition daylight; ///< its start
};

/// Minutes between Universal and local time, with or without daylight time.
std::int64_t BiasMinutes(const ZoneFacts& zone, bool inDaylightTime);

/// Local time of the zone's transition in `year`. A rule of month 0 gives month 0 and day 1 or less: no check is made
/// here.
CivilTime TransitionTime(const ZoneTransition& transition, int year);

/// Whether `t` lies in the season from `start` to `end`. A start before (or at) the end is the northern pattern, both
/// ends included; otherwise the season spans the new year and both ends are excluded.
bool IsInSeason(std::int64_t t, std::int64_t start, std::int64_t end);

/// Local time `t` shifted to Universal Time, or back; held at the ends of the 64-bit range.
std::int64_t ToUniversal(std::int64_t t, std::int64_t biasMinutes);
std::int64_t FromUniversal(std::int64_t t, std::int64_t biasMinutes);

} // namespace vorn
