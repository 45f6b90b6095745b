#include "files/core/JpegErrors.h"
#include "files/core/JpegRead.h"
#include "files/core/JpegWrite.h"
#include "files/core/PngRead.h"
#include "tests/oracle/OutsideTool.h"
#include "tests/oracle/PictureColors.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

/// JPEG files of every kind, against the tools that come with the library that we read them with: the same to a bit.
namespace
{

using namespace vorn;
using namespace vorn::test;

using Words = std::vector<std::string>;

constexpr Size kSizes[] = {{1, 1}, {17, 31}, {203, 120}};

class JpegPictures : public testing::TestWithParam<Size>
{
protected:
    std::string Source() const
    {
        const std::string path = m_folder.File("source.ppm");
        RunTool({"convert", "-size", GetParam().Text(), "-seed", "3", "plasma:red-blue", "-depth", "8", path});
        return path;
    }

    /// What the tool decodes.
    static std::string ColorsByDjpeg(const std::string& path, const std::string& scale = "1/1")
    {
        return ColorsOfPixmap(RunTool({"djpeg", "-ppm", "-scale", scale, path}));
    }

    /// Both ways of reading, and the tool's.
    void ExpectReadAlike(const std::string& path, const std::string& what) const
    {
        const std::string file = ReadWholeFile(path);
        for (const int scale : {1, 2, 4, 8})
        {
            const std::string expected = ColorsByDjpeg(path, "1/" + std::to_string(scale));
            const PackedImage image = DecodeJpeg(Unsigned(file), {.scale = scale});
            EXPECT_EQ((GetParam().width + scale - 1) / scale, image.View().width) << what;
            EXPECT_TRUE(expected == ColorsOf(image)) << what << ", by " << scale;
            EXPECT_TRUE(expected == ColorsOf(ReadJpegFile(path.c_str(), 0, {.scale = scale}))) << what;
        }
    }

    ScratchFolder m_folder;
};

INSTANTIATE_TEST_SUITE_P(Sizes, JpegPictures, testing::ValuesIn(kSizes),
                         [](const auto& named)
                         {
                             return named.param.Text();
                         });

TEST_P(JpegPictures, OfEachKindAndScale)
{
    const Words kinds[] = {{},
                           {"-grayscale"},
                           {"-rgb"},
                           {"-progressive"},
                           {"-progressive", "-grayscale"},
                           {"-sample", "1x1"},
                           {"-sample", "2x1"},
                           {"-sample", "1x2"},
                           {"-sample", "4x1"},
                           {"-arithmetic"},
                           {"-restart", "1"},
                           {"-optimize", "-quality", "95"},
                           {"-baseline", "-quality", "5"}};
    const std::string source = Source();
    for (const Words& kind : kinds)
    {
        Words words{"cjpeg"};
        words.insert(words.end(), kind.begin(), kind.end());
        words.push_back(source);
        ExpectReadAlike(m_folder.Write("made.jpg", RunTool(words)), kind.empty() ? "plain" : kind.back());
    }
}

/// A picture of four inks, in the colour space given, with the marker of the program that began to invert them.
std::string InkFile(const std::string& inks, Size size, J_COLOR_SPACE space)
{
    JpegErrors errors;
    jpeg_compress_struct codec{};
    codec.err = &errors.manager;
    jpeg_create_compress(&codec);
    unsigned char* bytes = nullptr;
    unsigned long length = 0;
    jpeg_mem_dest(&codec, &bytes, &length);
    codec.image_width = static_cast<JDIMENSION>(size.width);
    codec.image_height = static_cast<JDIMENSION>(size.height);
    codec.input_components = 4;
    codec.in_color_space = JCS_CMYK;
    jpeg_set_defaults(&codec);
    jpeg_set_colorspace(&codec, space);
    jpeg_start_compress(&codec, TRUE);
    while (codec.next_scanline < codec.image_height)
    {
        std::string line =
            inks.substr(codec.next_scanline * codec.image_width * std::size_t{4}, codec.image_width * std::size_t{4});
        auto* row = reinterpret_cast<JSAMPROW>(line.data());
        jpeg_write_scanlines(&codec, &row, 1);
    }
    jpeg_finish_compress(&codec);
    jpeg_destroy_compress(&codec);
    const std::string file(bytes, bytes + length);
    std::free(bytes);
    return file;
}

TEST_P(JpegPictures, OfFourInks)
{
    const std::string inks =
        RunTool({"convert", "-size", GetParam().Text(), "-seed", "9", "plasma:red-blue", "-depth", "8", "rgba:-"});
    for (const J_COLOR_SPACE space : {JCS_CMYK, JCS_YCCK})
    {
        ExpectReadAlike(m_folder.Write("inks.jpg", InkFile(inks, GetParam(), space)),
                        space == JCS_CMYK ? "CMYK" : "YCCK");
    }
    const std::string path = m_folder.File("by.jpg");
    RunTool({"convert", Source(), "-colorspace", "CMYK", path});
    ExpectReadAlike(path, "by ImageMagick");
}

TEST_P(JpegPictures, AreWrittenAsTheToolWritesThem)
{
    const std::string source = Source();
    RunTool({"convert", source, m_folder.File("source.png")});
    const PackedImage image = ReadPngFile(m_folder.File("source.png").c_str());
    for (const int quality : {1, 30, 75, 90, 100})
    {
        for (const bool isProgressive : {false, true})
        {
            std::string file;
            ASSERT_TRUE(EncodeJpeg(image.View(),
                                   [&](const char* data, unsigned size)
                                   {
                                       file.append(data, size);
                                   },
                                   {.quality = quality, .isProgressive = isProgressive}));
            const std::string expected =
                isProgressive
                    ? RunTool({"cjpeg", "-quality", std::to_string(quality), "-baseline", "-progressive", source})
                    : RunTool({"cjpeg", "-quality", std::to_string(quality), "-baseline", source});
            EXPECT_TRUE(expected == file) << quality << ' ' << isProgressive;
            EXPECT_TRUE(ColorsByDjpeg(m_folder.Write("ours.jpg", file)) == ColorsOf(DecodeJpeg(Unsigned(file))));
        }
    }
}

} // namespace
