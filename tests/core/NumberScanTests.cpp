#include "framework/core/NumberScan.h"

#include <gtest/gtest.h>

#include <limits>

using vorn::RealText;
using vorn::ScanReal;
using vorn::ScanUnsigned;
using vorn::ScanWhole;

TEST(NumberScan, WholeNumbersMayHaveSignAndBlanks)
{
    EXPECT_EQ(ScanWhole("0"), 0);
    EXPECT_EQ(ScanWhole(" \t-42 "), -42);
    EXPECT_EQ(ScanWhole("+7"), 7);
    EXPECT_EQ(ScanWhole("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
}

TEST(NumberScan, OtherTextsAreNoWholeNumbers)
{
    for (const char* text : {"", " ", "x", "1x", "1 2", "1.5", "0x10", "--1", "+-1", "+", "-", "9223372036854775808"})
        EXPECT_FALSE(ScanWhole(text)) << text;
}

TEST(NumberScan, UnsignedNumbersHaveNoMinus)
{
    EXPECT_EQ(ScanUnsigned("4294967296"), 4294967296u);
    EXPECT_EQ(ScanUnsigned(" +1 "), 1u);
    EXPECT_FALSE(ScanUnsigned("-1"));
    EXPECT_FALSE(ScanUnsigned("-0"));
    EXPECT_FALSE(ScanUnsigned("18446744073709551616"));
}

TEST(NumberScan, RealNumbersMayHaveFractionAndExponent)
{
    EXPECT_EQ(ScanReal("2.5"), 2.5);
    EXPECT_EQ(ScanReal(" -1.5e3 "), -1500.0);
    EXPECT_EQ(ScanReal("+.25"), 0.25);
    EXPECT_EQ(ScanReal("3."), 3.0);
    EXPECT_EQ(ScanReal("0.1"), 0.1);
}

TEST(NumberScan, OtherTextsAreNoRealNumbers)
{
    for (const char* text : {"", ".", "e5", "1,5", "inf", "nan", "0x1p3", "1e", "1e999", "1 2", "1.2.3", "+-1"})
        EXPECT_FALSE(ScanReal(text)) << text;
}

TEST(NumberScan, RealTextIsTheShortestForm)
{
    EXPECT_EQ(RealText(0.1, 15), "0.1");
    EXPECT_EQ(RealText(1.0 / 3, 6), "0.333333");
    EXPECT_EQ(RealText(1e20, 15), "1e+20");
    EXPECT_EQ(RealText(-2, 6), "-2");
    EXPECT_EQ(RealText(123456789.0, 6), "1.23457e+08");
}

TEST(NumberScan, RealTextTakesAnyNumberOfDigits)
{
    EXPECT_EQ(RealText(2.5, 0), "2");
    EXPECT_EQ(RealText(2.5, -7), "2");
    EXPECT_EQ(RealText(2.5, 100000), "2.5");
    EXPECT_LE(RealText(-1.7976931348623157e308, 1000).size(), 64u);
}
