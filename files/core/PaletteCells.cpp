#include "files/core/PaletteCells.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <type_traits>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vorn
{

namespace
{

constexpr int kStep = 16; // pixels that are looked at together

int BitsOf(int resolution)
{
    const auto side = static_cast<unsigned>(resolution);
    return std::has_single_bit(side) ? std::countr_zero(side) : -1;
}

#ifdef __SSE2__

using Four = __m128i; // pixels or cells

Four Load(const void* from)
{
    return _mm_loadu_si128(static_cast<const __m128i*>(from));
}

/// The cells of pixels where a channel has so many bits of a cell's number.
template <int BITS>
Four CellsOf(Four pixels)
{
    static_assert(BITS > 0 && BITS < 8);
    constexpr int kDrop = 8 - BITS;
    constexpr int kKept = 0xFF >> kDrop << kDrop;
    const Four redAndBlue = _mm_and_si128(pixels, _mm_set1_epi32(kKept << 16 | kKept));
    const Four green = _mm_and_si128(pixels, _mm_set1_epi32(kKept << 8));
    const Four outerAndInner = _mm_madd_epi16(redAndBlue, _mm_set1_epi32(1 << (16 + 2 * BITS) | 1));
    return _mm_srli_epi32(_mm_or_si128(outerAndInner, _mm_srli_epi32(green, 8 - BITS)), kDrop);
}

/// The indices of kStep pixels.
template <int BITS>
void TakeStep(const BYTE* held, const BYTE* pixels, BYTE* indices)
{
    using Cell = std::conditional_t<BITS <= 5, std::uint16_t, std::uint32_t>; // 15 bits fit a signed word
    alignas(16) std::array<Cell, kStep> cells;
    constexpr int kPiece = 16 / static_cast<int>(sizeof(Cell));
    for (int i = 0; i < kStep; i += kPiece, pixels += kPiece * 4)
    {
        Four piece = CellsOf<BITS>(Load(pixels));
        if constexpr (BITS <= 5)
            piece = _mm_packs_epi32(piece, CellsOf<BITS>(Load(pixels + 16)));
        _mm_store_si128(reinterpret_cast<__m128i*>(cells.data() + i), piece);
    }
    for (std::size_t i = 0; i < cells.size(); ++i)
        indices[i] = held[cells[i]];
}

template <int BITS>
int TakeSteps(const BYTE* held, const BYTE* pixels, BYTE* indices, int count)
{
    int at = 0;
    for (; at + kStep <= count; at += kStep)
        TakeStep<BITS>(held, pixels + at * 4, indices + at);
    return at;
}

/// How many pixels have their indices: whole steps, for the resolutions in use.
int TakeSteps(int bits, const BYTE* held, const BYTE* pixels, BYTE* indices, int count)
{
    switch (bits)
    {
    case 3:
        return TakeSteps<3>(held, pixels, indices, count);
    case 4:
        return TakeSteps<4>(held, pixels, indices, count);
    case 5:
        return TakeSteps<5>(held, pixels, indices, count);
    case 6:
        return TakeSteps<6>(held, pixels, indices, count);
    case 7:
        return TakeSteps<7>(held, pixels, indices, count);
    default:
        return 0;
    }
}

bool Has(BYTE wanted, const BYTE* bytes, int count)
{
    const __m128i all = _mm_set1_epi8(static_cast<char>(wanted));
    __m128i found = _mm_setzero_si128();
    int i = 0;
    for (; i + 16 <= count; i += 16)
        found = _mm_or_si128(found, _mm_cmpeq_epi8(Load(bytes + i), all));
    return _mm_movemask_epi8(found) != 0 || std::find(bytes + i, bytes + count, wanted) != bytes + count;
}

#else

int TakeSteps(int, const BYTE*, const BYTE*, BYTE*, int)
{
    return 0;
}

bool Has(BYTE wanted, const BYTE* bytes, int count)
{
    return std::find(bytes, bytes + count, wanted) != bytes + count;
}

#endif

} // namespace

PaletteCells::PaletteCells(int resolution) : m_resolution(std::clamp(resolution, 1, 256)), m_bits(BitsOf(m_resolution))
{
    const auto side = static_cast<std::uint32_t>(m_resolution);
    const std::uint32_t step = 256 / side;
    for (std::uint32_t value = 0; value < 256; ++value)
    {
        const std::uint32_t cell = std::min(value / step, side - 1);
        m_red[value] = cell * side * side;
        m_green[value] = cell * side;
        m_blue[value] = cell;
    }
    m_cells.assign(std::size_t{side} * side * side, kUnknown);
}

bool PaletteCells::LookUp(const BYTE* pixels, BYTE* indices, int count) const
{
    for (int i = TakeSteps(m_bits, m_cells.data(), pixels, indices, count); i < count; ++i)
        indices[i] = m_cells[CellOf(pixels[i * 4 + 2], pixels[i * 4 + 1], pixels[i * 4])];
    return !Has(kUnknown, indices, count);
}

void PaletteCells::Reset()
{
    std::fill(m_cells.begin(), m_cells.end(), kUnknown);
}

} // namespace vorn
