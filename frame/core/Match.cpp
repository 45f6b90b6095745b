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

constexpr std::string_view kWildcards = "*?";

/// Up to this length a plain search stays linear enough and needs no memory.
constexpr std::size_t kShortRun = 32;

/// For each prefix of the run, the length of the longest proper prefix that is its suffix too (Knuth, Morris, Pratt).
std::vector<std::size_t> BorderLengths(std::string_view run)
{
    std::vector<std::size_t> borders(run.size(), 0);
    std::size_t length = 0;
    for (std::size_t i = 1; i < run.size(); ++i)
    {
        while (length > 0 && run[i] != run[length])
            length = borders[length - 1];
        if (run[i] == run[length])
            ++length;
        borders[i] = length;
    }
    return borders;
}

std::size_t FindLongRun(std::string_view text, std::string_view run, std::size_t from)
{
    const std::vector<std::size_t> borders = BorderLengths(run);
    std::size_t matched = 0;
    for (std::size_t i = from; i < text.size(); ++i)
    {
        while (matched > 0 && text[i] != run[matched])
            matched = borders[matched - 1];
        if (text[i] == run[matched])
            ++matched;
        if (matched == run.size())
            return i + 1 - matched;
    }
    return std::string_view::npos;
}

/// Both indexes move together from the left until one side is used up.
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
            const std::string_view run = pattern.substr(p, pattern.find_first_of(kWildcards, p) - p);
            const std::size_t place = FindRun(text, run, t);
            if (place == std::string_view::npos)
                return false;
            p += run.size();
            t = place + run.size();
            continue;
        }
        if (pattern[p] != '?' && pattern[p] != text[t])
            return false;
        ++p;
        ++t;
    }
    return p == pattern.size() ? t == text.size() : pattern[p] == '*';
}

} // namespace

std::size_t FindRun(std::string_view text, std::string_view run, std::size_t from)
{
    if (run.empty())
        return from;
    return run.size() <= kShortRun ? text.find(run, from) : FindLongRun(text, run, from);
}

bool MatchText(std::string_view pattern, std::string_view text, MatchOptions options)
{
    pattern = TrimBoth(pattern);
    text = TrimBoth(text);
    if (pattern.empty())
        return false;
    if (pattern == "*")
        return true;
    if (options.exact || pattern.find_first_of(kWildcards) == std::string_view::npos)
        return options.caseSensitive ? pattern == text : EqualsNoCase(pattern, text);
    if (options.caseSensitive)
        return Walk(pattern, text);
    return Walk(LowerCopy(pattern), LowerCopy(text));
}

} // namespace vorn
