#include "files/core/BmpFile.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace vorn
{
namespace
{
constexpr std::size_t kSizeOffset = 2;
constexpr std::size_t kBitsOffset = 10;
constexpr int kWritableDepth = 24;
constexpr int kMasksSize = 12;

DWORD DwordAt(const unsigned char* bytes)
{
    DWORD value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

bool IsReadable(const BITMAPINFOHEADER& header)
{
    return header.biSize >= kBitmapHeaderSize && header.biWidth >= 1 && RowsOf(header) >= 1 &&
           IsSupportedDepth(header.biBitCount) &&
           BytesPerScan(static_cast<int>(header.biWidth), header.biBitCount) <= std::numeric_limits<int>::max();
}

// 32 bits have no table, but maybe masks in its place.
std::uint64_t BehindTable(const BITMAPINFOHEADER& header)
{
    const bool hasMasks = header.biBitCount == 32 && header.biCompression == BI_BITFIELDS;
    const std::int64_t between = hasMasks ? kMasksSize : TableBytes(header, DIB_RGB_COLORS);
    return static_cast<std::uint64_t>(kBitmapHeaderSize + between);
}

// Compressed pixels have a size of their own.
bool AreRowsInside(const BITMAPINFOHEADER& header, std::size_t bytes)
{
    if (header.biCompression != BI_RGB && header.biCompression != BI_BITFIELDS)
        return true;
    const std::int64_t stride = BytesPerScan(static_cast<int>(header.biWidth), header.biBitCount);
    return stride * RowsOf(header) <= static_cast<std::int64_t>(bytes);
}

void PutDword(unsigned char* bytes, std::size_t value)
{
    const auto number = static_cast<DWORD>(value);
    std::memcpy(bytes, &number, sizeof number);
}
} // namespace

std::optional<BmpFileFacts> ReadBmpFileHeader(std::span<const unsigned char> header, std::uint64_t fileSize)
{
    if (header.size() < kBmpFileHeaderSize || header[0] != 'B' || header[1] != 'M')
        return std::nullopt;
    const std::size_t size = DwordAt(header.data() + kSizeOffset);
    const std::size_t bits = DwordAt(header.data() + kBitsOffset);
    if (size < kBmpHeadSize || size > fileSize || (bits != 0 && (bits < kBmpHeadSize || bits > size)))
        return std::nullopt;
    return BmpFileFacts{size - kBmpFileHeaderSize, bits == 0 ? 0 : bits - kBmpFileHeaderSize};
}

PackedImage ImageOfBmpBlock(ImageBlock block, std::size_t bitsOffset)
{
    const std::span<const unsigned char> bytes = block.Bytes();
    if (bytes.size() < kBitmapHeaderSize)
        return {};
    const BITMAPINFOHEADER header = HeaderOf(bytes);
    if (!IsReadable(header))
        return {};
    const std::uint64_t bits = bitsOffset == 0 ? BehindTable(header) : bitsOffset;
    if (bits > bytes.size() || !AreRowsInside(header, bytes.size() - static_cast<std::size_t>(bits)))
        return {};
    return PackedImage(std::move(block), static_cast<std::size_t>(bits));
}

PackedImage DecodeBmp(std::span<const unsigned char> file)
{
    const auto facts = ReadBmpFileHeader(file, file.size());
    if (!facts)
        return {};
    ImageBlock block(facts->blockSize);
    if (block.Bytes().empty())
        return {};
    std::ranges::copy(file.subspan(kBmpFileHeaderSize, facts->blockSize), block.Bytes().begin());
    return ImageOfBmpBlock(std::move(block), facts->bitsOffset);
}

std::array<unsigned char, kBmpHeadSize> BmpHead(const BITMAPINFOHEADER& header)
{
    BITMAPINFOHEADER written = header;
    written.biSize = kBitmapHeaderSize;
    written.biPlanes = 1;
    written.biCompression = BI_RGB;
    written.biClrUsed = 0;
    const std::int64_t stride = BytesPerScan(static_cast<int>(header.biWidth), header.biBitCount);
    std::array<unsigned char, kBmpHeadSize> head{'B', 'M'};
    PutDword(head.data() + kSizeOffset, static_cast<std::size_t>(stride * RowsOf(header)) + kBmpHeadSize);
    PutDword(head.data() + kBitsOffset, kBmpHeadSize);
    std::memcpy(head.data() + kBmpFileHeaderSize, &written, sizeof written);
    return head;
}

bool CanWriteBmp(const ImageView& view)
{
    return view.depth == kWritableDepth && view.hasRows;
}

std::vector<unsigned char> EncodeBmp(const PackedImage& image)
{
    const ImageView view = image.View();
    if (!CanWriteBmp(view))
        return {};
    const auto head = BmpHead(image.Header());
    std::vector<unsigned char> file(head.begin(), head.end());
    file.insert(file.end(), view.bits, view.bits + static_cast<std::ptrdiff_t>(view.stride) * view.height);
    return file;
}
} // namespace vorn
