#include "aviation/Date.h"

#include "aviation/RuntimeClock.h"
#include "aviation/core/Currency.h"

Date::Date(float julian)
{
    setJulian(julian);
}

Date::Date(CTime t)
{
    setTime(t);
}

Date::~Date() = default;

void Date::setJulian(float j)
{
    if (j == 0)
        return;
    m_julian = j;
    m_time = JuliantoCTime(j);
}

void Date::setTime(CTime t)
{
    m_time = t;
    m_julian = CTimetoJulian(t);
}

double Date::getJDate()
{
    return m_julian;
}

CTime Date::getTime()
{
    return m_time;
}

bool Date::isValid()
{
    return m_time.GetTime() != 0;
}

bool Date::isExpired()
{
    return vorn::IsExpiredAt(m_time.GetTime(), vorn::Now());
}

bool Date::isLate()
{
    return vorn::IsLateAt(m_time.GetTime(), vorn::Now());
}

double Date::GetDaysDiff()
{
    return vorn::DaysUntil(m_time.GetTime(), vorn::Now());
}

unsigned long Date::GetNavTextColor()
{
    return vorn::NavTextColor(isExpired());
}

unsigned long Date::GetTCTextColor()
{
    return vorn::TerminalTextColor(isLate(), isExpired());
}
