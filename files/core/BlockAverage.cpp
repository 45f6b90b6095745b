#include "files/core/BlockAverage.h"

#include <algorithm>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vorn
{
namespace
{
/// Eight sums of 16 bits, for which there is one instruction.
using Sums = std::uint16_t __attribute__((vector_size(16)));
constexpr std::size_t kLanes = 8;

#ifdef __SSE2__
constexpr std::size_t kBytesAtOnce = 16;

__m128i Load(const void* from)
{
    return _mm_loadu_si128(static_cast<const __m128i*>(from));
}

void Store(void* to, __m128i value)
{
    _mm_storeu_si128(static_cast<__m128i*>(to), value);
}
#endif

/// Several rows a turn: what is added to stays longer in the processor's registers. The first turn fills the sums.
template <int Rows, bool IsFirst>
void AddRows(const unsigned char* first, std::ptrdiff_t step, std::size_t size, std::uint16_t* sums)
{
    const unsigned char* rows[Rows];
    for (int row = 0; row < Rows; ++row)
        rows[row] = first + row * step;
    std::size_t i = 0;
#ifdef __SSE2__
    const __m128i zero = _mm_setzero_si128();
    for (; i + kBytesAtOnce <= size; i += kBytesAtOnce)
    {
        __m128i low = IsFirst ? zero : Load(sums + i);
        __m128i high = IsFirst ? zero : Load(sums + i + kLanes);
        for (const unsigned char* row : rows)
        {
            const __m128i bytes = Load(row + i);
            low = _mm_add_epi16(low, _mm_unpacklo_epi8(bytes, zero));
            high = _mm_add_epi16(high, _mm_unpackhi_epi8(bytes, zero));
        }
        Store(sums + i, low);
        Store(sums + i + kLanes, high);
    }
#endif
    for (; i < size; ++i)
    {
        unsigned sum = IsFirst ? 0 : sums[i];
        for (const unsigned char* row : rows)
            sum += row[i];
        sums[i] = static_cast<std::uint16_t>(sum);
    }
}

constexpr int kRowsAtOnce = 4;

template <bool IsFirst>
constexpr decltype(&AddRows<1, IsFirst>) kAddRows[kRowsAtOnce] = {AddRows<1, IsFirst>, AddRows<2, IsFirst>,
                                                                  AddRows<3, IsFirst>, AddRows<4, IsFirst>};

/// Adds the pixels of each block together, into the front of the sums: nothing is overwritten that is still to be read.
/// @param Pixels a number known beforehand, or 0.
template <std::size_t Channels, int Pixels>
void AddAcross(std::uint16_t* sums, int pixels, int blocks)
{
    static_assert(Channels <= kLanes / 2);
    const int count = Pixels != 0 ? Pixels : pixels;
    const std::uint16_t* from = sums;
    std::uint16_t* to = sums;
    for (int block = 0; block < blocks; ++block, to += Channels)
    {
        Sums sum{};
        for (int i = 0; i < count; ++i, from += Channels)
        {
            Sums pixel;
            std::memcpy(&pixel, from, sizeof pixel);
            sum += pixel;
        }
        std::memcpy(to, &sum, sizeof sum / 2); // the next block takes what is too much
    }
}

template <std::size_t Channels>
void AddAcross(std::uint16_t* sums, int pixels, int blocks)
{
    if (pixels == 2)
        AddAcross<Channels, 2>(sums, pixels, blocks);
    else if (pixels == 3)
        AddAcross<Channels, 3>(sums, pixels, blocks);
    else if (pixels == 4)
        AddAcross<Channels, 4>(sums, pixels, blocks);
    else if (pixels > 4)
        AddAcross<Channels, 0>(sums, pixels, blocks);
}

#ifdef __SSE2__
/// Divides eight sums at once by a number of pixels from 2 on, rounded, exactly.
class Division
{
public:
    explicit Division(int pixels)
        : m_pixels(Alike(pixels)), m_half(Alike(pixels / 2)), m_most(Alike(pixels - 1)), m_factor(Alike(65536 / pixels))
    {
    }

    __m128i Of(const std::uint16_t* sums) const
    {
        const __m128i dividend = _mm_add_epi16(Load(sums), m_half);
        const __m128i quotient = _mm_mulhi_epu16(dividend, m_factor); // one too low at most
        const __m128i rest = _mm_sub_epi16(dividend, _mm_mullo_epi16(quotient, m_pixels));
        return _mm_sub_epi16(quotient, _mm_cmpgt_epi16(rest, m_most));
    }

private:
    static __m128i Alike(int value)
    {
        return _mm_set1_epi16(static_cast<short>(value));
    }

    __m128i m_pixels;
    __m128i m_half;
    __m128i m_most;
    __m128i m_factor;
};
#endif

void Divide(const std::uint16_t* sums, int pixels, std::size_t size, unsigned char* to)
{
    std::size_t i = 0;
#ifdef __SSE2__
    const Division division(pixels);
    for (; i + kBytesAtOnce <= size; i += kBytesAtOnce)
        Store(to + i, _mm_packus_epi16(division.Of(sums + i), division.Of(sums + i + kLanes)));
#endif
    for (; i < size; ++i)
        to[i] = static_cast<unsigned char>((sums[i] + pixels / 2) / pixels);
}
} // namespace

BlockAverage::BlockAverage(const ImageView& source, int across, int down)
    : m_source(source), m_across(across), m_down(down), m_channels(static_cast<std::size_t>(source.depth / 8)),
      m_sums(static_cast<std::size_t>(source.width) * m_channels + kLanes)
{
}

void BlockAverage::MakeRow(int firstRow, unsigned char* to)
{
    SumDown(firstRow);
    const int blocks = m_source.width / m_across;
    if (m_channels == 4)
        AddAcross<4>(m_sums.data(), m_across, blocks);
    else
        AddAcross<3>(m_sums.data(), m_across, blocks);
    Divide(m_sums.data(), m_across * m_down, static_cast<std::size_t>(blocks) * m_channels, to);
}

void BlockAverage::SumDown(int firstRow)
{
    const std::ptrdiff_t step = m_source.isTopDown ? m_source.stride : -m_source.stride;
    const unsigned char* row = m_source.Row(firstRow);
    const std::size_t size = m_sums.size() - kLanes;
    for (int done = 0; done < m_down; done += kRowsAtOnce, row += kRowsAtOnce * step)
    {
        const int more = std::min(m_down - done, kRowsAtOnce) - 1;
        (done == 0 ? kAddRows<true> : kAddRows<false>)[more](row, step, size, m_sums.data());
    }
}
} // namespace vorn
