#include "files/core/ImagePixels.h"
#include "files/core/PngRows.h"
#include "tests/support/MadePicture.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using vorn::ColorAt;
using vorn::ImageView;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::PngFilter;
using vorn::PngRows;
using vorn::test::Made;
using vorn::test::Noise;

/// The bytes that a decoder makes of the rows, by the definition of the filters.
std::vector<std::vector<unsigned char>> Decoded(const ImageView& image, bool hasAlpha, PngFilter filter,
                                                std::size_t pixelBytes)
{
    PngRows rows(image, hasAlpha, filter);
    EXPECT_TRUE(rows.IsReady());
    std::vector<std::vector<unsigned char>> all;
    std::vector<unsigned char> above(rows.Size() - 1);
    std::vector<unsigned char> line(rows.Size());
    for (int y = 0; y < image.height; ++y)
    {
        rows.Next(line.data());
        EXPECT_EQ(line[0], static_cast<unsigned char>(filter));
        std::vector<unsigned char> row(line.begin() + 1, line.end());
        for (std::size_t i = 0; i < row.size(); ++i)
        {
            const unsigned left = i >= pixelBytes ? row[i - pixelBytes] : 0;
            const unsigned base = filter == PngFilter::Sub ? left : filter == PngFilter::Up ? above[i] : 0;
            row[i] = static_cast<unsigned char>(row[i] + base);
        }
        above = row;
        all.push_back(std::move(row));
    }
    return all;
}

constexpr PngFilter kFilters[] = {PngFilter::None, PngFilter::Sub, PngFilter::Up};
constexpr int kWidths[] = {1, 2, 3, 4, 5, 6, 7, 8, 11, 16, 17, 21, 33, 64};

TEST(PngRows, ColorsComeRedFirstWithEachFilter)
{
    for (const int depth : {24, 32})
        for (const int width : kWidths)
            for (const PngFilter filter : kFilters)
            {
                const PackedImage image = Made(width, 4, depth, Noise);
                const auto rows = Decoded(image.View(), false, filter, 3);
                for (int y = 0; y < 4; ++y)
                    for (int x = 0; x < width; ++x)
                    {
                        const vorn::Rgb color = ColorAt(image.View(), x, y);
                        const unsigned char* at = &rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x) * 3];
                        ASSERT_EQ((vorn::Rgb{at[0], at[1], at[2]}), color) << width << " at " << x << ", " << y;
                    }
            }
}

TEST(PngRows, FourthBytesStayTheLast)
{
    for (const int width : kWidths)
        for (const PngFilter filter : kFilters)
        {
            PackedImage image = Made(width, -3, 32, Noise);
            for (int y = 0; y < 3; ++y)
                for (int x = 0; x < width; ++x)
                    image.Canvas().Row(y)[x * 4 + 3] = static_cast<unsigned char>(x * 7 + y);
            const auto rows = Decoded(image.View(), true, filter, 4);
            for (int y = 0; y < 3; ++y)
                for (int x = 0; x < width; ++x)
                {
                    const unsigned char* stored = image.View().Row(y) + x * 4;
                    const unsigned char* at = &rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x) * 4];
                    ASSERT_EQ(std::string(at, at + 4),
                              std::string({static_cast<char>(stored[2]), static_cast<char>(stored[1]),
                                           static_cast<char>(stored[0]), static_cast<char>(stored[3])}));
                }
        }
}

TEST(PngRows, IndicesArePackedAsTheyAre)
{
    for (const int depth : {1, 4, 8})
        for (const int width : kWidths)
            for (const PngFilter filter : kFilters)
            {
                const PackedImage image = Made(width, 3, depth, Noise);
                const auto rows = Decoded(image.View(), false, filter, 1);
                for (int y = 0; y < 3; ++y)
                {
                    ASSERT_EQ(rows[static_cast<std::size_t>(y)].size(),
                              static_cast<std::size_t>((width * depth + 7) / 8));
                    for (int x = 0; x < width; ++x)
                        ASSERT_EQ(vorn::StoredPixel(rows[static_cast<std::size_t>(y)].data(), x, depth),
                                  PixelAt(image.View(), x, y));
                }
            }
}

TEST(PngRows, AnyRowCanBeTheNext)
{
    for (const int depth : {8, 16, 24, 32})
        for (const PngFilter filter : kFilters)
        {
            const PackedImage image = Made(9, 6, depth, Noise);
            const ImageView view = image.View();
            PngRows rows(view, false, filter);
            std::vector<std::string> inOrder;
            std::string line(rows.Size(), '\0');
            const auto next = [&]
            {
                rows.Next(reinterpret_cast<unsigned char*>(line.data()));
                return line;
            };
            for (int y = 0; y < 6; ++y)
                inOrder.push_back(next());
            for (const std::size_t y : {4u, 0u, 1u, 3u})
            {
                rows.GoTo(static_cast<int>(y));
                EXPECT_EQ(next(), inOrder[y]) << depth << ": " << y;
                EXPECT_EQ(next(), inOrder[y + 1]) << depth << ": behind " << y;
            }
        }
}
} // namespace
