#include "aviation/Date.h"
#include "aviation/Formatting.h"
#include "tests/windows/texts/PretendedZone.h"

#include <gtest/gtest.h>

#include <climits>
#include <ctime>

using namespace vorn::test;

namespace
{

// 2024-07-01 12:34:56 UTC, 08:34:56 in eastern daylight time; and the local midnight before it.
constexpr int kBase = 1719837296;
constexpr int kMidnight = 1719806400;

// 2024-01-15 12:00 UTC.
constexpr long long kWinter = 1705320000;

/// The zone in its present season, with the runtime's rules beside it.
class EasternTime : public testing::Test
{
    PretendedZone m_zone{EasternZone(), TIME_ZONE_ID_DAYLIGHT, "EST5EDT"};
};

std::string Validated(const char* text)
{
    CString hhmm(text);
    ValidateTime(hhmm);
    return std::string(hhmm);
}

long long Zulu(long long t)
{
    CTime time(t);
    ConvertToZulu(time);
    return time.GetTime();
}

long long Local(long long t)
{
    CTime time(t);
    ConvertToLocal(time);
    return time.GetTime();
}

} // namespace

TEST_F(EasternTime, TypedTimesKeepTheLocalDayAndTheSecond)
{
    EXPECT_EQ(ParseHHMM(kBase, "7:45"), kMidnight + 7 * 3600 + 45 * 60 + 56);
    EXPECT_EQ(ParseHHMM(kBase, "12345"), kMidnight + 12 * 3600 + 34 * 60 + 56);
    EXPECT_EQ(ParseHHMM(kBase, "2359"), kMidnight + 23 * 3600 + 59 * 60 + 56);
}

TEST_F(EasternTime, UnusableTextLeavesTheBase)
{
    for (const char* text : {"99", "", "2400", "1260", "abc"})
        EXPECT_EQ(ParseHHMM(kBase, text), kBase) << text;
    EXPECT_EQ(ParseHHMM(kBase, nullptr), kBase);
    EXPECT_EQ(ParseHHMM(-1, "1200"), -1);
    EXPECT_EQ(ParseHHMM(INT_MIN, "1200"), INT_MIN);
}

TEST_F(EasternTime, TheFirstHourOfTheAutumnNightStays)
{
    // 2024-11-03 05:30 UTC: 01:30 daylight time, which comes again an hour later.
    constexpr int halfPastOne = 1730611800;
    EXPECT_EQ(ParseHHMM(halfPastOne, ""), halfPastOne);
}

TEST_F(EasternTime, KnowsDaylightTimeByTheRuntime)
{
    CTime summer(kBase);
    CTime winter(kWinter);
    CTime none(-1);
    EXPECT_EQ(IsDaylightTime(summer), TRUE);
    EXPECT_EQ(IsDaylightTime(winter), FALSE);
    EXPECT_EQ(IsDaylightTime(none), FALSE);
}

TEST_F(EasternTime, ShiftsByTheBiasOfTheSeason)
{
    EXPECT_EQ(Zulu(kBase), kBase + 4 * 3600);
    EXPECT_EQ(Local(kBase), kBase - 4 * 3600);
    EXPECT_EQ(Zulu(kWinter), kWinter + 5 * 3600);
    EXPECT_EQ(Local(kWinter), kWinter - 5 * 3600);
}

TEST_F(EasternTime, LocalAsksForTheSeasonOfTheValueItIsGiven)
{
    // 2024-03-10 08:00 UTC is 04:00 in daylight time; the value 2024-03-10 06:30 is before the change.
    constexpr long long afterChange = 1710057600;
    constexpr long long beforeChange = 1710052200;
    EXPECT_EQ(Local(afterChange), afterChange - 4 * 3600);
    EXPECT_EQ(Local(beforeChange), beforeChange - 5 * 3600);
}

TEST(ShiftsInOtherZones, FollowTheRecord)
{
    {
        const PretendedZone zone(PlainZone(-330), TIME_ZONE_ID_UNKNOWN, "IST-5:30");
        EXPECT_EQ(Zulu(kWinter), kWinter - 19800);
        EXPECT_EQ(Local(kBase), kBase + 19800) << "no daylight bias without daylight time";
    }
    const PretendedZone zone(UniversalZone(), TIME_ZONE_ID_UNKNOWN, "GMT0");
    EXPECT_EQ(Zulu(kBase), kBase);
    EXPECT_EQ(Local(LLONG_MAX), LLONG_MAX);
}

TEST_F(EasternTime, DaylightSavingOfASystemTimeIsTheDates)
{
    SYSTEMTIME when{};
    when.wYear = static_cast<WORD>(CTime::GetCurrentTime().GetYear());
    when.wMonth = 7;
    when.wDay = 1;
    when.wHour = 12;
    EXPECT_TRUE(IsDST(&when));
    when.wMonth = 1;
    EXPECT_FALSE(IsDST(&when));
    when.wMonth = 7;
    --when.wYear;
    EXPECT_FALSE(IsDST(&when)) << "the season of this year only";
}

TEST_F(EasternTime, DaylightSavingOfASystemTimeEndsToTheSecond)
{
    SYSTEMTIME when{};
    ASSERT_TRUE(Date::GetDSTEnd().GetAsSystemTime(when));
    EXPECT_EQ(when.wMonth, 11);
    EXPECT_EQ(when.wHour, 2);
    EXPECT_TRUE(IsDST(&when));
    when.wSecond = 1;
    EXPECT_FALSE(IsDST(&when));
    when.wSecond = 0;
    when.wMinute = 1;
    EXPECT_FALSE(IsDST(&when));
}

TEST_F(EasternTime, DaylightSavingOfImpossibleTimesIsThatOfTimeZero)
{
    EXPECT_FALSE(IsDST(nullptr));
    SYSTEMTIME when{};
    for (const int year : {0, 1601, 1899, 1900, 1969})
    {
        when.wYear = static_cast<WORD>(year);
        when.wMonth = 7;
        when.wDay = 1;
        EXPECT_EQ(IsDST(&when), Date::isDST(CTime(0))) << year;
    }
}

TEST(DaylightSavingInTheSouth, AnswersForTimeZeroToo)
{
    const PretendedZone zone(SouthernZone(), TIME_ZONE_ID_DAYLIGHT, "GMT0");
    SYSTEMTIME when{};
    when.wYear = 1899;
    EXPECT_TRUE(IsDST(&when)) << "every past year lies in the southern season";
}

TEST(TypedTimes, AreClamped)
{
    EXPECT_EQ(Validated("5"), "0005");
    EXPECT_EQ(Validated("2400"), "0000");
    EXPECT_EQ(Validated("2460"), "2359");
    EXPECT_EQ(Validated("2430"), "2330");
    EXPECT_EQ(Validated(""), "0000");
    EXPECT_EQ(Validated("7:45"), "7:45");
}

TEST(TimesWithinADay, LieAheadOfThePresent)
{
    for (const long long offset :
         {0LL, -1LL, 10LL, -86400LL, 86400LL, 3LL * 86400 + 50, -3LL * 86400 - 50, -4000000000LL / 2})
    {
        const long long before = _time64(nullptr);
        CTime t(before + offset);
        SetTimeWithin24Hours(t);
        const long long after = _time64(nullptr);
        EXPECT_GE(t.GetTime(), before) << offset;
        EXPECT_LE(t.GetTime(), after + 86400) << offset;
        EXPECT_EQ((t.GetTime() - before - offset) % 86400, 0) << offset;
    }
}
