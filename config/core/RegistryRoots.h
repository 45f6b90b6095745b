#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// @file
/// The predefined roots of the registry and their symbolic names.
namespace vorn
{
/// Name of the root that has this handle value ("HKEY_CURRENT_USER" of 0x80000001); nothing for any other.
std::optional<std::string_view> RootName(std::uint32_t root);

/// Handle value of the root with exactly this name, letter case included; nothing for any other text.
std::optional<std::uint32_t> RootNamed(std::string_view name);
} // namespace vorn
