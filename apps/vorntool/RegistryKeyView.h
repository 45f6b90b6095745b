#pragma once

#include "apps/vorntool/core/RegistryWords.h"

#include <VornCommon.h>

#include <string>
#include <vector>

/// @file
/// Keys of the registry as the tool reads them. Texts are 8-bit, as the library takes them, until they are printed.
namespace vorn::tool
{

/// One value as it is stored.
struct RegistryValue
{
    std::string name;  ///< empty for the key's default value
    DWORD type = 0;    ///< the registry's number
    std::string bytes; ///< every one
};

/// What stands directly in one key, each sorted by name.
struct RegistryKeyContent
{
    KeyAddress address;
    std::vector<RegistryValue> values;
    std::vector<std::string> subkeys;
};

/// Opens a key; false leaves the system's code in the object.
bool OpenRegistryKey(Registry& key, const KeyAddress& address, Registry::CreatePermissions access);

/// Reads a value of any length; false leaves the system's code in the object.
bool ReadStoredValue(Registry& key, const std::string& name, RegistryValue& value);

/// Reads what stands in a key; the system's code, 0 for success.
DWORD ReadRegistryKey(const KeyAddress& address, RegistryKeyContent& content);

} // namespace vorn::tool
