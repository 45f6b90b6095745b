#include "frame/core/Match.h"

#include "frame/core/LetterCase.h"
#include "frame/core/TextCase.h"
#include "frame/core/Trim.h"

#include <cstdint>
#include <vector>

namespace vorn
{

namespace
{

/// Up to this length a plain search stays linear enough and needs no memory.
constexpr std::size_t kShortRun = 32;

constexpr bool IsWildcard(char c)
{
    return c == '*' || c == '?';
}

/// A character as it is compared.
template <bool kFold>
char At(std::string_view text, std::size_t index)
{
    return kFold ? kLowerCase[static_cast<unsigned char>(text[index])] : text[index];
}

/// For each prefix of the run, the length of the longest proper prefix that is its suffix too (Knuth, Morris, Pratt).
template <bool kFold>
std::vector<std::size_t> BorderLengths(std::string_view run)
{
    std::vector<std::size_t> borders(run.size(), 0);
    std::size_t length = 0;
    for (std::size_t i = 1; i < run.size(); ++i)
    {
        while (length > 0 && At<kFold>(run, i) != At<kFold>(run, length))
            length = borders[length - 1];
        if (At<kFold>(run, i) == At<kFold>(run, length))
            ++length;
        borders[i] = length;
    }
    return borders;
}

template <bool kFold>
std::size_t FindLongRun(std::string_view text, std::string_view run, std::size_t from)
{
    const std::vector<std::size_t> borders = BorderLengths<kFold>(run);
    std::size_t matched = 0;
    for (std::size_t i = from; i < text.size(); ++i)
    {
        while (matched > 0 && At<kFold>(text, i) != At<kFold>(run, matched))
            matched = borders[matched - 1];
        if (At<kFold>(text, i) == At<kFold>(run, matched))
            ++matched;
        if (matched == run.size())
            return i + 1 - matched;
    }
    return std::string_view::npos;
}

template <bool kFold>
bool StandsAt(std::string_view text, std::string_view run, std::size_t place)
{
    for (std::size_t i = 0; i < run.size(); ++i)
    {
        if (At<kFold>(text, place + i) != At<kFold>(run, i))
            return false;
    }
    return true;
}

template <bool kFold>
std::size_t FindShortRun(std::string_view text, std::string_view run, std::size_t from)
{
    for (std::size_t place = from; place + run.size() <= text.size(); ++place)
    {
        if (StandsAt<kFold>(text, run, place))
            return place;
    }
    return std::string_view::npos;
}

template <bool kFold>
std::size_t Find(std::string_view text, std::string_view run, std::size_t from)
{
    return run.size() <= kShortRun ? FindShortRun<kFold>(text, run, from) : FindLongRun<kFold>(text, run, from);
}

/// The plain characters of a pattern from `from` on, up to the next wildcard.
std::string_view RunAt(std::string_view pattern, std::size_t from)
{
    std::size_t end = from;
    while (end < pattern.size() && !IsWildcard(pattern[end]))
        ++end;
    return pattern.substr(from, end - from);
}

/// Both indexes move together from the left until one side is used up.
template <bool kFold>
bool Walk(std::string_view pattern, std::string_view text)
{
    std::size_t p = 0;
    std::size_t t = 0;
    while (p < pattern.size() && t < text.size())
    {
        if (pattern[p] == '*')
        {
            if (++p == pattern.size())
                return true;
            const std::string_view run = RunAt(pattern, p);
            const std::size_t place = Find<kFold>(text, run, t);
            if (place == std::string_view::npos)
                return false;
            p += run.size();
            t = place + run.size();
            continue;
        }
        if (pattern[p] != '?' && At<kFold>(pattern, p) != At<kFold>(text, t))
            return false;
        ++p;
        ++t;
    }
    return p == pattern.size() ? t == text.size() : pattern[p] == '*';
}

} // namespace

std::size_t FindRun(std::string_view text, std::string_view run, std::size_t from)
{
    return Find<false>(text, run, from);
}

bool MatchText(std::string_view pattern, std::string_view text, MatchOptions options)
{
    pattern = TrimBoth(pattern);
    text = TrimBoth(text);
    if (pattern.empty())
        return false;
    if (pattern == "*")
        return true;
    if (options.exact || RunAt(pattern, 0).size() == pattern.size())
        return options.caseSensitive ? pattern == text : EqualsNoCase(pattern, text);
    return options.caseSensitive ? Walk<false>(pattern, text) : Walk<true>(pattern, text);
}

} // namespace vorn
