#include "framework/core/Exception.h"
#include "tests/support/Canvas.h"

#include <gtest/gtest.h>

#include <array>

using namespace vorn::test;

namespace
{
/// Runs a function that shall throw the framework's resource exception.
template <typename Function>
bool ThrowsResourceException(Function function)
{
    bool thrown = false;
    TRY
    {
        function();
    }
    CATCH(CResourceException, e)
    {
        thrown = true;
    }
    END_CATCH
    return thrown;
}
} // namespace

TEST(Pen, KeepsStyleWidthAndColour)
{
    CPen pen(PS_SOLID, 3, RGB(1, 2, 3));
    LOGPEN description{};
    EXPECT_EQ(int(sizeof(LOGPEN)), pen.GetLogPen(&description));
    EXPECT_EQ(UINT(PS_SOLID), description.lopnStyle);
    EXPECT_EQ(3, description.lopnWidth.x);
    EXPECT_EQ(RGB(1, 2, 3), description.lopnColor);
}

TEST(Pen, ComesFromADescription)
{
    LOGPEN description{PS_SOLID, {2, 0}, kBlue};
    CPen pen;
    EXPECT_TRUE(pen.CreatePenIndirect(&description));
    EXPECT_FALSE(CPen().CreatePenIndirect(nullptr));
}

TEST(Pen, ExtendedPensKeepTheirDescription)
{
    const LOGBRUSH brush{BS_SOLID, kGreen, 0};
    CPen pen(PS_GEOMETRIC | PS_SOLID | PS_ENDCAP_FLAT, 7, &brush);
    EXTLOGPEN description{};
    EXPECT_NE(0, pen.GetExtLogPen(&description));
    EXPECT_EQ(7U, description.elpWidth);
    EXPECT_EQ(kGreen, description.elpColor);
}

TEST(Pen, UserStylesTakeTheirDashes)
{
    const LOGBRUSH brush{BS_SOLID, kGreen, 0};
    const std::array<DWORD, 2> dashes{5, 3};
    CPen pen;
    EXPECT_TRUE(pen.CreatePen(PS_COSMETIC | PS_USERSTYLE, 1, &brush, 2, dashes.data()));
    EXPECT_FALSE(CPen().CreatePen(PS_COSMETIC | PS_USERSTYLE, 1, &brush, -1, dashes.data()));
    EXPECT_FALSE(CPen().CreatePen(PS_COSMETIC | PS_SOLID, 1, nullptr));
}

TEST(Pen, ConstructorThrowsWhereThePenCannotBeMade)
{
    EXPECT_TRUE(ThrowsResourceException(
        []
        {
            CPen pen(PS_GEOMETRIC, 1, static_cast<const LOGBRUSH*>(nullptr));
        }));
}

TEST(Brush, KeepsColourAndHatch)
{
    LOGBRUSH description{};
    CBrush(kBlue).GetLogBrush(&description);
    EXPECT_EQ(UINT(BS_SOLID), description.lbStyle);
    EXPECT_EQ(kBlue, description.lbColor);
    CBrush(HS_CROSS, kRed).GetLogBrush(&description);
    EXPECT_EQ(UINT(BS_HATCHED), description.lbStyle);
    EXPECT_EQ(ULONG_PTR(HS_CROSS), description.lbHatch);
}

TEST(Brush, TakesAPatternFromABitmap)
{
    const std::array<WORD, 8> rows{0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA, 0x55, 0xAA};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, rows.data()));
    CBrush brush(&bitmap);
    LOGBRUSH description{};
    brush.GetLogBrush(&description);
    EXPECT_EQ(UINT(BS_PATTERN), description.lbStyle);
}

TEST(Brush, ConstructorThrowsWithoutBitmap)
{
    EXPECT_TRUE(ThrowsResourceException(
        []
        {
            CBrush brush(static_cast<CBitmap*>(nullptr));
        }));
}

TEST(Brush, TakesAPatternFromAPackedPicture)
{
    struct Packed
    {
        BITMAPINFOHEADER header;
        std::array<std::uint32_t, 64> pixels;
    } packed{};
    packed.header.biSize = sizeof(packed.header);
    packed.header.biWidth = 8;
    packed.header.biHeight = 8;
    packed.header.biPlanes = 1;
    packed.header.biBitCount = 32;
    packed.pixels.fill(0x00FF0000);
    CBrush brush;
    ASSERT_TRUE(brush.CreateDIBPatternBrush(&packed, DIB_RGB_COLORS));
    Canvas canvas(4, 1);
    canvas.dc.FillRect(CRect(0, 0, 4, 1), &brush);
    EXPECT_EQ("RRRR\n", canvas.Picture());
    EXPECT_FALSE(CBrush().CreateDIBPatternBrush(static_cast<const void*>(nullptr), DIB_RGB_COLORS));
    EXPECT_FALSE(CBrush().CreateDIBPatternBrush(static_cast<HGLOBAL>(nullptr), DIB_RGB_COLORS));
}

TEST(Brush, SystemColourBrushesSurviveTheirObjects)
{
    HGDIOBJ handle = nullptr;
    {
        CBrush brush;
        EXPECT_TRUE(brush.CreateSysColorBrush(COLOR_BTNFACE));
        handle = brush.GetSafeHandle();
    }
    LOGBRUSH description{};
    EXPECT_NE(0, ::GetObject(handle, sizeof(description), &description));
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), description.lbColor);
}

TEST(Font, ComesFromADescriptionAndGivesItBack)
{
    LOGFONT wanted{};
    wanted.lfHeight = -20;
    wanted.lfWeight = FW_BOLD;
    wanted.lfItalic = TRUE;
    ::lstrcpy(wanted.lfFaceName, "Arial");
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&wanted));
    LOGFONT description{};
    EXPECT_NE(0, font.GetLogFont(&description));
    EXPECT_EQ(-20, description.lfHeight);
    EXPECT_EQ(FW_BOLD, description.lfWeight);
    EXPECT_TRUE(description.lfItalic);
    EXPECT_STREQ("Arial", description.lfFaceName);
    EXPECT_FALSE(CFont().CreateFontIndirect(nullptr));
}

TEST(Font, TakesAllItsParametersInTheSystemsOrder)
{
    CFont font;
    ASSERT_TRUE(font.CreateFont(12, 5, 900, 0, FW_LIGHT, TRUE, FALSE, TRUE, ANSI_CHARSET, OUT_TT_PRECIS,
                                CLIP_DEFAULT_PRECIS, PROOF_QUALITY, FF_SWISS, "Courier New"));
    LOGFONT description{};
    font.GetLogFont(&description);
    EXPECT_EQ(12, description.lfHeight);
    EXPECT_EQ(5, description.lfWidth);
    EXPECT_EQ(900, description.lfEscapement);
    EXPECT_EQ(FW_LIGHT, description.lfWeight);
    EXPECT_TRUE(description.lfItalic);
    EXPECT_FALSE(description.lfUnderline);
    EXPECT_TRUE(description.lfStrikeOut);
    EXPECT_STREQ("Courier New", description.lfFaceName);
}

TEST(Font, PointSizesBecomePixelsOfTheDevice)
{
    Canvas canvas(8, 8);
    const int perInch = canvas.dc.GetDeviceCaps(LOGPIXELSY);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(120, "Arial", &canvas.dc));
    LOGFONT description{};
    font.GetLogFont(&description);
    // 12 points are a sixth of an inch.
    EXPECT_EQ(-::MulDiv(perInch, 1, 6), description.lfHeight);
    EXPECT_EQ(DEFAULT_CHARSET, description.lfCharSet);
    EXPECT_STREQ("Arial", description.lfFaceName);
}

TEST(Font, PointSizesFollowTheMappingOfTheContext)
{
    Canvas canvas(8, 8);
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SetWindowExt(1, 10);
    canvas.dc.SetViewportExt(1, 1);
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(720, "Arial", &canvas.dc));
    LOGFONT description{};
    font.GetLogFont(&description);
    // 72 points are an inch; ten logical units make a pixel.
    EXPECT_EQ(-10 * canvas.dc.GetDeviceCaps(LOGPIXELSY), description.lfHeight);
}

TEST(Font, LongFaceNamesAreCut)
{
    const std::string name(100, 'x');
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(100, name.c_str()));
    LOGFONT description{};
    font.GetLogFont(&description);
    EXPECT_EQ(std::size_t(LF_FACESIZE - 1), std::string(description.lfFaceName).size());
}

TEST(Font, PointSizeDescriptionIsNotChanged)
{
    LOGFONT wanted{};
    wanted.lfHeight = 100;
    CFont font;
    EXPECT_TRUE(font.CreatePointFontIndirect(&wanted));
    EXPECT_EQ(100, wanted.lfHeight);
    EXPECT_FALSE(CFont().CreatePointFontIndirect(nullptr));
}
