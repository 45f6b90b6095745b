#include "files/core/ImagePixels.h"

#include <bit>
#include <cstring>
#include <limits>

namespace vorn
{
namespace
{
constexpr ColorMasks kBytes{0xFF0000, 0x00FF00, 0x0000FF};

const ColorMasks& MasksOf(const ImageFormat& format)
{
    return format.depth == 16 || format.isMasked ? format.masks : kBytes;
}

// A channel of fewer than 8 bits repeats itself downwards, so that its largest value gives 255.
BYTE Channel(DWORD stored, DWORD mask)
{
    const auto bits = static_cast<int>(std::bit_width(mask >> std::countr_zero(mask | 0x80000000)));
    if (bits == 0)
        return 0;
    DWORD value = (stored & mask) >> std::countr_zero(mask);
    if (bits >= 8)
        return static_cast<BYTE>(value >> (bits - 8));
    value <<= 8 - bits;
    for (int have = bits; have < 8; have *= 2)
        value |= value >> have;
    return static_cast<BYTE>(value);
}

DWORD Placed(BYTE channel, DWORD mask)
{
    if (mask == 0)
        return 0;
    const int low = std::countr_zero(mask);
    const auto bits = static_cast<int>(std::bit_width(mask >> low));
    const DWORD value = bits >= 8 ? DWORD{channel} << (bits - 8) : DWORD{channel} >> (8 - bits);
    return value << low & mask;
}

bool IsByte(int value)
{
    return value >= 0 && value <= 255;
}

int Squared(int value)
{
    return value * value;
}

int Distance(const RGBQUAD& entry, Rgb color)
{
    return Squared(entry.rgbRed - color.red) + Squared(entry.rgbGreen - color.green) +
           Squared(entry.rgbBlue - color.blue);
}
} // namespace

std::optional<Rgb> ColorIn(const WantedColor& wanted)
{
    if (!IsByte(wanted.red) || !IsByte(wanted.green) || !IsByte(wanted.blue))
        return std::nullopt;
    return Rgb{static_cast<BYTE>(wanted.red), static_cast<BYTE>(wanted.green), static_cast<BYTE>(wanted.blue)};
}

DWORD StoredPixel(const unsigned char* row, int x, int depth)
{
    DWORD value = 0;
    switch (depth)
    {
    case 1:
        return row[x / 8] >> (7 - x % 8) & 1U;
    case 4:
        return row[x / 2] >> (x % 2 == 0 ? 4 : 0) & 0xFU;
    case 8:
        return row[x];
    default:
        const auto size = static_cast<std::size_t>(depth / 8);
        std::memcpy(&value, row + static_cast<std::size_t>(x) * size, size);
        return value;
    }
}

void StorePixel(unsigned char* row, int x, int depth, DWORD value)
{
    if (depth >= 8)
    {
        const auto size = static_cast<std::size_t>(depth / 8);
        std::memcpy(row + static_cast<std::size_t>(x) * size, &value, size);
        return;
    }
    const int perByte = 8 / depth;
    const int shift = 8 - depth * (x % perByte + 1);
    const DWORD mask = ((1U << depth) - 1) << shift;
    unsigned char& byte = row[x / perByte];
    byte = static_cast<unsigned char>((byte & ~mask) | (value << shift & mask));
}

Rgb ColorOfStored(const ImageFormat& format, DWORD stored)
{
    if (format.depth <= 8)
    {
        if (stored >= format.table.size())
            return {};
        const RGBQUAD& entry = format.table[stored];
        return {entry.rgbRed, entry.rgbGreen, entry.rgbBlue};
    }
    const ColorMasks& masks = MasksOf(format);
    return {Channel(stored, masks.red), Channel(stored, masks.green), Channel(stored, masks.blue)};
}

DWORD StoredOfColor(const ImageFormat& format, Rgb color, DWORD old)
{
    const ColorMasks& masks = MasksOf(format);
    return (old & ~(masks.red | masks.green | masks.blue)) | Placed(color.red, masks.red) |
           Placed(color.green, masks.green) | Placed(color.blue, masks.blue);
}

DWORD PixelAt(const ImageView& image, int x, int y)
{
    if (!image.Contains(x, y))
        return 0;
    const DWORD stored = StoredPixel(image.Row(y), x, image.depth);
    if (image.depth <= 16)
        return stored;
    const Rgb color = ColorOfStored(image, stored);
    return DWORD{color.red} | DWORD{color.green} << 8 | DWORD{color.blue} << 16;
}

void SetPixelAt(const ImageCanvas& image, int x, int y, DWORD value)
{
    if (!image.Contains(x, y))
        return;
    unsigned char* row = image.Row(y);
    if (image.depth > 16)
    {
        const Rgb color{static_cast<BYTE>(value), static_cast<BYTE>(value >> 8), static_cast<BYTE>(value >> 16)};
        value = StoredOfColor(image, color, StoredPixel(row, x, image.depth));
    }
    StorePixel(row, x, image.depth, value);
}

Rgb ColorAt(const ImageView& image, int x, int y)
{
    return image.Contains(x, y) ? ColorOfStored(image, StoredPixel(image.Row(y), x, image.depth)) : Rgb{};
}

int NearestEntry(std::span<const RGBQUAD> table, Rgb color)
{
    int nearest = 0;
    int least = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < table.size() && least > 0; ++i)
    {
        const int distance = Distance(table[i], color);
        if (distance < least)
        {
            least = distance;
            nearest = static_cast<int>(i);
        }
    }
    return nearest;
}
} // namespace vorn
