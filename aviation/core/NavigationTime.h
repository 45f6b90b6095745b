#pragma once

#include "aviation/core/DaylightSaving.h"
#include "aviation/core/LocalClock.h"

#include <cstdint>

namespace vorn
{

/// Whether daylight saving is in force at `t`, judged by the transitions of `thisYear` whatever the year of `t`: past
/// summers of the northern half do not count. False when the zone's state is unknown.
bool IsDaylightAt(std::int64_t t, const ZoneFacts& zone, int thisYear, const LocalClock& clock);

/// Moment of a transition of the zone; 0 when the clock refuses it.
std::int64_t TransitionMoment(const ZoneTransition& transition, int thisYear, const LocalClock& clock);

/// Julian day of `t`, rounded to single precision (a quarter of a day at present). The daylight bias is added by
/// today's state of the zone, while the local fields follow the season of `t`: an hour off in the other season. A
/// moment that the clock refuses gives 1721025.5.
float JulianOfMoment(std::int64_t t, const ZoneFacts& zone, const LocalClock& clock);

/// Moment of a Julian day; 0 when there is none (not finite, before 1970, after the year 3000, or refused by the
/// clock).
std::int64_t MomentOfJulian(float julian, const ZoneFacts& zone, int thisYear, const LocalClock& clock);

} // namespace vorn
