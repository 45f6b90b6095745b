#pragma once

#include <windows.h>

#include <memory>

namespace vorn
{
struct RegistryKeyCloser
{
    void operator()(HKEY key) const
    {
        RegCloseKey(key);
    }
};

/// An open registry key, closed at the end of its life.
using RegistryKey = std::unique_ptr<HKEY__, RegistryKeyCloser>;

/// Opens a key in the 32-bit view. On failure `key` is null and the system's code comes back.
LSTATUS OpenKey(HKEY root, const char* path, REGSAM access, RegistryKey& key);

/// Creates a key, or opens the one that is there, for writing, in the 32-bit view.
LSTATUS CreateKey(HKEY root, const char* path, RegistryKey& key);
} // namespace vorn
