#include "files/core/ImagePixels.h"
#include "files/core/ImageResize.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{
using vorn::BoxResize;
using vorn::ColorAt;
using vorn::PackedImage;
using vorn::Rgb;
using vorn::SetPixelAt;

/// Colours without a pattern, the same each time.
PackedImage Noise(int width, int height, int depth)
{
    PackedImage image = PackedImage::Make(width, height, depth);
    unsigned state = 12345;
    for (int y = 0; y < image.View().height; ++y)
        for (int i = 0; i < width * depth / 8; ++i)
        {
            state = state * 1664525 + 1013904223;
            image.Canvas().Row(y)[i] = static_cast<unsigned char>(state >> 24);
        }
    return image;
}

/// How much of one axis' source pixel the pixel covers, as a fraction of the pixel.
double Share(int source, int pixel, int sourceSize, int size)
{
    if (size >= sourceSize)
        return source == static_cast<int>((pixel + 0.5) * sourceSize / size) ? 1 : 0;
    const double scale = static_cast<double>(sourceSize) / size;
    const double begin = std::max<double>(source, pixel * scale);
    const double end = std::min<double>(source + 1, (pixel + 1) * scale);
    return std::max(0.0, end - begin) / scale;
}

/// The average by area of one channel, from the definition.
double Expected(const vorn::ImageView& source, int channel, int x, int y, int width, int height)
{
    double sum = 0;
    for (int sy = 0; sy < source.height; ++sy)
        for (int sx = 0; sx < source.width; ++sx)
            sum += Share(sx, x, source.width, width) * Share(sy, y, source.height, height) *
                   source.Row(sy)[sx * source.depth / 8 + channel];
    return sum;
}

TEST(PutResized, GivesTheBytesThatANewImageHas)
{
    for (const int depth : {8, 24, 32})
        for (const auto& [width, height] : {std::pair{3, 5}, {6, 4}, {5, 3}, {13, 9}})
        {
            const PackedImage source = Noise(12, 8, depth);
            const PackedImage made = BoxResize(source.View(), width, height);
            PackedImage target = made.Clone();
            std::ranges::fill(target.Block().subspan(target.BitsOffset()), static_cast<unsigned char>(0x55));
            EXPECT_TRUE(vorn::PutResized(target.Canvas(), source.View()));
            EXPECT_TRUE(std::ranges::equal(made.Block(), target.Block())) << depth << ' ' << width << ' ' << height;
        }
}

TEST(PutResized, TakesNoImageThatIsNotAsMade)
{
    PackedImage source = Noise(12, 8, 24);
    const auto takes = [&](PackedImage target)
    {
        return vorn::PutResized(target.Canvas(), source.View());
    };
    EXPECT_TRUE(takes(PackedImage::Make(4, -4, 24)));
    EXPECT_FALSE(takes(PackedImage::Make(4, 4, 24))) << "bottom-up";
    EXPECT_FALSE(takes(PackedImage::Make(4, -4, 32)));
    EXPECT_FALSE(takes(PackedImage::Make(4, -4, 8)));
    EXPECT_FALSE(takes(PackedImage()));
    EXPECT_FALSE(vorn::PutResized(source.Canvas(), source.View()));
    PackedImage target = PackedImage::Make(4, -4, 24);
    EXPECT_FALSE(vorn::PutResized(target.Canvas(), PackedImage().View()));
}

TEST(BoxResize, WholeNumbersOfPixelsAreAveragedExactly)
{
    for (const int depth : {24, 32})
        for (const auto& [across, down] :
             {std::pair{2, 1}, {1, 3}, {4, 4}, {3, 5}, {16, 16}, {255, 1}, {17, 15}, {20, 13}})
        {
            const PackedImage source = Noise(2 * across, 2 * down, depth);
            const PackedImage made = BoxResize(source.View(), 2, 2);
            for (int y = 0; y < 2; ++y)
                for (int i = 0; i < depth / 8 * 2; ++i)
                {
                    const int x = i / (depth / 8);
                    const int channel = i % (depth / 8);
                    const double exact = Expected(source.View(), channel, x, y, 2, 2);
                    ASSERT_NEAR(made.View().Row(y)[i], exact, 0.52) << across << " x " << down;
                }
        }
}

TEST(BoxResize, FlatColoursStayWhateverIsAveraged)
{
    for (int pixels = 1; pixels <= 300; ++pixels)
    {
        PackedImage source = PackedImage::Make(pixels, 1, 24);
        std::ranges::fill(source.Block().subspan(source.BitsOffset()), static_cast<unsigned char>(255));
        ASSERT_EQ(ColorAt(BoxResize(source.View(), 1, 1).View(), 0, 0), (Rgb{255, 255, 255})) << pixels;
    }
}

TEST(BoxResize, IsTheAverageByArea)
{
    for (const int depth : {24, 32})
        for (const auto& [width, height] :
             {std::pair{1, 1}, {4, 3}, {5, 9}, {13, 4}, {12, 8}, {6, 5}, {5, 4}, {23, 3}, {3, 20}, {30, 30}})
        {
            const PackedImage source = Noise(12, 8, depth);
            const PackedImage made = BoxResize(source.View(), width, height);
            ASSERT_EQ(made.Header().biBitCount, depth);
            ASSERT_EQ(made.Header().biHeight, -height);
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x)
                    for (int i = 0; i < depth / 8; ++i)
                        ASSERT_NEAR(made.View().Row(y)[x * depth / 8 + i],
                                    Expected(source.View(), i, x, y, width, height), 0.52)
                            << width << 'x' << height << " at " << x << ", " << y;
        }
}

TEST(BoxResize, WholeNumbersAverageExactly)
{
    PackedImage source = PackedImage::Make(4, 2, 24);
    const DWORD values[] = {10, 20, 0, 255, 30, 41, 0, 255};
    for (int i = 0; i < 8; ++i)
        SetPixelAt(source.Canvas(), i % 4, i / 4, values[i]);
    const PackedImage made = BoxResize(source.View(), 2, 1);
    EXPECT_EQ(ColorAt(made.View(), 0, 0), (Rgb{25, 0, 0}));  // 101 / 4
    EXPECT_EQ(ColorAt(made.View(), 1, 0), (Rgb{128, 0, 0})); // 127.5
}

TEST(BoxResize, OneColorStaysItself)
{
    for (const DWORD color : {DWORD{0}, DWORD{0xFFFFFF}, DWORD{0x7F8001}})
    {
        PackedImage source = PackedImage::Make(37, 29, 24);
        for (int i = 0; i < 37 * 29; ++i)
            SetPixelAt(source.Canvas(), i % 37, i / 37, color);
        for (const auto& [width, height] : {std::pair{1, 1}, {7, 5}, {36, 28}, {38, 30}, {100, 3}})
        {
            const PackedImage made = BoxResize(source.View(), width, height);
            for (int i = 0; i < width * height; ++i)
                ASSERT_EQ(vorn::PixelAt(made.View(), i % width, i / width), color) << width << 'x' << height;
        }
    }
}

TEST(BoxResize, TheSameSizeIsTheSamePicture)
{
    const PackedImage source = Noise(9, 5, 24);
    const PackedImage made = BoxResize(source.View(), 9, 5);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 9; ++x)
            EXPECT_EQ(ColorAt(made.View(), x, y), ColorAt(source.View(), x, y));
}

TEST(BoxResize, GrowingRepeatsTheNearestPixel)
{
    PackedImage source = PackedImage::Make(2, -1, 24);
    SetPixelAt(source.Canvas(), 0, 0, 1);
    SetPixelAt(source.Canvas(), 1, 0, 2);
    const PackedImage made = BoxResize(source.View(), 5, 2);
    // Middles at 0.2, 0.6, 1.0, 1.4 and 1.8 of the source.
    const DWORD row[] = {1, 1, 2, 2, 2};
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 5; ++x)
            EXPECT_EQ(vorn::PixelAt(made.View(), x, y), row[x]) << x;
}

TEST(BoxResize, TablesAndWordsBecome24Bits)
{
    PackedImage table = PackedImage::Make(2, 1, 1);
    table.SetTableColor(1, {200, 100, 50});
    SetPixelAt(table.Canvas(), 1, 0, 1);
    const PackedImage made = BoxResize(table.View(), 1, 1);
    EXPECT_EQ(made.Header().biBitCount, 24);
    EXPECT_EQ(ColorAt(made.View(), 0, 0), (Rgb{100, 50, 25}));
    EXPECT_EQ(BoxResize(PackedImage::Make(2, 1, 16).View(), 1, 1).Header().biBitCount, 24);
}

TEST(BoxResize, RefusesWhatIsNoSize)
{
    const PackedImage source = Noise(2, 2, 24);
    EXPECT_TRUE(BoxResize(source.View(), 0, 1).IsEmpty());
    EXPECT_TRUE(BoxResize(source.View(), 1, 0).IsEmpty());
    EXPECT_TRUE(BoxResize(source.View(), -3, -3).IsEmpty());
    EXPECT_TRUE(BoxResize(PackedImage().View(), 1, 1).IsEmpty());
    EXPECT_TRUE(BoxResize(PackedImage::Make(2, 0, 24).View(), 1, 1).IsEmpty());
}
TEST(BoxResize, MasksTellWhereTheChannelsAre)
{
    PackedImage source = PackedImage::MakeMasked(4, 2, 32, {0x000000FF, 0x0000FF00, 0x00FF0000});
    for (int i = 0; i < 8; ++i)
        vorn::StorePixel(source.Canvas().Row(i / 4), i % 4, 32, 0x00643214);
    for (const auto& [width, height] : {std::pair{2, 1}, {3, 2}, {9, 5}})
    {
        const PackedImage made = BoxResize(source.View(), width, height);
        ASSERT_EQ(made.Header().biBitCount, 32);
        EXPECT_EQ(ColorAt(made.View(), width - 1, height - 1), (Rgb{20, 50, 100})) << width;
    }
    PackedImage target = PackedImage::MakeMasked(2, -1, 32, {0x000000FF, 0x0000FF00, 0x00FF0000});
    EXPECT_FALSE(vorn::PutResized(target.Canvas(), source.View())) << "none is made with masks";
}
} // namespace
