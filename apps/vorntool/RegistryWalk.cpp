#include "apps/vorntool/RegistryWalk.h"

#include <memory>

namespace vorn::tool
{

namespace
{

// Longest names that the registry allows, with the terminating zero.
constexpr DWORD kKeyNameSize = 256;
constexpr DWORD kValueNameSize = 16384;

struct KeyCloser
{
    void operator()(HKEY key) const
    {
        RegCloseKey(key);
    }
};

using OpenKey = std::unique_ptr<HKEY__, KeyCloser>;

OpenKey Open(HKEY root, const std::string& path)
{
    HKEY key = nullptr;
    RegOpenKeyExA(root, path.c_str(), 0, KEY_READ | KEY_WOW64_32KEY, &key);
    return OpenKey(key);
}

// The size may grow between the question and the answer: ask until it fits.
bool ReadValue(HKEY key, const char* name, DWORD& type, std::vector<BYTE>& bytes)
{
    DWORD size = 0;
    LSTATUS status = RegQueryValueExA(key, name, nullptr, &type, nullptr, &size);
    do
    {
        bytes.resize(size);
        status = status == ERROR_SUCCESS || status == ERROR_MORE_DATA
                     ? RegQueryValueExA(key, name, nullptr, &type, bytes.data(), &size)
                     : status;
    } while (status == ERROR_MORE_DATA && size > bytes.size());
    bytes.resize(status == ERROR_SUCCESS ? size : 0);
    return status == ERROR_SUCCESS;
}

void VisitValues(HKEY key, const std::string& subkey, const std::function<void(RegistryValueFound&&)>& visit)
{
    std::vector<char> name(kValueNameSize);
    for (DWORD index = 0;; ++index)
    {
        DWORD size = kValueNameSize;
        const LSTATUS status = RegEnumValueA(key, index, name.data(), &size, nullptr, nullptr, nullptr, nullptr);
        if (status != ERROR_SUCCESS)
        {
            return;
        }
        RegistryValueFound value = {subkey, name.data(), 0, {}};
        if (ReadValue(key, name.data(), value.type, value.bytes))
        {
            visit(std::move(value));
        }
    }
}

void Walk(HKEY root, const std::string& path, const std::string& subkey,
          const std::function<void(RegistryValueFound&&)>& visit)
{
    const OpenKey key = Open(root, path);
    if (key == nullptr)
    {
        return;
    }
    VisitValues(key.get(), subkey, visit);
    for (const std::string& name : RegistrySubkeys(root, path))
    {
        Walk(root, path + "\\" + name, subkey.empty() ? name : subkey + "\\" + name, visit);
    }
}

} // namespace

bool ReadRegistryValue(HKEY root, const std::string& path, const std::string& name, DWORD& type,
                       std::vector<BYTE>& bytes)
{
    const OpenKey key = Open(root, path);
    return key != nullptr && ReadValue(key.get(), name.c_str(), type, bytes);
}

void WalkRegistryValues(HKEY root, const std::string& path, const std::function<void(RegistryValueFound&&)>& visit)
{
    Walk(root, path, "", visit);
}

std::vector<std::string> RegistrySubkeys(HKEY root, const std::string& path)
{
    std::vector<std::string> names;
    const OpenKey key = Open(root, path);
    char name[kKeyNameSize];
    DWORD size = kKeyNameSize;
    for (DWORD index = 0; key != nullptr && RegEnumKeyExA(key.get(), index, name, &size, nullptr, nullptr, nullptr,
                                                          nullptr) == ERROR_SUCCESS;
         ++index)
    {
        names.emplace_back(name);
        size = kKeyNameSize;
    }
    return names;
}

} // namespace vorn::tool
