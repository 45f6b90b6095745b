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

/// Blue, green, red become red, green, blue; four pixels at a time.
void TurnTriples(unsigned char* bytes, std::size_t pixels)
{
    for (; pixels >= 4; pixels -= 4, bytes += 12)
    {
        std::uint32_t words[3];
        std::memcpy(words, bytes, sizeof words);
        const auto [first, second, third] = words;
        words[0] = (first >> 16 & 0xFF) | (first & 0xFF00) | (first & 0xFF) << 16 | (second & 0xFF00) << 16;
        words[1] = (second & 0xFF0000FF) | (first >> 24) << 8 | (third & 0xFF) << 16;
        words[2] = (second >> 16 & 0xFF) | (third >> 24) << 8 | (third & 0xFF0000) | (third & 0xFF00) << 16;
        std::memcpy(bytes, words, sizeof words);
    }
    for (; pixels > 0; --pixels, bytes += 3)
        std::swap(bytes[0], bytes[2]);
}

void TurnQuads(unsigned char* bytes, std::size_t pixels)
{
    for (; pixels > 0; --pixels, bytes += 4)
        std::swap(bytes[0], bytes[2]);
}

/// How many bytes are the same as others.
struct Likeness
{
    std::size_t above = 0;
    std::size_t left = 0;
    std::size_t of = 0;

    void Look(const unsigned char* row, const unsigned char* rowAbove, std::size_t bytes, std::size_t pixelBytes)
    {
        for (std::size_t i = pixelBytes; i < bytes; ++i)
        {
            above += row[i] == rowAbove[i] ? 1u : 0u;
            left += row[i] == row[i - pixelBytes] ? 1u : 0u;
        }
        of += bytes - std::min(bytes, pixelBytes);
    }
};

Likeness LikenessIn(const ImageView& image)
{
    constexpr int kLooks = 32;
    const auto pixelBytes = static_cast<std::size_t>(std::max(image.depth / 8, 1));
    Likeness likeness;
    const int step = std::max(image.height / kLooks, 1);
    for (int y = 1; y < image.height; y += step)
        likeness.Look(image.Row(y), image.Row(y - 1), StoredBytes(image), pixelBytes);
    return likeness;
}
} // namespace

PngPlan PngPlanOf(const ImageView& image)
{
    const Likeness likeness = LikenessIn(image);
    const bool isFlat = likeness.of > 0 && 2 * std::max(likeness.above, likeness.left) >= likeness.of;
    if (isFlat)
        return {likeness.above >= likeness.left ? PngFilter::Up : PngFilter::Sub, !HasTable(image)};
    return {HasTable(image) ? PngFilter::None : PngFilter::Sub, false};
}

PngRows::PngRows(const ImageView& image, bool hasAlpha, PngFilter filter)
    : m_image(image), m_converter(image), m_filter(filter),
      m_isConverted(image.depth == 16 || (image.depth == 32 && !hasAlpha)), m_pixelBytes(HasTable(image) ? 1
                                                                                         : hasAlpha      ? 4
                                                                                                         : 3),
      m_rowBytes(HasTable(image) ? StoredBytes(image)
                                 : static_cast<std::size_t>(image.width) * static_cast<std::size_t>(m_pixelBytes)),
      m_line(ImageBlock::Unfilled(m_rowBytes + 1)),
      m_converted(m_isConverted ? ImageBlock::Unfilled(2 * m_rowBytes) : ImageBlock())
{
}

bool PngRows::IsReady() const
{
    return !m_line.Bytes().empty() && (!m_isConverted || !m_converted.Bytes().empty());
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

const unsigned char* PngRows::Next()
{
    const unsigned char* row = Plain(m_y++);
    unsigned char* line = m_line.Bytes().data();
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
    return line;
}
} // namespace vorn
