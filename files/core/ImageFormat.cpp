#include "files/core/ImageFormat.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace vorn
{
namespace
{
constexpr ColorMasks kFiveBitsEach{0x7C00, 0x03E0, 0x001F};
constexpr std::size_t kMasksSize = 12;

DWORD DwordAt(const unsigned char* bytes)
{
    DWORD value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

ColorMasks MasksBehindHeader(std::span<const unsigned char> block)
{
    const unsigned char* masks = block.data() + kBitmapHeaderSize;
    return {DwordAt(masks), DwordAt(masks + 4), DwordAt(masks + 8)};
}

// A header may count more entries than a pixel can name: those make room, but no colours.
std::span<const RGBQUAD> ColorTable(std::span<const unsigned char> block, std::size_t end,
                                    const BITMAPINFOHEADER& header)
{
    const std::size_t room = std::min(end, block.size()) - kBitmapHeaderSize;
    const std::int64_t entries = std::min(TableEntries(header), std::int64_t{1} << header.biBitCount);
    const auto count = std::min<std::uint64_t>(static_cast<std::uint64_t>(entries), room / sizeof(RGBQUAD));
    return {reinterpret_cast<const RGBQUAD*>(block.data() + kBitmapHeaderSize), static_cast<std::size_t>(count)};
}

bool CanHaveMasks(int depth)
{
    return depth == 16 || depth == 32;
}

// Masks that say of 32 bits what they are without: the fourth byte is alpha then, as it is in others.
bool AreUsualBytes(const ColorMasks& masks)
{
    return masks.red == 0xFF0000 && masks.green == 0x00FF00 && masks.blue == 0x0000FF;
}

// 16 bits without masks of their own have five for each channel.
void SetMasks(ImageFormat& format, DWORD compression, std::span<const unsigned char> block)
{
    format.hasRows = compression == BI_RGB;
    if (format.depth == 16)
        format.masks = kFiveBitsEach;
    if (compression != BI_BITFIELDS || !CanHaveMasks(format.depth) || block.size() < kBitmapHeaderSize + kMasksSize)
        return;
    format.hasRows = true;
    format.masks = MasksBehindHeader(block);
    format.isMasked = format.depth == 16 || !AreUsualBytes(format.masks);
}
} // namespace

bool IsSupportedDepth(int depth)
{
    return depth == 1 || depth == 4 || depth == 8 || depth == 16 || depth == 24 || depth == 32;
}

std::int64_t BytesPerScan(int width, int depth)
{
    const std::int64_t bytes = (std::int64_t{depth} * width + 7) / 8;
    return (bytes + 3) / 4 * 4;
}

int PixelsPerByte(int depth)
{
    return depth == 0 ? 0 : 8 / depth;
}

std::int64_t TableEntries(const BITMAPINFOHEADER& header)
{
    if (header.biBitCount >= 24)
        return 0;
    return header.biClrUsed != 0 ? std::int64_t{header.biClrUsed} : std::int64_t{1} << header.biBitCount;
}

std::int64_t TableBytes(const BITMAPINFOHEADER& header, int usage)
{
    return TableEntries(header) * (usage == DIB_PAL_COLORS ? 2 : 4);
}

int RowsOf(const BITMAPINFOHEADER& header)
{
    if (header.biHeight == std::numeric_limits<LONG>::min())
        return 0;
    return static_cast<int>(header.biHeight < 0 ? -header.biHeight : header.biHeight);
}

BITMAPINFOHEADER HeaderOf(std::span<const unsigned char> block)
{
    BITMAPINFOHEADER header{};
    std::memcpy(&header, block.data(), sizeof header);
    return header;
}

ImageFormat FormatOf(std::span<const unsigned char> block, std::size_t tableEnd, int usage)
{
    const BITMAPINFOHEADER header = HeaderOf(block);
    ImageFormat format;
    format.width = static_cast<int>(header.biWidth);
    format.height = RowsOf(header);
    format.depth = header.biBitCount;
    format.stride = static_cast<int>(BytesPerScan(format.width, format.depth));
    format.isTopDown = header.biHeight < 0;
    SetMasks(format, header.biCompression, block);
    if (format.depth <= 8 && usage == DIB_RGB_COLORS)
        format.table = ColorTable(block, tableEnd, header);
    return format;
}
} // namespace vorn
