#pragma once

#include "framework/core/AsciiText.h"

#include <array>

namespace vorn
{

/// The lower-case form of each byte (only the 26 letters have one), for loops that fold whole texts.
inline constexpr std::array<char, 256> kLowerCase = []
{
    std::array<char, 256> table{};
    for (unsigned i = 0; i < table.size(); ++i)
        table[i] = ToLowerAscii(static_cast<char>(i));
    return table;
}();

} // namespace vorn
