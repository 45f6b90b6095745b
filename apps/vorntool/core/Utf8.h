#pragma once

#include <string>
#include <string_view>

namespace vorn::tool
{

/// @p text with every byte that is part of no valid UTF-8 sequence (overlong forms, surrogates and codes above 10FFFF
/// included) replaced by U+FFFD.
std::string ValidUtf8(std::string_view text);

/// The number of characters (code points) in a UTF-8 text, for lining up columns.
std::size_t CharacterCount(std::string_view text);

/// @p text on one line: control characters as \n, \r, \t or \xHH. For people: a backslash stays single.
std::string OneLine(std::string_view text);

} // namespace vorn::tool
