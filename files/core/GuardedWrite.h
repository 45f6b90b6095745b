#pragma once

/// @file
/// Writing that leaves a file as it was when it fails.
#include "framework/core/File.h"

#include <span>

namespace vorn
{
/// Writes at a position and leaves the file behind what was written. On failure, false, what a part of the write has
/// replaced or added is taken back as far as the system lets; the file then stands at the position. What was there
/// before is known only of files open for reading too.
bool WriteGuarded(CFile& file, ULONGLONG position, std::span<const char> bytes);
} // namespace vorn
