#include "files/core/ExtensionSet.h"

#include <algorithm>

namespace vorn
{

namespace
{

/// Takes the text up to the next separator off the set, and the separator.
std::string_view TakeEntry(std::string_view& set)
{
    const std::size_t length = std::min(set.find('|'), set.size());
    const std::string_view entry = set.substr(0, length);
    set.remove_prefix(std::min(length + 1, set.size()));
    return entry;
}

std::string_view WithoutBlanks(std::string_view text)
{
    constexpr const char* kBlanks = " \t";
    const std::size_t first = text.find_first_not_of(kBlanks);
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view ExtensionOf(std::string_view entry)
{
    const std::string_view extension = WithoutBlanks(entry);
    return extension.starts_with('.') ? extension.substr(1) : extension;
}

} // namespace

std::string_view ExtensionAt(std::string_view set, int index)
{
    for (int next = 0; index >= 0 && !set.empty();)
    {
        const std::string_view entry = TakeEntry(set);
        if (!entry.empty() && next++ == index)
        {
            return ExtensionOf(entry);
        }
    }
    return {};
}

} // namespace vorn
