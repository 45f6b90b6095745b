#pragma once

#include "frame/core/Export.h"
#include "framework/core/CString.h"
#include "framework/core/Time.h"

/// The effective or expiry moment of navigation data: valid, late or expired against the present, and the texts and
/// colours that say so.
///
/// The moment is kept twice: as a Julian day in Universal Time (0 when unset; single precision resolves a quarter of a
/// day at present) and as a calendar time (0 when invalid). After setTime() both describe the same moment; after
/// setJulian() the time is the one that the rounded Julian day stands for. The clock is read anew by every question
/// about the present.
///
/// Texts of a moment that the C runtime cannot break down (before 1970, after the year 3000) throw a COleException*
/// with E_INVALIDARG; nothing else here throws. The conversions between local and Universal Time follow the C runtime
/// and the system's time zone, and are right when the two agree.
class VORNCOMMON_API Date
{
public:
    Date() = default;
    Date(float julian);
    Date(CTime t);
    Date(const Date&) = default;
    Date& operator=(const Date&) = default;
    virtual ~Date();

    /// Sets the moment by a Julian day. 0 changes nothing; a value that is no moment makes the time invalid.
    void setJulian(float j);
    void setTime(CTime t);

    double getJDate();
    CTime getTime();

    /// The time is not 0.
    bool isValid();

    /// The moment has passed: false at its very second.
    bool isExpired();

    /// Expired, by less than six days.
    bool isLate();

    /// Days to go, negative once past.
    double GetDaysDiff();

    /// Colour (COLORREF) of navigation data: red once expired, else black.
    unsigned long GetNavTextColor();

    /// Colour of terminal charts: dark red while late, red afterwards, else black.
    unsigned long GetTCTextColor();

    /// "Thursday January 01 1970" in local time; empty for an invalid moment, as all texts but GetTermEffDate().
    CString GetDMdY();

    /// "00:00Z Thursday January 01 1970" in UTC.
    CString GetZuluTDMdY();

    /// "Thursday January 01 1970" in UTC.
    CString GetNavEffDate();

    /// The same, also for an invalid moment: an unset date prints as the first day of 1970.
    CString GetTermEffDate();

    /// "00:00Z Thursday January 01 1970  (2.5 days)", or "... days ago)" once expired.
    CString GetNavExpDate();

    /// "00:00Z Thursday January 01 1970 (2.5 days)", "... Late: 3.0 days" for six days after expiry, "... LATE: 10.0
    /// days" afterwards.
    CString GetTermExpDate();

    /// Julian day of a moment. The daylight bias is added by today's state: an hour off for dates of the other season.
    static float CTimetoJulian(CTime t);

    /// The moment of a Julian day; 0 when there is none.
    static CTime JuliantoCTime(float j);

    /// Whether daylight saving is in force, by this year's dates whatever the year of `t`.
    static bool isDST(CTime t);

    /// When daylight saving begins and ends this year, taken to fall on a Sunday; 0 where the runtime knows no such
    /// time.
    static CTime GetDSTStart();
    static CTime GetDSTEnd();

    /// 0 for Sunday to 6 for Saturday; right from 1901 to 2100.
    static int DayofWeek(int year, int month, int day);

    /// 0 for a month outside 1 to 12; February has 29 days every fourth year.
    static int DaysInMonth(int year, int month);

private:
    static double ucttoj(int year, int month, int day, int hour, int minute, int second);
    static void jtouct(double j, int* year, int* month, int* day, int* hour, int* minute, int* second);
    static void jyear(double j, int* year, int* month, int* day);
    static void jhms(double j, int* hour, int* minute, int* second);

    float m_julian = 0;
    CTime m_time;
};
