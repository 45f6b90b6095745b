#include "files/core/PaletteCells.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
#include <random>
#include <vector>

namespace
{

/// Answers a colour's red, and remembers what it was asked.
class Asked
{
public:
    BYTE operator()(BYTE red, BYTE green, BYTE blue)
    {
        m_colors.push_back(red << 16 | green << 8 | blue);
        return red;
    }
    const std::vector<int>& Colors() const
    {
        return m_colors;
    }

private:
    std::vector<int> m_colors;
};

/// Every 7th answer is one that is not kept.
BYTE SomeIndex(BYTE red, BYTE green, BYTE blue)
{
    const int sum = red * 3 + green * 5 + blue;
    return static_cast<BYTE>(sum % 7 == 0 ? 255 : sum);
}

/// By rows what is found pixel by pixel, at each resolution; nothing is written behind the row.
void ExpectIndicesOf(const std::vector<BYTE>& pixels)
{
    const std::size_t count = pixels.size() / 4;
    for (const int resolution : {1, 2, 4, 5, 8, 16, 32, 64, 100, 128, 256})
    {
        vorn::PaletteCells byRow(resolution);
        vorn::PaletteCells byPixel(resolution);
        std::vector<BYTE> indices(count + 1, 77);
        byRow.IndicesOf(pixels.data(), indices.data(), static_cast<int>(count), SomeIndex);
        for (std::size_t i = 0; i < count; ++i)
        {
            ASSERT_EQ(byPixel.IndexOf(pixels[i * 4 + 2], pixels[i * 4 + 1], pixels[i * 4], SomeIndex), indices[i])
                << resolution << ' ' << count << ' ' << i;
        }
        EXPECT_EQ(77, indices.back());
    }
}

TEST(PaletteCells, ARowHasTheIndicesOfItsPixels)
{
    for (const int count : {0, 1, 3, 4, 7, 15, 16, 17, 300})
    {
        std::vector<BYTE> pixels;
        for (int i = 0; i < count * 4; ++i)
        {
            pixels.push_back(static_cast<BYTE>(i * 37 + i / 11));
        }
        ExpectIndicesOf(pixels);
    }
}

TEST(PaletteCells, ARowOfFewColoursHasTheIndicesOfItsPixels)
{
    std::mt19937 random(1903);
    for (int round = 0; round < 6; ++round)
    {
        std::vector<BYTE> pixels;
        for (unsigned run = 0; run < 60; ++run)
        {
            const auto color = static_cast<std::uint32_t>(random());
            const bool isClear = random() % 2 == 0; // the fourth byte has no meaning
            for (auto length = 1 + random() % (run % 3 == 0 ? 70 : 5); length > 0; --length)
            {
                for (const int shift : {0, 8, 16})
                {
                    pixels.push_back(static_cast<BYTE>(color >> shift));
                }
                pixels.push_back(static_cast<BYTE>(isClear ? 255 : random()));
            }
        }
        ExpectIndicesOf(pixels);
    }
}

TEST(PaletteCells, AKnownCellAnswersForLongRuns)
{
    vorn::PaletteCells cells(32);
    Asked asked;
    const std::vector<BYTE> pixels(std::size_t{4} * 100, 40);
    std::vector<BYTE> indices(100);
    cells.IndicesOf(pixels.data(), indices.data(), 100, asked);
    cells.IndicesOf(pixels.data(), indices.data(), 100, asked);
    EXPECT_EQ(asked.Colors(), std::vector<int>{0x282828});
    EXPECT_EQ(indices, std::vector<BYTE>(100, 40));
}

} // namespace

TEST(PaletteCells, TheFirstColourOfACellDecidesForAll)
{
    vorn::PaletteCells cells(16);
    Asked asked;
    EXPECT_EQ(cells.IndexOf(3, 0, 0, asked), 3);
    EXPECT_EQ(cells.IndexOf(15, 15, 15, asked), 3);
    EXPECT_EQ(cells.IndexOf(0, 0, 0, asked), 3);
    EXPECT_EQ(cells.IndexOf(16, 15, 15, asked), 16);
    EXPECT_EQ(asked.Colors(), (std::vector<int>{0x030000, 0x100F0F}));
}

TEST(PaletteCells, TheColourItselfIsAskedNotTheCellsMiddle)
{
    vorn::PaletteCells cells(8);
    Asked asked;
    cells.IndexOf(33, 70, 250, asked);
    EXPECT_EQ(asked.Colors(), std::vector<int>{0x2146FA});
}

TEST(PaletteCells, TheAnswer255IsAskedAgainEveryTime)
{
    vorn::PaletteCells cells(1);
    Asked asked;
    EXPECT_EQ(cells.IndexOf(255, 1, 2, asked), 255);
    EXPECT_EQ(cells.IndexOf(255, 3, 4, asked), 255);
    EXPECT_EQ(cells.IndexOf(254, 5, 6, asked), 254);
    EXPECT_EQ(cells.IndexOf(255, 7, 8, asked), 254);
    EXPECT_EQ(asked.Colors().size(), 3U);
}

TEST(PaletteCells, ResetForgetsEveryAnswer)
{
    vorn::PaletteCells cells(32);
    Asked asked;
    for (int round = 0; round < 3; ++round)
    {
        cells.IndexOf(0, 0, 0, asked);
        cells.IndexOf(200, 200, 200, asked);
        cells.IndexOf(200, 200, 200, asked);
        cells.Reset();
    }
    EXPECT_EQ(asked.Colors().size(), 6U);
}

TEST(PaletteCells, RedIsOutermost)
{
    const vorn::PaletteCells cells(16);
    EXPECT_EQ(cells.CellOf(0, 0, 0), 0U);
    EXPECT_EQ(cells.CellOf(0, 0, 16), 1U);
    EXPECT_EQ(cells.CellOf(0, 16, 0), 16U);
    EXPECT_EQ(cells.CellOf(16, 0, 0), 256U);
    EXPECT_EQ(cells.CellOf(255, 255, 255), 4095U);
}

TEST(PaletteCells, EveryColourHasACellWhateverTheResolution)
{
    for (const int resolution : {1, 2, 3, 5, 8, 16, 32, 64, 85, 100, 127, 128, 129})
    {
        const vorn::PaletteCells cells(resolution);
        ASSERT_EQ(cells.Resolution(), resolution);
        const int step = 256 / resolution;
        for (int value = 0; value < 256; ++value)
        {
            const BYTE channel = static_cast<BYTE>(value);
            const std::size_t wanted =
                static_cast<std::size_t>(value / step < resolution ? value / step : resolution - 1);
            const std::size_t side = static_cast<std::size_t>(resolution);
            ASSERT_EQ(cells.CellOf(0, 0, channel), wanted) << resolution << ' ' << value;
            ASSERT_EQ(cells.CellOf(0, channel, 0), wanted * side);
            ASSERT_EQ(cells.CellOf(channel, 0, 0), wanted * side * side);
        }
        ASSERT_EQ(cells.CellOf(255, 255, 255),
                  static_cast<std::size_t>(resolution) * static_cast<std::size_t>(resolution * resolution) - 1);
    }
}

TEST(PaletteCells, ResolutionsAreClamped)
{
    EXPECT_EQ(vorn::PaletteCells(0).Resolution(), 1);
    EXPECT_EQ(vorn::PaletteCells(-5).Resolution(), 1);
    EXPECT_EQ(vorn::PaletteCells(INT_MIN).Resolution(), 1);
    vorn::PaletteCells finest(INT_MAX);
    EXPECT_EQ(finest.Resolution(), 256);
    Asked asked;
    EXPECT_EQ(finest.IndexOf(254, 255, 255, asked), 254);
    EXPECT_EQ(finest.IndexOf(253, 255, 255, asked), 253);
    EXPECT_EQ(finest.IndexOf(254, 255, 255, asked), 254);
    EXPECT_EQ(asked.Colors().size(), 2U);
}

TEST(PaletteCells, ASearchRunsOnceACell)
{
    vorn::PaletteCells cells(4);
    Asked asked;
    for (int color = 0; color < 1 << 15; ++color)
    {
        cells.IndexOf(static_cast<BYTE>((color >> 10) * 8), static_cast<BYTE>((color >> 5 & 31) * 8),
                      static_cast<BYTE>((color & 31) * 8), asked);
    }
    EXPECT_EQ(asked.Colors().size(), 64U);
}
