#include "apps/vorntool/core/ToolNumbers.h"

#include <gtest/gtest.h>

#include <limits>

using namespace vorn::tool;

TEST(ToolNumbers, ReadsDecimalNumbersToTheirEnd)
{
    EXPECT_EQ(ParseNumber("12"), 12.0);
    EXPECT_EQ(ParseNumber("-0.5"), -0.5);
    EXPECT_EQ(ParseNumber("+7.25"), 7.25);
    EXPECT_EQ(ParseNumber(".5"), 0.5);
    EXPECT_EQ(ParseNumber("1e3"), 1000.0);
}

TEST(ToolNumbers, RefusesEverythingElse)
{
    for (const char* text : {"", " ", " 1", "1 ", "1,5", "12NM", "+", "-", "+-1", "--1", "1e", "nan", "inf", "-inf",
                             "1e999", "0x10", "one"})
    {
        EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
    }
}

TEST(ToolNumbers, ReadsWholeNumbersOnly)
{
    EXPECT_EQ(ParseWhole("0"), 0);
    EXPECT_EQ(ParseWhole("-12"), -12);
    EXPECT_EQ(ParseWhole("9223372036854775807"), std::numeric_limits<std::int64_t>::max());
    for (const char* text : {"", "1.5", "1e3", "9223372036854775808", "x"})
    {
        EXPECT_EQ(ParseWhole(text), std::nullopt) << text;
    }
}

TEST(ToolNumbers, ASettingIsThirtyTwoBitsWithOrWithoutSign)
{
    EXPECT_EQ(ParseSettingNumber("5"), 5);
    EXPECT_EQ(ParseSettingNumber("-1"), -1);
    EXPECT_EQ(ParseSettingNumber("2147483647"), std::numeric_limits<int>::max());
    EXPECT_EQ(ParseSettingNumber("2147483648"), std::numeric_limits<int>::min());
    EXPECT_EQ(ParseSettingNumber("4294967295"), -1);
    EXPECT_EQ(ParseSettingNumber("-2147483648"), std::numeric_limits<int>::min());
    for (const char* text : {"4294967296", "-2147483649", "", "abc", "1.0"})
    {
        EXPECT_EQ(ParseSettingNumber(text), std::nullopt) << text;
    }
}

TEST(ToolNumbers, WritesWithoutNoise)
{
    EXPECT_EQ(NumberText(18.52), "18.52");
    EXPECT_EQ(NumberText(0.1 + 0.2), "0.3");
    EXPECT_EQ(NumberText(-40), "-40");
    EXPECT_EQ(NumberText(1234567.0), "1234567");
    EXPECT_EQ(NumberText(1e300), "1e+300");
}

TEST(ToolNumbers, WritesTheDecimalsAskedFor)
{
    EXPECT_EQ(NumberText(18.52, 1), "18.5");
    EXPECT_EQ(NumberText(2.5, 0), "2");
    EXPECT_EQ(NumberText(1, 3), "1.000");
    EXPECT_EQ(NumberText(1e300, 0).size(), 301u);
}
