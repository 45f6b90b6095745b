#pragma once

/// @file
/// Owner of a registry key handle; not public interface.
#include <windows.h>

#include <utility>

namespace vorn
{

class RegistryKey
{
public:
    RegistryKey() = default;
    explicit RegistryKey(HKEY key) : m_key(key)
    {
    }
    RegistryKey(RegistryKey&& other) noexcept : m_key(std::exchange(other.m_key, nullptr))
    {
    }
    RegistryKey& operator=(RegistryKey&& other) noexcept
    {
        std::swap(m_key, other.m_key);
        return *this;
    }
    ~RegistryKey()
    {
        if (m_key)
        {
            ::RegCloseKey(m_key);
        }
    }

    HKEY Get() const
    {
        return m_key;
    }
    HKEY Release()
    {
        return std::exchange(m_key, nullptr);
    }
    explicit operator bool() const
    {
        return m_key != nullptr;
    }

private:
    HKEY m_key = nullptr;
};

} // namespace vorn
