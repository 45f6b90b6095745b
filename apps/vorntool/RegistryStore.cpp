#include "apps/vorntool/RegistryStore.h"

#include "apps/vorntool/TextConversion.h"
#include "apps/vorntool/core/Command.h"

namespace vorn::tool
{

namespace
{

std::optional<std::string> NumberBytes(const std::string& word, std::string& reason)
{
    const std::optional<std::uint32_t> number = ParseRegistryNumber(word);
    reason = number ? "" : Quoted(word) + " is no whole number of 32 bits";
    return number ? std::optional(std::string(reinterpret_cast<const char*>(&*number), sizeof *number)) : std::nullopt;
}

std::optional<std::string> BinaryBytes(const std::string& word, std::string& reason)
{
    const std::optional<std::string> bytes = ParseHexBytes(word);
    reason = bytes ? "" : Quoted(word) + " has not pairs of hexadecimal digits";
    return bytes;
}

// A text with its closing zero.
std::optional<std::string> TextBytes(const std::string& word, std::string& reason)
{
    const std::optional<CString> text = LibraryFromUtf8(word);
    reason = text ? "" : Quoted(word) + " has characters that the system's code page has not";
    return text ? std::optional(std::string(text->GetString()) + '\0') : std::nullopt;
}

std::optional<std::string> ListBytes(std::span<const std::string> words, std::string& reason)
{
    std::string bytes;
    for (const std::string& word : words)
    {
        const std::optional<std::string> text = TextBytes(word, reason);
        if (!text)
        {
            return std::nullopt;
        }
        bytes += *text;
    }
    return bytes + '\0';
}

std::optional<std::string> BytesOf(DWORD type, std::span<const std::string> words, std::string& reason)
{
    if (type == REG_MULTI_SZ)
    {
        return ListBytes(words, reason);
    }
    if (words.size() != 1)
    {
        reason = words.empty() ? "VALUE is missing" : "several VALUEs make a list only, with --type list";
        return std::nullopt;
    }
    return type == REG_DWORD    ? NumberBytes(words[0], reason)
           : type == REG_BINARY ? BinaryBytes(words[0], reason)
                                : TextBytes(words[0], reason);
}

} // namespace

std::optional<RegistryValue> MakeValue(const std::string& name, const std::string& type,
                                       std::span<const std::string> words, std::string& reason)
{
    const std::optional<std::uint32_t> number = TypeNamed(type);
    if (!number)
    {
        reason = Quoted(type) + " is no type to set: there are sz, dword, binary, list and expand";
        return std::nullopt;
    }
    std::optional<std::string> bytes = BytesOf(*number, words, reason);
    return bytes ? std::optional(RegistryValue{name, *number, std::move(*bytes)}) : std::nullopt;
}

DWORD StoreValue(const KeyAddress& address, const RegistryValue& value)
{
    Registry key;
    std::string bytes = value.bytes;
    const bool stored = key.Connect(Registry::StrToKey(address.root.c_str()), nullptr) &&
                        key.Create(address.path.c_str(), nullptr, Registry::OptionNonVolatile,
                                   Registry::PermissionWrite, nullptr, nullptr) &&
                        key.SetValue(value.name.c_str(), static_cast<Registry::KeyValueTypes>(value.type),
                                     reinterpret_cast<BYTE*>(bytes.data()), static_cast<DWORD>(bytes.size()));
    return stored ? ERROR_SUCCESS : key.GetLastError();
}

DWORD DeleteStoredKey(const KeyAddress& address, bool recursive)
{
    Registry root;
    const bool deleted = OpenRegistryKey(root, {address.root, ""}, Registry::PermissionRead) &&
                         root.DeleteKey(address.path.c_str(), recursive);
    return deleted ? ERROR_SUCCESS : root.GetLastError();
}

} // namespace vorn::tool
