#pragma once

/// @file
/// What a device-independent bitmap's header means for its table and its rows.
#include "framework/core/BaseTypes.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace vorn
{
/// The table begins behind a header of this size, whatever size the header states.
inline constexpr int kBitmapHeaderSize = 40;
/// The largest picture that is decoded from a file.
inline constexpr std::int64_t kMaxDecodedBytes = std::int64_t{512} << 20;

/// A colour of 8 bits a channel.
struct Rgb
{
    BYTE red = 0;
    BYTE green = 0;
    BYTE blue = 0;

    bool operator==(const Rgb&) const = default;
};

/// Where the channels stand in a pixel of 16 or 32 bits.
struct ColorMasks
{
    DWORD red = 0;
    DWORD green = 0;
    DWORD blue = 0;
};

/// Size, order and meaning of a bitmap's pixels.
struct ImageFormat
{
    int width = 0;
    int height = 0; ///< Rows, never negative.
    int depth = 0;  ///< Bits a pixel: 1, 4, 8, 16, 24 or 32.
    int stride = 0; ///< Bytes from row to row, a multiple of 4.
    bool isTopDown = false;
    bool hasRows = false;           ///< False for compressed pixels, which nothing here looks at.
    bool isMasked = false;          ///< False for masks of 32 bits that say what is so without them.
    ColorMasks masks;               ///< Of 16 bits always, of 32 bits when `isMasked`.
    std::span<const RGBQUAD> table; ///< Up to 8 bits a pixel; indices beyond it are black.
};

bool IsSupportedDepth(int depth);

/// Bytes of a row: whole bytes first, then a multiple of 4. Width from 0.
std::int64_t BytesPerScan(int width, int depth);

/// 8 divided by the depth: 0 from 16 bits on.
int PixelsPerByte(int depth);

/// None for 24 and 32 bits, else the used-colours count or, when that is 0, 2^depth: even for 16 bits.
std::int64_t TableEntries(const BITMAPINFOHEADER& header);

/// Entries of 4 bytes, or of 2 for palette indices (DIB_PAL_COLORS).
std::int64_t TableBytes(const BITMAPINFOHEADER& header, int usage);

/// Rows from the sign-carrying height; 0 for the one number that has no positive form.
int RowsOf(const BITMAPINFOHEADER& header);

/// The header at the start of a block of at least kBitmapHeaderSize bytes.
BITMAPINFOHEADER HeaderOf(std::span<const unsigned char> block);

/// What the block's header says. The colour table is the part of it that lies before `tableEnd`, a position in the
/// block; entries of palette indices have no colours here, so the table is empty then.
ImageFormat FormatOf(std::span<const unsigned char> block, std::size_t tableEnd, int usage);
} // namespace vorn
