#include "aviation/HostZone.h"

#include <windows.h>

namespace vorn
{

namespace
{

ZoneState StateOf(DWORD answer)
{
    if (answer == TIME_ZONE_ID_STANDARD)
        return ZoneState::Standard;
    return answer == TIME_ZONE_ID_DAYLIGHT ? ZoneState::Daylight : ZoneState::Unknown;
}

ZoneTransition TransitionOf(const SYSTEMTIME& date)
{
    return {date.wYear, date.wMonth, date.wDay, date.wHour};
}

} // namespace

ZoneFacts HostZone()
{
    TIME_ZONE_INFORMATION zone{};
    const DWORD answer = GetTimeZoneInformation(&zone);
    return {static_cast<int>(zone.Bias), static_cast<int>(zone.DaylightBias), StateOf(answer),
            TransitionOf(zone.StandardDate), TransitionOf(zone.DaylightDate)};
}

} // namespace vorn
