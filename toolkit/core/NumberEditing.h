#pragma once

#include <optional>
#include <string>
#include <string_view>

/// @file
/// What may be typed and pasted into an edit field for decimal numbers, and how its number is read and shown.
/// Independent of the locale.
namespace vorn
{

inline constexpr int kMostDecimals = 15;

/// Rounded to so many decimals, halves away from zero. Numbers whose digits do not reach that far, and what is no
/// number, stay as they are.
double RoundedToDecimals(double value, int decimals);

/// With at most 15 significant digits: "123.46", "1e+20". Zero has no sign; what is no number is "0".
std::string NumberText(double value);

/// The number that a whole text is; 0 for a text that is none ("", "-", ".", "--5").
double TypedNumber(std::string_view text);

/// Where a text is being edited.
struct EditedNumber
{
    std::string_view text;     ///< without what is selected
    int position = 0;          ///< of the next character, counted from 0
    bool pointAllowed = false; ///< whether a number may have decimals at all
};

/// Digits and control characters pass; "-" at the beginning only; "." where decimals are allowed and the text has no
/// point.
bool PassesIntoNumber(unsigned character, const EditedNumber& edited);

/// Whether all characters of a text pass, put in one after the other.
bool PassesIntoNumber(std::string_view pasted, const EditedNumber& edited);

/// What is told about a text that does not pass. A very long one is quoted with its middle left out.
std::string RefusedPasteMessage(std::string_view pasted);

} // namespace vorn
