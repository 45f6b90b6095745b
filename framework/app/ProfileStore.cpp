#include "framework/app/ProfileStore.h"

#include "framework/app/core/ProfileBinary.h"

#include <algorithm>

namespace vorn
{

RegistryKey OpenKey(HKEY parent, LPCTSTR path)
{
    HKEY key = nullptr;
    return RegistryKey(::RegOpenKeyEx(parent, path, 0, KEY_READ | KEY_WRITE, &key) == ERROR_SUCCESS ? key : nullptr);
}

RegistryKey CreateKey(HKEY parent, LPCTSTR path)
{
    HKEY key = nullptr;
    const LSTATUS status = ::RegCreateKeyEx(parent, path, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_READ | KEY_WRITE,
                                            nullptr, &key, nullptr);
    return RegistryKey(status == ERROR_SUCCESS ? key : nullptr);
}

namespace
{

/// A value of any type and size. The value may grow between two looks at it.
bool ReadValue(HKEY key, LPCTSTR entry, DWORD& type, std::vector<std::uint8_t>& value)
{
    DWORD size = 0;
    LSTATUS status = key ? ::RegQueryValueEx(key, entry, nullptr, &type, nullptr, &size) : ERROR_FILE_NOT_FOUND;
    while (status == ERROR_SUCCESS || status == ERROR_MORE_DATA)
    {
        value.resize(std::max<DWORD>(size, 1));
        size = static_cast<DWORD>(value.size());
        status = ::RegQueryValueEx(key, entry, nullptr, &type, value.data(), &size);
        if (status == ERROR_SUCCESS)
        {
            value.resize(size);
            return true;
        }
    }
    return false;
}

} // namespace

bool ReadNumber(HKEY key, LPCTSTR entry, DWORD& value)
{
    DWORD type = 0;
    DWORD number = 0;
    DWORD size = sizeof(number);
    if (!key || ::RegQueryValueEx(key, entry, nullptr, &type, reinterpret_cast<BYTE*>(&number), &size) != 0 ||
        type != REG_DWORD || size != sizeof(number))
    {
        return false;
    }
    value = number;
    return true;
}

bool ReadText(HKEY key, LPCTSTR entry, CString& value)
{
    DWORD type = 0;
    std::vector<std::uint8_t> bytes;
    if (!ReadValue(key, entry, type, bytes) || (type != REG_SZ && type != REG_EXPAND_SZ))
    {
        return false;
    }
    const auto end = std::ranges::find(bytes, 0);
    value = CString(reinterpret_cast<const char*>(bytes.data()), static_cast<int>(end - bytes.begin()));
    return true;
}

bool ReadBytes(HKEY key, LPCTSTR entry, std::vector<std::uint8_t>& value)
{
    DWORD type = 0;
    return ReadValue(key, entry, type, value) && type == REG_BINARY;
}

bool WriteValue(HKEY key, LPCTSTR entry, DWORD type, const void* data, DWORD size)
{
    return key && ::RegSetValueEx(key, entry, 0, type, static_cast<const BYTE*>(data), size) == ERROR_SUCCESS;
}

CString ReadIniText(LPCTSTR section, LPCTSTR entry, LPCTSTR fallback, LPCTSTR file)
{
    CString text;
    for (DWORD size = 1024;; size *= 2)
    {
        const DWORD length =
            ::GetPrivateProfileString(section, entry, fallback, text.GetBuffer(static_cast<int>(size)), size, file);
        text.ReleaseBuffer(static_cast<int>(length));
        if (length + 1 < size)
        {
            return text;
        }
    }
}

bool ReadIniBytes(LPCTSTR section, LPCTSTR entry, std::vector<std::uint8_t>& value, LPCTSTR file)
{
    // The fallback is no binary text: a missing entry is a failure, an empty one an empty value.
    const CString text = ReadIniText(section, entry, "?", file);
    return DecodeProfileBinary({text.GetString(), static_cast<std::size_t>(text.GetLength())}, value);
}

bool WriteIniBytes(LPCTSTR section, LPCTSTR entry, std::span<const std::uint8_t> value, LPCTSTR file)
{
    return ::WritePrivateProfileString(section, entry, EncodeProfileBinary(value).c_str(), file) != FALSE;
}

} // namespace vorn
