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
    for (auto left = static_cast<std::ptrdiff_t>(length); left > 0; left -= 16)
    {
        const __m128i piece = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + left - 16));
        const __m128i padding = _mm_or_si128(_mm_cmpeq_epi8(piece, blanks), _mm_cmpeq_epi8(piece, tabs));
        const unsigned kept = ~static_cast<unsigned>(_mm_movemask_epi8(padding)) << 16;
        if (kept != 0)
        {
            const std::ptrdiff_t end = left - __builtin_clz(kept);
            return end > 0 ? static_cast<std::size_t>(end) : 0;
        }
    }
    return 0;
#else
    while (length > 0 && (text[length - 1] == ' ' || text[length - 1] == '\t'))
        --length;
    return length;
#endif
}

/// Assigns into the string's own block when it has room; otherwise makes one with room for `room` characters.
inline void AssignText(CString& out, const char* text, std::size_t length, std::size_t room)
{
    StringData* data = StringData::Of(const_cast<char*>(out.GetString()));
    if (data->IsShared() || static_cast<int>(length) > data->capacity) [[unlikely]]
    {
        if (length == 0)
        {
            out.Empty();
            return;
        }
        data = StringData::Of(out.GetBuffer(static_cast<int>(room)));
    }
    CopyText(data->Text(), text, length);
    data->Text()[length] = '\0';
    data->length = static_cast<int>(length);
}
} // namespace vorn
