#include "files/core/PcxFile.h"
#include "files/core/PcxRuns.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <utility>

namespace vorn
{
namespace
{
constexpr std::size_t kHeaderSize = 128;
constexpr unsigned char kManufacturer = 10;
constexpr std::size_t kHeaderPalette = 16;
constexpr std::size_t kHeaderColors = 16;
constexpr unsigned char kPaletteMark = 12;
constexpr std::size_t kFileColors = 256;
constexpr std::size_t kMarkFromEnd = kFileColors * 3 + 1;

int WordAt(std::span<const unsigned char> file, std::size_t at)
{
    return file[at] | file[at + 1] << 8;
}

/// What the file's header says.
struct PcxHeader
{
    int planes = 0;
    int depth = 0;
    int width = 0;
    int height = 0;
    int bytesPerLine = 0; ///< Of one plane.

    std::int64_t FileStride() const
    {
        return std::int64_t{bytesPerLine} * planes;
    }
};

bool IsSupported(int bits, int planes)
{
    return (planes == 1 && (bits == 1 || bits == 4 || bits == 8)) || (planes == 4 && bits == 1);
}

/// A header of depth 0 for a file that cannot be read.
PcxHeader ReadHeader(std::span<const unsigned char> file)
{
    PcxHeader header;
    if (file.size() < kHeaderSize || file[0] != kManufacturer || !IsSupported(file[3], file[65]))
        return header;
    header.planes = file[65];
    header.width = WordAt(file, 8) - WordAt(file, 4) + 1;
    header.height = WordAt(file, 10) - WordAt(file, 6) + 1;
    header.bytesPerLine = WordAt(file, 66);
    if (header.width >= 1 && header.height >= 1 && header.bytesPerLine >= 1)
        header.depth = file[3] * header.planes;
    return header;
}

/// Red, green and blue of each entry.
std::span<const unsigned char> PaletteOf(std::span<const unsigned char> file)
{
    const bool isMarked = file.size() >= kHeaderSize + kMarkFromEnd && file[file.size() - kMarkFromEnd] == kPaletteMark;
    return isMarked ? file.last(kFileColors * 3) : file.subspan(kHeaderPalette, kHeaderColors * 3);
}

BITMAPINFOHEADER BitmapHeader(const PcxHeader& pcx)
{
    BITMAPINFOHEADER header{};
    header.biSize = kBitmapHeaderSize;
    header.biWidth = pcx.width;
    header.biHeight = pcx.height;
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(pcx.depth);
    header.biSizeImage = static_cast<DWORD>(std::int64_t{pcx.width / PixelsPerByte(pcx.depth)} * pcx.height);
    return header;
}

void PutTable(unsigned char* table, std::span<const unsigned char> palette)
{
    for (std::size_t i = 0; i + 2 < palette.size(); i += 3, table += 4)
    {
        table[0] = palette[i + 2];
        table[1] = palette[i + 1];
        table[2] = palette[i];
    }
}

/// Zeroed rows behind the header and the palette's entries; empty when that is too much.
PackedImage EmptyImage(const PcxHeader& pcx, std::span<const unsigned char> palette)
{
    const std::int64_t rowSize = std::max(pcx.FileStride(), BytesPerScan(pcx.width, pcx.depth));
    if (rowSize * pcx.height > kMaxDecodedBytes)
        return {};
    const std::size_t bitsOffset = kBitmapHeaderSize + palette.size() / 3 * 4;
    ImageBlock block(bitsOffset + static_cast<std::size_t>(rowSize * pcx.height));
    if (block.Bytes().empty())
        return {};
    const BITMAPINFOHEADER header = BitmapHeader(pcx);
    std::memcpy(block.Bytes().data(), &header, sizeof header);
    PutTable(block.Bytes().data() + kBitmapHeaderSize, palette);
    return PackedImage(std::move(block), bitsOffset);
}

/// Each bit of a plane's byte at the lowest bit of a four-bit pixel, the top bit in the first byte's high half.
constexpr std::array<DWORD, 256> SpreadBits()
{
    std::array<DWORD, 256> spread{};
    for (unsigned byte = 0; byte < 256; ++byte)
        for (unsigned pixel = 0; pixel < 8; ++pixel)
            spread[byte] |= (byte >> (7 - pixel) & 1U) << (pixel / 2 * 8 + (pixel % 2 == 0 ? 4 : 0));
    return spread;
}

void MergePlanes(const unsigned char* planes, std::size_t bytes, unsigned char* row)
{
    static constexpr std::array<DWORD, 256> kSpread = SpreadBits();
    for (std::size_t i = 0; i < bytes; ++i)
    {
        const DWORD pixels = kSpread[planes[i]] | kSpread[planes[bytes + i]] << 1 |
                             kSpread[planes[2 * bytes + i]] << 2 | kSpread[planes[3 * bytes + i]] << 3;
        std::memcpy(row + i * 4, &pixels, sizeof pixels);
    }
}

/// The file's first line is the top one and goes to the last row.
void ReadRows(const PcxHeader& pcx, PcxRuns runs, unsigned char* rows)
{
    const auto bytes = static_cast<std::size_t>(pcx.bytesPerLine);
    const auto stride = static_cast<std::size_t>(pcx.FileStride());
    std::unique_ptr<unsigned char[]> planes;
    if (pcx.planes == 4)
        planes = std::make_unique<unsigned char[]>(stride);
    for (std::size_t row = static_cast<std::size_t>(pcx.height); row-- > 0 && !runs.IsOver();)
    {
        unsigned char* to = rows + row * stride;
        runs.Fill({planes ? planes.get() : to, stride});
        if (planes)
            MergePlanes(planes.get(), bytes, to);
    }
}
} // namespace

PackedImage DecodePcx(std::span<const unsigned char> file)
{
    const PcxHeader header = ReadHeader(file);
    if (header.depth == 0)
        return {};
    PackedImage image = EmptyImage(header, PaletteOf(file));
    if (!image.IsEmpty())
        ReadRows(header, PcxRuns(file.subspan(kHeaderSize)), image.Block().data() + image.BitsOffset());
    return image;
}
} // namespace vorn
