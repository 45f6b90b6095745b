#include "files/PaletteMapper.h"
#include "files/core/PaletteCells.h"

#include <new>

namespace
{
std::unique_ptr<vorn::PaletteCells> NewCells(int n) noexcept
try
{
    return std::make_unique<vorn::PaletteCells>(n);
}
catch (const std::bad_alloc&)
{
    return nullptr;
}

// The system's answer for what is no palette ends in 255, too.
BYTE NearestOf(HPALETTE palette, BYTE red, BYTE green, BYTE blue)
{
    return static_cast<BYTE>(::GetNearestPaletteIndex(palette, RGB(red, green, blue)));
}
} // namespace

PaletteMapper::PaletteMapper(HPALETTE palette, int n) : m_cells(NewCells(n)), m_palette(palette)
{
}

PaletteMapper::~PaletteMapper() = default;

unsigned char PaletteMapper::GetNearestPaletteIndex(unsigned char r, unsigned char g, unsigned char b)
{
    if (!m_cells)
        return NearestOf(m_palette, r, g, b);
    return m_cells->IndexOf(r, g, b,
                            [this](BYTE red, BYTE green, BYTE blue)
                            {
                                return NearestOf(m_palette, red, green, blue);
                            });
}

void PaletteMapper::Reset(HPALETTE palette)
{
    m_palette = palette;
    if (m_cells)
        m_cells->Reset();
}

HPALETTE PaletteMapper::Palette() const
{
    return m_palette;
}
