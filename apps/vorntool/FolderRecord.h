#pragma once

#include "apps/vorntool/SettingsView.h"

#include <array>

namespace vorn::tool
{

/// Where a folder came from.
struct FolderOrigin
{
    std::string key;    ///< of the setting that can move the folder, 8-bit; empty where there is none
    std::string source; ///< "registry", "registry (machine)", "INI file", "installation" or "default"
};

/// The folders of an application as that application has them, with where each came from. Its Home is where the
/// family's INI file says it is installed, unless a setting moves it; an application that is not installed is taken to
/// stand where the tool does.
class FolderRecord : public AppPathData
{
public:
    FolderRecord(PathCfgVer layout, const CString& application);

    const FolderOrigin& OriginOf(int path) const
    {
        return m_origins[static_cast<std::size_t>(path)];
    }

    CString GetProfilePath(const char* key, const char* standard, const char* section) override;
    bool AddPathInst(DefinedPath path, CString folder, PathCfgVer layout) override;

private:
    FolderOrigin OriginOfSetting(const char* section, const char* key) const;
    CString HomeOf(const char* standard);
    void CompleteOrigins();

    CString m_name;
    SettingsView m_stored;
    FolderOrigin m_home;
    FolderOrigin m_next; ///< of the folder that is worked out
    std::array<FolderOrigin, DP_COUNT> m_origins;
};

} // namespace vorn::tool
