#include "framework/core/Geometry.h"

#include <gtest/gtest.h>
#include <limits>

namespace
{
constexpr int kMin = std::numeric_limits<int>::min();
constexpr int kMax = std::numeric_limits<int>::max();
} // namespace

TEST(Size, HasTheLayoutOfTheSystemsRecord)
{
    static_assert(sizeof(CSize) == sizeof(SIZE));
    EXPECT_EQ(CSize(), CSize(0, 0));
    EXPECT_EQ(CSize(SIZE{1, 2}), CSize(1, 2));
    EXPECT_EQ(CSize(POINT{3, 4}), CSize(3, 4));
    EXPECT_EQ(CSize(static_cast<DWORD>(0xFFFE0005)), CSize(5, -2));
}

TEST(Size, AddsAndSubtracts)
{
    CSize size(10, 20);
    EXPECT_EQ(size + SIZE({1, 2}), CSize(11, 22));
    EXPECT_EQ(size - SIZE({1, 2}), CSize(9, 18));
    EXPECT_EQ(-size, CSize(-10, -20));
    EXPECT_EQ(size + POINT({1, 2}), CPoint(11, 22));
    EXPECT_EQ(size - POINT({1, 2}), CPoint(9, 18));
    const CRect rect(0, 0, 5, 5);
    EXPECT_EQ(size + &static_cast<const RECT&>(rect), CRect(10, 20, 15, 25));
    EXPECT_EQ(size - &static_cast<const RECT&>(rect), CRect(-10, -20, -5, -15));
    size += SIZE{1, 1};
    size -= SIZE{2, 3};
    EXPECT_EQ(size, CSize(9, 18));
    size.SetSize(7, 8);
    EXPECT_EQ(size, CSize(7, 8));
    EXPECT_NE(size, CSize(7, 9));
    EXPECT_EQ(size, (SIZE{7, 8}));
}

TEST(Size, SumsWrapAround)
{
    EXPECT_EQ(CSize(kMax, kMin) + SIZE({1, -1}), CSize(kMin, kMax));
    EXPECT_EQ(-CSize(kMin, 0), CSize(kMin, 0));
}

TEST(Point, IsMadeFromItsParts)
{
    static_assert(sizeof(CPoint) == sizeof(POINT));
    EXPECT_EQ(CPoint(), CPoint(0, 0));
    EXPECT_EQ(CPoint(POINT{1, 2}), CPoint(1, 2));
    EXPECT_EQ(CPoint(SIZE{3, 4}), CPoint(3, 4));
    EXPECT_EQ(CPoint(static_cast<DWORD>(0x0007FFFF)), CPoint(-1, 7));
}

TEST(Point, MovesAndMeasures)
{
    CPoint point(10, 20);
    point.Offset(1, 2);
    point.Offset(POINT{1, 2});
    point.Offset(SIZE{-2, -4});
    EXPECT_EQ(point, CPoint(10, 20));
    EXPECT_EQ(point + SIZE({1, 2}), CPoint(11, 22));
    EXPECT_EQ(point - SIZE({1, 2}), CPoint(9, 18));
    EXPECT_EQ(point + POINT({1, 2}), CPoint(11, 22));
    EXPECT_EQ(point - POINT({1, 2}), CSize(9, 18));
    EXPECT_EQ(-point, CPoint(-10, -20));
    point += SIZE{1, 1};
    point -= SIZE{2, 2};
    point += POINT{5, 5};
    point -= POINT{1, 1};
    EXPECT_EQ(point, CPoint(13, 23));
    const RECT rect = {1, 2, 3, 4};
    EXPECT_EQ(point + &rect, CRect(14, 25, 16, 27));
    EXPECT_EQ(point - &rect, CRect(-12, -21, -10, -19));
    point.SetPoint(1, 2);
    EXPECT_EQ(point, (POINT{1, 2}));
    EXPECT_NE(point, (POINT{1, 3}));
}

TEST(Rect, IsMadeFromItsParts)
{
    static_assert(sizeof(CRect) == sizeof(RECT));
    const RECT rect = {1, 2, 3, 4};
    EXPECT_EQ(CRect(), CRect(0, 0, 0, 0));
    EXPECT_EQ(CRect(rect), CRect(1, 2, 3, 4));
    EXPECT_EQ(CRect(&rect), CRect(1, 2, 3, 4));
    EXPECT_EQ(CRect(POINT{1, 2}, SIZE{10, 20}), CRect(1, 2, 11, 22));
    EXPECT_EQ(CRect(POINT{1, 2}, POINT{10, 20}), CRect(1, 2, 10, 20));
    EXPECT_TRUE(CRect(rect) == rect);
    EXPECT_TRUE(rect == CRect(rect));
    EXPECT_FALSE(CRect(rect) != rect);
}

TEST(Rect, TellsItsMeasures)
{
    const CRect rect(10, 20, 110, 70);
    EXPECT_EQ(rect.Width(), 100);
    EXPECT_EQ(rect.Height(), 50);
    EXPECT_EQ(rect.Size(), CSize(100, 50));
    EXPECT_EQ(rect.TopLeft(), CPoint(10, 20));
    EXPECT_EQ(rect.BottomRight(), CPoint(110, 70));
    EXPECT_EQ(rect.CenterPoint(), CPoint(60, 45));
    EXPECT_EQ(CRect(kMax - 1, 0, kMax, 3).CenterPoint(), CPoint(kMax - 1, 1));
    EXPECT_EQ(CRect(5, 5, 0, 0).Width(), -5);
}

TEST(Rect, CornersCanBeChanged)
{
    CRect rect(1, 2, 3, 4);
    rect.TopLeft() = CPoint(-1, -2);
    rect.BottomRight().x = 30;
    EXPECT_EQ(rect, CRect(-1, -2, 30, 4));
}

TEST(Rect, KnowsWhenItIsEmptyOrNull)
{
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_TRUE(CRect().IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 5, 9).IsRectNull());
    EXPECT_TRUE(CRect(9, 9, 1, 1).IsRectEmpty());
    EXPECT_FALSE(CRect(0, 0, 1, 1).IsRectEmpty());
    CRect rect(1, 2, 3, 4);
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
}

TEST(Rect, RightAndBottomLieOutside)
{
    const CRect rect(0, 0, 10, 10);
    EXPECT_TRUE(rect.PtInRect(CPoint(0, 0)));
    EXPECT_TRUE(rect.PtInRect(CPoint(9, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(10, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(9, 10)));
    EXPECT_FALSE(rect.PtInRect(CPoint(-1, 0)));
    EXPECT_FALSE(CRect(10, 10, 0, 0).PtInRect(CPoint(5, 5)));
}

TEST(Rect, GrowsAndShrinks)
{
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_EQ(rect, CRect(9, 8, 21, 22));
    rect.DeflateRect(1, 2);
    rect.InflateRect(SIZE{3, 4});
    rect.DeflateRect(SIZE{3, 4});
    EXPECT_EQ(rect, CRect(10, 10, 20, 20));
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(9, 8, 23, 24));
    rect.DeflateRect(1, 2, 3, 4);
    const RECT sides = {1, 2, 3, 4};
    rect.InflateRect(&sides);
    EXPECT_EQ(rect, CRect(9, 8, 23, 24));
    rect.DeflateRect(&sides);
    EXPECT_EQ(rect, CRect(10, 10, 20, 20));
    rect.InflateRect(-10, 0);
    EXPECT_EQ(rect, CRect(20, 10, 10, 20));
}

TEST(Rect, Moves)
{
    CRect rect(1, 2, 11, 22);
    rect.OffsetRect(1, 1);
    rect.OffsetRect(POINT{1, 1});
    rect.OffsetRect(SIZE{1, 1});
    EXPECT_EQ(rect, CRect(4, 5, 14, 25));
    rect.MoveToX(0);
    rect.MoveToY(0);
    EXPECT_EQ(rect, CRect(0, 0, 10, 20));
    rect.MoveToXY(5, 6);
    EXPECT_EQ(rect, CRect(5, 6, 15, 26));
    rect.MoveToXY(POINT{-5, -6});
    EXPECT_EQ(rect, CRect(-5, -6, 5, 14));
}

TEST(Rect, IsSetAndCopied)
{
    CRect rect;
    rect.SetRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    rect.SetRect(POINT{5, 6}, POINT{7, 8});
    EXPECT_EQ(rect, CRect(5, 6, 7, 8));
    const RECT other = {9, 8, 7, 6};
    rect.CopyRect(&other);
    EXPECT_TRUE(rect.EqualRect(&other));
    rect = CRect(0, 0, 1, 1);
    EXPECT_FALSE(rect.EqualRect(&other));
}

TEST(Rect, Normalizes)
{
    CRect rect(10, 20, 5, 15);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(5, 15, 10, 20));
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(5, 15, 10, 20));
    rect.SwapLeftRight();
    EXPECT_EQ(rect, CRect(10, 15, 5, 20));
    CRect::SwapLeftRight(&rect);
    EXPECT_EQ(rect, CRect(5, 15, 10, 20));
}

TEST(Rect, Intersects)
{
    const CRect first(0, 0, 10, 10);
    CRect rect;
    EXPECT_TRUE(rect.IntersectRect(first, CRect(5, 6, 20, 20)));
    EXPECT_EQ(rect, CRect(5, 6, 10, 10));
    EXPECT_FALSE(rect.IntersectRect(first, CRect(10, 0, 20, 10)));
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_FALSE(rect.IntersectRect(first, CRect(5, 5, 5, 9)));
    EXPECT_EQ(first & CRect(5, 5, 20, 20), CRect(5, 5, 10, 10));
    rect = first;
    rect &= CRect(2, 2, 3, 3);
    EXPECT_EQ(rect, CRect(2, 2, 3, 3));
}

TEST(Rect, UnitesButIgnoresEmptyOnes)
{
    const CRect first(0, 0, 10, 10);
    CRect rect;
    EXPECT_TRUE(rect.UnionRect(first, CRect(20, 5, 30, 15)));
    EXPECT_EQ(rect, CRect(0, 0, 30, 15));
    EXPECT_TRUE(rect.UnionRect(first, CRect(50, 50, 50, 90)));
    EXPECT_EQ(rect, first);
    EXPECT_TRUE(rect.UnionRect(CRect(), first));
    EXPECT_EQ(rect, first);
    EXPECT_FALSE(rect.UnionRect(CRect(), CRect(5, 5, 5, 5)));
    EXPECT_TRUE(rect.IsRectNull());
    EXPECT_EQ(first | CRect(-5, -5, 0, 0), CRect(-5, -5, 10, 10));
    rect = first;
    rect |= CRect(0, 0, 11, 1);
    EXPECT_EQ(rect, CRect(0, 0, 11, 10));
}

TEST(Rect, SubtractsWhereARectangleRemains)
{
    const CRect whole(0, 0, 10, 10);
    CRect rect;
    EXPECT_TRUE(rect.SubtractRect(whole, CRect(-1, -1, 4, 11)));
    EXPECT_EQ(rect, CRect(4, 0, 10, 10));
    EXPECT_TRUE(rect.SubtractRect(whole, CRect(6, 0, 20, 10)));
    EXPECT_EQ(rect, CRect(0, 0, 6, 10));
    EXPECT_TRUE(rect.SubtractRect(whole, CRect(0, -5, 10, 3)));
    EXPECT_EQ(rect, CRect(0, 3, 10, 10));
    EXPECT_TRUE(rect.SubtractRect(whole, CRect(0, 8, 10, 20)));
    EXPECT_EQ(rect, CRect(0, 0, 10, 8));
    EXPECT_TRUE(rect.SubtractRect(whole, CRect(2, 2, 4, 4)));
    EXPECT_EQ(rect, whole);
    EXPECT_TRUE(rect.SubtractRect(whole, CRect(3, 0, 6, 10)));
    EXPECT_EQ(rect, whole);
    EXPECT_TRUE(rect.SubtractRect(whole, CRect(50, 50, 60, 60)));
    EXPECT_EQ(rect, whole);
    EXPECT_FALSE(rect.SubtractRect(whole, CRect(-1, -1, 11, 11)));
    EXPECT_TRUE(rect.IsRectEmpty());
    EXPECT_FALSE(rect.SubtractRect(CRect(), whole));
    EXPECT_TRUE(rect.IsRectNull());
}

TEST(Rect, OperatorsMoveByPointsAndSizesAndGrowByRectangles)
{
    const CRect rect(10, 10, 20, 20);
    const RECT sides = {1, 2, 3, 4};
    EXPECT_EQ(rect + POINT({1, 2}), CRect(11, 12, 21, 22));
    EXPECT_EQ(rect - POINT({1, 2}), CRect(9, 8, 19, 18));
    EXPECT_EQ(rect + SIZE({1, 2}), CRect(11, 12, 21, 22));
    EXPECT_EQ(rect - SIZE({1, 2}), CRect(9, 8, 19, 18));
    EXPECT_EQ(rect + &sides, CRect(9, 8, 23, 24));
    EXPECT_EQ(rect - &sides, CRect(11, 12, 17, 16));
    CRect moved = rect;
    moved += POINT{1, 1};
    moved -= SIZE{2, 2};
    moved += SIZE{3, 3};
    moved -= POINT{4, 4};
    EXPECT_EQ(moved, CRect(8, 8, 18, 18));
    moved += &sides;
    moved -= &sides;
    EXPECT_EQ(moved, CRect(8, 8, 18, 18));
}

TEST(Rect, MultipliesAndDividesInWideNumbers)
{
    EXPECT_EQ(CRect(1, 2, 3, -5).MulDiv(3, 2), CRect(2, 3, 5, -8));
    EXPECT_EQ(CRect(kMax, kMin, 0, 1).MulDiv(1000, 1000), CRect(kMax, kMin, 0, 1));
    EXPECT_EQ(CRect(kMax, 1, 1, 1).MulDiv(2, 1), CRect(-1, 2, 2, 2));
    EXPECT_EQ(CRect(1, 2, 3, 4).MulDiv(5, 0), CRect(-1, -1, -1, -1));
    EXPECT_EQ(CRect(7, 7, 7, 7).MulDiv(1, -2), CRect(-4, -4, -4, -4));
}

TEST(Rect, PassesAsAPointerToTheSystemsRecord)
{
    CRect rect(1, 2, 3, 4);
    RECT* pointer = rect;
    pointer->left = 9;
    EXPECT_EQ(rect.left, 9);
    const CRect& view = rect;
    const RECT* readOnly = view;
    EXPECT_EQ(readOnly->left, 9);
}
