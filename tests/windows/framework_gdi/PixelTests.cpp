#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <array>

using namespace vorn::test;

namespace
{
/// A source of two rows: "RG" and "B#".
class Source : public Canvas
{
public:
    Source() : Canvas(2, 2)
    {
        dc.SetPixel(0, 0, kRed);
        dc.SetPixel(1, 0, kGreen);
        dc.SetPixel(0, 1, kBlue);
        dc.SetPixel(1, 1, kBlack);
    }
};
} // namespace

TEST(Pixels, AreSetAndRead)
{
    Canvas canvas(3, 1);
    EXPECT_EQ(kRed, canvas.dc.SetPixel(0, 0, kRed));
    EXPECT_EQ(kBlue, canvas.dc.SetPixel(CPoint(1, 0), kBlue));
    EXPECT_TRUE(canvas.dc.SetPixelV(CPoint(2, 0), kGreen));
    EXPECT_EQ("RBG\n", canvas.Picture());
    EXPECT_EQ(kBlue, canvas.dc.GetPixel(CPoint(1, 0)));
    EXPECT_EQ(CLR_INVALID, canvas.dc.GetPixel(9, 9));
    EXPECT_EQ(kRed, canvas.dc.GetNearestColor(kRed));
}

TEST(Pixels, BlocksAreCopied)
{
    Source source;
    Canvas canvas(4, 2);
    EXPECT_TRUE(canvas.dc.BitBlt(1, 0, 2, 2, &source.dc, 0, 0, SRCCOPY));
    EXPECT_EQ(".RG.\n.B#.\n", canvas.Picture());
    EXPECT_TRUE(canvas.dc.BitBlt(0, 0, 4, 2, nullptr, 0, 0, BLACKNESS)) << "no source needed";
    EXPECT_EQ("####\n####\n", canvas.Picture());
}

TEST(Pixels, BlocksAreStretched)
{
    Source source;
    Canvas canvas(4, 4);
    canvas.dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_TRUE(canvas.dc.StretchBlt(0, 0, 4, 4, &source.dc, 0, 0, 2, 2, SRCCOPY));
    EXPECT_EQ("RRGG\nRRGG\nBB##\nBB##\n", canvas.Picture());
}

TEST(Pixels, PatternsFillWithTheBrush)
{
    Canvas canvas(3, 1);
    CBrush red(kRed);
    CBrush* former = canvas.dc.SelectObject(&red);
    EXPECT_TRUE(canvas.dc.PatBlt(1, 0, 1, 1, PATCOPY));
    canvas.dc.SelectObject(former);
    EXPECT_EQ(".R.\n", canvas.Picture());
}

TEST(Pixels, MasksChooseBetweenTwoOperations)
{
    Source source;
    CBitmap mask;
    const std::array<WORD, 2> rows{0x0080, 0x0080}; // the left column is set
    ASSERT_TRUE(mask.CreateBitmap(2, 2, 1, 1, rows.data()));
    Canvas canvas(2, 2);
    EXPECT_TRUE(canvas.dc.MaskBlt(0, 0, 2, 2, &source.dc, 0, 0, mask, 0, 0, MAKEROP4(SRCCOPY, 0x00AA0029)));
    EXPECT_EQ("R.\nB.\n", canvas.Picture());
}

TEST(Pixels, ParallelogramsTakeThreeCorners)
{
    Source source;
    CBitmap none;
    Canvas canvas(4, 4);
    std::array<POINT, 3> corners{{{0, 0}, {4, 0}, {0, 4}}};
    canvas.dc.SetStretchBltMode(COLORONCOLOR);
    EXPECT_TRUE(canvas.dc.PlgBlt(corners.data(), &source.dc, 0, 0, 2, 2, none, 0, 0));
    EXPECT_EQ(kRed, canvas.At(0, 0));
    EXPECT_EQ(kBlack, canvas.At(3, 3));
}

TEST(Pixels, OneColourCanBeTransparent)
{
    Source source;
    Canvas canvas(2, 2);
    EXPECT_TRUE(canvas.dc.TransparentBlt(0, 0, 2, 2, &source.dc, 0, 0, 2, 2, kGreen));
    EXPECT_EQ("R.\nB#\n", canvas.Picture());
}

TEST(Pixels, BlendWithAConstantAlpha)
{
    Canvas source(1, 1);
    source.dc.SetPixel(0, 0, kBlack);
    Canvas canvas(1, 1);
    const BLENDFUNCTION half{AC_SRC_OVER, 0, 128, 0};
    EXPECT_TRUE(canvas.dc.AlphaBlend(0, 0, 1, 1, &source.dc, 0, 0, 1, 1, half));
    // White of 255 shows through by 127 parts of 255.
    EXPECT_NEAR(127, GetRValue(canvas.At(0, 0)), 1);
}

TEST(Pixels, FloodsUpToABoundary)
{
    Canvas canvas(5, 3);
    CPen red(PS_SOLID, 1, kRed);
    CPen* formerPen = canvas.dc.SelectObject(&red);
    canvas.dc.SelectStockObject(NULL_BRUSH);
    canvas.dc.Rectangle(0, 0, 5, 3);
    CBrush blue(kBlue);
    CBrush* former = canvas.dc.SelectObject(&blue);
    EXPECT_TRUE(canvas.dc.FloodFill(2, 1, kRed));
    EXPECT_EQ("RRRRR\nRBBBR\nRRRRR\n", canvas.Picture());
    EXPECT_TRUE(canvas.dc.ExtFloodFill(0, 0, kRed, FLOODFILLSURFACE));
    EXPECT_EQ(15, canvas.Count(kBlue));
    canvas.dc.SelectObject(former);
    canvas.dc.SelectObject(formerPen);
}

TEST(Pixels, GradientsRunFromOneVertexToTheOther)
{
    Canvas canvas(16, 1);
    std::array<TRIVERTEX, 2> vertices{{{0, 0, 0, 0, 0, 0}, {16, 1, 0xFF00, 0xFF00, 0xFF00, 0}}};
    GRADIENT_RECT mesh{0, 1};
    EXPECT_TRUE(canvas.dc.GradientFill(vertices.data(), 2, &mesh, 1, GRADIENT_FILL_RECT_H));
    EXPECT_LT(GetRValue(canvas.At(0, 0)), 20);
    EXPECT_GT(GetRValue(canvas.At(15, 0)), 220);
    EXPECT_LT(GetRValue(canvas.At(4, 0)), GetRValue(canvas.At(12, 0)));
}

TEST(Pixels, ScrollInsideTheContext)
{
    Canvas canvas(4, 1);
    canvas.dc.SetPixel(0, 0, kRed);
    CRect update;
    EXPECT_TRUE(canvas.dc.ScrollDC(2, 0, CRect(0, 0, 4, 1), nullptr, nullptr, &update));
    EXPECT_EQ(kRed, canvas.At(2, 0));
    EXPECT_EQ(0, update.left);
}
