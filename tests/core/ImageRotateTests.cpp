#include "files/core/ImagePixels.h"
#include "files/core/ImageRotate.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{
using vorn::ColorAt;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::Rgb;
using vorn::Rotate;
using vorn::SetPixelAt;

/// Pixels that count up from 1, left to right and down.
PackedImage Counted(int width, int height, int depth)
{
    PackedImage image = PackedImage::Make(width, height, depth);
    image.SetTableColor(0, {255, 255, 255});
    for (int i = 0; i < width * std::abs(height); ++i)
        SetPixelAt(image.Canvas(), i % width, i / width, static_cast<DWORD>(i + 1));
    return image;
}

/// The pixels, rows divided by a bar.
std::string Picture(const PackedImage& image)
{
    std::string text;
    for (int y = 0; y < image.View().height; ++y)
    {
        text += y == 0 ? "" : "|";
        for (int x = 0; x < image.View().width; ++x)
            text += static_cast<char>('0' + PixelAt(image.View(), x, y));
    }
    return text;
}

TEST(Rotate, QuarterTurnsAreExactAndClockwise)
{
    for (const int depth : {4, 8, 16, 24, 32})
        for (const int height : {2, -2})
        {
            const PackedImage source = Counted(3, height, depth); // 123|456
            EXPECT_EQ(Picture(Rotate(source.View(), 90, true, {})), "41|52|63");
            EXPECT_EQ(Picture(Rotate(source.View(), 180, true, {})), "654|321");
            EXPECT_EQ(Picture(Rotate(source.View(), 270, true, {})), "36|25|14");
            EXPECT_EQ(Picture(Rotate(source.View(), -90, true, {})), "36|25|14");
            EXPECT_EQ(Picture(Rotate(source.View(), 450, true, {})), "41|52|63");
            EXPECT_EQ(Picture(Rotate(source.View(), 180, false, {})), "654|321");
        }
}

TEST(Rotate, ByNothingIsTheSamePicture)
{
    for (const int depth : {1, 4, 8, 16, 24, 32})
        for (const bool grows : {false, true})
        {
            const PackedImage source = Counted(7, -5, depth);
            for (const double degrees : {0.0, -0.0, 360.0, -720.0})
            {
                const PackedImage made = Rotate(source.View(), degrees, grows, {});
                EXPECT_EQ(Picture(made), Picture(source));
                EXPECT_EQ(made.Header().biHeight, -5);
                EXPECT_EQ(made.Header().biBitCount, depth);
            }
        }
}

TEST(Rotate, KeepsTheTable)
{
    PackedImage source = PackedImage::Make(2, 2, 8);
    source.SetTableColor(255, {1, 2, 3});
    EXPECT_EQ(Rotate(source.View(), 45, true, {}).TableColor(255), (Rgb{1, 2, 3}));
}

TEST(Rotate, ThePictureStaysInItsMiddle)
{
    const PackedImage source = Counted(3, 1, 8); // turned upright in the same size, its middle is left
    EXPECT_EQ(Picture(Rotate(source.View(), 90, false, {255, 255, 255})), "020");
}

TEST(Rotate, TheBackgroundIsTheNearestEntry)
{
    PackedImage source = PackedImage::Make(3, 1, 8);
    source.SetTableColor(7, {250, 10, 10});
    EXPECT_EQ(Picture(Rotate(source.View(), 90, false, {255, 0, 0})), "707");
    const PackedImage colored = Rotate(PackedImage::Make(3, 1, 24).View(), 90, false, {1, 2, 3});
    EXPECT_EQ(ColorAt(colored.View(), 0, 0), (Rgb{1, 2, 3}));
    EXPECT_EQ(ColorAt(colored.View(), 1, 0), (Rgb{0, 0, 0}));
}

TEST(Rotate, GrowsToHoldAll)
{
    // 100 x 40 by 30 degrees: 100 cos + 40 sin = 106.6, 100 sin + 40 cos = 84.6.
    const PackedImage made = Rotate(Counted(100, 40, 8).View(), 30, true, {});
    EXPECT_EQ(made.View().width, 107);
    EXPECT_EQ(made.View().height, 85);
    const PackedImage kept = Rotate(Counted(100, 40, 8).View(), 30, false, {});
    EXPECT_EQ(kept.View().width, 100);
    EXPECT_EQ(kept.View().height, 40);
}

TEST(Rotate, TakesTheNearestPixelOfTables)
{
    // The middle of each pixel of a 4 x 4 chessboard of 2 x 2 squares, turned by 20 degrees, is nearest to one square.
    PackedImage source = PackedImage::Make(4, -4, 8);
    for (int i = 0; i < 16; ++i)
        SetPixelAt(source.Canvas(), i % 4, i / 4, i % 4 / 2 == i / 8 ? 1 : 2);
    const PackedImage made = Rotate(source.View(), 20, false, {});
    for (int y = 1; y < 3; ++y)
        for (int x = 1; x < 3; ++x)
            EXPECT_EQ(PixelAt(made.View(), x, y), PixelAt(source.View(), x, y));
}

TEST(Rotate, MixesTheFourNearestColors)
{
    // By 45 degrees, the middle of 2 x 2 pixels is the middle of a single one in a picture of 3 x 3: the mean of all
    // four.
    PackedImage source = PackedImage::Make(2, -2, 24);
    const DWORD values[] = {10, 20, 40, 80};
    for (int i = 0; i < 4; ++i)
        SetPixelAt(source.Canvas(), i % 2, i / 2, values[i]);
    const PackedImage made = Rotate(source.View(), 45, true, {});
    ASSERT_EQ(made.View().width, 3);
    ASSERT_EQ(made.View().height, 3);
    EXPECT_EQ(ColorAt(made.View(), 1, 1), (Rgb{38, 0, 0})); // 37.5
}

TEST(Rotate, OneColorStaysItselfInside)
{
    for (const int depth : {16, 24, 32})
    {
        PackedImage source = PackedImage::Make(40, 40, depth);
        const DWORD color = depth == 16 ? 0x3A5C : 0x705030;
        for (int i = 0; i < 1600; ++i)
            SetPixelAt(source.Canvas(), i % 40, i / 40, color);
        const PackedImage made = Rotate(source.View(), 33.3, false, {});
        for (int y = 10; y < 30; ++y)
            for (int x = 10; x < 30; ++x)
                ASSERT_EQ(PixelAt(made.View(), x, y), color);
    }
}

TEST(Rotate, RefusesWhatCannotBeTurned)
{
    const PackedImage source = Counted(2, 2, 8);
    EXPECT_TRUE(Rotate(source.View(), std::numeric_limits<double>::quiet_NaN(), true, {}).IsEmpty());
    EXPECT_TRUE(Rotate(source.View(), std::numeric_limits<double>::infinity(), true, {}).IsEmpty());
    EXPECT_TRUE(Rotate(PackedImage().View(), 10, true, {}).IsEmpty());
    EXPECT_FALSE(Rotate(source.View(), 1e300, true, {}).IsEmpty());
}
TEST(ImageRotate, KeepsMasks)
{
    for (const int depth : {16, 32})
    {
        PackedImage image = PackedImage::MakeMasked(2, 1, depth, {0xF800, 0x07E0, 0x001F});
        vorn::StorePixel(image.Canvas().Row(0), 0, depth, 0xFFE0);
        vorn::StorePixel(image.Canvas().Row(0), 1, depth, 0x0801);
        const PackedImage turned = vorn::Rotate(image.View(), 90, true, {});
        ASSERT_TRUE(turned.View().isMasked);
        EXPECT_EQ(vorn::StoredPixel(turned.View().Row(0), 0, depth), 0xFFE0u);
        EXPECT_EQ(vorn::StoredPixel(turned.View().Row(1), 0, depth), 0x0801u);
        const PackedImage large = PackedImage::MakeMasked(20, 20, depth, {0xF800, 0x07E0, 0x001F});
        const PackedImage grown = vorn::Rotate(large.View(), 45, true, {255, 0, 0});
        EXPECT_EQ(vorn::ColorAt(grown.View(), 0, 0), (vorn::Rgb{255, 0, 0})) << "the background by the masks";
    }
}
} // namespace
