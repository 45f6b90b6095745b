#include "config/SectionKeys.h"

#include "config/core/SettingsKey.h"

namespace vorn
{
namespace
{
/// Sections whose keys stay open; a host that makes up section names must not use up its handles.
constexpr std::size_t kMostOpenSections = 256;

LSTATUS queryValue(HKEY section, const char* key, RegistryValue& value)
{
    value.size = sizeof value.buffer;
    return RegQueryValueExA(section, key, nullptr, &value.type, reinterpret_cast<BYTE*>(value.buffer), &value.size);
}

LSTATUS setValue(HKEY section, const char* key, DWORD type, std::span<const BYTE> data)
{
    return RegSetValueExA(section, key, 0, type, data.data(), static_cast<DWORD>(data.size()));
}

/// Whether a kept key may have answered for itself rather than for the value, as a deleted one does.
bool keyIsStale(LSTATUS status)
{
    return status != ERROR_SUCCESS && status != ERROR_MORE_DATA && status != ERROR_FILE_NOT_FOUND;
}
} // namespace

HKEY rootKey(SettingsRoot root)
{
    return root == SettingsRoot::Machine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

void SectionKeys::setApplication(std::string_view name)
{
    closeAll();
    m_application = name;
}

void SectionKeys::closeAll()
{
    for (KeyMap& keys : m_keys)
    {
        keys.clear();
    }
}

SectionKeys::Keys& SectionKeys::keysOf(SettingsRoot root, std::string_view section)
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

LSTATUS SectionKeys::openForReading(SettingsRoot root, std::string_view section, Keys& keys) const
{
    return openKey(rootKey(root), sectionKey(m_application, section).c_str(), KEY_QUERY_VALUE, keys.reading);
}

LSTATUS SectionKeys::openForWriting(SettingsRoot root, std::string_view section, Keys& keys) const
{
    // Where the system diverts writes into a copy of the user's, an older key for reading would not see them.
    keys.reading.reset();
    return createKey(rootKey(root), sectionKey(m_application, section).c_str(), keys.writing);
}

void SectionKeys::query(SettingsRoot root, std::string_view section, const char* key, RegistryValue& value)
{
    Keys& keys = keysOf(root, section);
    if (keys.reading)
    {
        value.status = queryValue(keys.reading.get(), key, value);
        if (!keyIsStale(value.status))
        {
            return;
        }
    }
    value.status = openForReading(root, section, keys);
    if (value.status == ERROR_SUCCESS)
    {
        value.status = queryValue(keys.reading.get(), key, value);
    }
}

bool SectionKeys::set(SettingsRoot root, std::string_view section, const char* key, DWORD type,
                      std::span<const BYTE> data)
{
    Keys& keys = keysOf(root, section);
    if (keys.writing && setValue(keys.writing.get(), key, type, data) == ERROR_SUCCESS)
    {
        return true;
    }
    return openForWriting(root, section, keys) == ERROR_SUCCESS &&
           setValue(keys.writing.get(), key, type, data) == ERROR_SUCCESS;
}
} // namespace vorn
