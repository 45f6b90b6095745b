#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

using namespace vorn::test;

namespace
{
/// A canvas with a pen of one pixel selected.
class Drawing : public testing::Test
{
protected:
    Drawing()
    {
        m_former = canvas.dc.SelectObject(&red);
        canvas.dc.SelectStockObject(NULL_BRUSH);
    }
    ~Drawing() override
    {
        canvas.dc.SelectObject(m_former);
    }

    CPen red{PS_SOLID, 1, kRed};
    Canvas canvas{7, 5};
    CPen* m_former;
};
} // namespace

TEST_F(Drawing, LinesLeaveTheirLastPixelOut)
{
    EXPECT_EQ(CPoint(0, 0), canvas.dc.MoveTo(1, 1));
    EXPECT_EQ(CPoint(1, 1), canvas.dc.MoveTo(CPoint(2, 1)));
    EXPECT_TRUE(canvas.dc.LineTo(5, 1));
    EXPECT_TRUE(canvas.dc.LineTo(CPoint(5, 4)));
    EXPECT_EQ(CPoint(5, 4), canvas.dc.GetCurrentPosition());
    EXPECT_EQ(".......\n..RRRR.\n.....R.\n.....R.\n.......\n", canvas.Picture());
}

TEST_F(Drawing, PolylinesConnectTheirPoints)
{
    const std::array<POINT, 3> points{{{1, 1}, {4, 1}, {4, 3}}};
    EXPECT_TRUE(canvas.dc.Polyline(points.data(), 3));
    EXPECT_EQ(".......\n.RRRR..\n....R..\n.......\n.......\n", canvas.Picture());
    EXPECT_EQ(CPoint(0, 0), canvas.dc.GetCurrentPosition()) << "the position stays";
}

TEST_F(Drawing, PolylineToMovesThePosition)
{
    const std::array<POINT, 2> points{{{3, 0}, {3, 2}}};
    EXPECT_TRUE(canvas.dc.PolylineTo(points.data(), 2));
    EXPECT_EQ(CPoint(3, 2), canvas.dc.GetCurrentPosition());
    EXPECT_EQ("RRRR...\n...R...\n.......\n.......\n.......\n", canvas.Picture());
    EXPECT_FALSE(canvas.dc.PolylineTo(points.data(), -1));
}

TEST_F(Drawing, PolyPolylineDrawsSeveral)
{
    const std::array<POINT, 4> points{{{0, 0}, {2, 0}, {0, 2}, {2, 2}}};
    const std::array<DWORD, 2> counts{2, 2};
    EXPECT_TRUE(canvas.dc.PolyPolyline(points.data(), counts.data(), 2));
    EXPECT_EQ("RR.....\n.......\nRR.....\n.......\n.......\n", canvas.Picture());
    EXPECT_FALSE(canvas.dc.PolyPolyline(points.data(), counts.data(), -1));
}

TEST_F(Drawing, StraightBeziersAreLines)
{
    const std::array<POINT, 4> points{{{0, 2}, {2, 2}, {4, 2}, {6, 2}}};
    EXPECT_TRUE(canvas.dc.PolyBezier(points.data(), 4));
    EXPECT_EQ(".......\n.......\nRRRRRR.\n.......\n.......\n", canvas.Picture());
    EXPECT_FALSE(canvas.dc.PolyBezier(points.data(), -4));
}

TEST_F(Drawing, PolyBezierToStartsAtThePosition)
{
    canvas.dc.MoveTo(0, 4);
    const std::array<POINT, 3> points{{{2, 4}, {4, 4}, {6, 4}}};
    EXPECT_TRUE(canvas.dc.PolyBezierTo(points.data(), 3));
    EXPECT_EQ(CPoint(6, 4), canvas.dc.GetCurrentPosition());
    EXPECT_EQ(".......\n.......\n.......\n.......\nRRRRRR.\n", canvas.Picture());
}

TEST_F(Drawing, PolyDrawMixesMovesAndLines)
{
    const std::array<POINT, 4> points{{{0, 0}, {2, 0}, {4, 0}, {4, 3}}};
    const std::array<BYTE, 4> types{PT_MOVETO, PT_LINETO, PT_MOVETO, PT_LINETO};
    EXPECT_TRUE(canvas.dc.PolyDraw(points.data(), types.data(), 4));
    EXPECT_EQ("RR..R..\n....R..\n....R..\n.......\n.......\n", canvas.Picture());
}

TEST_F(Drawing, RectanglesAreOutlinedAndFilled)
{
    CBrush blue(kBlue);
    CBrush* former = canvas.dc.SelectObject(&blue);
    EXPECT_TRUE(canvas.dc.Rectangle(1, 0, 6, 4));
    canvas.dc.SelectObject(former);
    EXPECT_EQ(".RRRRR.\n.RBBBR.\n.RBBBR.\n.RRRRR.\n.......\n", canvas.Picture());
    EXPECT_TRUE(canvas.dc.Rectangle(CRect(0, 4, 7, 5)));
}

TEST_F(Drawing, PolygonsCloseThemselves)
{
    const std::array<POINT, 4> points{{{1, 0}, {5, 0}, {5, 4}, {1, 4}}};
    EXPECT_TRUE(canvas.dc.Polygon(points.data(), 4));
    EXPECT_EQ(".RRRRR.\n.R...R.\n.R...R.\n.R...R.\n.RRRRR.\n", canvas.Picture());
    const std::array<int, 1> counts{4};
    EXPECT_TRUE(canvas.dc.PolyPolygon(points.data(), counts.data(), 1));
}

TEST(Curves, StayInTheirRectangleAndAreSymmetric)
{
    Canvas canvas(21, 21);
    canvas.dc.SelectStockObject(NULL_BRUSH);
    EXPECT_TRUE(canvas.dc.Ellipse(CRect(0, 0, 21, 21)));
    EXPECT_EQ(kBlack, canvas.At(10, 0));
    EXPECT_EQ(kBlack, canvas.At(0, 10));
    EXPECT_EQ(kBlack, canvas.At(20, 10));
    EXPECT_EQ(kBlack, canvas.At(10, 20));
    EXPECT_EQ(kWhite, canvas.At(10, 10));
    EXPECT_EQ(kWhite, canvas.At(0, 0));
}

TEST(Curves, ArcsRunCounterclockwiseUnlessToldOtherwise)
{
    Canvas upper(21, 21);
    EXPECT_TRUE(upper.dc.Arc(CRect(0, 0, 21, 21), CPoint(20, 10), CPoint(0, 10)));
    EXPECT_EQ(kBlack, upper.At(10, 0));
    EXPECT_EQ(kWhite, upper.At(10, 20));
    Canvas lower(21, 21);
    lower.dc.SetArcDirection(AD_CLOCKWISE);
    EXPECT_TRUE(lower.dc.Arc(0, 0, 21, 21, 20, 10, 0, 10));
    EXPECT_EQ(kWhite, lower.At(10, 0));
    EXPECT_EQ(kBlack, lower.At(10, 20));
}

TEST(Curves, ArcToDrawsFromThePositionAndMovesIt)
{
    Canvas canvas(21, 21);
    canvas.dc.MoveTo(20, 20);
    EXPECT_TRUE(canvas.dc.ArcTo(CRect(0, 0, 21, 21), CPoint(20, 10), CPoint(0, 10)));
    EXPECT_EQ(kBlack, canvas.At(20, 15)) << "the line to the start of the arc";
    EXPECT_EQ(0, canvas.dc.GetCurrentPosition().x);
}

TEST(Curves, AngleArcTurnsByDegrees)
{
    Canvas canvas(21, 21);
    canvas.dc.MoveTo(20, 10);
    EXPECT_TRUE(canvas.dc.AngleArc(10, 10, 10, 0.0F, 90.0F));
    const CPoint end = canvas.dc.GetCurrentPosition();
    EXPECT_NEAR(10, end.x, 1);
    EXPECT_NEAR(0, end.y, 1);
    EXPECT_FALSE(canvas.dc.AngleArc(10, 10, -1, 0.0F, 90.0F));
}

TEST(Curves, ChordsAndPiesAreFilled)
{
    CBrush blue(kBlue);
    Canvas chord(21, 21);
    chord.dc.SelectObject(&blue);
    EXPECT_TRUE(chord.dc.Chord(CRect(0, 0, 21, 21), CPoint(20, 10), CPoint(0, 10)));
    EXPECT_EQ(kBlue, chord.At(10, 5));
    EXPECT_EQ(kWhite, chord.At(10, 15));
    chord.dc.SelectStockObject(WHITE_BRUSH);
    Canvas pie(21, 21);
    pie.dc.SelectObject(&blue);
    EXPECT_TRUE(pie.dc.Pie(CRect(0, 0, 21, 21), CPoint(20, 10), CPoint(10, 0)));
    EXPECT_EQ(kBlue, pie.At(14, 6));
    EXPECT_EQ(kWhite, pie.At(6, 6));
    pie.dc.SelectStockObject(WHITE_BRUSH);
}

TEST(Curves, RoundRectanglesLeaveTheirCornersOut)
{
    Canvas canvas(21, 21);
    EXPECT_TRUE(canvas.dc.RoundRect(CRect(0, 0, 21, 21), CPoint(10, 10)));
    EXPECT_EQ(kWhite, canvas.At(0, 0));
    EXPECT_EQ(kBlack, canvas.At(10, 0));
}

TEST(Rectangles, FillFrameAndInvert)
{
    Canvas canvas(5, 3);
    CBrush red(kRed);
    CBrush blue(kBlue);
    canvas.dc.FillRect(CRect(0, 0, 5, 3), &red);
    canvas.dc.FrameRect(CRect(0, 0, 5, 3), &blue);
    EXPECT_EQ("BBBBB\nBRRRB\nBBBBB\n", canvas.Picture());
    canvas.dc.InvertRect(CRect(1, 1, 2, 2));
    EXPECT_EQ(RGB(0, 255, 255), canvas.At(1, 1));
}

TEST(Rectangles, SolidFillKeepsTheBackgroundColour)
{
    Canvas canvas(4, 2);
    canvas.dc.SetBkColor(kGreen);
    canvas.dc.FillSolidRect(CRect(0, 0, 2, 2), kRed);
    canvas.dc.FillSolidRect(2, 0, 2, 1, kBlue);
    EXPECT_EQ("RRBB\nRR..\n", canvas.Picture());
    EXPECT_EQ(kGreen, canvas.dc.GetBkColor());
}

TEST(Rectangles, Draw3dRectHasTwoColours)
{
    Canvas canvas(4, 3);
    canvas.dc.Draw3dRect(CRect(0, 0, 4, 3), kRed, kBlue);
    EXPECT_EQ("RRRB\nR..B\nBBBB\n", canvas.Picture());
    Canvas none(2, 1);
    none.dc.Draw3dRect(0, 0, 0, 1, kRed, kBlue);
    none.dc.Draw3dRect(0, 0, 1, -1, kRed, kBlue);
    EXPECT_EQ("..\n", none.Picture());
    Canvas dot(2, 1);
    dot.dc.Draw3dRect(0, 0, 1, 1, kRed, kBlue);
    EXPECT_EQ("B.\n", dot.Picture());
}

TEST(Rectangles, EdgesShrinkTheRectangleWhenAsked)
{
    Canvas canvas(10, 10);
    CRect rect(0, 0, 10, 10);
    EXPECT_TRUE(canvas.dc.DrawEdge(&rect, EDGE_SUNKEN, BF_RECT | BF_ADJUST));
    EXPECT_EQ(CRect(2, 2, 8, 8), rect);
    EXPECT_EQ(::GetSysColor(COLOR_BTNSHADOW), canvas.At(0, 0));
}

TEST(Rectangles, FrameControlsAreDrawn)
{
    Canvas canvas(13, 13);
    CRect rect(0, 0, 13, 13);
    EXPECT_TRUE(canvas.dc.DrawFrameControl(&rect, DFC_BUTTON, DFCS_BUTTONCHECK | DFCS_CHECKED));
    EXPECT_LT(canvas.Count(kWhite), 13 * 13);
}

TEST(Rectangles, FocusRectDrawnTwiceIsGone)
{
    Canvas canvas(8, 8);
    canvas.dc.DrawFocusRect(CRect(1, 1, 7, 7));
    EXPECT_LT(canvas.Count(kWhite), 64);
    canvas.dc.DrawFocusRect(CRect(1, 1, 7, 7));
    EXPECT_EQ(64, canvas.Count(kWhite));
}

TEST(Rectangles, DragFrameMovesAndGoesAway)
{
    Canvas canvas(12, 12);
    const CSize one(1, 1);
    const CRect first(0, 0, 6, 6);
    const CRect second(3, 3, 10, 10);
    canvas.dc.DrawDragRect(first, one, nullptr, one);
    // Every second pixel of a frame of 20.
    EXPECT_EQ(144 - 10, canvas.Count(kWhite));
    canvas.dc.DrawDragRect(second, one, first, one);
    EXPECT_EQ(144 - 12, canvas.Count(kWhite));
    EXPECT_EQ(kWhite, canvas.At(0, 0));
    EXPECT_EQ(kWhite, canvas.At(1, 0));
    canvas.dc.DrawDragRect(CRect(0, 0, 0, 0), one, second, one);
    EXPECT_EQ(144, canvas.Count(kWhite));
}

TEST(Rectangles, DragFrameTakesTheCallersBrushes)
{
    Canvas canvas(5, 5);
    CBrush black(kBlack);
    CBrush white(kWhite);
    canvas.dc.DrawDragRect(CRect(0, 0, 3, 3), CSize(1, 1), nullptr, CSize(1, 1), &white);
    EXPECT_EQ("###..\n#.#..\n###..\n.....\n.....\n", canvas.Picture());
    canvas.dc.DrawDragRect(CRect(0, 0, 3, 3), CSize(1, 1), CRect(1, 1, 4, 4), CSize(1, 1), &white, &black);
    EXPECT_EQ(25, canvas.Count(kWhite)) << "black inverts nothing";
}

TEST(Rectangles, HalftoneBrushIsSharedAndOfEverySecondPixel)
{
    CBrush* brush = CDC::GetHalftoneBrush();
    ASSERT_NE(nullptr, brush);
    EXPECT_EQ(brush, CDC::GetHalftoneBrush());
    Canvas canvas(8, 8);
    canvas.dc.SetTextColor(kBlack);
    canvas.dc.SetBkColor(kWhite);
    canvas.dc.FillRect(CRect(0, 0, 8, 8), brush);
    EXPECT_EQ(32, canvas.Count(kBlack));
    EXPECT_NE(canvas.At(0, 0), canvas.At(1, 0));
    EXPECT_NE(canvas.At(0, 0), canvas.At(0, 1));
}

TEST(Rectangles, IconsAreDrawn)
{
    Canvas canvas(32, 32);
    HICON icon = ::LoadIcon(nullptr, IDI_APPLICATION);
    EXPECT_TRUE(canvas.dc.DrawIcon(CPoint(0, 0), icon));
    EXPECT_LT(canvas.Count(kWhite), 32 * 32);
    EXPECT_FALSE(canvas.dc.DrawIcon(0, 0, nullptr));
}

TEST(Rectangles, DrawStateDrawsTextAndPictures)
{
    Canvas text(40, 20);
    EXPECT_TRUE(text.dc.DrawState(CPoint(0, 0), CSize(40, 20), "Text", DSS_NORMAL, TRUE, 0));
    EXPECT_LT(text.Count(kWhite), 800);
    Canvas picture(32, 32);
    EXPECT_TRUE(picture.dc.DrawState(CPoint(0, 0), CSize(32, 32), ::LoadIcon(nullptr, IDI_APPLICATION), DSS_NORMAL,
                                     static_cast<CBrush*>(nullptr)));
    EXPECT_LT(picture.Count(kWhite), 32 * 32);
    CBitmap bitmap;
    bitmap.CreateBitmap(4, 4, 1, 32, nullptr);
    Canvas third(8, 8);
    EXPECT_TRUE(third.dc.DrawState(CPoint(0, 0), CSize(4, 4), &bitmap, DSS_NORMAL));
    EXPECT_EQ(kBlack, third.At(0, 0));
}

TEST(Paths, AreStrokedFilledAndTold)
{
    Canvas canvas(6, 4);
    CBrush blue(kBlue);
    CPen red(PS_SOLID, 1, kRed);
    CBrush* formerBrush = canvas.dc.SelectObject(&blue);
    CPen* formerPen = canvas.dc.SelectObject(&red);
    EXPECT_TRUE(canvas.dc.BeginPath());
    canvas.dc.MoveTo(0, 0);
    canvas.dc.LineTo(5, 0);
    canvas.dc.LineTo(5, 3);
    canvas.dc.LineTo(0, 3);
    EXPECT_TRUE(canvas.dc.CloseFigure());
    EXPECT_TRUE(canvas.dc.EndPath());
    EXPECT_EQ(4, canvas.dc.GetPath(nullptr, nullptr, 0));
    std::array<POINT, 4> points{};
    std::array<BYTE, 4> types{};
    EXPECT_EQ(4, canvas.dc.GetPath(points.data(), types.data(), 4));
    EXPECT_EQ(PT_LINETO | PT_CLOSEFIGURE, types[3]);
    EXPECT_EQ(-1, canvas.dc.GetPath(points.data(), types.data(), 2)) << "too little room";
    EXPECT_TRUE(canvas.dc.StrokeAndFillPath());
    EXPECT_EQ("RRRRRR\nRBBBBR\nRBBBBR\nRRRRRR\n", canvas.Picture());
    EXPECT_EQ(-1, canvas.dc.GetPath(nullptr, nullptr, 0)) << "used up";
    canvas.dc.SelectObject(formerBrush);
    canvas.dc.SelectObject(formerPen);
}

TEST(Paths, FlattenAbandonAndFill)
{
    Canvas canvas(10, 10);
    canvas.dc.BeginPath();
    canvas.dc.Ellipse(0, 0, 10, 10);
    canvas.dc.EndPath();
    EXPECT_TRUE(canvas.dc.FlattenPath());
    std::array<POINT, 100> points{};
    std::array<BYTE, 100> types{};
    const int count = canvas.dc.GetPath(points.data(), types.data(), 100);
    ASSERT_GT(count, 4);
    EXPECT_EQ(types.begin() + count, std::find(types.begin(), types.begin() + count, BYTE{PT_BEZIERTO}));
    EXPECT_TRUE(canvas.dc.AbortPath());
    EXPECT_FALSE(canvas.dc.FillPath());
    EXPECT_FALSE(canvas.dc.StrokePath());
}

TEST(Paths, WidenToTheOutlineOfThePen)
{
    Canvas canvas(10, 10);
    const LOGBRUSH brush{BS_SOLID, kBlack, 0};
    CPen pen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_FLAT | PS_JOIN_MITER, 4, &brush);
    CPen* former = canvas.dc.SelectObject(&pen);
    EXPECT_TRUE(canvas.dc.SetMiterLimit(3.0F));
    EXPECT_EQ(3.0F, canvas.dc.GetMiterLimit());
    canvas.dc.BeginPath();
    canvas.dc.MoveTo(0, 5);
    canvas.dc.LineTo(9, 5);
    canvas.dc.EndPath();
    EXPECT_TRUE(canvas.dc.WidenPath());
    EXPECT_GE(canvas.dc.GetPath(nullptr, nullptr, 0), 4);
    canvas.dc.AbortPath();
    canvas.dc.SelectObject(former);
}
