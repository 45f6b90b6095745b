#pragma once

/// @file
/// Pictures in another depth, and one picture put into another.
#include "files/core/PackedImage.h"

#include <optional>

namespace vorn
{
/// The same size and row order in 24 bits; empty for an image without rows to see, or without memory.
PackedImage To24Bit(const ImageView& source);

/// The same, but 32 bits stay so, with the fourth byte unless masks tell where the channels are.
PackedImage ToPlainChannels(const ImageView& source);

/// Writes the picture into the rows of an image that has its size in 24 bits, and other pixels than the source. False
/// for another image, and for a source without rows to see.
bool PutAs24Bit(const ImageCanvas& target, const ImageView& source);

/// Copies what fits of `source` with its top left pixel at (x, y) of the target. Equal depths copy pixels, even where
/// the tables differ; others go through the colour, to the nearest entry of a table. Both may be the same pixels.
/// False for images without rows to see.
bool PutImage(const ImageCanvas& target, int x, int y, const ImageView& source);

/// 1 bit a pixel, in black and white: 1 where the colour is this one, so nowhere without one. The same size and row
/// order.
PackedImage MaskOf(const ImageView& source, const std::optional<Rgb>& color);
} // namespace vorn
