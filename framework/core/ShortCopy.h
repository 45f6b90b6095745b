#pragma once

/// @file
/// Length and copy of short texts. The functions of the Windows C library go byte by byte or cost a call that is dearer
/// than the work.
#include <cstring>

#if defined(_WIN32) && defined(__SSE2__) && !defined(VORN_PLAIN_HEAP)
#include <cstdint>
#include <emmintrin.h>
#define VORN_SSE_TEXT 1
#endif

namespace vorn
{
#ifdef VORN_SSE_TEXT
/// strlen(). Looks at aligned pieces of 16 bytes, which never reach into another page.
inline std::size_t TextLength(const char* text) noexcept
{
    const auto address = reinterpret_cast<std::uintptr_t>(text);
    const auto* piece = reinterpret_cast<const __m128i*>(address & ~std::uintptr_t{15});
    const __m128i zero = _mm_setzero_si128();
    unsigned mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(_mm_load_si128(piece), zero)));
    mask &= ~0U << (address & 15);
    while (mask == 0)
    {
        ++piece;
        mask = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(_mm_load_si128(piece), zero)));
    }
    const auto end = reinterpret_cast<std::uintptr_t>(piece) + static_cast<unsigned>(__builtin_ctz(mask));
    return end - address;
}
#else
inline std::size_t TextLength(const char* text) noexcept
{
    return std::strlen(text);
}
#endif

/// memcpy() in pieces of fixed size, the last one overlapping the one before.
template <std::size_t SIZE>
inline void CopyPieces(char* to, const char* from, std::size_t count) noexcept
{
    for (std::size_t at = 0; at + SIZE < count; at += SIZE)
    {
        std::memcpy(to + at, from + at, SIZE);
    }
    std::memcpy(to + count - SIZE, from + count - SIZE, SIZE);
}

/// memcpy() for texts that are mostly short.
inline void CopyText(char* to, const char* from, std::size_t count) noexcept
{
    if (count > 128)
    {
        std::memcpy(to, from, count);
    }
    else if (count >= 16)
    {
        CopyPieces<16>(to, from, count);
    }
    else if (count >= 4)
    {
        CopyPieces<4>(to, from, count);
    }
    else if (count > 0)
    {
        CopyPieces<1>(to, from, count);
    }
}
} // namespace vorn
