#pragma once

#include "family/TarnComm/core/URI.h"

/// One proxy: how and where it is reached, and what it is used for.
class TARNCOMM_API ProxyInfo
{
public:
    /// Values of mType.
    enum Type : int
    {
        kHttp = 1,
        kSocks4 = 2,
        kSocks5 = 3,
        kHttpTunneling = 4
    };

    /// An HTTP proxy without address for all destination ports, in use.
    ProxyInfo();
    ProxyInfo(const ProxyInfo& other);
    ProxyInfo& operator=(const ProxyInfo& other);
    ~ProxyInfo();

    /// The port that a proxy of a type usually listens at: 1080 for SOCKS, 8080 for all others.
    static unsigned short UsualPort(int type);

    int mType = kHttp; ///< a Type, or a number that another program stored
    URI mAddress;
    unsigned short mFirstPort = 1;     ///< lowest destination port that the proxy is used for
    unsigned short mLastPort = 0xFFFF; ///< highest one; the same as the first for a single port
    bool mEnabled = true;              ///< whether the proxy is in use
};
