#pragma once

#include "files/core/ImagePixels.h"
#include "files/core/PackedImage.h"

#include <algorithm>
#include <cstdlib>

namespace vorn::fuzz
{

inline void Require(bool condition)
{
    if (!condition)
    {
        std::abort();
    }
}

/// A pixel that is there keeps what is put into it; one outside stays 0.
inline void UsePixel(PackedImage& image, int x, int y)
{
    const ImageView view = image.View();
    const DWORD before = PixelAt(view, x, y);
    SetPixelAt(image.Canvas(), x, y, before);
    Require(PixelAt(view, x, y) == before || view.isMasked); // colours of odd masks round
    Require(view.Contains(x, y) || before == 0);
    ColorAt(view, x, y);
}

/// Reads and writes pixels in all corners of a decoded picture, and beyond them.
inline void UsePicture(PackedImage& image)
{
    constexpr int kEdge = 9;
    const ImageView view = image.View();
    Require(image.IsEmpty() || (view.width > 0 && view.height > 0));
    for (int i = -1; i < kEdge; ++i)
    {
        for (int j = -1; j < kEdge; ++j)
        {
            UsePixel(image, i, j);
            UsePixel(image, view.width - 1 - i, view.height - 1 - j);
            UsePixel(image, i, view.height - 1 - j);
            UsePixel(image, view.width - 1 - i, j);
        }
    }
}

/// The same size, and the same colours in the first rows and columns.
inline void RequireSamePicture(const PackedImage& one, const PackedImage& other)
{
    constexpr int kMost = 32;
    const ImageView view = one.View();
    Require(view.width == other.View().width && view.height == other.View().height);
    for (int y = 0; y < std::min(view.height, kMost); ++y)
    {
        for (int x = 0; x < std::min(view.width, kMost); ++x)
        {
            Require(ColorAt(view, x, y) == ColorAt(other.View(), x, y));
        }
    }
}

} // namespace vorn::fuzz
