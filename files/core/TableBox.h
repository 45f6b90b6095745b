#pragma once

/// @file
/// Message boxes of a table's diagnostics.
#include "frame/core/Export.h"

namespace vorn
{
/// Shows a text under a title.
using ShowTableBox = void (*)(const char* text, const char* title);

/// The windowed part of the library sets it at load; null shows nothing. Returns the one before.
VORNCOMMON_API ShowTableBox SetTableBox(ShowTableBox show) noexcept;

/// Shows a box with the first few thousand characters of the text.
void TableBox(const char* text, const char* title);
} // namespace vorn
