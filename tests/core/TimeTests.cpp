#include "framework/core/Time.h"

#include "framework/core/OleException.h"
#include "tests/support/Thrown.h"

#include <climits>
#include <gtest/gtest.h>

// Seconds since 1970 below are from `date -u -d ... +%s`.

TEST(Time, IsEightBytesOfSeconds)
{
    static_assert(sizeof(CTime) == 8);
    EXPECT_EQ(CTime().GetTime(), 0);
    EXPECT_EQ(CTime(5000000000LL).GetTime(), 5000000000LL);
}

TEST(Time, BreaksDownInUtc)
{
    std::tm fields{};
    ASSERT_EQ(CTime(951782399).GetGmtTm(&fields), &fields); // 2000-02-28 23:59:59
    EXPECT_EQ(fields.tm_year, 100);
    EXPECT_EQ(fields.tm_mon, 1);
    EXPECT_EQ(fields.tm_mday, 28);
    EXPECT_EQ(fields.tm_hour, 23);
    EXPECT_EQ(fields.tm_min, 59);
    EXPECT_EQ(fields.tm_sec, 59);
}

TEST(Time, FormatsUtc)
{
    EXPECT_EQ(CTime(1709210096).FormatGmt("%Y-%m-%d %H:%M:%S"), "2024-02-29 12:34:56");
    EXPECT_EQ(CTime(1709210096).FormatGmt("%H:%MZ %A %B %d %Y"), "12:34Z Thursday February 29 2024");
    EXPECT_EQ(CTime(0).FormatGmt("%A %B %d %Y"), "Thursday January 01 1970");
    EXPECT_EQ(CTime(0).FormatGmt("100%%"), "100%");
    EXPECT_EQ(CTime(0).FormatGmt(""), "");
}

TEST(Time, FormatsLongTexts)
{
    CString format('-', 300);
    format += "%Y";
    EXPECT_EQ(CTime(0).FormatGmt(format), CString('-', 300) + "1970");
    EXPECT_TRUE(CTime(0).FormatGmt(CString('-', 5000)).IsEmpty());
}

TEST(Time, LocalFieldsGoThereAndBack)
{
    const CTime time(2024, 2, 29, 12, 34, 56);
    EXPECT_EQ(time.GetYear(), 2024);
    EXPECT_EQ(time.GetMonth(), 2);
    EXPECT_EQ(time.GetDay(), 29);
    EXPECT_EQ(time.GetHour(), 12);
    EXPECT_EQ(time.GetMinute(), 34);
    EXPECT_EQ(time.GetSecond(), 56);
    EXPECT_EQ(time.GetDayOfWeek(), 5);
    EXPECT_EQ(time.Format("%Y-%m-%d %H:%M:%S"), "2024-02-29 12:34:56");
    std::tm fields{};
    ASSERT_EQ(time.GetLocalTm(&fields), &fields);
    EXPECT_EQ(fields.tm_yday, 59);
}

TEST(Time, LocalFieldsCarryOver)
{
    EXPECT_EQ(CTime(2023, 14, 29, 12, 0, 0), CTime(2024, 2, 29, 12, 0, 0));
    EXPECT_EQ(CTime(2024, 3, 0, 12, 0, 0), CTime(2024, 2, 29, 12, 0, 0));
    EXPECT_EQ(CTime(2024, 2, 29, 11, 59, 60), CTime(2024, 2, 29, 12, 0, 0));
}

TEST(Time, MomentsThatCannotBeBecomeZero)
{
    EXPECT_EQ(CTime(1960, 1, 1, 0, 0, 0).GetTime(), 0);
    EXPECT_EQ(CTime(3100, 1, 1, 0, 0, 0).GetTime(), 0);
    EXPECT_EQ(CTime(-4712, 1, 1, 12, 0, 0, -1).GetTime(), 0);
    EXPECT_EQ(CTime(INT_MAX, INT_MAX, INT_MAX, 0, 0, 0).GetTime(), 0);
    EXPECT_EQ(CTime(INT_MIN, INT_MIN, INT_MIN, 0, 0, 0).GetTime(), 0);
    EXPECT_GT(CTime(2999, 6, 1, 0, 0, 0).GetTime(), 32450000000LL);
}

TEST(Time, FieldsOfAnImpossibleMomentAreZeroOrMinusOne)
{
    for (const CTime time : {CTime(-1), CTime(32535216000LL), CTime(LLONG_MAX), CTime(LLONG_MIN)})
    {
        std::tm fields{};
        EXPECT_EQ(time.GetGmtTm(&fields), nullptr);
        EXPECT_EQ(time.GetLocalTm(&fields), nullptr);
        EXPECT_EQ(time.GetYear(), 0);
        EXPECT_EQ(time.GetMonth(), 0);
        EXPECT_EQ(time.GetDay(), 0);
        EXPECT_EQ(time.GetDayOfWeek(), 0);
        EXPECT_EQ(time.GetHour(), -1);
        EXPECT_EQ(time.GetMinute(), -1);
        EXPECT_EQ(time.GetSecond(), -1);
        SYSTEMTIME system{};
        EXPECT_FALSE(time.GetAsSystemTime(system));
        EXPECT_THROWN(time.FormatGmt("%Y"), COleException);
        EXPECT_THROWN(time.Format("%Y"), COleException);
    }
    EXPECT_EQ(CTime(32535215999LL).FormatGmt("%Y-%m-%d %H:%M:%S"), "3000-12-31 23:59:59");
}

TEST(Time, NullArgumentsThrowInvalidArgument)
{
    EXPECT_THROWN(CTime(0).FormatGmt(nullptr), COleException);
    EXPECT_THROWN(CTime(0).GetGmtTm(nullptr), COleException);
    EXPECT_THROWN(CTime(0).GetLocalTm(nullptr), COleException);
    EXPECT_THROWN(CTimeSpan(0).Format(nullptr), COleException);
}

TEST(Time, ConvertsFileTimes)
{
    // 1709210096 s after 1970 is 133536836960000000 steps after 1601.
    const unsigned long long ticks = 133536836960000000ULL + 9999999;
    const FILETIME file = {static_cast<DWORD>(ticks & 0xFFFFFFFF), static_cast<DWORD>(ticks >> 32)};
    EXPECT_EQ(CTime(file).GetTime(), 1709210096);
    EXPECT_TRUE(CTime::IsValidFILETIME(file));
    const FILETIME before = {0, 0};
    EXPECT_EQ(CTime(before).GetTime(), 0);
    EXPECT_FALSE(CTime::IsValidFILETIME(before));
    const FILETIME beyond = {0xFFFFFFFF, 0xFFFFFFFF};
    EXPECT_EQ(CTime(beyond).GetTime(), 0);
}

TEST(Time, ConvertsSystemTimes)
{
    SYSTEMTIME system = {2024, 2, 4, 29, 12, 34, 56, 789};
    const CTime time(system);
    EXPECT_EQ(time, CTime(2024, 2, 29, 12, 34, 56));
    SYSTEMTIME back{};
    ASSERT_TRUE(time.GetAsSystemTime(back));
    EXPECT_EQ(back.wDayOfWeek, 4);
    EXPECT_EQ(back.wSecond, 56);
    EXPECT_EQ(back.wMilliseconds, 0);
    system.wYear = 1899;
    EXPECT_EQ(CTime(system).GetTime(), 0);
}

TEST(Time, UnpacksDosDates)
{
    const WORD date = (2024 - 1980) << 9 | 2 << 5 | 29;
    const WORD time = 12 << 11 | 34 << 5 | 56 / 2;
    EXPECT_EQ(CTime(date, time), CTime(2024, 2, 29, 12, 34, 56));
}

TEST(Time, ComparesAndAdds)
{
    const CTime start(1000);
    const CTime later = start + CTimeSpan(1, 0, 0, 5);
    EXPECT_EQ(later.GetTime(), 87405);
    EXPECT_LT(start, later);
    EXPECT_GE(later, start);
    EXPECT_NE(start, later);
    EXPECT_TRUE(CTime() == 0);
    EXPECT_EQ((later - start).GetTotalSeconds(), 86405);
    EXPECT_EQ(later - CTimeSpan(86405), start);
    CTime moved = start;
    moved += CTimeSpan(60);
    moved -= CTimeSpan(1);
    EXPECT_EQ(moved.GetTime(), 1059);
}

TEST(Time, CurrentTimeIsNow)
{
    const long long before = std::time(nullptr);
    const long long now = CTime::GetCurrentTime().GetTime();
    EXPECT_GE(now, before);
    EXPECT_LE(now, std::time(nullptr));
}

TEST(TimeSpan, SplitsIntoFields)
{
    const CTimeSpan span(3, 1, 5, 12);
    EXPECT_EQ(span.GetTotalSeconds(), 263112);
    EXPECT_EQ(span.GetDays(), 3);
    EXPECT_EQ(span.GetTotalHours(), 73);
    EXPECT_EQ(span.GetHours(), 1);
    EXPECT_EQ(span.GetTotalMinutes(), 4385);
    EXPECT_EQ(span.GetMinutes(), 5);
    EXPECT_EQ(span.GetSeconds(), 12);
    EXPECT_EQ(CTimeSpan(-61).GetMinutes(), -1);
    EXPECT_EQ(CTimeSpan(-61).GetSeconds(), -1);
}

TEST(TimeSpan, Formats)
{
    const CTimeSpan span(3, 1, 5, 12);
    EXPECT_EQ(span.Format("Total days: %D, hours: %H, mins: %M, secs: %S"),
              "Total days: 3, hours: 01, mins: 05, secs: 12");
    EXPECT_EQ(span.Format("100%% %x%"), "100% %x%");
}

TEST(TimeSpan, AddsAndCompares)
{
    CTimeSpan span(90);
    span += CTimeSpan(30);
    EXPECT_EQ(span, CTimeSpan(0, 0, 2, 0));
    span -= CTimeSpan(121);
    EXPECT_LT(span, CTimeSpan());
    EXPECT_EQ((CTimeSpan(5) - CTimeSpan(7)).GetTimeSpan(), -2);
    EXPECT_EQ((CTimeSpan(5) + CTimeSpan(7)).GetTimeSpan(), 12);
}
