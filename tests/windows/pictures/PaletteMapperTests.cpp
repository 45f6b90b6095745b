#include "files/PaletteMapper.h"
#include "tests/support/ImportRedirect.h"
#include "tests/windows/pictures/DrawnOn.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <type_traits>
#include <vector>

namespace
{
using vorn::test::ImportRedirect;
using vorn::test::TestPalette;

/// What the mapper asked the system for, and what it is to answer.
struct Asked
{
    HPALETTE palette;
    COLORREF color;
};
std::vector<Asked> g_asked;
UINT g_answer = 0;

UINT WINAPI NotedSearch(HPALETTE palette, COLORREF color)
{
    g_asked.push_back({palette, color});
    return g_answer;
}

class PaletteMapperAsks : public testing::Test
{
protected:
    PaletteMapperAsks()
    {
        g_asked.clear();
        g_answer = 7;
    }
    void SetUp() override
    {
        ASSERT_TRUE(m_redirect.IsActive());
    }

    HPALETTE m_handle = reinterpret_cast<HPALETTE>(0x1234);

private:
    ImportRedirect m_redirect{"VornCommon.dll", "GetNearestPaletteIndex", reinterpret_cast<const void*>(NotedSearch)};
};

static_assert(!std::is_copy_constructible_v<PaletteMapper> && !std::is_copy_assignable_v<PaletteMapper>);
static_assert(!std::is_polymorphic_v<PaletteMapper>);

TEST_F(PaletteMapperAsks, OncePerCellWithTheFirstColour)
{
    PaletteMapper mapper(m_handle, 16);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(15, 14, 13), 7);
    ASSERT_EQ(g_asked.size(), 1U);
    EXPECT_EQ(g_asked[0].palette, m_handle);
    EXPECT_EQ(g_asked[0].color, RGB(15, 14, 13)) << "the colour itself, not its cell's middle";
    g_answer = 9;
    EXPECT_EQ(mapper.GetNearestPaletteIndex(0, 0, 0), 7);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(15, 15, 15), 7);
    EXPECT_EQ(g_asked.size(), 1U);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(16, 0, 0), 9);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(0, 16, 0), 9);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(0, 0, 16), 9);
    EXPECT_EQ(g_asked.size(), 4U);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(0, 0, 0), 7);
}

TEST_F(PaletteMapperAsks, EveryCellOnce)
{
    PaletteMapper mapper(m_handle, 8);
    for (int r = 0; r < 256; r += 8)
        for (int g = 0; g < 256; g += 8)
            for (int b = 0; b < 256; b += 8)
                mapper.GetNearestPaletteIndex(static_cast<BYTE>(r), static_cast<BYTE>(g), static_cast<BYTE>(b));
    EXPECT_EQ(g_asked.size(), 8U * 8 * 8);
}

TEST_F(PaletteMapperAsks, AnAnswerOf255EveryTime)
{
    PaletteMapper mapper(m_handle, 16);
    g_answer = 255;
    EXPECT_EQ(mapper.GetNearestPaletteIndex(1, 2, 3), 255);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(1, 2, 3), 255);
    EXPECT_EQ(g_asked.size(), 2U);
    g_answer = CLR_INVALID;
    EXPECT_EQ(mapper.GetNearestPaletteIndex(1, 2, 3), 255) << "the system's failure";
    g_answer = 254;
    EXPECT_EQ(mapper.GetNearestPaletteIndex(1, 2, 3), 254);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(1, 2, 3), 254);
    EXPECT_EQ(g_asked.size(), 4U);
}

TEST_F(PaletteMapperAsks, AgainAfterAReset)
{
    PaletteMapper mapper(m_handle, 32);
    EXPECT_EQ(mapper.Palette(), m_handle);
    mapper.GetNearestPaletteIndex(1, 2, 3);
    g_answer = 8;
    mapper.Reset(m_handle);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(1, 2, 3), 8) << "even for the same palette";
    const HPALETTE other = reinterpret_cast<HPALETTE>(0x5678);
    mapper.Reset(other);
    EXPECT_EQ(mapper.Palette(), other);
    mapper.GetNearestPaletteIndex(1, 2, 3);
    EXPECT_EQ(g_asked.back().palette, other);
    EXPECT_EQ(g_asked.size(), 3U);
}

TEST_F(PaletteMapperAsks, AnyNumberOfCellsIsSafe)
{
    for (const int n : {-5, 0, 1, 3, 100, 255, 256, 257, 100000})
    {
        PaletteMapper mapper(m_handle, n);
        for (int value = 0; value < 256; ++value)
        {
            const auto byte = static_cast<BYTE>(value);
            EXPECT_EQ(mapper.GetNearestPaletteIndex(byte, byte, byte), 7) << n;
        }
    }
    g_asked.clear();
    PaletteMapper coarse(m_handle, 0);
    coarse.GetNearestPaletteIndex(0, 0, 0);
    coarse.GetNearestPaletteIndex(255, 255, 255);
    EXPECT_EQ(g_asked.size(), 1U) << "a single cell";
}

bool g_failsLarge = false;

void* LargeFails(std::size_t size)
{
    void* memory = g_failsLarge && size >= 4096 ? nullptr : std::malloc(size);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

TEST_F(PaletteMapperAsks, EveryTimeWithoutMemoryForTheCells)
{
    const ImportRedirect noMemory("VornCommon.dll", "_Znwj", reinterpret_cast<const void*>(LargeFails));
    ASSERT_TRUE(noMemory.IsActive());
    g_failsLarge = true;
    PaletteMapper mapper(m_handle, 256);
    g_failsLarge = false;
    EXPECT_EQ(mapper.GetNearestPaletteIndex(1, 2, 3), 7);
    g_answer = 8;
    EXPECT_EQ(mapper.GetNearestPaletteIndex(1, 2, 3), 8);
    mapper.Reset(m_handle);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(1, 2, 3), 8);
}

TEST(PaletteMapper, FindsEntriesOfARealPalette)
{
    const TestPalette palette(68);
    PaletteMapper mapper(palette, 32);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(250, 3, 5), 1);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(0, 255, 0), 2);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(8, 2, 250), 3);
    EXPECT_EQ(mapper.GetNearestPaletteIndex(8, 8, 8), 4);
}

TEST(PaletteMapper, AnswersWithoutAPalette)
{
    PaletteMapper mapper(nullptr, 16);
    EXPECT_EQ(mapper.Palette(), nullptr);
    mapper.GetNearestPaletteIndex(1, 2, 3);
}
} // namespace
