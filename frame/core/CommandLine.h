#pragma once

#include <string_view>

namespace vorn
{

/// Takes the first argument off `line` and says whether there was one.
///
/// Blanks and tabs (nothing else) separate. An argument that begins with a double quote runs to the next double quote,
/// or to the end of the line without one; the quotes are not part of it, and there is no way to write a quote inside. A
/// quote in the middle of a word is an ordinary character. So `"a"b` holds two arguments and a lone `"` one empty
/// argument.
bool TakeArgument(std::string_view& line, std::string_view& argument);

/// Hands every argument of `line` to `sink(std::string_view)`, from left to right.
template <class Sink>
void ForEachArgument(std::string_view line, Sink&& sink)
{
    std::string_view argument;
    while (TakeArgument(line, argument))
        sink(argument);
}

} // namespace vorn
