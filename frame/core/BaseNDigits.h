#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vorn
{

/// The 64 digits; a digit's value is its position. Case matters: "a" is 10, "A" is 36.
inline constexpr std::string_view kBaseNDigits = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-!";
static_assert(kBaseNDigits.size() == 64);

inline constexpr int kSmallestBase = 2;
inline constexpr int kLargestBase = 64;

/// Most digits that bytes are written as: as long as a string may be.
inline constexpr std::size_t kMostDigits = 0x7FFFFFFF;

/// Value of a character that is no digit.
inline constexpr std::uint8_t kNoDigit = 255;

/// Value of every byte as a digit.
inline constexpr std::array<std::uint8_t, 256> kDigitValues = []
{
    std::array<std::uint8_t, 256> values{};
    values.fill(kNoDigit);
    for (std::size_t i = 0; i < kBaseNDigits.size(); ++i)
        values[static_cast<unsigned char>(kBaseNDigits[i])] = static_cast<std::uint8_t>(i);
    return values;
}();

/// Sum of the digits' values times the powers of `base`, modulo 2^64. A digit may exceed the base, and a character that
/// is no digit counts 255. A base outside 2 to 64 gives 0.
std::uint64_t DecodeNumber(std::string_view digits, int base);

/// The digits of `value`, most significant first; "0" for 0. Empty for a base outside 2 to 64.
std::string EncodeNumber(std::uint64_t value, int base);

/// Bits of one digit when `base` is a power of two from 2 to 64, else 0.
int BitsPerDigit(int base);

/// Bytes as digits, least significant bit first: the lowest bits of the first byte make the first digit, and what is
/// left at the end makes a last digit with zeros above. Empty when `base` is no power of two from 2 to 64, and when
/// that would be more than `kMostDigits`.
std::string EncodeBytes(std::span<const unsigned char> bytes, int base);

/// Takes base-64 digits apart again, 6 bits each, least significant first, until `bytes` is full, the digits end, or a
/// character is no digit. Bits that make no whole byte are dropped.
/// @return the number of bytes written.
std::size_t DecodeBytes(std::string_view digits, std::span<unsigned char> bytes);

} // namespace vorn
