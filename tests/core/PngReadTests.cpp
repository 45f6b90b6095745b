#include "files/core/ImagePixels.h"
#include "files/core/PngRead.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/PictureFiles.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace
{
using vorn::ColorAt;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::Rgb;
using vorn::test::PngChunk;
using vorn::test::PngParts;
using vorn::test::ScratchFolder;
using vorn::test::StoredZlib;
using vorn::test::Unsigned;

PackedImage Decoded(const PngParts& parts)
{
    return vorn::DecodePng(Unsigned(parts.Bytes()));
}

PngParts Picture(int width, int height, int bits, int colorType, std::string rows)
{
    PngParts parts;
    parts.width = width;
    parts.height = height;
    parts.bits = bits;
    parts.colorType = colorType;
    parts.rows = std::move(rows);
    return parts;
}

/// Three colours, and pixels 0, 1, 2, 1 in a row of `packed` bytes.
PngParts WithPalette(int bits, const std::string& packed)
{
    PngParts parts = Picture(4, 1, bits, 3, '\0' + packed);
    parts.palette = "\x10\x20\x30\x40\x50\x60\x70\x80\x90";
    return parts;
}

/// Two by two pixels of RGB.
PngParts Four()
{
    return Picture(2, 2, 8, 2, std::string("\0\1\2\3\4\5\6\0\7\x8\x9\xA\xB\xC", 14));
}

Rgb Grey(int value)
{
    const auto byte = static_cast<BYTE>(value);
    return {byte, byte, byte};
}

TEST(PngRead, MakesABottomUpImage)
{
    const PackedImage image = Decoded(Four());
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(image.Header().biHeight, 2);
    EXPECT_EQ(image.Header().biBitCount, 24);
    EXPECT_EQ(image.BitsOffset(), 40u);
    EXPECT_EQ(image.Block()[40], 9) << "blue of the bottom row's first pixel";
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{1, 2, 3}));
    EXPECT_EQ(ColorAt(image.View(), 1, 1), (Rgb{10, 11, 12}));
}

TEST(PngRead, UndoesFilters)
{
    const PackedImage image = Decoded(Picture(2, 2, 8, 2, std::string("\1\1\2\3\1\1\1\2\1\1\1\0\0\0", 14)));
    EXPECT_EQ(ColorAt(image.View(), 1, 0), (Rgb{2, 3, 4})) << "its left neighbour is added";
    EXPECT_EQ(ColorAt(image.View(), 0, 1), (Rgb{2, 3, 4})) << "the one above is added";
}

TEST(PngRead, PalettesKeepTheirDepthAndIndices)
{
    const std::pair<int, std::string> kinds[] = {{4, "\x01\x21"}, {8, std::string("\0\1\2\1", 4)}};
    for (const auto& [bits, packed] : kinds)
    {
        const PackedImage image = Decoded(WithPalette(bits, packed));
        ASSERT_FALSE(image.IsEmpty()) << bits;
        EXPECT_EQ(image.Header().biBitCount, bits);
        EXPECT_EQ(image.View().table.size(), std::size_t{1} << bits);
        EXPECT_EQ(PixelAt(image.View(), 2, 0), 2u);
        EXPECT_EQ(ColorAt(image.View(), 2, 0), (Rgb{0x70, 0x80, 0x90}));
        EXPECT_EQ(ColorAt(image.View(), 3, 0), (Rgb{0x40, 0x50, 0x60}));
        EXPECT_EQ(image.TableColor(3), Rgb{}) << "not in the file";
    }
}

TEST(PngRead, OneBitStaysOneBit)
{
    PngParts parts = WithPalette(1, "\x50");
    parts.palette.resize(6);
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(image.Header().biBitCount, 1);
    EXPECT_EQ(image.BitsOffset(), 48u);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), (Rgb{0x10, 0x20, 0x30}));
    EXPECT_EQ(ColorAt(image.View(), 1, 0), (Rgb{0x40, 0x50, 0x60}));
}

TEST(PngRead, TwoBitsBecomeFourWithTheSameIndices)
{
    const PackedImage image = Decoded(WithPalette(2, "\x19"));
    EXPECT_EQ(image.Header().biBitCount, 4);
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(PixelAt(image.View(), x, 0), x == 3 ? 1u : static_cast<DWORD>(x)) << x;
    EXPECT_EQ(ColorAt(image.View(), 2, 0), (Rgb{0x70, 0x80, 0x90}));
}

TEST(PngRead, TwoBitsBecomeFourInRowsOfEachLength)
{
    for (int width = 1; width <= 17; ++width)
    {
        std::string row(static_cast<std::size_t>((width + 3) / 4), '\x1B'); // 0, 1, 2, 3, 0, ...
        const PackedImage image = Decoded(Picture(width, 2, 2, 0, '\0' + row + '\0' + row));
        ASSERT_FALSE(image.IsEmpty());
        for (int x = 0; x < width; ++x)
            ASSERT_EQ(ColorAt(image.View(), x, 1), Grey(x % 4 * 85)) << width << ' ' << x;
    }
}

TEST(PngRead, GreysGetATable)
{
    EXPECT_EQ(ColorAt(Decoded(Picture(2, 1, 1, 0, std::string("\0\x40", 2))).View(), 1, 0), Grey(255));
    EXPECT_EQ(ColorAt(Decoded(Picture(2, 1, 4, 0, std::string("\0\x0D", 2))).View(), 1, 0), Grey(13 * 17));
    const PackedImage eight = Decoded(Picture(2, 1, 8, 0, std::string("\0\0\xC8", 3)));
    EXPECT_EQ(eight.Header().biBitCount, 8);
    EXPECT_EQ(PixelAt(eight.View(), 1, 0), 200u);
    EXPECT_EQ(ColorAt(eight.View(), 1, 0), Grey(200));
}

TEST(PngRead, SixteenBitsAreScaledNotCut)
{
    const PackedImage grey = Decoded(Picture(3, 1, 16, 0, std::string("\0\0\xFF\xFF\xFF\x7F\x7F", 7)));
    EXPECT_EQ(grey.Header().biBitCount, 8);
    EXPECT_EQ(PixelAt(grey.View(), 0, 0), 1u) << "255 of 65535 is nearer to 1 of 255 than to 0";
    EXPECT_EQ(PixelAt(grey.View(), 1, 0), 255u);
    EXPECT_EQ(PixelAt(grey.View(), 2, 0), 127u);
    const PackedImage color = Decoded(Picture(1, 1, 16, 2, std::string("\0\0\xFF\x80\x80\0\0", 7)));
    EXPECT_EQ(color.Header().biBitCount, 24);
    EXPECT_EQ(ColorAt(color.View(), 0, 0), (Rgb{1, 128, 0}));
}

TEST(PngRead, AlphaIsKeptAndNothingIsMultiplied)
{
    const PackedImage image = Decoded(Picture(2, 1, 8, 6, std::string("\0\x10\x20\x30\x00\x40\x50\x60\x80", 9)));
    ASSERT_EQ(image.Header().biBitCount, 32);
    const unsigned char* row = image.View().Row(0);
    EXPECT_EQ(std::string("\x30\x20\x10\x00\x60\x50\x40\x80", 8), std::string(row, row + 8));
}

TEST(PngRead, GreyWithAlphaBecomesFourChannels)
{
    const PackedImage image = Decoded(Picture(1, 1, 8, 4, std::string("\0\x55\x22", 3)));
    ASSERT_EQ(image.Header().biBitCount, 32);
    const unsigned char* row = image.View().Row(0);
    EXPECT_EQ("\x55\x55\x55\x22", std::string(row, row + 4));
    const PackedImage deep = Decoded(Picture(1, 1, 16, 4, std::string("\0\x55\x55\x22\x22", 5)));
    EXPECT_EQ(deep.View().Row(0)[3], 0x22);
}

TEST(PngRead, TransparentEntriesAndGreysAreAsTheOthers)
{
    PngParts palette = WithPalette(8, std::string("\0\1\2\1", 4));
    palette.transparency = std::string("\0\x80", 2);
    EXPECT_EQ(Decoded(palette).Header().biBitCount, 8);
    EXPECT_EQ(ColorAt(Decoded(palette).View(), 0, 0), (Rgb{0x10, 0x20, 0x30}));
    PngParts grey = Picture(1, 1, 8, 0, std::string("\0\x07", 2));
    grey.transparency = std::string("\0\x07", 2);
    EXPECT_EQ(Decoded(grey).Header().biBitCount, 8);
    EXPECT_EQ(ColorAt(Decoded(grey).View(), 0, 0), Grey(7));
}

TEST(PngRead, ATransparentColorOfRgbBecomesAlpha)
{
    PngParts parts = Picture(2, 1, 8, 2, std::string("\0\1\2\3\4\5\6", 7));
    parts.transparency = std::string("\0\1\0\2\0\3", 6);
    const PackedImage image = Decoded(parts);
    ASSERT_EQ(image.Header().biBitCount, 32);
    const unsigned char* row = image.View().Row(0);
    EXPECT_EQ(std::string("\3\2\1\0\6\5\4\xFF", 8), std::string(row, row + 8));
}

TEST(PngRead, ATransparentColorOf16BitsIsMetExactly)
{
    PngParts parts = Picture(2, 1, 16, 2, std::string("\0\1\1\2\2\3\3\1\1\2\2\3\4", 13));
    parts.transparency = "\1\1\2\2\3\3";
    const PackedImage image = Decoded(parts);
    ASSERT_EQ(image.Header().biBitCount, 32);
    const unsigned char* row = image.View().Row(0);
    EXPECT_EQ(std::string("\3\2\1\0\3\2\1\xFF", 8), std::string(row, row + 8)) << "the last bits tell them apart";
    PngParts grey = Picture(2, 1, 16, 0, std::string("\0\7\7\x8\x8", 5));
    grey.transparency = "\7\7";
    EXPECT_EQ(Decoded(grey).Header().biBitCount, 8);
    EXPECT_EQ(PixelAt(Decoded(grey).View(), 0, 0), 7u);
}

TEST(PngRead, GammaAndOtherChunksChangeNothing)
{
    PngParts parts = Four();
    parts.extra = PngChunk("gAMA", std::string("\0\0\x10\x00", 4)) + PngChunk("tEXt", std::string("a\0b", 3)) +
                  PngChunk("sRGB", std::string(1, '\0'));
    EXPECT_EQ(ColorAt(Decoded(parts).View(), 1, 1), (Rgb{10, 11, 12}));
    parts.extra.back() = static_cast<char>(parts.extra.back() ^ 1); // its check is wrong, but nobody needs it
    EXPECT_EQ(ColorAt(Decoded(parts).View(), 1, 1), (Rgb{10, 11, 12}));
}

TEST(PngRead, InterlacedSinglePixel)
{
    PngParts parts = Picture(1, 1, 8, 2, std::string("\0\1\2\3", 4));
    parts.isInterlaced = true;
    EXPECT_EQ(ColorAt(Decoded(parts).View(), 0, 0), (Rgb{1, 2, 3}));
}

TEST(PngRead, InterlacedRowsGoToTheirPlaces)
{
    // Pixels are numbered from the top left one. Passes 1 to 7 have 0; none; none; 2; 8, 10; 1, 3, 9, 11; 4 to 7.
    PngParts parts = Picture(4, 3, 8, 0,
                             std::string("\0\0"
                                         "\0\2"
                                         "\0\x8\xA"
                                         "\0\1\3\0\x9\xB"
                                         "\0\4\5\6\7",
                                         18));
    parts.isInterlaced = true;
    const PackedImage image = Decoded(parts);
    ASSERT_FALSE(image.IsEmpty());
    for (int i = 0; i < 12; ++i)
        EXPECT_EQ(PixelAt(image.View(), i % 4, i / 4), static_cast<DWORD>(i));
}

TEST(PngRead, FilesCutAnywhereAreNone)
{
    PngParts parts = WithPalette(8, std::string("\0\1\2\1", 4));
    parts.transparency = "\x05";
    for (const std::string& whole : {Four().Bytes(), parts.Bytes()})
        for (std::size_t size = 0; size < whole.size(); ++size)
            ASSERT_TRUE(vorn::DecodePng(Unsigned(whole).first(size)).IsEmpty()) << size;
}

TEST(PngRead, BytesBehindTheEndDoNotMatter)
{
    EXPECT_FALSE(vorn::DecodePng(Unsigned(Four().Bytes() + "more")).IsEmpty());
}

TEST(PngRead, FilesWithAChangedByteAreNone)
{
    const std::string whole = Four().Bytes();
    for (std::size_t at = 0; at < whole.size(); ++at)
    {
        std::string damaged = whole;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x10);
        ASSERT_TRUE(vorn::DecodePng(Unsigned(damaged)).IsEmpty()) << at;
    }
}

TEST(PngRead, PartsThatAreMissingMakeNone)
{
    PngParts parts = WithPalette(8, std::string("\0\1\2\1", 4));
    parts.palette.clear();
    EXPECT_TRUE(Decoded(parts).IsEmpty());
    EXPECT_TRUE(Decoded(Picture(2, 2, 8, 2, std::string("\0\1\2\3\4\5\6", 7))).IsEmpty()) << "a row too few";
    EXPECT_TRUE(Decoded(Picture(1, 1, 3, 2, std::string(4, '\0'))).IsEmpty()) << "no such depth";
    EXPECT_TRUE(Decoded(Picture(0, 1, 8, 2, std::string(1, '\0'))).IsEmpty());
    EXPECT_TRUE(Decoded(Picture(1, 0, 8, 2, "")).IsEmpty());
    EXPECT_TRUE(vorn::DecodePng({}).IsEmpty());
}

TEST(PngRead, PicturesThatAreTooLargeTakeNoMemory)
{
    EXPECT_TRUE(Decoded(Picture(65536, 1, 1, 0, std::string(8193, '\0'))).IsEmpty());
    EXPECT_TRUE(Decoded(Picture(1, 65536, 1, 0, std::string(2 * 65536, '\0'))).IsEmpty());
    EXPECT_TRUE(Decoded(Picture(65535, 65535, 8, 6, "")).IsEmpty());
    EXPECT_TRUE(Decoded(Picture(0x7FFFFFFF, 0x7FFFFFFF, 16, 6, "")).IsEmpty());
    EXPECT_TRUE(vorn::DecodePng(Unsigned(Four().Bytes()), 15).IsEmpty());
    EXPECT_FALSE(vorn::DecodePng(Unsigned(Four().Bytes()), 16).IsEmpty());
}

TEST(PngRead, SidesOf65535AreRead)
{
    const PackedImage image = Decoded(Picture(65535, 1, 8, 0, std::string(65536, '\0')));
    EXPECT_EQ(image.View().width, 65535);
    std::string rows;
    for (int y = 0; y < 65535; ++y)
        rows += std::string("\0\x80", 2);
    EXPECT_EQ(Decoded(Picture(1, 65535, 1, 0, rows)).View().height, 65535);
}

TEST(PngRead, SaysNothing)
{
    std::string damaged = Four().Bytes();
    damaged[40] = '\0';
    PngParts odd = Four();
    odd.rows += "more than the rows"; // the library warns of it
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    EXPECT_TRUE(vorn::DecodePng(Unsigned(damaged)).IsEmpty());
    EXPECT_FALSE(Decoded(odd).IsEmpty());
    EXPECT_EQ("", testing::internal::GetCapturedStdout());
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

TEST(PngRead, FilesAreReadByTheirPath)
{
    const ScratchFolder folder;
    EXPECT_FALSE(vorn::ReadPngFile(folder.Write("a.png", Four().Bytes()).c_str()).IsEmpty());
    EXPECT_TRUE(vorn::ReadPngFile(folder.Write("empty.png", "").c_str()).IsEmpty());
    EXPECT_TRUE(vorn::ReadPngFile(folder.File("missing.png").c_str()).IsEmpty());
    EXPECT_TRUE(vorn::ReadPngFile(nullptr).IsEmpty());
}
} // namespace
