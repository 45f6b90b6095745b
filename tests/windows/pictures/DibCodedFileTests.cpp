#include "files/PaletteMapper.h"
#include "tests/support/ImportRedirect.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/ScratchFolder.h"
#include "tests/windows/pictures/DrawnOn.h"
#include "tests/windows/pictures/OutsideFiles.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fcntl.h>
#include <io.h>
#include <sstream>
#include <stdexcept>

namespace
{
using namespace vorn::test;

class DibCoded : public testing::Test
{
protected:
    std::string Write(const std::string& bytes, const std::string& name = "picture") const
    {
        return m_folder.Write(name, bytes);
    }
    std::string Path(const std::string& name = "out") const
    {
        return m_folder.File(name);
    }
    bool HasFile(const std::string& name = "out") const
    {
        return std::filesystem::exists(m_folder.Path() / name);
    }

    ScratchFolder m_folder;
};

bool ReadJpeg(DIB& image, const std::string& path, PaletteMapper* mapper = nullptr, int scale = 1)
{
    return image.ReadJPEG(path.c_str(), 0, scale, mapper, 1, 1, 1);
}

std::string EncodedPng(const DIB& image)
{
    std::string bytes;
    EXPECT_TRUE(image.WritePNG(
        [&bytes](const char* data, unsigned size)
        {
            bytes.append(data, size);
        }));
    return bytes;
}

std::string Shades(const DIB& image, int y)
{
    std::string text;
    for (int x = 0; x < image.Width(); ++x)
        text += std::to_string(ColorOf(image, x, y) & 0xFF) + ' ';
    return text;
}

TEST_F(DibCoded, PngOfOtherPrograms)
{
    DIB image;
    ASSERT_TRUE(image.ReadPNG(Write(outside::PngInterlaced()).c_str()));
    ASSERT_EQ(image.Width(), 4);
    ASSERT_EQ(image.Height(), 3);
    EXPECT_EQ(image.BitmapInfo()->bmiHeader.biHeight, 3) << "bottom-up";
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(ColorOf(image, x, y), static_cast<unsigned>(60 * x << 16 | 100 * y << 8 | (255 - 60 * x)));
    ASSERT_TRUE(image.ReadPNG(Write(outside::PngPalette()).c_str()));
    EXPECT_EQ(image.Depth(), 4) << "two bits are widened";
    EXPECT_EQ(Colors(image).substr(0, 13), "#RGB#R|RGB#RG");
    ASSERT_TRUE(image.ReadPNG(Write(outside::PngGrey()).c_str()));
    EXPECT_EQ(Shades(image, 0) + Shades(image, 1), "0 50 100 150 200 250 255 7 ");
}

TEST_F(DibCoded, PngKeepsItsAlphaChannel)
{
    DIB image;
    ASSERT_TRUE(image.ReadPNG(Write(outside::PngAlpha()).c_str()));
    ASSERT_EQ(image.Depth(), 32);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
        {
            EXPECT_EQ(ColorOf(image, x, y), static_cast<unsigned>(60 * x << 16 | 100 * y << 8 | (255 - 60 * x)));
            EXPECT_EQ(image.Bits()[(2 - y) * 16 + x * 4 + 3], 255 - 80 * y) << "bottom-up";
        }
}

TEST_F(DibCoded, PngGoesRoundInEveryDepth)
{
    for (const int depth : {1, 4, 8, 24, 32})
    {
        DIB image(13, -5, depth, 0, 0, nullptr, nullptr);
        for (int i = 0; depth <= 8 && i < 1 << depth; ++i)
            SetEntry(image, i, static_cast<unsigned>(i * 0x010307));
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 13; ++x)
                image.PutPixel(x, y, static_cast<DWORD>(depth <= 8 ? x * y : x * 0x080402 + y * 0x010203));
        ASSERT_TRUE(image.WritePNG(Path().c_str())) << depth;
        DIB back;
        ASSERT_TRUE(back.ReadPNG(Path().c_str())) << depth;
        EXPECT_EQ(back.Depth(), depth == 32 ? 24 : depth) << "an alpha channel of zeros is none";
        for (int y = 0; y < 5; ++y)
            for (int x = 0; x < 13; ++x)
                EXPECT_EQ(ColorOf(back, x, y), ColorOf(image, x, y)) << depth;
    }
}

TEST_F(DibCoded, PngOfAlphaGoesRound)
{
    DIB image = FromLetters("RG|BY", 32);
    image.Bits()[3] = 9;
    image.Bits()[7] = 255;
    ASSERT_TRUE(image.WritePNG(Path().c_str()));
    DIB back;
    ASSERT_TRUE(back.ReadPNG(Path().c_str()));
    EXPECT_EQ(back.Depth(), 32);
    EXPECT_EQ(std::memcmp(back.Bits(), image.Bits(), 16), 0);
}

// As programs write bitmaps with an alpha channel: masks that tell the usual order of the channels.
TEST_F(DibCoded, AlphaOfABitmapWithMasksGoesIntoAPng)
{
    BmpParts parts;
    parts.depth = 32;
    parts.compression = BI_BITFIELDS;
    parts.behindHeader = std::string("\0\0\xFF\0\0\xFF\0\0\xFF\0\0\0", 12);
    parts.pixels = "\x10\x20\x30\x40";
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(parts.Bytes()).c_str()));
    EXPECT_EQ(ColorOf(image, 0, 0), 0x302010u);
    ASSERT_TRUE(image.WritePNG(Path().c_str()));
    DIB back;
    ASSERT_TRUE(back.ReadPNG(Path().c_str()));
    ASSERT_EQ(back.Depth(), 32);
    EXPECT_EQ(std::memcmp(back.Bits(), "\x10\x20\x30\x40", 4), 0);
}

TEST_F(DibCoded, PngGoesIntoEveryTarget)
{
    const DIB image = FromLetters("RG|BY");
    const std::string bytes = EncodedPng(image);
    EXPECT_EQ(bytes.substr(0, 8), "\x89PNG\r\n\x1A\n");
    ASSERT_TRUE(image.WritePNG(Path().c_str()));
    EXPECT_EQ(m_folder.Read("out"), bytes);
    std::ostringstream stream;
    stream << "before";
    ASSERT_TRUE(image.WritePNG(stream));
    stream << "behind";
    EXPECT_EQ(stream.str(), "before" + bytes + "behind");
    FILE* file = std::fopen(Path("twice").c_str(), "wb");
    ASSERT_NE(file, nullptr);
    EXPECT_TRUE(image.WritePNG(file));
    EXPECT_EQ(std::ftell(file), static_cast<long>(bytes.size()));
    EXPECT_TRUE(image.WritePNG(file)) << "it stays open";
    std::fclose(file);
    EXPECT_EQ(m_folder.Read("twice"), bytes + bytes);
}

TEST_F(DibCoded, PngWritingFails)
{
    const DIB image = FromLetters("RG|BY");
    EXPECT_FALSE(image.WritePNG(std::function<void(const char*, unsigned)>()));
    EXPECT_FALSE(image.WritePNG(static_cast<FILE*>(nullptr)));
    EXPECT_FALSE(image.WritePNG(static_cast<const char*>(nullptr)));
    EXPECT_FALSE(image.WritePNG(Path("no/such/folder").c_str()));
    std::ostringstream bad;
    bad.setstate(std::ios::badbit);
    EXPECT_FALSE(image.WritePNG(bad));
    EXPECT_FALSE(image.WritePNG(
        [](const char*, unsigned)
        {
            throw std::runtime_error("full");
        }));
    EXPECT_FALSE(image.WritePNG(
        [](const char*, unsigned)
        {
            throw 42;
        }));
    EXPECT_FALSE(DIB().WritePNG(Path().c_str()));
    EXPECT_FALSE(HasFile()) << "no file of no image";
    Write("before", "out");
    EXPECT_FALSE(DIB().WritePNG(Path().c_str()));
    EXPECT_EQ(m_folder.Read("out"), "before") << "nothing was to be written";
}

TEST_F(DibCoded, DamagedPngLeavesNoImage)
{
    const std::string whole = outside::PngInterlaced();
    for (std::size_t size = 0; size < whole.size() - 12; ++size)
    {
        DIB image = FromLetters("R");
        ASSERT_FALSE(image.ReadPNG(Write(whole.substr(0, size)).c_str())) << size;
        ASSERT_TRUE(IsWithoutImage(image));
    }
}

// The colours are those that djpeg, of the same library, finds in the file.
TEST_F(DibCoded, JpegOfOtherPrograms)
{
    const unsigned expected[3][4] = {{0x000EBD, 0x071BCA, 0x711046, 0x7C1B51},
                                     {0x3549F8, 0x4256FF, 0xAC4B81, 0xB7568C},
                                     {0x1AC3DA, 0x26CFE6, 0x90C364, 0x9BCE6F}};
    DIB image;
    ASSERT_TRUE(ReadJpeg(image, Write(outside::JpegColor())));
    EXPECT_EQ(image.Depth(), 24);
    EXPECT_EQ(image.BitmapInfo()->bmiHeader.biHeight, 3) << "bottom-up";
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(ColorOf(image, x, y), expected[y][x]) << x << ' ' << y;
    ASSERT_TRUE(ReadJpeg(image, Write(outside::JpegGrey())));
    EXPECT_EQ(image.Depth(), 24);
    EXPECT_EQ(Shades(image, 0) + Shades(image, 1), "0 47 100 150 203 251 255 7 ");
    EXPECT_EQ(ColorOf(image, 1, 0), 0x2F2F2FU);
}

TEST_F(DibCoded, JpegBehindOtherBytes)
{
    const std::string jpeg = outside::JpegColor();
    const std::string path = Write("12345" + jpeg);
    DIB plain;
    ASSERT_TRUE(ReadJpeg(plain, Write(jpeg, "plain")));
    DIB image;
    EXPECT_FALSE(ReadJpeg(image, path));
    ASSERT_TRUE(image.ReadJPEG(path.c_str(), 5, 1, nullptr, 1, 1, 1));
    EXPECT_EQ(ColorOf(image, 2, 1), ColorOf(plain, 2, 1));
    EXPECT_FALSE(image.ReadJPEG(path.c_str(), 10000, 1, nullptr, 1, 1, 1));
    EXPECT_FALSE(image.ReadJPEG(path.c_str(), -5, 1, nullptr, 1, 1, 1));
    FILE* file = std::fopen(path.c_str(), "rb");
    ASSERT_NE(file, nullptr);
    std::fseek(file, 2, SEEK_SET);
    EXPECT_TRUE(image.ReadJPEG(file, 3, 1, nullptr, 1, 1, 1)) << "from where the file stands";
    EXPECT_EQ(ColorOf(image, 3, 2), ColorOf(plain, 3, 2));
    EXPECT_EQ(std::fseek(file, 0, SEEK_SET), 0) << "still open";
    std::fclose(file);
    EXPECT_FALSE(image.ReadJPEG(static_cast<FILE*>(nullptr), 0, 1, nullptr, 1, 1, 1));
    EXPECT_TRUE(IsWithoutImage(image));
}

TEST_F(DibCoded, JpegOutOfAPipe)
{
    const std::string jpeg = outside::JpegColor();
    int ends[2] = {-1, -1};
    ASSERT_EQ(_pipe(ends, 65536, _O_BINARY), 0);
    EXPECT_EQ(_write(ends[1], jpeg.data(), static_cast<unsigned>(jpeg.size())), static_cast<int>(jpeg.size()));
    _close(ends[1]);
    FILE* file = _fdopen(ends[0], "rb");
    ASSERT_NE(file, nullptr);
    DIB image;
    EXPECT_TRUE(image.ReadJPEG(file, 0, 1, nullptr, 1, 1, 1)) << "where there is no way but forward";
    EXPECT_EQ(image.Width(), 4);
    EXPECT_FALSE(image.ReadJPEG(file, 1, 1, nullptr, 1, 1, 1));
    std::fclose(file);
}

TEST_F(DibCoded, JpegScalesAndFactors)
{
    DIB source(40, 24, 24, 0, 0, nullptr, nullptr);
    std::memset(source.Bits(), 100, static_cast<std::size_t>(source.BytesPerScan()) * 24);
    ASSERT_TRUE(source.WriteJPEG(Path().c_str(), 100, 0, nullptr));
    DIB image;
    for (const auto& [scale, divisor] :
         {std::pair{1, 1}, std::pair{2, 2}, std::pair{4, 4}, std::pair{8, 8}, std::pair{0, 1}, std::pair{-3, 1},
          std::pair{3, 2}, std::pair{7, 4}, std::pair{99, 8}})
    {
        ASSERT_TRUE(ReadJpeg(image, Path(), nullptr, scale));
        EXPECT_EQ(image.Width(), 40 / divisor) << scale;
        EXPECT_EQ(image.Height(), 24 / divisor) << scale;
    }
    ASSERT_TRUE(image.ReadJPEG(Path().c_str(), 0, 1, nullptr, 0.5, 1, 10));
    EXPECT_EQ(ColorOf(image, 5, 5), 0x3264FFU) << "half, the same, clamped";
}

TEST_F(DibCoded, JpegGoesRound)
{
    DIB image(16, 16, 24, 0, 0, nullptr, nullptr);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            image.PutPixel(x, y, RGB(10 * x, 10 * y, 100));
    std::uintmax_t former = 0;
    for (const int quality : {10, 50, 95})
    {
        ASSERT_TRUE(image.WriteJPEG(Path().c_str(), quality, 0, nullptr));
        const auto size = std::filesystem::file_size(m_folder.Path() / "out");
        EXPECT_GT(size, former) << quality;
        former = size;
    }
    DIB back;
    ASSERT_TRUE(ReadJpeg(back, Path()));
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            EXPECT_NEAR(ColorOf(back, x, y) >> 8 & 0xFF, 10 * y, 16);
}

TEST_F(DibCoded, JpegQualityOutsideItsRange)
{
    const DIB image = FromLetters("RGB|Y.#");
    const auto written = [&](int quality, int progressive = 0)
    {
        EXPECT_TRUE(image.WriteJPEG(Path().c_str(), quality, progressive, nullptr));
        return m_folder.Read("out");
    };
    EXPECT_EQ(written(0), written(75));
    EXPECT_EQ(written(-1), written(75));
    EXPECT_EQ(written(1000), written(100));
    EXPECT_NE(written(1), written(75));
    EXPECT_EQ(written(75).find("\xFF\xC2"), std::string::npos);
    EXPECT_NE(written(75, 1).find("\xFF\xC2"), std::string::npos) << "a progressive frame";
}

TEST_F(DibCoded, JpegWritingFails)
{
    EXPECT_FALSE(DIB().WriteJPEG(Path().c_str(), 75, 0, nullptr));
    EXPECT_FALSE(HasFile());
    Write("before", "out");
    EXPECT_FALSE(DIB().WriteJPEG(Path().c_str(), 75, 0, nullptr));
    EXPECT_FALSE(DIB(65501, 1, 1, 0, 0, nullptr, nullptr).WriteJPEG(Path().c_str(), 75, 0, nullptr));
    EXPECT_EQ(m_folder.Read("out"), "before") << "nothing that cannot be written costs a file";
    EXPECT_FALSE(FromLetters("R").WriteJPEG(Path("no/such/folder").c_str(), 75, 0, nullptr));
    EXPECT_FALSE(FromLetters("R").WriteJPEG(nullptr, 75, 0, nullptr));
}

TEST_F(DibCoded, JpegReducedToAPalette)
{
    const TestPalette palette(68);
    PaletteMapper mapper(palette, 32);
    DIB image;
    ASSERT_TRUE(ReadJpeg(image, Write(outside::JpegGrey()), &mapper));
    EXPECT_EQ(image.Depth(), 8);
    EXPECT_EQ(image.Usage(), 0);
    const RGBQUAD red = image.BitmapInfo()->bmiColors[1];
    EXPECT_EQ(red.rgbRed, 255);
    EXPECT_EQ(red.rgbBlue, 0);
    EXPECT_EQ(image.BitmapInfo()->bmiColors[4].rgbGreen, 8);
    const int greys[] = {0, 47, 100, 150, 203, 251, 255, 7};
    for (int x = 0; x < 4; ++x)
        for (int y = 0; y < 2; ++y)
            EXPECT_NEAR(static_cast<int>(ColorOf(image, x, y) & 0xFF), greys[y * 4 + x], 9);
    DIB plain;
    ASSERT_TRUE(ReadJpeg(plain, Path("picture")));
    EXPECT_EQ(image.GetPixel(2, 0), mapper.GetNearestPaletteIndex(100, 100, 100));
}

TEST_F(DibCoded, JpegWrittenInThePalettesColours)
{
    const TestPalette palette(4);
    PaletteMapper mapper(palette, 64);
    DIB image(16, 16, 24, 0, 0, nullptr, nullptr);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            image.PutPixel(x, y, RGB(200, 30, 40));
    ASSERT_TRUE(image.WriteJPEG(Path().c_str(), 100, 0, &mapper));
    DIB back;
    ASSERT_TRUE(ReadJpeg(back, Path()));
    EXPECT_NEAR(static_cast<int>(ColorOf(back, 8, 8) >> 16), 255, 2) << "pure red, the nearest entry";
    EXPECT_NEAR(static_cast<int>(ColorOf(back, 8, 8) & 0xFFFF), 0, 0x202);
}

TEST_F(DibCoded, MapperWithoutAPaletteHarmsNothing)
{
    PaletteMapper mapper(nullptr, 8);
    DIB image;
    ReadJpeg(image, Write(outside::JpegColor()), &mapper);
    EXPECT_EQ(ColorOf(image, 0, 0), 0U) << "no entries: black";
    FromLetters("RG|BY").WriteJPEG(Path().c_str(), 75, 0, &mapper);
}

TEST_F(DibCoded, JpegThatEndsEarly)
{
    const std::string whole = outside::JpegColor();
    DIB image;
    EXPECT_TRUE(ReadJpeg(image, Write(whole.substr(0, whole.size() - 4)))) << "the picture so far";
    EXPECT_EQ(image.Width(), 4);
    EXPECT_FALSE(ReadJpeg(image, Write(whole.substr(0, 100)))) << "no scan";
    EXPECT_TRUE(IsWithoutImage(image));
}

TEST_F(DibCoded, BitmapOf24BitsIsWritten)
{
    for (const bool isTopDown : {false, true})
    {
        const DIB image = FromLetters("RGB|Y.#", 24, isTopDown);
        ASSERT_TRUE(image.WriteBMP(Path().c_str()));
        const std::string bytes = m_folder.Read("out");
        ASSERT_EQ(bytes.size(), 54U + 24);
        EXPECT_EQ(bytes.substr(0, 14), std::string("BM\x4E\0\0\0\0\0\0\0\x36\0\0\0", 14));
        EXPECT_EQ(std::memcmp(bytes.data() + 14, image.BitmapInfo(), 40), 0);
        EXPECT_EQ(std::memcmp(bytes.data() + 54, image.Bits(), 24), 0);
        DIB back;
        ASSERT_TRUE(back.ReadUnknown(Path().c_str()));
        EXPECT_EQ(Colors(back), "RGB|Y.#");
    }
}

TEST_F(DibCoded, BitmapOfASectionIsWritten)
{
    DIB image(3, -2, 24, 0, 1, nullptr, nullptr);
    image.PutPixel(2, 0, RGB(255, 0, 0));
    ASSERT_TRUE(image.WriteBMP(Path().c_str()));
    DIB back;
    ASSERT_TRUE(back.ReadBMP(Path().c_str()));
    EXPECT_EQ(Colors(back), "##R|###");
}

TEST_F(DibCoded, BitmapReadWithAGapIsWrittenWithout)
{
    std::string bytes = outside::Bmp24();
    bytes.insert(54, "between!");
    bytes[10] = 62;
    bytes[2] = static_cast<char>(bytes.size());
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(bytes).c_str()));
    ASSERT_TRUE(image.WriteBMP(Path().c_str()));
    EXPECT_EQ(m_folder.Read("out").substr(54), outside::Bmp24().substr(54));
    EXPECT_EQ(m_folder.Read("out").size(), 90U);
}

TEST_F(DibCoded, BitmapOfOtherDepthsMakesNoFile)
{
    for (const int depth : {1, 4, 8, 16, 32})
        EXPECT_FALSE(DIB(2, 2, depth, 0, 0, nullptr, nullptr).WriteBMP(Path().c_str()));
    EXPECT_FALSE(DIB().WriteBMP(Path().c_str()));
    EXPECT_FALSE(HasFile());
    Write("before", "out");
    EXPECT_FALSE(DIB(2, 2, 8, 0, 0, nullptr, nullptr).WriteBMP(Path().c_str()));
    EXPECT_EQ(m_folder.Read("out"), "before");
    EXPECT_FALSE(FromLetters("R").WriteBMP(Path("no/such/folder").c_str()));
    EXPECT_FALSE(FromLetters("R").WriteBMP(nullptr));
}
} // namespace
