#include "files/TerrainColorMap.h"
#include "tests/windows/pictures/DibText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <vector>

namespace
{
using vorn::test::CountGdiObjects;

COLORREF PaletteColor(DWORD color)
{
    return 0x02000000 | (color & 0xFF) << 16 | (color & 0xFF00) | color >> 16;
}

COLORREF ColorOf(const CBrush& brush)
{
    LOGBRUSH description{};
    const_cast<CBrush&>(brush).GetLogBrush(&description);
    EXPECT_EQ(description.lbStyle, static_cast<UINT>(BS_SOLID));
    return description.lbColor;
}

LOGPEN Description(const CPen& pen)
{
    LOGPEN description{};
    const_cast<CPen&>(pen).GetLogPen(&description);
    return description;
}

std::vector<long> Bands(int count)
{
    std::vector<long> bands;
    for (int i = 0; i < count; ++i)
        bands.push_back(i * 500L);
    return bands;
}

void Generate(TerrainColorMap& map, int count)
{
    std::vector<long> bands = Bands(count);
    map.GenColorMap(count, bands.data());
}

TEST(TerrainColorMap, HasNothingAtFirst)
{
    TerrainColorMap map(true);
    EXPECT_EQ(map.Count(), 0);
    EXPECT_EQ(map.GetBrush(0), nullptr);
    EXPECT_EQ(map.GetPen(0), nullptr);
    EXPECT_EQ(map.GetBrush(-1), nullptr);
}

TEST(TerrainColorMap, BrushAndPenOfEveryBand)
{
    TerrainColorMap map(true);
    Generate(map, 9);
    ASSERT_EQ(map.Count(), 9);
    for (int i = 0; i < 9; ++i)
    {
        ASSERT_NE(map.GetBrush(i), nullptr);
        ASSERT_NE(map.GetBrush(i)->GetSafeHandle(), nullptr);
        EXPECT_EQ(ColorOf(*map.GetBrush(i)), PaletteColor(map.Color(i)));
        ASSERT_NE(map.GetPen(i), nullptr);
        const LOGPEN pen = Description(*map.GetPen(i));
        EXPECT_EQ(pen.lopnStyle, static_cast<UINT>(PS_SOLID));
        EXPECT_EQ(pen.lopnWidth.x, 1);
        EXPECT_EQ(pen.lopnColor, PaletteColor(map.Color(i)));
    }
    EXPECT_EQ(ColorOf(*map.GetBrush(0)), PALETTERGB(0x2E, 0x8B, 0x57)) << "green";
    EXPECT_EQ(ColorOf(*map.GetBrush(8)), PALETTERGB(0xFF, 0xFF, 0xFF)) << "white";
    EXPECT_EQ(map.GetBrush(9), nullptr);
    EXPECT_EQ(map.GetPen(9), nullptr);
    EXPECT_EQ(map.GetPen(-1), nullptr);
}

TEST(TerrainColorMap, RealElevations)
{
    TerrainColorMap map(false);
    double bands[] = {-10.5, 0.0, std::nan("")};
    map.GenColorMap(3, bands);
    EXPECT_EQ(map.Count(), 3);
    EXPECT_EQ(ColorOf(*map.GetBrush(1)), PALETTERGB(0xFF, 0xFF, 0xFF));
}

TEST(TerrainColorMap, PensOnlyWhereWanted)
{
    TerrainColorMap map(false);
    Generate(map, 3);
    EXPECT_NE(map.GetBrush(0), nullptr);
    EXPECT_EQ(map.GetPen(0), nullptr);
    map.GenPens(true);
    EXPECT_EQ(map.GetPen(0), nullptr) << "from the next generation on";
    Generate(map, 3);
    EXPECT_NE(map.GetPen(0), nullptr);
    map.GenPens(false);
    EXPECT_NE(map.GetPen(0), nullptr);
    Generate(map, 3);
    EXPECT_EQ(map.GetPen(0), nullptr);
}

TEST(TerrainColorMap, GeneratesThroughTheBaseClass)
{
    TerrainColorMap map(true);
    ColorMap& base = map;
    std::vector<long> bands = Bands(4);
    base.GenColorMap(4, bands.data());
    EXPECT_NE(map.GetBrush(3), nullptr);
    double heights[] = {1, 2};
    base.GenColorMap(2, heights);
    EXPECT_NE(map.GetBrush(1), nullptr);
    EXPECT_EQ(map.GetBrush(2), nullptr);
}

TEST(TerrainColorMap, NothingForNoElevations)
{
    TerrainColorMap map(true);
    Generate(map, 3);
    Generate(map, 0);
    EXPECT_EQ(map.GetBrush(0), nullptr);
    EXPECT_EQ(map.GetPen(0), nullptr);
    Generate(map, 3);
    map.GenColorMap(-1, static_cast<long*>(nullptr));
    EXPECT_EQ(map.GetBrush(0), nullptr);
    map.GenColorMap(5, static_cast<double*>(nullptr));
    EXPECT_EQ(map.GetBrush(0), nullptr);
    EXPECT_EQ(map.Count(), 0);
}

TEST(TerrainColorMap, DeletedToolIsMadeAgain)
{
    TerrainColorMap map(true);
    Generate(map, 2);
    CBrush* brush = map.GetBrush(1);
    CPen* pen = map.GetPen(1);
    const COLORREF color = ColorOf(*brush);
    brush->DeleteObject();
    pen->DeleteObject();
    EXPECT_EQ(map.GetBrush(1), brush);
    EXPECT_EQ(ColorOf(*map.GetBrush(1)), color);
    EXPECT_EQ(Description(*map.GetPen(1)).lopnColor, color);
}

/// A map whose colours its own class changes after the generation.
class FewColors : public TerrainColorMap
{
public:
    FewColors() : TerrainColorMap(true)
    {
    }
    void Keep(std::size_t count)
    {
        m_colors.resize(count);
    }
};

TEST(TerrainColorMap, SlotWithoutAColourStaysEmpty)
{
    FewColors map;
    Generate(map, 3);
    map.GetBrush(1)->DeleteObject();
    map.GetPen(1)->DeleteObject();
    map.Keep(1);
    ASSERT_NE(map.GetBrush(1), nullptr);
    EXPECT_EQ(map.GetBrush(1)->GetSafeHandle(), nullptr);
    EXPECT_EQ(map.GetPen(1)->GetSafeHandle(), nullptr);
    EXPECT_NE(map.GetBrush(2)->GetSafeHandle(), nullptr);
}

TEST(TerrainColorMap, CopyHasToolsOfItsOwn)
{
    auto map = std::make_unique<TerrainColorMap>(true);
    Generate(*map, 3);
    TerrainColorMap copy(*map);
    ASSERT_NE(copy.GetBrush(2), nullptr);
    EXPECT_NE(copy.GetBrush(2)->GetSafeHandle(), map->GetBrush(2)->GetSafeHandle());
    EXPECT_NE(copy.GetPen(2)->GetSafeHandle(), map->GetPen(2)->GetSafeHandle());
    EXPECT_EQ(ColorOf(*copy.GetBrush(2)), ColorOf(*map->GetBrush(2)));
    map.reset();
    EXPECT_EQ(ColorOf(*copy.GetBrush(0)), PALETTERGB(0x2E, 0x8B, 0x57));
}

TEST(TerrainColorMap, AssignmentCopiesFlagColoursAndWhetherThereArePens)
{
    TerrainColorMap source(false);
    Generate(source, 2);
    source.GenPens(true);
    TerrainColorMap map(true);
    Generate(map, 5);
    map = source;
    EXPECT_EQ(map.Count(), 2);
    EXPECT_EQ(map.GetBrush(2), nullptr);
    EXPECT_EQ(map.GetPen(0), nullptr) << "the source has none";
    Generate(map, 2);
    EXPECT_NE(map.GetPen(0), nullptr) << "its flag is set";
    const TerrainColorMap& same = map;
    map = same;
    EXPECT_NE(map.GetPen(1), nullptr);
    map = TerrainColorMap(false);
    EXPECT_EQ(map.GetBrush(0), nullptr);
}

TEST(TerrainColorMap, ThreeThousandGenerationsLeaveNoHandle)
{
    TerrainColorMap map(true);
    Generate(map, 20);
    const int before = CountGdiObjects();
    for (int i = 0; i < 3000; ++i)
    {
        map.GenPens(i % 2 == 0);
        Generate(map, 20);
    }
    map.GenPens(true);
    Generate(map, 20);
    EXPECT_EQ(CountGdiObjects(), before);
    {
        TerrainColorMap copy(map);
        copy = map;
        EXPECT_EQ(CountGdiObjects(), before + 40);
    }
    EXPECT_EQ(CountGdiObjects(), before);
}
} // namespace
