#include "frame/core/Respell.h"

#include "framework/core/AsciiText.h"

#include <algorithm>
#include <array>

namespace vorn
{

namespace
{

constexpr std::size_t kLongestSpelling = 3;

constexpr std::array<std::string_view, 26> kSpellings = {
    "ah", "bee", "k",  "dee", "eh", "ph",  "gh", "hh", "iy",  "dj", "kk", "ll", "mm",
    "nn", "oh",  "pp", "kw",  "rr", "zss", "tt", "oo", "veh", "wh", "ks", "yy", "zed",
};
static_assert(std::all_of(kSpellings.begin(), kSpellings.end(),
                          [](std::string_view s)
                          {
                              return !s.empty() && s.size() <= kLongestSpelling;
                          }));

} // namespace

std::string_view RespellingOf(char letter)
{
    return letter >= 'a' && letter <= 'z' ? kSpellings[static_cast<std::size_t>(letter - 'a')] : std::string_view();
}

std::string Respell(std::string_view text, int (*chance)())
{
    std::string result;
    result.reserve(text.size() * kLongestSpelling);
    for (const char c : text)
    {
        const char lower = ToLowerAscii(c);
        const std::string_view spelling = RespellingOf(lower);
        if (!spelling.empty() && chance() != 0)
            result += spelling;
        else
            result += lower;
    }
    return result;
}

} // namespace vorn
