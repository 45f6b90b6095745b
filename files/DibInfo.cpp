#include "files/DibInfo.h"

#include <algorithm>
#include <cstring>

namespace vorn
{
namespace
{
constexpr std::size_t kMasksSize = 12;

// From 16 bits on GDI takes a table for a hint, and needs none.
std::size_t TableSize(const BITMAPINFOHEADER& header, int usage)
{
    if (header.biBitCount > 8)
        return header.biCompression == BI_BITFIELDS ? kMasksSize : 0;
    const std::int64_t most = std::int64_t{1} << header.biBitCount;
    return static_cast<std::size_t>(std::min(TableEntries(header), most)) * (usage == DIB_PAL_COLORS ? 2 : 4);
}

// GDI draws no compressed pixels whose size is 0, which some programs write.
DWORD SizeOf(DWORD stated, DWORD most)
{
    return stated == 0 ? most : std::min(stated, most);
}
} // namespace

DibInfo::DibInfo(std::span<const unsigned char> block, std::size_t tableEnd, int usage, std::size_t pixelBytes)
{
    BITMAPINFOHEADER& header = m_info.header;
    header = HeaderOf(block);
    const std::size_t end = header.biCompression == BI_BITFIELDS ? block.size() : tableEnd;
    const std::size_t size = std::min(TableSize(header, usage), end - kBitmapHeaderSize);
    std::memcpy(m_info.table, block.data() + kBitmapHeaderSize, size);
    header.biSize = kBitmapHeaderSize;
    header.biPlanes = 1;
    header.biClrUsed = 0;
    header.biClrImportant = 0;
    const bool hasRows = header.biCompression == BI_RGB || header.biCompression == BI_BITFIELDS;
    header.biSizeImage = hasRows ? 0 : SizeOf(header.biSizeImage, static_cast<DWORD>(pixelBytes));
}

DibInfo::DibInfo(int width, int rows, int depth)
{
    m_info.header.biSize = kBitmapHeaderSize;
    m_info.header.biWidth = width;
    m_info.header.biHeight = rows;
    m_info.header.biPlanes = 1;
    m_info.header.biBitCount = static_cast<WORD>(depth);
}
} // namespace vorn
