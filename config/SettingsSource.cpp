#include "config/SettingsSource.h"

#include "config/FolderNames.h"

namespace vorn
{
std::string SettingsSource::findIniFile(const std::string& application)
{
    if (application.empty())
    {
        return {};
    }
    setPlaces(application);
    if (m_perUser.hasCome())
    {
        return m_perUser.path();
    }
    return m_shared.hasCome() ? m_shared.path() : std::string();
}

void SettingsSource::setPlaces(const std::string& application)
{
    if (application == m_application)
    {
        return;
    }
    m_application = application;
    const FolderNames& folders = folderNames();
    const std::string file = '\\' + application + ".INI";
    m_shared = AbsentFile(folders.windows + file);
    const bool diverted = !folders.localData.empty() && folders.windows.size() > 2;
    // The system keeps diverted files under their path without the drive ("C:").
    m_perUser =
        diverted ? AbsentFile(folders.localData + "\\VirtualStore" + folders.windows.substr(2) + file) : AbsentFile();
}
} // namespace vorn
