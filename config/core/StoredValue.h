#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

/// @file
/// What a registry value of any type means when settings are read. The types' numbers are the registry's own.
namespace vorn
{
inline constexpr std::uint32_t kStoredText = 1;   ///< text with its terminating zero
inline constexpr std::uint32_t kStoredNumber = 4; ///< 32 bits, least significant byte first

/// Longest stored value that is read, in bytes with the terminating zero.
inline constexpr std::size_t kStoredLimit = 1024;

/// A stored value taken as text. A number gives its decimal text with sign, so that what was written as a number
/// reads the same both ways. Every other type gives its bytes up to the first zero or the end of the value.
std::string StoredAsText(std::uint32_t type, std::span<const std::byte> bytes);

/// A stored value taken as number: a number is itself, a text its leading digits when it begins with one.
/// Everything else, a number not 4 bytes long included, gives `otherwise`.
int StoredAsNumber(std::uint32_t type, std::span<const std::byte> bytes, int otherwise);
} // namespace vorn
