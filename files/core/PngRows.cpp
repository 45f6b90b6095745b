#include "files/core/PngRows.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vorn
{
namespace
{
bool HasTable(const ImageView& image)
{
    return image.depth <= 8;
}

std::size_t StoredBytes(const ImageView& image)
{
    return (static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.depth) + 7) / 8;
}

/// to[i] = from[i] - less[i]
void Subtract(const unsigned char* from, const unsigned char* less, unsigned char* to, std::size_t count)
{
    std::size_t i = 0;
#ifdef __SSE2__
    for (; i + 16 <= count; i += 16)
    {
        const __m128i minuend = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + i));
        const __m128i subtrahend = _mm_loadu_si128(reinterpret_cast<const __m128i*>(less + i));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to + i), _mm_sub_epi8(minuend, subtrahend));
    }
#endif
    for (; i < count; ++i)
        to[i] = static_cast<unsigned char>(from[i] - less[i]);
}

/// Blue, green, red become red, green, blue.
void TurnTriples(unsigned char* bytes, std::size_t pixels)
{
#ifdef __SSE2__
    // Five pixels at a time; the sixteenth byte stays for the next ones.
    constexpr char kOn = -1;
    const __m128i firsts = _mm_setr_epi8(kOn, 0, 0, kOn, 0, 0, kOn, 0, 0, kOn, 0, 0, kOn, 0, 0, 0);
    const __m128i thirds = _mm_slli_si128(firsts, 2);
    const __m128i others = _mm_setr_epi8(0, kOn, 0, 0, kOn, 0, 0, kOn, 0, 0, kOn, 0, 0, kOn, 0, kOn);
    const auto load = [](const unsigned char* at)
    {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    };
    __m128i next = pixels >= 6 ? load(bytes) : __m128i{};
    for (; pixels >= 6; pixels -= 5, bytes += 15)
    {
        const __m128i from = next;
        if (pixels >= 11)
            next = load(bytes + 15); // before the store that overlaps it: it would have to wait
        const __m128i down = _mm_and_si128(_mm_srli_si128(from, 2), firsts);
        const __m128i up = _mm_and_si128(_mm_slli_si128(from, 2), thirds);
        const __m128i to = _mm_or_si128(_mm_or_si128(down, up), _mm_and_si128(from, others));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(bytes), to);
    }
#endif
    for (; pixels > 0; --pixels, bytes += 3)
        std::swap(bytes[0], bytes[2]);
}

void TurnQuads(unsigned char* bytes, std::size_t pixels)
{
    for (; pixels > 0; --pixels, bytes += 4)
        std::swap(bytes[0], bytes[2]);
}
} // namespace

PngRows::PngRows(const ImageView& image, bool hasAlpha, PngFilter filter)
    : m_image(image), m_converter(image), m_filter(filter),
      m_isConverted(image.depth == 16 || (image.depth == 32 && !hasAlpha)), m_pixelBytes(HasTable(image) ? 1
                                                                                         : hasAlpha      ? 4
                                                                                                         : 3),
      m_rowBytes(HasTable(image) ? StoredBytes(image)
                                 : static_cast<std::size_t>(image.width) * static_cast<std::size_t>(m_pixelBytes)),
      m_converted(m_isConverted ? ImageBlock::Unfilled(2 * m_rowBytes) : ImageBlock())
{
}

bool PngRows::IsReady() const
{
    return !m_isConverted || !m_converted.Bytes().empty();
}

const unsigned char* PngRows::Plain(int y)
{
    const unsigned char* stored = m_image.Row(y);
    if (!m_isConverted)
        return stored;
    unsigned char* row = m_converted.Bytes().data() + (y % 2 == 0 ? 0 : m_rowBytes);
    m_converter.Convert(stored, row);
    return row;
}

void PngRows::GoTo(int y)
{
    m_y = y;
    m_above = y > 0 ? Plain(y - 1) : nullptr;
}

void PngRows::Next(unsigned char* line)
{
    const unsigned char* row = Plain(m_y++);
    unsigned char* bytes = line + 1;
    const auto pixelBytes = std::min(static_cast<std::size_t>(m_pixelBytes), m_rowBytes);
    const bool isUp = m_filter == PngFilter::Up && m_above != nullptr;
    line[0] = static_cast<unsigned char>(m_filter);
    if (isUp)
        Subtract(row, m_above, bytes, m_rowBytes);
    else
        std::memcpy(bytes, row, m_filter == PngFilter::Sub ? pixelBytes : m_rowBytes);
    if (m_filter == PngFilter::Sub)
        Subtract(row + pixelBytes, row, bytes + pixelBytes, m_rowBytes - pixelBytes);
    m_above = row;
    if (m_pixelBytes == 3)
        TurnTriples(bytes, m_rowBytes / 3);
    else if (m_pixelBytes == 4)
        TurnQuads(bytes, m_rowBytes / 4);
}
} // namespace vorn
