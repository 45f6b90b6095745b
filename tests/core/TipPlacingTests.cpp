#include "toolkit/tooltips/core/TipPlacing.h"

#include "toolkit/tooltips/core/TipLookup.h"

#include <gtest/gtest.h>

#include <vector>

using vorn::HoverTipPoint;
using vorn::KeepOnArea;
using vorn::PlaceTip;
using vorn::SmallestAround;
using vorn::TipSize;

namespace
{

const CRect kScreen(0, 0, 1280, 1024);

constexpr auto kAll = [](std::size_t)
{
    return true;
};

} // namespace

TEST(HoverTip, InALargeToolStandsBelowTheCursor)
{
    EXPECT_EQ(CPoint(110, 235), HoverTipPoint(CRect(0, 0, 500, 500), {110, 200}));
}

TEST(HoverTip, EdgesOf81PixelsAreFarThoseOf80AreNear)
{
    EXPECT_EQ(CPoint(119, 154), HoverTipPoint(CRect(0, 0, 200, 200), {119, 119})) << "both 81 away";
    EXPECT_EQ(CPoint(119, 200), HoverTipPoint(CRect(0, 0, 200, 200), {119, 120})) << "the lower one 80 away";
    EXPECT_EQ(CPoint(200, 119), HoverTipPoint(CRect(0, 0, 200, 200), {120, 119})) << "the right one 80 away";
}

TEST(HoverTip, StandsAtTheNearerEdge)
{
    EXPECT_EQ(CPoint(15, 40), HoverTipPoint(CRect(10, 20, 110, 40), {15, 25})) << "below";
    EXPECT_EQ(CPoint(110, 25), HoverTipPoint(CRect(10, 20, 110, 140), {105, 25})) << "at the right";
}

TEST(HoverTip, AsNearToBothStandsAtTheRight)
{
    EXPECT_EQ(CPoint(60, 50), HoverTipPoint(CRect(0, 0, 60, 60), {50, 50}));
}

TEST(HoverTip, DistancesCountFromOutsideTheToolToo)
{
    EXPECT_EQ(CPoint(20, 60), HoverTipPoint(CRect(0, 0, 60, 60), {20, 65}));
    EXPECT_EQ(CPoint(60, 20), HoverTipPoint(CRect(0, 0, 60, 60), {65, 20}));
}

TEST(TipPlace, IsThePointWhereThereIsRoom)
{
    EXPECT_EQ(CRect(100, 200, 180, 220), PlaceTip({100, 200}, {80, 20}, CRect(90, 180, 190, 200), kScreen));
}

TEST(TipPlace, EndsAtTheScreensRightEdge)
{
    EXPECT_EQ(CRect(1200, 200, 1280, 220), PlaceTip({1201, 200}, {80, 20}, CRect(90, 180, 190, 200), kScreen));
    EXPECT_EQ(CRect(1200, 200, 1280, 220), PlaceTip({1200, 200}, {80, 20}, CRect(90, 180, 190, 200), kScreen));
}

TEST(TipPlace, NeverBeginsLeftOfTheScreen)
{
    EXPECT_EQ(CRect(0, 200, 80, 220), PlaceTip({-30, 200}, {80, 20}, CRect(-90, 180, -10, 200), kScreen));
}

TEST(TipPlace, ATipWiderThanTheScreenBeginsAtItsLeft)
{
    EXPECT_EQ(CRect(0, 200, 1500, 220), PlaceTip({600, 200}, {1500, 20}, CRect(590, 180, 700, 200), kScreen));
}

TEST(TipPlace, StandsAboveTheToolWhenItWouldPassTheScreensBottom)
{
    const CRect tool(100, 980, 200, 1010);
    EXPECT_EQ(CRect(120, 960, 200, 980), PlaceTip({120, 1010}, {80, 20}, tool, kScreen));
    EXPECT_EQ(CRect(120, 1004, 200, 1024), PlaceTip({120, 1004}, {80, 20}, tool, kScreen)) << "just inside";
}

TEST(TipPlace, WithoutRoomAboveBeginsAtTheScreensTop)
{
    EXPECT_EQ(CRect(120, 0, 200, 900), PlaceTip({120, 600}, {80, 900}, CRect(100, 400, 200, 600), kScreen));
    EXPECT_EQ(CRect(120, 0, 200, 1030), PlaceTip({120, 10}, {80, 1030}, CRect(100, -40, 200, -5), kScreen));
}

TEST(TipPlace, FollowsTheEdgesOfASecondScreen)
{
    const CRect left(-1000, 100, 0, 800);
    EXPECT_EQ(CRect(-80, 200, 0, 220), PlaceTip({-40, 200}, {80, 20}, CRect(-50, 180, -10, 200), left));
    EXPECT_EQ(CRect(-1000, 200, -920, 220), PlaceTip({-1010, 200}, {80, 20}, CRect(-1000, 180, -950, 200), left));
    EXPECT_EQ(CRect(-500, 100, -420, 790), PlaceTip({-500, 760}, {80, 690}, CRect(-510, 740, -400, 760), left));
}

TEST(TipSize, IsTextAndMargins)
{
    EXPECT_EQ(CSize(105, 25), TipSize({100, 20}, CRect(2, 2, 3, 3)));
}

TEST(TipSize, IsNothingWithoutText)
{
    EXPECT_EQ(CSize(0, 0), TipSize({0, 0}, CRect(2, 2, 3, 3)));
    EXPECT_EQ(CSize(0, 0), TipSize({0, 13}, CRect(2, 2, 3, 3)));
}

TEST(TipSize, IsNothingWhereMarginsInvertIt)
{
    EXPECT_EQ(CSize(0, 0), TipSize({100, 20}, CRect(-50, 2, -50, 3)));
    EXPECT_EQ(CSize(0, 0), TipSize({100, 20}, CRect(2, -15, 3, -15)));
    EXPECT_EQ(CSize(1, 25), TipSize({100, 20}, CRect(-50, 2, -49, 3)));
}

TEST(InfoBox, HasItsTitleAboveItsText)
{
    const vorn::InfoBoxPlaces places = vorn::StackInfoBox({80, 13}, {120, 39}, CRect(2, 4, 3, 5));
    EXPECT_EQ(CRect(2, 4, 122, 17), places.title);
    EXPECT_EQ(CRect(2, 17, 122, 56), places.text);
    EXPECT_EQ(CSize(125, 61), places.size);
}

TEST(KeepOnArea, ShiftsLeftAndUp)
{
    const CRect work(0, 30, 1280, 1000);
    EXPECT_EQ(CRect(100, 200, 300, 260), KeepOnArea({100, 200}, {200, 60}, work));
    EXPECT_EQ(CRect(1080, 200, 1280, 260), KeepOnArea({1200, 200}, {200, 60}, work));
    EXPECT_EQ(CRect(100, 940, 300, 1000), KeepOnArea({100, 990}, {200, 60}, work));
    EXPECT_EQ(CRect(0, 30, 200, 90), KeepOnArea({-50, 0}, {200, 60}, work));
    EXPECT_EQ(CRect(0, 30, 2000, 2030), KeepOnArea({100, 200}, {2000, 2000}, work)) << "larger than the area";
}

TEST(ToolLookup, TheSmallestToolAroundThePointCounts)
{
    const std::vector<RECT> tools = {CRect(0, 0, 100, 100), CRect(10, 10, 30, 30), CRect(5, 5, 50, 50)};
    EXPECT_EQ(1U, SmallestAround(tools, {20, 20}, kAll));
    EXPECT_EQ(2U, SmallestAround(tools, {40, 40}, kAll));
    EXPECT_EQ(0U, SmallestAround(tools, {99, 99}, kAll));
    EXPECT_EQ(vorn::kNoTip, SmallestAround(tools, {100, 50}, kAll)) << "right edges lie outside";
    EXPECT_EQ(vorn::kNoTip, SmallestAround({}, {1, 1}, kAll));
}

TEST(ToolLookup, OfEqualToolsTheFirstCounts)
{
    const std::vector<RECT> tools = {CRect(0, 0, 10, 10), CRect(5, 0, 15, 10)};
    EXPECT_EQ(0U, SmallestAround(tools, {7, 5}, kAll));
    EXPECT_EQ(1U, SmallestAround(tools, {12, 5}, kAll));
}

TEST(ToolLookup, OneThatIsRefusedIsNoTool)
{
    const std::vector<RECT> tools = {CRect(0, 0, 100, 100), CRect(10, 10, 30, 30)};
    const auto notSecond = [](std::size_t tool)
    {
        return tool != 1;
    };
    EXPECT_EQ(0U, SmallestAround(tools, {20, 20}, notSecond));
}

TEST(ToolLookup, AreasBeyond32BitsAreCompared)
{
    const std::vector<RECT> tools = {CRect(-100000, -100000, 100000, 100000), CRect(-90000, -90000, 90000, 90000)};
    EXPECT_EQ(1U, SmallestAround(tools, {0, 0}, kAll));
}
