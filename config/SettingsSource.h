#pragma once

#include "config/AbsentFile.h"
#include "config/SectionKeys.h"

#include <string>

namespace vorn
{
/// Where one record's settings come from: the open registry keys and the two places of its INI file.
class SettingsSource
{
public:
    SectionKeys keys;

    /// Path of the application's INI file: the per-user copy when there is one, else the file in the Windows folder.
    /// Empty when neither is there.
    std::string FindIniFile(const std::string& application);

private:
    void SetPlaces(const std::string& application);

    std::string m_application;
    AbsentFile m_shared;
    AbsentFile m_perUser;
};
} // namespace vorn
