#pragma once

#include "family/TarnComm/core/ProxyInfo.h"

#include <memory>
#include <vector>

/// The proxies of a user in the order in which they are tried. Owns its entries; a copy has copies of them.
class TARNCOMM_API ProxySet
{
public:
    ProxySet();
    ProxySet(const ProxySet& other);
    ProxySet& operator=(const ProxySet& other);
    ~ProxySet();

    int GetCount() const;

    /// The entry at an index from 0; null outside of 0 to GetCount() - 1. Stays the set's.
    ProxyInfo* GetAt(int index) const;

    /// Appends an entry, made with new, which is the set's from then on.
    /// @return false, and the entry stays the caller's, when it is null, in the set already, or memory is short.
    bool AddProxy(ProxyInfo* proxy);

    /// Takes an entry out and deletes it.
    /// @return false when the set has no such entry, which is left alone.
    bool DeleteProxy(ProxyInfo* proxy);

private:
    using Entries = std::vector<std::unique_ptr<ProxyInfo>>;

    Entries::const_iterator Find(const ProxyInfo* proxy) const;

    Entries m_entries;
};
