#pragma once

#include <cstddef>
#include <cstdint>

namespace vorn
{

/// Cuts a text of 32 bytes, taken as 8 words of 4 bytes with the first in the lowest, after its 31st byte or at its
/// first zero, and clears what is behind: equal texts become equal words.
template <std::size_t Count>
constexpr void ClearBehindText(std::uint32_t (&words)[Count])
{
    words[Count - 1] &= 0x00FFFFFF;
    std::uint32_t kept = 0xFFFFFFFF; // 0 behind the end
    for (std::uint32_t& word : words)
    {
        word &= kept;
        const std::uint32_t zeros =
            (word - 0x01010101) & ~word & 0x80808080; // its lowest bit is in the first zero byte
        if (zeros != 0)
        {
            word &= ((zeros & (0 - zeros)) >> 7) - 1;
            kept = 0;
        }
    }
}

} // namespace vorn
