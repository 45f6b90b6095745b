#include "aviation/core/NightColors.h"
#include "tests/support/SpecialNumbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using vorn::test::kInfinite;
using vorn::test::kNaN;
constexpr vorn::NightScales kUsual = {0.4, 0.4, 0.4};

} // namespace

TEST(NightColors, ComponentsAreScaledAndTheColourIsPaletteRelative)
{
    EXPECT_EQ(vorn::Dimmed(0x003264C8, kUsual), 0x02142850U); // 200, 100, 50 becomes 80, 40, 20
    EXPECT_EQ(vorn::Dimmed(0x003264C8, {1, 0.5, 0}), 0x020032C8U);
    EXPECT_EQ(vorn::Dimmed(0xFF3264C8, kUsual), 0x02142850U);
    EXPECT_EQ(vorn::Dimmed(0, kUsual), 0x02000000U);
}

TEST(NightColors, ProductsAreCutThenMasked)
{
    EXPECT_EQ(vorn::Dimmed(0x000000C8, {2, 1, 1}), 0x02000090U);    // 400 is 144 and 256
    EXPECT_EQ(vorn::Dimmed(0x00000003, kUsual), 0x02000001U);       // 1.2
    EXPECT_EQ(vorn::Dimmed(0x000000C8, {-0.5, 1, 1}), 0x0200009CU); // -100 in two's complement
}

TEST(NightColors, TheBytesAreScaledInPlace)
{
    BYTE red = 200;
    BYTE green = 100;
    BYTE blue = 50;
    vorn::Dim(red, green, blue, {0.4, 0.5, 2});
    EXPECT_EQ(red, 80);
    EXPECT_EQ(green, 50);
    EXPECT_EQ(blue, 100);
    vorn::Dim(red, green, blue, {kNaN, kInfinite, -kInfinite});
    EXPECT_EQ(red + green + blue, 0);
}

TEST(NightColors, DividingBringsTheColourNearlyBack)
{
    EXPECT_EQ(vorn::Undimmed(0x00142850, kUsual), 0x023264C8U); // 80 / 0.4 is 200, not 199
    EXPECT_EQ(vorn::Undimmed(0xFF0000FF, kUsual), 0x0200007DU); // 637.5 is 125 and 512
    EXPECT_EQ(vorn::Undimmed(0x00000001, {0.4, 0.4, 0.4}), 0x02000002U);
    for (int component = 0; component < 103; ++component)
    {
        const COLORREF there = vorn::Dimmed(static_cast<COLORREF>(component), kUsual);
        const int back = vorn::RedOf(vorn::Undimmed(there, kUsual));
        EXPECT_LE(back, component);
        EXPECT_GT(back, component - 3);
    }
}

TEST(NightColors, ScalesThatCannotDivideGiveNothing)
{
    EXPECT_EQ(vorn::Undimmed(0x00FF8040, {0, 0, 0}), 0x02000000U);
    EXPECT_EQ(vorn::Undimmed(0x00000000, {0, -0.0, 0}), 0x02000000U);
    EXPECT_EQ(vorn::Undimmed(0x00FF8040, {kNaN, kInfinite, -kInfinite}), 0x02000000U);
    EXPECT_EQ(vorn::Undimmed(0x00FF8040, {1e-320, 1e-320, 1e-320}), 0x02000000U);
}

TEST(NightColors, TheLowByteOfAnyNumber)
{
    EXPECT_EQ(vorn::LowByteOf(0), 0);
    EXPECT_EQ(vorn::LowByteOf(255.999), 255);
    EXPECT_EQ(vorn::LowByteOf(256), 0);
    EXPECT_EQ(vorn::LowByteOf(-0.9), 0);
    EXPECT_EQ(vorn::LowByteOf(-1), 255);
    EXPECT_EQ(vorn::LowByteOf(2147483647.5), 255);
    EXPECT_EQ(vorn::LowByteOf(2147483649.5), 1);
    EXPECT_EQ(vorn::LowByteOf(-2147483648.5), 0);
    EXPECT_EQ(vorn::LowByteOf(-2147483649.5), 255);
    EXPECT_EQ(vorn::LowByteOf(9007199254740994.0), 2);
    EXPECT_EQ(vorn::LowByteOf(9223372036854774784.0), 0);
    EXPECT_EQ(vorn::LowByteOf(1e300), 0);
    EXPECT_EQ(vorn::LowByteOf(-1e300), 0);
    EXPECT_EQ(vorn::LowByteOf(kNaN), 0);
}

TEST(NightColors, TablesAgreeWithTheScalesForEveryComponent)
{
    for (const vorn::NightScales& scales :
         {kUsual, vorn::NightScales{0.1, 0.5, 0.3}, vorn::NightScales{-0.7, 2.3, 0}, vorn::NightScales{1, kNaN, 1e300}})
    {
        const vorn::NightTables tables(scales);
        for (unsigned value = 0; value < 256; ++value)
        {
            const COLORREF color = value | (255 - value) << 8 | (value * 7 & 255) << 16 | value << 24;
            EXPECT_EQ(tables.Dimmed(color), vorn::Dimmed(color, scales)) << color;
            EXPECT_EQ(tables.Undimmed(color), vorn::Undimmed(color, scales)) << color;
            BYTE red = vorn::RedOf(color);
            BYTE green = vorn::GreenOf(color);
            BYTE blue = vorn::BlueOf(color);
            tables.Dim(red, green, blue);
            EXPECT_EQ(vorn::PaletteColor(red, green, blue), vorn::Dimmed(color, scales)) << color;
        }
    }
}
