#pragma once

#include <vector>

/// @file
/// Places, rectangles and lines in a drawing, in pixels: x to the right, y down.

namespace vorn::chart
{

struct PixelPoint
{
    double x = 0;
    double y = 0;

    bool operator==(const PixelPoint&) const = default;
};

using PixelLine = std::vector<PixelPoint>;

/// Right and bottom do not belong to it. Empty when it has no width or no height.
struct PixelBox
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const PixelBox&) const = default;

    int Width() const
    {
        return right - left;
    }
    int Height() const
    {
        return bottom - top;
    }
    bool IsEmpty() const
    {
        return right <= left || bottom <= top;
    }
    bool Contains(PixelPoint point) const
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
};

/// True when the two have a pixel in common.
bool Overlap(const PixelBox& first, const PixelBox& second);

PixelBox Grown(const PixelBox& box, int by);

/// The pieces of an open line that lie within the box, with the points where it is cut.
std::vector<PixelLine> ClippedLine(const PixelLine& line, const PixelBox& box);

/// The part of an area that lies within the box, its outline cut along the edges. Empty when nothing does.
PixelLine ClippedArea(const PixelLine& outline, const PixelBox& box);

/// The outline of a bar between two points, `half` wide on either side.
PixelLine BarBetween(PixelPoint from, PixelPoint to, double half);

} // namespace vorn::chart
