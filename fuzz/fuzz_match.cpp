#include "frame/core/Match.h"
#include "frame/core/Trim.h"

#include <cstdlib>
#include <string_view>

namespace
{

/// The rules one character at a time, without indexes or searches: what the quick way must agree with.
bool Walks(std::string_view pattern, std::string_view text)
{
    while (!pattern.empty() && !text.empty())
    {
        const char c = pattern.front();
        if (c != '*')
        {
            if (c != '?' && c != text.front())
            {
                return false;
            }
            pattern.remove_prefix(1);
            text.remove_prefix(1);
            continue;
        }
        pattern.remove_prefix(1);
        if (pattern.empty())
        {
            return true;
        }
        std::size_t run = 0;
        while (run < pattern.size() && pattern[run] != '*' && pattern[run] != '?')
        {
            ++run;
        }
        while (text.size() >= run && text.substr(0, run) != pattern.substr(0, run))
        {
            text.remove_prefix(1);
        }
        if (text.size() < run)
        {
            return false;
        }
        pattern.remove_prefix(run);
        text.remove_prefix(run);
    }
    return pattern.empty() ? text.empty() : pattern.front() == '*';
}

} // namespace

/// The first byte chooses the options, the text up to the first zero is the pattern.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size == 0)
    {
        return 0;
    }
    const std::string_view input(reinterpret_cast<const char*>(data) + 1, size - 1);
    const std::string_view pattern = input.substr(0, input.find('\0'));
    const std::string_view text = input.substr(std::min(pattern.size() + 1, input.size()));
    const vorn::MatchOptions options{(data[0] & 1) != 0, (data[0] & 2) != 0};
    const bool matched = vorn::MatchText(pattern, text, options);

    const std::string_view trimmed = vorn::TrimBoth(pattern);
    const bool wild = trimmed.find_first_of("*?") != std::string_view::npos;
    if (options.caseSensitive && !options.exact && wild && trimmed != "*")
    {
        if (matched != Walks(trimmed, vorn::TrimBoth(text)))
        {
            std::abort();
        }
    }
    // What matches with case matches without.
    if (matched && options.caseSensitive && !vorn::MatchText(pattern, text, {false, options.exact}))
    {
        // A first place of the folded run may lie before the exact one: only patterns without stars are sure.
        if (trimmed.find('*') == std::string_view::npos)
        {
            std::abort();
        }
    }
    return 0;
}
