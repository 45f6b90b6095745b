#include "files/core/ImagePixels.h"
#include "files/core/PackedImage.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{
using vorn::BytesPerScan;
using vorn::ColorAt;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::Rgb;
using vorn::SetPixelAt;

TEST(ImageFormat, BytesPerScan_RoundsUpToFourBytes)
{
    EXPECT_EQ(BytesPerScan(1, 1), 4);
    EXPECT_EQ(BytesPerScan(32, 1), 4);
    EXPECT_EQ(BytesPerScan(33, 1), 8);
    EXPECT_EQ(BytesPerScan(3, 24), 12);
    EXPECT_EQ(BytesPerScan(4, 24), 12);
    EXPECT_EQ(BytesPerScan(5, 8), 8);
    EXPECT_EQ(BytesPerScan(9, 4), 8);
    EXPECT_EQ(BytesPerScan(3, 16), 8);
    EXPECT_EQ(BytesPerScan(0, 8), 0);
    EXPECT_EQ(BytesPerScan(std::numeric_limits<int>::max(), 32), std::int64_t{4} * 2147483647);
}

TEST(ImageFormat, PixelsPerByte_IsNoneFrom16BitsOn)
{
    EXPECT_EQ(vorn::PixelsPerByte(1), 8);
    EXPECT_EQ(vorn::PixelsPerByte(4), 2);
    EXPECT_EQ(vorn::PixelsPerByte(8), 1);
    EXPECT_EQ(vorn::PixelsPerByte(16), 0);
    EXPECT_EQ(vorn::PixelsPerByte(24), 0);
    EXPECT_EQ(vorn::PixelsPerByte(0), 0);
}

TEST(ImageFormat, TableEntries_ByDepthOrByTheField)
{
    BITMAPINFOHEADER header{};
    header.biBitCount = 4;
    EXPECT_EQ(vorn::TableEntries(header), 16);
    header.biClrUsed = 5;
    EXPECT_EQ(vorn::TableEntries(header), 5);
    EXPECT_EQ(vorn::TableBytes(header, DIB_RGB_COLORS), 20);
    EXPECT_EQ(vorn::TableBytes(header, DIB_PAL_COLORS), 10);
    header.biBitCount = 24;
    EXPECT_EQ(vorn::TableEntries(header), 0);
    header.biClrUsed = 0;
    header.biBitCount = 16;
    EXPECT_EQ(vorn::TableEntries(header), 65536);
    header.biBitCount = 32;
    EXPECT_EQ(vorn::TableEntries(header), 0);
}

TEST(PackedImage, Make_LaysOutHeaderTableAndRows)
{
    const PackedImage image = PackedImage::Make(5, -3, 8);
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(image.BitsOffset(), 40u + 1024);
    EXPECT_EQ(image.Block().size(), 40u + 1024 + 3 * 8);
    const BITMAPINFOHEADER header = image.Header();
    EXPECT_EQ(header.biSize, 40u);
    EXPECT_EQ(header.biWidth, 5);
    EXPECT_EQ(header.biHeight, -3);
    EXPECT_EQ(header.biPlanes, 1);
    EXPECT_EQ(header.biBitCount, 8);
    EXPECT_EQ(header.biCompression, 0u);
    EXPECT_EQ(header.biSizeImage, 0u);
    EXPECT_EQ(header.biClrUsed, 0u);
    for (std::size_t i = 40; i < image.Block().size(); ++i)
        ASSERT_EQ(image.Block()[i], 0) << i;
    EXPECT_EQ(image.View().height, 3);
    EXPECT_TRUE(image.View().isTopDown);
    EXPECT_EQ(image.View().stride, 8);
}

TEST(PackedImage, Make_CountsPaletteIndicesUp)
{
    const PackedImage image = PackedImage::Make(2, 2, 4, DIB_PAL_COLORS);
    ASSERT_EQ(image.BitsOffset(), 40u + 32);
    for (std::size_t i = 0; i < 16; ++i)
    {
        EXPECT_EQ(image.Block()[40 + 2 * i], i);
        EXPECT_EQ(image.Block()[41 + 2 * i], 0);
    }
    EXPECT_TRUE(image.View().table.empty()) << "indices of a palette that is not here";
}

TEST(PackedImage, MakeMasked_HasTheMasksBehindTheHeader)
{
    for (const int depth : {16, 32})
    {
        const PackedImage image = PackedImage::MakeMasked(3, -2, depth, {0xF800, 0x07E0, 0x001F});
        ASSERT_FALSE(image.IsEmpty());
        EXPECT_EQ(image.BitsOffset(), 52u);
        EXPECT_EQ(image.Block().size(), 52u + 2 * static_cast<unsigned>(image.View().stride));
        EXPECT_EQ(image.Header().biCompression, static_cast<DWORD>(BI_BITFIELDS));
        EXPECT_TRUE(image.View().isMasked);
        EXPECT_TRUE(image.View().hasRows);
        EXPECT_EQ(image.View().masks.green, 0x07E0u);
    }
    EXPECT_TRUE(PackedImage::MakeMasked(1, 1, 24, {}).IsEmpty());
    EXPECT_TRUE(PackedImage::MakeMasked(0, 1, 16, {}).IsEmpty());
}

TEST(PackedImage, MakeMasked_WithTheMasksThatPlainPixelsHaveIsPlain)
{
    const PackedImage image = PackedImage::MakeMasked(1, 1, 32, {0xFF0000, 0x00FF00, 0x0000FF});
    EXPECT_FALSE(image.View().isMasked);
    EXPECT_TRUE(image.View().hasRows);
    EXPECT_TRUE(PackedImage::MakeMasked(1, 1, 32, {0x0000FF, 0x00FF00, 0xFF0000}).View().isMasked);
    EXPECT_TRUE(PackedImage::MakeMasked(1, 1, 16, {0xFF0000, 0x00FF00, 0x0000FF}).View().isMasked);
}

TEST(PackedImage, MakeHead_HasNoRows)
{
    EXPECT_EQ(PackedImage::MakeHead(100, 100, 24, DIB_RGB_COLORS).Block().size(), 40u);
    const PackedImage indices = PackedImage::MakeHead(100, 100, 8, DIB_PAL_COLORS);
    EXPECT_EQ(indices.Block().size(), 40u + 512);
    EXPECT_EQ(indices.Block()[40 + 2 * 255], 255);
    EXPECT_TRUE(PackedImage::MakeHead(32768, 16385, 16, DIB_RGB_COLORS).IsEmpty()) << "above 1 GiB";
}

TEST(PackedImage, TakeBlock_LeavesNoImage)
{
    PackedImage image = PackedImage::Make(1, 1, 24);
    vorn::ImageBlock block = image.TakeBlock();
    EXPECT_TRUE(image.IsEmpty());
    ASSERT_EQ(block.Bytes().size(), 44u);
    unsigned char* bytes = block.Release();
    EXPECT_TRUE(block.Bytes().empty());
    EXPECT_EQ(bytes[0], 40);
    std::free(bytes);
}

TEST(PackedImage, Make_Gives16BitsATableOf65536)
{
    const PackedImage image = PackedImage::Make(1, 1, 16);
    EXPECT_EQ(image.BitsOffset(), 40u + 65536 * 4);
    EXPECT_EQ(PackedImage::Make(1, 1, 24).BitsOffset(), 40u);
    EXPECT_EQ(PackedImage::Make(1, 1, 32).BitsOffset(), 40u);
    EXPECT_EQ(PackedImage::Make(1, 1, 1).BitsOffset(), 48u);
}

TEST(PackedImage, Make_RefusesWhatIsNoImage)
{
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    EXPECT_TRUE(PackedImage::Make(0, 1, 8).IsEmpty());
    EXPECT_TRUE(PackedImage::Make(-1, 1, 8).IsEmpty());
    EXPECT_TRUE(PackedImage::Make(1, kLeast, 8).IsEmpty());
    for (const int depth : {-8, 0, 2, 3, 7, 12, 31, 33, 64})
        EXPECT_TRUE(PackedImage::Make(1, 1, depth).IsEmpty()) << depth;
    EXPECT_TRUE(PackedImage::Make(kMost, kMost, 32).IsEmpty());
    EXPECT_TRUE(PackedImage::Make(kMost, -kMost, 1).IsEmpty());
    EXPECT_TRUE(PackedImage::Make(32768, 32769, 8).IsEmpty()) << "above 1 GiB";
}

TEST(PackedImage, Empty_HasNoPixels)
{
    const PackedImage image;
    EXPECT_TRUE(image.IsEmpty());
    EXPECT_EQ(PixelAt(image.View(), 0, 0), 0u);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{0, 0, 0}));
    EXPECT_EQ(image.TableColor(0), (Rgb{0, 0, 0}));
    EXPECT_TRUE(image.Clone().IsEmpty());
}

TEST(PackedImage, Clone_HasBytesOfItsOwn)
{
    PackedImage image = PackedImage::Make(3, 2, 8);
    SetPixelAt(image.Canvas(), 2, 1, 77);
    PackedImage copy = image.Clone();
    SetPixelAt(image.Canvas(), 2, 1, 1);
    EXPECT_EQ(PixelAt(copy.View(), 2, 1), 77u);
    EXPECT_EQ(copy.BitsOffset(), image.BitsOffset());
}

TEST(ImagePixels, OriginIsTheTopLeftInBothRowOrders)
{
    for (const int height : {2, -2})
    {
        PackedImage image = PackedImage::Make(1, height, 8);
        SetPixelAt(image.Canvas(), 0, 0, 9);
        EXPECT_EQ(image.Block()[image.BitsOffset() + (height > 0 ? 4 : 0)], 9) << height;
        EXPECT_EQ(PixelAt(image.View(), 0, 0), 9u);
        EXPECT_EQ(PixelAt(image.View(), 0, 1), 0u);
    }
}

TEST(ImagePixels, SmallDepthsBeginAtTheTopBit)
{
    PackedImage bits = PackedImage::Make(10, 1, 1);
    SetPixelAt(bits.Canvas(), 0, 0, 1);
    SetPixelAt(bits.Canvas(), 9, 0, 3); // cut to one bit
    EXPECT_EQ(bits.Block()[bits.BitsOffset()], 0x80);
    EXPECT_EQ(bits.Block()[bits.BitsOffset() + 1], 0x40);
    SetPixelAt(bits.Canvas(), 0, 0, 2);
    EXPECT_EQ(PixelAt(bits.View(), 0, 0), 0u);
    PackedImage nibbles = PackedImage::Make(3, 1, 4);
    SetPixelAt(nibbles.Canvas(), 0, 0, 0xA);
    SetPixelAt(nibbles.Canvas(), 1, 0, 0x1B);
    EXPECT_EQ(nibbles.Block()[nibbles.BitsOffset()], 0xAB);
    EXPECT_EQ(PixelAt(nibbles.View(), 1, 0), 0xBu);
}

TEST(ImagePixels, LargeDepthsTakeColors)
{
    PackedImage image = PackedImage::Make(2, 1, 24);
    SetPixelAt(image.Canvas(), 1, 0, 0x00332211);
    const unsigned char* pixel = image.View().Row(0) + 3;
    EXPECT_EQ(pixel[0], 0x33);
    EXPECT_EQ(pixel[1], 0x22);
    EXPECT_EQ(pixel[2], 0x11);
    EXPECT_EQ(PixelAt(image.View(), 1, 0), 0x00332211u);
    EXPECT_EQ(ColorAt(image.View(), 1, 0), (Rgb{0x11, 0x22, 0x33}));
}

TEST(ImagePixels, FourthByteStays)
{
    PackedImage image = PackedImage::Make(1, 1, 32);
    image.Canvas().Row(0)[3] = 0x80;
    SetPixelAt(image.Canvas(), 0, 0, 0xFF332211);
    EXPECT_EQ(image.View().Row(0)[3], 0x80);
    EXPECT_EQ(PixelAt(image.View(), 0, 0), 0x00332211u);
}

TEST(ImagePixels, SixteenBitsAreWordsOfFiveBitsEach)
{
    PackedImage image = PackedImage::Make(1, 1, 16);
    SetPixelAt(image.Canvas(), 0, 0, 0x7C00 | 16 << 5 | 1);
    EXPECT_EQ(PixelAt(image.View(), 0, 0), 0x7E01u);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{255, 132, 8})); // 10000 repeated: 10000100; 00001: 00001000
}

TEST(ImagePixels, OutsideIsNothing)
{
    PackedImage image = PackedImage::Make(2, 2, 8);
    image.SetTableColor(0, {1, 2, 3});
    const std::string before(image.Block().begin(), image.Block().end());
    for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {2, 0}, {0, 2}, {1 << 30, 1 << 30}})
    {
        SetPixelAt(image.Canvas(), x, y, 5);
        EXPECT_EQ(PixelAt(image.View(), x, y), 0u);
        EXPECT_EQ(ColorAt(image.View(), x, y), (Rgb{0, 0, 0}));
    }
    EXPECT_EQ(std::string(image.Block().begin(), image.Block().end()), before);
}

TEST(ImagePixels, NearestEntry_TakesTheFirstOfEquals)
{
    const RGBQUAD table[] = {{0, 0, 0, 0}, {10, 0, 0, 0}, {0, 0, 20, 0}, {0, 0, 20, 9}};
    EXPECT_EQ(vorn::NearestEntry(table, {20, 0, 0}), 2);
    EXPECT_EQ(vorn::NearestEntry(table, {0, 0, 5}), 0) << "as far from the second";
    EXPECT_EQ(vorn::NearestEntry(table, {0, 0, 6}), 1);
    EXPECT_EQ(vorn::NearestEntry({}, {1, 2, 3}), 0);
}
TEST(PackedImage, IsAsMade_ByHeaderAndPlaceOfTheRows)
{
    PackedImage image = PackedImage::Make(5, -3, 24);
    EXPECT_TRUE(vorn::IsAsMade(image.Block(), image.BitsOffset(), 5, -3));
    EXPECT_FALSE(vorn::IsAsMade(image.Block(), image.BitsOffset(), 5, 3)) << "another order of rows";
    EXPECT_FALSE(vorn::IsAsMade(image.Block(), image.BitsOffset(), 4, -3));
    EXPECT_FALSE(vorn::IsAsMade(image.Block(), 44, 5, -3)) << "a gap";
    EXPECT_FALSE(vorn::IsAsMade({}, 40, 5, -3));
    for (const std::size_t at : {0, 12, 16, 20, 24, 28, 32, 36}) // what a header may say beside size and depth
    {
        image.Block()[at] ^= 1;
        EXPECT_FALSE(vorn::IsAsMade(image.Block(), image.BitsOffset(), 5, -3)) << at;
        image.Block()[at] ^= 1;
    }
    EXPECT_TRUE(vorn::IsAsMade(image.Block(), image.BitsOffset(), 5, -3));
}
} // namespace
