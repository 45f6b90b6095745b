#include "aviation/core/DaylightSaving.h"

#include "aviation/core/SaturatingTime.h"

namespace vorn
{

namespace
{

constexpr std::int64_t kSecondsPerMinute = 60;

/// The `nth` Sunday of a month whose first day falls on `firstWeekday`, one week earlier when that lies beyond the
/// month's end.
int NthSunday(int nth, int firstWeekday, int monthLength)
{
    const int sunday = 7 * nth + (7 - firstWeekday) % 7 - 6;
    return sunday > monthLength ? sunday - 7 : sunday;
}

} // namespace

std::int64_t BiasMinutes(const ZoneFacts& zone, bool inDaylightTime)
{
    return std::int64_t{zone.bias} + (inDaylightTime ? zone.daylightBias : 0);
}

CivilTime TransitionTime(const ZoneTransition& transition, int year)
{
    if (transition.year != 0)
        return {transition.year, transition.month, transition.day, transition.hour, 0, 0};
    const int day =
        NthSunday(transition.day, WeekdayOf(year, transition.month, 1), MonthLength(year, transition.month));
    return {year, transition.month, day, transition.hour, 0, 0};
}

bool IsInSeason(std::int64_t t, std::int64_t start, std::int64_t end)
{
    return end >= start ? start <= t && t <= end : t < end || t > start;
}

std::int64_t ToUniversal(std::int64_t t, std::int64_t biasMinutes)
{
    return AddSaturated(t, kSecondsPerMinute * biasMinutes);
}

std::int64_t FromUniversal(std::int64_t t, std::int64_t biasMinutes)
{
    return SubtractSaturated(t, kSecondsPerMinute * biasMinutes);
}

} // namespace vorn
