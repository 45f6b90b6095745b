#pragma once

/// @file
/// Bitmap headers as GDI takes them.
#include "files/core/ImageFormat.h"

namespace vorn
{
/// A copy of a block's header, table and masks in which everything that GDI looks at is there: a table shorter than
/// the depth asks for is filled up with zeros, and compressed pixels are as large as stated, but no larger than they
/// are.
class DibInfo
{
public:
    /// @param tableEnd where in the block the table ends at the latest
    /// @param pixelBytes what there is of compressed pixels
    DibInfo(std::span<const unsigned char> block, std::size_t tableEnd, int usage, std::size_t pixelBytes);
    /// For reading `rows` rows out of a bitmap: table and masks are GDI's to write.
    DibInfo(int width, int rows, int depth);

    const BITMAPINFO* Get() const
    {
        return reinterpret_cast<const BITMAPINFO*>(&m_info);
    }
    BITMAPINFO* Get()
    {
        return reinterpret_cast<BITMAPINFO*>(&m_info);
    }
    /// The table's bytes.
    std::span<const unsigned char> Table() const
    {
        return m_info.table;
    }

private:
    struct
    {
        BITMAPINFOHEADER header;
        unsigned char table[256 * sizeof(RGBQUAD)];
    } m_info{};
};
} // namespace vorn
