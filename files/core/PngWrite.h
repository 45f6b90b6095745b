#pragma once

/// @file
/// Writing PNG files.
#include "files/core/EncodedSink.h"
#include "files/core/ImageView.h"

namespace vorn
{
/// Gives the sink a PNG file of the picture: with a palette up to 8 bits, else RGB, or RGBA for 32 bits a pixel when
/// some fourth byte is not 0. No further chunks.
///
/// False without a sink, for an image without rows to see, when the sink throws, and without memory; the sink may have
/// got some pieces then.
bool EncodePng(const ImageView& image, const EncodedSink& sink);
} // namespace vorn
