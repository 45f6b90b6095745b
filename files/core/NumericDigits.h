#pragma once

/// @file
/// Numbers of tables as text.
#include <cstddef>
#include <span>

namespace vorn
{
/// Longest text: two digits for each byte of the longest numeric field.
inline constexpr std::size_t kMaxDigits = 2 * 255;

/// Writes the decimal text of each byte's low four bits, from the first that is not 0 on; "0" when there is none.
/// Returns its length. `bytes` has at most 255, `digits` at least kMaxDigits.
std::size_t NumericDigits(std::span<const char> bytes, char* digits);
} // namespace vorn
