#pragma once

/// @file
/// GIF files.
#include "files/core/PackedImage.h"

namespace vorn
{
/// The image with this index, counted from 0: 8 bits, top-down, of the image's own size (not the screen's), with a
/// table of 256 entries, the missing ones black. Empty when there is no such image.
///
/// `transparent` gets the last transparent index that stands before the image, or -1: also when it fails. Data that end
/// early leave zeros.
PackedImage DecodeGif(std::span<const unsigned char> file, int index, int& transparent);
} // namespace vorn
