#include "files/core/PackedImage.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace vorn
{
namespace
{
constexpr std::int64_t kMaxPixelBytes = std::int64_t{1} << 30;

BITMAPINFOHEADER NewHeader(int width, int height, int depth)
{
    BITMAPINFOHEADER header{};
    header.biSize = kBitmapHeaderSize;
    header.biWidth = width;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(depth);
    return header;
}

void CountUp(unsigned char* indices, std::int64_t entries)
{
    for (std::int64_t i = 0; i < entries; ++i)
    {
        const auto index = static_cast<WORD>(i);
        std::memcpy(indices + i * 2, &index, sizeof index);
    }
}

bool CanBeMade(int width, int height, int depth)
{
    return width >= 1 && IsSupportedDepth(depth) && height != std::numeric_limits<int>::min();
}
} // namespace

ImageBlock::ImageBlock(std::size_t size, std::size_t slack)
    : m_bytes(static_cast<unsigned char*>(std::calloc(size + slack, 1))), m_size(m_bytes ? size : 0)
{
}

PackedImage::PackedImage(ImageBlock block, std::size_t bitsOffset, int usage)
    : m_block(std::move(block)), m_bitsOffset(bitsOffset), m_usage(usage)
{
}

PackedImage PackedImage::Make(int width, int height, int depth, int usage, std::size_t slack)
{
    if (!CanBeMade(width, height, depth))
        return {};
    const BITMAPINFOHEADER header = NewHeader(width, height, depth);
    const std::int64_t stride = BytesPerScan(width, depth);
    const int rows = RowsOf(header);
    if (rows != 0 && stride > kMaxPixelBytes / rows)
        return {};
    const std::int64_t bitsOffset = kBitmapHeaderSize + TableBytes(header, usage);
    ImageBlock block(static_cast<std::size_t>(bitsOffset + stride * rows), slack);
    if (block.Bytes().empty())
        return {};
    std::memcpy(block.Bytes().data(), &header, sizeof header);
    if (usage == DIB_PAL_COLORS)
        CountUp(block.Bytes().data() + kBitmapHeaderSize, TableEntries(header));
    return PackedImage(std::move(block), static_cast<std::size_t>(bitsOffset), usage);
}

ImageFormat PackedImage::Format() const
{
    return IsEmpty() ? ImageFormat{} : FormatOf(m_block.Bytes(), m_bitsOffset, m_usage);
}

ImageView PackedImage::View() const
{
    return {Format(), m_block.Bytes().data() + m_bitsOffset};
}

ImageCanvas PackedImage::Canvas()
{
    return {Format(), m_block.Bytes().data() + m_bitsOffset};
}

Rgb PackedImage::TableColor(int index) const
{
    const auto table = Format().table;
    if (index < 0 || static_cast<std::size_t>(index) >= table.size())
        return {};
    const RGBQUAD& entry = table[static_cast<std::size_t>(index)];
    return {entry.rgbRed, entry.rgbGreen, entry.rgbBlue};
}

void PackedImage::SetTableColor(int index, Rgb color)
{
    if (index < 0 || static_cast<std::size_t>(index) >= Format().table.size())
        return;
    const RGBQUAD entry{color.blue, color.green, color.red, 0};
    std::memcpy(m_block.Bytes().data() + kBitmapHeaderSize + index * 4, &entry, sizeof entry);
}

PackedImage PackedImage::Clone() const
{
    ImageBlock block(m_block.Bytes().size());
    if (block.Bytes().empty())
        return {};
    std::ranges::copy(m_block.Bytes(), block.Bytes().begin());
    return PackedImage(std::move(block), m_bitsOffset, m_usage);
}
} // namespace vorn
