#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

/// @file
/// Looking into the registry, in the 32-bit view that the library keeps settings in. Texts are 8-bit.
namespace vorn::tool
{

/// One value below a key.
struct RegistryValueFound
{
    std::string subkey; ///< path of its key relative to the key walked, empty for that key itself
    std::string name;
    DWORD type;
    std::vector<BYTE> bytes;
};

/// Reads a value whole; false when it is not there or cannot be read.
bool ReadRegistryValue(HKEY root, const std::string& path, const std::string& name, DWORD& type,
                       std::vector<BYTE>& bytes);

/// Calls @p visit with every value of a key and of all keys below it. A key that is not there has none.
void WalkRegistryValues(HKEY root, const std::string& path, const std::function<void(RegistryValueFound&&)>& visit);

/// Names of the keys directly below a key.
std::vector<std::string> RegistrySubkeys(HKEY root, const std::string& path);

} // namespace vorn::tool
