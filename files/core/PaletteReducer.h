#pragma once

/// @file
/// Colours replaced by the entries of a palette.
#include "files/core/ImageFormat.h"
#include "files/core/PaletteCells.h"

#include <utility>

namespace vorn
{
/// A palette and the search for the entry that stands for a colour, a row at a time.
class PaletteReducer
{
public:
    virtual ~PaletteReducer() = default;

    /// The colours of the entries, at most 256, alive as long as the reducer.
    virtual std::span<const RGBQUAD> Table() const = 0;

    /// The entry of each of the `count` pixels: blue, green, red and a byte without a meaning.
    virtual void Reduce(const unsigned char* pixels, unsigned char* entries, int count) = 0;
};

/// A reducer over cells that remember what nearest(red, green, blue) has answered: a look-up a pixel, several at a
/// time.
template <class Nearest>
class CellReducer final : public PaletteReducer
{
public:
    /// The cells must outlive it.
    CellReducer(std::span<const RGBQUAD> table, PaletteCells& cells, Nearest nearest)
        : m_table(table), m_cells(cells), m_nearest(std::move(nearest))
    {
    }

    std::span<const RGBQUAD> Table() const override
    {
        return m_table;
    }

    void Reduce(const unsigned char* pixels, unsigned char* entries, int count) override
    {
        m_cells.IndicesOf(pixels, entries, count, m_nearest);
    }

private:
    std::span<const RGBQUAD> m_table;
    PaletteCells& m_cells;
    Nearest m_nearest;
};

/// A reducer over nearest(red, green, blue), which gives the number of an entry. The function is asked for
/// every pixel.
template <class Nearest>
class NearestReducer final : public PaletteReducer
{
public:
    NearestReducer(std::span<const RGBQUAD> table, Nearest nearest) : m_table(table), m_nearest(std::move(nearest))
    {
    }

    std::span<const RGBQUAD> Table() const override
    {
        return m_table;
    }

    void Reduce(const unsigned char* pixels, unsigned char* entries, int count) override
    {
        for (int i = 0; i < count; ++i, pixels += 4)
            entries[i] = m_nearest(pixels[2], pixels[1], pixels[0]);
    }

private:
    std::span<const RGBQUAD> m_table;
    Nearest m_nearest;
};
} // namespace vorn
