#include "tests/support/PictureBytes.h"
#include "tests/support/ScratchFolder.h"
#include "tests/windows/pictures/DrawnOn.h"
#include "tests/windows/pictures/OutsideFiles.h"

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <limits>
#include <memory>

namespace
{
using namespace vorn::test;

class DibRead : public testing::Test
{
protected:
    std::string Write(const std::string& bytes, const std::string& name = "picture") const
    {
        return m_folder.Write(name, bytes);
    }

    ScratchFolder m_folder;
};

void ExpectRamp(const DIB& image)
{
    ASSERT_EQ(image.Width(), 4);
    ASSERT_EQ(image.Height(), 3);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(ColorOf(image, x, y), static_cast<unsigned>(60 * x << 16 | 100 * y << 8 | (255 - 60 * x)))
                << x << ' ' << y;
}

constexpr const char* kSteps = "#RGB#R|RGB#RG|GB#RGB|B#RGB#|#RGB#R|RGB#RG|GB#RGB|B#RGB#|#RGB#R";

std::ptrdiff_t BitsOffset(const DIB& image)
{
    return image.Bits() - reinterpret_cast<const unsigned char*>(image.BitmapInfo());
}

TEST_F(DibRead, BitmapsOfOtherPrograms)
{
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(outside::Bmp24()).c_str()));
    ExpectRamp(image);
    EXPECT_EQ(image.Depth(), 24);
    EXPECT_EQ(BitsOffset(image), 40);
    ASSERT_TRUE(image.ReadBMP(Write(outside::Bmp4()).c_str()));
    EXPECT_EQ(image.Depth(), 4);
    EXPECT_EQ(Colors(image), kSteps);
    ASSERT_TRUE(image.ReadBMP(Write(outside::Bmp1()).c_str()));
    EXPECT_EQ(image.Depth(), 1);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 32; ++x)
            EXPECT_EQ(ColorOf(image, x, y), (x * x + y) % 3 == 0 ? 0U : 0xFFFFFFU);
}

TEST_F(DibRead, BitmapWithMasks)
{
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(outside::Bmp565()).c_str()));
    EXPECT_EQ(image.Depth(), 16);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
        {
            const unsigned color = ColorOf(image, x, y);
            EXPECT_NEAR(color >> 16, 60 * x, 8);
            EXPECT_NEAR(color >> 8 & 0xFF, 100 * y, 4);
            EXPECT_NEAR(color & 0xFF, 255 - 60 * x, 8);
        }
    const DrawnOn target(4, 3);
    EXPECT_NE(image.StretchDIBits(target.Dc(), 0, 0, 4, 3, SRCCOPY), 0);
    EXPECT_NEAR(GetRValue(GetPixel(target.Dc(), 2, 1)), 120, 8);
    EXPECT_NEAR(GetGValue(GetPixel(target.Dc(), 2, 1)), 100, 4);
}

TEST_F(DibRead, TurnedBitmapKeepsItsMasks)
{
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(outside::Bmp565()).c_str()));
    const std::unique_ptr<DIB> turned(image.Rotate(180, 0, 0));
    ASSERT_TRUE(turned);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(turned->GetPixel(x, y), image.GetPixel(3 - x, 2 - y));
    EXPECT_EQ(ColorOf(*turned, 0, 0), ColorOf(image, 3, 2));
}

TEST_F(DibRead, BitmapKeepsItsBlockAsItIs)
{
    BmpParts parts = RedBmp();
    parts.behindHeader += "some bytes between";
    const std::string bytes = parts.Bytes();
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(bytes + "and more behind").c_str()));
    EXPECT_EQ(Colors(image), "R#");
    EXPECT_EQ(std::memcmp(image.BitmapInfo(), bytes.data() + 14, bytes.size() - 14), 0);
    EXPECT_EQ(BitsOffset(image), 40 + 8 + 18);
    const DIB copy(image);
    EXPECT_EQ(BitsOffset(copy), 40 + 8 + 18) << "the gap stays";
    EXPECT_EQ(Colors(copy), "R#");
}

TEST_F(DibRead, BitmapWithoutAnOffsetHasTheRowsBehindTheTable)
{
    BmpParts parts = RedBmp();
    parts.offsetField = 0;
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(parts.Bytes()).c_str()));
    EXPECT_EQ(Colors(image), "R#");
}

TEST_F(DibRead, ImpossibleBitmapsLeaveNoImage)
{
    const auto fails = [this](const std::function<void(BmpParts&)>& change)
    {
        BmpParts parts = RedBmp();
        change(parts);
        DIB image = FromLetters("R");
        return !image.ReadBMP(Write(parts.Bytes()).c_str()) && IsWithoutImage(image);
    };
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.depth = 0;
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.depth = 2;
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.width = 0;
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.width = -2;
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.height = 0;
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.height = std::numeric_limits<int>::min();
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.height = 2;
        }))
        << "rows that are not there";
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.height = -1000000;
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.width = 0x7FFFFFFF;
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.headerSize = 12;
        }))
        << "of the older kind";
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.sizeField = 53;
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.sizeField = 1000;
        }))
        << "above the file's size";
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.offsetField = 53;
        }));
    EXPECT_TRUE(fails(
        [](BmpParts& parts)
        {
            parts.offsetField = 10000;
        }));
    EXPECT_FALSE(fails([](BmpParts&) {}));
}

TEST_F(DibRead, CompressedBitmapIsKeptAndDrawnOnly)
{
    BmpParts parts = RedBmp();
    parts.compression = 1;
    parts.width = 3;
    parts.height = 2;
    parts.pixels = std::string("\2\1\1\0\0\0\3\1\0\1", 10); // two red and a black one; three red
    parts.imageSize = 10;
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(parts.Bytes()).c_str()));
    const DrawnOn target(3, 2);
    EXPECT_NE(image.StretchDIBits(target.Dc(), 0, 0, 3, 2, SRCCOPY), 0);
    EXPECT_EQ(target.Text(), "RRR|RR#");
    EXPECT_EQ(image.Width(), 3);
    EXPECT_EQ(image.GetPixel(0, 0), 0U);
    EXPECT_EQ(Colors(image), "###|###");
    image.PutPixel(0, 0, 1);
    DIB other = FromLetters("..");
    EXPECT_FALSE(other.Blt(0, 0, &image));
    EXPECT_FALSE(image.To24Bit(&other));
    EXPECT_FALSE(other.LQResize(2, 2, &image));
    EXPECT_FALSE(other.HQResize(2, 2, &image));
    EXPECT_EQ(image.Rotate(90, 1, 0), nullptr);
    EXPECT_EQ(image.BuildMask(0, 0, 0), nullptr);
    EXPECT_EQ(image.BuildCursor(nullptr, 2, 2, 0, 0, 0, 0, 0), nullptr);
    EXPECT_FALSE(image.WritePNG(m_folder.File("x.png").c_str()));
    EXPECT_FALSE(image.WriteJPEG(m_folder.File("x.jpg").c_str(), 75, 0, nullptr));
    const DIB copy(image);
    EXPECT_EQ(copy.Depth(), 8);
    const DrawnOn again(3, 2);
    EXPECT_NE(copy.StretchDIBits(again.Dc(), 0, 0, 3, 2, SRCCOPY), 0);
    EXPECT_EQ(again.Text(), "RRR|RR#");
}

TEST_F(DibRead, UnseenBitmapOf24BitsIsNoPictureOf24Bits)
{
    BmpParts parts;
    parts.compression = 3;
    parts.pixels = std::string(16, '\1');
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(parts.Bytes()).c_str()));
    EXPECT_EQ(image.Depth(), 24);
    EXPECT_FALSE(image.To24Bit(&image));
    EXPECT_FALSE(image.WriteBMP(m_folder.File("x.bmp").c_str()));
    EXPECT_FALSE(std::filesystem::exists(m_folder.File("x.bmp")));
}

TEST_F(DibRead, CompressedBitmapOfAnySizeFieldIsDrawnFromWhatThereIs)
{
    BmpParts parts = RedBmp();
    parts.compression = 1;
    parts.width = 3;
    parts.height = 1;
    parts.pixels = std::string("\2\1\1\0", 4);
    std::string bytes = parts.Bytes();
    for (const int size : {0x04, 0xFF})
    {
        std::memset(bytes.data() + 14 + 20, size, 4); // biSizeImage
        DIB image;
        ASSERT_TRUE(image.ReadBMP(Write(bytes).c_str()));
        const DrawnOn target(3, 1);
        image.StretchDIBits(target.Dc(), 0, 0, 3, 1, SRCCOPY);
        image.SetDIBits(target.Dc(), nullptr, 0, 1);
    }
}

TEST_F(DibRead, CompressedBitmapThatDoesNotTellItsSizeIsDrawn)
{
    BmpParts parts = RedBmp();
    parts.compression = 1;
    parts.width = 3;
    parts.height = 2;
    parts.pixels = std::string("\2\1\1\0\0\0\3\1\0\1", 10); // two red and a black one; three red
    DIB image;
    ASSERT_TRUE(image.ReadBMP(Write(parts.Bytes()).c_str()));
    ASSERT_EQ(image.BitmapInfo()->bmiHeader.biSizeImage, 0U);
    const DrawnOn target(3, 2);
    EXPECT_NE(image.StretchDIBits(target.Dc(), 0, 0, 3, 2, SRCCOPY), 0);
    EXPECT_EQ(target.Text(), "RRR|RR#");
}

TEST_F(DibRead, PcxOfOtherPrograms)
{
    DIB image;
    ASSERT_TRUE(image.ReadPCX(Write(outside::Pcx8()).c_str()));
    ExpectRamp(image);
    EXPECT_EQ(image.Depth(), 8);
    EXPECT_EQ(image.BitmapInfo()->bmiHeader.biHeight, 3) << "bottom-up";
    EXPECT_EQ(image.BitmapInfo()->bmiHeader.biSizeImage, 12U);
    EXPECT_EQ(BitsOffset(image), 1064);
    ASSERT_TRUE(image.ReadPCX(Write(outside::PcxPlanes()).c_str()));
    EXPECT_EQ(image.Depth(), 4);
    EXPECT_EQ(BitsOffset(image), 104);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 16; ++x)
        {
            const unsigned i = static_cast<unsigned>(x * 5 + y) % 16;
            EXPECT_EQ(ColorOf(image, x, y), 17 * i << 16 | (255 - 17 * i) << 8 | i * 40 % 256) << x << ' ' << y;
        }
}

TEST_F(DibRead, PcxOfOneBitHasSixteenEntriesAndKeepsItsPlaceWhenCopied)
{
    PcxParts parts;
    parts.bits = 1;
    parts.right = 31;
    parts.bottom = 1;
    parts.bytesPerLine = 4;
    parts.headerPalette[3] = '\xFF';
    parts.data = "\x55\x01\x02\x03\xC4\x0F";
    DIB image;
    ASSERT_TRUE(image.ReadPCX(Write(parts.Bytes()).c_str()));
    EXPECT_EQ(image.Depth(), 1);
    EXPECT_EQ(BitsOffset(image), 104);
    EXPECT_EQ(Values(image).substr(0, 8), "01010101");
    EXPECT_EQ(Values(image).substr(33, 8), "00001111");
    EXPECT_EQ(ColorOf(image, 1, 0), 0xFF0000U);
    const DIB copy(image);
    EXPECT_EQ(BitsOffset(copy), 104);
    EXPECT_EQ(Values(copy), Values(image));
}

TEST_F(DibRead, PcxOfAnOddWidthIsSheared)
{
    PcxParts parts;
    parts.right = 2;
    parts.bottom = 1;
    parts.bytesPerLine = 6;
    parts.data = std::string("\1\2\3\4\5\6\7\10\11\12\13\14", 12);
    parts.palette = std::string(768, '\0');
    DIB image;
    ASSERT_TRUE(image.ReadPCX(Write(parts.Bytes()).c_str()));
    EXPECT_EQ(image.BytesPerScan(), 4);
    EXPECT_EQ(std::memcmp(image.Bits(), "\7\10\11\12\13\14\1\2\3\4\5\6", 12), 0) << "rows as long as the file's lines";
    EXPECT_EQ(Values(image), "BC1|789");
}

TEST_F(DibRead, PcxOfOtherPlanesFails)
{
    for (int planes = 0; planes < 256; ++planes)
        for (const int bits : {1, 2, 4, 8})
        {
            PcxParts parts;
            parts.bits = bits;
            parts.planes = planes;
            parts.data = std::string(64, '\1');
            const bool isReadable = (planes == 1 && bits != 2) || (planes == 4 && bits == 1);
            DIB image = FromLetters("R");
            EXPECT_EQ(image.ReadPCX(Write(parts.Bytes()).c_str()), isReadable) << planes << " x " << bits;
            EXPECT_EQ(IsWithoutImage(image), !isReadable);
        }
}

TEST_F(DibRead, GifOfOtherPrograms)
{
    int transparent = 7;
    DIB image;
    for (const std::string& bytes : {outside::GifPlain(), outside::GifInterlaced()})
    {
        ASSERT_TRUE(image.ReadGIF(Write(bytes).c_str(), transparent, 0));
        EXPECT_EQ(transparent, -1);
        EXPECT_EQ(image.BitmapInfo()->bmiHeader.biHeight, -9) << "top-down";
        EXPECT_EQ(BitsOffset(image), 1064);
        EXPECT_EQ(image.BytesPerScan(), 8);
        EXPECT_EQ(Colors(image), kSteps);
    }
    ASSERT_TRUE(image.ReadGIF(Write(outside::GifTransparent()).c_str(), transparent, 0));
    ASSERT_GE(transparent, 0);
    for (int y = 0; y < 9; ++y)
        for (int x = 0; x < 6; ++x)
            EXPECT_EQ(image.GetPixel(x, y) == static_cast<DWORD>(transparent), (x + y) % 4 == 2);
}

TEST_F(DibRead, GifOfSeveralImages)
{
    const std::string path = Write(outside::GifThree());
    int transparent = 0;
    DIB image;
    ASSERT_TRUE(image.ReadGIF(path.c_str(), transparent, 0));
    EXPECT_EQ(Colors(image), "RRR|RRR");
    ASSERT_TRUE(image.ReadGIF(path.c_str(), transparent, 1));
    EXPECT_EQ(image.Width(), 2);
    EXPECT_EQ(image.Height(), 2);
    EXPECT_EQ(image.GetPixel(0, 0), static_cast<DWORD>(transparent));
    ASSERT_TRUE(image.ReadGIF(path.c_str(), transparent, 2));
    EXPECT_EQ(Colors(image), "GGGG");
    for (const int index : {3, -1, 1000})
    {
        transparent = 5;
        EXPECT_FALSE(image.ReadGIF(path.c_str(), transparent, index));
        EXPECT_EQ(transparent, -1);
        EXPECT_TRUE(IsWithoutImage(image));
    }
}

TEST_F(DibRead, TransparentIndexOfAnEarlierBlockStays)
{
    const std::string table("\0\0\0\xFF\0\0", 6);
    const std::string data = SubBlocks(PlainCodes(std::string("\1", 1), 2));
    const std::string path = Write(
        GifParts(table).Control(1, 9).Image(1, 1, 2, data).Control(0, 4).Image(1, 1, 2, data).Control(1, 3).Bytes());
    int transparent = 0;
    DIB image;
    EXPECT_TRUE(image.ReadGIF(path.c_str(), transparent, 0));
    EXPECT_EQ(transparent, 9);
    EXPECT_TRUE(image.ReadGIF(path.c_str(), transparent, 1));
    EXPECT_EQ(transparent, 9) << "a later block without the flag takes nothing back";
    EXPECT_EQ(Colors(image), "R");
}

TEST_F(DibRead, MissingFilesLeaveNoImage)
{
    const std::string path = m_folder.File("missing");
    int transparent = 0;
    for (const char* name : {path.c_str(), static_cast<const char*>(nullptr), ""})
    {
        DIB image = FromLetters("R");
        EXPECT_FALSE(image.ReadUnknown(name));
        EXPECT_TRUE(IsWithoutImage(image));
        EXPECT_FALSE(image.ReadBMP(name));
        EXPECT_FALSE(image.ReadPCX(name));
        EXPECT_FALSE(image.ReadGIF(name, transparent, 0));
        EXPECT_EQ(transparent, -1);
        EXPECT_FALSE(image.ReadPNG(name));
        EXPECT_FALSE(image.ReadJPEG(name, 0, 1, nullptr, 1, 1, 1));
    }
}

TEST_F(DibRead, ReadingFreesTheSection)
{
    DIB image(1, 1, 24, 0, 1, nullptr, nullptr);
    ASSERT_TRUE(image.ReadUnknown(Write(outside::Bmp24()).c_str()));
    EXPECT_EQ(image.DIBSect(), nullptr);
    ExpectRamp(image);
}

TEST_F(DibRead, KindByTheFirstBytes)
{
    DIB image;
    EXPECT_TRUE(image.ReadUnknown(Write(outside::Bmp24()).c_str()));
    EXPECT_TRUE(image.ReadUnknown(Write(outside::Pcx8()).c_str()));
    EXPECT_TRUE(image.ReadUnknown(Write(outside::GifPlain()).c_str()));
    EXPECT_EQ(Colors(image), kSteps);
    EXPECT_TRUE(image.ReadUnknown(Write(outside::GifThree()).c_str()));
    EXPECT_EQ(Colors(image), "RRR|RRR") << "the first image";
    EXPECT_TRUE(image.ReadUnknown(Write(outside::PngPalette()).c_str()));
    EXPECT_EQ(Colors(image), kSteps);
    EXPECT_TRUE(image.ReadUnknown(Write(outside::JpegColor()).c_str()));
    EXPECT_EQ(image.Width(), 4);
}

TEST_F(DibRead, UnknownKindsFail)
{
    std::string otherBmp = outside::Bmp24();
    otherBmp[1] = 'A';
    std::string otherGif = outside::GifPlain();
    otherGif[4] = '8';
    std::string otherPng = outside::PngPalette();
    otherPng[1] = 'p';
    std::string otherJpeg = outside::JpegColor();
    otherJpeg[1] = '\xD9';
    for (const std::string& bytes :
         {otherBmp, otherGif, otherPng, otherJpeg, std::string(), std::string("B"), std::string("BM"),
          std::string("\x0A"), std::string("GIF89a"), std::string("\x89PNG"), std::string("\xFF\xD8"),
          std::string(8, '\0'), std::string(8, '\xFF')})
    {
        DIB image = FromLetters("R");
        EXPECT_FALSE(image.ReadUnknown(Write(bytes).c_str())) << bytes.substr(0, 8);
        EXPECT_TRUE(IsWithoutImage(image));
    }
}

TEST_F(DibRead, PcxIsTakenByItsFirstByteAlone)
{
    PcxParts parts;
    parts.data = "\5";
    parts.palette = std::string(768, '\x80');
    DIB image;
    EXPECT_TRUE(image.ReadUnknown(Write(parts.Bytes()).c_str()));
    EXPECT_EQ(Colors(image), "g");
    parts.planes = 3;
    EXPECT_FALSE(image.ReadUnknown(Write(parts.Bytes()).c_str()));
}
} // namespace
