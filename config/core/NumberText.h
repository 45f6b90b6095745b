#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// @file
/// How settings texts are taken as numbers.
namespace vorn
{
/// Decimal value at the start of a text: blanks, an optional sign, digits; anything behind is ignored. No digits
/// give 0. Values beyond 32 bits stop at the largest or smallest `int`.
int LeadingNumber(std::string_view text);

/// Value of a text from the registry: only a text that begins with a digit is a number, every other text ("-5",
/// " 5", "x12", "") gives `otherwise`.
int StoredNumber(std::string_view text, int otherwise);

/// Value of a text of digits only (0 for an empty one). Nothing when it holds any other character or does not fit
/// 32 bits without sign.
std::optional<std::uint32_t> DigitsOnly(std::string_view text);
} // namespace vorn
