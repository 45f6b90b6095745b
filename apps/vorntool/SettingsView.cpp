#include "apps/vorntool/SettingsView.h"

#include "apps/vorntool/Applications.h"
#include "apps/vorntool/RegistryWalk.h"

#include <algorithm>
#include <cstring>

namespace vorn::tool
{

namespace
{

constexpr const char* kFamilyKey = "Software\\Vornwald";

// The library loads an application's INI file; its table is kept for derived classes.
class IniFileReader : public AppRegData
{
public:
    explicit IniFileReader(const CString& application)
    {
        SetModName(application);
        InitINITable(application);
    }

    const auto& Entries() const
    {
        return m_iniTable;
    }
};

HKEY RootOf(SettingSource source)
{
    return source == SettingSource::MachineRegistry ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

std::string Std(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

bool SameName(const std::string& a, const std::string& b)
{
    return lstrcmpiA(a.c_str(), b.c_str()) == 0;
}

bool ComesBefore(const StoredSetting& a, const StoredSetting& b)
{
    return std::tie(a.section, a.key) < std::tie(b.section, b.key);
}

StoredSetting FromIniFile(std::string section, std::string key, const std::string& text)
{
    return {std::move(section), std::move(key), SettingSource::IniFile, REG_SZ, {text.begin(), text.end()}};
}

} // namespace

SettingsView::SettingsView(const CString& application)
    : m_application(application), m_iniFile(IniFileReader(application).Entries())
{
}

// Shared settings are the machine's section by section; proxies of "Global" always stay with the user.
SettingSource SettingsView::RegistryOf(const CString& section) const
{
    CString lower = section;
    lower.MakeLower();
    const bool isProxy = m_application == "Global" && lower.Find("proxy") >= 0;
    const bool isMachine = IsShared(m_application) && !isProxy && GlobalRegData::FindGlobalSection(section) != FALSE;
    return isMachine ? SettingSource::MachineRegistry : SettingSource::UserRegistry;
}

std::optional<StoredSetting> SettingsView::Find(const CString& section, const CString& key) const
{
    const std::optional<StoredSetting> stored = FindInRegistry(section, key);
    return stored && stored->IsReadable() ? stored : FindInIniFile(section, key);
}

std::optional<StoredSetting> SettingsView::FindInRegistry(const CString& section, const CString& key) const
{
    const SettingSource source = RegistryOf(section);
    const std::string path = std::string(kFamilyKey) + "\\" + Std(m_application) + "\\" + Std(section);
    StoredSetting setting = {Std(section), Std(key), source, 0, {}};
    const bool found = ReadRegistryValue(RootOf(source), path, setting.key, setting.type, setting.bytes);
    return found ? std::optional(setting) : std::nullopt;
}

std::optional<StoredSetting> SettingsView::FindInIniFile(const CString& section, const CString& key) const
{
    const auto found = m_iniFile.find(Std(section) + "|" + Std(key));
    return found == m_iniFile.end() ? std::nullopt : std::optional(FromIniFile(Std(section), Std(key), found->second));
}

std::vector<StoredSetting> SettingsView::All() const
{
    std::vector<StoredSetting> settings;
    AddRegistry(settings, SettingSource::UserRegistry);
    if (IsShared(m_application))
    {
        AddRegistry(settings, SettingSource::MachineRegistry);
    }
    AddIniFile(settings);
    std::sort(settings.begin(), settings.end(), ComesBefore);
    return settings;
}

void SettingsView::AddRegistry(std::vector<StoredSetting>& settings, SettingSource source) const
{
    const std::string path = std::string(kFamilyKey) + "\\" + Std(m_application);
    WalkRegistryValues(RootOf(source), path,
                       [&](RegistryValueFound&& value)
                       {
                           if (RegistryOf(value.subkey.c_str()) == source)
                           {
                               settings.push_back({std::move(value.subkey), std::move(value.name), source, value.type,
                                                   std::move(value.bytes)});
                           }
                       });
}

void SettingsView::AddIniFile(std::vector<StoredSetting>& settings) const
{
    const std::size_t stored = settings.size();
    for (const auto& [name, text] : m_iniFile)
    {
        const std::size_t bar = name.find('|');
        StoredSetting entry = FromIniFile(name.substr(0, bar), name.substr(bar + 1), text);
        const bool hidden = std::any_of(settings.begin(), settings.begin() + static_cast<std::ptrdiff_t>(stored),
                                        [&](const StoredSetting& each)
                                        {
                                            return each.IsReadable() && SameName(each.section, entry.section) &&
                                                   SameName(each.key, entry.key);
                                        });
        if (!hidden)
        {
            settings.push_back(std::move(entry));
        }
    }
}

std::vector<std::string> SettingsView::Applications()
{
    std::vector<std::string> names = RegistrySubkeys(HKEY_CURRENT_USER, kFamilyKey);
    for (std::string& name : RegistrySubkeys(HKEY_LOCAL_MACHINE, kFamilyKey))
    {
        names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end(),
              [](const auto& a, const auto& b)
              {
                  return lstrcmpiA(a.c_str(), b.c_str()) < 0;
              });
    names.erase(std::unique(names.begin(), names.end(), SameName), names.end());
    return names;
}

} // namespace vorn::tool
