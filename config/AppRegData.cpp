#include "config/AppRegData.h"

#include "config/IniFile.h"
#include "config/SettingsSource.h"
#include "config/core/NumberText.h"
#include "config/core/SettingsKey.h"
#include "frame/core/StringViews.h"

#include <cstring>

using vorn::SettingsRoot;

namespace
{
std::span<const BYTE> NumberBytes(const DWORD& value)
{
    return {reinterpret_cast<const BYTE*>(&value), sizeof value};
}

/// The characters of a text with their terminating zero.
std::span<const BYTE> TextBytes(const char* text)
{
    return {reinterpret_cast<const BYTE*>(text), std::strlen(text) + 1};
}
} // namespace

AppRegData::AppRegData() : m_source(std::make_unique<vorn::SettingsSource>())
{
}

AppRegData::~AppRegData() = default;

void AppRegData::SetModName(const CString& name)
{
    m_modName = name;
    m_source->keys.SetApplication(name.GetString());
}

CString AppRegData::GetModName() const
{
    return m_modName;
}

void AppRegData::SetModPathIdx(int index)
{
    m_modPathIdx = index;
}

int AppRegData::GetModPathIdx() const
{
    return m_modPathIdx;
}

void AppRegData::InitINITable(const char* name)
{
    const std::string file = m_source->FindIniFile(name ? name : "");
    if (!file.empty() && vorn::LoadIniFile(file, m_iniTable))
    {
        m_iniLoaded = true;
    }
}

CString AppRegData::ReadVornString(const char* section, const char* key, const char* defaultValue)
{
    return ReadString(SettingsRoot::User, section, key, defaultValue, false);
}

int AppRegData::ReadVornInt(const char* section, const char* key, int defaultValue)
{
    return ReadInt(SettingsRoot::User, section, key, defaultValue, false);
}

BOOL AppRegData::WriteVornString(const char* section, const char* key, const char* value)
{
    return WriteString(SettingsRoot::User, section, key, value);
}

BOOL AppRegData::WriteVornInt(const char* section, const char* key, int value)
{
    return WriteInt(SettingsRoot::User, section, key, value);
}

BOOL AppRegData::WriteVornStrInt(const char* section, const char* key, const char* text)
{
    return WriteStrInt(SettingsRoot::User, section, key, text);
}

const std::string* AppRegData::FindIniEntry(const char* section, const char* key)
{
    if (!m_iniLoaded)
    {
        InitINITable(m_modName);
    }
    return vorn::FindEntry(m_iniTable, section, key);
}

CString AppRegData::ReadString(SettingsRoot root, const char* section, const char* key, const char* defaultValue,
                               bool keep)
{
    if (section && key && !m_modName.IsEmpty())
    {
        vorn::RegistryValue value;
        m_source->keys.Query(root, section, key, value);
        if (value.IsThere())
        {
            return vorn::ToCString(vorn::StoredAsText(value.type, value.Bytes()));
        }
        if (const std::string* entry = FindIniEntry(section, key))
        {
            if (keep && value.status != ERROR_MORE_DATA) // a text too long to be read is not to be replaced
            {
                WriteString(root, section, key, entry->c_str());
            }
            return vorn::ToCString(*entry);
        }
    }
    return {defaultValue};
}

int AppRegData::ReadInt(SettingsRoot root, const char* section, const char* key, int defaultValue, bool keep)
{
    if (!section || !key || m_modName.IsEmpty())
    {
        return defaultValue;
    }
    vorn::RegistryValue value;
    m_source->keys.Query(root, section, key, value);
    if (value.IsThere())
    {
        return vorn::StoredAsNumber(value.type, value.Bytes(), defaultValue);
    }
    if (value.status == ERROR_MORE_DATA)
    {
        return defaultValue; // a value is there, but none that is a number
    }
    const std::string* entry = FindIniEntry(section, key);
    if (!entry)
    {
        return defaultValue;
    }
    const int number = vorn::LeadingNumber(*entry);
    if (keep)
    {
        WriteInt(root, section, key, number);
    }
    return number;
}

BOOL AppRegData::WriteString(SettingsRoot root, const char* section, const char* key, const char* value)
{
    if (!key || !value)
    {
        return DeleteRegEntry(section, key, root);
    }
    return section && !m_modName.IsEmpty() && m_source->keys.Set(root, section, key, REG_SZ, TextBytes(value));
}

BOOL AppRegData::WriteInt(SettingsRoot root, const char* section, const char* key, int value)
{
    const DWORD number = static_cast<DWORD>(value);
    return section && key && !m_modName.IsEmpty() &&
           m_source->keys.Set(root, section, key, REG_DWORD, NumberBytes(number));
}

BOOL AppRegData::WriteStrInt(SettingsRoot root, const char* section, const char* key, const char* text)
{
    if (!key || !text)
    {
        return DeleteRegEntry(section, key, root);
    }
    const auto number = vorn::DigitsOnly(text);
    return number && WriteInt(root, section, key, static_cast<int>(*number));
}

BOOL AppRegData::DeleteRegEntry(const char* section, const char* key, SettingsRoot root)
{
    if (!section || m_modName.IsEmpty() || (!key && !vorn::NamesOwnKey(section)))
    {
        return FALSE;
    }
    const char* application = m_modName;
    const std::string path = key ? vorn::SectionKey(application, section) : vorn::ApplicationKey(application);
    vorn::RegistryKey opened;
    if (vorn::OpenKey(vorn::RootKey(root), path.c_str(), KEY_ALL_ACCESS, opened) != ERROR_SUCCESS)
    {
        return FALSE;
    }
    const LSTATUS status =
        key ? RegDeleteValueA(opened.get(), key) : RegDeleteKeyExA(opened.get(), section, KEY_WOW64_32KEY, 0);
    return status == ERROR_SUCCESS;
}
