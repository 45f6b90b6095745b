#include "config/HostName.h"

#include <windows.h>

namespace vorn
{
namespace
{
std::string ExecutableName()
{
    char path[MAX_PATH];
    const DWORD length = GetModuleFileNameA(nullptr, path, MAX_PATH);
    const std::string file(path, length < MAX_PATH ? length : MAX_PATH - 1);
    const std::string name = file.substr(file.find_last_of('\\') + 1);
    return name.substr(0, name.find_last_of('.'));
}
} // namespace

std::string HostName()
{
    return ExecutableName();
}
} // namespace vorn
