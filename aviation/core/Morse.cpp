#include "aviation/core/Morse.h"

#include <algorithm>
#include <array>
#include <bit>

namespace
{

// Element 0, which is sent first, is the lowest bit: A, a dot and a dash, is 2.
constexpr std::array<vorn::MorseCode, 26> kLetters = {{
    {2, 0b10},   // A .-
    {4, 0b0001}, // B -...
    {4, 0b0101}, // C -.-.
    {3, 0b001},  // D -..
    {1, 0b0},    // E .
    {4, 0b0100}, // F ..-.
    {3, 0b011},  // G --.
    {4, 0b0000}, // H ....
    {2, 0b00},   // I ..
    {4, 0b1110}, // J .---
    {3, 0b101},  // K -.-
    {4, 0b0010}, // L .-..
    {2, 0b11},   // M --
    {2, 0b01},   // N -.
    {3, 0b111},  // O ---
    {4, 0b0110}, // P .--.
    {4, 0b1011}, // Q --.-
    {3, 0b010},  // R .-.
    {3, 0b000},  // S ...
    {1, 0b1},    // T -
    {3, 0b100},  // U ..-
    {4, 0b1000}, // V ...-
    {3, 0b110},  // W .--
    {4, 0b1001}, // X -..-
    {4, 0b1101}, // Y -.--
    {4, 0b0011}, // Z --..
}};

constexpr int kAlignRight = 2;
constexpr int kAlignCentre = 6;

int LetterUnits(const vorn::MorseCode& code)
{
    const int dashes = std::popcount(code.dashes);
    return code.elements * (vorn::kDotUnits + vorn::kElementGap) + dashes * (vorn::kDashUnits - vorn::kDotUnits) -
           vorn::kElementGap;
}

int Saturated(long long value)
{
    return static_cast<int>(std::clamp<long long>(value, INT_MIN, INT_MAX));
}

} // namespace

namespace vorn
{

MorseCode MorseCodeOf(char letter)
{
    const char upper = letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
    return upper >= 'A' && upper <= 'Z' ? kLetters[static_cast<std::size_t>(upper - 'A')] : MorseCode{};
}

long long MorseStart(int x, int width, int align)
{
    const long long start = x;
    return align == kAlignRight ? start - width : align == kAlignCentre ? start - width / 2 : start;
}

} // namespace vorn

int MorseWidth(int unit, const char* text)
{
    if (text == nullptr)
    {
        return 0;
    }
    long long units = 0;
    for (const char* letter = text; *letter != '\0'; ++letter)
    {
        const vorn::MorseCode code = vorn::MorseCodeOf(*letter);
        if (code.elements == 0)
        {
            return -1;
        }
        units += LetterUnits(code) + (letter == text ? 0 : vorn::kLetterGap);
    }
    return Saturated(Saturated(units) * static_cast<long long>(unit));
}
