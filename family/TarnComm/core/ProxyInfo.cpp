#include "family/TarnComm/core/ProxyInfo.h"

namespace
{

constexpr unsigned short kSocksPort = 1080;
constexpr unsigned short kHttpPort = 8080;

} // namespace

ProxyInfo::ProxyInfo() = default;

ProxyInfo::ProxyInfo(const ProxyInfo& other) = default;

ProxyInfo& ProxyInfo::operator=(const ProxyInfo& other) = default;

ProxyInfo::~ProxyInfo() = default;

unsigned short ProxyInfo::UsualPort(int type)
{
    return type == kSocks4 || type == kSocks5 ? kSocksPort : kHttpPort;
}
