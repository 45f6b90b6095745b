#pragma once

/// @file
/// How the rows of a picture are told in a PNG file.
#include "files/core/PngCompressor.h"
#include "files/core/PngRows.h"

namespace vorn
{
/// How a picture is written.
struct PngPlan
{
    PngFilter filter = PngFilter::Sub;
    bool isFlat = false; ///< little is left of it: longer searches pay
};

/// The filter that makes least of a sample of the rows: areas of one colour, lettering and noise want different ones,
/// and no count of their pixels tells which. Takes about an eighth of the time of all rows.
/// @param hasAlpha four bytes a pixel are written
/// @return the default without memory
PngPlan PngPlanOf(const ImageView& image, bool hasAlpha, const PngCompressor& compressor);
} // namespace vorn
