#include "files/core/BmpFile.h"
#include "files/core/ImageConvert.h"
#include "files/core/ImagePixels.h"
#include "tests/support/PictureBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <optional>

namespace
{
using vorn::ColorAt;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::Rgb;
using vorn::SetPixelAt;

/// Indices that count up, with a table of greys of three times the index.
PackedImage Indexed(int width, int height, int depth)
{
    PackedImage image = PackedImage::Make(width, height, depth);
    for (int i = 0; i < 1 << depth; ++i)
        image.SetTableColor(i, {static_cast<BYTE>(i * 3), static_cast<BYTE>(i), static_cast<BYTE>(255 - i)});
    const auto view = image.View();
    for (int y = 0; y < view.height; ++y)
        for (int x = 0; x < width; ++x)
            SetPixelAt(image.Canvas(), x, y, static_cast<DWORD>(y * width + x) % (1U << depth));
    return image;
}

void ExpectSameColors(const PackedImage& one, const PackedImage& other)
{
    ASSERT_EQ(one.View().width, other.View().width);
    ASSERT_EQ(one.View().height, other.View().height);
    for (int y = 0; y < one.View().height; ++y)
        for (int x = 0; x < one.View().width; ++x)
            ASSERT_EQ(ColorAt(one.View(), x, y), ColorAt(other.View(), x, y)) << x << ", " << y;
}

TEST(ImageConvert, To24Bit_KeepsSizeOrderAndColors)
{
    for (const int depth : {1, 4, 8})
        for (const int height : {3, -3})
            for (const int width : {1, 2, 3, 4, 5, 17})
            {
                const PackedImage source = Indexed(width, height, depth);
                const PackedImage made = vorn::To24Bit(source.View());
                EXPECT_EQ(made.Header().biBitCount, 24);
                EXPECT_EQ(made.Header().biHeight, height);
                EXPECT_EQ(made.BitsOffset(), 40u);
                ExpectSameColors(source, made);
            }
}

TEST(ImageConvert, PutAs24Bit_WritesEveryByteOfAnImageOfThisSize)
{
    for (const int width : {1, 4, 5, 18})
        for (const int height : {3, -3})
        {
            const PackedImage source = Indexed(width, 3, 8);
            PackedImage target = PackedImage::Make(width, height, 24);
            std::fill(target.Block().begin() + 40, target.Block().end(), static_cast<unsigned char>(0x55));
            ASSERT_TRUE(vorn::PutAs24Bit(target.Canvas(), source.View()));
            ExpectSameColors(source, target);
            for (int y = 0; y < 3; ++y)
                for (int x = width * 3; x < target.View().stride; ++x)
                    EXPECT_EQ(target.View().Row(y)[x], 0);
        }
}

TEST(ImageConvert, PutAs24Bit_RefusesOtherImages)
{
    const PackedImage source = Indexed(5, 3, 8);
    PackedImage none;
    PackedImage narrow = PackedImage::Make(4, 3, 24);
    PackedImage low = PackedImage::Make(5, 2, 24);
    PackedImage deep = PackedImage::Make(5, 3, 32);
    for (PackedImage* target : {&none, &narrow, &low, &deep})
        EXPECT_FALSE(vorn::PutAs24Bit(target->Canvas(), source.View()));
    PackedImage same = PackedImage::Make(5, 3, 24);
    EXPECT_FALSE(vorn::PutAs24Bit(same.Canvas(), same.View()));
    EXPECT_FALSE(vorn::PutAs24Bit(same.Canvas(), PackedImage().View()));
}

TEST(ImageConvert, To24Bit_LeavesThePaddingZero)
{
    PackedImage source = PackedImage::Make(3, 2, 8);
    source.SetTableColor(0, {255, 255, 255});
    const PackedImage made = vorn::To24Bit(source.View());
    for (int y = 0; y < 2; ++y)
        for (int i = 9; i < 12; ++i)
            EXPECT_EQ(made.View().Row(y)[i], 0);
}

TEST(ImageConvert, To24Bit_OfWordsAndLongerPixels)
{
    PackedImage words = PackedImage::Make(2, 1, 16);
    SetPixelAt(words.Canvas(), 1, 0, 0x7C1F);
    EXPECT_EQ(ColorAt(vorn::To24Bit(words.View()).View(), 1, 0), (Rgb{255, 0, 255}));
    PackedImage longer = PackedImage::Make(2, 1, 32);
    SetPixelAt(longer.Canvas(), 0, 0, 0x030201);
    EXPECT_EQ(ColorAt(vorn::To24Bit(longer.View()).View(), 0, 0), (Rgb{1, 2, 3}));
    ExpectSameColors(longer, vorn::To24Bit(vorn::To24Bit(longer.View()).View()));
}

TEST(ImageConvert, To24Bit_IndicesWithoutAnEntryAreBlack)
{
    vorn::test::BmpParts parts;
    parts.width = 2;
    parts.depth = 8;
    parts.usedColors = 1;
    parts.behindHeader = "\x7F\x7F\x7F\x7F";
    parts.pixels = std::string("\0\1\0\0", 4);
    const PackedImage made = vorn::To24Bit(vorn::DecodeBmp(vorn::test::Unsigned(parts.Bytes())).View());
    EXPECT_EQ(ColorAt(made.View(), 0, 0), (Rgb{0x7F, 0x7F, 0x7F}));
    EXPECT_EQ(ColorAt(made.View(), 1, 0), (Rgb{0, 0, 0}));
}

TEST(ImageConvert, NothingOfPicturesWithoutRows)
{
    vorn::test::BmpParts parts;
    parts.depth = 8;
    parts.compression = 1;
    parts.behindHeader = std::string(1024, '\1');
    parts.pixels = "\1\2";
    const PackedImage packed = vorn::DecodeBmp(vorn::test::Unsigned(parts.Bytes()));
    ASSERT_FALSE(packed.IsEmpty());
    PackedImage target = PackedImage::Make(1, 1, 8);
    for (const vorn::ImageView& view : {packed.View(), PackedImage().View()})
    {
        EXPECT_TRUE(vorn::To24Bit(view).IsEmpty());
        EXPECT_TRUE(vorn::ToPlainChannels(view).IsEmpty());
        EXPECT_TRUE(vorn::MaskOf(view, Rgb{}).IsEmpty());
        EXPECT_FALSE(vorn::PutImage(target.Canvas(), 0, 0, view));
    }
}

TEST(ImageConvert, ToPlainChannels_KeepsTheFourthByte)
{
    PackedImage source = PackedImage::Make(1, -2, 32);
    source.Canvas().Row(1)[3] = 0x44;
    const PackedImage made = vorn::ToPlainChannels(source.View());
    EXPECT_EQ(made.Header().biBitCount, 32);
    EXPECT_EQ(made.Header().biHeight, -2);
    EXPECT_EQ(made.View().Row(1)[3], 0x44);
}

TEST(PutImage, ClipsAtAllEdges)
{
    const PackedImage source = Indexed(3, -2, 8);
    for (int x = -4; x <= 5; ++x)
        for (int y = -3; y <= 4; ++y)
        {
            PackedImage target = PackedImage::Make(4, 3, 8);
            EXPECT_TRUE(vorn::PutImage(target.Canvas(), x, y, source.View()));
            for (int ty = 0; ty < 3; ++ty)
                for (int tx = 0; tx < 4; ++tx)
                    ASSERT_EQ(PixelAt(target.View(), tx, ty), PixelAt(source.View(), tx - x, ty - y));
        }
}

TEST(PutImage, FarAwayIsNothing)
{
    const PackedImage source = Indexed(3, -2, 8);
    PackedImage target = PackedImage::Make(4, 3, 8);
    for (const int distance : {INT_MIN, INT_MAX})
    {
        EXPECT_TRUE(vorn::PutImage(target.Canvas(), distance, 0, source.View()));
        EXPECT_TRUE(vorn::PutImage(target.Canvas(), 0, distance, source.View()));
    }
    EXPECT_EQ(PixelAt(target.View(), 0, 0), 0u);
}

TEST(PutImage, EqualDepthsCopyPixelsWhateverTheTables)
{
    for (const int depth : {1, 4})
    {
        const PackedImage source = Indexed(5, -3, depth);
        PackedImage target = PackedImage::Make(9, 5, depth);
        vorn::PutImage(target.Canvas(), 3, 1, source.View());
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 9; ++x)
                EXPECT_EQ(PixelAt(target.View(), x, y), PixelAt(source.View(), x - 3, y - 1));
    }
}

TEST(PutImage, OtherDepthsGoThroughTheColor)
{
    PackedImage source = PackedImage::Make(3, 1, 24);
    SetPixelAt(source.Canvas(), 0, 0, 0x0000F0);
    SetPixelAt(source.Canvas(), 1, 0, 0x00F000);
    SetPixelAt(source.Canvas(), 2, 0, 0x0000F0);
    PackedImage table = PackedImage::Make(3, 1, 4);
    table.SetTableColor(5, {255, 0, 0});
    table.SetTableColor(9, {0, 255, 0});
    vorn::PutImage(table.Canvas(), 0, 0, source.View());
    EXPECT_EQ(PixelAt(table.View(), 0, 0), 5u);
    EXPECT_EQ(PixelAt(table.View(), 1, 0), 9u);
    EXPECT_EQ(PixelAt(table.View(), 2, 0), 5u);
    PackedImage words = PackedImage::Make(3, 1, 16);
    vorn::PutImage(words.Canvas(), 0, 0, table.View());
    EXPECT_EQ(PixelAt(words.View(), 0, 0), 0x7C00u);
    EXPECT_EQ(PixelAt(words.View(), 1, 0), 0x03E0u);
}

TEST(PutImage, ThePictureMayBeItsOwnSource)
{
    PackedImage image = Indexed(4, 4, 8);
    const PackedImage before = image.Clone();
    vorn::PutImage(image.Canvas(), 1, 1, image.View());
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(PixelAt(image.View(), x, y),
                      PixelAt(before.View(), x > 0 && y > 0 ? x - 1 : x, x > 0 && y > 0 ? y - 1 : y));
}

TEST(MaskOf, IsOneWhereTheColorIs)
{
    for (const int height : {2, -2})
    {
        PackedImage source = PackedImage::Make(10, height, 24);
        SetPixelAt(source.Canvas(), 0, 0, 0x030201);
        SetPixelAt(source.Canvas(), 9, 1, 0x030201);
        SetPixelAt(source.Canvas(), 5, 1, 0x030202);
        const PackedImage mask = vorn::MaskOf(source.View(), Rgb{1, 2, 3});
        EXPECT_EQ(mask.Header().biBitCount, 1);
        EXPECT_EQ(mask.Header().biHeight, height);
        EXPECT_EQ(mask.TableColor(0), (Rgb{0, 0, 0}));
        EXPECT_EQ(mask.TableColor(1), (Rgb{255, 255, 255}));
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 10; ++x)
                EXPECT_EQ(PixelAt(mask.View(), x, y), (x == 0 && y == 0) || (x == 9 && y == 1) ? 1u : 0u);
    }
}

TEST(MaskOf, FindsEveryIndexOfTheColor)
{
    PackedImage source = PackedImage::Make(3, 1, 8);
    source.SetTableColor(1, {9, 9, 9});
    source.SetTableColor(2, {9, 9, 9});
    SetPixelAt(source.Canvas(), 1, 0, 1);
    SetPixelAt(source.Canvas(), 2, 0, 2);
    const PackedImage mask = vorn::MaskOf(source.View(), Rgb{9, 9, 9});
    EXPECT_EQ(mask.View().Row(0)[0], 0x60);
}
TEST(MaskOf, IsNowhereOneWithoutAColor)
{
    const PackedImage mask = vorn::MaskOf(PackedImage::Make(9, 1, 24).View(), std::nullopt);
    EXPECT_EQ(mask.View().width, 9);
    EXPECT_EQ(mask.View().Row(0)[0], 0);
    EXPECT_EQ(mask.View().Row(0)[1], 0);
}

TEST(ColorIn, HasNumbersFrom0To255)
{
    EXPECT_EQ(vorn::ColorIn({0, 128, 255}), (Rgb{0, 128, 255}));
    for (const int outside : {-1, 256, INT_MIN, INT_MAX})
    {
        EXPECT_EQ(vorn::ColorIn({outside, 0, 0}), std::nullopt);
        EXPECT_EQ(vorn::ColorIn({0, outside, 0}), std::nullopt);
        EXPECT_EQ(vorn::ColorIn({0, 0, outside}), std::nullopt);
    }
}

TEST(PutImage, WhatBelongsToNoColorStays)
{
    PackedImage source = PackedImage::Make(1, 1, 24);
    SetPixelAt(source.Canvas(), 0, 0, 0x030201);
    PackedImage longer = PackedImage::Make(2, 1, 32);
    longer.Canvas().Row(0)[7] = 0x77;
    vorn::PutImage(longer.Canvas(), 1, 0, source.View());
    EXPECT_EQ(vorn::StoredPixel(longer.View().Row(0), 1, 32), 0x77010203u);
    PackedImage words = PackedImage::Make(1, 1, 16);
    words.Canvas().Row(0)[1] = 0x80;
    vorn::PutImage(words.Canvas(), 0, 0, longer.View());
    EXPECT_EQ(PixelAt(words.View(), 0, 0), 0x8000u) << "the bit beside the masks";
}

TEST(PutImage, TakesNoEntryThatAPixelCannotName)
{
    vorn::test::BmpParts parts;
    parts.depth = 4;
    parts.usedColors = 20;
    parts.behindHeader = std::string(64, '\x30') + std::string(16, '\xFF');
    parts.pixels = std::string(4, '\x70');
    PackedImage target = vorn::DecodeBmp(vorn::test::Unsigned(parts.Bytes()));
    PackedImage white = PackedImage::Make(1, 1, 24);
    SetPixelAt(white.Canvas(), 0, 0, 0xFFFFFF);
    vorn::PutImage(target.Canvas(), 0, 0, white.View());
    EXPECT_EQ(PixelAt(target.View(), 0, 0), 0u)
        << "the first of sixteen that are as near; the white ones have no index";
}

TEST(ImageConvert, ToPlainChannels_FollowsTheMasks)
{
    PackedImage source = PackedImage::MakeMasked(2, -1, 32, {0x000000FF, 0x0000FF00, 0xFF000000});
    vorn::StorePixel(source.Canvas().Row(0), 1, 32, 0x03EE0201);
    const PackedImage made = vorn::ToPlainChannels(source.View());
    EXPECT_EQ(made.Header().biBitCount, 32);
    EXPECT_EQ(made.Header().biCompression, 0u);
    EXPECT_EQ(vorn::StoredPixel(made.View().Row(0), 1, 32), 0x00010203u) << "a fourth byte there is not";
}
} // namespace
