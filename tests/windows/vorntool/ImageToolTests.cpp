#include "tests/support/PictureBytes.h"
#include "tests/support/ScratchFolder.h"
#include "tests/windows/vorntool/ToolProcess.h"

#include <windows.h>

using namespace vorn::test;

namespace
{

const std::string kRed("\0\0\xFF", 3);
const std::string kBlue("\xFF\0\0", 3);

/// Red above blue, three pixels wide, of 24 bits.
std::string TwoRows()
{
    BmpParts parts;
    parts.width = 3;
    parts.height = 2;
    const std::string padding(3, '\0');
    parts.pixels = kBlue + kBlue + kBlue + padding + kRed + kRed + kRed + padding;
    return parts.Bytes();
}

/// Two frames of one pixel, the second one white and of a transparent colour.
std::string TwoFrames()
{
    const std::string table("\0\0\0\xFF\xFF\xFF", 6);
    return GifParts(table)
        .Image(1, 1, 2, SubBlocks(PlainCodes(std::string("\0", 1), 2)))
        .Control(1, 1)
        .Image(1, 1, 2, SubBlocks(PlainCodes("\1", 2)))
        .Bytes();
}

/// The rows of a bitmap file of 24 bits.
std::string RowsOfBmp(const std::string& file)
{
    return file.size() < 54 ? "" : file.substr(54);
}

class ImageTool : public testing::Test
{
protected:
    ImageTool()
    {
        // The first program that draws starts the desktop, which then holds what it was given: not the tool's pipes.
        ReleaseDC(nullptr, GetDC(nullptr));
    }

    /// Runs the tool for the picture into a file of this name, and gives the file.
    std::string Made(const std::vector<std::string>& words, const std::string& name) const
    {
        const ToolRun run = RunVornTool(words);
        EXPECT_EQ(run.status, 0u) << run.errors;
        EXPECT_EQ(run.errors, "");
        return m_folder.Read(name);
    }

    ScratchFolder m_folder;
    const std::string m_bmp = m_folder.Write("in.bmp", TwoRows());
    const std::string m_out = m_folder.File("out.bmp");
};

TEST_F(ImageTool, InfoTellsWhatTheFileHolds)
{
    ExpectDone({"image", "info", m_bmp}, "File         " + m_bmp +
                                             "\n"
                                             "Format       BMP\n"
                                             "Images       1\n"
                                             "Size         3 x 2 pixels\n"
                                             "Depth        24 bits a pixel\n"
                                             "Colours      no table\n"
                                             "Transparent  -\n"
                                             "Rows         from the bottom, 12 bytes each\n");
}

TEST_F(ImageTool, InfoTellsTheTransparentColorOfAFrame)
{
    const std::string gif = m_folder.Write("in.gif", TwoFrames());
    const ToolRun first = RunVornTool({"image", "info", gif, "--json"});
    EXPECT_NE(first.text.find("\"format\":\"GIF\",\"images\":2,\"width\":1,\"height\":1,\"depth\":8,\"colours\":256,"
                              "\"transparent\":null,\"topDown\":true,\"bytesPerRow\":4,\"compressed\":false}\n"),
              std::string::npos)
        << first.text;
    const ToolRun second = RunVornTool({"image", "info", gif, "--frame", "1"});
    EXPECT_NE(second.text.find("Transparent  colour 1\n"), std::string::npos) << second.text;
    ExpectFailure({"image", "info", gif, "--frame", "2"}, 1,
                  "vorntool image info: '" + gif + "' has no frame 2 that can be read");
}

TEST_F(ImageTool, ConvertGoesToEveryKindAndBack)
{
    const std::string png = m_folder.File("a.png");
    ExpectDone({"image", "convert", m_bmp, png}, png + ": 3 x 2 pixels\n");
    EXPECT_EQ(m_folder.Read("a.png").substr(0, 4), "\x89PNG");
    EXPECT_EQ(RowsOfBmp(Made({"image", "convert", png, m_out}, "out.bmp")), RowsOfBmp(TwoRows()));
    const std::string jpeg = m_folder.File("a.JPG");
    const ToolRun run = RunVornTool({"image", "convert", m_bmp, jpeg, "--quality=100", "--progressive", "--json"});
    EXPECT_NE(run.text.find("a.JPG\",\"width\":3,\"height\":2}\n"), std::string::npos) << run.text;
    EXPECT_EQ(m_folder.Read("a.JPG").substr(0, 2), "\xFF\xD8");
}

TEST_F(ImageTool, TablesBecomeColorsInBitmapFiles)
{
    const std::string gif = m_folder.Write("in.gif", TwoFrames());
    EXPECT_EQ(RowsOfBmp(Made({"image", "convert", gif, m_out, "--frame=1"}, "out.bmp")),
              std::string("\xFF\xFF\xFF\0", 4));
}

TEST_F(ImageTool, ResizeAveragesAndRepeats)
{
    const std::string small = Made({"image", "resize", m_bmp, "1x1", m_out}, "out.bmp");
    EXPECT_EQ(RowsOfBmp(small), std::string("\x80\0\x80\0", 4)) << "half of red and blue";
    const std::string large = Made({"image", "resize", m_bmp, "x4", m_out, "--force"}, "out.bmp");
    ASSERT_EQ(RowsOfBmp(large).size(), 20u * 4);
    const std::string top = RowsOfBmp(large).substr(0, 3);
    EXPECT_EQ(top, kRed) << "made from the top down";
}

TEST_F(ImageTool, RotateTurnsClockwise)
{
    const std::string turned = Made({"image", "rotate", m_bmp, "90", m_out, "--grow"}, "out.bmp");
    const std::string row = kBlue + kRed + std::string(2, '\0');
    EXPECT_EQ(RowsOfBmp(turned), row + row + row);
    const std::string back = Made({"image", "rotate", m_out, "-90", m_out, "--grow", "--force"}, "out.bmp");
    EXPECT_EQ(RowsOfBmp(back), RowsOfBmp(TwoRows()));
}

TEST_F(ImageTool, WhatComesInHasTheBackground)
{
    const std::string turned =
        Made({"image", "rotate", m_bmp, "45", m_out, "--grow", "--background", "00ff00"}, "out.bmp");
    EXPECT_EQ(RowsOfBmp(turned).substr(0, 3), std::string("\0\xFF\0", 3));
}

TEST_F(ImageTool, FilesThatExistAreReplacedByForceAlone)
{
    const std::string old = m_folder.Write("old.png", "something");
    ExpectFailure({"image", "convert", m_bmp, old}, 1,
                  "vorntool image convert: '" + old + "' exists; --force replaces it");
    EXPECT_EQ(m_folder.Read("old.png"), "something");
    ExpectDone({"image", "convert", m_bmp, old, "--force"}, old + ": 3 x 2 pixels\n");
    EXPECT_EQ(m_folder.Read("old.png").substr(1, 3), "PNG");
}

TEST_F(ImageTool, WhatIsNoPictureIsRefused)
{
    const std::string text = m_folder.Write("text.png", "no picture");
    ExpectFailure({"image", "info", text}, 1,
                  "vorntool image info: '" + text + "' is no BMP, PCX, GIF, PNG or JPEG file");
    const std::string empty = m_folder.Write("empty", "");
    ExpectFailure({"image", "info", empty}, 1,
                  "vorntool image info: '" + empty + "' is no BMP, PCX, GIF, PNG or JPEG file");
    ExpectFailure({"image", "info", m_bmp, "--frame=1"}, 1,
                  "vorntool image info: '" + m_bmp + "' is no GIF file and has no frame 1");
    const std::string cut = m_folder.Write("cut.bmp", TwoRows().substr(0, 60));
    ExpectFailure({"image", "convert", cut, m_out}, 1,
                  "vorntool image convert: '" + cut +
                      "' is a BMP file that is damaged, too large or of a kind that is not read");
    EXPECT_EQ(m_folder.Read("out.bmp"), "") << "nothing is left behind";
}

TEST_F(ImageTool, FilesThatAreNotThereAndFoldersAreRefused)
{
    const ToolRun run = RunVornTool({"image", "info", m_folder.File("missing.png")});
    EXPECT_EQ(run.status, 1u);
    EXPECT_NE(run.errors.find("missing.png' cannot be opened"), std::string::npos) << run.errors;
    const std::string nowhere = m_folder.File("none") + "\\out.png";
    const ToolRun written = RunVornTool({"image", "convert", m_bmp, nowhere});
    EXPECT_EQ(written.status, 1u);
    EXPECT_NE(written.errors.find("out.png' cannot be written: error 3"), std::string::npos) << written.errors;
    const std::string folder = m_folder.File("folder.png");
    CreateDirectoryA(folder.c_str(), nullptr);
    ExpectFailure({"image", "convert", m_bmp, folder, "--force"}, 1,
                  "vorntool image convert: '" + folder + "' is a folder");
}

// Two pixels of 8 bits in one run: the library has no rows of them, the system has.
TEST_F(ImageTool, CompressedPixelsAreDrawnByTheSystem)
{
    BmpParts parts;
    parts.width = 2;
    parts.depth = 8;
    parts.compression = BI_RLE8;
    parts.usedColors = 2;
    parts.behindHeader = std::string("\0\0\0\0", 4) + kRed + '\0';
    parts.pixels = std::string("\2\1\0\1", 4);
    const std::string packed = m_folder.Write("packed.bmp", parts.Bytes());
    const ToolRun info = RunVornTool({"image", "info", packed});
    EXPECT_NE(info.text.find("Rows         from the bottom, compressed\n"), std::string::npos) << info.text;
    EXPECT_EQ(RowsOfBmp(Made({"image", "convert", packed, m_out}, "out.bmp")), kRed + kRed + std::string(2, '\0'));
    EXPECT_EQ(RowsOfBmp(Made({"image", "resize", packed, "1x1", m_out, "--force"}, "out.bmp")), kRed + '\0');
}

TEST_F(ImageTool, WrongWordsAreWrongUse)
{
    const std::string png = m_folder.File("a.png");
    ExpectFailure({"image", "convert", m_bmp, "a.gif"}, 2,
                  "vorntool image convert: 'a.gif' does not end in .bmp, .png, .jpg or .jpeg");
    ExpectFailure({"image", "convert", m_bmp, png, "--quality=5"}, 2,
                  "vorntool image convert: --quality and --progressive are for JPEG files");
    ExpectFailure({"image", "convert", m_bmp, "a.jpg", "--quality=101"}, 2,
                  "vorntool image convert: --quality takes a whole number from 1 to 100");
    ExpectFailure({"image", "info", m_bmp, "--frame=-1"}, 2,
                  "vorntool image info: --frame takes a whole number from 0 to 2147483647");
    ExpectFailure({"image", "resize", m_bmp, "big", png}, 2,
                  "vorntool image resize: 'big' is no size such as 400x300, 400x, x300 or 50%, with sides "
                  "up to 65500");
    ExpectFailure({"image", "rotate", m_bmp, "left", png}, 2, "vorntool image rotate: 'left' is no number of degrees");
    ExpectFailure({"image", "rotate", m_bmp, "1", png, "--background=green"}, 2,
                  "vorntool image rotate: --background takes six hexadecimal digits, RRGGBB");
    ExpectFailure({"image", "resize", m_bmp}, 2,
                  "vorntool image resize: SIZE is missing; see 'vorntool image resize --help'");
    ExpectFailure({"image", "info", ""}, 2, "vorntool image info: '' cannot be the name of a picture");
}

TEST_F(ImageTool, SizesBeyondWhatTheSystemHoldsAreRefused)
{
    const std::string png = m_folder.File("a.png");
    ExpectFailure({"image", "resize", m_bmp, "65500x65500", png}, 1,
                  "vorntool image resize: '" + m_bmp + "' cannot be made '65500x65500': that is too large");
    EXPECT_EQ(m_folder.Read("a.png"), "");
}

} // namespace
