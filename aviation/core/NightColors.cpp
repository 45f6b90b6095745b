#include "aviation/core/NightColors.h"

#include <cmath>

namespace vorn
{

namespace
{

BYTE LowByteOfLarge(double value)
{
    constexpr double kLimit = 9223372036854775808.0; // 2^63: from there on whole numbers are multiples of 2048
    return std::abs(value) < kLimit ? static_cast<BYTE>(static_cast<long long>(value) & 0xFF) : BYTE{0};
}

} // namespace

BYTE LowByteOf(double value)
{
    constexpr double kLimit = 2147483648.0; // 2^31: up to there the conversion is one instruction on 32 bits
    return std::abs(value) < kLimit ? static_cast<BYTE>(static_cast<int>(value) & 0xFF) : LowByteOfLarge(value);
}

COLORREF Dimmed(COLORREF color, const NightScales& scales)
{
    BYTE red = RedOf(color);
    BYTE green = GreenOf(color);
    BYTE blue = BlueOf(color);
    Dim(red, green, blue, scales);
    return PaletteColor(red, green, blue);
}

void Dim(BYTE& red, BYTE& green, BYTE& blue, const NightScales& scales)
{
    red = LowByteOf(red * scales.red);
    green = LowByteOf(green * scales.green);
    blue = LowByteOf(blue * scales.blue);
}

COLORREF Undimmed(COLORREF color, const NightScales& scales)
{
    return PaletteColor(LowByteOf(RedOf(color) / scales.red), LowByteOf(GreenOf(color) / scales.green),
                        LowByteOf(BlueOf(color) / scales.blue));
}

NightTables::NightTables(const NightScales& scales)
{
    for (std::size_t i = 0; i < 256; ++i)
    {
        const auto value = static_cast<BYTE>(i);
        const COLORREF grey = PaletteColor(value, value, value);
        Enter(m_dimmed, i, vorn::Dimmed(grey, scales));
        Enter(m_undimmed, i, vorn::Undimmed(grey, scales));
    }
}

void NightTables::Enter(Tables& tables, std::size_t value, COLORREF made)
{
    tables.red[value] = made & 0x000000FF;
    tables.green[value] = made & 0x0000FF00;
    tables.blue[value] = made & 0x00FF0000;
}

} // namespace vorn
