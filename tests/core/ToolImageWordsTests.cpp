#include "apps/vorntool/core/ImageWords.h"
#include "tests/support/PictureBytes.h"

#include <gtest/gtest.h>

#include <string>

using namespace vorn::tool;
using vorn::test::Unsigned;

namespace
{

constexpr ImageSize kOf = {1600, 1200};

std::string FormatOf(const std::string& head)
{
    return std::string(ImageFormatName(Unsigned(head)));
}

} // namespace

TEST(ToolImageWords, FormatsGoByTheFirstBytes)
{
    EXPECT_EQ(FormatOf("BM123456"), "BMP");
    EXPECT_EQ(FormatOf("\n1234567"), "PCX");
    EXPECT_EQ(FormatOf("GIF87a.."), "GIF");
    EXPECT_EQ(FormatOf("GIF89a.."), "GIF");
    EXPECT_EQ(FormatOf("\x89PNG\r\n"), "PNG");
    EXPECT_EQ(FormatOf("\xFF\xD8\xFF\xE0"), "JPEG");
    EXPECT_EQ(FormatOf("GIF88a.."), "unknown");
    EXPECT_EQ(FormatOf("BA"), "unknown");
    EXPECT_EQ(FormatOf(""), "unknown");
}

TEST(ToolImageWords, KindsGoByTheEnding)
{
    EXPECT_EQ(ImageKindOf("a.bmp"), ImageKind::Bmp);
    EXPECT_EQ(ImageKindOf("C:\\x.y\\A.PNG"), ImageKind::Png);
    EXPECT_EQ(ImageKindOf("a.jpg"), ImageKind::Jpeg);
    EXPECT_EQ(ImageKindOf("a.Jpeg"), ImageKind::Jpeg);
    EXPECT_FALSE(ImageKindOf("a.gif"));
    EXPECT_FALSE(ImageKindOf("png"));
    EXPECT_FALSE(ImageKindOf(""));
}

TEST(ToolImageWords, SizesHaveTwoSides)
{
    EXPECT_EQ(ParseImageSize("400x300", kOf), (ImageSize{400, 300}));
    EXPECT_EQ(ParseImageSize("1X65500", kOf), (ImageSize{1, 65500}));
}

TEST(ToolImageWords, OneSideKeepsTheProportions)
{
    EXPECT_EQ(ParseImageSize("400x", kOf), (ImageSize{400, 300}));
    EXPECT_EQ(ParseImageSize("x300", kOf), (ImageSize{400, 300}));
    EXPECT_EQ(ParseImageSize("333x", kOf), (ImageSize{333, 250})) << "249.75";
    EXPECT_EQ(ParseImageSize("x1", {1, 1000}), (ImageSize{1, 1})) << "at least one pixel";
}

TEST(ToolImageWords, PercentsAreOfBothSides)
{
    EXPECT_EQ(ParseImageSize("50%", kOf), (ImageSize{800, 600}));
    EXPECT_EQ(ParseImageSize("12.5%", kOf), (ImageSize{200, 150}));
    EXPECT_EQ(ParseImageSize("0.01%", kOf), (ImageSize{1, 1}));
}

TEST(ToolImageWords, OtherSizesAreNone)
{
    for (const char* text :
         {"",      "x",     "400",   "0x10", "10x0", "-4x3", "4x-3",  "+4x3", "65501x1", "1x65501",
          "4x3x2", "4 x 3", "4.5x3", "0%",   "-5%",  "%",    "5000%", "1e9%", "nan%",    "99999999999999999999x1"})
    {
        EXPECT_FALSE(ParseImageSize(text, kOf)) << text;
    }
    EXPECT_FALSE(ParseImageSize("x65500", {1600, 10})) << "too wide then";
}

TEST(ToolImageWords, ColorsHaveSixDigits)
{
    EXPECT_EQ(ParseImageColor("123456"), 0x563412u);
    EXPECT_EQ(ParseImageColor("#ff0080"), 0x8000FFu);
    for (const char* text : {"", "#", "12345", "1234567", "12345g", "-12345", "0x1234", " 12345", "##12345"})
    {
        EXPECT_FALSE(ParseImageColor(text)) << text;
    }
}
