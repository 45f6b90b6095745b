#pragma once

#include "config/core/IniTable.h"
#include "frame/core/Export.h"
#include "framework/core/CString.h"

#include <windows.h>

#include <memory>

namespace vorn
{
enum class SettingsRoot : int;
class SettingsSource;
} // namespace vorn

/// The settings of one application: the current user's registry under "Software\Vornwald\Application\Section", one
/// value a key, in the 32-bit view. Where the registry has no value, a read is answered from the application's legacy
/// INI file ("Application.INI" in the Windows folder, or the per-user copy that the system keeps of it), else by the
/// caller's default.
///
/// Values are read from the registry each time, so what other programs write is seen at once. A record without a name
/// has no settings: reads give the default, writes FALSE. A null section or key reads the default. Registry errors are
/// not reported beyond the results.
///
/// Not locked: for the user-interface thread. The order of the virtual operations is part of the interface, and the
/// destructor is not among them.
class VORNCOMMON_API AppRegData
{
public:
    AppRegData();
    ~AppRegData();
    AppRegData(const AppRegData&) = delete;
    AppRegData& operator=(const AppRegData&) = delete;

    /// Enters the legacy INI file of application `name` into the table and marks the table loaded. A file that is
    /// missing, names no section or names more than can be read changes nothing. Called with the module name by the
    /// first read that misses in the registry.
    virtual void InitINITable(const char* name);

    /// A setting as text of at most 1,023 characters (a longer one counts as missing). An empty text is a value. A
    /// number reads as its decimal text. A null default is an empty text.
    virtual CString ReadVornString(const char* section, const char* key, const char* defaultValue);

    /// A setting as number. A text in the registry counts when it begins with a digit and is the default otherwise; an
    /// INI value is its decimal value, 0 when it has none. Beyond 32 bits numbers stop at the limit.
    virtual int ReadVornInt(const char* section, const char* key, int defaultValue);

    /// Stores a text. A null value deletes the entry, a null key the whole section. FALSE when nothing was stored or
    /// deleted.
    virtual BOOL WriteVornString(const char* section, const char* key, const char* value);

    /// Stores a number. FALSE on failure, the old value then stays.
    virtual BOOL WriteVornInt(const char* section, const char* key, int value);

    /// Stores a number given as text of digits, 0 for an empty one. A text with any other character, a sign included,
    /// or beyond 4,294,967,295 stores nothing: FALSE. A null text deletes the entry, a null key the whole section.
    virtual BOOL WriteVornStrInt(const char* section, const char* key, const char* text);

    /// Name of the application whose settings these are.
    void SetModName(const CString& name);
    CString GetModName() const;

    /// Index of the application's entry in the path manager.
    void SetModPathIdx(int index);
    int GetModPathIdx() const;

protected:
    /// Deletes a value of a section, or with a null key the section's key, which must have no keys below it. FALSE
    /// when there was nothing to delete; nothing is made. An empty section without a key is refused: it would be the
    /// application's whole key.
    BOOL DeleteRegEntry(const char* section, const char* key, vorn::SettingsRoot root);

    /// The operations under a given root; `keep` writes a value found in the INI file into the registry.
    CString ReadString(vorn::SettingsRoot root, const char* section, const char* key, const char* defaultValue,
                       bool keep);
    int ReadInt(vorn::SettingsRoot root, const char* section, const char* key, int defaultValue, bool keep);
    BOOL WriteString(vorn::SettingsRoot root, const char* section, const char* key, const char* value);
    BOOL WriteInt(vorn::SettingsRoot root, const char* section, const char* key, int value);
    BOOL WriteStrInt(vorn::SettingsRoot root, const char* section, const char* key, const char* text);

    vorn::IniTable m_iniTable;
    bool m_iniLoaded = false;
    CString m_modName;
    int m_modPathIdx = 0;

private:
    const std::string* FindIniEntry(const char* section, const char* key);

    std::unique_ptr<vorn::SettingsSource> m_source;
};
