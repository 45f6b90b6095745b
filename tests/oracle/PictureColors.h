#pragma once

#include "files/core/PackedImage.h"

#include <string>

namespace vorn::test
{

/// The size of a picture, as the tools take it.
struct Size
{
    int width;
    int height;

    std::string Text() const
    {
        return std::to_string(width) + "x" + std::to_string(height);
    }
};

/// Red, green and blue of each pixel from the top left on.
std::string ColorsOf(const PackedImage& image);

/// What ImageMagick sees: `frame` of the file.
std::string ColorsBy(const std::string& path, int frame = 0);

/// Red, green, blue and alpha that ImageMagick and netpbm see in a PNG file, of 8 bits, rounded.
std::string PngColorsByImageMagick(const std::string& path);
std::string PngColorsByNetpbm(const std::string& path);

/// The same of an image; alpha is 255 where there is none.
std::string ColorsAndAlphaOf(const PackedImage& image);

/// The pixels of a portable pixmap (P6) or, for greys, graymap (P5) of 8 bits: red, green and blue of each.
std::string ColorsOfPixmap(const std::string& file);

} // namespace vorn::test
