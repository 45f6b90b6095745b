#pragma once

#include <string>
#include <string_view>

namespace vorn
{

/// A playful respelling: everything in lower case, and every letter that `chance()` says yes to (non-zero, asked once
/// for each of the 26 letters in the text) written as one to three characters. Other characters stay. The result has
/// between one and three times as many characters as the text.
std::string Respell(std::string_view text, int (*chance)());

/// What a lower-case letter may turn into; empty for any other character.
std::string_view RespellingOf(char letter);

} // namespace vorn
