#pragma once

#include "config/RegistryKey.h"

#include <memory>

namespace vorn
{
/// An open key held by any number of copies: the last holder closes it, so that no handle is closed twice, which could
/// close another's.
class SharedKey
{
public:
    SharedKey() = default;
    explicit SharedKey(HKEY key) : m_key(std::make_shared<RegistryKey>(key))
    {
    }

    HKEY Get() const
    {
        return m_key ? m_key->get() : nullptr;
    }

    /// Lets go, and closes the key when no copy holds it any more.
    /// @return the system's code of the closing; 0 when nothing was to be closed
    LSTATUS Close()
    {
        const bool isLast = m_key.use_count() == 1 && Get() != nullptr;
        const LSTATUS status = isLast ? RegCloseKey(m_key->release()) : ERROR_SUCCESS;
        m_key.reset();
        return status;
    }

private:
    std::shared_ptr<RegistryKey> m_key;
};
} // namespace vorn
