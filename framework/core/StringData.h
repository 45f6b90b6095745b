#pragma once

/// @file
/// The counted block behind a CString: a small record directly in front of the characters.
#include "framework/core/Export.h"

#include <atomic>

namespace vorn
{
/// One block of characters. The text follows the record at once and is always ended by a zero at `length`.
struct StringData
{
    int length;   ///< Characters in use, without the end.
    int capacity; ///< Characters that fit, without the end.
    /// Owners. 0: the shared empty text, never counted or freed. Negative: locked, owned by one object and never
    /// shared.
    std::atomic<int> refs;

    char* Text() noexcept
    {
        return reinterpret_cast<char*>(this + 1);
    }
    static StringData* Of(char* text) noexcept
    {
        return reinterpret_cast<StringData*>(text) - 1;
    }
    bool IsShared() const noexcept
    {
        const int owners = refs.load(std::memory_order_acquire);
        return owners > 1 || owners == 0;
    }
    bool IsLocked() const noexcept
    {
        return refs.load(std::memory_order_relaxed) < 0;
    }
};

/// The empty text that all empty strings share.
struct EmptyStringData
{
    StringData data;
    char end[4];
};
HOSTFRAMEWORK_API extern EmptyStringData g_emptyString;

/// Longest text of a block; beyond it the memory exception is thrown.
inline constexpr int kMaxStringLength = 0x7FFFFF00;

/// A block for at least `length` characters with one owner, length 0 and a zero in front. Throws the memory exception.
HOSTFRAMEWORK_API StringData* AllocateString(int length);

/// Longest text of which a copy may be a block of its own; see ShareShort().
inline constexpr int kShortTextLength = 100;

/// One more owner of a text of 1 to kShortTextLength characters. Where a block lies ready the owner gets a copy:
/// counting up and down with all threads looking on costs more than copying so few characters.
HOSTFRAMEWORK_API StringData* ShareShort(StringData* data) noexcept;

/// Gives a block back to the pool or the heap. Any thread may call it.
HOSTFRAMEWORK_API void FreeString(StringData* data) noexcept;

/// Gives the pool's free blocks back to the heap and stops pooling; for the unloading of the module.
HOSTFRAMEWORK_API void CloseStringPool() noexcept;
} // namespace vorn
