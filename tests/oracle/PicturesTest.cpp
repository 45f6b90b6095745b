#include "files/core/BmpFile.h"
#include "files/core/GifFile.h"
#include "files/core/ImagePixels.h"
#include "files/core/PcxFile.h"
#include "tests/oracle/OutsideTool.h"
#include "tests/oracle/PictureColors.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <functional>

/// Pictures made by ImageMagick, netpbm and giflib's tools, in every kind that we read, against the colours that these
/// programs find in them; and bitmaps that we write, read by them.
namespace
{

using namespace vorn;
using namespace vorn::test;

constexpr Size kSizes[] = {{1, 1}, {7, 5}, {32, 17}, {301, 211}, {256, 96}};

class Pictures : public testing::TestWithParam<Size>
{
protected:
    /// A picture of many colours, in a format of the tool's own.
    std::string Source(const std::string& colors) const
    {
        const std::string path = m_folder.File("source.miff");
        RunTool({"convert", "-size", GetParam().Text(), "-seed", "7", "plasma:red-blue", "-colorspace", "sRGB",
                 "+dither", "-colors", colors, "-alpha", "off", "-depth", "8", path});
        return path;
    }

    /// The source as the words after it make it, in a file of this name.
    std::string Converted(const std::string& source, std::vector<std::string> words, const std::string& name) const
    {
        const std::string path = m_folder.File(name.substr(name.find(':') + 1));
        words.insert(words.begin(), {"convert", source});
        words.push_back(name.substr(0, name.find(':') + 1) + path);
        RunTool(words);
        return path;
    }

    void ExpectSize(const PackedImage& image) const
    {
        EXPECT_EQ(GetParam().width, image.View().width);
        EXPECT_EQ(GetParam().height, image.View().height);
    }

    ScratchFolder m_folder;
};

INSTANTIATE_TEST_SUITE_P(Sizes, Pictures, testing::ValuesIn(kSizes),
                         [](const auto& named)
                         {
                             return named.param.Text();
                         });

PackedImage Gif(const std::string& path, int index = 0, int* transparent = nullptr)
{
    int ignored = 0;
    return DecodeGif(Unsigned(ReadWholeFile(path)), index, transparent != nullptr ? *transparent : ignored);
}

TEST_P(Pictures, GifOfEachTableSizePlainAndInterlaced)
{
    for (const std::string colors : {"2", "5", "16", "130", "256"})
    {
        const std::string source = Source(colors);
        for (const std::string order : {"none", "GIF"})
        {
            const std::string path = Converted(source, {"-interlace", order}, "gif:made.gif");
            int transparent = 0;
            const PackedImage image = Gif(path, 0, &transparent);
            ExpectSize(image);
            EXPECT_EQ(ColorsBy(path), ColorsOf(image)) << colors << ' ' << order;
            EXPECT_EQ(-1, transparent);
        }
    }
}

TEST_P(Pictures, GifByNetpbmReadByGiflib)
{
    const std::string source = Converted(Source("200"), {}, "ppm:source.ppm");
    for (const std::string order : {"-sort", "-interlace"})
    {
        const std::string path = m_folder.Write("made.gif", RunTool({"pamtogif", "-quiet", order, source}));
        const std::string colors = RunTool({"gif2rgb", "-1", path});
        EXPECT_EQ(colors, ColorsOf(Gif(path))) << order;
    }
}

TEST_P(Pictures, GifRewrittenByGiflib)
{
    const std::string first = Converted(Source("100"), {}, "gif:first.gif");
    const std::string expected = ColorsOf(Gif(first));
    for (const std::string order : {"1", "0"})
    {
        const std::string path =
            m_folder.Write("made.gif", RunTool({"sh", "-c", "giftool -i " + order + " < " + first}));
        EXPECT_EQ(expected, ColorsOf(Gif(path))) << order;
    }
}

BITMAPINFOHEADER HeaderOfBmp(const PackedImage& image)
{
    return image.IsEmpty() ? BITMAPINFOHEADER{} : image.Header();
}

TEST_P(Pictures, BmpOfEachDepth)
{
    struct Kind
    {
        std::string colors;
        std::vector<std::string> words;
        std::string name;
        int depth;
    };
    const Kind kinds[] = {{"2", {"-type", "bilevel"}, "bmp3:1.bmp", 1},
                          {"13", {"-type", "palette", "-compress", "none"}, "bmp3:4.bmp", 4},
                          {"200", {"-type", "palette", "-compress", "none"}, "bmp3:8.bmp", 8},
                          {"5000", {"-type", "truecolor"}, "bmp3:24.bmp", 24},
                          {"5000", {"-type", "truecolor"}, "bmp:long.bmp", 24},
                          {"5000", {"-type", "truecolor", "-define", "bmp:subtype=RGB565"}, "bmp:16.bmp", 16},
                          {"5000", {"-type", "truecolor", "-alpha", "set"}, "bmp:32.bmp", 32}};
    for (const Kind& kind : kinds)
    {
        const std::string path = Converted(Source(kind.colors), kind.words, kind.name);
        const PackedImage image = DecodeBmp(Unsigned(ReadWholeFile(path)));
        ExpectSize(image);
        EXPECT_TRUE(GetParam().width < 300 || kind.depth == HeaderOfBmp(image).biBitCount) << kind.name;
        EXPECT_EQ(ColorsBy(path), ColorsOf(image)) << kind.name;
    }
}

TEST_P(Pictures, BmpByNetpbm)
{
    const std::string source = Converted(Source("5000"), {}, "ppm:source.ppm");
    const std::string path = m_folder.Write("made.bmp", RunTool({"ppmtobmp", "-quiet", "-bpp=24", source}));
    EXPECT_EQ(ColorsBy(source), ColorsOf(DecodeBmp(Unsigned(ReadWholeFile(path)))));
}

TEST_P(Pictures, OthersReadTheBmpThatWeWrite)
{
    for (const std::string flip : {"+repage", "-flip"})
    {
        const PackedImage image =
            DecodeBmp(Unsigned(ReadWholeFile(Converted(Source("5000"), {flip, "-type", "truecolor"}, "bmp3:in.bmp"))));
        const auto written = EncodeBmp(image);
        const std::string path = m_folder.Write("out.bmp", std::string(written.begin(), written.end()));
        EXPECT_EQ(ColorsOf(image), ColorsBy(path));
        const std::string pixels = RunTool({"bmptopnm", "-quiet", path});
        EXPECT_EQ(ColorsOf(image), pixels.substr(pixels.size() - ColorsOf(image).size()));
    }
}

/// Whether the file's lines are as long as the bitmap's rows: other pictures are sheared.
bool AreLinesRows(const std::string& file, const PackedImage& image)
{
    const auto byte = [&](std::size_t at)
    {
        return static_cast<int>(static_cast<unsigned char>(file[at]));
    };
    return (byte(66) | byte(67) << 8) * byte(65) == image.View().stride;
}

TEST_P(Pictures, PcxByImageMagick)
{
    const std::string path = Converted(Source("200"), {"-type", "palette"}, "pcx:made.pcx");
    const std::string file = ReadWholeFile(path);
    const PackedImage image = DecodePcx(Unsigned(file));
    ExpectSize(image);
    EXPECT_EQ(8, HeaderOfBmp(image).biBitCount);
    EXPECT_TRUE(GetParam().width % 32 != 0 || AreLinesRows(file, image));
    if (AreLinesRows(file, image))
    {
        EXPECT_EQ(ColorsBy(path), ColorsOf(image));
    }
}

TEST_P(Pictures, PcxOfEachKindByNetpbm)
{
    struct Kind
    {
        std::string colors;
        std::string word;
        int bits;
        int planes;
    };
    for (const Kind& kind : {Kind{"2", "-packed", 1, 1}, Kind{"14", "-packed", 4, 1}, Kind{"14", "-planes=4", 1, 4},
                             Kind{"200", "", 8, 1}})
    {
        const std::string source = Converted(Source(kind.colors), {}, "ppm:source.ppm");
        const std::string file = kind.bits == 8 ? RunTool({"ppmtopcx", "-quiet", source})
                                                : RunTool({"ppmtopcx", "-quiet", kind.word, source});
        const PackedImage image = DecodePcx(Unsigned(file));
        ExpectSize(image);
        EXPECT_TRUE(GetParam().width < 200 || (file[3] == kind.bits && file[65] == kind.planes)) << kind.word;
        EXPECT_TRUE(GetParam().width % 32 != 0 || AreLinesRows(file, image)) << kind.word;
        if (AreLinesRows(file, image))
        {
            EXPECT_EQ(ColorsBy(source), ColorsOf(image)) << kind.word << kind.bits;
        }
    }
}

/// Frames, with and without a transparent colour.
TEST(PictureFrames, GifOfSeveralImages)
{
    const ScratchFolder folder;
    const std::string path = folder.File("frames.gif");
    RunTool({"convert", "-size", "20x10", "xc:red", "gradient:blue-green", "(", "-size", "20x10", "plasma:red-yellow",
             ")", "+dither", "-colors", "60", path});
    for (int frame = 0; frame < 3; ++frame)
    {
        const PackedImage image = Gif(path, frame);
        ASSERT_FALSE(image.IsEmpty()) << frame;
        EXPECT_EQ(ColorsBy(path, frame), ColorsOf(image)) << frame;
    }
    EXPECT_TRUE(Gif(path, 3).IsEmpty());
}

TEST(PictureFrames, GifWithATransparentColor)
{
    const ScratchFolder folder;
    const std::string source = folder.File("source.ppm");
    RunTool({"convert", "-size", "9x4", "xc:red", "-fill", "blue", "-draw", "point 3,2", source});
    const std::string path = folder.Write("t.gif", RunTool({"pamtogif", "-quiet", "-transparent=#0000ff", source}));
    int transparent = -1;
    const PackedImage image = Gif(path, 0, &transparent);
    ASSERT_FALSE(image.IsEmpty());
    EXPECT_EQ(static_cast<int>(PixelAt(image.View(), 3, 2)), transparent);
    EXPECT_EQ((Rgb{0, 0, 255}), image.TableColor(transparent));
    EXPECT_NE(PixelAt(image.View(), 0, 0), PixelAt(image.View(), 3, 2));
}

} // namespace
