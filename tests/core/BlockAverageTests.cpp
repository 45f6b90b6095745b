#include "files/core/BlockAverage.h"
#include "files/core/PackedImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace
{
using vorn::BlockAverage;
using vorn::ImageView;
using vorn::PackedImage;

constexpr unsigned char kUntouched = 0xA5;

PackedImage Noise(std::mt19937& random, int width, int height, int depth)
{
    PackedImage image = PackedImage::Make(width, height, depth);
    std::ranges::generate(image.Block().subspan(image.BitsOffset()),
                          [&]
                          {
                              return static_cast<unsigned char>(random());
                          });
    return image;
}

/// The rounded average of one channel of a block, from the definition.
int Expected(const ImageView& source, int firstRow, int block, int across, int down, int channel)
{
    int sum = 0;
    for (int y = firstRow; y < firstRow + down; ++y)
        for (int x = block * across; x < (block + 1) * across; ++x)
            sum += source.Row(y)[x * source.depth / 8 + channel];
    return (sum + across * down / 2) / (across * down);
}

std::vector<unsigned char> ExpectedRow(const ImageView& source, int firstRow, int across, int down)
{
    std::vector<unsigned char> row;
    for (int block = 0; block < source.width / across; ++block)
        for (int channel = 0; channel < source.depth / 8; ++channel)
            row.push_back(static_cast<unsigned char>(Expected(source, firstRow, block, across, down, channel)));
    return row;
}

/// The row and one byte behind it.
std::vector<unsigned char> MadeRow(BlockAverage& average, int firstRow, std::size_t size)
{
    std::vector<unsigned char> row(size + 1, kUntouched);
    average.MakeRow(firstRow, row.data());
    return row;
}
} // namespace

TEST(BlockAverage, IsTheRoundedAverageAtEveryWidth)
{
    std::mt19937 random(4211);
    for (int width = 1; width <= 70; ++width)
        for (int across = 1; across <= std::min(width, 9); ++across)
        {
            const int down = across == 1 ? 2 + static_cast<int>(random() % 8) : 1 + static_cast<int>(random() % 9);
            const int height = random() % 2 == 0 ? 2 * down : -2 * down;
            const PackedImage source = Noise(random, width, height, random() % 2 == 0 ? 24 : 32);
            BlockAverage average(source.View(), across, down);
            for (const int firstRow : {down, 0})
            {
                std::vector<unsigned char> expected = ExpectedRow(source.View(), firstRow, across, down);
                const std::size_t size = expected.size();
                expected.push_back(kUntouched);
                ASSERT_EQ(expected, MadeRow(average, firstRow, size))
                    << width << " wide, blocks of " << across << " x " << down << ", row " << firstRow;
            }
        }
}

TEST(BlockAverage, TallBlocksAreSummedWhole)
{
    std::mt19937 random(4212);
    for (const auto& [across, down] : {std::pair{1, 256}, {2, 128}, {3, 85}, {1, 255}, {1, 63}, {1, 62}, {1, 61}})
    {
        const PackedImage source = Noise(random, across * 7, down, 24);
        BlockAverage average(source.View(), across, down);
        std::vector<unsigned char> expected = ExpectedRow(source.View(), 0, across, down);
        const std::size_t size = expected.size();
        expected.push_back(kUntouched);
        ASSERT_EQ(expected, MadeRow(average, 0, size)) << across << " x " << down;
    }
}

/// On either side of each half, where a quotient one too low or too high shows.
TEST(BlockAverage, HalvesAreRoundedUpForEveryNumberOfPixels)
{
    constexpr int kValues = 255;
    for (int pixels = 2; pixels <= BlockAverage::kMostPixels; ++pixels)
    {
        PackedImage source = PackedImage::Make(kValues * 2 * pixels, 1, 24);
        std::vector<unsigned char> expected;
        for (int block = 0; block < kValues * 2; ++block)
        {
            const int value = block / 2;
            const int raised = (pixels + 1) / 2 - (block % 2 == 0 ? 1 : 0); // pixels that are 1 more than the value
            unsigned char* to = source.Canvas().Row(0) + std::ptrdiff_t{block} * pixels * 3;
            std::fill_n(to, pixels * 3, static_cast<unsigned char>(value));
            std::fill_n(to, raised * 3, static_cast<unsigned char>(value + 1));
            expected.insert(expected.end(), 3, static_cast<unsigned char>(block % 2 == 0 ? value : value + 1));
        }
        BlockAverage average(source.View(), pixels, 1);
        const std::size_t size = expected.size();
        expected.push_back(kUntouched);
        ASSERT_EQ(expected, MadeRow(average, 0, size)) << pixels;
    }
}

TEST(BlockAverage, WhiteStaysWhiteForEveryNumberOfPixels)
{
    for (int pixels = 2; pixels <= BlockAverage::kMostPixels; ++pixels)
    {
        PackedImage source = PackedImage::Make(3, pixels, 32);
        std::ranges::fill(source.Block().subspan(source.BitsOffset()), static_cast<unsigned char>(255));
        BlockAverage average(source.View(), 1, pixels);
        std::vector<unsigned char> row(12);
        average.MakeRow(0, row.data());
        ASSERT_EQ(std::vector<unsigned char>(12, 255), row) << pixels;
    }
}
