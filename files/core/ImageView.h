#pragma once

/// @file
/// The pixels of a bitmap, wherever they are kept.
#include "files/core/ImageFormat.h"

namespace vorn
{
/// A bitmap's format and its first stored row. Owns nothing; rows count from the top whatever their stored order.
template <class Byte>
struct BasicImageView : ImageFormat
{
    Byte* bits = nullptr;

    /// Row `y` from the top, within the height.
    Byte* Row(int y) const
    {
        return bits + static_cast<std::ptrdiff_t>(isTopDown ? y : height - 1 - y) * stride;
    }
    bool Contains(int x, int y) const
    {
        return hasRows && x >= 0 && y >= 0 && x < width && y < height;
    }
};

/// Pixels to read.
using ImageView = BasicImageView<const unsigned char>;
/// Pixels to change. The colour table of a canvas is not changed through it.
using ImageCanvas = BasicImageView<unsigned char>;

/// The canvas, to read only.
inline ImageView ViewOf(const ImageCanvas& canvas)
{
    return {static_cast<const ImageFormat&>(canvas), canvas.bits};
}
} // namespace vorn
