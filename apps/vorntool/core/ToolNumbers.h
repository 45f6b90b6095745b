#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vorn::tool
{

/// A finite decimal number ("12", "-0.5", "1e3"), written to its end; nothing for any other text or one out of range.
std::optional<double> ParseNumber(std::string_view text);

/// A whole decimal number with an optional sign, written to its end.
std::optional<std::int64_t> ParseWhole(std::string_view text);

/// A number setting: a whole number that fits 32 bits with or without sign; from 2^31 on it is stored as the negative
/// number of the same bits.
std::optional<int> ParseSettingNumber(std::string_view text);

/// @p value as people write it: up to 15 significant digits, no trailing zeros.
std::string NumberText(double value);

/// @p value with exactly @p decimals digits after the point.
std::string NumberText(double value, int decimals);

} // namespace vorn::tool
