#pragma once

#include "apps/sample/core/ReportTable.h"

/// Where a setting's value comes from.
enum class SettingSource
{
    Registry, ///< stored by a program of today
    IniFile,  ///< left by an older installation
    Default,  ///< nobody chose
};

/// Looks up where the running application's setting comes from, in the order in which the library asks.
SettingSource SourceOfSetting(const char* section, const char* key);

/// The settings that decide what the sample shows, each with its value and its source.
vorn::ReportTable SettingsInForceTable();
