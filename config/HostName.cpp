#include "config/HostName.h"

#include "framework/include/afxwin.h"

namespace vorn
{
namespace
{
std::string ExecutableName()
{
    std::string path(32767, '\0'); // characters, the longest path of the system
    path.resize(GetModuleFileNameA(nullptr, path.data(), static_cast<DWORD>(path.size())));
    const std::string name = path.substr(path.find_last_of('\\') + 1);
    return name.substr(0, name.find_last_of('.'));
}
} // namespace

std::string HostName()
{
    const CWinApp* app = AfxGetApp();
    const char* name = app ? app->m_pszAppName : nullptr;
    return name && *name ? std::string(name) : ExecutableName();
}
} // namespace vorn
