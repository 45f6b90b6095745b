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
    if (width < 1 || !IsSupportedDepth(depth) || height == std::numeric_limits<int>::min())
        return false;
    const std::int64_t rows = std::abs(height);
    return rows == 0 || BytesPerScan(width, depth) <= kMaxPixelBytes / rows;
}

std::int64_t PixelBytes(int width, int height, int depth)
{
    return BytesPerScan(width, depth) * std::abs(height);
}

/// Header, `between` bytes, then as many as are asked for.
ImageBlock NewBlock(const BITMAPINFOHEADER& header, std::int64_t between, std::int64_t pixels, std::size_t slack = 0)
{
    ImageBlock block(static_cast<std::size_t>(kBitmapHeaderSize + between + pixels), slack);
    if (!block.Bytes().empty())
        std::memcpy(block.Bytes().data(), &header, sizeof header);
    return block;
}

ImageBlock NewBlockWithTable(const BITMAPINFOHEADER& header, int usage, std::int64_t pixels, std::size_t slack = 0)
{
    ImageBlock block = NewBlock(header, TableBytes(header, usage), pixels, slack);
    if (!block.Bytes().empty() && usage == DIB_PAL_COLORS)
        CountUp(block.Bytes().data() + kBitmapHeaderSize, TableEntries(header));
    return block;
}

std::size_t BehindTable(const BITMAPINFOHEADER& header, int usage)
{
    return static_cast<std::size_t>(kBitmapHeaderSize + TableBytes(header, usage));
}
} // namespace

ImageBlock::ImageBlock(std::size_t size, std::size_t slack)
    : m_bytes(static_cast<unsigned char*>(std::calloc(size + slack, 1))), m_size(m_bytes ? size : 0)
{
}

ImageBlock ImageBlock::Unfilled(std::size_t size)
{
    ImageBlock block;
    block.m_bytes.reset(static_cast<unsigned char*>(std::malloc(size)));
    block.m_size = block.m_bytes ? size : 0;
    return block;
}

unsigned char* ImageBlock::Release()
{
    m_size = 0;
    return m_bytes.release();
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
    return PackedImage(NewBlockWithTable(header, usage, PixelBytes(width, height, depth), slack),
                       BehindTable(header, usage), usage);
}

PackedImage PackedImage::MakeUnfilled(int width, int height, int depth)
{
    if (!CanBeMade(width, height, depth) || depth < 24)
        return {};
    const BITMAPINFOHEADER header = NewHeader(width, height, depth);
    ImageBlock block =
        ImageBlock::Unfilled(static_cast<std::size_t>(kBitmapHeaderSize + PixelBytes(width, height, depth)));
    if (!block.Bytes().empty())
        std::memcpy(block.Bytes().data(), &header, sizeof header);
    return PackedImage(std::move(block), kBitmapHeaderSize);
}

PackedImage PackedImage::MakeMasked(int width, int height, int depth, const ColorMasks& masks)
{
    if (!CanBeMade(width, height, depth) || (depth != 16 && depth != 32))
        return {};
    BITMAPINFOHEADER header = NewHeader(width, height, depth);
    header.biCompression = BI_BITFIELDS;
    ImageBlock block = NewBlock(header, sizeof masks, PixelBytes(width, height, depth));
    if (!block.Bytes().empty())
        std::memcpy(block.Bytes().data() + kBitmapHeaderSize, &masks, sizeof masks);
    return PackedImage(std::move(block), kBitmapHeaderSize + sizeof masks);
}

PackedImage PackedImage::MakeHead(int width, int height, int depth, int usage)
{
    if (!CanBeMade(width, height, depth))
        return {};
    const BITMAPINFOHEADER header = NewHeader(width, height, depth);
    return PackedImage(NewBlockWithTable(header, usage, 0), BehindTable(header, usage), usage);
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

ImageBlock PackedImage::TakeBlock()
{
    return std::exchange(m_block, ImageBlock());
}

bool IsAsMade(std::span<const unsigned char> block, std::size_t bitsOffset, int width, int height)
{
    if (block.size() < kBitmapHeaderSize || bitsOffset != kBitmapHeaderSize)
        return false;
    const BITMAPINFOHEADER header = NewHeader(width, height, HeaderOf(block).biBitCount);
    return std::memcmp(block.data(), &header, sizeof header) == 0;
}
} // namespace vorn
