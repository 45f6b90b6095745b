#pragma once

/// @file
/// Numbers as users type them into edit boxes. Independent of the locale.
#include "framework/core/Export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vorn
{
/// A decimal whole number with an optional sign and blanks or tabs around it. Nothing for any other text and for
/// numbers outside 64 bits.
HOSTFRAMEWORK_API std::optional<std::int64_t> ScanWhole(std::string_view text);
/// The same without a minus sign.
HOSTFRAMEWORK_API std::optional<std::uint64_t> ScanUnsigned(std::string_view text);
/// A decimal number with optional fraction and exponent ("-1.5e3", ".5"); no hexadecimal, no infinities.
HOSTFRAMEWORK_API std::optional<double> ScanReal(std::string_view text);
/// The shortest of plain and exponent form with at most `digits` significant digits, as printf's "%.*g".
HOSTFRAMEWORK_API std::string RealText(double value, int digits);
} // namespace vorn
