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

/// The same into the rows of an image, in its size. It is one that BoxResize could have made and has other pixels than
/// the source; false for another, and where BoxResize gives an empty one.
bool PutResized(const ImageCanvas& target, const ImageView& source);
} // namespace vorn
