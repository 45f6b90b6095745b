#include "frame/core/TextCase.h"

#include "framework/core/AsciiText.h"

#include <algorithm>

namespace vorn
{
namespace
{
bool SameLetter(char a, char b)
{
    return ToUpperAscii(a) == ToUpperAscii(b);
}
} // namespace

bool EqualsNoCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), SameLetter);
}

bool ContainsNoCase(std::string_view text, std::string_view part)
{
    return std::search(text.begin(), text.end(), part.begin(), part.end(), SameLetter) != text.end() || part.empty();
}
} // namespace vorn
