#pragma once

#include "config/AppRegData.h"

#include <memory>
#include <vector>

/// The one entry to all settings of the family: one record for each application, the host's with index 0, and the
/// shared records "Global" and "Installers".
///
/// Forms with a name use the record of that name, which must have been added, or the host's for a null or empty name;
/// forms with an index use the record at that index. A name or index without a record reads the default and writes
/// FALSE. What the operations do is described at AppRegData and GlobalRegData.
///
/// Not locked: for the user-interface thread. The order of the virtual operations is part of the interface.
class VORNCOMMON_API AppRegMgr
{
public:
    virtual ~AppRegMgr();
    AppRegMgr(const AppRegMgr&) = delete;
    AppRegMgr& operator=(const AppRegMgr&) = delete;

    virtual CString ReadVornString(const char* section, const char* key, const char* defaultValue, int appIndex);
    virtual CString ReadVornString(const char* section, const char* key, const char* defaultValue, const char* appName);
    virtual int ReadVornInt(const char* section, const char* key, int defaultValue, int appIndex);
    virtual int ReadVornInt(const char* section, const char* key, int defaultValue, const char* appName);
    virtual BOOL WriteVornString(const char* section, const char* key, const char* value, int appIndex);
    virtual BOOL WriteVornString(const char* section, const char* key, const char* value, const char* appName);
    virtual BOOL WriteVornInt(const char* section, const char* key, int value, int appIndex);
    virtual BOOL WriteVornInt(const char* section, const char* key, int value, const char* appName);
    virtual BOOL WriteVornStrInt(const char* section, const char* key, const char* text, int appIndex);
    virtual BOOL WriteVornStrInt(const char* section, const char* key, const char* text, const char* appName);

    /// The manager, made on the first call with the host application's record. The host's name is that of the
    /// framework's application object, or the executable's base name when there is none.
    static AppRegMgr* Instance();

    /// Deletes the manager with every record; Instance() makes a new one. The set of shared names and the list of
    /// machine-wide sections stay.
    static void FreeInst();

    /// Index of the record of `name` (compared exactly), which is made when there is none. An empty name is the host's.
    int AddApp(CString name);

    /// The record of `name`, or null.
    AppRegData* GetAppRegData(CString name);

    /// Index of the record of `name`; -1 when there is none, and for an empty name.
    int GetAppRegIndex(CString name);

    /// Whether applications may look for their folders in the network; kept here for the path manager, false at first.
    void AllowNetwork(bool allow);
    bool AllowNetwork();

    /// Makes `name` one of the shared names, as "Global" and "Installers" are. Records already added stay as they are.
    static void UseGlobalRegForApp(const CString& name);

    /// Whether an INI file asks for machine-wide settings: its section "Registry Settings" has "1" under "Local
    /// Machine". False when there is no such file.
    static bool IsGlobalSet(CString& iniPath);

protected:
    AppRegMgr();

private:
    AppRegData* RecordAt(int index) const;
    AppRegData* RecordOf(const char* name) const;

    std::vector<std::shared_ptr<AppRegData>> m_records;
    bool m_allowNetwork = false;
};
