#include "config/FolderNames.h"

#include <windows.h>

#include <shlobj.h>

namespace vorn
{
namespace
{
std::string windowsFolder()
{
    char path[MAX_PATH];
    const UINT length = GetWindowsDirectoryA(path, MAX_PATH);
    return length < MAX_PATH ? std::string(path, length) : std::string();
}

std::string localDataFolder()
{
    char path[MAX_PATH];
    const bool found = SUCCEEDED(SHGetFolderPathA(nullptr, CSIDL_LOCAL_APPDATA, nullptr, SHGFP_TYPE_CURRENT, path));
    return found ? std::string(path) : std::string();
}
} // namespace

const FolderNames& folderNames()
{
    static const FolderNames names{windowsFolder(), localDataFolder()};
    return names;
}
} // namespace vorn
