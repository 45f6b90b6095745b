#include "apps/vorntool/FolderRecord.h"

#include "apps/vorntool/Programs.h"

#include <cstring>

namespace vorn::tool
{

namespace
{

constexpr const char* kSection = "Paths";
constexpr const char* kHomeKey = "Home Path";
constexpr const char* kDiagramKey = "AptDiagram Path";
const FolderOrigin kDefault = {"", "default"};

// Where the family's INI file in the Windows folder says that a program is installed; empty for no program.
CString InstallationOf(const CString& application)
{
    char folder[MAX_PATH] = "";
    if (const Program* const program = ProgramNamed(application.GetString()))
    {
        GetPrivateProfileStringA(kSection, program->pathKey, "", folder, MAX_PATH, "Vornwald.ini");
    }
    return folder;
}

} // namespace

// The base's constructor cannot reach the overrides: everything is worked out again, and the last instance counts.
FolderRecord::FolderRecord(PathCfgVer layout, const CString& application)
    : AppPathData(PCV_LEGACY, application), m_name(application), m_stored(application)
{
    InitKnownPaths();
    m_next = kDefault;
    Initialize(layout, application);
    CompleteOrigins();
}

CString FolderRecord::GetProfilePath(const char* key, const char* standard, const char* section)
{
    if (std::strcmp(key, kHomeKey) == 0)
    {
        return HomeOf(standard);
    }
    m_next = OriginOfSetting(section, key);
    return AppPathData::GetProfilePath(key, standard, section);
}

bool FolderRecord::AddPathInst(DefinedPath path, CString folder, PathCfgVer layout)
{
    m_origins[static_cast<std::size_t>(path)] = m_next;
    m_next = kDefault;
    return AppPathData::AddPathInst(path, folder, layout);
}

CString FolderRecord::HomeOf(const char* standard)
{
    m_home = OriginOfSetting(kSection, kHomeKey);
    const CString installation = InstallationOf(m_name);
    const bool isInstalled = !installation.IsEmpty();
    if (isInstalled && m_home.source == kDefault.source)
    {
        m_home.source = "installation";
    }
    return AppPathData::GetProfilePath(kHomeKey, isInstalled ? installation.GetString() : standard, kSection);
}

// In force is what is read whatever the default; a value that the applications cannot read leaves it in force.
FolderOrigin FolderRecord::OriginOfSetting(const char* section, const char* key) const
{
    AppRegMgr* const settings = AppRegMgr::Instance();
    const bool inForce = settings->ReadVornString(section, key, "1", m_name.GetString()) ==
                         settings->ReadVornString(section, key, "2", m_name.GetString());
    const auto found = m_stored.Find(section, key);
    return {key, inForce && found ? NameOf(found->source) : kDefault.source};
}

void FolderRecord::CompleteOrigins()
{
    m_origins[DP_EXE] = m_home;
    m_origins[DP_PATH8] = m_home;
    m_origins[DP_APTDIAGRAM] = OriginOfSetting(kSection, kDiagramKey);
}

} // namespace vorn::tool
