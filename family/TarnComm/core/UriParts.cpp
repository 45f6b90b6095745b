#include "family/TarnComm/core/UriParts.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace vorn
{

namespace
{

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool IsSchemeCharacter(char c)
{
    return IsLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.';
}

bool IsScheme(std::string_view text)
{
    return !text.empty() && IsLetter(text.front()) && std::all_of(text.begin(), text.end(), IsSchemeCharacter);
}

bool IsBlank(char c)
{
    return static_cast<unsigned char>(c) <= ' ';
}

std::string_view Trimmed(std::string_view text)
{
    while (!text.empty() && IsBlank(text.front()))
    {
        text.remove_prefix(1);
    }
    while (!text.empty() && IsBlank(text.back()))
    {
        text.remove_suffix(1);
    }
    return text;
}

/// The text before `mark`, which is taken off together with it.
std::string_view TakeBefore(std::string_view& text, std::size_t mark, std::size_t length)
{
    const std::string_view before = text.substr(0, mark);
    text.remove_prefix(mark + length);
    return before;
}

void TakeScheme(std::string_view& text, UriParts& parts)
{
    constexpr std::string_view mark = "://";
    const std::size_t found = text.find(mark);
    if (found != std::string_view::npos && IsScheme(text.substr(0, found)))
    {
        parts.scheme = TakeBefore(text, found, mark.size());
    }
}

void TakeAccount(std::string_view& text, UriParts& parts)
{
    const std::size_t at = text.rfind('@');
    if (at == std::string_view::npos)
    {
        return;
    }
    const std::string_view account = TakeBefore(text, at, 1);
    const std::size_t colon = account.find(':');
    parts.user = account.substr(0, colon);
    if (colon != std::string_view::npos)
    {
        parts.password = account.substr(colon + 1);
    }
}

/// Where the colon before a port may stand: nowhere in an address that is still in its bracket.
std::size_t PortColon(std::string_view text)
{
    const bool inBrackets = !text.empty() && text.front() == '[';
    const std::size_t bracket = inBrackets ? text.find(']') : 0;
    return bracket == std::string_view::npos ? bracket : text.find(':', bracket);
}

} // namespace

UriParts SplitUri(std::string_view text)
{
    UriParts parts;
    text = Trimmed(text);
    TakeScheme(text, parts);
    text = text.substr(0, text.find_first_of("/?#"));
    TakeAccount(text, parts);
    text = Trimmed(text);
    const std::size_t colon = PortColon(text);
    parts.host = Trimmed(text.substr(0, colon));
    if (colon != std::string_view::npos)
    {
        parts.port = Trimmed(text.substr(colon + 1));
    }
    return parts;
}

std::optional<unsigned short> ParseUriPort(std::string_view digits)
{
    unsigned short port = 0;
    const char* const end = digits.data() + digits.size();
    const auto [last, error] = std::from_chars(digits.data(), end, port);
    return error == std::errc() && last == end ? std::optional(port) : std::nullopt;
}

} // namespace vorn
