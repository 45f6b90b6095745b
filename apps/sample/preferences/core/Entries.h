#pragma once

#include <optional>
#include <string>
#include <string_view>

/// @file
/// What users type into the fields of preferences.

namespace vorn::preferences
{

/// A whole number in a range, with blanks around it and commas between groups of three digits where the user likes
/// them. Nothing for anything else.
std::optional<int> WholeNumber(std::string_view text, int least, int most);

/// A number from 0 to 1 with a point, or with a comma, for the decimals. Nothing for anything else.
std::optional<double> Factor(std::string_view text);

/// The shortest text that gives the same number again, in every locale.
std::string FactorText(double factor);

/// A folder as the settings keep it: without blanks and quotation marks around it, with a backslash at its end.
std::string FolderText(std::string_view typed);

/// What is wrong with a folder that FolderText() gave, as a sentence; empty when nothing is. A folder begins with a
/// drive or a computer's name, is shorter than 260 characters and has none that Windows forbids in names. It need not
/// exist.
std::string FolderFault(std::string_view folder);

} // namespace vorn::preferences
