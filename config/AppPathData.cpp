#include "config/AppPathData.h"

#include "config/AppRegMgr.h"
#include "config/HostName.h"
#include "config/SystemFolders.h"
#include "config/core/PathCompose.h"
#include "frame/core/StringViews.h"

#include <windows.h>

#include <shlobj.h>

namespace
{

constexpr const char* kPathsSection = "Paths";
constexpr const char* kGlobal = "Global";
constexpr const char* kInstallers = "Installers";

/// What the shell names, with a backslash; a folder that it does not know leaves the field as it was.
void TakeShellFolder(CString& field, int code)
{
    const std::string folder = vorn::ShellFolder(code);
    if (!folder.empty())
        field = vorn::ToCString(vorn::WithBackslash(folder));
}

} // namespace

AppPathData::AppPathData(PathCfgVer layout, const char* app) : m_application(app)
{
    Initialize(layout, app);
}

AppPathData::~AppPathData() = default;

void AppPathData::Initialize(PathCfgVer requested, const char*)
{
    if (m_module.IsEmpty())
        InitKnownPaths();
    const CString themePath = ServerThemePath();
    if (!themePath.IsEmpty())
        UseServer(themePath);
    m_layout = ChosenLayout(requested);
    auto& instances = m_layouts[m_layout];
    if (!instances)
        instances = std::make_unique<vorn::PathInstances>();
    if (m_layout == PCV_LEGACY)
        InitLegacyPaths();
    else
        InitVistaPaths();
}

void AppPathData::InitKnownPaths()
{
    if (m_executableFolder.IsEmpty())
        m_executableFolder = vorn::ToCString(vorn::ExecutableFolder());
    m_home = GetProfilePath("Home Path", m_executableFolder, kPathsSection);
    if (!m_application.IsEmpty() && vorn::ViewOf(m_application) != vorn::HostName())
        m_executableFolder = m_home;
    m_module = m_application.IsEmpty() ? vorn::ToCString(vorn::LastFolderName(vorn::ViewOf(m_home))) : m_application;
    m_root = GetProfilePath("Root Path", vorn::ToCString(vorn::RootOfHome(vorn::ViewOf(m_home))), kPathsSection);
    TakeShellFolders();
}

void AppPathData::TakeShellFolders()
{
    TakeShellFolder(m_localData, CSIDL_LOCAL_APPDATA);
    TakeShellFolder(m_roamingData, CSIDL_APPDATA);
    TakeShellFolder(m_userProfile, CSIDL_PROFILE);
    TakeShellFolder(m_commonData, CSIDL_COMMON_APPDATA);
    TakeShellFolder(m_programFiles, CSIDL_PROGRAM_FILES);
    const std::string documents = vorn::ShellFolder(CSIDL_COMMON_DOCUMENTS);
    if (!documents.empty())
        m_publicFolder = vorn::ToCString(vorn::UpToLastBackslash(documents));
}

CString AppPathData::ReadSetting(const char* section, const char* key, const char* standard, const char* app) const
{
    // The manager may have been freed since the last time, and its records with it.
    AppRegMgr* const settings = AppRegMgr::Instance();
    if (app != nullptr && *app != '\0')
        settings->AddApp(app);
    return settings->ReadVornString(section, key, standard, app);
}

CString AppPathData::ServerThemePath() const
{
    return ReadSetting("Network", "VV3 Server Theme Path", "", kGlobal);
}

CString AppPathData::InstallationFolder() const
{
    const CString folder = ReadSetting(kPathsSection, m_module + "Dir", "", kInstallers);
    return folder.IsEmpty() ? ReadSetting(kPathsSection, "SetupDir", "", kInstallers) : folder;
}

void AppPathData::UseServer(const CString& themePath)
{
    const CString installation = InstallationFolder();
    if (AppRegMgr::Instance()->AllowNetwork())
    {
        const CString data = vorn::ToCString(vorn::ServerDataFolder(vorn::ViewOf(themePath)));
        m_userProfile = m_localData = m_roamingData = m_publicFolder = m_commonData = data;
        return;
    }
    const vorn::ServerFolders folders = vorn::ServerFoldersOf(vorn::ViewOf(installation), vorn::ViewOf(m_application));
    m_home = vorn::ToCString(folders.home);
    m_root = vorn::ToCString(folders.root);
}

PathCfgVer AppPathData::ChosenLayout(PathCfgVer requested) const
{
    if (requested == PCV_LEGACY || requested == PCV_VISTA)
        return requested;
    return vorn::FileExists(std::string(m_home) + "Vista.app") ? PCV_VISTA : PCV_LEGACY;
}

CString AppPathData::GetProfilePath(const char* key, const char* standard, const char* section)
{
    CString path =
        vorn::ToCString(vorn::WithBackslash(vorn::ViewOf(ReadSetting(section, key, standard, m_application))));
    SimplifyPath(path);
    return path;
}

CString AppPathData::GetProfileAptDiagramPath(const char* key, const char* firstDefault, const char* secondDefault)
{
    const CString setting = ReadSetting(kPathsSection, key, "", m_application);
    return vorn::ToCString(vorn::ChooseDiagramFolder(vorn::ViewOf(setting), vorn::ViewOf(firstDefault),
                                                     vorn::ViewOf(secondDefault), vorn::HoldsDatFile));
}

void AppPathData::SimplifyPath(CString& path)
{
    path = vorn::ToCString(vorn::FullPath(std::string(path)));
}

CString AppPathData::GetKnownPath(KnownPath base, VornPath beneath, const char* subfolder)
{
    const auto row = vorn::RowOfKnownPath(base);
    const CString start =
        row ? GetPathInst(*row)
            : vorn::ToCString(vorn::InstallationRoot(vorn::ViewOf(m_executableFolder), vorn::ViewOf(m_module)));
    const bool inNetwork = AppRegMgr::Instance()->AllowNetwork() && !ServerThemePath().IsEmpty();
    const vorn::ComposeFacts facts{vorn::ViewOf(m_module), vorn::ViewOf(m_commonData), inNetwork};
    return vorn::ToCString(
        vorn::ComposedFolder(vorn::ViewOf(start), beneath, facts,
                             subfolder != nullptr ? std::optional<std::string_view>(subfolder) : std::nullopt));
}
