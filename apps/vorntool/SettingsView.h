#pragma once

#include "apps/vorntool/StoredSetting.h"

#include <map>
#include <optional>

namespace vorn::tool
{

/// Looks at what is stored for one application without changing anything: the registry as the applications read it, and
/// the legacy INI file where the registry has no value. (The library's own reads give values only, and those of shared
/// settings move INI values into the registry.)
class SettingsView
{
public:
    explicit SettingsView(const CString& application);

    /// The setting that the application would read; nothing when it would get its default.
    std::optional<StoredSetting> Find(const CString& section, const CString& key) const;

    /// All settings, by section and key; a key that the registry has hides the INI file's.
    std::vector<StoredSetting> All() const;

    /// The names that settings are kept under in the registry.
    static std::vector<std::string> Applications();

private:
    SettingSource RegistryOf(const CString& section) const;
    std::optional<StoredSetting> FindInRegistry(const CString& section, const CString& key) const;
    std::optional<StoredSetting> FindInIniFile(const CString& section, const CString& key) const;
    void AddRegistry(std::vector<StoredSetting>& settings, SettingSource source) const;
    void AddIniFile(std::vector<StoredSetting>& settings) const;

    CString m_application;
    std::map<std::string, std::string, std::less<>> m_iniFile; ///< text by "section|key"
};

} // namespace vorn::tool
