#include "files/TerrainColorMap.h"

#include <algorithm>
#include <new>

namespace
{
constexpr int kPenWidth = 1;

COLORREF PaletteColor(DWORD color)
{
    return PALETTERGB(color >> 16 & 0xFF, color >> 8 & 0xFF, color & 0xFF);
}

void Make(CBrush& brush, DWORD color)
{
    brush.Attach(CreateSolidBrush(PaletteColor(color)));
}

void Make(CPen& pen, DWORD color)
{
    pen.Attach(CreatePen(PS_SOLID, kPenWidth, PaletteColor(color)));
}

/// The tool of a band, made again if it has gone.
template <class Tool>
Tool* ToolAt(Tool* tools, int count, int index, const ColorMap& colors)
{
    if (!tools || index < 0 || index >= count)
        return nullptr;
    Tool& tool = tools[index];
    if (!tool.GetSafeHandle() && index < colors.Count())
        Make(tool, colors.Color(index));
    return &tool;
}

template <class Height>
int UsableCount(int count, const Height* elevations)
{
    return elevations && count > 0 ? count : 0;
}
} // namespace

TerrainColorMap::TerrainColorMap(bool makePens) : m_makePens(makePens)
{
}

TerrainColorMap::TerrainColorMap(const TerrainColorMap& other) : TerrainColorMap(other.m_makePens)
{
    CopyTools(other);
}

TerrainColorMap& TerrainColorMap::operator=(const TerrainColorMap& other)
{
    if (this == &other)
        return *this;
    m_makePens = other.m_makePens;
    CopyTools(other);
    return *this;
}

TerrainColorMap::~TerrainColorMap() = default;

void TerrainColorMap::GenColorMap(int count, long* elevations)
{
    ColorMap::GenColorMap(count, elevations);
    MakeTools(UsableCount(count, elevations), m_makePens);
}

void TerrainColorMap::GenColorMap(int count, double* elevations)
{
    ColorMap::GenColorMap(count, elevations);
    MakeTools(UsableCount(count, elevations), m_makePens);
}

void TerrainColorMap::GenPens(bool makePens)
{
    m_makePens = makePens;
}

CBrush* TerrainColorMap::GetBrush(int index)
{
    return ToolAt(m_brushes.get(), m_count, index, *this);
}

CPen* TerrainColorMap::GetPen(int index)
{
    return ToolAt(m_pens.get(), m_count, index, *this);
}

void TerrainColorMap::CopyTools(const TerrainColorMap& other)
{
    try
    {
        ColorMap::operator=(other);
    }
    catch (const std::bad_alloc&)
    {
        DropTools();
        return;
    }
    MakeTools(other.m_count, other.m_pens != nullptr);
}

void TerrainColorMap::DropTools()
{
    m_pens.reset();
    m_brushes.reset();
    m_count = 0;
}

void TerrainColorMap::MakeTools(int count, bool withPens)
{
    DropTools();
    const auto size = static_cast<std::size_t>(count);
    if (count < 1)
        return;
    if (withPens)
        m_pens.reset(new (std::nothrow) CPen[size]);
    m_brushes.reset(new (std::nothrow) CBrush[size]);
    m_count = count;
    const int made = std::min(count, Count());
    for (int i = 0; i < made && m_brushes; ++i)
        GetBrush(i);
    for (int i = 0; i < made && m_pens; ++i)
        GetPen(i);
}
