#include "files/core/BmpFile.h"
#include "files/core/ImageConvert.h"
#include "files/core/PngRead.h"
#include "files/core/PngWrite.h"
#include "tests/oracle/OutsideTool.h"
#include "tests/oracle/PictureColors.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

/// PNG files of every kind that there is, made by ImageMagick and netpbm, against the colours that these programs find
/// in them; and files that we write, read by them.
namespace
{

using namespace vorn;
using namespace vorn::test;

struct Kind
{
    int colorType;
    int bits;
    int depth; ///< What we make of it.
};

constexpr Kind kKinds[] = {{0, 1, 1}, {0, 2, 4}, {0, 4, 4}, {0, 8, 8},  {0, 16, 8},  {2, 8, 24}, {2, 16, 24}, {3, 1, 1},
                           {3, 2, 4}, {3, 4, 4}, {3, 8, 8}, {4, 8, 32}, {4, 16, 32}, {6, 8, 32}, {6, 16, 32}};
constexpr Size kMany{33, 18}; // all passes of interlaced files, and rows that end inside a byte
constexpr Size kSizes[] = {{1, 1}, {2, 3}, {4, 7}, {5, 1}, {1, 9}, {201, 64}};

/// The words that make a picture fit a kind without loss.
std::vector<std::string> Fitting(const Kind& kind)
{
    const std::string steps = std::to_string(1 << kind.bits % 16);
    std::vector<std::string> words{"-depth", kind.bits == 16 ? "16" : "8"};
    if (kind.colorType == 0 || kind.colorType == 4)
    {
        words.insert(words.end(), {"-colorspace", "gray"});
    }
    if (kind.colorType == 0 && kind.bits < 8)
    {
        words.insert(words.end(), {"+dither", "-posterize", steps});
    }
    if (kind.colorType == 3)
    {
        words.insert(words.end(), {"+dither", "-colors", steps == "256" ? "250" : steps, "-type", "palette", "-define",
                                   "png:exclude-chunk=bKGD"});
    }
    return words;
}

std::string Written(const PackedImage& image)
{
    std::string file;
    const bool isGood = EncodePng(image.View(),
                                  [&](const char* data, unsigned size)
                                  {
                                      file.append(data, size);
                                  });
    return isGood ? file : "";
}

/// A picture of the kind, by ImageMagick.
std::string Made(const ScratchFolder& folder, const Kind& kind, const std::string& order)
{
    const std::string path = folder.File("made.png");
    const std::string size = kMany.Text();
    std::vector<std::string> words{"convert", "-size", size, "-seed", "11", "plasma:red-blue"};
    if (kind.colorType >= 4)
    {
        words.insert(words.end(), {"(", "-size", size, "plasma:black-white", "-colorspace", "gray", ")", "-alpha",
                                   "off", "-compose", "CopyOpacity", "-composite"});
    }
    const std::vector<std::string> fitting = Fitting(kind);
    words.insert(words.end(), fitting.begin(), fitting.end());
    words.insert(words.end(), {"-interlace", order, "-define", "png:bit-depth=" + std::to_string(kind.bits), "-define",
                               "png:color-type=" + std::to_string(kind.colorType), path});
    RunTool(words);
    return path;
}

class PngKinds : public testing::TestWithParam<Kind>
{
protected:
    void ExpectReadAndWritten(const std::string& order) const
    {
        const std::string path = Made(m_folder, GetParam(), order);
        const std::string file = ReadWholeFile(path);
        EXPECT_EQ(GetParam().bits, file[24]);
        EXPECT_EQ(GetParam().colorType, file[25]);
        EXPECT_EQ(order == "PNG", file[28] == 1);
        const PackedImage image = DecodePng(Unsigned(file));
        ASSERT_FALSE(image.IsEmpty());
        EXPECT_EQ(GetParam().depth, image.Header().biBitCount);
        const std::string colors = ColorsAndAlphaOf(image);
        EXPECT_TRUE(PngColorsByImageMagick(path) == colors);
        EXPECT_TRUE(PngColorsByNetpbm(path) == colors);
        const std::string ours = m_folder.Write("ours.png", Written(image));
        EXPECT_TRUE(order == "PNG" || PngColorsByImageMagick(ours) == colors);
        EXPECT_TRUE(PngColorsByNetpbm(ours) == colors);
    }

    ScratchFolder m_folder;
};

INSTANTIATE_TEST_SUITE_P(Kinds, PngKinds, testing::ValuesIn(kKinds),
                         [](const auto& named)
                         {
                             return "Type" + std::to_string(named.param.colorType) + "With" +
                                    std::to_string(named.param.bits) + "Bits";
                         });

TEST_P(PngKinds, ReadAndWritten)
{
    ExpectReadAndWritten("none");
}

TEST_P(PngKinds, ReadInterlacedAndWritten)
{
    ExpectReadAndWritten("PNG");
}

class PngSizes : public testing::TestWithParam<Size>
{
};

INSTANTIATE_TEST_SUITE_P(Sizes, PngSizes, testing::ValuesIn(kSizes),
                         [](const auto& named)
                         {
                             return named.param.Text();
                         });

TEST_P(PngSizes, ByNetpbmPlainInterlacedAndTransparent)
{
    const ScratchFolder folder;
    const std::string source = folder.File("source.ppm");
    const std::string greys = folder.File("source.pgm");
    const std::string bits = folder.File("source.pbm");
    RunTool({"convert", "-size", GetParam().Text(), "-seed", "5", "plasma:yellow-blue", "-depth", "8", "-write", source,
             "-colorspace", "gray", "-write", greys, bits});
    for (const std::string& path : {source, greys, bits})
    {
        const std::string expected = ColorsBy(path);
        for (const std::string option : {"-force", "-interlace", "-transparent=rgb:00/00/00", "-compression=0"})
        {
            const std::string file = RunTool({"pnmtopng", "-quiet", option, path});
            EXPECT_TRUE(expected == ColorsOf(DecodePng(Unsigned(file)))) << path << option;
        }
    }
}

} // namespace
