#include "tests/windows/pictures/DrawnOn.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <memory>
#include <tuple>

namespace
{
using namespace vorn::test;

std::string Rotated(const DIB& image, double angle, int flag, COLORREF background = RGB(255, 255, 255))
{
    const std::unique_ptr<DIB> turned(image.Rotate(angle, flag, background));
    return turned ? Colors(*turned) : "none";
}

TEST(DibLQResize, TakesDepthUsageAndSize)
{
    for (const int depth : {1, 4, 8, 16, 24, 32})
        for (const int usage : {0, 1})
        {
            DIB source(3, 2, depth, usage, 0, nullptr, nullptr);
            DIB image;
            ASSERT_TRUE(image.LQResize(5, 7, &source)) << depth << ' ' << usage;
            EXPECT_EQ(image.BitmapInfo()->bmiHeader.biWidth, 5);
            EXPECT_EQ(image.BitmapInfo()->bmiHeader.biHeight, -7) << "top-down";
            EXPECT_EQ(image.Depth(), depth);
            EXPECT_EQ(image.Usage(), usage);
        }
}

TEST(DibLQResize, FlatColoursStay)
{
    DIB source(64, 48, 24, 0, 0, nullptr, nullptr);
    std::memset(source.Bits(), 128, static_cast<std::size_t>(source.BytesPerScan()) * 48);
    DIB image = FromLetters("R");
    ASSERT_TRUE(image.LQResize(2, 3, &source));
    EXPECT_EQ(Colors(image), "gg|gg|gg");
    ASSERT_TRUE(image.LQResize(4, 1, &image)) << "the source may be the image";
    EXPECT_EQ(Colors(image), "gggg");
}

TEST(DibLQResize, HalvesStayApart)
{
    DIB source = FromLetters("RRRRBBBB|RRRRBBBB", 32, true);
    DIB image;
    ASSERT_TRUE(image.LQResize(4, 1, &source));
    EXPECT_EQ(Colors(image).front(), 'R');
    EXPECT_EQ(Colors(image).back(), 'B');
    ASSERT_TRUE(image.LQResize(16, 4, &source));
    EXPECT_EQ(Colors(image).substr(0, 7), "RRRRRRR");
    EXPECT_EQ(Colors(image).substr(9, 7), "BBBBBBB");
}

TEST(DibLQResize, ImpossibleSizesChangeNothing)
{
    DIB source = FromLetters("R");
    DIB empty;
    DIB image = FromLetters("G");
    EXPECT_FALSE(image.LQResize(0, 1, &source));
    EXPECT_FALSE(image.LQResize(1, 0, &source));
    EXPECT_FALSE(image.LQResize(1, -1, &source));
    EXPECT_FALSE(image.LQResize(1, 1, &empty));
    EXPECT_FALSE(image.LQResize(1, 1, nullptr));
    EXPECT_FALSE(image.LQResize(std::numeric_limits<int>::max(), 2, &source));
    EXPECT_EQ(Colors(image), "G");
}

TEST(DibHQResize, ShrinkingAveragesByArea)
{
    DIB source(4, 2, 24, 0, 0, nullptr, nullptr);
    for (int x = 0; x < 4; ++x)
    {
        source.PutPixel(x, 0, RGB(10 * x, 100, 0));
        source.PutPixel(x, 1, RGB(10 * x, 200, 0));
    }
    DIB image;
    ASSERT_TRUE(image.HQResize(2, 1, &source));
    EXPECT_EQ(image.BitmapInfo()->bmiHeader.biHeight, -1);
    EXPECT_EQ(ColorOf(image, 0, 0), 0x059600U);
    EXPECT_EQ(ColorOf(image, 1, 0), 0x199600U);
    // Three pixels for four: shares of 3/4 and 1/4, 2/4 and 2/4, 1/4 and 3/4, within 1 of the exact value.
    ASSERT_TRUE(image.HQResize(3, 2, &source));
    const double exact[] = {2.5, 15.0, 27.5};
    for (int x = 0; x < 3; ++x)
        EXPECT_NEAR(ColorOf(image, x, 0) >> 16, exact[x], 1.0);
}

TEST(DibHQResize, GrowingRepeatsTheNearest)
{
    DIB source = FromLetters("RG|BY");
    DIB image;
    ASSERT_TRUE(image.HQResize(5, 3, &source));
    EXPECT_EQ(Colors(image), "RRGGG|BBYYY|BBYYY");
    ASSERT_TRUE(image.HQResize(2, 2, &source));
    EXPECT_EQ(Colors(image), "RG|BY");
}

TEST(DibHQResize, DepthOfTheResult)
{
    for (const int depth : {1, 4, 8, 16, 24, 32})
    {
        DIB source(3, 2, depth, 0, 0, nullptr, nullptr);
        DIB image;
        ASSERT_TRUE(image.HQResize(2, 2, &source));
        EXPECT_EQ(image.Depth(), depth == 32 ? 32 : 24);
        EXPECT_EQ(image.Usage(), 0);
    }
}

TEST(DibHQResize, SourceMayBeTheImage)
{
    DIB image = FromLetters("RRBB|RRBB");
    ASSERT_TRUE(image.HQResize(2, 1, &image));
    EXPECT_EQ(Colors(image), "RB");
}

TEST(DibHQResize, AnImageOfTheSameSizeGivesItsBlock)
{
    DIB source = FromLetters("RG|BY|WK|RR", 24);
    DIB image;
    ASSERT_TRUE(image.HQResize(1, 2, &source));
    const unsigned char* const bits = image.Bits();
    std::memset(image.Bits(), 0x55, static_cast<std::size_t>(image.BytesPerScan()) * 2);
    ASSERT_TRUE(image.HQResize(1, 2, &source));
    EXPECT_EQ(bits, image.Bits());
    DIB fresh;
    ASSERT_TRUE(fresh.HQResize(1, 2, &source));
    const auto bytesOf = [](const DIB& of)
    {
        return std::string(reinterpret_cast<const char*>(of.BitmapInfo()), 40U + 8U);
    };
    EXPECT_EQ(bytesOf(fresh), bytesOf(image)) << "with the gap at the end of each row";
    DIB bottomUp = FromLetters("R|G", 24);
    ASSERT_GT(bottomUp.BitmapInfo()->bmiHeader.biHeight, 0);
    ASSERT_TRUE(bottomUp.HQResize(1, 2, &source));
    EXPECT_EQ(bytesOf(fresh), bytesOf(bottomUp)) << "another order of rows";
    image.BitmapInfo()->bmiHeader.biXPelsPerMeter = 3000;
    ASSERT_TRUE(image.HQResize(1, 2, &source));
    EXPECT_EQ(bytesOf(fresh), bytesOf(image)) << "nothing of the former picture stays";
    DIB section(1, -2, 24, 0, 1, nullptr, nullptr);
    ASSERT_TRUE(section.HQResize(1, 2, &source));
    EXPECT_EQ(section.DIBSect(), nullptr);
    EXPECT_EQ(bytesOf(fresh), bytesOf(section));
    DIB indices(1, -2, 24, 1, 0, nullptr, nullptr);
    ASSERT_TRUE(indices.HQResize(1, 2, &source));
    EXPECT_EQ(indices.Usage(), 0);
}

TEST(DibHQResize, ImpossibleSizesChangeNothing)
{
    DIB source = FromLetters("R");
    DIB empty;
    DIB image = FromLetters("G");
    EXPECT_FALSE(image.HQResize(0, 1, &source));
    EXPECT_FALSE(image.HQResize(1, -3, &source));
    EXPECT_FALSE(image.HQResize(1, 1, &empty));
    EXPECT_FALSE(image.HQResize(1, 1, nullptr));
    EXPECT_FALSE(image.HQResize(std::numeric_limits<int>::max(), std::numeric_limits<int>::max(), &source));
    EXPECT_EQ(Colors(image), "G");
}

TEST(DibRotate, QuarterTurnsAreExact)
{
    for (const int depth : {24, 32})
    {
        const DIB image = FromLetters("RGB|Y.#", depth);
        EXPECT_EQ(Rotated(image, 0, 0), "RGB|Y.#");
        EXPECT_EQ(Rotated(image, 90, 1), "YR|.G|#B");
        EXPECT_EQ(Rotated(image, 180, 0), "#.Y|BGR");
        EXPECT_EQ(Rotated(image, 270, 1), "B#|G.|RY");
        EXPECT_EQ(Rotated(image, -90, 1), "B#|G.|RY");
        EXPECT_EQ(Rotated(image, 360, 1), "RGB|Y.#");
        EXPECT_EQ(Rotated(image, 720 + 90, 1), "YR|.G|#B");
    }
}

TEST(DibRotate, KeepsSizeOrGrows)
{
    DIB image(30, 20, 24, 0, 0, nullptr, nullptr);
    const std::unique_ptr<DIB> same(image.Rotate(30, 0, 0));
    EXPECT_EQ(same->Width(), 30);
    EXPECT_EQ(same->Height(), 20);
    const std::unique_ptr<DIB> grown(image.Rotate(30, 1, RGB(255, 255, 0)));
    EXPECT_EQ(grown->Width(), 36) << "30 cos 30 + 20 sin 30 = 35.98";
    EXPECT_EQ(grown->Height(), 33) << "30 sin 30 + 20 cos 30 = 32.3";
    EXPECT_EQ(ColorOf(*grown, 0, 0), 0xFFFF00U);
    EXPECT_EQ(ColorOf(*grown, 18, 16), 0U);
}

TEST(DibRotate, KeepsDepthRowOrderAndTable)
{
    DIB image(2, -1, 4, 0, 0, nullptr, nullptr);
    SetEntry(image, 1, 0xFF0000);
    SetEntry(image, 2, 0xFFFFFF);
    image.PutPixel(1, 0, 1);
    const std::unique_ptr<DIB> turned(image.Rotate(90, 1, 0));
    EXPECT_EQ(turned->Depth(), 4);
    EXPECT_EQ(turned->BitmapInfo()->bmiHeader.biHeight, -2);
    EXPECT_EQ(Colors(*turned), "#|R");
    const std::unique_ptr<DIB> padded(image.Rotate(90, 0, RGB(250, 240, 250)));
    EXPECT_EQ(padded->Width(), 2);
    EXPECT_EQ(padded->Height(), 1);
}

TEST(DibRotate, KeepsPaletteIndices)
{
    DIB image(2, 1, 8, 1, 0, nullptr, nullptr);
    const WORD index = 77;
    std::memcpy(reinterpret_cast<unsigned char*>(image.BitmapInfo()->bmiColors) + 2 * 5, &index, sizeof index);
    image.PutPixel(1, 0, 5);
    const std::unique_ptr<DIB> turned(image.Rotate(180, 0, 0));
    ASSERT_TRUE(turned);
    EXPECT_EQ(turned->Usage(), 1);
    EXPECT_EQ(Values(*turned), "50");
    WORD kept = 0;
    std::memcpy(&kept, reinterpret_cast<unsigned char*>(turned->BitmapInfo()->bmiColors) + 2 * 5, sizeof kept);
    EXPECT_EQ(kept, 77);
    EXPECT_EQ(turned->Bits() - reinterpret_cast<unsigned char*>(turned->BitmapInfo()), 40 + 512);
}

TEST(DibRotate, KeepsPaletteIndicesInEitherRowOrder)
{
    for (const int height : {2, -2})
    {
        DIB image(2, height, 4, 1, 0, nullptr, nullptr);
        for (int i = 0; i < 4; ++i)
            image.PutPixel(i % 2, i / 2, static_cast<DWORD>(i + 1));
        const std::unique_ptr<DIB> turned(image.Rotate(90, 0, 0));
        ASSERT_TRUE(turned);
        EXPECT_EQ(Values(*turned), "31|42");
        EXPECT_EQ(turned->BitmapInfo()->bmiHeader.biHeight, height);
    }
}

TEST(DibRotate, NothingOfNoImageOrNoAngle)
{
    EXPECT_EQ(DIB().Rotate(90, 1, 0), nullptr);
    EXPECT_EQ(FromLetters("R").Rotate(std::nan(""), 1, 0), nullptr);
    EXPECT_EQ(FromLetters("R").Rotate(std::numeric_limits<double>::infinity(), 0, 0), nullptr);
}

TEST(DibMask, OneWhereTheColourMatches)
{
    for (const bool isTopDown : {false, true})
    {
        DIB image = FromLetters("RG|YR", 24, isTopDown);
        const std::unique_ptr<Image> mask(image.BuildMask(255, 0, 0));
        const auto& bits = dynamic_cast<const DIB&>(*mask);
        EXPECT_EQ(bits.Depth(), 1);
        EXPECT_EQ(bits.Width(), 2);
        EXPECT_EQ(Values(bits), "10|01");
        EXPECT_EQ(Colors(bits), ".#|#.");
    }
}

TEST(DibMask, GoesThroughTheTable)
{
    DIB image(3, 1, 8, 0, 0, nullptr, nullptr);
    SetEntry(image, 1, 0x010203);
    SetEntry(image, 2, 0x010203);
    image.PutPixel(1, 0, 1);
    image.PutPixel(2, 0, 2);
    const std::unique_ptr<Image> mask(image.BuildMask(1, 2, 3));
    EXPECT_EQ(Values(dynamic_cast<const DIB&>(*mask)), "011");
    DIB empty;
    EXPECT_EQ(empty.BuildMask(0, 0, 0), nullptr);
}

TEST(DibMask, NoPixelHasNumbersBeyond255)
{
    DIB image = FromLetters("#.R");
    for (const auto& [r, g, b] : {std::tuple{256, 0, 0}, {-1, -1, -1}, {255, 256, 0}, {0, 0, 1 << 24}, {511, 255, 255}})
    {
        const std::unique_ptr<Image> mask(image.BuildMask(r, g, b));
        EXPECT_EQ(Values(dynamic_cast<const DIB&>(*mask)), "000") << r << ' ' << g << ' ' << b;
    }
}

/// The cursor over white, and over black: what is transparent shows the ground.
struct CursorLook
{
    std::string onWhite;
    std::string onBlack;
};

CursorLook LookOf(HICON cursor, int width, int height)
{
    const DrawnOn white(width, height);
    DrawIconEx(white.Dc(), 0, 0, cursor, width, height, 0, nullptr, DI_NORMAL);
    const DrawnOn black(width, height);
    PatBlt(black.Dc(), 0, 0, width, height, BLACKNESS);
    DrawIconEx(black.Dc(), 0, 0, cursor, width, height, 0, nullptr, DI_NORMAL);
    return {white.Text(), black.Text()};
}

TEST(DibCursor, MatchingColourIsTransparent)
{
    const HICON cursor = FromLetters("RG|BY").BuildCursor(nullptr, 2, 2, 1, 0, 0, 255, 0);
    ASSERT_NE(cursor, nullptr);
    const CursorLook look = LookOf(cursor, 2, 2);
    EXPECT_EQ(look.onWhite, "R.|BY");
    EXPECT_EQ(look.onBlack, "R#|BY");
    ICONINFO facts{};
    ASSERT_TRUE(GetIconInfo(cursor, &facts));
    EXPECT_FALSE(facts.fIcon) << "a cursor";
    EXPECT_EQ(facts.xHotspot, 1U);
    EXPECT_EQ(facts.yHotspot, 0U);
    DeleteObject(facts.hbmMask);
    DeleteObject(facts.hbmColor);
    EXPECT_TRUE(DestroyCursor(cursor));
}

TEST(DibCursor, PictureIsBroughtToTheSize)
{
    const HICON cursor = FromLetters("RG|BY", 24, true).BuildCursor(nullptr, 4, 2, 0, 0, 1, 2, 3);
    ASSERT_NE(cursor, nullptr);
    EXPECT_EQ(LookOf(cursor, 4, 2).onWhite, "RRGG|BBYY");
    DestroyCursor(cursor);
    const HICON wide = FromLetters("RG").BuildCursor(nullptr, 33, 1, 0, 0, 255, 0, 0);
    ASSERT_NE(wide, nullptr);
    EXPECT_EQ(LookOf(wide, 33, 1).onWhite, std::string(16, '.') + std::string(17, 'G'));
    DestroyCursor(wide);
}

TEST(DibCursor, IsNowhereTransparentWithANumberBeyond255)
{
    const HICON cursor = FromLetters("#.").BuildCursor(nullptr, 2, 1, 0, 0, -1, -1, -1);
    ASSERT_NE(cursor, nullptr);
    EXPECT_EQ(LookOf(cursor, 2, 1).onBlack, "#.");
    EXPECT_EQ(LookOf(cursor, 2, 1).onWhite, "#.");
    DestroyCursor(cursor);
}

TEST(DibCursor, NoneOfNoImageOrSize)
{
    EXPECT_EQ(DIB().BuildCursor(nullptr, 32, 32, 0, 0, 0, 0, 0), nullptr);
    EXPECT_EQ(FromLetters("R").BuildCursor(nullptr, 0, 1, 0, 0, 0, 0, 0), nullptr);
    EXPECT_EQ(FromLetters("R").BuildCursor(nullptr, 1, -1, 0, 0, 0, 0, 0), nullptr);
}
} // namespace
