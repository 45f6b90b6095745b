#pragma once

/// @file
/// Calendar times and spans, in whole seconds.
#include "framework/core/BaseTypes.h"
#include "framework/core/CString.h"
#include "framework/core/Export.h"

#include <compare>
#include <ctime>

#ifdef GetCurrentTime
#undef GetCurrentTime // an old macro of the system headers; the documented method has this name
#endif

/// A signed number of seconds.
class HOSTFRAMEWORK_API CTimeSpan
{
public:
    CTimeSpan() noexcept = default;
    CTimeSpan(long long time) noexcept : m_timeSpan(time)
    {
    }
    CTimeSpan(LONG lDays, int nHours, int nMins, int nSecs) noexcept;

    /// Whole days; hours, minutes and seconds below are what is left, with the sign of the span.
    LONGLONG GetDays() const noexcept;
    LONGLONG GetTotalHours() const noexcept;
    LONG GetHours() const noexcept;
    LONGLONG GetTotalMinutes() const noexcept;
    LONG GetMinutes() const noexcept;
    LONGLONG GetTotalSeconds() const noexcept;
    LONG GetSeconds() const noexcept;
    long long GetTimeSpan() const noexcept
    {
        return m_timeSpan;
    }

    CTimeSpan operator+(CTimeSpan span) const noexcept;
    CTimeSpan operator-(CTimeSpan span) const noexcept;
    CTimeSpan& operator+=(CTimeSpan span) noexcept;
    CTimeSpan& operator-=(CTimeSpan span) noexcept;
    friend auto operator<=>(const CTimeSpan&, const CTimeSpan&) noexcept = default;

    /// %D total days, %H hours, %M minutes, %S seconds (two digits each), %% a percent sign; anything else as it
    /// stands. A null format throws (invalid argument).
    CString Format(LPCSTR pszFormat) const;

private:
    long long m_timeSpan = 0;
};

/// A moment: signed 64-bit seconds since 1970-01-01 00:00 UTC; 0 often stands for "no time".
///
/// Moments that the C library can break down run from 0 to the end of the year 3000 (UTC), on every system.
class HOSTFRAMEWORK_API CTime
{
public:
    CTime() noexcept = default;
    CTime(long long time) noexcept : m_time(time)
    {
    }
    /// From local calendar fields; month and day count from 1, fields out of range carry over.
    /// @param nDST daylight saving: 0 standard time, above 0 daylight time, -1 as the zone's rules say.
    /// A moment outside the range above becomes 0.
    CTime(int nYear, int nMonth, int nDay, int nHour, int nMin, int nSec, int nDST = -1);
    /// From the packed local date and time of the DOS file systems.
    CTime(WORD wDosDate, WORD wDosTime, int nDST = -1);
    /// From local calendar fields; a year below 1900 gives 0.
    CTime(const SYSTEMTIME& st, int nDST = -1);
    /// From a UTC file time, cut to whole seconds; before 1970 gives 0.
    CTime(const FILETIME& ft, int nDST = -1);

    static CTime GetCurrentTime();
    /// Whether a file time can be represented.
    static BOOL IsValidFILETIME(const FILETIME& ft) noexcept;

    long long GetTime() const noexcept
    {
        return m_time;
    }
    /// UTC or local fields into `ptm`, which is returned; null when the moment cannot be broken down. A null `ptm`
    /// throws (invalid argument).
    struct tm* GetGmtTm(struct tm* ptm) const;
    struct tm* GetLocalTm(struct tm* ptm) const;
    /// Local fields, milliseconds 0; false when the moment cannot be broken down.
    bool GetAsSystemTime(SYSTEMTIME& st) const;

    /// Local fields. When the moment cannot be broken down: year, month, day and weekday 0, the others -1.
    int GetYear() const;
    int GetMonth() const;     ///< 1 to 12
    int GetDay() const;       ///< 1 to 31
    int GetHour() const;      ///< 0 to 23
    int GetMinute() const;    ///< 0 to 59
    int GetSecond() const;    ///< 0 to 59
    int GetDayOfWeek() const; ///< 1 (Sunday) to 7

    CTimeSpan operator-(CTime time) const noexcept;
    CTime operator-(CTimeSpan span) const noexcept;
    CTime operator+(CTimeSpan span) const noexcept;
    CTime& operator+=(CTimeSpan span) noexcept;
    CTime& operator-=(CTimeSpan span) noexcept;
    friend auto operator<=>(const CTime&, const CTime&) noexcept = default;

    /// strftime() of the local or UTC fields; empty when the result would exceed 4,095 characters. A moment that cannot
    /// be broken down and a null format throw (invalid argument).
    CString Format(LPCSTR pszFormat) const;
    CString FormatGmt(LPCSTR pszFormat) const;

private:
    long long m_time = 0;
};
