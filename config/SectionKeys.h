#pragma once

#include "config/RegistryKey.h"
#include "config/core/StoredValue.h"

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vorn
{
/// Whose settings a section holds.
enum class SettingsRoot : int
{
    User,
    Machine,
};

HKEY RootKey(SettingsRoot root);

/// One value as the registry holds it. The bytes are valid when `status` is ERROR_SUCCESS, the type also when it is
/// ERROR_MORE_DATA.
struct RegistryValue
{
    LSTATUS status = ERROR_FILE_NOT_FOUND;
    DWORD type = REG_NONE;
    DWORD size = 0;
    std::byte buffer[kStoredLimit];

    bool IsThere() const
    {
        return status == ERROR_SUCCESS;
    }
    std::span<const std::byte> Bytes() const
    {
        return {buffer, size};
    }
};

/// The registry keys of one application's sections, kept open between calls: opening one costs more than all the rest
/// of a read. Values are never kept, every query goes to the registry. A key that was deleted meanwhile is opened anew
/// once, and a key that is not there is looked for again each time.
class SectionKeys
{
public:
    void SetApplication(std::string_view name);

    /// Queries a value of a section into `value`.
    void Query(SettingsRoot root, std::string_view section, const char* key, RegistryValue& value);

    /// Stores a value, making the section's key if needed. A failure leaves the old value.
    bool Set(SettingsRoot root, std::string_view section, const char* key, DWORD type, std::span<const BYTE> data);

    /// Closes every key.
    void CloseAll();

private:
    struct Keys
    {
        RegistryKey reading;
        RegistryKey writing;
    };
    struct TextHash : std::hash<std::string_view>
    {
        using is_transparent = void;
    };
    using KeyMap = std::unordered_map<std::string, Keys, TextHash, std::equal_to<>>;

    Keys& KeysOf(SettingsRoot root, std::string_view section);
    LSTATUS OpenForReading(SettingsRoot root, std::string_view section, Keys& keys) const;
    LSTATUS OpenForWriting(SettingsRoot root, std::string_view section, Keys& keys) const;

    std::string m_application;
    KeyMap m_keys[2];
};
} // namespace vorn
