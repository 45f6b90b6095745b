#include "family/TarnComm/core/ProxySet.h"

#include <algorithm>
#include <new>

ProxySet::ProxySet() = default;

ProxySet::ProxySet(const ProxySet& other)
{
    *this = other;
}

ProxySet& ProxySet::operator=(const ProxySet& other)
{
    Entries copies;
    for (const std::unique_ptr<ProxyInfo>& each : other.m_entries)
    {
        copies.push_back(std::make_unique<ProxyInfo>(*each));
    }
    m_entries = std::move(copies);
    return *this;
}

ProxySet::~ProxySet() = default;

int ProxySet::GetCount() const
{
    return static_cast<int>(m_entries.size());
}

ProxyInfo* ProxySet::GetAt(int index) const
{
    return index >= 0 && index < GetCount() ? m_entries[static_cast<std::size_t>(index)].get() : nullptr;
}

bool ProxySet::AddProxy(ProxyInfo* proxy)
{
    if (proxy == nullptr || Find(proxy) != m_entries.end())
    {
        return false;
    }
    try
    {
        m_entries.emplace_back();
    }
    catch (const std::bad_alloc&)
    {
        return false;
    }
    m_entries.back().reset(proxy);
    return true;
}

bool ProxySet::DeleteProxy(ProxyInfo* proxy)
{
    const auto found = Find(proxy);
    if (found == m_entries.end())
    {
        return false;
    }
    m_entries.erase(found);
    return true;
}

ProxySet::Entries::const_iterator ProxySet::Find(const ProxyInfo* proxy) const
{
    return std::find_if(m_entries.begin(), m_entries.end(),
                        [proxy](const std::unique_ptr<ProxyInfo>& each)
                        {
                            return each.get() == proxy;
                        });
}
