#include "files/core/RowConverter.h"
#include "files/core/ImagePixels.h"

#include <cstring>

namespace vorn
{
namespace
{
DWORD Packed(Rgb color)
{
    return DWORD{color.blue} | DWORD{color.green} << 8 | DWORD{color.red} << 16;
}

void PutThreeBytes(unsigned char* to, DWORD packed)
{
    std::memcpy(to, &packed, 3);
}
} // namespace

RowConverter::RowConverter(const ImageView& source) : m_source(source)
{
    for (unsigned i = 0; source.depth <= 8 && i < m_colors.size(); ++i)
        m_colors[i] = Packed(ColorOfStored(source, i));
}

void RowConverter::Convert(const unsigned char* from, unsigned char* to) const
{
    if (m_source.depth == 24)
        std::memcpy(to, from, static_cast<std::size_t>(m_source.width) * 3);
    else if (m_source.depth == 8)
        ConvertBytes(from, to);
    else if (m_source.depth == 4)
        ConvertBits<4>(from, to);
    else if (m_source.depth == 1)
        ConvertBits<1>(from, to);
    else if (m_source.depth == 32 && !m_source.isMasked)
        ConvertChannels(from, to);
    else
        ConvertWords(from, to);
}

// Four bytes a store: the next pixel takes the last of them, and the last pixel stores three.
template <int DEPTH>
void RowConverter::ConvertBits(const unsigned char* from, unsigned char* to) const
{
    constexpr unsigned kMask = (1U << DEPTH) - 1;
    const unsigned char* last = to + std::ptrdiff_t{m_source.width - 1} * 3;
    for (;; ++from)
        for (int shift = 8 - DEPTH; shift >= 0; shift -= DEPTH, to += 3)
        {
            const DWORD color = m_colors[*from >> shift & kMask];
            if (to == last)
                return PutThreeBytes(to, color);
            std::memcpy(to, &color, 4);
        }
}

// Likewise.
void RowConverter::ConvertBytes(const unsigned char* from, unsigned char* to) const
{
    constexpr int kStep = 8;
    const DWORD* const colors = m_colors.data();
    int left = m_source.width - 1;
    for (; left >= kStep; left -= kStep, from += kStep, to += kStep * 3)
        for (int i = 0; i < kStep; ++i)
            std::memcpy(to + i * 3, colors + from[i], 4);
    for (; left > 0; --left, ++from, to += 3)
        std::memcpy(to, colors + *from, 4);
    PutThreeBytes(to, colors[*from]);
}

void RowConverter::ConvertChannels(const unsigned char* from, unsigned char* to) const
{
    for (int x = 1; x < m_source.width; ++x, from += 4, to += 3)
        std::memcpy(to, from, 4);
    std::memcpy(to, from, 3);
}

void RowConverter::ConvertWords(const unsigned char* from, unsigned char* to) const
{
    for (int x = 0; x < m_source.width; ++x, to += 3)
        PutThreeBytes(to, Packed(ColorOfStored(m_source, StoredPixel(from, x, m_source.depth))));
}
} // namespace vorn
