#pragma once

#include <string_view>

namespace vorn
{

/// How `MatchText` compares.
struct MatchOptions
{
    bool caseSensitive = true; ///< false: the 26 letters match in either case
    bool exact = false;        ///< true: "*" and "?" are ordinary characters
};

/// Wildcard comparison of a whole text: "?" stands for one character, "*" for any number.
///
/// White space at the ends of both is ignored. An empty pattern matches nothing; the pattern "*" matches everything, an
/// empty text included, and is looked at before `exact`. The characters behind a star are taken at their first place in
/// the text, without going back: "*.txt" does not match "a.txt.txt". A text that is used up at a star matches, whatever
/// follows the star: "a*b" matches "a".
bool MatchText(std::string_view pattern, std::string_view text, MatchOptions options);

/// Where `run` first stands in `text` at or after `from`, or `npos`; linear in the text for every run.
std::size_t FindRun(std::string_view text, std::string_view run, std::size_t from);

} // namespace vorn
