#include "aviation/core/DaylightSaving.h"

#include <gtest/gtest.h>

#include <cstdint>

using namespace vorn;

namespace
{

CivilTime Rule(int month, int nth, int hour, int year)
{
    return TransitionTime({0, month, nth, hour}, year);
}

} // namespace

// Sundays from the calendar: March 2024 begins on a Friday, November 2024 on a Friday, October 2023 on a Sunday.
TEST(TransitionTime, FindsTheNthSunday)
{
    EXPECT_EQ(Rule(3, 2, 2, 2024), (CivilTime{2024, 3, 10, 2, 0, 0}));
    EXPECT_EQ(Rule(11, 1, 2, 2024), (CivilTime{2024, 11, 3, 2, 0, 0}));
    EXPECT_EQ(Rule(10, 1, 3, 2023), (CivilTime{2023, 10, 1, 3, 0, 0}));
    EXPECT_EQ(Rule(4, 1, 3, 2024), (CivilTime{2024, 4, 7, 3, 0, 0}));
}

TEST(TransitionTime, TakesTheLastSundayForTheFifth)
{
    EXPECT_EQ(Rule(3, 5, 2, 2024).day, 31);  // five Sundays
    EXPECT_EQ(Rule(10, 5, 2, 2024).day, 27); // four
    EXPECT_EQ(Rule(2, 5, 2, 2024).day, 25);
    EXPECT_EQ(Rule(2, 5, 2, 2032).day, 29); // a leap day that is a Sunday
}

TEST(TransitionTime, OneWeekIsAllThatItFallsBack)
{
    // The seventh Sunday of March 2024 would be 14 April, day 45; one week earlier is day 38.
    EXPECT_EQ(Rule(3, 7, 2, 2024).day, 38);
}

TEST(TransitionTime, KeepsAnAbsoluteDate)
{
    EXPECT_EQ(TransitionTime({2021, 6, 17, 23}, 2024), (CivilTime{2021, 6, 17, 23, 0, 0}));
}

TEST(TransitionTime, LeavesARuleOfMonthZeroToTheClock)
{
    // 1 January 2024 is a Monday: v = 7 * 0 + 6, and 0 is not beyond a month of no days.
    EXPECT_EQ(Rule(0, 0, 0, 2024), (CivilTime{2024, 0, 0, 0, 0, 0}));
    // 1 January 2023 is a Sunday: v = 0.
    EXPECT_EQ(Rule(0, 0, 0, 2023), (CivilTime{2023, 0, -6, 0, 0, 0}));
    // 1 January 2025 is a Wednesday: v = 7 + 4, day 5 is beyond a month of no days.
    EXPECT_EQ(Rule(0, 1, 0, 2025), (CivilTime{2025, 0, -2, 0, 0, 0}));
}

TEST(IsInSeason, IncludesBothNorthernEnds)
{
    EXPECT_FALSE(IsInSeason(99, 100, 200));
    EXPECT_TRUE(IsInSeason(100, 100, 200));
    EXPECT_TRUE(IsInSeason(150, 100, 200));
    EXPECT_TRUE(IsInSeason(200, 100, 200));
    EXPECT_FALSE(IsInSeason(201, 100, 200));
}

TEST(IsInSeason, ExcludesBothSouthernEnds)
{
    EXPECT_TRUE(IsInSeason(99, 200, 100));
    EXPECT_FALSE(IsInSeason(100, 200, 100));
    EXPECT_FALSE(IsInSeason(150, 200, 100));
    EXPECT_FALSE(IsInSeason(200, 200, 100));
    EXPECT_TRUE(IsInSeason(201, 200, 100));
}

TEST(IsInSeason, TakesEqualDatesForNorthern)
{
    EXPECT_TRUE(IsInSeason(100, 100, 100));
    EXPECT_FALSE(IsInSeason(99, 100, 100));
    EXPECT_FALSE(IsInSeason(101, 100, 100));
}

TEST(BiasMinutes, AddsTheDaylightBiasInDaylightTimeOnly)
{
    const ZoneFacts eastern{300, -60, ZoneState::Daylight, {}, {}};
    EXPECT_EQ(BiasMinutes(eastern, true), 240);
    EXPECT_EQ(BiasMinutes(eastern, false), 300);
    const ZoneFacts india{-330, -60, ZoneState::Unknown, {}, {}};
    EXPECT_EQ(BiasMinutes(india, false), -330);
}

TEST(UniversalShift, MovesByMinutesAndStopsAtTheEnds)
{
    EXPECT_EQ(ToUniversal(1000, 240), 1000 + 14400);
    EXPECT_EQ(FromUniversal(1000, -330), 1000 + 19800);
    EXPECT_EQ(ToUniversal(INT64_MAX - 5, 240), INT64_MAX);
    EXPECT_EQ(ToUniversal(INT64_MIN + 5, -240), INT64_MIN);
    EXPECT_EQ(FromUniversal(INT64_MAX - 5, -240), INT64_MAX);
    EXPECT_EQ(FromUniversal(INT64_MIN + 5, 240), INT64_MIN);
}
