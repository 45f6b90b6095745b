#pragma once

#include "family/TarnComm/core/ProxyInfo.h"

#include <array>
#include <string>
#include <string_view>

/// @file
/// How proxies are shown and typed.
namespace vorn
{

/// An entry of the list of types, in the order in which it is offered.
struct ProxyTypeName
{
    const char* text;
    int type; ///< what a proxy of that kind is stored as
};

inline constexpr std::array<ProxyTypeName, 4> kProxyTypes = {{{"HTTP", ProxyInfo::kHttp},
                                                              {"HTTP Tunneling", ProxyInfo::kHttpTunneling},
                                                              {"SOCKS Version 4", ProxyInfo::kSocks4},
                                                              {"SOCKS Version 5", ProxyInfo::kSocks5}}};

/// "host:port", the host alone without port, "<no host>" without host. Null is an empty host.
std::string ProxyLine(const char* host, unsigned short port);

/// Destination ports that a proxy is used for.
struct PortRange
{
    unsigned short first;
    unsigned short last;
    bool operator==(const PortRange&) const = default;
};

/// "first-last", or the one port.
std::string PortsText(PortRange ports);

/// The range of "first-last"; a text without a hyphen behind its first character is a single port. Numbers are read
/// after blanks as far as their digits go; one above 65535, and a text without digits, is 0.
PortRange ParsePorts(std::string_view text);

} // namespace vorn
