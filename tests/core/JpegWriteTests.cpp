#include "files/core/BmpFile.h"
#include "files/core/ImagePixels.h"
#include "files/core/JpegRead.h"
#include "files/core/JpegWrite.h"
#include "tests/support/PictureBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>

namespace
{
using vorn::ColorAt;
using vorn::JpegWriting;
using vorn::PackedImage;
using vorn::Rgb;
using vorn::test::BmpParts;
using vorn::test::Unsigned;

std::string Written(const PackedImage& image, const JpegWriting& how = {})
{
    std::string file;
    const bool isGood = vorn::EncodeJpeg(
        image.View(),
        [&](const char* data, unsigned size)
        {
            file.append(data, size);
        },
        how);
    return isGood ? file : "";
}

DWORD Packed(Rgb color)
{
    return DWORD{color.red} | DWORD{color.green} << 8 | DWORD{color.blue} << 16;
}

PackedImage OneColor(int width, int height, int depth, Rgb color)
{
    PackedImage image = PackedImage::Make(width, height, depth);
    image.SetTableColor(1, color);
    for (int y = 0; y < image.View().height; ++y)
        for (int x = 0; x < width; ++x)
            vorn::SetPixelAt(image.Canvas(), x, y, depth <= 8 ? 1 : Packed(color));
    return image;
}

/// White above, black below.
PackedImage TwoHalves(int height)
{
    PackedImage image = OneColor(16, height, 24, {255, 255, 255});
    for (int y = 16; y < 32; ++y)
        for (int x = 0; x < 16; ++x)
            vorn::SetPixelAt(image.Canvas(), x, y, 0);
    return image;
}

/// Noise, but the same each time.
PackedImage Noise()
{
    PackedImage image = PackedImage::Make(150, 90, 24);
    unsigned state = 1;
    for (std::size_t at = 40; at < image.Block().size(); ++at)
        image.Block()[at] = static_cast<unsigned char>((state = state * 1664525 + 1013904223) >> 24);
    return image;
}

void ExpectNear(Rgb expected, Rgb is, int most)
{
    EXPECT_LE(std::abs(expected.red - is.red), most);
    EXPECT_LE(std::abs(expected.green - is.green), most);
    EXPECT_LE(std::abs(expected.blue - is.blue), most);
}

bool IsProgressive(const std::string& file)
{
    return file.find("\xFF\xC2") != std::string::npos;
}

TEST(JpegWrite, EveryDepthIsReadBackInItsColors)
{
    const Rgb color{200, 90, 30};
    for (const int depth : {1, 4, 8, 24, 32})
        for (const int height : {13, -13})
        {
            const PackedImage back = vorn::DecodeJpeg(Unsigned(Written(OneColor(21, height, depth, color))));
            ASSERT_FALSE(back.IsEmpty()) << depth;
            EXPECT_EQ(back.View().width, 21);
            EXPECT_EQ(back.View().height, 13);
            ExpectNear(color, ColorAt(back.View(), 20, 12), 3);
        }
    PackedImage words = PackedImage::Make(9, 9, 16);
    vorn::SetPixelAt(words.Canvas(), 0, 0, 0);
    ExpectNear({}, ColorAt(vorn::DecodeJpeg(Unsigned(Written(words))).View(), 4, 4), 1);
}

TEST(JpegWrite, MasksTellWhereTheChannelsAre)
{
    PackedImage masked = PackedImage::MakeMasked(20, 20, 32, {0x000000FF, 0x0000FF00, 0x00FF0000});
    for (int i = 0; i < 400; ++i)
        vorn::SetPixelAt(masked.Canvas(), i % 20, i / 20, Packed({200, 90, 30}));
    EXPECT_EQ(Written(masked), Written(OneColor(20, 20, 24, {200, 90, 30})));
}

TEST(JpegWrite, TheFirstRowIsTheTopRow)
{
    for (const int height : {32, -32})
    {
        const PackedImage back = vorn::DecodeJpeg(Unsigned(Written(TwoHalves(height))));
        ExpectNear({255, 255, 255}, ColorAt(back.View(), 5, 5), 3);
        ExpectNear({}, ColorAt(back.View(), 5, 26), 3);
    }
}

TEST(JpegWrite, QualityIsClamped)
{
    const PackedImage image = Noise();
    EXPECT_EQ(Written(image), Written(image, {.quality = 75}));
    EXPECT_EQ(Written(image, {.quality = 0}), Written(image, {.quality = 75}));
    EXPECT_EQ(Written(image, {.quality = -9}), Written(image, {.quality = 75}));
    EXPECT_EQ(Written(image, {.quality = 101}), Written(image, {.quality = 100}));
    EXPECT_LT(Written(image, {.quality = 99}).size(), Written(image, {.quality = 100}).size());
    EXPECT_LT(Written(image, {.quality = 1}).size(), Written(image, {.quality = 50}).size());
    EXPECT_LT(Written(image, {.quality = 75}).size(), Written(image, {.quality = 76}).size());
}

TEST(JpegWrite, ProgressiveHasTheSamePixels)
{
    const PackedImage image = Noise();
    const std::string progressive = Written(image, {.isProgressive = true});
    EXPECT_TRUE(IsProgressive(progressive));
    EXPECT_FALSE(IsProgressive(Written(image)));
    const PackedImage one = vorn::DecodeJpeg(Unsigned(progressive));
    const PackedImage other = vorn::DecodeJpeg(Unsigned(Written(image)));
    EXPECT_TRUE(std::ranges::equal(one.Block(), other.Block()));
}

TEST(JpegWrite, ColorsAreFirstReplacedByThoseOfThePalette)
{
    const std::array<RGBQUAD, 3> table{RGBQUAD{0, 0, 0, 0}, RGBQUAD{10, 80, 160, 0}, RGBQUAD{255, 255, 255, 0}};
    vorn::NearestReducer reducer(table,
                                 [](unsigned char red, unsigned char, unsigned char)
                                 {
                                     return static_cast<unsigned char>(red / 100);
                                 });
    const PackedImage source = OneColor(20, 20, 24, {120, 7, 7});
    const PackedImage expected = OneColor(20, 20, 24, {160, 80, 10});
    EXPECT_EQ(Written(source, {.reducer = &reducer}), Written(expected));
    EXPECT_EQ(Written(OneColor(20, 20, 8, {120, 7, 7}), {.reducer = &reducer}), Written(expected));
    EXPECT_EQ(Written(OneColor(20, 20, 32, {120, 7, 7}), {.reducer = &reducer}), Written(expected));
}

TEST(JpegWrite, EntriesThatThePaletteDoesNotHaveAreBlack)
{
    vorn::NearestReducer reducer(std::span<const RGBQUAD>(),
                                 [](unsigned char, unsigned char, unsigned char)
                                 {
                                     return static_cast<unsigned char>(255);
                                 });
    EXPECT_EQ(Written(OneColor(20, 20, 24, {120, 7, 7}), {.reducer = &reducer}), Written(OneColor(20, 20, 24, {})));
}

TEST(JpegWrite, ASinkThatThrowsMakesItFail)
{
    const PackedImage image = Noise();
    int pieces = 0;
    ASSERT_TRUE(vorn::EncodeJpeg(image.View(),
                                 [&](const char*, unsigned)
                                 {
                                     ++pieces;
                                 },
                                 {.quality = 100}));
    ASSERT_GT(pieces, 1);
    for (int throwing = 1; throwing <= pieces; ++throwing)
    {
        int piece = 0;
        const auto refuse = [&](const char*, unsigned)
        {
            if (++piece == throwing)
                throw std::runtime_error("full");
        };
        EXPECT_FALSE(vorn::EncodeJpeg(image.View(), refuse, {.quality = 100}));
        EXPECT_EQ(piece, throwing);
    }
}

TEST(JpegWrite, WhatCannotBeWrittenFails)
{
    EXPECT_FALSE(vorn::EncodeJpeg(Noise().View(), {}));
    EXPECT_EQ(Written(PackedImage()), "");
    EXPECT_EQ(Written(PackedImage::Make(1, 0, 24)), "");
    EXPECT_EQ(Written(PackedImage::Make(65501, 1, 1)), "");
    EXPECT_EQ(Written(PackedImage::Make(1, 65501, 1)), "");
    EXPECT_NE(Written(PackedImage::Make(65500, 1, 1)), "");
    BmpParts packed;
    packed.depth = 8;
    packed.compression = 1;
    packed.behindHeader = std::string(1024, '\0');
    packed.pixels = "abcd";
    EXPECT_EQ(Written(vorn::DecodeBmp(Unsigned(packed.Bytes()))), "");
}
} // namespace
