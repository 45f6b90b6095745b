#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

/// @file
/// Little-endian numbers in bytes from outside. Nothing beyond the end is ever read.
namespace vorn
{
using Bytes = std::span<const std::byte>;

/// The bytes from `offset` on; none when that lies beyond the end.
inline Bytes From(Bytes bytes, std::size_t offset)
{
    return offset < bytes.size() ? bytes.subspan(offset) : Bytes();
}

/// The two bytes at `offset`; beyond the end, zero.
inline std::uint32_t WordAt(Bytes bytes, std::size_t offset)
{
    const Bytes word = From(bytes, offset);
    return word.size() < 2 ? 0 : std::to_integer<std::uint32_t>(word[0]) | std::to_integer<std::uint32_t>(word[1]) << 8;
}

/// The four bytes at `offset`; a half beyond the end is zero.
inline std::uint32_t DoubleWordAt(Bytes bytes, std::size_t offset)
{
    const Bytes doubleWord = From(bytes, offset);
    return WordAt(doubleWord, 0) | WordAt(doubleWord, 2) << 16;
}
} // namespace vorn
