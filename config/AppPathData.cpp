#include "config/AppPathData.h"

#include "config/AppRegMgr.h"
#include "config/HostName.h"
#include "config/SystemFolders.h"
#include "config/core/PathCompose.h"

#include <windows.h>

#include <shlobj.h>

namespace
{

constexpr const char* kPathsSection = "Paths";
constexpr const char* kGlobal = "Global";
constexpr const char* kInstallers = "Installers";

CString ToCString(std::string_view text)
{
    return CString(text.data(), static_cast<int>(text.size()));
}

std::string_view ViewOf(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

/// What the shell names, with a backslash; a folder that it does not know leaves the field as it was.
void TakeShellFolder(CString& field, int code)
{
    const std::string folder = vorn::ShellFolder(code);
    if (!folder.empty())
        field = ToCString(vorn::WithBackslash(folder));
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
        m_executableFolder = ToCString(vorn::ExecutableFolder());
    m_home = GetProfilePath("Home Path", m_executableFolder, kPathsSection);
    if (!m_application.IsEmpty() && ViewOf(m_application) != vorn::HostName())
        m_executableFolder = m_home;
    m_module = m_application.IsEmpty() ? ToCString(vorn::LastFolderName(ViewOf(m_home))) : m_application;
    m_root = GetProfilePath("Root Path", ToCString(vorn::RootOfHome(ViewOf(m_home))), kPathsSection);
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
        m_publicFolder = ToCString(vorn::UpToLastBackslash(documents));
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
        const CString data = ToCString(vorn::ServerDataFolder(ViewOf(themePath)));
        m_userProfile = m_localData = m_roamingData = m_publicFolder = m_commonData = data;
        return;
    }
    const vorn::ServerFolders folders = vorn::ServerFoldersOf(ViewOf(installation), ViewOf(m_application));
    m_home = ToCString(folders.home);
    m_root = ToCString(folders.root);
}

PathCfgVer AppPathData::ChosenLayout(PathCfgVer requested) const
{
    if (requested == PCV_LEGACY || requested == PCV_VISTA)
        return requested;
    return vorn::FileExists(std::string(m_home) + "Vista.app") ? PCV_VISTA : PCV_LEGACY;
}

CString AppPathData::GetProfilePath(const char* key, const char* standard, const char* section)
{
    CString path = ToCString(vorn::WithBackslash(ViewOf(ReadSetting(section, key, standard, m_application))));
    SimplifyPath(path);
    return path;
}

CString AppPathData::GetProfileAptDiagramPath(const char* key, const char* firstDefault, const char* secondDefault)
{
    const CString setting = ReadSetting(kPathsSection, key, "", m_application);
    return ToCString(vorn::ChooseDiagramFolder(ViewOf(setting), ViewOf(CString(firstDefault)),
                                               ViewOf(CString(secondDefault)), vorn::HoldsDatFile));
}

void AppPathData::SimplifyPath(CString& path)
{
    path = ToCString(vorn::FullPath(std::string(path)));
}

CString AppPathData::GetKnownPath(KnownPath base, VornPath beneath, const char* subfolder)
{
    const auto row = vorn::RowOfKnownPath(base);
    const CString start =
        row ? GetPathInst(*row) : ToCString(vorn::InstallationRoot(ViewOf(m_executableFolder), ViewOf(m_module)));
    const bool inNetwork = AppRegMgr::Instance()->AllowNetwork() && !ServerThemePath().IsEmpty();
    const vorn::ComposeFacts facts{ViewOf(m_module), ViewOf(m_commonData), inNetwork};
    return ToCString(
        vorn::ComposedFolder(ViewOf(start), beneath, facts,
                             subfolder != nullptr ? std::optional<std::string_view>(subfolder) : std::nullopt));
}
