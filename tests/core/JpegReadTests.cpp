#include "files/core/ImagePixels.h"
#include "files/core/JpegRead.h"
#include "files/core/JpegWrite.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/PictureFiles.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>

namespace
{
using vorn::ColorAt;
using vorn::JpegReading;
using vorn::PackedImage;
using vorn::PixelAt;
using vorn::Rgb;
using vorn::test::JpegParts;
using vorn::test::ScratchFolder;
using vorn::test::Unsigned;

PackedImage Decoded(const JpegParts& parts, const JpegReading& how = {})
{
    return vorn::DecodeJpeg(Unsigned(parts.Bytes()), how);
}

Rgb Grey(int value)
{
    const auto byte = static_cast<BYTE>(value);
    return {byte, byte, byte};
}

/// Two blocks of grey, one above the other.
JpegParts TwoGreys()
{
    JpegParts parts;
    parts.height = 16;
    parts.values = {{50, 201}};
    return parts;
}

/// One block of components as they are, without a change of the colour space.
JpegParts Plain(const std::vector<int>& values)
{
    JpegParts parts;
    parts.values.clear();
    for (const int value : values)
        parts.values.push_back({value});
    parts.adobeTransform = 0;
    return parts;
}

/// Entries 0 and 1 for dark and bright reds.
class RedReducer final : public vorn::PaletteReducer
{
public:
    std::span<const RGBQUAD> Table() const override
    {
        return m_table;
    }
    void Reduce(const unsigned char* pixels, unsigned char* entries, int count) override
    {
        for (int i = 0; i < count; ++i)
            entries[i] = pixels[i * 4 + 2] < 100 ? 0 : 1;
    }

private:
    std::array<RGBQUAD, 2> m_table{RGBQUAD{1, 2, 3, 0}, RGBQUAD{4, 5, 6, 0}};
};

TEST(JpegRead, GreyBecomes24BitsBottomUp)
{
    const PackedImage image = Decoded(TwoGreys());
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(image.Header().biBitCount, 24);
    EXPECT_EQ(image.Header().biHeight, 16);
    EXPECT_EQ(ColorAt(image.View(), 0, 0), Grey(50));
    EXPECT_EQ(ColorAt(image.View(), 7, 15), Grey(201));
    EXPECT_EQ(image.Block()[40], 201) << "the bottom row stands first";
}

TEST(JpegRead, ChannelsComeInTheirOrder)
{
    EXPECT_EQ(ColorAt(Decoded(Plain({10, 120, 230})).View(), 3, 3), (Rgb{10, 120, 230}));
}

TEST(JpegRead, LumaAndChromaBecomeColors)
{
    JpegParts parts = Plain({100, 128, 228});
    parts.adobeTransform = 1;
    EXPECT_EQ(ColorAt(Decoded(parts).View(), 0, 0), (Rgb{240, 29, 100})) << "100 + 1.402 x 100, 100 - 0.714 x 100";
}

TEST(JpegRead, FourInksAreInverted)
{
    EXPECT_EQ(ColorAt(Decoded(Plain({255, 128, 0, 255})).View(), 0, 0), (Rgb{255, 128, 0}));
    EXPECT_EQ(ColorAt(Decoded(Plain({255, 128, 10, 100})).View(), 0, 0), (Rgb{100, 50, 4}))
        << "100, 12800 / 255 = 50.2, 1000 / 255 = 3.92";
    EXPECT_EQ(ColorAt(Decoded(Plain({200, 200, 200, 0})).View(), 0, 0), Rgb{}) << "all black";
}

TEST(JpegRead, InksOfLumaAndChromaToo)
{
    JpegParts parts = Plain({55, 128, 128, 255});
    parts.adobeTransform = 2;
    EXPECT_EQ(ColorAt(Decoded(parts).View(), 0, 0), Grey(200)) << "255 - 55";
}

TEST(JpegRead, InkProductsRoundToTheNearest)
{
    for (const int ink : {0, 1, 77, 128, 254, 255})
        for (const int black : {0, 1, 2, 99, 127, 254, 255})
        {
            const int expected = static_cast<int>(std::floor(ink * black / 255.0 + 0.5));
            ASSERT_EQ(ColorAt(Decoded(Plain({ink, ink, ink, black})).View(), 0, 0), Grey(expected))
                << ink << ' ' << black;
        }
}

TEST(JpegRead, ProgressiveIsReadLikeAnyOther)
{
    JpegParts parts = TwoGreys();
    parts.isProgressive = true;
    const PackedImage image = Decoded(parts);
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(ColorAt(image.View(), 0, 0), Grey(50));
    EXPECT_EQ(ColorAt(image.View(), 0, 15), Grey(201));
}

TEST(JpegRead, ScalesDivideTheSizeRoundingUp)
{
    JpegParts parts;
    parts.width = 37;
    parts.height = 20;
    parts.values = {std::vector<int>(15, 90)};
    const std::array<std::array<int, 3>, 10> sizes{{{-5, 37, 20},
                                                    {0, 37, 20},
                                                    {1, 37, 20},
                                                    {2, 19, 10},
                                                    {3, 19, 10},
                                                    {4, 10, 5},
                                                    {7, 10, 5},
                                                    {8, 5, 3},
                                                    {9, 5, 3},
                                                    {1000, 5, 3}}};
    for (const auto& [scale, width, height] : sizes)
    {
        const PackedImage image = Decoded(parts, {.scale = scale});
        EXPECT_EQ(image.View().width, width) << scale;
        EXPECT_EQ(image.View().height, height) << scale;
        EXPECT_EQ(ColorAt(image.View(), width - 1, height - 1), Grey(90)) << scale;
    }
}

TEST(JpegRead, FactorsMultiplyTheChannels)
{
    const JpegParts parts = Plain({10, 120, 230});
    EXPECT_EQ(ColorAt(Decoded(parts, {.red = 2.0}).View(), 0, 0), (Rgb{20, 120, 230}));
    EXPECT_EQ(ColorAt(Decoded(parts, {.green = 0.5, .blue = 1.5}).View(), 0, 0), (Rgb{10, 60, 255})) << "clamped";
    EXPECT_EQ(ColorAt(Decoded(parts, {.green = 0.5}).View(), 0, 0), (Rgb{10, 60, 230}));
    EXPECT_EQ(ColorAt(Decoded(parts, {.blue = 0.5}).View(), 0, 0), (Rgb{10, 120, 115})) << "each one alone";
    EXPECT_EQ(ColorAt(Decoded(parts, {.red = 0.57, .green = 0.996, .blue = 0.0}).View(), 0, 0), (Rgb{6, 120, 0}))
        << "5.7 and 119.52 are rounded";
    EXPECT_EQ(ColorAt(Decoded(parts, {.red = -1.0, .green = 1e300, .blue = std::nan("")}).View(), 0, 0),
              (Rgb{0, 255, 0}));
}

TEST(JpegRead, APaletteMakes8BitsOfIts)
{
    RedReducer reducer;
    const PackedImage image = Decoded(TwoGreys(), {.reducer = &reducer});
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(image.Header().biBitCount, 8);
    EXPECT_EQ(image.Header().biHeight, 16);
    EXPECT_EQ(image.View().table.size(), 256u);
    EXPECT_EQ(image.TableColor(1), (Rgb{6, 5, 4}));
    EXPECT_EQ(image.TableColor(2), Rgb{});
    EXPECT_EQ(PixelAt(image.View(), 7, 0), 0u);
    EXPECT_EQ(PixelAt(image.View(), 7, 15), 1u);
}

TEST(JpegRead, FactorsComeBeforeThePalette)
{
    RedReducer reducer;
    const PackedImage image = Decoded(TwoGreys(), {.reducer = &reducer, .red = 2.0});
    EXPECT_EQ(PixelAt(image.View(), 0, 0), 1u) << "50 became 100";
}

TEST(JpegRead, AReducerOverAFunctionAsksForRedFirst)
{
    const std::array<RGBQUAD, 1> table{};
    vorn::NearestReducer reducer(table,
                                 [](unsigned char red, unsigned char green, unsigned char blue)
                                 {
                                     return static_cast<unsigned char>(red + green / 2 - blue);
                                 });
    EXPECT_EQ(PixelAt(Decoded(Plain({100, 20, 3}), {.reducer = &reducer}).View(), 5, 5), 107u);
}

TEST(JpegRead, TheOrientationIsNotLookedAt)
{
    JpegParts parts = TwoGreys();
    parts.extra = std::string("\xFF\xE1\0\x22"
                              "Exif\0\0MM\0\x2A\0\0\0\x08\0\1\1\x12\0\3\0\0\0\1\0\3\0\0\0\0\0\0",
                              36);
    const PackedImage image = Decoded(parts);
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(ColorAt(image.View(), 0, 0), Grey(50)) << "the camera was not upside down";
}

TEST(JpegRead, DataThatEndEarlyAreFilledUp)
{
    const std::string whole = TwoGreys().Bytes();
    const std::size_t scan = whole.find("\xFF\xDA");
    for (std::size_t size = 0; size <= scan + 2; ++size)
        ASSERT_TRUE(vorn::DecodeJpeg(Unsigned(whole).first(size)).IsEmpty()) << size;
    for (std::size_t size = scan + 10; size < whole.size(); ++size)
    {
        const PackedImage image = vorn::DecodeJpeg(Unsigned(whole).first(size));
        ASSERT_FALSE(image.IsEmpty()) << size;
        ASSERT_EQ(image.View().height, 16) << size;
    }
}

TEST(JpegRead, FilesWithAChangedByteAreAPictureOrNone)
{
    const std::string whole = Plain({10, 120, 230}).Bytes();
    for (std::size_t at = 0; at < whole.size(); ++at)
        for (const int change : {1, 0x80, 0xFF})
        {
            std::string damaged = whole;
            damaged[at] = static_cast<char>(damaged[at] ^ change);
            const PackedImage image = vorn::DecodeJpeg(Unsigned(damaged), {.maxBytes = 1 << 20});
            ASSERT_TRUE(image.IsEmpty() || image.View().width > 0);
        }
}

TEST(JpegRead, WhatIsNoPictureIsNone)
{
    EXPECT_TRUE(vorn::DecodeJpeg(std::span<const unsigned char>()).IsEmpty());
    EXPECT_TRUE(vorn::DecodeJpeg(Unsigned("\xFF\xD8\xFF\xD9")).IsEmpty()) << "no scan";
    EXPECT_TRUE(vorn::DecodeJpeg(Unsigned("text")).IsEmpty());
    EXPECT_TRUE(Decoded(Plain({1, 2})).IsEmpty()) << "two channels have no colours";
    JpegParts flat;
    flat.height = 0;
    EXPECT_TRUE(Decoded(flat).IsEmpty());
    flat.height = 8;
    flat.width = 0;
    EXPECT_TRUE(Decoded(flat).IsEmpty());
}

TEST(JpegRead, PicturesThatAreTooLargeTakeNoMemory)
{
    JpegParts parts;
    for (const bool isProgressive : {false, true})
    {
        parts.isProgressive = isProgressive;
        parts.width = 65500;
        parts.height = 65500;
        EXPECT_TRUE(Decoded(parts).IsEmpty());
        parts.width = 65535;
        parts.height = 1;
        EXPECT_TRUE(Decoded(parts).IsEmpty()) << "more than the library takes";
        parts.width = 8;
        parts.height = 8;
        EXPECT_TRUE(Decoded(parts, {.maxBytes = 191}).IsEmpty());
        EXPECT_FALSE(Decoded(parts, {.maxBytes = 192}).IsEmpty());
    }
    parts.width = 40000;
    parts.height = 40000;
    EXPECT_TRUE(Decoded(parts, {.scale = 8}).IsEmpty()) << "its scans would be kept in full size";
}

TEST(JpegRead, ScansWithoutEndAreRefused)
{
    JpegParts parts;
    parts.isProgressive = true;
    std::string file = parts.Bytes();
    const std::size_t at = file.find("\xFF\xDA");
    const std::string scan = file.substr(at, file.size() - 2 - at);
    const auto withScans = [&](int count) // two scans each time
    {
        std::string made = file.substr(0, at);
        for (int i = 0; i < count; ++i)
            made += scan;
        return made + "\xFF\xD9";
    };
    EXPECT_FALSE(vorn::DecodeJpeg(Unsigned(withScans(40))).IsEmpty());
    EXPECT_TRUE(vorn::DecodeJpeg(Unsigned(withScans(60))).IsEmpty());
}

TEST(JpegRead, SaysNothing)
{
    const std::string whole = TwoGreys().Bytes();
    testing::internal::CaptureStderr();
    testing::internal::CaptureStdout();
    for (std::size_t size = 0; size <= whole.size(); ++size)
        static_cast<void>(vorn::DecodeJpeg(Unsigned(whole).first(size)));
    EXPECT_EQ("", testing::internal::GetCapturedStdout());
    EXPECT_EQ("", testing::internal::GetCapturedStderr());
}

struct CloseFile
{
    void operator()(std::FILE* file) const
    {
        std::fclose(file);
    }
};

TEST(JpegRead, AFileIsReadFromWhereItStands)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("a.bin", "before" + TwoGreys().Bytes());
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
    ASSERT_NE(file, nullptr);
    ASSERT_EQ(std::fseek(file.get(), 6, SEEK_SET), 0);
    EXPECT_EQ(ColorAt(vorn::DecodeJpeg(file.get()).View(), 0, 0), Grey(50));
    ASSERT_EQ(std::fseek(file.get(), 5, SEEK_SET), 0);
    EXPECT_TRUE(vorn::DecodeJpeg(file.get()).IsEmpty());
    ASSERT_EQ(std::fseek(file.get(), 0, SEEK_END), 0);
    EXPECT_TRUE(vorn::DecodeJpeg(file.get()).IsEmpty());
    EXPECT_TRUE(vorn::DecodeJpeg(static_cast<std::FILE*>(nullptr)).IsEmpty());
}

TEST(JpegRead, APathIsReadFromAnOffset)
{
    const ScratchFolder folder;
    const std::string path = folder.Write("a.bin", "before" + TwoGreys().Bytes());
    EXPECT_EQ(ColorAt(vorn::ReadJpegFile(path.c_str(), 6).View(), 0, 15), Grey(201));
    for (const long offset : {0L, -1L, 5L, 7L, 1000000L})
        EXPECT_TRUE(vorn::ReadJpegFile(path.c_str(), offset).IsEmpty()) << offset;
    EXPECT_TRUE(vorn::ReadJpegFile(folder.File("missing").c_str(), 0).IsEmpty());
    EXPECT_TRUE(vorn::ReadJpegFile(nullptr, 0).IsEmpty());
}
/// A picture of noise, as a file whose colours have half the size in both directions: rows come in pairs.
std::string NoiseFile()
{
    PackedImage image = PackedImage::Make(45, 37, 24);
    unsigned state = 1;
    for (unsigned char& byte : image.Block().subspan(40))
        byte = static_cast<unsigned char>((state = state * 1664525 + 1013904223) >> 24);
    std::string file;
    EXPECT_TRUE(vorn::EncodeJpeg(image.View(),
                                 [&](const char* data, unsigned size)
                                 {
                                     file.append(data, size);
                                 },
                                 {}));
    return file;
}

TEST(JpegRead, FactorsAndPaletteWorkOnTheColorsOfThePlainPicture)
{
    const std::string file = NoiseFile();
    for (const int scale : {1, 2})
    {
        const PackedImage plain = vorn::DecodeJpeg(Unsigned(file), {.scale = scale});
        ASSERT_FALSE(plain.IsEmpty());
        const PackedImage half = vorn::DecodeJpeg(Unsigned(file), {.scale = scale, .green = 0.5});
        std::array<RGBQUAD, 256> table{};
        vorn::NearestReducer reducer(table,
                                     [](unsigned char red, unsigned char green, unsigned char blue)
                                     {
                                         return static_cast<unsigned char>(red * 3 + green * 5 + blue * 7);
                                     });
        const PackedImage reduced = vorn::DecodeJpeg(Unsigned(file), {.scale = scale, .reducer = &reducer});
        for (int y = 0; y < plain.View().height; ++y)
            for (int x = 0; x < plain.View().width; ++x)
            {
                const Rgb color = ColorAt(plain.View(), x, y);
                const auto green = static_cast<BYTE>((color.green + 1) / 2);
                ASSERT_EQ(ColorAt(half.View(), x, y), (Rgb{color.red, green, color.blue})) << x << ' ' << y;
                ASSERT_EQ(PixelAt(reduced.View(), x, y), (color.red * 3u + color.green * 5u + color.blue * 7u) % 256)
                    << x << ' ' << y;
            }
    }
}
} // namespace
