#include "config/SettingsSource.h"

#include "config/FolderNames.h"

namespace vorn
{
std::string SettingsSource::FindIniFile(const std::string& application)
{
    if (application.empty())
    {
        return {};
    }
    SetPlaces(application);
    if (m_perUser.HasCome())
    {
        return m_perUser.Path();
    }
    return m_shared.HasCome() ? m_shared.Path() : std::string();
}

void SettingsSource::SetPlaces(const std::string& application)
{
    if (application == m_application)
    {
        return;
    }
    m_application = application;
    const FolderNames& folders = SystemFolders();
    const std::string file = '\\' + application + ".INI";
    m_shared = AbsentFile(folders.windows + file, AbsentFile::Folder::KeepOpen);
    const bool diverted = !folders.localData.empty() && folders.windows.size() > 2;
    // The system keeps diverted files under their path without the drive ("C:").
    m_perUser = diverted ? AbsentFile(folders.localData + "\\VirtualStore" + folders.windows.substr(2) + file,
                                      AbsentFile::Folder::AskByName)
                         : AbsentFile();
}
} // namespace vorn
