#pragma once

#include <optional>
#include <string>
#include <string_view>

/// @file
/// What the words of a command say about a proxy.
namespace vorn::tool
{

/// The number that a type of proxy is stored as: "http" 1, "socks4" 2, "socks5" 3, "tunnel" 4, in either case.
std::optional<int> ProxyTypeNamed(std::string_view word);

/// The word for a type; nothing for a number that is none.
std::optional<std::string> NameOfProxyType(int type);

/// The letters and digits before "://" in an address; nothing when that does not stand there, or behind anything else.
std::optional<std::string_view> SchemeOf(std::string_view address);

struct ProxyPorts
{
    unsigned short first;
    unsigned short last;
};

/// "443" or "8000-8080": whole numbers from 0 to 65535, the first not above the last.
std::optional<ProxyPorts> ParseProxyPorts(std::string_view text);

std::string TextOf(const ProxyPorts& ports);

} // namespace vorn::tool
