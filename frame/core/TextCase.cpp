#include "frame/core/TextCase.h"

#include "framework/core/AsciiText.h"

#include <algorithm>

namespace vorn
{
namespace
{
bool sameLetter(char a, char b)
{
    return ToUpperAscii(a) == ToUpperAscii(b);
}
} // namespace

bool equalsNoCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), sameLetter);
}

bool containsNoCase(std::string_view text, std::string_view part)
{
    return std::search(text.begin(), text.end(), part.begin(), part.end(), sameLetter) != text.end() || part.empty();
}
} // namespace vorn
