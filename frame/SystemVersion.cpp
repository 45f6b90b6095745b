#include "frame/SystemVersion.h"

#include "frame/QuietErrors.h"

#include <shlwapi.h>

#include <memory>

namespace
{
struct ModuleFreer
{
    void operator()(HMODULE module) const
    {
        FreeLibrary(module);
    }
};
using LoadedModule = std::unique_ptr<HINSTANCE__, ModuleFreer>;

OSVERSIONINFOA SystemVersion()
{
    OSVERSIONINFOA version{};
    version.dwOSVersionInfoSize = sizeof version;
    GetVersionExA(&version);
    return version;
}

DLLGETVERSIONPROC VersionExport(HMODULE module)
{
    return reinterpret_cast<DLLGETVERSIONPROC>(reinterpret_cast<void*>(GetProcAddress(module, "DllGetVersion")));
}
} // namespace

DWORD GetDllVersion(const char* dllName)
{
    const vorn::QuietErrors quiet;
    const LoadedModule module(dllName ? LoadLibraryA(dllName) : nullptr);
    const DLLGETVERSIONPROC getVersion = module ? VersionExport(module.get()) : nullptr;
    DLLVERSIONINFO version{};
    static_assert(sizeof version == 20);
    version.cbSize = sizeof version;
    if (!getVersion || FAILED(getVersion(&version)))
    {
        return 0;
    }
    return (version.dwMajorVersion & 0xFFFF) << 16 | (version.dwMinorVersion & 0xFFFF);
}

bool IsNT()
{
    return SystemVersion().dwPlatformId == VER_PLATFORM_WIN32_NT;
}

bool IsWindows7OrLater()
{
    const OSVERSIONINFOA version = SystemVersion();
    return version.dwMajorVersion > 6 || (version.dwMajorVersion == 6 && version.dwMinorVersion > 0);
}
