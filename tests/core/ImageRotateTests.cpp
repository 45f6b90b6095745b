#include "files/core/BmpFile.h"
#include "files/core/ImagePixels.h"
#include "files/core/ImageRotate.h"
#include "tests/support/PictureBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
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
    const PackedImage hardly = Rotate(Counted(41, 41, 8).View(), 30, true, {}); // 41 (cos + sin) = 56.007
    EXPECT_EQ(hardly.View().width, 57);
    EXPECT_EQ(hardly.View().height, 57);
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
    EXPECT_TRUE(Rotate(source.View(), std::numeric_limits<double>::quiet_NaN(), false, {}).IsEmpty());
    EXPECT_TRUE(Rotate(PackedImage().View(), 10, true, {}).IsEmpty());
    EXPECT_TRUE(Rotate(PackedImage::Make(4, 0, 8).View(), 10, true, {}).IsEmpty()) << "nothing to turn";
    EXPECT_FALSE(Rotate(source.View(), 1e300, true, {}).IsEmpty());
}

/// Where the middle of a pixel of a turned picture comes from.
struct Origin
{
    double x;
    double y;
};

Origin OriginOf(const vorn::ImageView& turned, const vorn::ImageView& source, double degrees, int x, int y)
{
    const double radians = degrees * std::acos(-1.0) / 180;
    const double across = x + 0.5 - turned.width / 2.0;
    const double down = y + 0.5 - turned.height / 2.0;
    return {across * std::cos(radians) + down * std::sin(radians) + source.width / 2.0,
            down * std::cos(radians) - across * std::sin(radians) + source.height / 2.0};
}

TEST(Rotate, EachPixelOfATableIsTheOneWhereItsMiddleCameFrom)
{
    PackedImage source = PackedImage::Make(13, -9, 8);
    for (int i = 0; i < 256; ++i)
        source.SetTableColor(i, {static_cast<BYTE>(i), static_cast<BYTE>(i), static_cast<BYTE>(i)});
    for (int i = 0; i < 13 * 9; ++i)
        SetPixelAt(source.Canvas(), i % 13, i / 13, static_cast<DWORD>(i * 89 % 251));
    for (const double degrees : {20.0, 77.7, 133.3, 260.0, -41.0})
        for (const bool grows : {false, true})
        {
            const PackedImage made = Rotate(source.View(), degrees, grows, {255, 255, 255});
            for (int y = 0; y < made.View().height; ++y)
                for (int x = 0; x < made.View().width; ++x)
                {
                    const Origin from = OriginOf(made.View(), source.View(), degrees, x, y);
                    const int sourceX = static_cast<int>(std::floor(from.x));
                    const int sourceY = static_cast<int>(std::floor(from.y));
                    const bool isInside = source.View().Contains(sourceX, sourceY);
                    ASSERT_EQ(PixelAt(made.View(), x, y), isInside ? PixelAt(source.View(), sourceX, sourceY) : 255u)
                        << degrees << " at " << x << ", " << y;
                }
        }
}

TEST(Rotate, QuarterTurnsMixNothingWhereTheMiddleIsBetweenPixels)
{
    for (const int depth : {16, 24, 32})
    {
        const PackedImage source = Counted(4, 1, depth); // 1234, whose middle is an edge
        EXPECT_EQ(Picture(Rotate(source.View(), 90, false, {})), "0030");
        EXPECT_EQ(Picture(Rotate(source.View(), 270, false, {})), "0300");
    }
}

// As in the picture of 24 bits: 2 x 2 pixels turned by 45 degrees, with their mean in the middle.
TEST(Rotate, MixesChannelsWhereverTheyStand)
{
    const auto middleOf = [](PackedImage source)
    {
        const Rgb colors[] = {{0, 8, 80}, {64, 8, 0}, {128, 16, 0}, {248, 0, 0}};
        for (int i = 0; i < 4; ++i)
        {
            unsigned char* row = source.Canvas().Row(i / 2);
            vorn::StorePixel(row, i % 2, source.View().depth, vorn::StoredOfColor(source.View(), colors[i], 0));
        }
        const PackedImage made = Rotate(source.View(), 45, true, {});
        return vorn::StoredPixel(made.View().Row(1), 1, made.View().depth);
    };
    // 16 bits hold 0, 66, 132 and 255 of red, 8, 8, 16 and 0 of green, 82 of blue: means of 113, 8 and 21.
    EXPECT_EQ(middleOf(PackedImage::Make(2, -2, 16)), DWORD{14 << 10 | 1 << 5 | 2});
    EXPECT_EQ(middleOf(PackedImage::MakeMasked(2, -2, 32, {0x000000FF, 0x0000FF00, 0x00FF0000})),
              DWORD{110 | 8 << 8 | 20 << 16});
    EXPECT_EQ(middleOf(PackedImage::MakeMasked(2, -2, 32, {0x3FF00000, 0x000FFC00, 0x000003FF})),
              DWORD{110} << 22 | DWORD{8} << 12 | DWORD{20} << 2);
}

TEST(Rotate, MixesTheFourthByteToo)
{
    PackedImage source = PackedImage::Make(2, -2, 32);
    for (int i = 0; i < 4; ++i)
        source.Canvas().Row(i / 2)[i % 2 * 4 + 3] = static_cast<unsigned char>(50 * (i + 1));
    const PackedImage made = Rotate(source.View(), 45, true, {255, 255, 255});
    EXPECT_EQ(made.View().Row(1)[7], 125);
    PackedImage large = PackedImage::Make(20, -20, 32);
    std::ranges::fill(large.Block().subspan(large.BitsOffset()), static_cast<unsigned char>(255));
    EXPECT_EQ(Rotate(large.View(), 45, true, {255, 255, 255}).View().Row(0)[3], 0) << "the background has none";
}

TEST(Rotate, TheBackgroundIsAnEntryThatAPixelCanName)
{
    vorn::test::BmpParts parts;
    parts.width = 8;
    parts.depth = 1;
    parts.usedColors = 5;
    parts.behindHeader = std::string(8, '\x30') + std::string(12, '\xFF');
    parts.pixels = std::string("\xFF\0\0\0", 4);
    const PackedImage source = vorn::DecodeBmp(vorn::test::Unsigned(parts.Bytes()));
    EXPECT_EQ(Picture(Rotate(source.View(), 90, false, {255, 255, 255})), "00001000");
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
