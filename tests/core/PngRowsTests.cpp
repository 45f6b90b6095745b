#include "files/core/ImagePixels.h"
#include "files/core/PngRead.h"
#include "files/core/PngRows.h"
#include "files/core/PngWrite.h"
#include "tests/support/PictureBytes.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace
{
using vorn::ColorAt;
using vorn::ImageView;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::PngFilter;
using vorn::PngPlanOf;
using vorn::PngRows;

/// A picture whose pixels come from a function of their place.
PackedImage Made(int width, int height, int depth, const std::function<unsigned(int, int)>& pixel)
{
    PackedImage image = PackedImage::Make(width, height, depth);
    for (int i = 0; depth <= 8 && i < 1 << depth; ++i)
        image.SetTableColor(i, {static_cast<BYTE>(i * 3), static_cast<BYTE>(i), static_cast<BYTE>(255 - i)});
    for (int y = 0; y < image.View().height; ++y)
        for (int x = 0; x < width; ++x)
            vorn::SetPixelAt(image.Canvas(), x, y, pixel(x, y));
    return image;
}

unsigned Noise(int x, int y)
{
    unsigned value = static_cast<unsigned>(x) * 374761393U + static_cast<unsigned>(y) * 668265263U;
    value = (value ^ value >> 13) * 1274126177U;
    return (value ^ value >> 16) & 0xFFFFFF;
}

unsigned UprightBars(int x, int)
{
    return Noise(x, 0);
}

unsigned LevelBars(int, int y)
{
    return Noise(0, y);
}

/// The bytes that a decoder makes of the rows, by the definition of the filters.
std::vector<std::vector<unsigned char>> Decoded(const ImageView& image, bool hasAlpha, PngFilter filter,
                                                std::size_t pixelBytes)
{
    PngRows rows(image, hasAlpha, filter);
    EXPECT_TRUE(rows.IsReady());
    std::vector<std::vector<unsigned char>> all;
    std::vector<unsigned char> above(rows.Size() - 1);
    for (int y = 0; y < image.height; ++y)
    {
        const unsigned char* line = rows.Next();
        EXPECT_EQ(line[0], static_cast<unsigned char>(filter));
        std::vector<unsigned char> row(line + 1, line + rows.Size());
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

TEST(PngPlan, RowsLikeTheOnesAboveAreToldByTheDifferenceToThem)
{
    for (const int depth : {8, 24, 32})
    {
        EXPECT_EQ(PngPlanOf(Made(50, 40, depth, UprightBars).View()).filter, PngFilter::Up);
        EXPECT_EQ(PngPlanOf(Made(50, 40, depth, LevelBars).View()).filter, PngFilter::Sub);
    }
}

TEST(PngPlan, AreasOfOneColorAreSearchedLongerThanNoise)
{
    const PackedImage flat = Made(50, 40, 24, UprightBars);
    const PackedImage noise = Made(50, 40, 24, Noise);
    EXPECT_TRUE(PngPlanOf(flat.View()).isThorough);
    EXPECT_FALSE(PngPlanOf(noise.View()).isThorough);
    EXPECT_EQ(PngPlanOf(noise.View()).filter, PngFilter::Sub);
    EXPECT_EQ(PngPlanOf(Made(50, 40, 8, Noise).View()).filter, PngFilter::None) << "indices are no amounts";
}

TEST(PngPlan, OneRowOrPixelIsNoReasonToSearch)
{
    for (const int depth : {1, 8, 24, 32})
    {
        EXPECT_FALSE(PngPlanOf(Made(50, 1, depth, Noise).View()).isThorough);
        EXPECT_FALSE(PngPlanOf(Made(1, 1, depth, Noise).View()).isThorough);
    }
}

std::string Written(const PackedImage& image)
{
    std::string file;
    EXPECT_TRUE(vorn::EncodePng(image.View(),
                                [&](const char* data, unsigned size)
                                {
                                    file.append(data, size);
                                }));
    return file;
}

TEST(PngPlan, PicturesOfEveryPlanAreReadBack)
{
    for (const int depth : {1, 4, 8, 16, 24, 32})
        for (const auto& pixel : {UprightBars, LevelBars, Noise})
            for (const int height : {70, -70})
            {
                const PackedImage image = Made(95, height, depth, pixel);
                const PackedImage back = vorn::DecodePng(vorn::test::Unsigned(Written(image)));
                ASSERT_FALSE(back.IsEmpty());
                for (int y = 0; y < 70; ++y)
                    for (int x = 0; x < 95; ++x)
                        ASSERT_EQ(ColorAt(back.View(), x, y), ColorAt(image.View(), x, y))
                            << depth << ": " << x << ", " << y;
            }
}

/// Areas with edges that run across, as on a chart.
unsigned Areas(int x, int y)
{
    return Noise((x + y / 3) / 40, (y + x / 5) / 60);
}

TEST(PngPlan, FlatPicturesMakeSmallFiles)
{
    EXPECT_LT(Written(Made(400, 300, 24, Areas)).size(), 400u * 300 * 3 / 60);
    EXPECT_LT(Written(Made(400, 300, 8, Areas)).size(), 400u * 300 / 20);
}
} // namespace
