#include "apps/vorntool/core/RegistryWords.h"

#include "apps/vorntool/core/ToolNumbers.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace vorn::tool
{

namespace
{

struct RootWord
{
    std::string_view shortName;
    std::string_view name;
};

constexpr RootWord kRoots[] = {
    {"HKCR", "HKEY_CLASSES_ROOT"}, {"HKCU", "HKEY_CURRENT_USER"},   {"HKLM", "HKEY_LOCAL_MACHINE"},
    {"HKU", "HKEY_USERS"},         {"HKCC", "HKEY_CURRENT_CONFIG"}, {"", "HKEY_DYN_DATA"},
};

struct TypeWord
{
    std::uint32_t type;
    std::string_view name;
    bool canBeSet;
};

// Numbers as the system documents them.
constexpr TypeWord kTypes[] = {
    {1, "sz", true},    {4, "dword", true}, {3, "binary", true},    {7, "list", true},       {2, "expand", true},
    {0, "none", false}, {6, "link", false}, {5, "dword-be", false}, {8, "resources", false}, {11, "qword", false},
};

char Upper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool SameWord(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, Upper, Upper);
}

const RootWord* FindRoot(std::string_view word)
{
    const auto* const found =
        std::ranges::find_if(kRoots,
                             [word](const RootWord& root)
                             {
                                 return !word.empty() && (SameWord(word, root.shortName) || SameWord(word, root.name));
                             });
    return found == std::end(kRoots) ? nullptr : found;
}

std::optional<unsigned> ParseHex(std::string_view digits)
{
    unsigned value = 0;
    const char* const end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, value, 16);
    return result.ec == std::errc() && result.ptr == end ? std::optional(value) : std::nullopt;
}

bool IsSeparator(char c)
{
    return c == ' ' || c == ',';
}

} // namespace

std::string KeyAddress::Text() const
{
    return path.empty() ? root : root + "\\" + path;
}

KeyAddress KeyAddress::Below(std::string_view name) const
{
    return {root, path.empty() ? std::string(name) : path + "\\" + std::string(name)};
}

std::optional<KeyAddress> ParseKeyAddress(std::string_view text)
{
    const std::size_t end = std::min(text.find('\\'), text.size());
    const RootWord* const root = FindRoot(text.substr(0, end));
    std::string_view path = text.substr(std::min(end + 1, text.size()));
    if (path.ends_with('\\'))
    {
        path.remove_suffix(1);
    }
    const bool hasEmptyName = text.find("\\\\") != std::string_view::npos;
    return root == nullptr || hasEmptyName ? std::nullopt
                                           : std::optional(KeyAddress{std::string(root->name), std::string(path)});
}

std::optional<std::uint32_t> TypeNamed(std::string_view name)
{
    const auto* const found = std::ranges::find(kTypes, name, &TypeWord::name);
    return found == std::end(kTypes) || !found->canBeSet ? std::nullopt : std::optional(found->type);
}

std::string NameOfType(std::uint32_t type)
{
    const auto* const found = std::ranges::find(kTypes, type, &TypeWord::type);
    return found == std::end(kTypes) ? "type " + std::to_string(type) : std::string(found->name);
}

std::optional<std::uint32_t> ParseRegistryNumber(std::string_view text)
{
    if (text.starts_with("0x") || text.starts_with("0X"))
    {
        return ParseHex(text.substr(2));
    }
    const std::optional<int> number = ParseSettingNumber(text);
    return number ? std::optional(static_cast<std::uint32_t>(*number)) : std::nullopt;
}

std::optional<std::string> ParseHexBytes(std::string_view text)
{
    std::string bytes;
    while (!text.empty())
    {
        const std::optional<unsigned> byte = text.size() >= 2 ? ParseHex(text.substr(0, 2)) : std::nullopt;
        if (!byte)
        {
            return std::nullopt;
        }
        bytes.push_back(static_cast<char>(*byte));
        text.remove_prefix(2);
        text.remove_prefix(!text.empty() && IsSeparator(text.front()) ? 1 : 0);
    }
    return bytes;
}

std::string HexBytes(std::string_view bytes)
{
    constexpr char kDigits[] = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes)
    {
        text += kDigits[static_cast<unsigned char>(byte) >> 4];
        text += kDigits[static_cast<unsigned char>(byte) & 15];
    }
    return text;
}

} // namespace vorn::tool
