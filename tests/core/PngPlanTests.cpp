#include "files/core/PngPlan.h"
#include "tests/support/AllPngRows.h"
#include "tests/support/MadePicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

namespace
{
using vorn::PackedImage;
using vorn::PngFilter;
using vorn::PngPlan;
using vorn::test::AllPngRows;
using vorn::test::Areas;
using vorn::test::LevelBars;
using vorn::test::Made;
using vorn::test::Noise;
using vorn::test::UprightBars;

/// Amounts that grow along the row with some noise, in each from another start.
unsigned Slopes(int x, int y)
{
    unsigned color = 0;
    for (int channel = 0; channel < 3; ++channel)
        color |= ((Noise(channel, y) + static_cast<unsigned>(x * (channel + 1)) + Noise(x, y) % 3) & 0xFF)
                 << 8 * channel;
    return color;
}

/// A letter here and there, other ones in each line, on rows that are white.
unsigned Lettering(int x, int y)
{
    const bool isLetter = y % 24 < 12 && Noise(x / 8, y / 24) % 3 > 0;
    return isLetter && Noise(static_cast<int>(Noise(x / 8, y / 24) % 26) * 8 + x % 8, y % 24) % 2 != 0 ? 0 : 0xFFFFFF;
}

PngPlan PlanOf(const PackedImage& image)
{
    return vorn::PngPlanOf(image.View(), false, vorn::PngCompressor());
}

std::size_t SizeWith(const PackedImage& image, PngFilter filter)
{
    const std::size_t size = vorn::PngCompressor().Compress(AllPngRows(image.View(), filter)).size;
    EXPECT_GT(size, 0u);
    return size;
}

/// A sample is not the whole: a tenth of the file, or a four-hundredth of the rows, may go lost.
TEST(PngPlan, TakesTheFilterThatLeavesLeast)
{
    for (const int depth : {4, 8, 24, 32})
        for (const auto& pixel : {UprightBars, LevelBars, Slopes, Lettering, Areas, Noise})
        {
            const PackedImage image = Made(300, 500, depth, pixel);
            const std::size_t sizes[] = {SizeWith(image, PngFilter::None), SizeWith(image, PngFilter::Sub),
                                         SizeWith(image, PngFilter::Up)};
            const std::size_t least = *std::min_element(std::begin(sizes), std::end(sizes));
            const std::size_t rows = AllPngRows(image.View(), PngFilter::None).size();
            EXPECT_LE(sizes[static_cast<std::size_t>(PlanOf(image).filter)], least + std::max(least / 10, rows / 400))
                << depth << ": " << sizes[0] << ", " << sizes[1] << ", " << sizes[2];
        }
}

TEST(PngPlan, BarsAndSlopesAreToldByDifferencesAndLettersAsTheyAre)
{
    EXPECT_EQ(PlanOf(Made(3000, 40, 24, UprightBars)).filter, PngFilter::Up);
    EXPECT_EQ(PlanOf(Made(400, 300, 24, Slopes)).filter, PngFilter::Sub);
    EXPECT_EQ(PlanOf(Made(500, 400, 24, Lettering)).filter, PngFilter::None);
}

TEST(PngPlan, TellsAreasFromNoise)
{
    for (const int depth : {8, 24, 32})
    {
        EXPECT_TRUE(PlanOf(Made(500, 400, depth, Areas)).isFlat);
        EXPECT_FALSE(PlanOf(Made(500, 400, depth, Noise)).isFlat);
    }
}

TEST(PngPlan, OnePixelIsEnough)
{
    for (const int depth : {1, 8, 24, 32})
        for (const auto& [width, height] : {std::pair{1, 1}, {1, 1000}, {20000, 1}, {30000, 2}})
        {
            const PackedImage image = Made(width, height, depth, Areas);
            EXPECT_GT(SizeWith(image, PlanOf(image).filter), 0u);
        }
}

} // namespace
