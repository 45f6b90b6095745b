#pragma once

#include <VornCommon.h>

#include <optional>
#include <string>
#include <string_view>

/// @file
/// The tool's own text is UTF-8; the library's is 8-bit in the system's code page, and the unit table's in 1252.
namespace vorn::tool
{

std::string Utf8FromWide(std::wstring_view text);
std::wstring WideFromUtf8(std::string_view text);

/// UTF-8 of an 8-bit text in the system's code page, or in @p codePage.
std::string Utf8FromLibrary(std::string_view text, unsigned codePage = CP_ACP);

/// A text for the library; nothing when it has characters that the system's code page has not.
std::optional<CString> LibraryFromUtf8(std::string_view text);

} // namespace vorn::tool
