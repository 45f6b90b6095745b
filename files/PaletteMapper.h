#pragma once

#include "frame/core/Export.h"
#include "framework/core/BaseTypes.h"

#include <memory>

namespace vorn
{
class PaletteCells;
class PaletteOfMapper;
} // namespace vorn

/// Finds the entries of a palette that are nearest to colours, and remembers the answers in a cube of coarse cells.
///
/// The first colour that falls into a cell decides for all later ones of that cell. Index 255 is not remembered:
/// colours whose nearest entry it is are asked for every time. Used from one thread.
class VORNCOMMON_API PaletteMapper
{
public:
    /// The palette stays the caller's and must outlive its use here. `n` is the number of cells along each channel, a
    /// divisor of 256 such as 8, 16, 32 or 64; below 1 and above 256 it is clamped, and where it does not divide 256
    /// the last cell is the widest. The cube has n x n x n bytes; without memory for it every colour is asked for.
    PaletteMapper(HPALETTE palette, int n);
    ~PaletteMapper();
    PaletteMapper(const PaletteMapper&) = delete;
    PaletteMapper& operator=(const PaletteMapper&) = delete;

    /// What the colour's cell holds, else the system's nearest entry; 255 for what is no palette.
    unsigned char GetNearestPaletteIndex(unsigned char r, unsigned char g, unsigned char b);

    /// Takes a palette, be it the same one, and forgets all answers.
    void Reset(HPALETTE palette);

    HPALETTE Palette() const;

private:
    friend class vorn::PaletteOfMapper;
    std::unique_ptr<vorn::PaletteCells> m_cells;
    HPALETTE m_palette;
};
