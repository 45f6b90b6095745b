#pragma once

#include <cstddef>
#include <cstdint>

namespace vorn
{

/// A hash of a few words in which every bit counts. The words are multiplied independently of one another, so that the
/// processor does so at the same time.
template <std::size_t Count>
constexpr std::uint32_t WordHash(const std::uint32_t (&words)[Count])
{
    std::uint64_t sum = 0;
    std::uint32_t factor = 0x9E3779B1; // odd, as are its powers: no bit of a word is lost
    for (const std::uint32_t word : words)
    {
        sum += static_cast<std::uint64_t>(word) * factor;
        factor *= 0x85EBCA77;
    }
    const auto mixed = static_cast<std::uint32_t>(sum ^ (sum >> 32)) * 0x2C1B3C6D;
    return mixed ^ (mixed >> 15);
}

} // namespace vorn
