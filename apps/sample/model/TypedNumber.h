#pragma once

#include <optional>
#include <string_view>

/// A number that a user typed: blanks around it are ignored, the decimal sign is a point or a comma.
/// Nothing when anything else stands there, or when it is not finite.
std::optional<double> TypedNumber(std::string_view text);
