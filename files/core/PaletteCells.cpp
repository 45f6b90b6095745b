#include "files/core/PaletteCells.h"

#include <algorithm>

namespace vorn
{

PaletteCells::PaletteCells(int resolution) : m_resolution(std::clamp(resolution, 1, 256))
{
    const auto side = static_cast<std::uint32_t>(m_resolution);
    const std::uint32_t step = 256 / side;
    for (std::uint32_t value = 0; value < 256; ++value)
    {
        const std::uint32_t cell = std::min(value / step, side - 1);
        m_red[value] = cell * side * side;
        m_green[value] = cell * side;
        m_blue[value] = cell;
    }
    m_cells.assign(std::size_t{side} * side * side, kUnknown);
}

void PaletteCells::Reset()
{
    std::fill(m_cells.begin(), m_cells.end(), kUnknown);
}

} // namespace vorn
