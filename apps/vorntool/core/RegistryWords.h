#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// @file
/// Words of the command line that name keys, types and data of the registry.
namespace vorn::tool
{

/// A key as it is named: a root and the path below it.
struct KeyAddress
{
    std::string root; ///< the root's full name, "HKEY_CURRENT_USER"
    std::string path; ///< without backslashes at its ends; empty for the root itself

    /// Both in one word.
    std::string Text() const;

    /// A key directly below this one.
    KeyAddress Below(std::string_view name) const;
};

/// "HKEY_CURRENT_USER\Software\Name", or "HKCU\..." (HKCR, HKLM, HKU and HKCC for the others), letter case of the root
/// ignored; nothing for any other root and for a path with an empty name in it.
std::optional<KeyAddress> ParseKeyAddress(std::string_view text);

/// The registry's number of a type that values can be set in: sz, dword, binary, list or expand.
std::optional<std::uint32_t> TypeNamed(std::string_view name);

/// The name of a type: one of those, or another short name; "type 42" where there is none.
std::string NameOfType(std::uint32_t type);

/// A number of 32 bits: -2147483648 to 4294967295 in decimal digits, or "0x" and hexadecimal digits.
std::optional<std::uint32_t> ParseRegistryNumber(std::string_view text);

/// Bytes as pairs of hexadecimal digits, with or without spaces or commas between the pairs.
std::optional<std::string> ParseHexBytes(std::string_view text);

/// Bytes as pairs of hexadecimal digits without anything between them.
std::string HexBytes(std::string_view bytes);

} // namespace vorn::tool
