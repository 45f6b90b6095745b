#pragma once

/// @file
/// Rows of any depth as rows of 24 bits.
#include "files/core/ImageView.h"

#include <array>

namespace vorn
{
/// Colours of the rows of one image, which must outlive it.
class RowConverter
{
public:
    explicit RowConverter(const ImageView& source);

    /// The source's width in pixels, three bytes each: blue, green, red.
    void Convert(const unsigned char* from, unsigned char* to) const;

private:
    template <int DEPTH>
    void ConvertBits(const unsigned char* from, unsigned char* to) const;
    void ConvertBytes(const unsigned char* from, unsigned char* to) const;
    void ConvertChannels(const unsigned char* from, unsigned char* to) const;
    void ConvertWords(const unsigned char* from, unsigned char* to) const;

    const ImageView& m_source;
    std::array<DWORD, 256> m_colors{};
};
} // namespace vorn
