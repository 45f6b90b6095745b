#include "toolkit/layout/core/BarSizing.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vorn;

namespace
{
constexpr BarSide kSides[] = {BarSide::Top, BarSide::Bottom, BarSide::Left, BarSide::Right, BarSide::Floating};
}

TEST(BarSizing, TheEdgeLiesAwayFromTheDock)
{
    EXPECT_EQ((BarMargins{0, 0, 0, 5}), BarFrameOf(BarSide::Top, false));
    EXPECT_EQ((BarMargins{0, 5, 0, 0}), BarFrameOf(BarSide::Bottom, false));
    EXPECT_EQ((BarMargins{0, 0, 5, 0}), BarFrameOf(BarSide::Left, false));
    EXPECT_EQ((BarMargins{5, 0, 0, 0}), BarFrameOf(BarSide::Right, false));
    EXPECT_EQ((BarMargins{5, 5, 5, 5}), BarFrameOf(BarSide::Floating, false));
}

TEST(BarSizing, TheGripperLiesOnTheLeadingEdgeOfADockedBar)
{
    EXPECT_EQ((BarMargins{7, 0, 0, 5}), BarFrameOf(BarSide::Top, true));
    EXPECT_EQ((BarMargins{7, 5, 0, 0}), BarFrameOf(BarSide::Bottom, true));
    EXPECT_EQ((BarMargins{0, 7, 5, 0}), BarFrameOf(BarSide::Left, true));
    EXPECT_EQ((BarMargins{5, 7, 0, 0}), BarFrameOf(BarSide::Right, true));
    EXPECT_EQ((BarMargins{5, 5, 5, 5}), BarFrameOf(BarSide::Floating, true));
}

TEST(BarSizing, PartsAreHitAsFarAsTheyReach)
{
    const BarSize size{200, 100};
    EXPECT_EQ(BarPart::BottomEdge, BarPartAt(BarSide::Top, true, size, 100, 95));
    EXPECT_EQ(BarPart::Inside, BarPartAt(BarSide::Top, true, size, 100, 94));
    EXPECT_EQ(BarPart::Gripper, BarPartAt(BarSide::Top, true, size, 6, 50));
    EXPECT_EQ(BarPart::Inside, BarPartAt(BarSide::Top, true, size, 7, 50));
    EXPECT_EQ(BarPart::Inside, BarPartAt(BarSide::Top, false, size, 6, 50));
    EXPECT_EQ(BarPart::BottomEdge, BarPartAt(BarSide::Top, true, size, 3, 97)) << "the edge goes before the gripper";
    EXPECT_EQ(BarPart::TopEdge, BarPartAt(BarSide::Bottom, true, size, 100, 4));
    EXPECT_EQ(BarPart::RightEdge, BarPartAt(BarSide::Left, true, size, 195, 50));
    EXPECT_EQ(BarPart::Gripper, BarPartAt(BarSide::Left, true, size, 100, 6));
    EXPECT_EQ(BarPart::LeftEdge, BarPartAt(BarSide::Right, true, size, 4, 50));
    EXPECT_EQ(BarPart::Gripper, BarPartAt(BarSide::Right, true, size, 5, 6));
}

TEST(BarSizing, AFloatingBarHasAnEdgeOnEachSide)
{
    const BarSize size{200, 100};
    EXPECT_EQ(BarPart::LeftEdge, BarPartAt(BarSide::Floating, true, size, 0, 50));
    EXPECT_EQ(BarPart::RightEdge, BarPartAt(BarSide::Floating, true, size, 199, 50));
    EXPECT_EQ(BarPart::TopEdge, BarPartAt(BarSide::Floating, true, size, 100, 0));
    EXPECT_EQ(BarPart::BottomEdge, BarPartAt(BarSide::Floating, true, size, 100, 99));
    EXPECT_EQ(BarPart::LeftEdge, BarPartAt(BarSide::Floating, true, size, 2, 2)) << "in a corner";
    EXPECT_EQ(BarPart::Inside, BarPartAt(BarSide::Floating, true, size, 5, 5));
}

TEST(BarSizing, OutsideNothingIsHit)
{
    for (const BarSide side : kSides)
    {
        EXPECT_EQ(BarPart::Inside, BarPartAt(side, true, {200, 100}, -1, 50));
        EXPECT_EQ(BarPart::Inside, BarPartAt(side, true, {200, 100}, 200, 50));
        EXPECT_EQ(BarPart::Inside, BarPartAt(side, true, {200, 100}, 50, 100));
        EXPECT_EQ(BarPart::Inside, BarPartAt(side, true, {0, 0}, 0, 0));
    }
}

TEST(BarSizing, ADragChangesTheSideOfItsEdge)
{
    const BarSize start{200, 100};
    EXPECT_EQ((BarSize{190, 100}), DraggedBarSize(BarPart::LeftEdge, start, 10, 7));
    EXPECT_EQ((BarSize{210, 100}), DraggedBarSize(BarPart::RightEdge, start, 10, 7));
    EXPECT_EQ((BarSize{200, 93}), DraggedBarSize(BarPart::TopEdge, start, 10, 7));
    EXPECT_EQ((BarSize{200, 107}), DraggedBarSize(BarPart::BottomEdge, start, 10, 7));
    EXPECT_EQ(start, DraggedBarSize(BarPart::Gripper, start, 10, 7));
    EXPECT_EQ(BarPart::BottomEdge, SizingEdgeOf(BarSide::Top));
    EXPECT_EQ(BarPart::TopEdge, SizingEdgeOf(BarSide::Bottom));
    EXPECT_EQ(BarPart::RightEdge, SizingEdgeOf(BarSide::Left));
    EXPECT_EQ(BarPart::LeftEdge, SizingEdgeOf(BarSide::Right));
}

TEST(BarSizing, SizesAreKeptWithinTheirLimits)
{
    const BarLimits limits{{32, 40}, {300, 200}};
    EXPECT_EQ((BarSize{32, 40}), LimitedBarSize({-5, 39}, limits));
    EXPECT_EQ((BarSize{300, 200}), LimitedBarSize({301, 4000}, limits));
    EXPECT_EQ((BarSize{100, 100}), LimitedBarSize({100, 100}, limits));
    EXPECT_EQ((BarSize{50, 50}), LimitedBarSize({100, 100}, {{50, 50}, {20, 20}})) << "the smallest counts";
}

TEST(BarSizing, TheTrackerLiesWhereTheEdgeWouldBe)
{
    const BarMargins bar{10, 20, 210, 120};
    EXPECT_EQ((BarMargins{10, 146, 210, 150}), TrackerLineOf(BarPart::BottomEdge, bar, {200, 130}));
    EXPECT_EQ((BarMargins{10, -10, 210, -6}), TrackerLineOf(BarPart::TopEdge, bar, {200, 130}));
    EXPECT_EQ((BarMargins{256, 20, 260, 120}), TrackerLineOf(BarPart::RightEdge, bar, {250, 100}));
    EXPECT_EQ((BarMargins{160, 20, 164, 120}), TrackerLineOf(BarPart::LeftEdge, bar, {50, 100}));
}

TEST(BarSizing, StoredSizesAreTwoNumbers)
{
    EXPECT_EQ("223,234", BarSizeText({223, 234}));
    EXPECT_EQ((BarSize{223, 234}), ReadBarSize("223,234"));
    EXPECT_EQ((BarSize{1, 32767}), ReadBarSize("1,32767"));
    for (const char* text : {"", "x", "0,-5", "0,5", "5,0", "5", "5,", ",5", "5,6,7", "5, 6", " 5,6", "5,6 ", "32768,5",
                             "5,99999999999999", "+5,6", "5.0,6"})
    {
        EXPECT_EQ(std::nullopt, ReadBarSize(text)) << text;
    }
}

TEST(BarSizing, FirstSizesFollowTheFont)
{
    EXPECT_EQ((BarSize{150, 200}), ScaledBarSize({100, 100}, 1.5, 2));
    EXPECT_EQ((BarSize{117, 163}), ScaledBarSize({100, 100}, 7.0 / 6, 13.0 / 8)) << "rounded";
    EXPECT_EQ((BarSize{100, 100}), ScaledBarSize({100, 100}, 0, -2));
    EXPECT_EQ((BarSize{100, 100}), ScaledBarSize({100, 100}, std::nan(""), std::numeric_limits<double>::infinity()));
    EXPECT_EQ((BarSize{32767, 1}), ScaledBarSize({100, 100}, 1e30, 1e-30));
}
