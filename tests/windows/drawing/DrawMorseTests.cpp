#include "aviation/Drawing.h"
#include "framework/include/afxext.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiCount.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <random>
#include <string>
#include <vector>

using namespace vorn::test;

namespace
{

constexpr int kRight = 2;
constexpr int kCentre = 6;

/// What a code looks like on a canvas of this size.
std::string Drawn(CSize size, int x, int y, int unit, int align, const char* text)
{
    Canvas canvas(size.cx, size.cy);
    DrawMorse(&canvas.dc, kBlack, x, y, unit, align, text);
    return canvas.Picture();
}

std::string Empty(CSize size)
{
    return Canvas(size.cx, size.cy).Picture();
}

/// A bitmap of any depth whose bytes are all of the same kind at first.
class Bitmap
{
public:
    explicit Bitmap(int depth)
    {
        struct
        {
            BITMAPINFOHEADER header;
            RGBQUAD colors[256];
        } info = {};
        info.header = {sizeof info.header, 50, -6, 1, static_cast<WORD>(depth), BI_RGB, 0, 0, 0, 0, 0};
        for (int i = 0; depth <= 8 && i < 1 << depth; ++i)
        {
            const auto value = static_cast<BYTE>(i * 255 / ((1 << depth) - 1));
            info.colors[i] = {value, value, value, 0};
        }
        dc = ::CreateCompatibleDC(nullptr);
        m_bitmap = ::CreateDIBSection(dc, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &m_bits, nullptr, 0);
        m_size = static_cast<std::size_t>((50 * depth + 31) / 32 * 4 * 6);
        std::memset(m_bits, 0xA5, m_size);
        m_former = ::SelectObject(dc, m_bitmap);
    }
    ~Bitmap()
    {
        ::SelectObject(dc, m_former);
        ::DeleteDC(dc);
        ::DeleteObject(m_bitmap);
    }
    Bitmap(const Bitmap&) = delete;
    Bitmap& operator=(const Bitmap&) = delete;

    std::vector<int> Bytes() const
    {
        ::GdiFlush();
        const auto* const bytes = static_cast<const BYTE*>(m_bits);
        return {bytes, bytes + m_size};
    }

    HDC dc;

private:
    HBITMAP m_bitmap;
    HGDIOBJ m_former;
    void* m_bits = nullptr;
    std::size_t m_size;
};

/// The signs of each letter: ITU-R M.1677-1, 1.1.1.
constexpr const char* kSigns[] = {".-",   "-...", "-.-.", "-..",  ".",   "..-.", "--.",  "....", "..",
                                  ".---", "-.-",  ".-..", "--",   "-.",  "---",  ".--.", "--.-", ".-.",
                                  "...",  "-",    "..-",  "...-", ".--", "-..-", "-.--", "--.."};

/// One row of a code as text, a unit a character.
std::string Row(const std::string& text)
{
    std::string row;
    for (const char letter : text)
    {
        row += row.empty() ? "" : "...";
        std::string signs;
        for (const char sign : std::string(kSigns[letter - 'A']))
        {
            signs += signs.empty() ? "" : ".";
            signs += sign == '-' ? "####" : "#";
        }
        row += signs;
    }
    return row;
}

/// The picture by plain text: each cell of the row becomes a square of `unit` characters.
std::string Expected(CSize size, int x, int y, int unit, int align, const std::string& text)
{
    const std::string row = Row(text);
    const int width = static_cast<int>(row.size()) * unit;
    const int left = align == kRight ? x - width : align == kCentre ? x - width / 2 : x;
    std::string picture;
    for (int line = 0; line < size.cy; ++line)
    {
        for (int column = 0; column < size.cx; ++column)
        {
            const bool inside = line >= y && line < y + unit && column >= left && column < left + width;
            picture += inside ? row[static_cast<std::size_t>((column - left) / unit)] : '.';
        }
        picture += '\n';
    }
    return picture;
}

} // namespace

TEST(DrawMorse, ADotIsASquareAndADashFourTimesAsLong)
{
    EXPECT_EQ(Drawn({10, 3}, 1, 1, 1, 0, "A"), "..........\n"
                                               ".#.####...\n"
                                               "..........\n");
    EXPECT_EQ(Drawn({16, 4}, 2, 1, 2, 0, "A"), "................\n"
                                               "..##..########..\n"
                                               "..##..########..\n"
                                               "................\n");
}

TEST(DrawMorse, ThreeUnitsPartLetters)
{
    EXPECT_EQ(Drawn({20, 4}, 1, 1, 2, 0, "ET"), "....................\n"
                                                ".##......########...\n"
                                                ".##......########...\n"
                                                "....................\n");
}

TEST(DrawMorse, BothCasesAreLetters)
{
    EXPECT_EQ(Drawn({60, 5}, 3, 1, 2, 0, "sEa"), Drawn({60, 5}, 3, 1, 2, 0, "SEA"));
}

TEST(DrawMorse, RightEndsBeforeItsPlaceAndCentreHalvesTheWidthCut)
{
    EXPECT_EQ(Drawn({10, 3}, 9, 0, 3, kRight, "E"), "......###.\n......###.\n......###.\n");
    EXPECT_EQ(Drawn({10, 3}, 5, 0, 3, kCentre, "E"), "....###...\n....###...\n....###...\n");
    for (const int align : {0, 1, 3, 4, 10, 14, 24, -2})
    {
        EXPECT_EQ(Drawn({10, 3}, 5, 0, 3, align, "E"), ".....###..\n.....###..\n.....###..\n") << align;
    }
}

TEST(DrawMorse, WhatIsNoCodeDrawsNothing)
{
    for (const char* text : {"", "VOR1", " A", "A B", "\xC4", "A-"})
    {
        EXPECT_EQ(Drawn({30, 4}, 1, 1, 2, 0, text), Empty({30, 4})) << text;
    }
    EXPECT_EQ(Drawn({30, 4}, 1, 1, 2, 0, nullptr), Empty({30, 4}));
    for (const int unit : {0, -1, INT_MIN})
    {
        EXPECT_EQ(Drawn({30, 4}, 1, 1, unit, 0, "A"), Empty({30, 4})) << unit;
    }
}

TEST(DrawMorse, NoContextDrawsNothing)
{
    DrawMorse(nullptr, kRed, 0, 0, 2, 0, "SOS");
    CDC none;
    DrawMorse(&none, kRed, 0, 0, 2, 0, "SOS");
}

TEST(DrawMorse, EveryCodeLooksAsItReads)
{
    std::mt19937 random(1844);
    for (int round = 0; round < 120; ++round)
    {
        std::string text;
        for (unsigned letters = 1 + random() % 4; letters > 0; --letters)
        {
            text += static_cast<char>('A' + random() % 26);
        }
        const CSize size(40 + static_cast<int>(random() % 60), 12);
        const int x = static_cast<int>(random() % 90) - 20;
        const int y = static_cast<int>(random() % 16) - 4;
        const int unit = 1 + static_cast<int>(random() % 5);
        const int aligns[] = {0, kRight, kCentre};
        const int align = aligns[random() % 3];
        ASSERT_EQ(Drawn(size, x, y, unit, align, text.c_str()), Expected(size, x, y, unit, align, text))
            << text << " at " << x << ", " << y << " unit " << unit << " align " << align;
    }
}

TEST(DrawMorse, EveryLetterLooksAsItReads)
{
    for (char letter = 'A'; letter <= 'Z'; ++letter)
    {
        const std::string text(1, letter);
        EXPECT_EQ(Drawn({40, 6}, 2, 1, 2, 0, text.c_str()), Expected({40, 6}, 2, 1, 2, 0, text));
    }
}

TEST(DrawMorse, LongTextsHaveEveryBlock)
{
    std::string text;
    for (int letters = 1; letters <= 60; ++letters)
    {
        text += static_cast<char>('A' + letters * 7 % 26);
        ASSERT_EQ(Drawn({900, 3}, 3, 1, 1, 0, text.c_str()), Expected({900, 3}, 3, 1, 1, 0, text)) << text;
    }
}

TEST(DrawMorse, FollowsTheOriginsOfWindowAndViewport)
{
    Canvas canvas(14, 3);
    canvas.dc.SetWindowOrg(100, 200);
    canvas.dc.SetViewportOrg(3, 1);
    DrawMorse(&canvas.dc, kBlack, 101, 200, 1, 0, "A");
    EXPECT_EQ(canvas.Picture(), "..............\n"
                                "....#.####....\n"
                                "..............\n");
}

TEST(DrawMorse, UpwardAxesTurnNoBlockUpsideDown)
{
    Canvas canvas(10, 4);
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SetWindowExt(1, 1);
    canvas.dc.SetViewportExt(1, -1);
    canvas.dc.SetViewportOrg(0, 3);
    Canvas pixels(10, 4);
    pixels.dc.SetMapMode(MM_ANISOTROPIC);
    pixels.dc.SetWindowExt(1, 1);
    pixels.dc.SetViewportExt(1, -1);
    pixels.dc.SetViewportOrg(0, 3);
    DrawMorse(&canvas.dc, kBlack, 1, 1, 1, 0, "A");
    for (const int x : {1, 3, 4, 5, 6})
    {
        pixels.dc.SetPixel(x, 1, kBlack);
    }
    EXPECT_EQ(canvas.Picture(), pixels.Picture());
}

TEST(DrawMorse, TheBrushColourOfTheContextStays)
{
    Canvas canvas(40, 4);
    ::SetDCBrushColor(canvas.dc, kGreen);
    DrawMorse(&canvas.dc, kRed, 0, 0, 1, 0, "SEA");
    EXPECT_EQ(::GetDCBrushColor(canvas.dc), kGreen);
    EXPECT_EQ(canvas.Count(kGreen), 0);
}

TEST(DrawMorse, HugeUnitsAreCutToWhatIsSeen)
{
    EXPECT_EQ(Drawn({4, 3}, 1, 1, INT_MAX, 0, "E"), "....\n.###\n.###\n");
    EXPECT_EQ(Drawn({4, 3}, -5, -5, INT_MAX, 0, "SOS"), "####\n####\n####\n");
    EXPECT_EQ(Drawn({4, 3}, 1, 1, 1'000'000'000, 0, "EEE"), "....\n.###\n.###\n");
    EXPECT_EQ(Drawn({4, 3}, INT_MIN, INT_MIN, INT_MAX, 0, "E"), Empty({4, 3}));
    EXPECT_EQ(Drawn({4, 3}, INT_MAX, INT_MAX, INT_MAX, 0, "E"), Empty({4, 3}));
    EXPECT_EQ(Drawn({4, 3}, 3, 0, INT_MAX, kRight, "E"), "###.\n###.\n###.\n");
    EXPECT_EQ(Drawn({4, 3}, 2, INT_MIN, INT_MAX, kCentre, "T"), Empty({4, 3}));
}

TEST(DrawMorse, LongTextsReachAsFarAsIsSeen)
{
    const std::string lengthy(100'000, 'E'); // 399,997 units
    EXPECT_EQ(Drawn({9, 1}, -20'000, 0, 1, 0, lengthy.c_str()), "#...#...#\n");
    EXPECT_EQ(Drawn({9, 1}, 9, 0, 1, kRight, lengthy.c_str()), "#...#...#\n");
    const std::string dashes(20'000, 'T'); // 139,997 units: from the left edge on there are nearly all of them
    EXPECT_EQ(Drawn({9, 1}, 0, 0, 10'000, 0, dashes.c_str()), "#########\n");
}

TEST(DrawMorse, StaysWithinTheClipRegion)
{
    Canvas canvas(16, 3);
    canvas.dc.IntersectClipRect(3, 1, 9, 2);
    DrawMorse(&canvas.dc, kRed, 2, 0, 2, 0, "A");
    EXPECT_EQ(canvas.Picture(), "................\n"
                                "...R..RRR.......\n"
                                "................\n");
}

TEST(DrawMorse, BlocksGrowWithTheMapping)
{
    Canvas canvas(14, 4);
    canvas.dc.SetMapMode(MM_ANISOTROPIC);
    canvas.dc.SetWindowExt(1, 1);
    canvas.dc.SetViewportExt(2, 2);
    DrawMorse(&canvas.dc, kBlue, 1, 1, 1, 0, "A");
    EXPECT_EQ(canvas.Picture(), "..............\n"
                                "..............\n"
                                "..BB..BBBBBBBB\n"
                                "..BB..BBBBBBBB\n");
}

TEST(DrawMorse, TheMappingsOriginMayBeFarAway)
{
    Canvas canvas(8, 2);
    canvas.dc.SetWindowOrg(1'000'000, -1'000'000);
    DrawMorse(&canvas.dc, kBlack, 1'000'001, -1'000'000, 1, 0, "A");
    EXPECT_EQ(canvas.Picture(), ".#.####.\n........\n");
}

TEST(DrawMorse, PaletteRelativeColoursArePlainOnes)
{
    Canvas canvas(4, 1);
    DrawMorse(&canvas.dc, PALETTERGB(255, 0, 0), 0, 0, 1, 0, "T");
    EXPECT_EQ(canvas.Picture(), "RRRR\n");
}

TEST(DrawMorse, LeavesTheContextAsItWas)
{
    Canvas canvas(40, 4);
    canvas.dc.SetTextColor(kRed);
    canvas.dc.SetBkColor(kGreen);
    canvas.dc.MoveTo(3, 2);
    canvas.dc.SetROP2(R2_XORPEN);
    const HGDIOBJ pen = ::GetCurrentObject(canvas.dc, OBJ_PEN);
    const HGDIOBJ brush = ::GetCurrentObject(canvas.dc, OBJ_BRUSH);
    const unsigned before = CountGdiObjects();
    DrawMorse(&canvas.dc, kBlack, 0, 0, 1, 0, "SEA");
    EXPECT_EQ(CountGdiObjects(), before);
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_PEN), pen);
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_BRUSH), brush);
    EXPECT_EQ(canvas.dc.GetTextColor(), kRed);
    EXPECT_EQ(canvas.dc.GetBkColor(), kGreen);
    EXPECT_EQ(canvas.dc.GetCurrentPosition(), CPoint(3, 2));
    EXPECT_EQ(canvas.Count(kBlack), 5 + 4); // whatever the drawing mode of pens
}

TEST(DrawMorse, MetafilesRecordIt)
{
    CMetaFileDC metafile;
    ASSERT_TRUE(metafile.Create());
    DrawMorse(&metafile, kRed, 2, 0, 1, 0, "A");
    DrawMorse(&metafile, kBlue, 2, 1, 1000, 0, "T");
    const HMETAFILE recorded = metafile.Close();
    Canvas canvas(10, 2);
    EXPECT_TRUE(canvas.dc.PlayMetaFile(recorded));
    EXPECT_EQ(canvas.Picture(), "..R.RRRR..\n..BBBBBBBB\n");
    ::DeleteMetaFile(recorded);
}

TEST(DrawMorse, BitmapsOfEachDepthGetTheSameBytesAsFromPixels)
{
    for (const int depth : {1, 4, 8, 16, 24, 32})
    {
        const Bitmap drawn(depth);
        const Bitmap set(depth);
        DrawMorse(CDC::FromHandle(drawn.dc), RGB(10, 120, 230), 3, 2, 2, 0, "SEA");
        for (const int left : {0, 2, 4, 8, 12, 14, 15, 16, 17}) // a dash is as long as four dots
        {
            for (int i = 0; i < 4; ++i)
            {
                ::SetPixel(set.dc, 3 + 2 * left + i % 2, 2 + i / 2, RGB(10, 120, 230));
            }
        }
        EXPECT_EQ(drawn.Bytes(), set.Bytes()) << depth;
    }
}

TEST(DrawMorse, TheColourIsTheOneThatAPixelWouldGet)
{
    struct
    {
        BITMAPINFOHEADER header;
        RGBQUAD colors[4];
    } info = {};
    info.header = {sizeof info.header, 16, -2, 1, 8, BI_RGB, 0, 0, 0, 4, 0};
    info.colors[1] = {255, 255, 255, 0};
    info.colors[2] = {200, 0, 0, 0};
    info.colors[3] = {0, 0, 180, 0};
    void* bits = nullptr;
    CBitmap bitmap;
    bitmap.Attach(::CreateDIBSection(nullptr, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0));
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ former = SelectObject(&dc, bitmap);
    for (const COLORREF color : {RGB(0, 0, 160), RGB(170, 40, 30), RGB(140, 140, 150), PALETTERGB(90, 90, 90)})
    {
        dc.SetPixel(0, 0, color);
        DrawMorse(&dc, color, 1, 0, 1, 0, "T");
        ::GdiFlush();
        const BYTE* const pixels = static_cast<const BYTE*>(bits);
        EXPECT_EQ(std::string(pixels + 1, pixels + 5), std::string(4, static_cast<char>(pixels[0]))) << color;
    }
    SelectObject(&dc, former);
}
