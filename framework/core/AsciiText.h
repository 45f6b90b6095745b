#pragma once

/// @file
/// Letter case and white space of ASCII, independent of any locale.

namespace vorn
{
constexpr char ToLowerAscii(char ch) noexcept
{
    return ch >= 'A' && ch <= 'Z' ? static_cast<char>(ch - 'A' + 'a') : ch;
}

constexpr char ToUpperAscii(char ch) noexcept
{
    return ch >= 'a' && ch <= 'z' ? static_cast<char>(ch - 'a' + 'A') : ch;
}

/// Blank, tab, line feed, vertical tab, form feed, carriage return.
inline constexpr const char* kWhiteSpace = " \t\n\v\f\r";
} // namespace vorn
