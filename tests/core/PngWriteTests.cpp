#include "files/core/BmpFile.h"
#include "files/core/ImagePixels.h"
#include "files/core/PngRead.h"
#include "files/core/PngWrite.h"
#include "tests/support/MadePicture.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/ScratchFolder.h"
#include "tests/support/TableBytes.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <stdexcept>

namespace
{
using vorn::ColorAt;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::Rgb;
using vorn::test::Areas;
using vorn::test::BmpParts;
using vorn::test::LevelBars;
using vorn::test::LittleEndian;
using vorn::test::Made;
using vorn::test::Noise;
using vorn::test::ScratchFolder;
using vorn::test::Unsigned;
using vorn::test::UprightBars;

/// The whole file; nothing when it failed.
std::string Written(const PackedImage& image)
{
    std::string file;
    const bool isGood = vorn::EncodePng(image.View(),
                                        [&](const char* data, unsigned size)
                                        {
                                            file.append(data, size);
                                        });
    return isGood ? file : "";
}

/// Pixels that count up in bytes, with a table of as many colours.
PackedImage Counted(int width, int height, int depth)
{
    PackedImage image = PackedImage::Make(width, height, depth);
    for (int i = 0; depth <= 8 && i < 1 << depth; ++i)
        image.SetTableColor(i, {static_cast<BYTE>(i * 3), static_cast<BYTE>(i), static_cast<BYTE>(255 - i)});
    for (std::size_t at = image.BitsOffset(); at < image.Block().size(); ++at)
        image.Block()[at] = static_cast<unsigned char>(at * 37);
    return image;
}

int Bits(const std::string& file)
{
    return file[24];
}

int ColorType(const std::string& file)
{
    return file[25];
}

std::string ChunkTypes(const std::string& file)
{
    std::string types;
    for (std::size_t at = 8; at + 8 <= file.size();)
    {
        std::size_t size = 0;
        for (std::size_t i = 0; i < 4; ++i)
            size = size << 8 | static_cast<unsigned char>(file[at + i]);
        types += file.substr(at + 4, 4) + ' ';
        at += size + 12;
    }
    return types;
}

void ExpectSameColors(const PackedImage& one, const PackedImage& other)
{
    ASSERT_FALSE(other.IsEmpty());
    ASSERT_EQ(one.View().width, other.View().width);
    ASSERT_EQ(one.View().height, other.View().height);
    for (int y = 0; y < one.View().height; ++y)
        for (int x = 0; x < one.View().width; ++x)
            ASSERT_EQ(ColorAt(one.View(), x, y), ColorAt(other.View(), x, y)) << x << ", " << y;
}

TEST(PngWrite, EveryDepthAndOrderIsReadBack)
{
    for (const int depth : {1, 4, 8, 16, 24, 32})
        for (const int height : {5, -5})
            for (const int width : {1, 2, 3, 7, 8, 33})
            {
                const PackedImage image = Counted(width, height, depth);
                const PackedImage back = vorn::DecodePng(Unsigned(Written(image)));
                ExpectSameColors(image, back);
                EXPECT_EQ(back.Header().biBitCount, depth == 16 ? 24 : depth);
            }
}

TEST(PngWrite, TablesAndIndicesAreReadBack)
{
    const PackedImage image = Counted(20, 20, 8);
    const PackedImage back = vorn::DecodePng(Unsigned(Written(image)));
    for (int i = 0; i < 256; ++i)
        EXPECT_EQ(image.TableColor(i), back.TableColor(i));
    EXPECT_EQ(PixelAt(image.View(), 3, 4), PixelAt(back.View(), 3, 4));
}

TEST(PngWrite, KindsFollowTheDepth)
{
    for (const int depth : {1, 4, 8})
    {
        EXPECT_EQ(Bits(Written(Counted(4, 4, depth))), depth);
        EXPECT_EQ(ColorType(Written(Counted(4, 4, depth))), 3);
    }
    for (const int depth : {16, 24})
        EXPECT_EQ(ColorType(Written(Counted(4, 4, depth))), 2);
    EXPECT_EQ(ColorType(Written(Counted(4, 4, 32))), 6);
}

TEST(PngWrite, FourthBytesOfZeroAreNoAlpha)
{
    PackedImage image = Counted(9, 3, 32);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 9; ++x)
            image.Canvas().Row(y)[x * 4 + 3] = 0;
    EXPECT_EQ(ColorType(Written(image)), 2);
    ExpectSameColors(image, vorn::DecodePng(Unsigned(Written(image))));
    image.Canvas().Row(2)[8 * 4 + 3] = 1;
    const PackedImage back = vorn::DecodePng(Unsigned(Written(image)));
    ASSERT_EQ(back.Header().biBitCount, 32);
    EXPECT_EQ(back.View().Row(2)[8 * 4 + 3], 1);
    EXPECT_EQ(back.View().Row(0)[3], 0);
}

TEST(PngWrite, MasksTellWhereTheChannelsAre)
{
    BmpParts parts;
    parts.depth = 32;
    parts.compression = 3;
    parts.behindHeader = LittleEndian(0xFF000000UL, 4) + LittleEndian(0x00FF0000UL, 4) + LittleEndian(0xFF00UL, 4);
    parts.pixels = "\x01\x10\x20\x30";
    const PackedImage image = vorn::DecodeBmp(Unsigned(parts.Bytes()));
    const std::string file = Written(image);
    EXPECT_EQ(ColorType(file), 2);
    EXPECT_EQ(ColorAt(vorn::DecodePng(Unsigned(file)).View(), 0, 0), (Rgb{0x30, 0x20, 0x10}));
}

TEST(PngWrite, HasOnlyTheChunksThatItNeeds)
{
    EXPECT_EQ(ChunkTypes(Written(Counted(4, 4, 8))), "IHDR PLTE IDAT IEND ");
    EXPECT_EQ(ChunkTypes(Written(Counted(4, 4, 32))), "IHDR IDAT IEND ");
}

TEST(PngWrite, IndicesBeyondTheTableAreBlack)
{
    for (const unsigned long entries : {1UL, 3UL, 300UL})
    {
        BmpParts parts;
        parts.width = 4;
        parts.depth = 8;
        parts.usedColors = entries;
        parts.behindHeader = std::string(entries * 4, '\x42');
        parts.pixels = std::string("\0\1\2\6", 4);
        const PackedImage image = vorn::DecodeBmp(Unsigned(parts.Bytes()));
        ASSERT_FALSE(image.IsEmpty());
        ExpectSameColors(image, vorn::DecodePng(Unsigned(Written(image))));
    }
}

TEST(PngWrite, PaletteIndicesHaveNoColors)
{
    const PackedImage image = PackedImage::Make(3, 3, 4, DIB_PAL_COLORS);
    const PackedImage back = vorn::DecodePng(Unsigned(Written(image)));
    EXPECT_EQ(ColorAt(back.View(), 1, 1), Rgb{});
}

TEST(PngWrite, ThePiecesComeInOrder)
{
    std::vector<std::string> pieces;
    const PackedImage image = Counted(200, 200, 24);
    ASSERT_TRUE(vorn::EncodePng(image.View(),
                                [&](const char* data, unsigned size)
                                {
                                    pieces.emplace_back(data, size);
                                }));
    EXPECT_GT(pieces.size(), 5u);
    EXPECT_EQ(pieces.front(), "\x89PNG\r\n\x1A\n");
    std::string file;
    for (const std::string& piece : pieces)
        file += piece;
    EXPECT_EQ(file, Written(image));
}

TEST(PngWrite, ASinkThatThrowsMakesItFail)
{
    const PackedImage image = Counted(100, 100, 24);
    int pieces = 0;
    const auto count = [&](const char*, unsigned)
    {
        ++pieces;
    };
    ASSERT_TRUE(vorn::EncodePng(image.View(), count));
    for (int throwing = 1; throwing <= pieces; ++throwing)
    {
        int piece = 0;
        const auto refuse = [&](const char*, unsigned)
        {
            if (++piece == throwing)
                throw std::runtime_error("full");
        };
        EXPECT_FALSE(vorn::EncodePng(image.View(), refuse)) << throwing;
        EXPECT_EQ(piece, throwing) << "no piece after that";
    }
    EXPECT_FALSE(vorn::EncodePng(image.View(),
                                 [](const char*, unsigned)
                                 {
                                     throw 1;
                                 }));
}

TEST(PngWrite, NoSinkOrNoRowsMakeItFail)
{
    EXPECT_FALSE(vorn::EncodePng(Counted(1, 1, 24).View(), {}));
    EXPECT_FALSE(vorn::EncodePng(Counted(1, 1, 24).View(), vorn::FileSink(nullptr)));
    EXPECT_EQ(Written(PackedImage()), "");
    EXPECT_EQ(Written(PackedImage::Make(3, 0, 24)), "");
    BmpParts packed;
    packed.depth = 8;
    packed.compression = 1;
    packed.behindHeader = std::string(1024, '\0');
    packed.pixels = "abcd";
    const PackedImage image = vorn::DecodeBmp(Unsigned(packed.Bytes()));
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(Written(image), "") << "run-length coded pixels are no rows";
}

TEST(PngWrite, AFileStandsBehindTheLastByte)
{
    const ScratchFolder folder;
    const PackedImage image = Counted(30, 30, 8);
    const std::string path = folder.Write("a.bin", "");
    std::FILE* file = std::fopen(path.c_str(), "wb");
    ASSERT_NE(file, nullptr);
    std::fputs("before", file);
    EXPECT_TRUE(vorn::EncodePng(image.View(), vorn::FileSink(file)));
    EXPECT_EQ(std::ftell(file), static_cast<long>(6 + Written(image).size()));
    std::fputs("behind", file);
    std::fclose(file);
    EXPECT_EQ(folder.Read("a.bin"), "before" + Written(image) + "behind");
}

TEST(PngWrite, AFileThatTakesNothingMakesItFail)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("a.bin", "something");
    std::FILE* file = std::fopen(path.c_str(), "rb");
    ASSERT_NE(file, nullptr);
    EXPECT_FALSE(vorn::EncodePng(Counted(200, 200, 24).View(), vorn::FileSink(file)));
    std::fclose(file);
}

TEST(PngWrite, PicturesOfEveryKindAreReadBack)
{
    for (const int depth : {1, 4, 8, 16, 24, 32})
        for (const auto& pixel : {UprightBars, LevelBars, Noise})
            for (const int height : {70, -70})
            {
                const PackedImage image = Made(95, height, depth, pixel);
                const PackedImage back = vorn::DecodePng(Unsigned(Written(image)));
                ASSERT_FALSE(back.IsEmpty());
                for (int y = 0; y < 70; ++y)
                    for (int x = 0; x < 95; ++x)
                        ASSERT_EQ(ColorAt(back.View(), x, y), ColorAt(image.View(), x, y))
                            << depth << ": " << x << ", " << y;
            }
}

TEST(PngWrite, FlatPicturesMakeSmallFiles)
{
    EXPECT_LT(Written(Made(400, 300, 24, Areas)).size(), 400u * 300 * 3 / 60);
    EXPECT_LT(Written(Made(400, 300, 8, Areas)).size(), 400u * 300 / 20);
}
} // namespace
