#pragma once

#include <cstdint>

namespace vorn
{

/// The nearest `int`.
int ClampToInt(std::int64_t value);
int ClampToInt(double value);

/// The decimal number that a text begins with, blanks and a sign before it allowed; 0 without digits. Larger numbers
/// stop at the ends of `int`.
int ReadLayoutNumber(const char* text);

/// Sum and difference that stop at the ends of `int`.
int AddClamped(int first, int second);
int SubtractClamped(int first, int second);

} // namespace vorn
