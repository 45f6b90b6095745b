#include "toolkit/LinkTarget.h"

#include "toolkit/HyperLink.h"
#include "toolkit/core/LinkOpening.h"

#include <shellapi.h>

#include <array>
#include <cstring>
#include <string>

namespace vorn
{

namespace
{
constexpr int kFileNotFound = 2;
constexpr int kNoApplication = 31;
constexpr int kLastShellError = 32;
constexpr int kLastStartError = 31;
/// Some systems' shells do not survive longer ones.
constexpr std::size_t kLongestForShell = 900;
constexpr DWORD kLongestValue = 260;

int OpenByShell(LPCSTR url, int showCmd)
{
    if (std::strlen(url) > kLongestForShell)
    {
        return kNoApplication;
    }
    const HINSTANCE code = ::ShellExecute(nullptr, "open", url, nullptr, nullptr, showCmd);
    return static_cast<int>(reinterpret_cast<INT_PTR>(code)); // not a handle
}

/// The default value of a key below the classes root.
bool ReadClassesValue(const std::string& path, std::string& value)
{
    HKEY key = nullptr;
    if (::RegOpenKeyEx(HKEY_CLASSES_ROOT, path.c_str(), 0, KEY_QUERY_VALUE, &key) != ERROR_SUCCESS)
    {
        return false;
    }
    std::array<char, kLongestValue + 2> text{}; // with the terminators of the registry and of this function
    DWORD size = kLongestValue + 1;
    DWORD type = 0;
    const LONG result = ::RegQueryValueEx(key, nullptr, nullptr, &type, reinterpret_cast<BYTE*>(text.data()), &size);
    ::RegCloseKey(key);
    value = text.data();
    return result == ERROR_SUCCESS && value.size() <= kLongestValue && (type == REG_SZ || type == REG_EXPAND_SZ);
}
} // namespace

OpenedLink OpenLink(LPCSTR url, int showCmd)
{
    if (url == nullptr || *url == '\0')
    {
        return {kFileNotFound, false};
    }
    const int result = OpenByShell(url, showCmd);
    if (result > kLastShellError)
    {
        return {result, true};
    }
    std::string program;
    std::string command;
    if (!ReadClassesValue(".htm", program) || !ReadClassesValue(program + "\\shell\\open\\command", command))
    {
        return {result, false};
    }
    const UINT started = ::WinExec(BrowserCommand(command, url).c_str(), static_cast<UINT>(showCmd));
    return {static_cast<int>(started), started > kLastStartError};
}

} // namespace vorn

HINSTANCE HyperLink::GotoURL(LPCSTR url, int showCmd)
{
    return reinterpret_cast<HINSTANCE>(static_cast<INT_PTR>(vorn::OpenLink(url, showCmd).result));
}
