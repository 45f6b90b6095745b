#include "aviation/core/NavigationTime.h"

#include "aviation/core/Julian.h"

namespace vorn
{

namespace
{

constexpr int kFirstYear = 1970;
constexpr int kLastYear = 3000;
constexpr CivilTime kNoMoment = {0, 0, 0, -1, -1, -1};

} // namespace

std::int64_t TransitionMoment(const ZoneTransition& transition, int thisYear, const LocalClock& clock)
{
    return clock.Make(TransitionTime(transition, thisYear)).value_or(0);
}

bool IsDaylightAt(std::int64_t t, const ZoneFacts& zone, int thisYear, const LocalClock& clock)
{
    if (zone.state == ZoneState::Unknown)
        return false;
    return IsInSeason(t, TransitionMoment(zone.daylight, thisYear, clock),
                      TransitionMoment(zone.standard, thisYear, clock));
}

float JulianOfMoment(std::int64_t t, const ZoneFacts& zone, const LocalClock& clock)
{
    const std::int64_t shifted = ToUniversal(t, BiasMinutes(zone, zone.state == ZoneState::Daylight));
    return static_cast<float>(JulianOfCivil(clock.BreakDown(shifted).value_or(kNoMoment)));
}

std::int64_t MomentOfJulian(float julian, const ZoneFacts& zone, int thisYear, const LocalClock& clock)
{
    const CivilTime universal = CivilOfJulian(julian);
    if (universal.year < kFirstYear || universal.year > kLastYear)
        return 0;
    const std::optional<std::int64_t> local = clock.Make(universal);
    if (!local)
        return 0;
    return FromUniversal(*local, BiasMinutes(zone, IsDaylightAt(*local, zone, thisYear, clock)));
}

} // namespace vorn
