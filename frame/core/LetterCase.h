#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vorn
{

/// Lower case of the 26 letters; every other byte, also above 127, stays.
constexpr char ToLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// The lower-case form of each byte, for loops that fold whole texts.
inline constexpr std::array<char, 256> kLowerCase = []
{
    std::array<char, 256> table{};
    for (unsigned i = 0; i < table.size(); ++i)
        table[i] = ToLower(static_cast<char>(i));
    return table;
}();

/// A lower-case copy.
inline std::string LowerCopy(std::string_view text)
{
    std::string copy(text);
    for (char& c : copy)
        c = kLowerCase[static_cast<unsigned char>(c)];
    return copy;
}

} // namespace vorn
