#include "apps/vorntool/core/ChartWords.h"

#include <gtest/gtest.h>

using namespace vorn::tool;

TEST(ChartWords, ReadSizes)
{
    ASSERT_TRUE(ParseSize("1200x900"));
    EXPECT_EQ(ParseSize("1200x900")->width, 1200);
    EXPECT_EQ(ParseSize("16X8192")->height, 8192);
    for (const char* text : {"", "x", "1200", "1200x", "x900", "15x900", "900x15", "8193x100", "100x8193", "1.5x20",
                             "100x100x100", " 100x100"})
        EXPECT_FALSE(ParseSize(text)) << text;
}

TEST(ChartWords, ReadPlaces)
{
    ASSERT_TRUE(ParsePlace("47.5,-122.3"));
    EXPECT_EQ(ParsePlace("47.5,-122.3")->latitude, 47.5);
    EXPECT_EQ(ParsePlace("47.5,-122.3")->longitude, -122.3);
    EXPECT_TRUE(ParsePlace("-90,180"));
    for (const char* text : {"", ",", "47", "47,", ",5", "90.1,0", "0,180.1", "a,b", "1,2,3", "nan,0"})
        EXPECT_FALSE(ParsePlace(text)) << text;
}

TEST(ChartWords, ReadScales)
{
    EXPECT_EQ(ParseScale("1000000"), 1e6);
    EXPECT_EQ(ParseScale("1:500000"), 5e5);
    EXPECT_EQ(ParseScale("1e6"), 1e6);
    for (const char* text : {"", "0", "-5", "1:", "2:5", "x"})
        EXPECT_FALSE(ParseScale(text)) << text;
}

TEST(ChartWords, FindProjectionsByNumberNameAndBeginning)
{
    const std::vector<std::string> names = {"Mercator", "Polar", "Polar stereographic", "Transverse Mercator"};
    EXPECT_EQ(ProjectionNamed("0", names), 0);
    EXPECT_EQ(ProjectionNamed("3", names), 3);
    EXPECT_FALSE(ProjectionNamed("4", names));
    EXPECT_FALSE(ProjectionNamed("-1", names));
    EXPECT_EQ(ProjectionNamed("MERC", names), 0);
    EXPECT_EQ(ProjectionNamed("polar", names), 1);
    EXPECT_EQ(ProjectionNamed("polar s", names), 2);
    EXPECT_FALSE(ProjectionNamed("pol", names));
    EXPECT_FALSE(ProjectionNamed("", names));
    EXPECT_FALSE(ProjectionNamed("globe", names));
}
