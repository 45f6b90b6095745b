#pragma once

#include "framework/core/BaseTypes.h"

#include <array>

/// @file
/// Colours for the eye that is used to the dark: each component by a scale of its own.

namespace vorn
{

/// The byte above blue, green and red that makes a colour relative to the palette in force.
inline constexpr COLORREF kPaletteFlag = 0x02000000;

/// A palette-relative colour of the three components' low bytes.
constexpr COLORREF PaletteColor(int red, int green, int blue)
{
    return kPaletteFlag | (static_cast<COLORREF>(blue & 0xFF) << 16) | (static_cast<COLORREF>(green & 0xFF) << 8) |
           static_cast<COLORREF>(red & 0xFF);
}

constexpr BYTE RedOf(COLORREF color)
{
    return static_cast<BYTE>(color & 0xFF);
}
constexpr BYTE GreenOf(COLORREF color)
{
    return static_cast<BYTE>(color >> 8 & 0xFF);
}
constexpr BYTE BlueOf(COLORREF color)
{
    return static_cast<BYTE>(color >> 16 & 0xFF);
}

struct NightScales
{
    double red;
    double green;
    double blue;
};

/// The low byte of the whole part of `value`; 0 for what is no number or infinite.
BYTE LowByteOf(double value);

/// Each component times its scale, cut and masked to its low byte (200 * 2 gives 144); palette-relative whatever the
/// top byte was.
COLORREF Dimmed(COLORREF color, const NightScales& scales);
/// The same in place.
void Dim(BYTE& red, BYTE& green, BYTE& blue, const NightScales& scales);
/// Each component divided by its scale, cut and masked likewise (255 / 0.4 gives 125); 0 where the scale is 0.
COLORREF Undimmed(COLORREF color, const NightScales& scales);

/// What the scales make of each of a component's 256 values: the three above for the time of a look-up.
class NightTables
{
public:
    /// Everything black.
    NightTables() = default;
    explicit NightTables(const NightScales& scales);

    COLORREF Dimmed(COLORREF color) const
    {
        return Looked(m_dimmed, color);
    }
    void Dim(BYTE& red, BYTE& green, BYTE& blue) const
    {
        red = RedOf(m_dimmed.red[red]);
        green = GreenOf(m_dimmed.green[green]);
        blue = BlueOf(m_dimmed.blue[blue]);
    }
    COLORREF Undimmed(COLORREF color) const
    {
        return Looked(m_undimmed, color);
    }

private:
    /// What each value of a component adds to the colour, in the component's place.
    using Parts = std::array<COLORREF, 256>;
    struct Tables
    {
        Parts red{};
        Parts green{};
        Parts blue{};
    };

    static void Enter(Tables& tables, std::size_t value, COLORREF made);
    static COLORREF Looked(const Tables& tables, COLORREF color)
    {
        return kPaletteFlag | tables.red[RedOf(color)] | tables.green[GreenOf(color)] | tables.blue[BlueOf(color)];
    }

    Tables m_dimmed;
    Tables m_undimmed;
};

} // namespace vorn
