#include "apps/vorntool/FileVersion.h"

#include <windows.h>

#include <vector>

namespace vorn::tool
{

namespace
{

std::string Dotted(DWORD high, DWORD low)
{
    return std::to_string(HIWORD(high)) + "." + std::to_string(LOWORD(high)) + "." + std::to_string(HIWORD(low)) + "." +
           std::to_string(LOWORD(low));
}

// The system finds a root block even where the fixed part is absent; its length tells.
const VS_FIXEDFILEINFO* FixedPart(const std::vector<BYTE>& resource)
{
    void* block = nullptr;
    UINT size = 0;
    const bool found = VerQueryValueW(resource.data(), L"\\", &block, &size) != FALSE;
    const auto* const fixed = static_cast<const VS_FIXEDFILEINFO*>(block);
    return found && size >= sizeof(VS_FIXEDFILEINFO) && fixed->dwSignature == VS_FFI_SIGNATURE ? fixed : nullptr;
}

} // namespace

std::optional<FileVersion> VersionOfFile(const std::wstring& path)
{
    DWORD unused = 0;
    std::vector<BYTE> resource(GetFileVersionInfoSizeW(path.c_str(), &unused));
    if (resource.empty() ||
        GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data()) == FALSE)
    {
        return std::nullopt;
    }
    const VS_FIXEDFILEINFO* const fixed = FixedPart(resource);
    if (fixed == nullptr)
    {
        return std::nullopt;
    }
    return FileVersion{Dotted(fixed->dwProductVersionMS, fixed->dwProductVersionLS),
                       Dotted(fixed->dwFileVersionMS, fixed->dwFileVersionLS)};
}

} // namespace vorn::tool
