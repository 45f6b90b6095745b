#include "tests/windows/pictures/DibText.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
using namespace vorn::test;

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

DIB New(int width, int height, int depth)
{
    return DIB(width, height, depth, 0, 0, nullptr, nullptr);
}

TEST(DibPixels, OneBitLeftmostInTheTopBit)
{
    DIB image = New(10, 1, 1);
    image.PutPixel(0, 0, 1);
    image.PutPixel(9, 0, 1);
    EXPECT_EQ(image.Bits()[0], 0x80);
    EXPECT_EQ(image.Bits()[1], 0x40);
    image.PutPixel(0, 0, 2);
    EXPECT_EQ(image.GetPixel(0, 0), 0U) << "cut to the depth";
}

TEST(DibPixels, FourBitsLeftInTheHighHalf)
{
    DIB image = New(3, 1, 4);
    image.PutPixel(0, 0, 0xA);
    image.PutPixel(1, 0, 0xB);
    image.PutPixel(2, 0, 0x1C);
    EXPECT_EQ(image.Bits()[0], 0xAB);
    EXPECT_EQ(image.Bits()[1], 0xC0);
    EXPECT_EQ(Values(image), "ABC");
}

TEST(DibPixels, WordOf16Bits)
{
    DIB image = New(2, 1, 16);
    image.PutPixel(1, 0, 0x7C1F);
    EXPECT_EQ(image.Bits()[2], 0x1F);
    EXPECT_EQ(image.Bits()[3], 0x7C);
    EXPECT_EQ(image.GetPixel(1, 0), 0x7C1FU);
    EXPECT_EQ(ColorOf(image, 1, 0), 0xFF00FFU);
}

TEST(DibPixels, ColorOf24And32Bits)
{
    for (const int depth : {24, 32})
    {
        DIB image = New(2, 2, depth);
        image.PutPixel(1, 0, RGB(1, 2, 3));
        EXPECT_EQ(image.GetPixel(1, 0), RGB(1, 2, 3));
        EXPECT_EQ(ColorOf(image, 1, 0), 0x010203U);
        const unsigned char* stored = image.Bits() + image.BytesPerScan() + depth / 8;
        EXPECT_EQ(stored[0], 3) << "blue first, in the upper row, which is stored last";
        EXPECT_EQ(stored[2], 1);
    }
}

TEST(DibPixels, NothingOutside)
{
    DIB image = FromLetters("RG|B.");
    for (const int x : {-1, 2, kMost, kLeast})
    {
        image.PutPixel(x, 0, 0);
        image.PutPixel(0, x, 0);
        EXPECT_EQ(image.GetPixel(x, 0), 0U);
        EXPECT_EQ(image.GetPixel(0, x), 0U);
        EXPECT_EQ(ColorOf(image, x, 1), 0U);
    }
    EXPECT_EQ(Colors(image), "RG|B.");
}

TEST(DibPixels, IndexBeyondTheTableIsBlack)
{
    DIB image = New(1, 1, 8);
    for (int i = 0; i < 256; ++i)
        SetEntry(image, i, 0xFFFFFF);
    image.BitmapInfo()->bmiHeader.biClrUsed = 4;
    image.PutPixel(0, 0, 3);
    EXPECT_EQ(ColorOf(image, 0, 0), 0xFFFFFFU);
    image.PutPixel(0, 0, 4);
    EXPECT_EQ(ColorOf(image, 0, 0), 0U);
}

TEST(DibPixels, TopLeftWhateverTheRowOrder)
{
    const DIB down = FromLetters("RG|B.", 24, true);
    EXPECT_EQ(Colors(down), "RG|B.");
    EXPECT_EQ(down.Bits()[2], 255) << "red, at the very start";
    EXPECT_EQ(FromLetters("RG|B.").Bits()[0], 255) << "blue: the lower row is first";
}

TEST(DibBlt, ClipsAtEveryEdge)
{
    DIB source = FromLetters("RG|BY");
    for (const auto& [x, y, expected] :
         {std::tuple{0, 0, "RG.|BY.|..."}, std::tuple{1, 1, "...|.RG|.BY"}, std::tuple{2, 2, "...|...|..R"},
          std::tuple{-1, -1, "Y..|...|..."}, std::tuple{-1, 2, "...|...|G.."}, std::tuple{3, 0, "...|...|..."},
          std::tuple{0, -2, "...|...|..."}, std::tuple{kMost, kMost, "...|...|..."},
          std::tuple{kLeast, kLeast, "...|...|..."}})
    {
        DIB target = FromLetters("...|...|...");
        EXPECT_TRUE(target.Blt(x, y, &source));
        EXPECT_EQ(Colors(target), expected) << x << ' ' << y;
    }
}

TEST(DibBlt, RowOrdersMayDiffer)
{
    DIB source = FromLetters("RG|BY", 24, true);
    DIB target = FromLetters("...|...|...");
    EXPECT_TRUE(target.Blt(0, 1, &source));
    EXPECT_EQ(Colors(target), "...|RG.|BY.");
}

TEST(DibBlt, EqualDepthsCopyPixelsWhateverTheirTables)
{
    DIB source = New(2, 1, 8);
    SetEntry(source, 5, 0xFF0000);
    source.PutPixel(0, 0, 5);
    DIB target = New(2, 1, 8);
    EXPECT_TRUE(target.Blt(0, 0, &source));
    EXPECT_EQ(Values(target), "50");
    EXPECT_EQ(Colors(target), "##");
}

TEST(DibBlt, OtherDepthsGoThroughTheColour)
{
    DIB source = FromLetters("RG|BY", 32);
    DIB target = New(2, 2, 4);
    SetEntry(target, 1, 0xF01010);
    SetEntry(target, 2, 0x00FF00);
    SetEntry(target, 3, 0x2020C0);
    SetEntry(target, 4, 0xC0C000);
    EXPECT_TRUE(target.Blt(0, 0, &source));
    EXPECT_EQ(Values(target), "12|34") << "the nearest entries";
    DIB back = New(2, 2, 24);
    EXPECT_TRUE(back.Blt(0, 0, &target));
    EXPECT_EQ(ColorOf(back, 0, 0), 0xF01010U);
}

TEST(DibBlt, OntoItself)
{
    DIB image = FromLetters("RGB|...|YYY");
    EXPECT_TRUE(image.Blt(1, 1, &image));
    EXPECT_EQ(Colors(image), "RGB|.RG|Y..");
}

TEST(DibBlt, NeedsTwoImages)
{
    DIB image = FromLetters("R");
    DIB empty;
    EXPECT_FALSE(image.Blt(0, 0, nullptr));
    EXPECT_FALSE(image.Blt(0, 0, &empty));
    EXPECT_FALSE(empty.Blt(0, 0, &image));
    EXPECT_EQ(Colors(image), "R");
}

TEST(DibTo24Bit, GoesThroughTheTable)
{
    for (const int depth : {1, 4, 8})
    {
        DIB image = New(3, -1, depth);
        SetEntry(image, 0, 0x0000FF);
        SetEntry(image, 1, 0xFFFF00);
        image.PutPixel(1, 0, 1);
        DIB target = FromLetters("RRRRR");
        EXPECT_TRUE(image.To24Bit(&target));
        EXPECT_EQ(target.Depth(), 24);
        EXPECT_EQ(target.BitmapInfo()->bmiHeader.biHeight, -1) << "the same order of rows";
        EXPECT_EQ(Colors(target), "BYB");
        EXPECT_EQ(Values(image), "010");
    }
}

TEST(DibTo24Bit, SixteenAndThirtyTwoBits)
{
    DIB words = New(3, 1, 16);
    words.PutPixel(0, 0, 0x7C00);
    words.PutPixel(1, 0, 0x03E0);
    words.PutPixel(2, 0, 0x4210);
    DIB target;
    EXPECT_TRUE(words.To24Bit(&target));
    EXPECT_EQ(ColorOf(target, 0, 0), 0xFF0000U);
    EXPECT_EQ(ColorOf(target, 1, 0), 0x00FF00U);
    EXPECT_EQ(ColorOf(target, 2, 0), 0x848484U) << "16 of 31, by repeating the upper bits";
    EXPECT_TRUE(FromLetters("RG|BY", 32).To24Bit(&target));
    EXPECT_EQ(Colors(target), "RG|BY");
}

TEST(DibTo24Bit, TargetMayBeTheImage)
{
    DIB image = New(2, 2, 8);
    SetEntry(image, 0, 0x808080);
    EXPECT_TRUE(image.To24Bit(&image));
    EXPECT_EQ(Colors(image), "gg|gg");
    EXPECT_EQ(image.Depth(), 24);
    const BITMAPINFO* block = image.BitmapInfo();
    EXPECT_TRUE(image.To24Bit(&image));
    EXPECT_EQ(Colors(image), "gg|gg");
    EXPECT_EQ(image.BitmapInfo(), block) << "there was nothing to do";
}

TEST(DibTo24Bit, TargetOfTheSameSizeGivesItsBlock)
{
    DIB target(2, 2, 24, 0, 0, nullptr, nullptr);
    const BITMAPINFO* block = target.BitmapInfo();
    EXPECT_TRUE(FromLetters("RG|BY", 32).To24Bit(&target));
    EXPECT_EQ(Colors(target), "RG|BY");
    EXPECT_EQ(target.BitmapInfo(), block);
    EXPECT_TRUE(FromLetters("YB|GR", 32, true).To24Bit(&target)) << "in the other order of rows";
    EXPECT_EQ(Colors(target), "YB|GR");
    EXPECT_EQ(target.BitmapInfo()->bmiHeader.biHeight, -2);
    EXPECT_TRUE(FromLetters("YBR|GRB", 32).To24Bit(&target));
    EXPECT_EQ(Colors(target), "YBR|GRB");
    DIB section(3, 2, 24, 0, 1, nullptr, nullptr);
    EXPECT_TRUE(target.To24Bit(&section));
    EXPECT_EQ(Colors(section), "YBR|GRB");
    EXPECT_EQ(section.DIBSect(), nullptr);
}

TEST(DibTo24Bit, NothingOfTheTargetsFormerPictureStays)
{
    DIB indices(2, 2, 24, 1, 0, nullptr, nullptr);
    EXPECT_TRUE(FromLetters("RG|BY", 32).To24Bit(&indices));
    EXPECT_EQ(indices.Usage(), 0);
    DIB target(2, 2, 24, 0, 0, nullptr, nullptr);
    target.BitmapInfo()->bmiHeader.biXPelsPerMeter = 3000;
    target.BitmapInfo()->bmiHeader.biSizeImage = 12345;
    EXPECT_TRUE(FromLetters("RG|BY", 32).To24Bit(&target));
    EXPECT_EQ(target.BitmapInfo()->bmiHeader.biXPelsPerMeter, 0);
    EXPECT_EQ(target.BitmapInfo()->bmiHeader.biSizeImage, 0U);
    EXPECT_EQ(Colors(target), "RG|BY");
}

TEST(DibTo24Bit, WithoutImageOrTargetFails)
{
    DIB target = FromLetters("R");
    EXPECT_FALSE(DIB().To24Bit(&target));
    EXPECT_EQ(Colors(target), "R");
    EXPECT_FALSE(target.To24Bit(nullptr));
}

TEST(DibTo24Bit, SectionBecomesABlock)
{
    DIB image(2, 1, 32, 0, 1, nullptr, nullptr);
    image.PutPixel(0, 0, RGB(255, 255, 0));
    EXPECT_TRUE(image.To24Bit(&image));
    EXPECT_EQ(image.DIBSect(), nullptr);
    EXPECT_EQ(Colors(image), "Y#");
    DIB same(2, 1, 24, 0, 1, nullptr, nullptr);
    same.PutPixel(1, 0, RGB(255, 0, 0));
    EXPECT_TRUE(same.To24Bit(&same));
    EXPECT_EQ(same.DIBSect(), nullptr);
    EXPECT_EQ(Colors(same), "#R");
}
} // namespace
