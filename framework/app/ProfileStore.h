#pragma once

/// @file
/// Reading and writing of single settings in the registry and in INI files; not public interface.
/// A null key reads nothing and refuses to write.
#include "framework/app/RegistryKey.h"
#include "framework/core/CString.h"

#include <cstdint>
#include <span>
#include <vector>

namespace vorn
{

RegistryKey OpenKey(HKEY parent, LPCTSTR path);
/// Opened for reading and writing, made if missing.
RegistryKey CreateKey(HKEY parent, LPCTSTR path);

/// Numbers are REG_DWORD values only.
bool ReadNumber(HKEY key, LPCTSTR entry, DWORD& value);
/// Texts are REG_SZ values only (REG_EXPAND_SZ unexpanded too); the text ends at its first zero.
bool ReadText(HKEY key, LPCTSTR entry, CString& value);
bool ReadBytes(HKEY key, LPCTSTR entry, std::vector<std::uint8_t>& value);
bool WriteValue(HKEY key, LPCTSTR entry, DWORD type, const void* data, DWORD size);

/// A text of any length; @p fallback when there is none.
CString ReadIniText(LPCTSTR section, LPCTSTR entry, LPCTSTR fallback, LPCTSTR file);
bool ReadIniBytes(LPCTSTR section, LPCTSTR entry, std::vector<std::uint8_t>& value, LPCTSTR file);
bool WriteIniBytes(LPCTSTR section, LPCTSTR entry, std::span<const std::uint8_t> value, LPCTSTR file);

} // namespace vorn
