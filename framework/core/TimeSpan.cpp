#include "framework/core/OleException.h"
#include "framework/core/Time.h"

namespace
{
constexpr long long kMinute = 60;
constexpr long long kHour = 60 * kMinute;
constexpr long long kDay = 24 * kHour;

long long WrapAdd(long long first, long long second)
{
    return static_cast<long long>(static_cast<unsigned long long>(first) + static_cast<unsigned long long>(second));
}

long long WrapSubtract(long long first, long long second)
{
    return static_cast<long long>(static_cast<unsigned long long>(first) - static_cast<unsigned long long>(second));
}

void AppendCode(CString& text, char code, const CTimeSpan& span)
{
    switch (code)
    {
    case 'D':
        text.AppendFormat("%lld", span.GetDays());
        break;
    case 'H':
        text.AppendFormat("%02ld", static_cast<long>(span.GetHours()));
        break;
    case 'M':
        text.AppendFormat("%02ld", static_cast<long>(span.GetMinutes()));
        break;
    case 'S':
        text.AppendFormat("%02ld", static_cast<long>(span.GetSeconds()));
        break;
    case '%':
        text.AppendChar('%');
        break;
    default:
        text.AppendChar('%');
        text.AppendChar(code);
    }
}
} // namespace

CTimeSpan::CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept
    : m_timeSpan(lDays * kDay + nHours * kHour + nMins * kMinute + nSecs)
{
}

LONGLONG CTimeSpan::GetDays() const noexcept
{
    return m_timeSpan / kDay;
}

LONGLONG CTimeSpan::GetTotalHours() const noexcept
{
    return m_timeSpan / kHour;
}

LONG CTimeSpan::GetHours() const noexcept
{
    return static_cast<LONG>(m_timeSpan % kDay / kHour);
}

LONGLONG CTimeSpan::GetTotalMinutes() const noexcept
{
    return m_timeSpan / kMinute;
}

LONG CTimeSpan::GetMinutes() const noexcept
{
    return static_cast<LONG>(m_timeSpan % kHour / kMinute);
}

LONGLONG CTimeSpan::GetTotalSeconds() const noexcept
{
    return m_timeSpan;
}

LONG CTimeSpan::GetSeconds() const noexcept
{
    return static_cast<LONG>(m_timeSpan % kMinute);
}

CTimeSpan CTimeSpan::operator+(CTimeSpan span) const noexcept
{
    return CTimeSpan(WrapAdd(m_timeSpan, span.m_timeSpan));
}

CTimeSpan CTimeSpan::operator-(CTimeSpan span) const noexcept
{
    return CTimeSpan(WrapSubtract(m_timeSpan, span.m_timeSpan));
}

CTimeSpan& CTimeSpan::operator+=(CTimeSpan span) noexcept
{
    return *this = *this + span;
}

CTimeSpan& CTimeSpan::operator-=(CTimeSpan span) noexcept
{
    return *this = *this - span;
}

CString CTimeSpan::Format(LPCSTR pszFormat) const
{
    if (pszFormat == nullptr)
    {
        AtlThrow(E_INVALIDARG);
    }
    CString text;
    for (const char* at = pszFormat; *at != '\0'; ++at)
    {
        if (*at == '%' && at[1] != '\0')
        {
            AppendCode(text, *++at, *this);
        }
        else
        {
            text.AppendChar(*at);
        }
    }
    return text;
}

CTimeSpan CTime::operator-(CTime time) const noexcept
{
    return CTimeSpan(WrapSubtract(m_time, time.m_time));
}

CTime CTime::operator-(CTimeSpan span) const noexcept
{
    return CTime(WrapSubtract(m_time, span.GetTimeSpan()));
}

CTime CTime::operator+(CTimeSpan span) const noexcept
{
    return CTime(WrapAdd(m_time, span.GetTimeSpan()));
}

CTime& CTime::operator+=(CTimeSpan span) noexcept
{
    return *this = *this + span;
}

CTime& CTime::operator-=(CTimeSpan span) noexcept
{
    return *this = *this - span;
}
