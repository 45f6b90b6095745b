#include "files/core/BmpFile.h"
#include "files/core/ImagePixels.h"
#include "files/core/ImageResize.h"
#include "files/core/PngRead.h"
#include "files/core/PngWrite.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <climits>

namespace
{
using vorn::ColorAt;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::Rgb;
using vorn::test::BmpParts;
using vorn::test::LittleEndian;
using vorn::test::Unsigned;

PackedImage Decoded(const BmpParts& parts)
{
    return vorn::DecodeBmp(Unsigned(parts.Bytes()));
}

/// Two by two pixels of 24 bits, bottom row first.
BmpParts Four()
{
    BmpParts parts;
    parts.width = 2;
    parts.height = 2;
    parts.pixels = std::string("\1\2\3\4\5\6\0\0\7\x8\x9\xA\xB\xC\0\0", 16);
    return parts;
}

/// A table of three entries and a row of four pixels.
BmpParts Indexed()
{
    BmpParts parts;
    parts.width = 4;
    parts.depth = 8;
    parts.usedColors = 3;
    parts.behindHeader = std::string("\x10\x20\x30\0\x11\x21\x31\0\x12\x22\x32\0", 12);
    parts.pixels = std::string("\2\1\0\3", 4);
    return parts;
}

TEST(BmpFile, DecodesBottomUpRows)
{
    const PackedImage image = Decoded(Four());
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(image.BitsOffset(), 40u);
    EXPECT_EQ(image.Block().size(), 56u);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{9, 8, 7}));
    EXPECT_EQ(ColorAt(image.View(), 1, 0), (Rgb{12, 11, 10}));
    EXPECT_EQ(ColorAt(image.View(), 0, 1), (Rgb{3, 2, 1}));
}

TEST(BmpFile, DecodesTopDownRows)
{
    BmpParts parts = Four();
    parts.height = -2;
    EXPECT_EQ(ColorAt(Decoded(parts).View(), 0, 0), (Rgb{3, 2, 1}));
}

TEST(BmpFile, UsesTheFieldForTheTable)
{
    const PackedImage image = Decoded(Indexed());
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(image.BitsOffset(), 52u);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{0x32, 0x22, 0x12}));
    EXPECT_EQ(ColorAt(image.View(), 2, 0), (Rgb{0x30, 0x20, 0x10}));
    EXPECT_EQ(PixelAt(image.View(), 3, 0), 3u);
    EXPECT_EQ(ColorAt(image.View(), 3, 0), (Rgb{0, 0, 0})) << "no such entry";
}

TEST(BmpFile, OffsetOfZeroMeansBehindTheTable)
{
    BmpParts parts = Indexed();
    parts.offsetField = 0;
    EXPECT_EQ(Decoded(parts).BitsOffset(), 52u);
    parts.usedColors = 0; // 256 entries: the rows would be past the end
    EXPECT_TRUE(Decoded(parts).IsEmpty());
    parts.behindHeader.resize(1024);
    EXPECT_EQ(Decoded(parts).BitsOffset(), 1064u);
}

TEST(BmpFile, OffsetOfZeroMeansBehindTheMasks)
{
    BmpParts parts;
    parts.depth = 32;
    parts.compression = 3;
    parts.offsetField = 0;
    parts.behindHeader = LittleEndian(0xFF0000, 4) + LittleEndian(0x00FF00, 4) + LittleEndian(0x0000FF, 4);
    parts.pixels = LittleEndian(0x00C86432, 4);
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(image.BitsOffset(), 52u);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{200, 100, 50}));
    parts.pixels.clear();
    EXPECT_TRUE(Decoded(parts).IsEmpty()) << "the masks are no row";
}

TEST(BmpFile, KeepsGapsAndLongHeaders)
{
    BmpParts parts = Four();
    parts.headerSize = 108;
    parts.behindHeader = std::string(68 + 5, '\xEE');
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(image.BitsOffset(), 40u + 73);
    EXPECT_EQ(ColorAt(image.View(), 0, 1), (Rgb{3, 2, 1}));
}

// The table is looked for behind 40 bytes: with a longer header the rest of it is taken for colours.
TEST(BmpFile, TablesBehindLongHeadersAreNotFound)
{
    BmpParts parts = Indexed();
    parts.headerSize = 108;
    parts.behindHeader = std::string("\1\2\3\0\4\5\6\0\7\x8\x9\0", 12) + std::string(56, '\0') + parts.behindHeader;
    const PackedImage image = Decoded(parts);
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(PixelAt(image.View(), 0, 0), 2u);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{9, 8, 7}));
}

TEST(BmpFile, BytesBehindTheStatedSizeDoNotMatter)
{
    const std::string bytes = Four().Bytes() + "trailing";
    EXPECT_EQ(vorn::DecodeBmp(Unsigned(bytes)).Block().size(), 56u);
}

TEST(BmpFile, MasksOfSixteenBits)
{
    BmpParts parts;
    parts.depth = 16;
    parts.compression = 3;
    parts.behindHeader = LittleEndian(0xF800, 4) + LittleEndian(0x07E0, 4) + LittleEndian(0x001F, 4);
    parts.pixels = LittleEndian(0x8000 | 33 << 5 | 31, 4); // red 16 of 31, green 33 of 63, blue full
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{132, 134, 255})); // 100001 repeated: 10000110
}

TEST(BmpFile, MasksOfThirtyTwoBits)
{
    BmpParts parts;
    parts.depth = 32;
    parts.compression = 3;
    parts.behindHeader = LittleEndian(0x000000FF, 4) + LittleEndian(0x0000FF00, 4) + LittleEndian(0x3FF00000, 4);
    parts.pixels = LittleEndian(0xC0000000UL | 0x204UL << 20 | 0x2211UL, 4);
    PackedImage image = Decoded(parts);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{0x11, 0x22, 0x81}));
    EXPECT_EQ(PixelAt(image.View(), 0, 0), 0x812211u);
    vorn::SetPixelAt(image.Canvas(), 0, 0, 0x0000FF);
    EXPECT_EQ(vorn::StoredPixel(image.View().Row(0), 0, 32), 0xC00000FFu) << "what is in no mask stays";
}

TEST(BmpFile, MasksNeedRoom)
{
    BmpParts parts;
    parts.width = 2;
    parts.depth = 16;
    parts.compression = 3;
    parts.pixels = std::string(4, '\1');
    EXPECT_EQ(PixelAt(Decoded(parts).View(), 0, 0), 0u);
}

TEST(BmpFile, CompressedPixelsAreKeptUnseen)
{
    for (const unsigned long compression : {1UL, 2UL, 4UL, 5UL, 77UL})
    {
        BmpParts parts = Indexed();
        parts.width = 5000;
        parts.compression = compression;
        PackedImage image = Decoded(parts);
        ASSERT_EQ(image.Block().size(), 56u) << compression;
        vorn::SetPixelAt(image.Canvas(), 0, 0, 1);
        EXPECT_EQ(PixelAt(image.View(), 0, 0), 0u);
        EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{0, 0, 0}));
        EXPECT_EQ(image.Block()[52], 2) << "unchanged";
    }
}

TEST(BmpFile, RefusesEveryCut)
{
    for (const BmpParts& parts : {Four(), Indexed()})
    {
        const std::string bytes = parts.Bytes();
        for (std::size_t size = 0; size < bytes.size(); ++size)
            ASSERT_TRUE(vorn::DecodeBmp(Unsigned(bytes).first(size)).IsEmpty()) << size;
    }
}

TEST(BmpFile, RefusesImpossibleFields)
{
    const auto refuses = [](auto change)
    {
        BmpParts parts = Four();
        change(parts);
        return Decoded(parts).IsEmpty();
    };
    EXPECT_FALSE(refuses([](BmpParts&) {}));
    for (const int depth : {0, 2, 3, 12, 23, 64, 65535})
        EXPECT_TRUE(refuses(
            [&](BmpParts& parts)
            {
                parts.depth = depth;
            }))
            << depth;
    for (const int width : {0, -1, INT_MIN, 3, INT_MAX})
        EXPECT_TRUE(refuses(
            [&](BmpParts& parts)
            {
                parts.width = width;
            }))
            << width;
    for (const int height : {0, INT_MIN, 3, -3, INT_MAX})
        EXPECT_TRUE(refuses(
            [&](BmpParts& parts)
            {
                parts.height = height;
            }))
            << height;
    for (const unsigned long size : {0UL, 12UL, 39UL})
        EXPECT_TRUE(refuses(
            [&](BmpParts& parts)
            {
                parts.headerSize = size;
            }))
            << size;
    for (const unsigned long size : {0UL, 53UL, 69UL, 71UL, 0xFFFFFFFFUL})
        EXPECT_TRUE(refuses(
            [&](BmpParts& parts)
            {
                parts.sizeField = size;
            }))
            << size;
    for (const unsigned long offset : {1UL, 53UL, 55UL, 71UL, 0xFFFFFFFFUL})
        EXPECT_TRUE(refuses(
            [&](BmpParts& parts)
            {
                parts.offsetField = offset;
            }))
            << offset;
    std::string bytes = Four().Bytes();
    bytes[1] = 'A';
    EXPECT_TRUE(vorn::DecodeBmp(Unsigned(bytes)).IsEmpty());
}

TEST(BmpFile, TableEndsWithTheBlock)
{
    BmpParts parts = Indexed();
    parts.usedColors = 0xFFFFFFFF;
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(image.View().table.size(), 3u) << "up to the rows";
    EXPECT_EQ(ColorAt(image.View(), 3, 0), (Rgb{0, 0, 0}));
}

TEST(BmpFile, Encode_WritesWhatWasRead)
{
    const std::string bytes = Four().Bytes();
    const auto written = vorn::EncodeBmp(Decoded(Four()));
    EXPECT_EQ(std::string(written.begin(), written.end()), bytes);
}

TEST(BmpFile, Encode_LeavesOutGapsAndTakesTheRowsOfNegativeHeights)
{
    BmpParts gapped = Four();
    gapped.height = -2;
    gapped.headerSize = 124;
    gapped.usedColors = 7;
    gapped.behindHeader = std::string(84 + 9, '\x55');
    BmpParts plain = Four();
    plain.height = -2;
    const auto written = vorn::EncodeBmp(Decoded(gapped));
    EXPECT_EQ(std::string(written.begin(), written.end()), plain.Bytes());
}

TEST(BmpFile, Encode_RefusesOtherDepths)
{
    for (const int depth : {1, 4, 8, 16, 32})
        EXPECT_TRUE(vorn::EncodeBmp(PackedImage::Make(2, 2, depth)).empty()) << depth;
    EXPECT_TRUE(vorn::EncodeBmp(PackedImage()).empty());
    BmpParts compressed = Four();
    compressed.compression = 1;
    EXPECT_TRUE(vorn::EncodeBmp(Decoded(compressed)).empty());
}

TEST(BmpFile, MoreEntriesThanAPixelCanNameTakeTheirRoomOnly)
{
    for (const int depth : {1, 4, 8})
    {
        const auto own = static_cast<std::size_t>(1 << depth);
        BmpParts parts;
        parts.depth = depth;
        parts.usedColors = static_cast<unsigned long>(own + 44);
        parts.behindHeader = std::string(own * 4, '\x20') + std::string(std::size_t{44} * 4, '\x90');
        parts.pixels = std::string("\x01\0\0\0", 4);
        parts.offsetField = 0;
        const PackedImage image = Decoded(parts);
        ASSERT_FALSE(image.IsEmpty()) << depth;
        EXPECT_EQ(image.BitsOffset(), 40 + (own + 44) * 4);
        EXPECT_EQ(image.View().table.size(), own);
        EXPECT_EQ(vorn::NearestEntry(image.View().table, {0x90, 0x90, 0x90}), 0) << "among those with an index";
    }
}

TEST(BmpFile, SixteenBitsWithoutAnOffsetHaveTheirRowsBehindATable)
{
    for (const unsigned long compression : {0UL, 3UL})
    {
        BmpParts parts;
        parts.depth = 16;
        parts.compression = compression;
        parts.behindHeader = std::string(65536 * 4, '\xFF');
        parts.pixels = std::string("\x34\x12\0\0", 4);
        parts.offsetField = 0;
        EXPECT_EQ(PixelAt(Decoded(parts).View(), 0, 0), 0x1234u) << compression;
        parts.behindHeader.resize(12);
        EXPECT_TRUE(Decoded(parts).IsEmpty()) << compression;
    }
}

TEST(BmpFile, MasksOf24BitsAreNotSeen)
{
    BmpParts parts = Four();
    parts.compression = 3;
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(image.Header().biWidth, 2);
    EXPECT_FALSE(image.View().hasRows) << "which bytes would be the channels is told nowhere";
}

TEST(BmpFile, RowsHaveAtMostTwoGigabytesEvenWhereTheyAreCompressed)
{
    BmpParts parts = Indexed();
    parts.compression = 1;
    parts.width = INT_MAX - 3;
    EXPECT_FALSE(Decoded(parts).IsEmpty());
    parts.width = INT_MAX - 2;
    EXPECT_TRUE(Decoded(parts).IsEmpty()) << "their length would be no number any more";
}

TEST(BmpFile, ColoursGoIntoMasksOfMoreThanEightBits)
{
    BmpParts parts;
    parts.depth = 32;
    parts.compression = 3;
    parts.behindHeader = LittleEndian(0x3FF00000, 4) + LittleEndian(0x000FFC00, 4) + LittleEndian(0x000003FF, 4);
    parts.pixels = LittleEndian(0xC0000000UL, 4);
    PackedImage image = Decoded(parts);
    vorn::SetPixelAt(image.Canvas(), 0, 0, 0x0180FF);
    EXPECT_EQ(vorn::StoredPixel(image.View().Row(0), 0, 32), 0xC0000000UL | 0x3FCUL << 20 | 0x200UL << 10 | 0x004UL);
    EXPECT_EQ(PixelAt(image.View(), 0, 0), 0x0180FFu);
}

TEST(BmpFile, Encode_SaysOnePlaneWhateverWasRead)
{
    BmpParts parts = Four();
    for (const int planes : {0, 2, 65535})
    {
        parts.planes = planes;
        const auto written = vorn::EncodeBmp(Decoded(parts));
        EXPECT_EQ(std::string(written.begin(), written.end()), Four().Bytes()) << planes;
    }
}

TEST(BmpFile, MasksOfTheUsualBytesLeaveTheFourthOneToAlpha)
{
    BmpParts parts;
    parts.width = 2;
    parts.depth = 32;
    parts.compression = 3;
    parts.behindHeader = LittleEndian(0xFF0000, 4) + LittleEndian(0x00FF00, 4) + LittleEndian(0x0000FF, 4);
    parts.pixels = LittleEndian(0x40010203, 4) + LittleEndian(0xFF040506, 4);
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(ColorAt(image.View(), 1, 0), (Rgb{4, 5, 6}));
    std::string file;
    ASSERT_TRUE(vorn::EncodePng(image.View(),
                                [&](const char* data, unsigned size)
                                {
                                    file.append(data, size);
                                }));
    const PackedImage back = vorn::DecodePng(Unsigned(file));
    ASSERT_EQ(back.Header().biBitCount, 32);
    EXPECT_EQ(vorn::StoredPixel(back.View().Row(0), 0, 32), 0x40010203u);
    EXPECT_EQ(vorn::StoredPixel(back.View().Row(0), 1, 32), 0xFF040506u);
    const PackedImage half = vorn::BoxResize(image.View(), 1, 1);
    EXPECT_EQ(half.View().Row(0)[3], 0xA0) << "the mean of 64 and 255";
}
} // namespace
