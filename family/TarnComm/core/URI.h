#pragma once

#include "family/TarnComm/core/Export.h"

/// The address of a host in the network, with the account that it asks for. Owns its texts, which are terminated by a
/// zero; one that is not there is null, never empty.
class TARNCOMM_API URI
{
public:
    URI();
    URI(const URI& other);
    URI& operator=(const URI& other);
    ~URI();

    /// Takes [scheme://][user[:password]@]host[:port][/path] apart. Host and port are replaced in any case, the port by
    /// 0 when there is none or it is no number from 0 to 65535. User name and password are replaced, both, only by a
    /// text with an "@": a plain host keeps the account. Scheme and path are passed over, nothing is decoded ("%41"
    /// stays), and blanks around the host are left out.
    ///
    ///     proxy                        host "proxy", port 0
    ///     http://proxy:3128/x          host "proxy", port 3128
    ///     joe:secret@proxy.example     user "joe", password "secret", host "proxy.example"
    ///     joe@example.com@proxy        user "joe@example.com", no password, host "proxy"
    ///     [2001:db8::1]:1080           host "[2001:db8::1]", port 1080
    ///
    /// @return false when there is no host (null, "", ":80", "joe@") or the port is none ("proxy:x", "proxy:65536",
    /// "proxy:"); what could be read is taken over all the same. False, too, with nothing changed, without memory.
    bool Parse(const char* text);

    /// Replaces a part, mpUser for instance, by a copy of `text`; null and an empty text make it null. `text` may be
    /// the part itself. Without memory the part stays as it was.
    static void SetString(char*& part, const char* text);

    char* mpUser = nullptr;
    char* mpPassword = nullptr;
    char* mpHost = nullptr;
    unsigned short mPort = 0; ///< 0: none is said
};
