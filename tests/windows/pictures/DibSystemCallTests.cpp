#include "tests/support/ImportRedirect.h"
#include "tests/support/PictureBytes.h"
#include "tests/support/ScratchFolder.h"
#include "tests/windows/pictures/DrawnOn.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using namespace vorn::test;

/// A request to draw, as the system gets it.
struct Drawing
{
    int mode;
    RECT to; ///< Place, width and height.
    RECT from;
    BITMAPINFOHEADER header;
    UINT usage;
    DWORD rop;
};
std::vector<Drawing> g_drawings;
int g_flushes = 0;

int WINAPI NotedDrawing(HDC dc, int x, int y, int width, int height, int fromX, int fromY, int fromWidth,
                        int fromHeight, const void* bits, const BITMAPINFO* info, UINT usage, DWORD rop)
{
    g_drawings.push_back({GetStretchBltMode(dc),
                          {x, y, width, height},
                          {fromX, fromY, fromWidth, fromHeight},
                          info->bmiHeader,
                          usage,
                          rop});
    return StretchDIBits(dc, x, y, width, height, fromX, fromY, fromWidth, fromHeight, bits, info, usage, rop);
}

BOOL WINAPI NotedFlush()
{
    ++g_flushes;
    return GdiFlush();
}

int WINAPI RefusedReading(HDC, HBITMAP, UINT, UINT, void*, BITMAPINFO*, UINT)
{
    return 0;
}

HBITMAP WINAPI RefusedSection(HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD)
{
    return nullptr;
}

bool AreSame(const RECT& one, const RECT& other)
{
    return EqualRect(&one, &other) != FALSE;
}

class DibDraws : public testing::Test
{
protected:
    DibDraws()
    {
        g_drawings.clear();
    }
    void SetUp() override
    {
        ASSERT_TRUE(m_redirect.IsActive());
    }

    /// The request when the bitmap is drawn.
    Drawing DrawnOf(const BmpParts& parts) const
    {
        DIB image;
        EXPECT_TRUE(image.ReadBMP(m_folder.Write("file", parts.Bytes()).c_str()));
        const DrawnOn target(4, 4);
        g_drawings.clear();
        image.StretchDIBits(target.Dc(), 0, 0, 4, 4, SRCCOPY);
        EXPECT_EQ(g_drawings.size(), 1U);
        return g_drawings.empty() ? Drawing{} : g_drawings.front();
    }

    ScratchFolder m_folder;

private:
    ImportRedirect m_redirect{"VornCommon.dll", "StretchDIBits", reinterpret_cast<const void*>(NotedDrawing)};
};

TEST_F(DibDraws, TheWholeOfATopDownImageByItsPositiveHeight)
{
    const DrawnOn target(9, 9);
    for (const bool isTopDown : {false, true})
    {
        g_drawings.clear();
        FromLetters("RG|BY|..", 24, isTopDown).StretchDIBits(target.Dc(), 1, 2, 6, 7, SRCINVERT);
        ASSERT_EQ(g_drawings.size(), 1U);
        EXPECT_TRUE(AreSame(g_drawings[0].to, {1, 2, 6, 7}));
        EXPECT_TRUE(AreSame(g_drawings[0].from, {0, 0, 2, 3}));
        EXPECT_EQ(g_drawings[0].header.biHeight, isTopDown ? -3 : 3);
        EXPECT_EQ(g_drawings[0].rop, SRCINVERT);
        EXPECT_EQ(g_drawings[0].usage, static_cast<UINT>(DIB_RGB_COLORS));
    }
}

TEST_F(DibDraws, QuickResizingIsOneDrawingInHalftoneMode)
{
    for (const int usage : {0, 1})
    {
        DIB source(3, 2, 8, usage, 0, nullptr, nullptr);
        g_drawings.clear();
        DIB image;
        ASSERT_TRUE(image.LQResize(5, 7, &source));
        ASSERT_EQ(g_drawings.size(), 1U);
        EXPECT_EQ(g_drawings[0].mode, HALFTONE);
        EXPECT_EQ(g_drawings[0].rop, static_cast<DWORD>(SRCCOPY));
        EXPECT_TRUE(AreSame(g_drawings[0].to, {0, 0, 5, 7}));
        EXPECT_TRUE(AreSame(g_drawings[0].from, {0, 0, 3, 2}));
        EXPECT_EQ(g_drawings[0].usage, static_cast<UINT>(usage));
    }
}

TEST_F(DibDraws, UnseenPixelsAreNotResized)
{
    BmpParts parts = RedBmp();
    parts.compression = 1;
    parts.pixels = std::string("\2\1\0\1", 4);
    parts.imageSize = 4;
    DIB source;
    ASSERT_TRUE(source.ReadBMP(m_folder.Write("file", parts.Bytes()).c_str()));
    DIB image;
    EXPECT_FALSE(image.LQResize(2, 1, &source));
    EXPECT_TRUE(g_drawings.empty());
}

TEST_F(DibDraws, HeadersOfFilesBecomeSoundOnes)
{
    BmpParts parts = RedBmp();
    parts.planes = 0;
    parts.imageSize = 0xFFFFFFFF;
    parts.headerSize = 41;
    for (const unsigned long used : {2UL, 300UL})
    {
        parts.usedColors = used;
        parts.behindHeader.resize(used * 4);
        const BITMAPINFOHEADER header = DrawnOf(parts).header;
        EXPECT_EQ(header.biSize, 40U);
        EXPECT_EQ(header.biPlanes, 1);
        EXPECT_EQ(header.biClrUsed, 0U) << "256 entries there are";
        EXPECT_EQ(header.biSizeImage, 0U) << "rows have no other size than theirs";
    }
}

TEST_F(DibDraws, CompressedPixelsAreAsManyAsStatedButNoMoreThanThereAre)
{
    BmpParts parts = RedBmp();
    parts.compression = 1;
    parts.pixels = std::string("\2\1\0\1", 4);
    for (const auto& [field, expected] : {std::pair{3UL, 3U}, {4UL, 4U}, {5UL, 4U}, {0xFFFFFFFFUL, 4U}, {0UL, 4U}})
    {
        parts.imageSize = field;
        EXPECT_EQ(DrawnOf(parts).header.biSizeImage, expected) << field;
    }
}

// The table is looked for behind 40 bytes, here as everywhere.
TEST_F(DibDraws, TablesBehindLongHeadersAreTheSameAsForPixels)
{
    BmpParts parts = RedBmp();
    parts.headerSize = 108;
    parts.behindHeader = std::string("\0\0\xFF\0\0\xFF\0\0", 8) + std::string(60, '\0') + parts.behindHeader;
    DIB image;
    ASSERT_TRUE(image.ReadBMP(m_folder.Write("file", parts.Bytes()).c_str()));
    EXPECT_EQ(Colors(image), "GR");
    const DrawnOn target(2, 1);
    EXPECT_NE(image.StretchDIBits(target.Dc(), 0, 0, 2, 1, SRCCOPY), 0);
    EXPECT_EQ(target.Text(), "GR");
}

TEST(DibSystem, DrawingIsFinishedBeforeASectionsRowsAreRead)
{
    const ImportRedirect redirect("VornCommon.dll", "GdiFlush", reinterpret_cast<const void*>(NotedFlush));
    ASSERT_TRUE(redirect.IsActive());
    DIB section(2, 2, 24, 0, 1, nullptr, nullptr);
    const ScratchFolder folder;
    const auto flushes = [](const auto& action)
    {
        g_flushes = 0;
        action();
        return g_flushes;
    };
    EXPECT_GE(flushes(
                  [&]
                  {
                      section.GetPixel(0, 0);
                  }),
              1);
    EXPECT_GE(flushes(
                  [&]
                  {
                      ColorOf(section, 0, 0);
                  }),
              1);
    EXPECT_GE(flushes(
                  [&]
                  {
                      section.PutPixel(0, 0, 0);
                  }),
              1);
    EXPECT_GE(flushes(
                  [&]
                  {
                      DIB copy(section);
                  }),
              1);
    EXPECT_GE(flushes(
                  [&]
                  {
                      section.WriteBMP(folder.File("a").c_str());
                  }),
              1);
    DIB other;
    EXPECT_GE(flushes(
                  [&]
                  {
                      section.To24Bit(&other);
                  }),
              1);
    EXPECT_GE(flushes(
                  [&]
                  {
                      other.HQResize(1, 1, &section);
                  }),
              1);
    EXPECT_GE(flushes(
                  [&]
                  {
                      other.Blt(0, 0, &section);
                  }),
              1);
    EXPECT_EQ(flushes(
                  [&]
                  {
                      other.GetPixel(0, 0);
                  }),
              0)
        << "a block is nobody else's";
}

TEST(DibSystem, BitmapsThatAreNotReadWholeChangeNothing)
{
    DrawnOn source(2, 2);
    const HBITMAP bitmap = source.Unselected();
    const ImportRedirect redirect("VornCommon.dll", "GetDIBits", reinterpret_cast<const void*>(RefusedReading));
    ASSERT_TRUE(redirect.IsActive());
    DIB image = FromLetters("RG");
    DIB picture = FromLetters("BY");
    EXPECT_FALSE(image.LoadDDB(bitmap, nullptr, nullptr));
    EXPECT_FALSE(image.LQResize(4, 4, &picture));
    EXPECT_EQ(Colors(image), "RG");
}

TEST(DibSystem, ASectionThatIsRefusedIsNoImage)
{
    const ImportRedirect redirect("VornCommon.dll", "CreateDIBSection", reinterpret_cast<const void*>(RefusedSection));
    ASSERT_TRUE(redirect.IsActive());
    EXPECT_TRUE(IsWithoutImage(DIB(2, 2, 24, 0, 1, nullptr, nullptr)));
}
} // namespace
