#include "config/AppRegMgr.h"

// The settings operations: each looks its record up and hands the call on.

CString AppRegMgr::ReadVornString(const char* section, const char* key, const char* defaultValue, int appIndex)
{
    AppRegData* record = RecordAt(appIndex);
    return record ? record->ReadVornString(section, key, defaultValue) : CString(defaultValue);
}

CString AppRegMgr::ReadVornString(const char* section, const char* key, const char* defaultValue, const char* appName)
{
    AppRegData* record = RecordOf(appName);
    return record ? record->ReadVornString(section, key, defaultValue) : CString(defaultValue);
}

int AppRegMgr::ReadVornInt(const char* section, const char* key, int defaultValue, int appIndex)
{
    AppRegData* record = RecordAt(appIndex);
    return record ? record->ReadVornInt(section, key, defaultValue) : defaultValue;
}

int AppRegMgr::ReadVornInt(const char* section, const char* key, int defaultValue, const char* appName)
{
    AppRegData* record = RecordOf(appName);
    return record ? record->ReadVornInt(section, key, defaultValue) : defaultValue;
}

BOOL AppRegMgr::WriteVornString(const char* section, const char* key, const char* value, int appIndex)
{
    AppRegData* record = RecordAt(appIndex);
    return record ? record->WriteVornString(section, key, value) : FALSE;
}

BOOL AppRegMgr::WriteVornString(const char* section, const char* key, const char* value, const char* appName)
{
    AppRegData* record = RecordOf(appName);
    return record ? record->WriteVornString(section, key, value) : FALSE;
}

BOOL AppRegMgr::WriteVornInt(const char* section, const char* key, int value, int appIndex)
{
    AppRegData* record = RecordAt(appIndex);
    return record ? record->WriteVornInt(section, key, value) : FALSE;
}

BOOL AppRegMgr::WriteVornInt(const char* section, const char* key, int value, const char* appName)
{
    AppRegData* record = RecordOf(appName);
    return record ? record->WriteVornInt(section, key, value) : FALSE;
}

BOOL AppRegMgr::WriteVornStrInt(const char* section, const char* key, const char* text, int appIndex)
{
    AppRegData* record = RecordAt(appIndex);
    return record ? record->WriteVornStrInt(section, key, text) : FALSE;
}

BOOL AppRegMgr::WriteVornStrInt(const char* section, const char* key, const char* text, const char* appName)
{
    AppRegData* record = RecordOf(appName);
    return record ? record->WriteVornStrInt(section, key, text) : FALSE;
}
