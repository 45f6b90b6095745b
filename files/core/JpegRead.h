#pragma once

/// @file
/// Reading JPEG files.
#include "files/core/PackedImage.h"
#include "files/core/PaletteReducer.h"

#include <cstdio>

namespace vorn
{
/// How a JPEG file is read.
struct JpegReading
{
    int scale = 1;                     ///< The size is divided by 1, 2, 4 or 8; others: the next lower, at least 1.
    PaletteReducer* reducer = nullptr; ///< Gives 8 bits with its palette; not owned.
    double red = 1.0;                  ///< The channels are multiplied (and clamped) before the reduction.
    double green = 1.0;
    double blue = 1.0;
    std::int64_t maxBytes = kMaxDecodedBytes; ///< Of the decoded pixels, 24 bits each.
};

/// A bottom-up image of 24 bits, of 8 with a palette; empty for what is no JPEG file with at least the start of a scan,
/// or is too large: no memory is taken for those.
///
/// Grey becomes 24 bits; four channels are taken as inverted inks, which all files have in practice; the orientation
/// of cameras is not looked at. Data that end early give the picture so far, the rest as the library fills it.
PackedImage DecodeJpeg(std::span<const unsigned char> file, const JpegReading& how = {});

/// The same from the position where the file stands, which afterwards is somewhere behind.
PackedImage DecodeJpeg(std::FILE* file, const JpegReading& how = {});

/// The same from `offset` bytes behind the beginning of a file; empty also when it cannot be read.
PackedImage ReadJpegFile(const char* path, long offset, const JpegReading& how = {});
} // namespace vorn
