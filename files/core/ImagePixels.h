#pragma once

/// @file
/// Single pixels. (0, 0) is the top left one whatever the row order.
#include "files/core/ImageView.h"

#include <optional>

namespace vorn
{
/// A colour as it comes from outside: any numbers.
struct WantedColor
{
    int red;
    int green;
    int blue;
};

/// The colour; none when a number is not from 0 to 255: no pixel is so.
std::optional<Rgb> ColorIn(const WantedColor& wanted);

/// The table index up to 8 bits, the word for 16, else 0x00BBGGRR. 0 outside.
DWORD PixelAt(const ImageView& image, int x, int y);

/// Changes nothing outside. An index is cut to the depth; what belongs to no colour (the fourth byte of 32 bits, bits
/// outside the masks) stays.
void SetPixelAt(const ImageCanvas& image, int x, int y, DWORD value);

/// Black outside, and for indices that the table does not have.
Rgb ColorAt(const ImageView& image, int x, int y);

/// The pixel as stored: an index, a word, or a little-endian number of 3 or 4 bytes.
DWORD StoredPixel(const unsigned char* row, int x, int depth);
void StorePixel(unsigned char* row, int x, int depth, DWORD value);

/// What a stored pixel shows.
Rgb ColorOfStored(const ImageFormat& format, DWORD stored);

/// How a colour is stored in an image of at least 16 bits: `old` with its colour replaced.
DWORD StoredOfColor(const ImageFormat& format, Rgb color, DWORD old);

/// The entry of the least squared distance, the first of several; 0 for an empty table.
int NearestEntry(std::span<const RGBQUAD> table, Rgb color);
} // namespace vorn
