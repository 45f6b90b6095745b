#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

/// @file
/// Entries of a legacy INI file, as the system's profile calls hand them out.
namespace vorn
{
/// Text by section name, "|" and key name, exactly as written in the file.
using IniTable = std::map<std::string, std::string, std::less<>>;

/// Texts of a block as the profile calls return it: each ends in a zero, an empty text ends the block. A block
/// that breaks off without its zeros ends where it breaks off.
std::vector<std::string_view> BlockTexts(std::string_view block);

/// Enters each line "key=value" of a section's block, split at its first "=". Lines without "=" are no entries;
/// of a key that comes twice the first value stays, as in the system's own lookup.
void AddSection(IniTable& table, std::string_view section, std::string_view block);

/// Value of a section's key, or null.
const std::string* FindEntry(const IniTable& table, std::string_view section, std::string_view key);
} // namespace vorn
