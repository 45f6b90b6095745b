#include "aviation/core/Course.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vorn;

TEST(CourseText, HasThreeDigits)
{
    EXPECT_EQ(CourseText(0.0, false), "000");
    EXPECT_EQ(CourseText(7.4, false), "007");
    EXPECT_EQ(CourseText(89.6, false), "090");
    EXPECT_EQ(CourseText(359.4, false), "359");
}

TEST(CourseText, DoesNotWrap)
{
    EXPECT_EQ(CourseText(359.6, false), "360");
    EXPECT_EQ(CourseText(1234.0, false), "1234");
}

TEST(CourseText, CountsTheSignAsAPlace)
{
    EXPECT_EQ(CourseText(-5.0, false), "-05");
    EXPECT_EQ(CourseText(-0.4, false), "-00");
    EXPECT_EQ(CourseText(-123.0, false), "-123");
}

TEST(CourseText, WithLetterShowsTheSize)
{
    EXPECT_EQ(CourseText(5.0, true), "E 005");
    EXPECT_EQ(CourseText(-5.0, true), "W 005");
    EXPECT_EQ(CourseText(-0.4, true), "W 000");
    EXPECT_EQ(CourseText(0.0, true), "E 000");
    EXPECT_EQ(CourseText(-0.0, true), "E 000");
}

TEST(CourseText, RoundsTiesToEven)
{
    EXPECT_EQ(CourseText(0.5, false), "000");
    EXPECT_EQ(CourseText(1.5, false), "002");
    EXPECT_EQ(CourseText(2.5, false), "002");
}

TEST(CourseText, TakesAnyFiniteNumber)
{
    EXPECT_EQ(CourseText(1e15, false), "1000000000000000");
    EXPECT_EQ(CourseText(1e300, false).size(), 301U);
    EXPECT_EQ(CourseText(-1e300, true).size(), 303U);
    for (const bool eastWest : {false, true})
    {
        EXPECT_EQ(CourseText(std::numeric_limits<double>::quiet_NaN(), eastWest), "");
        EXPECT_EQ(CourseText(std::numeric_limits<double>::infinity(), eastWest), "");
        EXPECT_EQ(CourseText(-std::numeric_limits<double>::infinity(), eastWest), "");
    }
}
