#pragma once

/// @file
/// Reading PNG files.
#include "files/core/PackedImage.h"

namespace vorn
{
/// A bottom-up image, or an empty one for what is no whole PNG file, or one of more than 65,535 pixels a side or of
/// more decoded bytes than `maxBytes`: no memory is taken for those.
///
/// Palette and grey pictures have 1, 4 or 8 bits and a table of 2^depth entries, the missing ones black (2 bits become
/// 4 with the same indices, 16 become 8); RGB has 24; what has an alpha channel, and RGB with a transparent colour, 32:
/// blue, green, red, alpha as in the file, not multiplied. Transparent entries and greys are as the others. 16 bits a
/// channel are scaled to 8. Nothing is done about gamma.
PackedImage DecodePng(std::span<const unsigned char> file, std::int64_t maxBytes = kMaxDecodedBytes);

/// The same for a file; empty also when it cannot be read.
PackedImage ReadPngFile(const char* path);
} // namespace vorn
