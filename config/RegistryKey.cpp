#include "config/RegistryKey.h"

namespace vorn
{
LSTATUS OpenKey(HKEY root, const char* path, REGSAM access, RegistryKey& key)
{
    HKEY opened = nullptr;
    const LSTATUS status = RegOpenKeyExA(root, path, 0, access | KEY_WOW64_32KEY, &opened);
    key.reset(status == ERROR_SUCCESS ? opened : nullptr);
    return status;
}

LSTATUS CreateKey(HKEY root, const char* path, RegistryKey& key)
{
    HKEY opened = nullptr;
    const LSTATUS status = RegCreateKeyExA(root, path, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE | KEY_WOW64_32KEY,
                                           nullptr, &opened, nullptr);
    key.reset(status == ERROR_SUCCESS ? opened : nullptr);
    return status;
}
} // namespace vorn
