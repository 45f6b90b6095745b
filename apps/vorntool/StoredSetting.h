#pragma once

#include <VornCommon.h>

#include <string>
#include <string_view>
#include <vector>

namespace vorn::tool
{

/// Where a setting was found.
enum class SettingSource
{
    UserRegistry,
    MachineRegistry,
    IniFile
};

/// One value as it is stored.
struct StoredSetting
{
    std::string section; ///< 8-bit, as the library takes it
    std::string key;     ///< 8-bit
    SettingSource source;
    DWORD type;              ///< the registry's number for the value's type; REG_SZ in an INI file
    std::vector<BYTE> bytes; ///< the value itself

    /// "number", "text", "binary", "list" or "other".
    const char* TypeName() const;

    /// A number's value.
    int Number() const;

    /// UTF-8: a text up to its end, a number in decimal digits, any other value's bytes as hexadecimal digits.
    std::string Text() const;

    /// Whether the applications can read it: beyond 1,024 bytes they act as if it were not there.
    bool IsReadable() const;
};

/// "registry", "registry (machine)" or "INI file".
const char* NameOf(SettingSource source);

} // namespace vorn::tool
