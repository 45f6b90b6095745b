#include "aviation/Date.h"
#include "framework/core/OleException.h"
#include "tests/windows/texts/PretendedZone.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

using namespace vorn::test;

namespace
{

constexpr long long kDay = 86400;
constexpr float kNoJulian = 1721025.5f;

// Moments of UTC from Python's calendar.timegm.
constexpr long long kWinter2024 = 1705320000; // 2024-01-15 12:00
constexpr long long kSummer2024 = 1719835200; // 2024-07-01 12:00

long long Now()
{
    return _time64(nullptr);
}

int ThisYear()
{
    const __time64_t now = Now();
    std::tm fields{};
    _gmtime64_s(&fields, &now);
    return fields.tm_year + 1900;
}

/// Whether a text ends as expected; the moment before it depends on the present.
bool EndsWith(const CString& text, const char* end)
{
    return std::string(text).ends_with(end);
}

/// The result code that an action throws, 0 for none.
template <class Action>
SCODE ThrownBy(Action&& action)
{
    try
    {
        action();
    }
    catch (COleException* exception)
    {
        const SCODE code = exception->m_sc;
        exception->Delete();
        return code;
    }
    return 0;
}

/// Texts and conversions in Universal Time.
class UniversalDate : public testing::Test
{
    PretendedZone m_zone{UniversalZone(), TIME_ZONE_ID_UNKNOWN, "GMT0"};
};

} // namespace

static_assert(sizeof(Date) == 16, "a pointer, a float and a 64-bit time");

TEST_F(UniversalDate, IsInvalidByDefault)
{
    Date date;
    EXPECT_FALSE(date.isValid());
    EXPECT_EQ(date.getJDate(), 0.0);
    EXPECT_EQ(date.getTime().GetTime(), 0);
    EXPECT_TRUE(date.isExpired());
    EXPECT_FALSE(date.isLate());
    EXPECT_EQ(date.GetNavTextColor(), 255UL);
    EXPECT_EQ(date.GetTCTextColor(), 255UL);
}

TEST_F(UniversalDate, TextsOfAnInvalidDateAreEmptyButForTheTermDate)
{
    Date date;
    EXPECT_EQ(date.GetDMdY(), "");
    EXPECT_EQ(date.GetZuluTDMdY(), "");
    EXPECT_EQ(date.GetNavEffDate(), "");
    EXPECT_EQ(date.GetNavExpDate(), "");
    EXPECT_EQ(date.GetTermExpDate(), "");
    EXPECT_EQ(date.GetTermEffDate(), "Thursday January 01 1970");
}

TEST_F(UniversalDate, KeepsTheMomentTwice)
{
    Date date{CTime(kWinter2024)};
    EXPECT_TRUE(date.isValid());
    EXPECT_EQ(date.getJDate(), 2460325.0);
    EXPECT_EQ(date.getTime().GetTime(), kWinter2024);
    Date julian(2460325.0f);
    EXPECT_EQ(julian.getTime().GetTime(), kWinter2024);
    EXPECT_EQ(julian.getJDate(), 2460325.0);
}

TEST_F(UniversalDate, StoresTheRoundedJulianDay)
{
    Date date{CTime(kWinter2024 + 3600)};
    EXPECT_EQ(date.getJDate(), 2460325.0) << "quarters of a day";
    EXPECT_EQ(date.getTime().GetTime(), kWinter2024 + 3600);
}

TEST_F(UniversalDate, CopiesBothFields)
{
    Date date{CTime(kWinter2024 + 3600)};
    const Date copy(date);
    Date assigned;
    assigned = copy;
    EXPECT_EQ(assigned.getTime().GetTime(), kWinter2024 + 3600);
    EXPECT_EQ(assigned.getJDate(), 2460325.0);
}

TEST_F(UniversalDate, SetJulianIgnoresZeroOfEitherSign)
{
    Date date{CTime(kWinter2024)};
    date.setJulian(0.0f);
    date.setJulian(-0.0f);
    EXPECT_EQ(date.getTime().GetTime(), kWinter2024);
    EXPECT_EQ(date.getJDate(), 2460325.0);
}

TEST_F(UniversalDate, SetJulianKeepsAValueThatIsNoMoment)
{
    Date date{CTime(kWinter2024)};
    date.setJulian(std::numeric_limits<float>::quiet_NaN());
    EXPECT_TRUE(std::isnan(date.getJDate()));
    EXPECT_FALSE(date.isValid());
    date.setJulian(std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isinf(date.getJDate()));
    EXPECT_FALSE(date.isValid());
    date.setJulian(1.0f);
    EXPECT_EQ(date.getJDate(), 1.0);
    EXPECT_FALSE(date.isValid());
}

TEST_F(UniversalDate, SetTimeOfZeroIsInvalidButHasAJulianDay)
{
    Date date{CTime(kWinter2024)};
    date.setTime(CTime(0));
    EXPECT_FALSE(date.isValid());
    EXPECT_EQ(date.getJDate(), 2440587.5);
}

TEST_F(UniversalDate, MomentsThatTheRuntimeRefusesFallBackWithoutThrowing)
{
    for (const long long t :
         {-1LL, 32535244800LL, std::numeric_limits<long long>::max(), std::numeric_limits<long long>::min()})
        EXPECT_EQ(Date::CTimetoJulian(CTime(t)), kNoJulian) << t;
    EXPECT_NE(Date::CTimetoJulian(CTime(32535215999LL)), kNoJulian);
}

TEST_F(UniversalDate, ExpiresAfterItsSecond)
{
    Date date{CTime(Now() + 5)};
    EXPECT_FALSE(date.isExpired());
    EXPECT_FALSE(date.isLate());
    EXPECT_EQ(date.GetNavTextColor(), 0UL);
    EXPECT_EQ(date.GetTCTextColor(), 0UL);
    date.setTime(CTime(Now() - 2));
    EXPECT_TRUE(date.isExpired());
    EXPECT_TRUE(date.isLate());
    EXPECT_EQ(date.GetNavTextColor(), 255UL);
    EXPECT_EQ(date.GetTCTextColor(), 0x2222B2UL);
}

TEST_F(UniversalDate, IsLateForSixDays)
{
    Date date{CTime(Now() - 6 * kDay + 5)};
    EXPECT_TRUE(date.isLate());
    date.setTime(CTime(Now() - 6 * kDay));
    EXPECT_FALSE(date.isLate());
    EXPECT_TRUE(date.isExpired());
    EXPECT_EQ(date.GetTCTextColor(), 255UL);
}

TEST_F(UniversalDate, CountsTheDaysToGo)
{
    // A second may pass between the two clocks.
    Date date{CTime(Now() + 5 * kDay / 2)};
    EXPECT_NEAR(date.GetDaysDiff(), 2.5, 2.0 / 86400);
    date.setTime(CTime(Now() - 3 * kDay));
    EXPECT_NEAR(date.GetDaysDiff(), -3.0, 2.0 / 86400);
}

TEST_F(UniversalDate, ExpiryTextsSayHowLong)
{
    Date date{CTime(Now() + 5 * kDay / 2 + 60)};
    EXPECT_TRUE(EndsWith(date.GetTermExpDate(), " (2.5 days)"));
    EXPECT_FALSE(EndsWith(date.GetTermExpDate(), "  (2.5 days)")) << "one blank";
    EXPECT_TRUE(EndsWith(date.GetNavExpDate(), "  (2.5 days)"));
    date.setTime(CTime(Now() - 3 * kDay - 60));
    EXPECT_TRUE(EndsWith(date.GetTermExpDate(), " Late: 3.0 days"));
    EXPECT_TRUE(EndsWith(date.GetNavExpDate(), "  (3.0 days ago)"));
    date.setTime(CTime(Now() - 10 * kDay - 60));
    EXPECT_TRUE(EndsWith(date.GetTermExpDate(), " LATE: 10.0 days"));
    EXPECT_TRUE(EndsWith(date.GetNavExpDate(), "  (10.0 days ago)"));
}

TEST_F(UniversalDate, TextsNameTheDay)
{
    Date date{CTime(kSummer2024 + 61)};
    EXPECT_EQ(date.GetDMdY(), "Monday July 01 2024");
    EXPECT_EQ(date.GetZuluTDMdY(), "12:01Z Monday July 01 2024");
    EXPECT_EQ(date.GetNavEffDate(), "Monday July 01 2024");
    EXPECT_EQ(date.GetTermEffDate(), "Monday July 01 2024");
    EXPECT_TRUE(std::string(date.GetNavExpDate()).starts_with("12:01Z Monday July 01 2024  ("));
    EXPECT_TRUE(std::string(date.GetTermExpDate()).starts_with("12:01Z Monday July 01 2024 LATE: "));
}

TEST_F(UniversalDate, TextsOfAMomentThatCannotBeBrokenDownThrow)
{
    Date date{CTime(-5)};
    EXPECT_EQ(ThrownBy(
                  [&]
                  {
                      date.GetDMdY();
                  }),
              E_INVALIDARG);
    EXPECT_EQ(ThrownBy(
                  [&]
                  {
                      date.GetZuluTDMdY();
                  }),
              E_INVALIDARG);
    EXPECT_EQ(ThrownBy(
                  [&]
                  {
                      date.GetNavEffDate();
                  }),
              E_INVALIDARG);
    EXPECT_EQ(ThrownBy(
                  [&]
                  {
                      date.GetTermEffDate();
                  }),
              E_INVALIDARG);
    EXPECT_EQ(ThrownBy(
                  [&]
                  {
                      date.GetNavExpDate();
                  }),
              E_INVALIDARG);
    EXPECT_EQ(ThrownBy(
                  [&]
                  {
                      date.GetTermExpDate();
                  }),
              E_INVALIDARG);
    EXPECT_EQ(static_cast<unsigned long>(E_INVALIDARG), 0x80070057UL);
}

TEST(DateInEasternTime, LocalTextsFollowTheZone)
{
    const PretendedZone zone(EasternZone(), TIME_ZONE_ID_STANDARD, "EST5EDT");
    Date date{CTime(kWinter2024 + 16 * 3600)}; // 2024-01-16 04:00 UTC, 23:00 the day before
    EXPECT_EQ(date.GetDMdY(), "Monday January 15 2024");
    EXPECT_EQ(date.GetNavEffDate(), "Tuesday January 16 2024");
}

TEST(DateInEasternTime, JulianDaysAreUniversalInTheirSeason)
{
    {
        const PretendedZone zone(EasternZone(), TIME_ZONE_ID_STANDARD, "EST5EDT");
        EXPECT_EQ(Date::CTimetoJulian(CTime(kWinter2024)), 2460325.0f);
        EXPECT_EQ(Date::JuliantoCTime(2460325.0f).GetTime(), kWinter2024);
    }
    const PretendedZone zone(EasternZone(), TIME_ZONE_ID_DAYLIGHT, "EST5EDT");
    EXPECT_EQ(Date::CTimetoJulian(CTime(kSummer2024)), 2460493.0f);
}

TEST(DateInEasternTime, TransitionsAreThisYearsSundays)
{
    const PretendedZone zone(EasternZone(), TIME_ZONE_ID_STANDARD, "EST5EDT");
    std::tm start{};
    ASSERT_NE(Date::GetDSTStart().GetLocalTm(&start), nullptr);
    EXPECT_EQ(start.tm_mon, 2);
    EXPECT_EQ(start.tm_wday, 0);
    EXPECT_GE(start.tm_mday, 8);
    EXPECT_LE(start.tm_mday, 14);
    EXPECT_EQ(start.tm_year + 1900, ThisYear());
    std::tm end{};
    ASSERT_NE(Date::GetDSTEnd().GetLocalTm(&end), nullptr);
    EXPECT_EQ(end.tm_mon, 10);
    EXPECT_EQ(end.tm_wday, 0);
    EXPECT_LE(end.tm_mday, 7);
    EXPECT_EQ(end.tm_hour, 2);
}

TEST(DateInEasternTime, TheSeasonIncludesBothEnds)
{
    const PretendedZone zone(EasternZone(), TIME_ZONE_ID_STANDARD, "EST5EDT");
    const long long start = Date::GetDSTStart().GetTime();
    const long long end = Date::GetDSTEnd().GetTime();
    EXPECT_FALSE(Date::isDST(CTime(start - 1)));
    EXPECT_TRUE(Date::isDST(CTime(start)));
    EXPECT_TRUE(Date::isDST(CTime(end)));
    EXPECT_FALSE(Date::isDST(CTime(end + 1)));
    EXPECT_FALSE(Date::isDST(CTime(start + 30 * kDay - 366 * kDay))) << "a summer of another year";
}

TEST(DateInEasternTime, AsksTheSystemAtMostTwice)
{
    const PretendedZone zone(EasternZone(), TIME_ZONE_ID_STANDARD, "EST5EDT");
    Date::isDST(CTime(kSummer2024));
    EXPECT_GE(PretendedZone::Questions(), 1);
    EXPECT_LE(PretendedZone::Questions(), 2);
}

TEST(DateInEasternTime, HasNoSeasonWhenTheStateIsUnknown)
{
    for (const DWORD state : {DWORD{TIME_ZONE_ID_UNKNOWN}, DWORD{TIME_ZONE_ID_INVALID}})
    {
        const PretendedZone zone(EasternZone(), state, "EST5EDT");
        EXPECT_FALSE(Date::isDST(CTime(Date::GetDSTStart().GetTime() + 30 * kDay))) << state;
    }
}

TEST(DateInTheSouth, TheSeasonSpansTheNewYear)
{
    const PretendedZone zone(SouthernZone(), TIME_ZONE_ID_DAYLIGHT, "GMT0");
    const long long start = Date::GetDSTStart().GetTime();
    const long long end = Date::GetDSTEnd().GetTime();
    EXPECT_LT(end, start);
    EXPECT_TRUE(Date::isDST(CTime(end - 1)));
    EXPECT_FALSE(Date::isDST(CTime(end)));
    EXPECT_FALSE(Date::isDST(CTime((start + end) / 2)));
    EXPECT_FALSE(Date::isDST(CTime(start)));
    EXPECT_TRUE(Date::isDST(CTime(start + 1)));
    EXPECT_TRUE(Date::isDST(CTime(kSummer2024 - 3 * 366 * kDay))) << "every moment of a past year";
}

TEST(DateWithoutDaylightTime, IgnoresTheDaylightBias)
{
    const PretendedZone zone(PlainZone(-330), TIME_ZONE_ID_UNKNOWN, "IST-5:30");
    EXPECT_FALSE(Date::isDST(CTime(kSummer2024)));
    EXPECT_EQ(Date::CTimetoJulian(CTime(kSummer2024)), 2460493.0f);
    EXPECT_EQ(Date::JuliantoCTime(2460493.0f).GetTime(), kSummer2024);
}

TEST(DateWithoutDaylightTime, LeavesARuleOfMonthZeroToTheRuntime)
{
    const PretendedZone zone(PlainZone(0), TIME_ZONE_ID_UNKNOWN, "GMT0");
    // Month 0 is December of the year before; the day is 0 or less.
    const long long start = Date::GetDSTStart().GetTime();
    EXPECT_GE(start, CTime(ThisYear() - 1, 11, 20, 0, 0, 0).GetTime());
    EXPECT_LE(start, CTime(ThisYear() - 1, 12, 7, 0, 0, 0).GetTime());
    EXPECT_EQ(Date::GetDSTEnd().GetTime(), start);
}

TEST(DateWithAbsoluteTransitions, TakesTheRecordsDate)
{
    TIME_ZONE_INFORMATION record = PlainZone(0);
    record.DaylightDate.wYear = 2021;
    record.DaylightDate.wMonth = 6;
    record.DaylightDate.wDay = 17;
    record.DaylightDate.wHour = 3;
    record.DaylightDate.wMinute = 45; // minutes do not count
    const PretendedZone zone(record, TIME_ZONE_ID_STANDARD, "GMT0");
    EXPECT_EQ(Date::GetDSTStart().GetTime(), 1623898800); // 2021-06-17 03:00 UTC
}

TEST(DateCalendar, IsExported)
{
    EXPECT_EQ(Date::DayofWeek(2008, 1, 1), 2);
    EXPECT_EQ(Date::DayofWeek(2000, 3, 1), 3);
    EXPECT_EQ(Date::DaysInMonth(1900, 2), 29);
    EXPECT_EQ(Date::DaysInMonth(2024, 13), 0);
}

TEST(DateCalendar, ItsPrivateStaticsAreExportedByTheirSignatures)
{
    const HMODULE library = GetModuleHandleA("VornCommon.dll");
    for (const char* name : {"_ZN4Date6ucttojEiiiiii", "_ZN4Date6jtouctEdPiS0_S0_S0_S0_S0_", "_ZN4Date5jyearEdPiS0_S0_",
                             "_ZN4Date4jhmsEdPiS0_S0_"})
        EXPECT_NE(GetProcAddress(library, name), nullptr) << name;
    const auto ucttoj = reinterpret_cast<double (*)(int, int, int, int, int, int)>(
        reinterpret_cast<void*>(GetProcAddress(library, "_ZN4Date6ucttojEiiiiii")));
    EXPECT_EQ(ucttoj(2000, 1, 1, 12, 0, 0), 2451545.0);
    const auto jtouct = reinterpret_cast<void (*)(double, int*, int*, int*, int*, int*, int*)>(
        reinterpret_cast<void*>(GetProcAddress(library, "_ZN4Date6jtouctEdPiS0_S0_S0_S0_S0_")));
    int fields[6] = {};
    jtouct(2451545.25, fields, fields + 1, fields + 2, fields + 3, fields + 4, fields + 5);
    EXPECT_EQ(fields[0], 2000);
    EXPECT_EQ(fields[1], 1);
    EXPECT_EQ(fields[2], 1);
    EXPECT_EQ(fields[3], 18);
}

// In a process of its own: the others must not see a runtime without TZ.
TEST(DateWithoutRuntimeZone, FollowsTheSystem)
{
    const auto isRight = []
    {
        SetRuntimeZone("");
        return Date::CTimetoJulian(CTime(kWinter2024)) == 2460325.0f &&
               Date::JuliantoCTime(2460325.0f).GetTime() == kWinter2024;
    };
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(std::exit(isRight() ? 0 : 1), testing::ExitedWithCode(0), "");
}
