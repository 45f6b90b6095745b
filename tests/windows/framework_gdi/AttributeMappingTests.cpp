#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <array>

using namespace vorn::test;

TEST(Attributes, SettersGiveBackTheFormerValue)
{
    Canvas canvas(1, 1);
    EXPECT_EQ(kBlack, canvas.dc.SetTextColor(kRed));
    EXPECT_EQ(kRed, canvas.dc.GetTextColor());
    EXPECT_EQ(kWhite, canvas.dc.SetBkColor(kBlue));
    EXPECT_EQ(kBlue, canvas.dc.GetBkColor());
    EXPECT_EQ(OPAQUE, canvas.dc.SetBkMode(TRANSPARENT));
    EXPECT_EQ(TRANSPARENT, canvas.dc.GetBkMode());
    EXPECT_EQ(R2_COPYPEN, canvas.dc.SetROP2(R2_XORPEN));
    EXPECT_EQ(R2_XORPEN, canvas.dc.GetROP2());
    EXPECT_EQ(ALTERNATE, canvas.dc.SetPolyFillMode(WINDING));
    EXPECT_EQ(WINDING, canvas.dc.GetPolyFillMode());
    EXPECT_EQ(BLACKONWHITE, canvas.dc.SetStretchBltMode(COLORONCOLOR));
    EXPECT_EQ(COLORONCOLOR, canvas.dc.GetStretchBltMode());
    EXPECT_EQ(UINT(TA_LEFT), canvas.dc.SetTextAlign(TA_RIGHT));
    EXPECT_EQ(UINT(TA_RIGHT), canvas.dc.GetTextAlign());
    EXPECT_EQ(0, canvas.dc.SetTextCharacterExtra(3));
    EXPECT_EQ(3, canvas.dc.GetTextCharacterExtra());
    EXPECT_EQ(AD_COUNTERCLOCKWISE, canvas.dc.SetArcDirection(AD_CLOCKWISE));
    EXPECT_EQ(AD_CLOCKWISE, canvas.dc.GetArcDirection());
}

TEST(Attributes, StockPenAndBrushTakeTheirColours)
{
    Canvas canvas(3, 3);
    canvas.dc.SelectStockObject(DC_BRUSH);
    canvas.dc.SelectStockObject(DC_PEN);
    EXPECT_EQ(kWhite, canvas.dc.SetDCBrushColor(kRed));
    EXPECT_EQ(kBlack, canvas.dc.SetDCPenColor(kBlue));
    EXPECT_EQ(kRed, canvas.dc.GetDCBrushColor());
    EXPECT_EQ(kBlue, canvas.dc.GetDCPenColor());
    canvas.dc.Rectangle(0, 0, 3, 3);
    EXPECT_EQ("BBB\nBRB\nBBB\n", canvas.Picture());
}

TEST(Attributes, ColourAdjustmentGoesThrough)
{
    Canvas canvas(1, 1);
    COLORADJUSTMENT system{};
    COLORADJUSTMENT adjustment{};
    // Not every system keeps adjustments: the answer is the system's.
    ASSERT_EQ(::GetColorAdjustment(canvas.dc, &system), canvas.dc.GetColorAdjustment(&adjustment));
    EXPECT_EQ(system.caContrast, adjustment.caContrast);
    EXPECT_EQ(::SetColorAdjustment(canvas.dc, &system), canvas.dc.SetColorAdjustment(&adjustment));
}

TEST(Attributes, WorldTransformMovesDrawing)
{
    Canvas canvas(3, 1);
    EXPECT_EQ(GM_COMPATIBLE, canvas.dc.SetGraphicsMode(GM_ADVANCED));
    EXPECT_EQ(GM_ADVANCED, canvas.dc.GetGraphicsMode());
    const XFORM shift{1, 0, 0, 1, 1, 0};
    EXPECT_TRUE(canvas.dc.SetWorldTransform(shift));
    EXPECT_TRUE(canvas.dc.ModifyWorldTransform(shift, MWT_LEFTMULTIPLY));
    XFORM transform{};
    EXPECT_TRUE(canvas.dc.GetWorldTransform(transform));
    EXPECT_EQ(2.0F, transform.eDx);
    canvas.dc.PatBlt(0, 0, 1, 1, BLACKNESS);
    EXPECT_EQ("..#\n", canvas.Picture());
}

TEST(Attributes, LayoutGoesThrough)
{
    Canvas canvas(4, 1);
    EXPECT_EQ(0U, canvas.dc.SetLayout(LAYOUT_RTL));
    EXPECT_EQ(DWORD(LAYOUT_RTL), canvas.dc.GetLayout());
}

TEST(Mapping, OriginsAndExtentsGiveBackTheFormerValue)
{
    Canvas canvas(1, 1);
    EXPECT_EQ(MM_TEXT, canvas.dc.SetMapMode(MM_ANISOTROPIC));
    EXPECT_EQ(MM_ANISOTROPIC, canvas.dc.GetMapMode());
    EXPECT_EQ(CPoint(0, 0), canvas.dc.SetViewportOrg(3, 4));
    EXPECT_EQ(CPoint(3, 4), canvas.dc.OffsetViewportOrg(1, 1));
    EXPECT_EQ(CPoint(4, 5), canvas.dc.GetViewportOrg());
    EXPECT_EQ(CPoint(4, 5), canvas.dc.SetViewportOrg(CPoint(0, 0)));
    EXPECT_EQ(CPoint(0, 0), canvas.dc.SetWindowOrg(7, 8));
    EXPECT_EQ(CPoint(7, 8), canvas.dc.OffsetWindowOrg(1, 1));
    EXPECT_EQ(CPoint(8, 9), canvas.dc.GetWindowOrg());
    EXPECT_EQ(CPoint(8, 9), canvas.dc.SetWindowOrg(CPoint(0, 0)));
    EXPECT_EQ(CSize(1, 1), canvas.dc.SetWindowExt(100, 50));
    EXPECT_EQ(CSize(100, 50), canvas.dc.GetWindowExt());
    EXPECT_EQ(CSize(1, 1), canvas.dc.SetViewportExt(10, 10));
    EXPECT_EQ(CSize(10, 10), canvas.dc.ScaleViewportExt(2, 1, 3, 1));
    EXPECT_EQ(CSize(20, 30), canvas.dc.GetViewportExt());
    EXPECT_EQ(CSize(100, 50), canvas.dc.ScaleWindowExt(1, 2, 1, 5));
    EXPECT_EQ(CSize(50, 10), canvas.dc.SetWindowExt(CSize(1, 1)));
    EXPECT_EQ(CSize(20, 30), canvas.dc.SetViewportExt(CSize(1, 1)));
}

TEST(Mapping, ConvertsPointsAndRectangles)
{
    Canvas canvas(1, 1);
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SetWindowExt(1, -1);
    canvas.dc.SetViewportExt(2, 4);
    canvas.dc.SetViewportOrg(10, 100);
    std::array<POINT, 2> points{{{3, 5}, {0, 0}}};
    canvas.dc.LPtoDP(points.data(), 2);
    EXPECT_EQ(CPoint(16, 80), CPoint(points[0]));
    EXPECT_EQ(CPoint(10, 100), CPoint(points[1]));
    canvas.dc.DPtoLP(points.data(), 2);
    EXPECT_EQ(CPoint(3, 5), CPoint(points[0]));
    CRect rect(0, 0, 2, 2);
    canvas.dc.LPtoDP(&rect);
    EXPECT_EQ(CRect(10, 100, 14, 92), rect);
    canvas.dc.DPtoLP(&rect);
    EXPECT_EQ(CRect(0, 0, 2, 2), rect);
}

TEST(Mapping, ConvertsSizesWithoutDirection)
{
    Canvas canvas(1, 1);
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SetWindowExt(1, -2);
    canvas.dc.SetViewportExt(3, 4);
    canvas.dc.SetViewportOrg(10, 100);
    CSize size(5, 6);
    canvas.dc.LPtoDP(&size);
    EXPECT_EQ(CSize(15, 12), size);
    canvas.dc.DPtoLP(&size);
    EXPECT_EQ(CSize(5, 6), size);
}

TEST(Mapping, HimetricSizesFollowTheLogicalInchInPixels)
{
    Canvas canvas(1, 1);
    const CSize inch(canvas.dc.GetDeviceCaps(LOGPIXELSX), canvas.dc.GetDeviceCaps(LOGPIXELSY));
    CSize size = inch;
    canvas.dc.DPtoHIMETRIC(&size);
    EXPECT_EQ(CSize(2540, 2540), size);
    canvas.dc.HIMETRICtoDP(&size);
    EXPECT_EQ(inch, size);
    canvas.dc.LPtoHIMETRIC(&size);
    EXPECT_EQ(CSize(2540, 2540), size);
}

TEST(Mapping, HimetricSizesGoThroughTheMapping)
{
    Canvas canvas(1, 1);
    const CSize inch(canvas.dc.GetDeviceCaps(LOGPIXELSX), canvas.dc.GetDeviceCaps(LOGPIXELSY));
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SetWindowExt(10, 20);
    canvas.dc.SetViewportExt(1, 1);
    CSize size(2540, 2540);
    canvas.dc.HIMETRICtoLP(&size);
    EXPECT_EQ(CSize(10 * inch.cx, 20 * inch.cy), size);
    canvas.dc.LPtoHIMETRIC(&size);
    EXPECT_EQ(CSize(2540, 2540), size);
}

TEST(Mapping, HimetricSizesFollowTheDevicesSizeInTheMetricModes)
{
    Canvas canvas(1, 1);
    canvas.dc.SetMapMode(MM_LOMETRIC);
    const int width = canvas.dc.GetDeviceCaps(HORZSIZE);
    const int height = canvas.dc.GetDeviceCaps(VERTSIZE);
    CSize size(canvas.dc.GetDeviceCaps(HORZRES), canvas.dc.GetDeviceCaps(VERTRES));
    canvas.dc.DPtoHIMETRIC(&size);
    EXPECT_EQ(CSize(width * 100, height * 100), size);
}
