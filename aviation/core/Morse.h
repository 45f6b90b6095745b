#pragma once

#include "frame/core/Export.h"

#include <climits>

/// @file
/// Idents in International Morse code (ITU-R M.1677-1), as they are drawn beside navigation aids: a dot is one unit
/// wide and a dash four; a unit parts the elements of a letter, three part letters. Only the letters A to Z are coded,
/// in both cases.

/// Width of a text in pixels, `unit` pixels a unit. 0 for a null or empty text; -1 when a character is no letter.
/// Widths beyond 32 bits stop at the largest or smallest `int`.
VORNCOMMON_API int MorseWidth(int unit, const char* text);

namespace vorn
{

/// The elements of a letter.
struct MorseCode
{
    int elements = 0;    ///< 1 to 4; 0 for what is no letter
    unsigned dashes = 0; ///< bit i is set when element i, counted from 0, is a dash
};

/// The code of a letter of either case.
VORNCOMMON_API MorseCode MorseCodeOf(char letter);

inline constexpr int kDotUnits = 1;
inline constexpr int kDashUnits = 4;
inline constexpr int kElementGap = 1;
inline constexpr int kLetterGap = 3;

/// Where text alignment puts a text's start, in pixels: 2 (right) ends it before `x`, 6 (centre) moves it by half its
/// width cut toward zero; any other value starts at `x`.
long long MorseStart(int x, int width, int align);

/// Columns from `left` up to, not including, `right`.
struct MorseBlock
{
    long long left;
    long long right;
};

/// Calls visit(MorseBlock) for each element of the text that begins within 32 bits, from left to right. Nothing for a
/// unit below 1, a null text, or a text with a character that is no letter.
template <typename Visit>
void VisitMorse(int x, int unit, int align, const char* text, Visit visit)
{
    const int width = MorseWidth(unit, text);
    if (unit < 1 || width < 1)
    {
        return;
    }
    long long left = MorseStart(x, width, align);
    for (const char* letter = text; *letter != '\0'; ++letter)
    {
        const MorseCode code = MorseCodeOf(*letter);
        for (int i = 0; i < code.elements; ++i)
        {
            if (left > INT_MAX)
            {
                return;
            }
            const bool dash = (code.dashes >> i & 1) != 0;
            const long long right = left + static_cast<long long>(unit) * (dash ? kDashUnits : kDotUnits);
            visit(MorseBlock{left, right});
            left = right + static_cast<long long>(unit) * kElementGap;
        }
        left += static_cast<long long>(unit) * (kLetterGap - kElementGap);
    }
}

} // namespace vorn
