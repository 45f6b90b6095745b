#include "frame/core/PlacementText.h"

#include <gtest/gtest.h>

#include <climits>

using namespace vorn;

namespace
{
constexpr Placement kSample{2, 3, -1, -2, -8, -9, {10, 20, 810, 620}};

void ExpectRefused(std::string_view text)
{
    EXPECT_EQ(ParsePlacement(text), std::nullopt) << text;
}
} // namespace

TEST(PlacementText, HoldsTheTenNumbersInOrder)
{
    EXPECT_EQ(PlacementText(kSample), "2,3,-1,-2,-8,-9,10,20,810,620");
}

TEST(PlacementText, HoldsTheExtremesInFull)
{
    const Placement widest{
        UINT_MAX, UINT_MAX, INT_MIN, INT_MIN, INT_MIN, INT_MIN, {INT_MIN, INT_MIN, INT_MIN, INT_MIN}};
    EXPECT_EQ(PlacementText(widest), "4294967295,4294967295,-2147483648,-2147483648,-2147483648,-2147483648,"
                                     "-2147483648,-2147483648,-2147483648,-2147483648");
    EXPECT_EQ(ParsePlacement(PlacementText(widest)), widest);
}

TEST(PlacementText, ComesBackFromItsText)
{
    EXPECT_EQ(ParsePlacement("2,3,-1,-2,-8,-9,10,20,810,620"), kSample);
}

TEST(PlacementText, SkipsBlanksBeforeANumberButNotBeforeAComma)
{
    EXPECT_EQ(ParsePlacement(" 2,\t3, -1,\n-2, -8,  -9,10,20,810,620"), kSample);
    ExpectRefused("2 ,3,-1,-2,-8,-9,10,20,810,620");
    ExpectRefused("2,3,-1,-2,-8,-9,10,20,810 ,620");
    ExpectRefused("2,3,- 1,-2,-8,-9,10,20,810,620");
}

TEST(PlacementText, IgnoresATail)
{
    EXPECT_EQ(ParsePlacement("2,3,-1,-2,-8,-9,10,20,810,620,99 and more"), kSample);
    EXPECT_EQ(ParsePlacement("2,3,-1,-2,-8,-9,10,20,810,620.75"), kSample);
}

TEST(PlacementText, IsRefusedUnlessAllTenNumbersAreThere)
{
    ExpectRefused("");
    ExpectRefused(" ");
    ExpectRefused("2,3,-1,-2,-8,-9,10,20,810");
    ExpectRefused("2,3,-1,-2,-8,-9,10,20,810,");
    ExpectRefused("2,3,-1,-2,-8,-9,10,20,810,-");
    ExpectRefused("2,,-1,-2,-8,-9,10,20,810,620");
    ExpectRefused("2;3;-1;-2;-8;-9;10;20;810;620");
    ExpectRefused("a,3,-1,-2,-8,-9,10,20,810,620");
    ExpectRefused("2.5,3,-1,-2,-8,-9,10,20,810,620");
    ExpectRefused(",2,3,-1,-2,-8,-9,10,20,810,620");
}

TEST(PlacementText, StopsNumbersAtTheLimitsOfThirtyTwoBits)
{
    const auto placement = ParsePlacement("99999999999,4294967296,99999999999,-99999999999,2147483648,-2147483649,"
                                          "1,2,3,99999999999999999999999999");
    ASSERT_TRUE(placement);
    EXPECT_EQ(placement->flags, UINT_MAX);
    EXPECT_EQ(placement->showCommand, UINT_MAX);
    EXPECT_EQ(placement->minX, INT_MAX);
    EXPECT_EQ(placement->minY, INT_MIN);
    EXPECT_EQ(placement->maxX, INT_MAX);
    EXPECT_EQ(placement->maxY, INT_MIN);
    EXPECT_EQ(placement->normal, (PlacedRect{1, 2, 3, INT_MAX}));
}

TEST(PlacementText, UnsignedNumbersMayCarryASign)
{
    const auto placement = ParsePlacement("-1,+3,+1,0,0,0,0,0,0,0");
    ASSERT_TRUE(placement);
    EXPECT_EQ(placement->flags, UINT_MAX);
    EXPECT_EQ(placement->showCommand, 3u);
    EXPECT_EQ(placement->minX, 1);
    EXPECT_EQ(ParsePlacement("-4294967296,1,0,0,0,0,0,0,0,0")->flags, UINT_MAX);
}

TEST(PlacementRect, StaysWhenItIsOnTheScreen)
{
    const PlacedRect rect{-500, 0, 9000, 1024};
    EXPECT_EQ(KeptOnScreen(rect, 1024), rect);
}

TEST(PlacementRect, MovesToFiftyWhenItsTopIsAboveTheScreen)
{
    EXPECT_EQ(KeptOnScreen({1, -1, 2, 599}, 1024), (PlacedRect{1, 50, 2, 650}));
}

TEST(PlacementRect, MovesToFiftyWhenItsBottomIsBelowTheScreen)
{
    EXPECT_EQ(KeptOnScreen({1, 900, 2, 1025}, 1024), (PlacedRect{1, 50, 2, 175}));
    EXPECT_EQ(KeptOnScreen({1, 10, 2, 3000}, 1024), (PlacedRect{1, 50, 2, 3040}));
}

TEST(PlacementRect, KeepsANegativeHeight)
{
    EXPECT_EQ(KeptOnScreen({1, 2000, 2, 1990}, 1024), (PlacedRect{1, 50, 2, 40}));
}

TEST(PlacementRect, StoresTheLowThirtyTwoBitsOfAnOverflowingMove)
{
    // 2147483647 + 2147483648 + 50 = 4294967345 = 2^32 + 49
    EXPECT_EQ(KeptOnScreen({0, INT_MIN, 0, INT_MAX}, 1024), (PlacedRect{0, 50, 0, 49}));
    // 0 + 2147483648 + 50 = 2147483698, which is -2147483598 in 32 bits
    EXPECT_EQ(KeptOnScreen({0, INT_MIN, 0, 0}, 1024), (PlacedRect{0, 50, 0, -2147483598}));
}
