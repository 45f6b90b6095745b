#pragma once

#include "family/TarnComm/core/ProxySet.h"
#include "frame/core/Export.h"

/// @file
/// The proxies that the whole family uses, kept for the user among the shared settings: application "Global", section
/// "Proxy" with their number under "Count", and a section "Proxy 1", "Proxy 2", ... for each, with the values Type,
/// Host, Port, User, Password, FirstPort, LastPort and Enabled. Passwords are encrypted for the user.

/// Replaces what `proxies` holds by the stored ones, in their order. A password that this user cannot decrypt is left
/// out.
/// @return their number
VORNCOMMON_API int LoadProxies(ProxySet& proxies);

/// Stores the whole set in place of the one before.
/// @return false when the registry, or the encryption of a password, refused a part of it; a text of more than 1,023
/// characters, which could not be read again, is refused too. The rest is stored.
VORNCOMMON_API bool StoreProxies(const ProxySet& proxies);
