#pragma once

#include "framework/core/BaseTypes.h"

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace vorn
{

/// Answers of a slow search for the nearest palette entry, kept in a cube of cells: the first colour that falls into a
/// cell decides for all later ones of that cell. An answer of 255 is not kept: colours that have it are searched anew.
class PaletteCells
{
public:
    /// `resolution` is the number of cells along each channel, 1 to 256; others are clamped. A cell spans 256 /
    /// resolution values, a whole number; where it does not divide 256 the last cell takes the rest. The cube has
    /// resolution to the third bytes.
    explicit PaletteCells(int resolution);

    int Resolution() const
    {
        return m_resolution;
    }

    /// Forgets every answer.
    void Reset();

    /// The cell of a colour, counted from 0, red outermost.
    std::size_t CellOf(BYTE red, BYTE green, BYTE blue) const
    {
        return std::size_t{m_red[red]} + m_green[green] + m_blue[blue];
    }

    /// The palette index for a colour: what its cell holds, else what nearest(red, green, blue) answers.
    template <typename Nearest>
    BYTE IndexOf(BYTE red, BYTE green, BYTE blue, Nearest&& nearest)
    {
        BYTE& cell = m_cells[CellOf(red, green, blue)];
        if (cell == kUnknown)
        {
            cell = std::forward<Nearest>(nearest)(red, green, blue);
        }
        return cell;
    }

    /// The indices of a row of pixels: blue, green, red and a byte without a meaning.
    template <typename Nearest>
    void IndicesOf(const BYTE* pixels, BYTE* indices, int count, Nearest&& nearest)
    {
        if (LookUp(pixels, indices, count))
            return;
        for (int i = 0; i < count; ++i, pixels += 4)
            if (indices[i] == kUnknown)
                indices[i] = IndexOf(pixels[2], pixels[1], pixels[0], nearest);
    }

private:
    static constexpr BYTE kUnknown = 255;

    /// What the cells hold; false when some are unknown.
    bool LookUp(const BYTE* pixels, BYTE* indices, int count) const;

    /// What each value of a channel adds to the cell's number.
    using Share = std::array<std::uint32_t, 256>;

    int m_resolution;
    int m_bits; ///< Of a channel in a cell's number; -1 for resolutions that are no power of 2.
    Share m_red;
    Share m_green;
    Share m_blue;
    std::vector<BYTE> m_cells;
};

} // namespace vorn
