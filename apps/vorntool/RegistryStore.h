#pragma once

#include "apps/vorntool/RegistryKeyView.h"

#include <optional>
#include <span>

/// @file
/// What the tool changes in the registry.
namespace vorn::tool
{

/// A value of a type from the words given for it (UTF-8): any number for a list, one for every other type.
/// @return nothing when they do not fit, with the reason in @p reason
std::optional<RegistryValue> MakeValue(const std::string& name, const std::string& type,
                                       std::span<const std::string> words, std::string& reason);

/// Stores a value and makes its key where it is missing; the system's code, 0 for success.
DWORD StoreValue(const KeyAddress& address, const RegistryValue& value);

/// Deletes a key, which must not be a root; the system's code, 0 for success.
DWORD DeleteStoredKey(const KeyAddress& address, bool recursive);

} // namespace vorn::tool
