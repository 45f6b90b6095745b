#include "files/core/ImagePixels.h"
#include "files/core/PcxFile.h"
#include "tests/support/PictureBytes.h"

#include <gtest/gtest.h>

namespace
{
using vorn::ColorAt;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::Rgb;
using vorn::test::PcxParts;
using vorn::test::Unsigned;

PackedImage Decoded(const PcxParts& parts)
{
    return vorn::DecodePcx(Unsigned(parts.Bytes()));
}

/// The stored bytes of the pixel area.
std::string Area(const PackedImage& image)
{
    const auto bytes = image.Block().subspan(image.BitsOffset());
    return {bytes.begin(), bytes.end()};
}

std::string Palette()
{
    std::string palette(768, '\0');
    for (std::size_t i = 0; i < palette.size(); ++i)
        palette[i] = static_cast<char>(i * 7);
    return palette;
}

/// Eight bits, 4 x 2: a line of literals, a line of one run.
PcxParts Eight()
{
    PcxParts parts;
    parts.left = 10;
    parts.right = 13;
    parts.top = 5;
    parts.bottom = 6;
    parts.bytesPerLine = 4;
    parts.data = "\1\2\xC1\xFF\4\xC4\7";
    parts.palette = Palette();
    return parts;
}

TEST(PcxFile, DecodesEightBitsWithTheFilesPalette)
{
    const PackedImage image = Decoded(Eight());
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(image.BitsOffset(), 1064u);
    const BITMAPINFOHEADER header = image.Header();
    EXPECT_EQ(header.biSize, 40u);
    EXPECT_EQ(header.biWidth, 4);
    EXPECT_EQ(header.biHeight, 2);
    EXPECT_EQ(header.biPlanes, 1);
    EXPECT_EQ(header.biBitCount, 8);
    EXPECT_EQ(header.biSizeImage, 8u);
    EXPECT_EQ(Area(image), "\7\7\7\7\1\2\xFF\4") << "the top line last";
    EXPECT_EQ(PixelAt(image.View(), 2, 0), 255u);
    EXPECT_EQ(ColorAt(image.View(), 1, 0), (Rgb{42, 49, 56}));
    EXPECT_EQ(ColorAt(image.View(), 2, 0),
              (Rgb{static_cast<BYTE>(765 * 7), static_cast<BYTE>(766 * 7), static_cast<BYTE>(767 * 7)}));
}

TEST(PcxFile, WithoutTheMarkTheHeadersPaletteIsUsed)
{
    PcxParts parts = Eight();
    parts.palette.clear();
    parts.headerPalette = "abcdefghi" + std::string(39, '\1');
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(image.BitsOffset(), 104u);
    EXPECT_EQ(ColorAt(image.View(), 1, 0), (Rgb{'g', 'h', 'i'}));
    EXPECT_EQ(ColorAt(image.View(), 2, 0), (Rgb{0, 0, 0})) << "index 255 of 16";
}

TEST(PcxFile, TheMarkDecidesForAnyDepth)
{
    PcxParts parts = Eight();
    parts.bits = 4;
    EXPECT_EQ(Decoded(parts).BitsOffset(), 1064u);
    EXPECT_EQ(Decoded(parts).View().table.size(), 16u);
}

TEST(PcxFile, TheMarkCountsOnlyBehindTheHeader)
{
    PcxParts parts = Eight();
    parts.palette.clear();
    parts.data = std::string(768, '\0');
    std::string bytes = parts.Bytes();
    bytes[127] = 12;
    EXPECT_EQ(vorn::DecodePcx(Unsigned(bytes)).BitsOffset(), 104u);
    bytes[127] = 0;
    bytes[128] = 12;
    EXPECT_EQ(vorn::DecodePcx(Unsigned(bytes)).BitsOffset(), 104u);
    bytes += '\0';
    EXPECT_EQ(vorn::DecodePcx(Unsigned(bytes)).BitsOffset(), 1064u);
}

TEST(PcxFile, DecodesOneBit)
{
    PcxParts parts;
    parts.bits = 1;
    parts.right = 31;
    parts.bytesPerLine = 4;
    parts.data = "\x5A\xC1\xC5\xC2\x01";
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(image.BitsOffset(), 104u) << "16 entries";
    EXPECT_EQ(image.Header().biSizeImage, 4u);
    EXPECT_EQ(Area(image), "\x5A\xC5\1\1");
    EXPECT_EQ(PixelAt(image.View(), 1, 0), 1u);
    EXPECT_EQ(PixelAt(image.View(), 2, 0), 0u);
}

TEST(PcxFile, MergesFourPlanes)
{
    PcxParts parts;
    parts.bits = 1;
    parts.planes = 4;
    parts.right = 15;
    parts.bottom = 1;
    parts.bytesPerLine = 2;
    // A run of 5 goes from plane to plane; the second line has one bit a plane.
    parts.data = "\x80\x01\xC5\xFF\x40\x80\x08\x40\x04\x20\x02\x10\x01";
    const PackedImage image = Decoded(parts);
    ASSERT_EQ(image.Header().biBitCount, 4);
    EXPECT_EQ(image.View().stride, 8);
    EXPECT_EQ(image.Header().biSizeImage, 16u);
    // planes 80 01 / FF FF / FF FF / FF 40: pixel 0 has all bits, pixel 15 those of planes 0 to 2.
    const DWORD first[] = {15, 14, 14, 14, 14, 14, 14, 14, 6, 14, 6, 6, 6, 6, 6, 7};
    const DWORD second[] = {1, 2, 4, 8, 0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 4, 8};
    for (int x = 0; x < 16; ++x)
    {
        EXPECT_EQ(PixelAt(image.View(), x, 0), first[x]) << x;
        EXPECT_EQ(PixelAt(image.View(), x, 1), second[x]) << x;
    }
}

TEST(PcxFile, RunsGoOnInTheNextLine)
{
    PcxParts parts = Eight();
    parts.data = "\1\xC6\2\3";
    EXPECT_EQ(Area(Decoded(parts)), "\2\2\2\3\1\2\2\2");
}

TEST(PcxFile, ARunOfNothingEatsItsByte)
{
    PcxParts parts = Eight();
    parts.data = "\xC0\x11\1\xC0\xC7\2\3\4\xC4\5";
    EXPECT_EQ(Area(Decoded(parts)), "\5\5\5\5\1\2\3\4");
}

TEST(PcxFile, DataThatEndEarlyLeaveZeros)
{
    PcxParts parts = Eight();
    parts.palette.clear();
    parts.data = "\1\2\xC3";
    EXPECT_EQ(Area(Decoded(parts)), std::string("\0\0\0\0\1\2\0\0", 8)) << "a count without its byte";
    parts.data.clear();
    EXPECT_EQ(Area(Decoded(parts)), std::string(8, '\0'));
    parts.bits = 1;
    parts.planes = 4;
    parts.right = 41;
    parts.data = "\xC2\xFF\xD0"; // the first half of a plane
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(PixelAt(image.View(), 15, 0), 1u);
    EXPECT_EQ(PixelAt(image.View(), 16, 0), 0u);
    EXPECT_EQ(PixelAt(image.View(), 0, 1), 0u);
}

TEST(PcxFile, LinesStandWithoutTheBitmapsPadding)
{
    PcxParts parts = Eight();
    parts.right = 14; // five pixels in lines of 6 bytes: the bitmap's rows have 8
    parts.bytesPerLine = 6;
    parts.data = "\1\2\3\4\5\6\7\x8\x9\xA\xB\xC";
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(Area(image), std::string("\7\x8\x9\xA\xB\xC\1\2\3\4\5\6\0\0\0\0", 16)) << "room for the bitmap's rows";
    EXPECT_EQ(image.Header().biSizeImage, 10u);
    EXPECT_EQ(PixelAt(image.View(), 0, 1), 7u);
    EXPECT_EQ(PixelAt(image.View(), 0, 0), 3u) << "sheared";
}

TEST(PcxFile, LongLinesHaveRoom)
{
    PcxParts parts = Eight();
    parts.bytesPerLine = 9;
    parts.data = "\xD2\5";
    EXPECT_EQ(Area(Decoded(parts)), std::string(18, '\5'));
}

TEST(PcxFile, RefusesWhatIsNoPicture)
{
    const auto refuses = [](auto change)
    {
        PcxParts parts = Eight();
        change(parts);
        return Decoded(parts).IsEmpty();
    };
    EXPECT_FALSE(refuses([](PcxParts&) {}));
    EXPECT_TRUE(refuses(
        [](PcxParts& parts)
        {
            parts.manufacturer = 11;
        }));
    EXPECT_TRUE(refuses(
        [](PcxParts& parts)
        {
            parts.right = 9;
        }));
    EXPECT_TRUE(refuses(
        [](PcxParts& parts)
        {
            parts.bottom = 4;
        }));
    EXPECT_TRUE(refuses(
        [](PcxParts& parts)
        {
            parts.bytesPerLine = 0;
        }));
    for (const auto& [bits, planes] :
         {std::pair{0, 1}, {2, 1}, {16, 1}, {24, 1}, {4, 4}, {8, 4}, {0, 4}, {8, 3}, {1, 2}})
        EXPECT_TRUE(refuses(
            [&](PcxParts& parts)
            {
                parts.bits = bits;
                parts.planes = planes;
            }))
            << bits << " x " << planes;
    EXPECT_TRUE(refuses(
        [](PcxParts& parts)
        {
            parts.right = parts.bottom = 65535;
        }))
        << "too large";
    const std::string bytes = Eight().Bytes();
    for (std::size_t size = 0; size < 128; ++size)
        ASSERT_TRUE(vorn::DecodePcx(Unsigned(bytes).first(size)).IsEmpty()) << size;
    for (std::size_t size = 128; size < bytes.size(); ++size)
        ASSERT_FALSE(vorn::DecodePcx(Unsigned(bytes).first(size)).IsEmpty()) << size;
}
TEST(PcxFile, LastBytesWithoutTheMarkAreNoPalette)
{
    PcxParts parts = Eight();
    parts.palette.clear();
    parts.headerPalette = "abcdefghi" + std::string(39, '\1');
    for (const char mark : {'\0', '\xB', '\xD'})
    {
        parts.data = "\1\2\3\4\5\6\7\x8" + (mark + Palette());
        const PackedImage image = Decoded(parts);
        EXPECT_EQ(image.BitsOffset(), 104u);
        EXPECT_EQ(ColorAt(image.View(), 1, 0), (Rgb{'g', 'h', 'i'}));
    }
}

TEST(PcxFile, TheImageSizeCountsWholeBytesOfPixels)
{
    PcxParts parts = Eight();
    parts.bits = 1;
    parts.right = parts.left + 12; // 13 pixels: one whole byte of them
    EXPECT_EQ(Decoded(parts).Header().biSizeImage, 2u);
    parts.bits = 4;
    EXPECT_EQ(Decoded(parts).Header().biSizeImage, 12u) << "six whole bytes";
}

TEST(PcxFile, FourPlanesBecomeOne)
{
    PcxParts parts = Eight();
    parts.bits = 1;
    parts.planes = 4;
    EXPECT_EQ(Decoded(parts).Header().biPlanes, 1);
    EXPECT_EQ(Decoded(parts).Header().biBitCount, 4);
}

TEST(PcxFile, LinesMayBeLongerThan255Bytes)
{
    PcxParts parts = Eight();
    parts.right = parts.left + 299;
    parts.bytesPerLine = 300;
    parts.data.clear();
    for (int i = 0; i < 10; ++i)
        parts.data += std::string{'\xFF', static_cast<char>(i + 1)}; // runs of 63
    const PackedImage image = Decoded(parts);
    for (int i = 0; i < 600; ++i)
        ASSERT_EQ(PixelAt(image.View(), i % 300, i / 300), static_cast<DWORD>(i / 63 + 1)) << i;
}

TEST(PcxFile, ALineOfPlanesThatIsCutOffHasNothingOfTheOneAbove)
{
    PcxParts parts;
    parts.bits = 1;
    parts.planes = 4;
    parts.right = 7;
    parts.bottom = 1;
    parts.data = "\xC4\xFF\x81"; // a whole line, and a plane
    const PackedImage image = Decoded(parts);
    EXPECT_EQ(PixelAt(image.View(), 3, 0), 15u);
    EXPECT_EQ(PixelAt(image.View(), 0, 1), 1u);
    EXPECT_EQ(PixelAt(image.View(), 3, 1), 0u);
}
} // namespace
