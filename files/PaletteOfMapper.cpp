#include "files/PaletteOfMapper.h"
#include "files/core/PaletteCells.h"

#include <algorithm>

namespace vorn
{
PaletteOfMapper::PaletteOfMapper(PaletteMapper& mapper) : m_mapper(mapper)
{
    std::array<PALETTEENTRY, 256> entries{};
    m_count = std::min<std::size_t>(
        GetPaletteEntries(mapper.Palette(), 0, static_cast<UINT>(entries.size()), entries.data()), entries.size());
    std::transform(entries.begin(), entries.begin() + static_cast<std::ptrdiff_t>(m_count), m_table.begin(),
                   [](const PALETTEENTRY& entry)
                   {
                       return RGBQUAD{entry.peBlue, entry.peGreen, entry.peRed, 0};
                   });
}

std::span<const RGBQUAD> PaletteOfMapper::Table() const
{
    return std::span(m_table).first(m_count);
}

void PaletteOfMapper::Reduce(const unsigned char* pixels, unsigned char* entries, int count)
{
    const auto nearest = [this](BYTE red, BYTE green, BYTE blue)
    {
        return static_cast<BYTE>(::GetNearestPaletteIndex(m_mapper.Palette(), RGB(red, green, blue)));
    };
    if (m_mapper.m_cells)
        m_mapper.m_cells->IndicesOf(pixels, entries, count, nearest);
    else
        for (int i = 0; i < count; ++i, pixels += 4)
            entries[i] = nearest(pixels[2], pixels[1], pixels[0]);
}
} // namespace vorn
