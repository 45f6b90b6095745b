#include "apps/vorntool/StoredSetting.h"

#include "apps/vorntool/TextConversion.h"

#include <algorithm>
#include <cstring>

namespace vorn::tool
{

namespace
{

constexpr std::size_t kReadableBytes = 1024;

std::string HexDigits(const std::vector<BYTE>& bytes)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (const BYTE byte : bytes)
    {
        text += kDigits[byte >> 4];
        text += kDigits[byte & 15];
    }
    return text;
}

bool IsNumber(const StoredSetting& setting)
{
    return setting.type == REG_DWORD && setting.bytes.size() == sizeof(DWORD);
}

bool IsText(const StoredSetting& setting)
{
    return setting.type == REG_SZ || setting.type == REG_EXPAND_SZ;
}

} // namespace

const char* StoredSetting::TypeName() const
{
    if (IsNumber(*this))
    {
        return "number";
    }
    if (IsText(*this))
    {
        return "text";
    }
    return type == REG_BINARY ? "binary" : type == REG_MULTI_SZ ? "list" : "other";
}

int StoredSetting::Number() const
{
    int number = 0;
    std::memcpy(&number, bytes.data(), std::min(bytes.size(), sizeof number));
    return number;
}

std::string StoredSetting::Text() const
{
    if (IsNumber(*this))
    {
        return std::to_string(Number());
    }
    if (!IsText(*this))
    {
        return HexDigits(bytes);
    }
    const auto end = std::find(bytes.begin(), bytes.end(), BYTE{0});
    return Utf8FromLibrary(std::string(bytes.begin(), end));
}

bool StoredSetting::IsReadable() const
{
    return source == SettingSource::IniFile || bytes.size() <= kReadableBytes;
}

const char* NameOf(SettingSource source)
{
    switch (source)
    {
    case SettingSource::UserRegistry:
        return "registry";
    case SettingSource::MachineRegistry:
        return "registry (machine)";
    case SettingSource::IniFile:
        break;
    }
    return "INI file";
}

} // namespace vorn::tool
