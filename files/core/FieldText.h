#pragma once

/// @file
/// The text of a field, from its padded bytes into a string.
#include "framework/core/CString.h"
#include "framework/core/ShortCopy.h"

#include <cstddef>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vorn
{
/// Readable bytes in front of any field whose text is trimmed.
inline constexpr std::size_t kTrimMargin = 16;

/// Length without the blanks and tabs at the end. Looks at up to kTrimMargin bytes in front of the text.
inline std::size_t TrimmedLength(const char* text, std::size_t length) noexcept
{
#ifdef __SSE2__
    const __m128i blanks = _mm_set1_epi8(' ');
    const __m128i tabs = _mm_set1_epi8('\t');
    auto left = static_cast<std::ptrdiff_t>(length);
    do
    {
        const __m128i piece = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + left - 16));
        const __m128i padding = _mm_or_si128(_mm_cmpeq_epi8(piece, blanks), _mm_cmpeq_epi8(piece, tabs));
        const unsigned kept = static_cast<unsigned>(_mm_movemask_epi8(padding)) ^ 0xFFFF;
        left -= 16;
        if (kept != 0) [[likely]]
        {
            const std::ptrdiff_t end = left + 32 - __builtin_clz(kept);
            return end > 0 ? static_cast<std::size_t>(end) : 0;
        }
    } while (left > 0);
    return 0;
#else
    while (length > 0 && (text[length - 1] == ' ' || text[length - 1] == '\t'))
        --length;
    return length;
#endif
}

/// Assigns into the string's own block in whole pieces of 16 bytes, from up to kTrimMargin bytes behind the text too;
/// false, with nothing changed, when it has no room for them.
inline bool AssignInPlace(CString& out, const char* text, std::size_t length) noexcept
{
    StringData* data = StringData::Of(const_cast<char*>(out.GetString()));
    const bool isOwn = data->refs.load(std::memory_order_acquire) == 1;
    if (!isOwn || (length | 15) > static_cast<std::size_t>(data->capacity)) [[unlikely]]
        return false;
    char* to = data->Text();
    std::size_t at = 0;
    do
    {
        std::memcpy(to + at, text + at, 16);
        at += 16;
    } while (at < length);
    to[length] = '\0';
    data->length = static_cast<int>(length);
    return true;
}

/// Assigns any text, in a new block with room for `room` characters and more where the old one has none.
inline void AssignText(CString& out, const char* text, std::size_t length, std::size_t room)
{
    if (length > 0)
        out.GetBuffer(static_cast<int>(room | 15));
    out.SetString(text, static_cast<int>(length));
}
} // namespace vorn
