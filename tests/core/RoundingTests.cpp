#include "aviation/core/Rounding.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>

using namespace vorn;

TEST(RoundedTo, RoundsHalvesUp)
{
    EXPECT_EQ(RoundedTo(1.25, 1), 1.3);
    EXPECT_EQ(RoundedTo(1.24, 1), 1.2);
    EXPECT_EQ(RoundedTo(0.5, 0), 1.0);
    EXPECT_EQ(RoundedTo(59.96, 1), 60.0);
    EXPECT_EQ(RoundedTo(59.94, 1), 59.9);
}

TEST(RoundedTo, AddsOneHalfToNegativesToo)
{
    EXPECT_EQ(RoundedTo(-1.26, 1), -1.2);
    EXPECT_EQ(RoundedTo(-1.24, 1), -1.1);
    EXPECT_EQ(RoundedTo(-1.6, 0), -1.0);
    EXPECT_EQ(RoundedTo(-0.2, 0), 0.0);
}

TEST(RoundedTo, PassesThirtyTwoBits)
{
    EXPECT_EQ(RoundedTo(59.1234567, 6), 59.123457);
    EXPECT_EQ(RoundedTo(59.123456789012, 10), 59.1234567890);
    EXPECT_EQ(RoundedTo(3e9 + 0.75, 0), 3000000001.0);
}

TEST(RoundedTo, NegativeDecimalsRoundToTens)
{
    EXPECT_EQ(RoundedTo(37.0, -1), 40.0);
    EXPECT_EQ(RoundedTo(34.0, -1), 30.0);
    EXPECT_EQ(RoundedTo(7.0, -400), 0.0);
    EXPECT_EQ(RoundedTo(7.0, INT_MIN), 0.0);
}

TEST(RoundedTo, LeavesAloneWhatTheScaleCannotHold)
{
    EXPECT_EQ(RoundedTo(1.5, 309), 1.5);
    EXPECT_EQ(RoundedTo(0.0, 400), 0.0);
    EXPECT_EQ(RoundedTo(1.5, INT_MAX), 1.5);
    EXPECT_EQ(RoundedTo(1e300, 20), 1e300);
    EXPECT_EQ(RoundedTo(std::numeric_limits<double>::infinity(), 1), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(RoundedTo(std::numeric_limits<double>::quiet_NaN(), 1)));
}
