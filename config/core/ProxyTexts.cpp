#include "config/core/ProxyTexts.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace vorn
{

namespace
{

unsigned short ParsePort(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
    unsigned short port = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    return error == std::errc() ? port : static_cast<unsigned short>(0);
}

} // namespace

std::string ProxyLine(const char* host, unsigned short port)
{
    if (host == nullptr || *host == '\0')
    {
        return "<no host>";
    }
    std::string line = host;
    if (port != 0)
    {
        line.append(":").append(std::to_string(port));
    }
    return line;
}

std::string PortsText(PortRange ports)
{
    std::string text = std::to_string(ports.first);
    if (ports.first != ports.last)
    {
        text.append("-").append(std::to_string(ports.last));
    }
    return text;
}

PortRange ParsePorts(std::string_view text)
{
    const std::size_t hyphen = text.find('-', 1);
    const unsigned short first = ParsePort(text.substr(0, hyphen));
    return {first, hyphen == std::string_view::npos ? first : ParsePort(text.substr(hyphen + 1))};
}

} // namespace vorn
