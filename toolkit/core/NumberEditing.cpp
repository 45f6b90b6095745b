#include "toolkit/core/NumberEditing.h"

#include "framework/core/NumberScan.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace vorn
{

namespace
{
constexpr int kShownDigits = 15;
constexpr std::size_t kLongestQuote = 4000;

bool IsDigit(unsigned character)
{
    return character >= '0' && character <= '9';
}

bool IsControl(unsigned character)
{
    return character < 0x20 || character == 0x7F;
}

std::string Quotable(std::string_view text)
{
    if (text.size() <= kLongestQuote)
    {
        return std::string(text);
    }
    constexpr std::size_t kHalf = kLongestQuote / 2;
    return std::string(text.substr(0, kHalf)).append("...").append(text.substr(text.size() - kHalf));
}
} // namespace

double RoundedToDecimals(double value, int decimals)
{
    constexpr double kLastWhole = 9007199254740992; // 2^53: from here on there are no fractions
    const double scale = std::pow(10.0, std::clamp(decimals, 0, kMostDecimals));
    const double scaled = value * scale;
    return std::fabs(scaled) < kLastWhole ? std::round(scaled) / scale : value;
}

std::string NumberText(double value)
{
    const bool isNone = !std::isfinite(value) || value == 0;
    return RealText(isNone ? 0 : value, kShownDigits);
}

double TypedNumber(std::string_view text)
{
    return ScanReal(text).value_or(0);
}

bool PassesIntoNumber(unsigned character, const EditedNumber& edited)
{
    if (character == '-')
    {
        return edited.position == 0;
    }
    if (character == '.')
    {
        return edited.pointAllowed && edited.text.find('.') == std::string_view::npos;
    }
    return IsDigit(character) || IsControl(character);
}

bool PassesIntoNumber(std::string_view pasted, const EditedNumber& edited)
{
    std::string text(edited.text);
    int position = edited.position;
    for (const char letter : pasted)
    {
        const unsigned character = static_cast<unsigned char>(letter);
        if (!PassesIntoNumber(character, {text, position, edited.pointAllowed}))
        {
            return false;
        }
        if (character == '.')
        {
            text += letter; // where it stands makes no difference
        }
        position += IsControl(character) ? 0 : 1;
    }
    return true;
}

std::string RefusedPasteMessage(std::string_view pasted)
{
    return std::string("Format of the following value is not compatible with this control\n\"")
        .append(Quotable(pasted))
        .append("\"\nPaste Command Ignored.");
}

} // namespace vorn
