#include "aviation/core/Duration.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vorn;

namespace
{

std::string Clock(double hours)
{
    return DurationText(hours, {false, false}).Text();
}

std::string ClockSeconds(double hours)
{
    return DurationText(hours, {false, true}).Text();
}

std::string Words(double hours, bool seconds = false)
{
    return DurationText(hours, {true, seconds}).Text();
}

constexpr double Hours(int h, int m, double s)
{
    return h + m / 60.0 + s / 3600.0;
}

} // namespace

TEST(DurationText, HasTwoDigitsForHoursAndMinutes)
{
    EXPECT_EQ(Clock(1.5), "01:30");
    EXPECT_EQ(Clock(0.0), "00:00");
    EXPECT_EQ(Clock(23.75), "23:45");
    EXPECT_EQ(ClockSeconds(1.5), "01:30:00");
    EXPECT_EQ(ClockSeconds(Hours(2, 3, 4)), "02:03:04");
}

TEST(DurationText, HoursAreNotTakenModuloADay)
{
    EXPECT_EQ(Clock(25.0), "25:00");
    EXPECT_EQ(Clock(1234.5), "1234:30");
    EXPECT_EQ(Clock(2147483647.0), "2147483647:00");
    EXPECT_EQ(Clock(-2147483648.0), "-2147483648:00");
}

TEST(DurationText, WithoutSecondsMoreThanThirtyRoundUp)
{
    EXPECT_EQ(Clock(Hours(1, 10, 30)), "01:10");
    EXPECT_EQ(Clock(Hours(1, 10, 31)), "01:11");
    EXPECT_EQ(Clock(Hours(1, 10, 30.4)), "01:10");
    EXPECT_EQ(Clock(Hours(1, 10, 30.6)), "01:11");
    EXPECT_EQ(Clock(0.999), "01:00"); // 59 min 56 s
    EXPECT_EQ(ClockSeconds(0.999), "00:59:56");
}

TEST(DurationText, CarriesSecondsAndMinutesAtSixty)
{
    EXPECT_EQ(ClockSeconds(Hours(1, 10, 59.6)), "01:11:00");
    EXPECT_EQ(ClockSeconds(Hours(1, 59, 59.6)), "02:00:00");
    EXPECT_EQ(Clock(Hours(9, 59, 59.9)), "10:00");
}

TEST(DurationText, NegativeFieldsHaveTheirOwnSigns)
{
    EXPECT_EQ(Clock(-1.5), "-1:-30");
    EXPECT_EQ(Clock(-0.5), "00:-30");
    // -45 s: one half added, cut toward zero.
    EXPECT_EQ(ClockSeconds(-45.0 / 3600), "00:00:-44");
    EXPECT_EQ(ClockSeconds(-1.5), "-1:-30:00");
}

TEST(DurationText, WordsAreSingularForExactlyOne)
{
    EXPECT_EQ(Words(1.0), "1 Hour 0 Minutes");
    EXPECT_EQ(Words(0.0), "0 Hours 0 Minutes");
    EXPECT_EQ(Words(2.0 + 1.0 / 60), "2 Hours 1 Minute");
    EXPECT_EQ(Words(1.5), "1 Hour 30 Minutes");
    EXPECT_EQ(Words(-1.0), "-1 Hours 0 Minutes");
    EXPECT_EQ(Words(-1.0 / 60), "0 Hours -1 Minutes");
}

TEST(DurationText, WordsDoNotRoundWhenSecondsAreWanted)
{
    EXPECT_EQ(Words(Hours(1, 0, 45), true), "1 Hour 0 Minutes");
    EXPECT_EQ(Words(Hours(1, 0, 45), false), "1 Hour 1 Minute");
}

TEST(DurationText, IsEmptyForWhatDoesNotFit)
{
    for (const double hours : {2147483648.0, -2147483649.0, 1e300, std::numeric_limits<double>::infinity(),
                               -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
    {
        EXPECT_EQ(Clock(hours), "") << hours;
        EXPECT_EQ(Words(hours), "") << hours;
    }
}
