#include "framework/bars/core/DockDrag.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using namespace vorn;

namespace
{

using Edges = std::array<LONG, 4>;

Edges EdgesOf(const RECT& rect)
{
    return {rect.left, rect.top, rect.right, rect.bottom};
}

constexpr RECT kTaken{100, 100, 300, 120};
constexpr POINT kPressed{150, 110};
const DragSizes kSizes{{200, 20}, {30, 150}, {100, 60}};

/// A frame from (0,0) to (800,600) with a bar of 20 pixels at the top.
const std::vector<DockZone>& Zones()
{
    static const std::vector<DockZone> zones{{1, true, {0, 0, 800, 20}},
                                             {2, true, {0, 600, 800, 600}},
                                             {3, false, {0, 20, 0, 600}},
                                             {4, false, {800, 20, 800, 600}}};
    return zones;
}

DragTarget At(LONG x, LONG y)
{
    return FindDragTarget(Zones(), kSizes, kTaken, kPressed, {x, y});
}

} // namespace

TEST(DockDrag, TheOutlineLiesAboutThePointerAsTheBarDid)
{
    EXPECT_EQ((Edges{350, 390, 550, 410}), EdgesOf(RectAtPointer({400, 400}, {200, 20}, kTaken, kPressed)));
    // A quarter of the width, half of the height.
    EXPECT_EQ((Edges{375, 370, 475, 430}), EdgesOf(RectAtPointer({400, 400}, {100, 60}, kTaken, kPressed)));
    EXPECT_EQ((Edges{400, 400, 410, 410}), EdgesOf(RectAtPointer({400, 400}, {10, 10}, {5, 5, 5, 5}, kPressed)));
    EXPECT_EQ((Edges{400, 400, 410, 410}), EdgesOf(RectAtPointer({400, 400}, {10, 10}, kTaken, {90, 90})))
        << "pressed before its corner, as in a band outside the client area";
}

TEST(DockDrag, FarFromTheDocksTheBarFloats)
{
    const DragTarget target = At(400, 300);
    EXPECT_EQ(0U, target.dock);
    EXPECT_EQ((Edges{375, 270, 475, 330}), EdgesOf(target.outline));
}

TEST(DockDrag, NearADockTheBarTakesItsShape)
{
    EXPECT_EQ(1U, At(400, 43).dock);
    EXPECT_EQ(0U, At(400, 44).dock);
    EXPECT_EQ(1U, At(400, -24).dock);
    EXPECT_EQ(0U, At(400, -25).dock);
    EXPECT_EQ(2U, At(400, 576).dock);
    EXPECT_EQ(0U, At(400, 575).dock);
    EXPECT_EQ(3U, At(23, 300).dock);
    EXPECT_EQ(0U, At(24, 300).dock);
    EXPECT_EQ(4U, At(776, 300).dock);
    EXPECT_EQ((Edges{350, 0, 550, 20}), EdgesOf(At(400, 10).outline));
    EXPECT_EQ((Edges{10 - 7, 300 - 75, 40 - 7, 450 - 75}), EdgesOf(At(10, 300).outline));
}

TEST(DockDrag, BesideTheFrameThereIsNoDock)
{
    EXPECT_EQ(0U, At(850, 10).dock);
    EXPECT_EQ(0U, At(-1, 10).dock);
    EXPECT_EQ(0U, FindDragTarget({}, kSizes, kTaken, kPressed, {5, 5}).dock);
}

TEST(DockDrag, AFrameThatCanBeReachedStays)
{
    const RECT work{0, 0, 1000, 700};
    EXPECT_EQ((Edges{900, 600, 1100, 800}), EdgesOf(ReachableRect({900, 600, 1100, 800}, work, 16)));
    EXPECT_EQ((Edges{-184, 0, 16, 50}), EdgesOf(ReachableRect({-184, 0, 16, 50}, work, 16)));
    EXPECT_EQ((Edges{990, 10, 1000, 20}), EdgesOf(ReachableRect({990, 10, 1000, 20}, work, 16)));
}

TEST(DockDrag, AFrameOutOfReachComesBackWhole)
{
    const RECT work{0, 0, 1000, 700};
    EXPECT_EQ((Edges{800, 500, 1000, 700}), EdgesOf(ReachableRect({3000, 2000, 3200, 2200}, work, 16)));
    EXPECT_EQ((Edges{0, 100, 200, 150}), EdgesOf(ReachableRect({-185, 100, 15, 150}, work, 16)));
    EXPECT_EQ((Edges{100, 0, 300, 50}), EdgesOf(ReachableRect({100, -1, 300, 49}, work, 16)));
    EXPECT_EQ((Edges{100, 650, 300, 700}), EdgesOf(ReachableRect({100, 685, 300, 735}, work, 16)));
    EXPECT_EQ((Edges{0, 0, 3000, 50}), EdgesOf(ReachableRect({2000, -9, 5000, 41}, work, 16)))
        << "wider than the screen";
}
