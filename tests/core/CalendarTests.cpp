#include "aviation/core/Calendar.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>

using namespace vorn;

TEST(Weekday, CountsFromSunday)
{
    EXPECT_EQ(WeekdayOf(2008, 1, 1), 2);
    EXPECT_EQ(WeekdayOf(2000, 3, 1), 3);
    EXPECT_EQ(WeekdayOf(2024, 2, 29), 4);
    EXPECT_EQ(WeekdayOf(2023, 1, 1), 0);
    EXPECT_EQ(WeekdayOf(2022, 1, 1), 6);
}

TEST(Weekday, IsRightForEveryDayFrom1901To2100)
{
    using namespace std::chrono;
    for (sys_days day = sys_days{year{1901} / 1 / 1}; day <= sys_days{year{2100} / 12 / 31}; day += days{1})
    {
        const year_month_day date{day};
        ASSERT_EQ(WeekdayOf(static_cast<int>(date.year()), static_cast<int>(unsigned{date.month()}),
                            static_cast<int>(unsigned{date.day()})),
                  static_cast<int>(weekday{day}.c_encoding()))
            << day.time_since_epoch().count();
    }
}

TEST(Weekday, KeepsTheFourYearRuleOutsideThatRange)
{
    EXPECT_EQ(WeekdayOf(1900, 1, 1), 0); // a Monday in truth
    EXPECT_EQ(WeekdayOf(1900, 3, 1), 3); // 1900 is a common year within the year: 59 days after
    EXPECT_EQ(WeekdayOf(2101, 1, 1), 0); // a Saturday in truth
    EXPECT_EQ(WeekdayOf(1, 1, 1), 0);
}

TEST(Weekday, AMonthOutsideTheYearCountsAsJanuary)
{
    EXPECT_EQ(WeekdayOf(2009, 0, 1), 4);
    EXPECT_EQ(WeekdayOf(2009, 13, 1), 4);
    EXPECT_EQ(WeekdayOf(2008, -5, 1), 2);
    EXPECT_EQ(WeekdayOf(2008, 13, 1), 3); // the leap day of 2008 is added
    EXPECT_EQ(WeekdayOf(2008, INT_MAX, 1), 3);
}

// Worked out with unlimited integers: 365 * (year - 2008) + leap days + day + 1, modulo 7, the sign of the dividend
// made good.
TEST(Weekday, HoldsAtTheEndsOfItsArguments)
{
    EXPECT_EQ(WeekdayOf(INT_MAX, 12, 31), 3);
    EXPECT_EQ(WeekdayOf(INT_MIN, 1, 1), 6);
    EXPECT_EQ(WeekdayOf(2008, 1, INT_MAX), 2);
    EXPECT_EQ(WeekdayOf(2008, 1, INT_MIN), 6);
}

TEST(MonthLength, KnowsTheTwelveMonths)
{
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month)
        EXPECT_EQ(MonthLength(2023, month), lengths[month - 1]) << month;
}

TEST(MonthLength, OfFebruaryLeavesTheCenturyRuleAside)
{
    EXPECT_EQ(MonthLength(2024, 2), 29);
    EXPECT_EQ(MonthLength(2000, 2), 29);
    EXPECT_EQ(MonthLength(1900, 2), 29);
    EXPECT_EQ(MonthLength(2100, 2), 29);
    EXPECT_EQ(MonthLength(2023, 2), 28);
    EXPECT_EQ(MonthLength(-4, 2), 29);
    EXPECT_EQ(MonthLength(-3, 2), 28);
}

TEST(MonthLength, IsZeroOutsideTheYear)
{
    for (const int month : {INT_MIN, -1, 0, 13, INT_MAX})
        EXPECT_EQ(MonthLength(2024, month), 0) << month;
}

TEST(LeapYear, FollowsTheGregorianRule)
{
    EXPECT_TRUE(IsGregorianLeapYear(2024));
    EXPECT_TRUE(IsGregorianLeapYear(2000));
    EXPECT_FALSE(IsGregorianLeapYear(1900));
    EXPECT_FALSE(IsGregorianLeapYear(2100));
    EXPECT_FALSE(IsGregorianLeapYear(2023));
}
