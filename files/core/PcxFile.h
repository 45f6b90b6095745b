#pragma once

/// @file
/// PCX files: run-length coded pictures of 1, 4 or 8 bits, or of four planes of one bit.
#include "files/core/PackedImage.h"

namespace vorn
{
/// A bottom-up image of 1, 4 or 8 bits; empty for what is no such file.
///
/// Rows stand one file line after the other (bytes per line, times 4 for four planes) even where that is not the
/// bitmap's stride: pictures of such widths are sheared. There is room for rows of either length. With the mark 12 at
/// 769 bytes before the end, the file's last 768 bytes are a table of 256 colours, else the header has 16. Data that
/// end early leave zeros.
PackedImage DecodePcx(std::span<const unsigned char> file);
} // namespace vorn
