#pragma once

/// @file
/// Pictures of another size.
#include "files/core/PackedImage.h"

namespace vorn
{
/// The picture in another size, top-down, in 24 bits (in 32 when the source has so many).
///
/// Along each axis: shrinking averages what a pixel covers by area, within 1 of the exact value; growing repeats the
/// pixel whose middle is nearest. Empty for sizes below 1, and for a source without rows to see.
PackedImage BoxResize(const ImageView& source, int width, int height);
} // namespace vorn
