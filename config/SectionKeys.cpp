#include "config/SectionKeys.h"

#include "config/core/SettingsKey.h"

namespace vorn
{
namespace
{
/// Sections whose keys stay open; a host that makes up section names must not use up its handles.
constexpr std::size_t kMostOpenSections = 256;

LSTATUS QueryValue(HKEY section, const char* key, RegistryValue& value)
{
    value.size = sizeof value.buffer;
    return RegQueryValueExA(section, key, nullptr, &value.type, reinterpret_cast<BYTE*>(value.buffer), &value.size);
}

LSTATUS SetValue(HKEY section, const char* key, DWORD type, std::span<const BYTE> data)
{
    return RegSetValueExA(section, key, 0, type, data.data(), static_cast<DWORD>(data.size()));
}

/// Whether a kept key may have answered for itself rather than for the value, as a deleted one does.
bool KeyIsStale(LSTATUS status)
{
    return status != ERROR_SUCCESS && status != ERROR_MORE_DATA && status != ERROR_FILE_NOT_FOUND;
}
} // namespace

HKEY RootKey(SettingsRoot root)
{
    return root == SettingsRoot::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

void SectionKeys::SetApplication(std::string_view name)
{
    CloseAll();
    m_application = name;
}

void SectionKeys::CloseAll()
{
    for (KeyMap& keys : m_keys)
    {
        keys.clear();
    }
}

SectionKeys::Keys& SectionKeys::KeysOf(SettingsRoot root, std::string_view section)
{
    KeyMap& keys = m_keys[static_cast<int>(root)];
    if (const auto found = keys.find(section); found != keys.end())
    {
        return found->second;
    }
    if (keys.size() >= kMostOpenSections)
    {
        keys.clear();
    }
    return keys[std::string(section)];
}

LSTATUS SectionKeys::OpenForReading(SettingsRoot root, std::string_view section, Keys& keys) const
{
    return OpenKey(RootKey(root), SectionKey(m_application, section).c_str(), KEY_QUERY_VALUE, keys.reading);
}

LSTATUS SectionKeys::OpenForWriting(SettingsRoot root, std::string_view section, Keys& keys) const
{
    // Where the system diverts writes into a copy of the user's, an older key for reading would not see them.
    keys.reading.reset();
    return CreateKey(RootKey(root), SectionKey(m_application, section).c_str(), keys.writing);
}

void SectionKeys::Query(SettingsRoot root, std::string_view section, const char* key, RegistryValue& value)
{
    Keys& keys = KeysOf(root, section);
    if (keys.reading)
    {
        value.status = QueryValue(keys.reading.get(), key, value);
        if (!KeyIsStale(value.status))
        {
            return;
        }
    }
    value.status = OpenForReading(root, section, keys);
    if (value.status == ERROR_SUCCESS)
    {
        value.status = QueryValue(keys.reading.get(), key, value);
    }
}

bool SectionKeys::Set(SettingsRoot root, std::string_view section, const char* key, DWORD type,
                      std::span<const BYTE> data)
{
    Keys& keys = KeysOf(root, section);
    if (keys.writing && SetValue(keys.writing.get(), key, type, data) == ERROR_SUCCESS)
    {
        return true;
    }
    return OpenForWriting(root, section, keys) == ERROR_SUCCESS &&
           SetValue(keys.writing.get(), key, type, data) == ERROR_SUCCESS;
}
} // namespace vorn
