#pragma once

/// @file
/// Files as bytes in memory.
#include "files/core/PackedImage.h"

namespace vorn
{
/// All bytes of a file; none for one that is empty, cannot be read whole, or has more than kMaxDecodedBytes.
ImageBlock ReadWholeFile(const char* path);
} // namespace vorn
