#include "apps/vorntool/RegistryKeyView.h"

#include <algorithm>

namespace vorn::tool
{

namespace
{

std::string Std(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

// Each enumeration ends with "no more items"; anything else is a failure.
DWORD EndOf(const Registry& key)
{
    return key.GetLastError() == ERROR_NO_MORE_ITEMS ? ERROR_SUCCESS : key.GetLastError();
}

DWORD ReadSubkeys(Registry& key, std::vector<std::string>& names)
{
    CString name;
    for (DWORD index = 0; key.EnumerateKeys(index, name); ++index)
    {
        names.push_back(Std(name));
    }
    std::ranges::sort(names);
    return EndOf(key);
}

DWORD ReadValueNames(Registry& key, std::vector<std::string>& names)
{
    CString name;
    Registry::KeyValueTypes type = Registry::TypeNone;
    for (DWORD index = 0; key.EnumerateValues(index, name, type); ++index)
    {
        names.push_back(Std(name));
    }
    std::ranges::sort(names);
    return EndOf(key);
}

// A value that goes between the two questions is left out.
DWORD ReadValues(Registry& key, std::vector<RegistryValue>& values)
{
    std::vector<std::string> names;
    const DWORD code = ReadValueNames(key, names);
    for (const std::string& name : names)
    {
        RegistryValue value;
        if (ReadStoredValue(key, name, value))
        {
            values.push_back(std::move(value));
        }
    }
    return code;
}

} // namespace

bool OpenRegistryKey(Registry& key, const KeyAddress& address, Registry::CreatePermissions access)
{
    return key.Connect(Registry::StrToKey(address.root.c_str()), nullptr) && key.Open(address.path.c_str(), access);
}

bool ReadStoredValue(Registry& key, const std::string& name, RegistryValue& value)
{
    CByteArray bytes;
    Registry::KeyValueTypes type = Registry::TypeNone;
    DWORD size = 0;
    if (!key.QueryValue(name.c_str(), type, nullptr, size) || !key.GetBinaryValue(name.c_str(), bytes))
    {
        return false;
    }
    const auto* const data = reinterpret_cast<const char*>(bytes.GetData());
    value = {name, type, std::string(data, static_cast<std::size_t>(bytes.GetSize()))};
    return true;
}

DWORD ReadRegistryKey(const KeyAddress& address, RegistryKeyContent& content)
{
    content = {address, {}, {}};
    Registry key;
    if (!OpenRegistryKey(key, address, Registry::PermissionRead))
    {
        return key.GetLastError();
    }
    const DWORD code = ReadValues(key, content.values);
    return code != ERROR_SUCCESS ? code : ReadSubkeys(key, content.subkeys);
}

} // namespace vorn::tool
