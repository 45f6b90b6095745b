#include "apps/sample/model/SettingsInForce.h"

#include "apps/sample/model/LibraryText.h"
#include "apps/sample/resource.h"

#include <VornCommon.h>

#include <array>

namespace
{

enum class Meaning
{
    Unit,
    YesNo,
};

struct Setting
{
    UINT label; // a text of the library or of the sample
    const char* section;
    const char* key;
    int defaultValue;
    Meaning meaning;
};

constexpr std::array kSettings = {
    Setting{IDS_VORN_DISTANCE, "Units", "Distance", UNIT_NM, Meaning::Unit},
    Setting{IDS_VORN_SPEED, "Units", "Speed", UNIT_KTS, Meaning::Unit},
    Setting{IDS_VORN_SHORT_DISTANCE, "Units", "ShortDist", UNIT_FT, Meaning::Unit},
    Setting{IDS_VORN_FUEL, "Units", "Fuel", UNIT_AUTO, Meaning::Unit},
    Setting{IDS_VORN_MASS, "Units", "Mass", UNIT_LBS, Meaning::Unit},
    Setting{IDS_VORN_TEMPERATURE, "Units", "Temp", UNIT_F, Meaning::Unit},
    Setting{IDS_VORN_PRESSURE, "Units", "Pressure", UNIT_INHG, Meaning::Unit},
    Setting{IDS_SAMPLE_SECONDS, "General", "Show seconds", 0, Meaning::YesNo},
};

bool IsInRegistry(const char* section, const char* key)
{
    CString path;
    path.Format("Software\\Vornwald\\%s\\%s", AfxGetAppName(), section);
    HKEY handle = nullptr;
    if (RegOpenKeyEx(HKEY_CURRENT_USER, path, 0, KEY_QUERY_VALUE | KEY_WOW64_32KEY, &handle) != ERROR_SUCCESS)
        return false;
    const LONG result = RegQueryValueEx(handle, key, nullptr, nullptr, nullptr, nullptr);
    RegCloseKey(handle);
    return result == ERROR_SUCCESS;
}

// Two reads with different defaults agree only when neither default was used.
bool IsStored(const char* section, const char* key)
{
    VornCommonApp* const app = VornCommonApp::Inst();
    return app->GetSettingString(section, key, "a") == app->GetSettingString(section, key, "b");
}

std::string NameOf(SettingSource source)
{
    switch (source)
    {
    case SettingSource::Registry:
        return LibraryText(IDS_VORN_FROM_REGISTRY);
    case SettingSource::IniFile:
        return LibraryText(IDS_VORN_FROM_INI);
    case SettingSource::Default:
        break;
    }
    return LibraryText(IDS_VORN_FROM_DEFAULT);
}

std::string UnitText(int unit)
{
    if (unit == UNIT_AUTO)
        return "as asked";
    return unit >= 0 && unit < gUnitCount ? gUnitInfo[unit][0] : "unknown unit";
}

std::string ValueText(const Setting& setting, int value)
{
    switch (setting.meaning)
    {
    case Meaning::Unit:
        return UnitText(value);
    case Meaning::YesNo:
        break;
    }
    return value != 0 ? "yes" : "no";
}

vorn::Tone ToneOf(SettingSource source)
{
    return source == SettingSource::Default ? vorn::Tone::Muted : vorn::Tone::Accent;
}

} // namespace

SettingSource SourceOfSetting(const char* section, const char* key)
{
    if (IsInRegistry(section, key))
        return SettingSource::Registry;
    return IsStored(section, key) ? SettingSource::IniFile : SettingSource::Default;
}

vorn::ReportTable SettingsInForceTable()
{
    vorn::ReportTable table{"Settings in force", "", {{"Setting"}, {"Value"}, {"From"}}, {}};
    for (const Setting& setting : kSettings)
    {
        const int value = VornCommonApp::Inst()->GetSettingInt(setting.section, setting.key, setting.defaultValue);
        const SettingSource source = SourceOfSetting(setting.section, setting.key);
        table.AddRow({LibraryText(setting.label), ValueText(setting, value), NameOf(source)}, ToneOf(source));
    }
    return table;
}
