#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using namespace vorn::test;

namespace
{
CRect BoxOf(const CRgn& region)
{
    CRect box;
    region.GetRgnBox(&box);
    return box;
}
} // namespace

TEST(Region, RectanglesLeaveRightAndBottomOut)
{
    CRgn region;
    ASSERT_TRUE(region.CreateRectRgn(2, 3, 6, 8));
    EXPECT_EQ(CRect(2, 3, 6, 8), BoxOf(region));
    EXPECT_TRUE(region.PtInRegion(2, 3));
    EXPECT_TRUE(region.PtInRegion(CPoint(5, 7)));
    EXPECT_FALSE(region.PtInRegion(6, 7));
    EXPECT_FALSE(region.PtInRegion(5, 8));
}

TEST(Region, CombinesLikeSets)
{
    CRgn left;
    CRgn right;
    CRgn result;
    left.CreateRectRgn(0, 0, 4, 4);
    right.CreateRectRgn(2, 0, 6, 4);
    result.CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(SIMPLEREGION, result.CombineRgn(&left, &right, RGN_AND));
    EXPECT_EQ(CRect(2, 0, 4, 4), BoxOf(result));
    EXPECT_EQ(SIMPLEREGION, result.CombineRgn(&left, &right, RGN_OR));
    EXPECT_EQ(CRect(0, 0, 6, 4), BoxOf(result));
    EXPECT_EQ(COMPLEXREGION, result.CombineRgn(&left, &right, RGN_XOR));
    EXPECT_FALSE(result.PtInRegion(3, 1));
    EXPECT_EQ(SIMPLEREGION, result.CombineRgn(&left, &right, RGN_DIFF));
    EXPECT_EQ(CRect(0, 0, 2, 4), BoxOf(result));
    EXPECT_EQ(NULLREGION, left.CombineRgn(&left, &left, RGN_DIFF));
}

TEST(Region, CombiningIntoAnEmptyObjectIsAnError)
{
    CRgn source;
    CRgn empty;
    source.CreateRectRgn(0, 0, 4, 4);
    EXPECT_EQ(ERROR, empty.CombineRgn(&source, &source, RGN_OR));
}

TEST(Region, CopiesAndCompares)
{
    CRgn source;
    CRgn copy;
    source.CreateEllipticRgn(0, 0, 9, 9);
    copy.CreateRectRgn(0, 0, 0, 0);
    EXPECT_FALSE(copy.EqualRgn(&source));
    EXPECT_EQ(COMPLEXREGION, copy.CopyRgn(&source));
    EXPECT_TRUE(copy.EqualRgn(&source));
    EXPECT_EQ(COMPLEXREGION, copy.OffsetRgn(CPoint(1, 0)));
    EXPECT_FALSE(copy.EqualRgn(&source));
    EXPECT_FALSE(copy.EqualRgn(nullptr));
}

TEST(Region, PolygonsFillByMode)
{
    // Two squares, one within the other, in one polygon each.
    const std::array<POINT, 8> points{{{0, 0}, {9, 0}, {9, 9}, {0, 9}, {3, 3}, {6, 3}, {6, 6}, {3, 6}}};
    const std::array<int, 2> counts{4, 4};
    CRgn alternate;
    CRgn winding;
    ASSERT_TRUE(alternate.CreatePolyPolygonRgn(points.data(), counts.data(), 2, ALTERNATE));
    ASSERT_TRUE(winding.CreatePolyPolygonRgn(points.data(), counts.data(), 2, WINDING));
    EXPECT_FALSE(alternate.PtInRegion(4, 4));
    EXPECT_TRUE(winding.PtInRegion(4, 4));
    CRgn one;
    ASSERT_TRUE(one.CreatePolygonRgn(points.data(), 4, ALTERNATE));
    EXPECT_TRUE(one.PtInRegion(4, 4));
}

TEST(Region, RoundCornersAreLeftOut)
{
    CRgn region;
    ASSERT_TRUE(region.CreateRoundRectRgn(0, 0, 20, 20, 10, 10));
    EXPECT_FALSE(region.PtInRegion(0, 0));
    EXPECT_TRUE(region.PtInRegion(10, 0));
    CRgn ellipse;
    ASSERT_TRUE(ellipse.CreateEllipticRgnIndirect(CRect(0, 0, 20, 20)));
    EXPECT_TRUE(ellipse.PtInRegion(10, 10));
    EXPECT_FALSE(ellipse.PtInRegion(0, 19));
}

TEST(Region, ChangesItsRectangleAndMeetsOthers)
{
    CRgn region;
    region.CreateRectRgnIndirect(CRect(0, 0, 1, 1));
    region.SetRectRgn(CRect(5, 5, 9, 9));
    EXPECT_EQ(CRect(5, 5, 9, 9), BoxOf(region));
    EXPECT_TRUE(region.RectInRegion(CRect(0, 0, 6, 6)));
    EXPECT_FALSE(region.RectInRegion(CRect(0, 0, 5, 5)));
    EXPECT_FALSE(CRgn().CreateRectRgnIndirect(nullptr));
}

TEST(Region, GoesThroughItsData)
{
    CRgn region;
    region.CreateRectRgn(1, 2, 3, 4);
    const int size = region.GetRegionData(nullptr, 0);
    ASSERT_GT(size, 0);
    std::vector<std::uint64_t> buffer(static_cast<std::size_t>(size) / 8 + 1);
    auto* data = reinterpret_cast<RGNDATA*>(buffer.data());
    EXPECT_EQ(size, region.GetRegionData(data, size));
    CRgn copy;
    ASSERT_TRUE(copy.CreateFromData(nullptr, size, data));
    EXPECT_TRUE(copy.EqualRgn(&region));
    EXPECT_FALSE(CRgn().CreateFromData(nullptr, size, nullptr));
}

TEST(Region, ComesFromAPath)
{
    Canvas canvas(10, 10);
    canvas.dc.BeginPath();
    canvas.dc.Rectangle(1, 1, 6, 6);
    canvas.dc.EndPath();
    CRgn region;
    ASSERT_TRUE(region.CreateFromPath(&canvas.dc));
    EXPECT_TRUE(region.PtInRegion(3, 3));
    EXPECT_FALSE(CRgn().CreateFromPath(&canvas.dc)) << "the path is used up";
    EXPECT_FALSE(CRgn().CreateFromPath(nullptr));
}

TEST(Clipping, RestrictsDrawing)
{
    Canvas canvas(6, 3);
    CRgn region;
    region.CreateRectRgn(1, 0, 3, 2);
    EXPECT_EQ(SIMPLEREGION, canvas.dc.SelectClipRgn(&region));
    canvas.dc.FillSolidRect(0, 0, 6, 3, kRed);
    EXPECT_EQ(".RR...\n.RR...\n......\n", canvas.Picture());
    CRect box;
    EXPECT_EQ(SIMPLEREGION, canvas.dc.GetClipBox(&box));
    EXPECT_EQ(CRect(1, 0, 3, 2), box);
    EXPECT_TRUE(canvas.dc.PtVisible(1, 1));
    EXPECT_FALSE(canvas.dc.PtVisible(CPoint(3, 1)));
    EXPECT_TRUE(canvas.dc.RectVisible(CRect(2, 1, 6, 3)));
    EXPECT_FALSE(canvas.dc.RectVisible(CRect(3, 0, 6, 3)));
}

TEST(Clipping, NullTakesTheRegionAway)
{
    Canvas canvas(3, 1);
    canvas.dc.IntersectClipRect(0, 0, 1, 1);
    canvas.dc.SelectClipRgn(nullptr);
    canvas.dc.FillSolidRect(0, 0, 3, 1, kRed);
    EXPECT_EQ("RRR\n", canvas.Picture());
}

TEST(Clipping, IntersectsExcludesAndMoves)
{
    Canvas canvas(6, 1);
    EXPECT_EQ(SIMPLEREGION, canvas.dc.IntersectClipRect(CRect(0, 0, 5, 1)));
    EXPECT_EQ(COMPLEXREGION, canvas.dc.ExcludeClipRect(CRect(2, 0, 3, 1)));
    EXPECT_EQ(COMPLEXREGION, canvas.dc.OffsetClipRgn(CSize(1, 0)));
    canvas.dc.FillSolidRect(0, 0, 6, 1, kBlue);
    EXPECT_EQ(".BB.BB\n", canvas.Picture());
}

TEST(Clipping, CombinesWithTheFormerRegion)
{
    Canvas canvas(4, 1);
    CRgn first;
    CRgn second;
    first.CreateRectRgn(0, 0, 1, 1);
    second.CreateRectRgn(3, 0, 4, 1);
    EXPECT_EQ(SIMPLEREGION, canvas.dc.SelectObject(&first));
    EXPECT_EQ(COMPLEXREGION, canvas.dc.SelectClipRgn(&second, RGN_OR));
    canvas.dc.FillSolidRect(0, 0, 4, 1, kBlue);
    EXPECT_EQ("B..B\n", canvas.Picture());
}

TEST(Clipping, FollowsAPath)
{
    Canvas canvas(4, 1);
    canvas.dc.BeginPath();
    canvas.dc.MoveTo(0, 0);
    canvas.dc.LineTo(2, 0);
    canvas.dc.LineTo(2, 1);
    canvas.dc.LineTo(0, 1);
    canvas.dc.CloseFigure();
    canvas.dc.EndPath();
    EXPECT_TRUE(canvas.dc.SelectClipPath(RGN_COPY));
    canvas.dc.FillSolidRect(0, 0, 4, 1, kBlue);
    EXPECT_EQ("BB..\n", canvas.Picture());
}

TEST(RegionDrawing, FillsFramesInvertsAndPaints)
{
    Canvas canvas(5, 5);
    CRgn region;
    region.CreateRectRgn(0, 0, 5, 5);
    CBrush red(kRed);
    CBrush blue(kBlue);
    EXPECT_TRUE(canvas.dc.FillRgn(&region, &red));
    EXPECT_TRUE(canvas.dc.FrameRgn(&region, &blue, 1, 2));
    EXPECT_EQ("BBBBB\nBBBBB\nBRRRB\nBBBBB\nBBBBB\n", canvas.Picture());
    EXPECT_TRUE(canvas.dc.InvertRgn(&region));
    EXPECT_EQ(RGB(0, 255, 255), canvas.At(2, 2));
    CBrush* former = canvas.dc.SelectObject(&red);
    EXPECT_TRUE(canvas.dc.PaintRgn(&region));
    canvas.dc.SelectObject(former);
    EXPECT_EQ(25, canvas.Count(kRed));
    EXPECT_FALSE(canvas.dc.FillRgn(nullptr, &red));
}
