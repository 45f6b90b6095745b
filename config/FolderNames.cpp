#include "config/FolderNames.h"

#include <windows.h>

#include <shlobj.h>

namespace vorn
{
namespace
{
std::string WindowsFolder()
{
    char path[MAX_PATH];
    const UINT length = GetWindowsDirectoryA(path, MAX_PATH);
    return length < MAX_PATH ? std::string(path, length) : std::string();
}

std::string LocalDataFolder()
{
    char path[MAX_PATH];
    const bool found = SUCCEEDED(SHGetFolderPathA(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, path));
    return found ? std::string(path) : std::string();
}
} // namespace

const FolderNames& SystemFolders()
{
    static const FolderNames names{WindowsFolder(), LocalDataFolder()};
    return names;
}
} // namespace vorn
