#pragma once

/// @file
/// Colours replaced by the entries of a palette.
#include "files/core/ImageFormat.h"

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

    /// The entry of each of the `count` pixels of blue, green, red.
    virtual void Reduce(const unsigned char* colors, unsigned char* entries, int count) = 0;
};

/// A reducer over nearest(red, green, blue), which gives the number of an entry. The function is inlined where its body
/// is in sight: there one look-up a pixel is all that it costs.
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

    void Reduce(const unsigned char* colors, unsigned char* entries, int count) override
    {
        for (int i = 0; i < count; ++i, colors += 3)
            entries[i] = m_nearest(colors[2], colors[1], colors[0]);
    }

private:
    std::span<const RGBQUAD> m_table;
    Nearest m_nearest;
};
} // namespace vorn
