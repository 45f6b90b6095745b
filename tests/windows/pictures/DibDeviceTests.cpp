#include "tests/windows/pictures/DrawnOn.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{
using namespace vorn::test;

/// The picture RG|BY in this depth, drawn 1:1 at (1, 1) of a white one.
std::string DrawnAtOne(const DIB& image)
{
    const DrawnOn target(4, 3);
    EXPECT_NE(image.StretchDIBits(target.Dc(), 1, 1, 2, 2, SRCCOPY), 0);
    return target.Text();
}

/// RG|BY with a table.
DIB WithTable(int depth, int signedHeight)
{
    DIB image(2, signedHeight, depth, 0, 0, nullptr, nullptr);
    const unsigned colors[] = {0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00};
    for (int i = 0; i < 4; ++i)
    {
        SetEntry(image, i, colors[i]);
        image.PutPixel(i % 2, i / 2, static_cast<DWORD>(i));
    }
    return image;
}

TEST(DibStretch, EitherRowOrder)
{
    EXPECT_EQ(DrawnAtOne(FromLetters("RG|BY")), "....|.RG.|.BY.");
    EXPECT_EQ(DrawnAtOne(FromLetters("RG|BY", 24, true)), "....|.RG.|.BY.");
}

TEST(DibStretch, EveryDepth)
{
    EXPECT_EQ(DrawnAtOne(WithTable(4, 2)), "....|.RG.|.BY.");
    EXPECT_EQ(DrawnAtOne(WithTable(8, -2)), "....|.RG.|.BY.");
    EXPECT_EQ(DrawnAtOne(FromLetters("RG|BY", 32)), "....|.RG.|.BY.");
    DIB words(2, -2, 16, 0, 0, nullptr, nullptr);
    words.PutPixel(0, 0, 0x7C00);
    words.PutPixel(1, 0, 0x03E0);
    words.PutPixel(0, 1, 0x001F);
    words.PutPixel(1, 1, 0x7FE0);
    EXPECT_EQ(DrawnAtOne(words), "....|.RG.|.BY.");
    DIB bits(2, 2, 1, 0, 0, nullptr, nullptr);
    SetEntry(bits, 1, 0xFF0000);
    bits.PutPixel(1, 0, 1);
    EXPECT_EQ(DrawnAtOne(bits), "....|.#R.|.##.");
}

TEST(DibStretch, SectionAndStretch)
{
    DIB image(2, 1, 24, 0, 1, nullptr, nullptr);
    image.PutPixel(0, 0, RGB(255, 0, 0));
    image.PutPixel(1, 0, RGB(0, 0, 255));
    const DrawnOn target(4, 2);
    EXPECT_NE(image.StretchDIBits(target.Dc(), 0, 0, 4, 2, SRCCOPY), 0);
    EXPECT_EQ(target.Text(), "RRBB|RRBB");
}

TEST(DibStretch, RasterOperation)
{
    const DrawnOn target(1, 1);
    EXPECT_NE(FromLetters("Y").StretchDIBits(target.Dc(), 0, 0, 1, 1, SRCINVERT), 0);
    EXPECT_EQ(target.Text(), "B");
}

TEST(DibStretch, PaletteIndicesTakeTheContextsPalette)
{
    const TestPalette palette;
    const DrawnOn target(4, 1);
    const HPALETTE former = SelectPalette(target.Dc(), palette, FALSE);
    RealizePalette(target.Dc());
    DIB image(4, 1, 8, 1, 0, nullptr, nullptr);
    for (int x = 0; x < 4; ++x)
        image.PutPixel(x, 0, static_cast<DWORD>(3 - x));
    EXPECT_NE(image.StretchDIBits(target.Dc(), 0, 0, 4, 1, SRCCOPY), 0);
    EXPECT_EQ(target.Text(), "BGR#");
    SelectPalette(target.Dc(), former, FALSE);
}

TEST(DibStretch, TableShorterThanTheDepthIsFilledUp)
{
    // Behind 128 colours comes the pixel: its bytes are no colour.
    DIB image(1, 1, 8, 1, 0, nullptr, nullptr);
    image.Usage(0);
    for (const DWORD index : {128, 255})
    {
        image.PutPixel(0, 0, index);
        const DrawnOn target(1, 1);
        EXPECT_NE(image.StretchDIBits(target.Dc(), 0, 0, 1, 1, SRCCOPY), 0);
        EXPECT_EQ(target.Text(), "#") << index;
    }
}

TEST(DibStretch, NothingWithoutImageOrContext)
{
    const DrawnOn target(1, 1);
    EXPECT_EQ(DIB().StretchDIBits(target.Dc(), 0, 0, 1, 1, SRCCOPY), 0);
    EXPECT_EQ(target.Text(), ".");
    EXPECT_EQ(FromLetters("R").StretchDIBits(nullptr, 0, 0, 1, 1, SRCCOPY), 0);
}

TEST(DibSetBits, WholeImage)
{
    for (const bool isTopDown : {false, true})
    {
        DrawnOn target(2, 2);
        const HBITMAP bitmap = target.Unselected();
        EXPECT_EQ(FromLetters("RG|BY", 24, isTopDown).SetDIBits(target.Dc(), bitmap, 0, 2), 2);
        EXPECT_EQ(target.Text(), "RG|BY");
    }
}

TEST(DibSetBits, RowsCountAsTheyAreStored)
{
    DrawnOn up(2, 3);
    EXPECT_EQ(FromLetters("RR|GG|BB").SetDIBits(up.Dc(), up.Unselected(), 1, 1), 1);
    EXPECT_EQ(up.Text(), "..|GG|..");
    DrawnOn upper(2, 3);
    EXPECT_EQ(FromLetters("RR|GG|BB").SetDIBits(upper.Dc(), upper.Unselected(), 1, 9), 2);
    EXPECT_EQ(upper.Text(), "RR|GG|..");
    DrawnOn down(2, 3);
    EXPECT_EQ(FromLetters("RR|GG|BB", 24, true).SetDIBits(down.Dc(), down.Unselected(), 0, 1), 1);
    EXPECT_EQ(down.Text(), "RR|..|..");
    DrawnOn lower(2, 3);
    EXPECT_EQ(FromLetters("RR|GG|BB", 24, true).SetDIBits(lower.Dc(), lower.Unselected(), 1, 2), 2);
    EXPECT_EQ(lower.Text(), "..|GG|BB");
    DrawnOn rest(2, 3);
    EXPECT_EQ(FromLetters("RR|GG|BB", 24, true).SetDIBits(rest.Dc(), rest.Unselected(), 2, 0x7FFFFFFF), 1);
    EXPECT_EQ(rest.Text(), "..|..|BB") << "no more than there are";
}

TEST(DibSetBits, PaletteIndicesTakeTheContextsPalette)
{
    const TestPalette palette;
    for (const int height : {2, -2})
    {
        DrawnOn target(2, 2);
        const HBITMAP bitmap = target.Unselected();
        const HPALETTE former = SelectPalette(target.Dc(), palette, FALSE);
        RealizePalette(target.Dc());
        DIB image(2, height, 4, 1, 0, nullptr, nullptr);
        for (int i = 0; i < 4; ++i)
            image.PutPixel(i % 2, i / 2, static_cast<DWORD>(3 - i));
        EXPECT_EQ(image.SetDIBits(target.Dc(), bitmap, 0, 2), 2);
        EXPECT_EQ(target.Text(), "BG|R#");
        SelectPalette(target.Dc(), former, FALSE);
    }
}

TEST(DibSetBits, NothingWithoutRows)
{
    DrawnOn target(2, 2);
    const HBITMAP bitmap = target.Unselected();
    EXPECT_EQ(DIB().SetDIBits(target.Dc(), bitmap, 0, 2), 0);
    EXPECT_EQ(FromLetters("RG|BY").SetDIBits(target.Dc(), bitmap, 2, 1), 0);
    EXPECT_EQ(FromLetters("RG|BY").SetDIBits(target.Dc(), bitmap, 3, 1), 0);
    EXPECT_EQ(FromLetters("RG|BY").SetDIBits(target.Dc(), bitmap, 0xFFFFFFFF, 3), 0);
    EXPECT_EQ(FromLetters("RG|BY").SetDIBits(target.Dc(), nullptr, 0, 2), 0);
    EXPECT_EQ(target.Text(), "..|..");
}

TEST(DibLoad, EmptyImageBecomes24Bits)
{
    DrawnOn source(3, 2);
    FromLetters("RG|BY").StretchDIBits(source.Dc(), 1, 0, 2, 2, SRCCOPY);
    DIB image;
    EXPECT_TRUE(image.LoadDDB(source.Unselected(), nullptr, nullptr));
    EXPECT_EQ(image.Depth(), 24);
    EXPECT_EQ(image.BitmapInfo()->bmiHeader.biHeight, 2);
    EXPECT_EQ(Colors(image), ".RG|.BY");
}

TEST(DibLoad, DepthStays)
{
    DrawnOn source(2, 1);
    FromLetters("R#").StretchDIBits(source.Dc(), 0, 0, 2, 1, SRCCOPY);
    const HBITMAP bitmap = source.Unselected();
    for (const int depth : {4, 8, 16, 24, 32})
    {
        DIB image(9, 9, depth, 0, depth == 16, nullptr, nullptr);
        EXPECT_TRUE(image.LoadDDB(bitmap, source.Dc(), nullptr)) << depth;
        EXPECT_EQ(image.Depth(), depth);
        EXPECT_EQ(image.DIBSect(), nullptr);
        EXPECT_EQ(Colors(image), "R#") << depth;
    }
    DIB bits(9, 9, 1, 0, 0, nullptr, nullptr);
    EXPECT_TRUE(bits.LoadDDB(bitmap, nullptr, nullptr));
    EXPECT_EQ(bits.Width(), 2);
    EXPECT_EQ(ColorOf(bits, 1, 0), 0U);
}

TEST(DibLoad, TakesThePaletteForIndices)
{
    const TestPalette palette;
    DrawnOn source(3, 1);
    FromLetters("RGB").StretchDIBits(source.Dc(), 0, 0, 3, 1, SRCCOPY);
    DIB image(1, 1, 8, 1, 0, nullptr, nullptr);
    const HBITMAP bitmap = source.Unselected();
    EXPECT_TRUE(image.LoadDDB(bitmap, source.Dc(), palette));
    EXPECT_EQ(image.Usage(), 1);
    EXPECT_EQ(GetCurrentObject(source.Dc(), OBJ_PAL), GetStockObject(DEFAULT_PALETTE)) << "the former one again";
    WORD indices[4];
    std::memcpy(indices, image.BitmapInfo()->bmiColors, sizeof indices);
    EXPECT_EQ(indices[1], 1);
    EXPECT_EQ(Values(image), "123");
}

TEST(DibLoad, NoBitmapChangesNothing)
{
    DIB image = FromLetters("R");
    EXPECT_FALSE(image.LoadDDB(nullptr, nullptr, nullptr));
    EXPECT_EQ(Colors(image), "R");
}

TEST(DibSection, WhatIsDrawnIsInTheRows)
{
    DIB image(3, -1, 24, 0, 1, nullptr, nullptr);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HGDIOBJ former = SelectObject(dc, image.DIBSect());
    for (int i = 0; i < 100; ++i)
        SetPixelV(dc, 1, 0, RGB(255, 255, 0));
    EXPECT_EQ(Colors(image), "#Y#");
    EXPECT_EQ(image.Bits()[3], 0);
    EXPECT_EQ(image.Bits()[4], 255);
    image.PutPixel(2, 0, RGB(255, 0, 0));
    EXPECT_EQ(GetPixel(dc, 2, 0), RGB(255, 0, 0));
    SelectObject(dc, former);
    DeleteDC(dc);
}
TEST(DibSection, PaletteIndicesTakeTheContextsPalette)
{
    const TestPalette palette;
    const DrawnOn target(4, 1);
    const HDC dc = CreateCompatibleDC(nullptr);
    const HPALETTE formerPalette = SelectPalette(dc, palette, FALSE);
    RealizePalette(dc);
    DIB image(4, 1, 8, 1, 1, dc, nullptr);
    ASSERT_NE(image.DIBSect(), nullptr);
    for (int x = 0; x < 4; ++x)
        image.PutPixel(x, 0, static_cast<DWORD>(3 - x));
    const HGDIOBJ former = SelectObject(dc, image.DIBSect());
    BitBlt(target.Dc(), 0, 0, 4, 1, dc, 0, 0, SRCCOPY);
    EXPECT_EQ(target.Text(), "BGR#");
    SelectObject(dc, former);
    SelectPalette(dc, formerPalette, FALSE);
    DeleteDC(dc);
}
} // namespace
