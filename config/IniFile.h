#pragma once

#include "config/core/IniTable.h"

#include <string>

namespace vorn
{
/// Enters every entry of an INI file into `table`. False, with nothing entered, when the file names no section or more
/// sections than can be read.
bool LoadIniFile(const std::string& path, IniTable& table);

/// Value of a key of an INI file, cut at `limit` characters; empty when the file, the section or the key is not there.
/// The system takes quotes around a value off.
std::string IniValue(const std::string& path, const char* section, const char* key, std::size_t limit);
} // namespace vorn
