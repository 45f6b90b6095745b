#pragma once

/// @file
/// The way from the portable string to the string tables of the resource chain.
#include "framework/core/Export.h"

#include <cstdint>

class CString;

namespace vorn
{
/// Fills `text` with a string of the resource chain; false when there is none.
using StringResourceLoader = bool (*)(CString& text, unsigned int id);

/// The windowed part of the framework registers its loader at load.
HOSTFRAMEWORK_API void SetStringResourceLoader(StringResourceLoader loader) noexcept;

/// Whether a pointer is a resource identifier in disguise: no valid pointer is below 64 KiB.
inline bool IsStringResource(const char* text) noexcept
{
    const auto value = reinterpret_cast<std::uintptr_t>(text);
    return value != 0 && value < 0x10000;
}

/// Loads the string that such a pointer names; leaves the text as it is when there is none.
HOSTFRAMEWORK_API void LoadStringResource(CString& text, const char* id);
} // namespace vorn
