#pragma once

#include <string_view>

namespace vorn
{

/// The "C" locale's white space: blank, tab, line feed, vertical tab, form feed, carriage return. The
/// no-break blank of code page 1252 (0xA0) is a letter like any other here.
constexpr bool IsSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// The text without white space at its two ends; a part of `text`, never a copy.
constexpr std::string_view TrimBoth(std::string_view text)
{
    while (!text.empty() && IsSpace(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsSpace(text.back()))
        text.remove_suffix(1);
    return text;
}

/// The trimmed text up to its first blank. A tab inside does not end it.
constexpr std::string_view FirstWord(std::string_view text)
{
    const std::string_view trimmed = TrimBoth(text);
    return trimmed.substr(0, trimmed.find(' '));
}

} // namespace vorn
