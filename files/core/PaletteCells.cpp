#include "files/core/PaletteCells.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace vorn
{

namespace
{

constexpr int kPart = 128;

int BitsOf(int resolution)
{
    const auto side = static_cast<unsigned>(resolution);
    return std::has_single_bit(side) ? std::countr_zero(side) : -1;
}

// Plain loops without a branch, which compilers turn into several pixels at a time.
void NumberCells(const BYTE* pixels, std::uint32_t* cells, int count, int bits)
{
    const int drop = 8 - bits;
    const std::uint32_t most = (1U << bits) - 1;
    for (int i = 0; i < count; ++i)
    {
        std::uint32_t pixel = 0;
        std::memcpy(&pixel, pixels + i * 4, sizeof pixel);
        cells[i] =
            (pixel >> (16 + drop) & most) << 2 * bits | (pixel >> (8 + drop) & most) << bits | (pixel >> drop & most);
    }
}

/// Bytes of 255 among four have their top bit set.
std::uint32_t Unknown(std::uint32_t four)
{
    return ((four & 0x7F7F7F7FU) + 0x01010101U) & four & 0x80808080U;
}

/// False when some are unknown.
bool TakeCells(const BYTE* held, const std::uint32_t* cells, BYTE* indices, int count)
{
    std::uint32_t unknown = 0;
    int i = 0;
    for (; i + 4 <= count; i += 4)
    {
        const std::uint32_t four = held[cells[i]] | std::uint32_t{held[cells[i + 1]]} << 8 |
                                   std::uint32_t{held[cells[i + 2]]} << 16 | std::uint32_t{held[cells[i + 3]]} << 24;
        unknown |= Unknown(four);
        std::memcpy(indices + i, &four, sizeof four);
    }
    for (; i < count; ++i)
    {
        indices[i] = held[cells[i]];
        unknown |= Unknown(indices[i]);
    }
    return unknown == 0;
}

} // namespace

PaletteCells::PaletteCells(int resolution) : m_resolution(std::clamp(resolution, 1, 256)), m_bits(BitsOf(m_resolution))
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

bool PaletteCells::LookUp(const BYTE* pixels, BYTE* indices, int count) const
{
    bool isKnown = true;
    for (int at = 0; at < count; at += kPart)
        isKnown &= LookUpPart(pixels + at * 4, indices + at, std::min(kPart, count - at));
    return isKnown;
}

bool PaletteCells::LookUpPart(const BYTE* pixels, BYTE* indices, int count) const
{
    std::array<std::uint32_t, kPart> cells;
    if (m_bits >= 0)
        NumberCells(pixels, cells.data(), count, m_bits);
    else
        for (int i = 0; i < count; ++i)
            cells[static_cast<std::size_t>(i)] =
                static_cast<std::uint32_t>(CellOf(pixels[i * 4 + 2], pixels[i * 4 + 1], pixels[i * 4]));
    return TakeCells(m_cells.data(), cells.data(), indices, count);
}

void PaletteCells::Reset()
{
    std::fill(m_cells.begin(), m_cells.end(), kUnknown);
}

} // namespace vorn
