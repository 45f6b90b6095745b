#pragma once

#include "config/AppRegData.h"

/// Settings shared by the whole family and its installers. Each call works under the local machine or under the
/// current user: the machine for the sections listed by SetGlobalSections() (all of them when none is listed), the
/// user for the rest, for an empty section and for proxy sections of "Global". A value that only the legacy INI file
/// holds is written into the registry when it is first read.
class VORNCOMMON_API GlobalRegData : public AppRegData
{
public:
    CString ReadVornString(const char* section, const char* key, const char* defaultValue) override;
    int ReadVornInt(const char* section, const char* key, int defaultValue) override;
    BOOL WriteVornString(const char* section, const char* key, const char* value) override;
    BOOL WriteVornInt(const char* section, const char* key, int value) override;
    BOOL WriteVornStrInt(const char* section, const char* key, const char* text) override;

    /// Lists the machine-wide sections anew from section "Local Machine Sections" of an INI file: "Name0", "Name1", ...
    /// up to the first gap (100 at most, 9 characters each) name them, and those whose own key is exactly "1" count.
    /// The list is the process's and outlives every record.
    static void SetGlobalSections(CString iniPath);

    /// Whether a section is machine-wide: FALSE for an empty one, TRUE while none is listed, else whether it is listed,
    /// whatever its case.
    static BOOL FindGlobalSection(CString section);

private:
    vorn::SettingsRoot RootOf(const char* section) const;
};
