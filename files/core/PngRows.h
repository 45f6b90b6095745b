#pragma once

/// @file
/// The rows of a PNG file as they are before compression.
#include "files/core/PackedImage.h"
#include "files/core/RowConverter.h"

namespace vorn
{
/// How the bytes of a row are told: as they are, or as the difference to the pixel at the left or above.
enum class PngFilter : unsigned char
{
    None = 0,
    Sub = 1,
    Up = 2
};

/// Rows of an image, told with a filter and with red first.
class PngRows
{
public:
    /// @param hasAlpha four bytes a pixel are written; only of 32 bits without masks
    PngRows(const ImageView& image, bool hasAlpha, PngFilter filter);

    /// Whether there was memory for them.
    bool IsReady() const;

    /// Bytes of one row of the file.
    std::size_t Size() const
    {
        return m_rowBytes + 1;
    }

    /// Makes a row the next one.
    void GoTo(int y);

    /// Writes the next row from the top, Size() bytes with the filter's number first. Not to be called for more rows
    /// than there are.
    void Next(unsigned char* line);

private:
    const unsigned char* Plain(int y);

    const ImageView& m_image;
    RowConverter m_converter;
    PngFilter m_filter;
    bool m_isConverted; ///< The file's pixels are no copies of the stored ones.
    int m_pixelBytes;
    std::size_t m_rowBytes;
    int m_y = 0;
    ImageBlock m_converted;                 ///< two rows in turn
    const unsigned char* m_above = nullptr; ///< none above the first
};
} // namespace vorn
