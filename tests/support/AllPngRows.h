#pragma once

#include "files/core/PngRows.h"

#include <vector>

namespace vorn::test
{
/// The bytes of a PNG file of some filter before compression.
inline std::vector<unsigned char> AllPngRows(const ImageView& image, PngFilter filter)
{
    PngRows rows(image, false, filter);
    std::vector<unsigned char> all(rows.Size() * static_cast<std::size_t>(image.height));
    for (int y = 0; y < image.height; ++y)
        rows.Next(all.data() + static_cast<std::size_t>(y) * rows.Size());
    return all;
}
} // namespace vorn::test
