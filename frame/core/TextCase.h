#pragma once

#include <string_view>

/// @file
/// Comparison of names without regard to case. Only the letters A to Z fold: the names compared here
/// (programs, settings sections) are the family's own, and the result must not follow the user's locale.
namespace vorn
{
/// True when both texts are equal but for the case of letters.
bool EqualsNoCase(std::string_view a, std::string_view b);

/// True when `part` occurs in `text`, letters compared without regard to case. An empty part always occurs.
bool ContainsNoCase(std::string_view text, std::string_view part);
} // namespace vorn
