#include "config/AppPathData.h"

#include "config/core/PathCompose.h"
#include "frame/core/StringViews.h"

/// Lets the table of defined paths ask a record, through its virtual operations.
class AppPathData::Source : public vorn::PathSource
{
public:
    Source(AppPathData& record, PathCfgVer layout) : m_record(record), m_layout(layout)
    {
    }

    std::string Field(vorn::PathField field) const override
    {
        const CString* const text = FieldOf(field);
        return text != nullptr ? std::string(vorn::ViewOf(*text)) : std::string();
    }

    std::string Setting(const char* key, const std::string& standard, const char* section) override
    {
        return std::string(vorn::ViewOf(m_record.GetProfilePath(key, standard.c_str(), section)));
    }

    std::string AirportDiagrams(const char* key, const std::string& first, const std::string& second) override
    {
        return std::string(vorn::ViewOf(m_record.GetProfileAptDiagramPath(key, first.c_str(), second.c_str())));
    }

    std::string Known(KnownPath base, VornPath beneath, const char* subfolder) override
    {
        return std::string(vorn::ViewOf(m_record.GetKnownPath(base, beneath, subfolder)));
    }

    void Add(DefinedPath path, const std::string& folder) override
    {
        m_record.AddPathInst(path, vorn::ToCString(folder), m_layout);
    }

private:
    const CString* FieldOf(vorn::PathField field) const
    {
        switch (field)
        {
        case vorn::PathField::Executable:
            return &m_record.m_executableFolder;
        case vorn::PathField::Root:
            return &m_record.m_root;
        case vorn::PathField::UserProfile:
            return &m_record.m_userProfile;
        case vorn::PathField::LocalData:
            return &m_record.m_localData;
        case vorn::PathField::RoamingData:
            return &m_record.m_roamingData;
        case vorn::PathField::PublicFolder:
            return &m_record.m_publicFolder;
        case vorn::PathField::CommonData:
            return &m_record.m_commonData;
        case vorn::PathField::ProgramFiles:
            return &m_record.m_programFiles;
        case vorn::PathField::Home:
            return &m_record.m_home;
        case vorn::PathField::None:
            break;
        }
        return nullptr;
    }

    AppPathData& m_record;
    PathCfgVer m_layout;
};

AppPathData::AppPathData(const AppPathData& other)
{
    *this = other;
}

AppPathData& AppPathData::operator=(const AppPathData& other)
{
    if (this == &other)
        return *this;
    m_module = other.m_module;
    m_executableFolder = other.m_executableFolder;
    m_root = other.m_root;
    m_userProfile = other.m_userProfile;
    m_localData = other.m_localData;
    m_roamingData = other.m_roamingData;
    m_publicFolder = other.m_publicFolder;
    m_commonData = other.m_commonData;
    m_programFiles = other.m_programFiles;
    m_home = other.m_home;
    m_application = other.m_application;
    m_layouts.clear();
    for (const auto& [layout, instances] : other.m_layouts)
        m_layouts[layout] = std::make_unique<vorn::PathInstances>(*instances);
    m_layout = other.m_layout;
    return *this;
}

void AppPathData::InitLegacyPaths()
{
    Fill(PCV_LEGACY);
}

void AppPathData::InitVistaPaths()
{
    Fill(PCV_VISTA);
}

void AppPathData::Fill(PathCfgVer layout)
{
    Source source(*this, layout);
    vorn::FillLayout(layout, source);
}

PathCfgVer AppPathData::GetPathCfgVer()
{
    return m_layout;
}

PathCfgVer AppPathData::SetPathCfgVer(PathCfgVer layout, const char* app)
{
    const PathCfgVer before = m_layout;
    Initialize(layout, app);
    return before;
}

CString AppPathData::GetPathInst(DefinedPath path)
{
    const vorn::PathInstances* const instances = Instances(m_layout);
    return instances != nullptr ? vorn::ToCString(instances->Effective(path)) : CString();
}

bool AppPathData::AddPathInst(DefinedPath path, CString folder, PathCfgVer layout)
{
    vorn::PathInstances* const instances = Instances(layout);
    return instances != nullptr && instances->Add(path, vorn::ViewOf(folder));
}

bool AppPathData::RemovePathInst(DefinedPath path, CString folder)
{
    vorn::PathInstances* const instances = Instances(m_layout);
    return instances != nullptr && instances->Remove(path, vorn::ViewOf(folder));
}

bool AppPathData::ReplacePathInst(DefinedPath path, CString oldFolder, CString newFolder)
{
    vorn::PathInstances* const instances = Instances(m_layout);
    return instances != nullptr && instances->Replace(path, vorn::ViewOf(oldFolder), vorn::ViewOf(newFolder));
}

bool AppPathData::ClearPathInst(DefinedPath path)
{
    vorn::PathInstances* const instances = Instances(m_layout);
    return instances != nullptr && instances->Clear(path);
}

std::vector<std::string>* AppPathData::GetPathInstList(DefinedPath path)
{
    return GetPathInstVec(path, m_layout);
}

CString& AppPathData::GetModuleName()
{
    return m_module;
}

std::vector<std::vector<std::string>*>* AppPathData::GetPathConfig(PathCfgVer layout)
{
    vorn::PathInstances* const instances = Instances(layout);
    return instances != nullptr ? instances->Lists() : nullptr;
}

std::vector<std::string>* AppPathData::GetPathInstVec(DefinedPath path, PathCfgVer layout)
{
    const vorn::PathInstances* const instances = Instances(layout);
    return instances != nullptr ? instances->Find(path) : nullptr;
}

vorn::PathInstances* AppPathData::Instances(PathCfgVer layout) const
{
    const auto found = m_layouts.find(layout);
    return found != m_layouts.end() ? found->second.get() : nullptr;
}
