#include "aviation/Date.h"
#include "aviation/HostZone.h"
#include "aviation/RuntimeClock.h"
#include "aviation/core/Julian.h"
#include "aviation/core/NavigationTime.h"

namespace
{

CTime TransitionTime(const vorn::ZoneTransition& transition)
{
    return CTime(vorn::TransitionMoment(transition, vorn::CurrentLocalYear(), vorn::RuntimeClock()));
}

} // namespace

float Date::CTimetoJulian(CTime t)
{
    return vorn::JulianOfMoment(t.GetTime(), vorn::HostZone(), vorn::RuntimeClock());
}

CTime Date::JuliantoCTime(float j)
{
    return CTime(vorn::MomentOfJulian(j, vorn::HostZone(), vorn::CurrentLocalYear(), vorn::RuntimeClock()));
}

bool Date::isDST(CTime t)
{
    return vorn::IsDaylightAt(t.GetTime(), vorn::HostZone(), vorn::CurrentLocalYear(), vorn::RuntimeClock());
}

CTime Date::GetDSTStart()
{
    return TransitionTime(vorn::HostZone().daylight);
}

CTime Date::GetDSTEnd()
{
    return TransitionTime(vorn::HostZone().standard);
}

int Date::DayofWeek(int year, int month, int day)
{
    return vorn::WeekdayOf(year, month, day);
}

int Date::DaysInMonth(int year, int month)
{
    return vorn::MonthLength(year, month);
}

double Date::ucttoj(int year, int month, int day, int hour, int minute, int second)
{
    return vorn::JulianOfCivil({year, month, day, hour, minute, second});
}

void Date::jtouct(double j, int* year, int* month, int* day, int* hour, int* minute, int* second)
{
    jyear(j, year, month, day);
    jhms(j, hour, minute, second);
}

void Date::jyear(double j, int* year, int* month, int* day)
{
    const vorn::CivilTime date = vorn::DateOfJulian(j);
    *year = date.year;
    *month = date.month;
    *day = date.day;
}

void Date::jhms(double j, int* hour, int* minute, int* second)
{
    const vorn::CivilTime clock = vorn::ClockOfJulian(j);
    *hour = clock.hour;
    *minute = clock.minute;
    *second = clock.second;
}
