#pragma once

/// @file
/// Turned pictures.
#include "files/core/PackedImage.h"

namespace vorn
{
/// The picture turned clockwise about its middle, with the depth, table and row order that it has.
///
/// The size stays, or grows so that all of the picture is in it. Pixels from outside have the background's colour (in a
/// table the nearest entry). Quarter turns take pixels as they are; other turns too up to 8 bits, above they mix the
/// four nearest. Empty for an angle that is no number, a source without rows to see, and pictures that are too large.
PackedImage Rotate(const ImageView& source, double degrees, bool grows, Rgb background);
} // namespace vorn
