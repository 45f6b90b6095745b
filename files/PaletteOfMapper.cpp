#include "files/PaletteOfMapper.h"

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

void PaletteOfMapper::Reduce(const unsigned char* colors, unsigned char* entries, int count)
{
    for (int i = 0; i < count; ++i, colors += 3)
        entries[i] = m_mapper.GetNearestPaletteIndex(colors[2], colors[1], colors[0]);
}
} // namespace vorn
