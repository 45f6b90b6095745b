#pragma once

/// @file
/// Writing JPEG files.
#include "files/core/EncodedSink.h"
#include "files/core/ImageView.h"
#include "files/core/PaletteReducer.h"

namespace vorn
{
/// How a JPEG file is written.
struct JpegWriting
{
    int quality = 75;                  ///< 1 to 100; below: 75, above: 100.
    bool isProgressive = false;        ///< In scans that refine the picture.
    PaletteReducer* reducer = nullptr; ///< Colours become those of its entries first; not owned.
};

/// Whether a JPEG file can hold the picture: it has rows, and no more than 65,500 pixels a side.
bool CanWriteJpeg(const ImageView& image);

/// Gives the sink a JPEG file of the picture's colours. False as for EncodePng, and where
/// CanWriteJpeg is.
bool EncodeJpeg(const ImageView& image, const EncodedSink& sink, const JpegWriting& how = {});
} // namespace vorn
