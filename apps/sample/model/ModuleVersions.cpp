#include "apps/sample/model/ModuleVersions.h"

#include <VornCommon.h>

#include <array>
#include <vector>

namespace
{

constexpr std::array kModules = {"VornSample.exe", "VornCommon.dll", "VornChart.dll",
                                 "TarnUtil.dll",   "TarnComm.dll",   "HostFramework.dll"};

std::string ProductVersion(HMODULE module)
{
    std::array<char, MAX_PATH> path{};
    if (GetModuleFileName(module, path.data(), MAX_PATH) == 0)
        return {};
    const DWORD size = GetFileVersionInfoSize(path.data(), nullptr);
    std::vector<char> block(size);
    void* fixed = nullptr;
    UINT length = 0;
    if (size == 0 || !GetFileVersionInfo(path.data(), 0, size, block.data()) ||
        !VerQueryValue(block.data(), "\\", &fixed, &length) || length < sizeof(VS_FIXEDFILEINFO))
        return "no version";
    const auto& info = *static_cast<const VS_FIXEDFILEINFO*>(fixed);
    return std::to_string(HIWORD(info.dwProductVersionMS)) + '.' + std::to_string(LOWORD(info.dwProductVersionMS)) +
           '.' + std::to_string(HIWORD(info.dwProductVersionLS));
}

} // namespace

std::vector<ModuleVersion> LoadedModules()
{
    std::vector<ModuleVersion> modules;
    for (const char* name : kModules)
    {
        if (const HMODULE module = GetModuleHandle(name))
            modules.push_back({name, ProductVersion(module)});
    }
    return modules;
}
