#include "apps/vorntool/core/ProxyWords.h"

#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>
#include <climits>

namespace vorn::tool
{

namespace
{

constexpr const char* kTypes[] = {"http", "socks4", "socks5", "tunnel"}; // stored as 1, 2, 3, 4

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

bool IsLetterOrDigit(char c)
{
    return (Lower(c) >= 'a' && Lower(c) <= 'z') || (c >= '0' && c <= '9');
}

bool AreAlike(std::string_view one, std::string_view other)
{
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b)
                      {
                          return Lower(a) == Lower(b);
                      });
}

std::optional<unsigned short> ParsePort(std::string_view text)
{
    const bool isDigit = !text.empty() && text.front() >= '0' && text.front() <= '9';
    const std::optional<std::int64_t> number = isDigit ? ParseWhole(text) : std::nullopt;
    return number && *number <= USHRT_MAX ? std::optional(static_cast<unsigned short>(*number)) : std::nullopt;
}

} // namespace

std::optional<int> ProxyTypeNamed(std::string_view word)
{
    for (std::size_t i = 0; i < std::size(kTypes); ++i)
    {
        if (AreAlike(word, kTypes[i]))
        {
            return static_cast<int>(i) + 1;
        }
    }
    return std::nullopt;
}

std::optional<std::string> NameOfProxyType(int type)
{
    const bool known = type >= 1 && type <= static_cast<int>(std::size(kTypes));
    return known ? std::optional<std::string>(kTypes[type - 1]) : std::nullopt;
}

std::optional<std::string_view> SchemeOf(std::string_view address)
{
    const std::size_t end = address.find("://");
    const std::string_view scheme = address.substr(0, end);
    const bool there = end != std::string_view::npos && std::all_of(scheme.begin(), scheme.end(), IsLetterOrDigit);
    return there ? std::optional(scheme) : std::nullopt;
}

std::optional<ProxyPorts> ParseProxyPorts(std::string_view text)
{
    const std::size_t hyphen = text.find('-');
    const std::optional<unsigned short> first = ParsePort(text.substr(0, hyphen));
    const std::optional<unsigned short> last =
        hyphen == std::string_view::npos ? first : ParsePort(text.substr(hyphen + 1));
    return first && last && *first <= *last ? std::optional(ProxyPorts{*first, *last}) : std::nullopt;
}

std::string TextOf(const ProxyPorts& ports)
{
    std::string text = std::to_string(ports.first);
    if (ports.first != ports.last)
    {
        text.append("-").append(std::to_string(ports.last));
    }
    return text;
}

} // namespace vorn::tool
