#pragma once

#include "frame/core/CompactText.h"

#include <cstdint>
#include <string>

namespace vorn
{

/// Decimals beyond this are refused: the text would only grow by zeros until memory ends.
inline constexpr int kMostDecimals = 1'000'000;

/// `value` as the standard printf writes it with "%.*f". Empty for absurd decimals (beyond +-kMostDecimals).
std::string FixedText(double value, int decimals);

/// As above with "%0*.*f": at least `width` characters, zeros in front; a negative width pads with blanks behind.
std::string PaddedFixedText(double value, int width, int decimals);

/// Appends `value` as "%0*d" writes it: zeros in front up to `width` characters, the sign counted.
void AppendPadded(CompactText& text, std::int64_t value, int width);

} // namespace vorn
