#include "config/GlobalRegData.h"

#include "config/IniFile.h"
#include "config/SectionKeys.h"
#include "config/core/SharedSections.h"

using vorn::SettingsRoot;

namespace
{
constexpr std::size_t kLongestListed = 9; // characters of a listed name or mark

vorn::SharedSections& ListedSections()
{
    static vorn::SharedSections sections;
    return sections;
}
} // namespace

void GlobalRegData::SetGlobalSections(CString iniPath)
{
    const std::string path = iniPath.GetString();
    const auto listed = [&](const std::string& key)
    {
        return vorn::IniValue(path, "Local Machine Sections", key.c_str(), kLongestListed);
    };
    ListedSections() = path.empty() ? vorn::SharedSections() : vorn::ReadSharedSections(listed);
}

BOOL GlobalRegData::FindGlobalSection(CString section)
{
    return ListedSections().Holds(section.GetString());
}

SettingsRoot GlobalRegData::RootOf(const char* section) const
{
    const bool machine = ListedSections().IsMachineWide(m_modName.GetString(), section ? section : "");
    return machine ? SettingsRoot::Machine : SettingsRoot::User;
}

CString GlobalRegData::ReadVornString(const char* section, const char* key, const char* defaultValue)
{
    return ReadString(RootOf(section), section, key, defaultValue, true);
}

int GlobalRegData::ReadVornInt(const char* section, const char* key, int defaultValue)
{
    return ReadInt(RootOf(section), section, key, defaultValue, true);
}

BOOL GlobalRegData::WriteVornString(const char* section, const char* key, const char* value)
{
    return WriteString(RootOf(section), section, key, value);
}

BOOL GlobalRegData::WriteVornInt(const char* section, const char* key, int value)
{
    return WriteInt(RootOf(section), section, key, value);
}

BOOL GlobalRegData::WriteVornStrInt(const char* section, const char* key, const char* text)
{
    return WriteStrInt(RootOf(section), section, key, text);
}
