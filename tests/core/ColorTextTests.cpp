#include "aviation/core/ColorText.h"

#include <gtest/gtest.h>

TEST(ColorText, AColourIsItsThreeNumbers)
{
    EXPECT_EQ(ColorToString(0x000080FF), "255,128,0");
    EXPECT_EQ(ColorToString(0x020080FF), "255,128,0");
    EXPECT_EQ(ColorToString(0xFFFFFFFF), "255,255,255");
    EXPECT_EQ(ColorToString(0), "0,0,0");
}

TEST(ColorText, ATextIsAPaletteRelativeColour)
{
    EXPECT_EQ(StringToColor("255,128,0"), 0x020080FFU);
    EXPECT_EQ(StringToColor("  255,128,0\t\r\n"), 0x020080FFU);
    EXPECT_EQ(StringToColor(" 1 , 2 , 3 "), 0x02030201U);
}

TEST(ColorText, MissingPartsAreBlack)
{
    EXPECT_EQ(StringToColor(""), 0x02000000U);
    EXPECT_EQ(StringToColor("255"), 0x02000000U);
    EXPECT_EQ(StringToColor("255,"), 0x020000FFU);
    EXPECT_EQ(StringToColor("255,128"), 0x020000FFU);
    EXPECT_EQ(StringToColor("255,128,"), 0x020080FFU);
    EXPECT_EQ(StringToColor(",,7"), 0x02070000U);
    EXPECT_EQ(StringToColor(","), 0x02000000U);
}

TEST(ColorText, WhatIsBehindANumberIsLeftOut)
{
    EXPECT_EQ(StringToColor("1,2,3,4"), 0x02030201U);
    EXPECT_EQ(StringToColor("1x,2.9,3 4"), 0x02030201U);
    EXPECT_EQ(StringToColor("x,y,z"), 0x02000000U);
    EXPECT_EQ(StringToColor("0x10,1,1"), 0x02010100U);
}

TEST(ColorText, NumbersAreMaskedToTheirLowBytes)
{
    EXPECT_EQ(StringToColor("256,257,-1"), 0x02FF0100U);
    EXPECT_EQ(StringToColor("+5,1000,-256"), 0x0200E805U);
}

TEST(ColorText, NumbersBeyond32BitsStopAtTheLargest)
{
    EXPECT_EQ(StringToColor("2147483648,99999999999999999999,-99999999999999999999"), 0x0200FFFFU);
    EXPECT_EQ(StringToColor("4294967296,-2147483648,-2147483649"), 0x020000FFU);
}

TEST(ColorText, EveryColourComesBack)
{
    for (COLORREF c = 0; c <= 0xFFFFFF; c += 0x010203)
    {
        EXPECT_EQ(StringToColor(ColorToString(c)), c | 0x02000000U);
    }
}
