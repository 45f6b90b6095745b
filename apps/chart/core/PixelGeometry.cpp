#include "apps/chart/core/PixelGeometry.h"

#include <algorithm>
#include <cmath>

namespace vorn::chart
{

namespace
{

/// One edge of a box, as "distance inside", which is negative outside.
struct Edge
{
    double x;
    double y;
    double offset;

    double Inside(PixelPoint point) const
    {
        return point.x * x + point.y * y + offset;
    }
};

struct Edges
{
    Edge edges[4];

    explicit Edges(const PixelBox& box)
        : edges{{1, 0, -static_cast<double>(box.left)},
                {-1, 0, static_cast<double>(box.right)},
                {0, 1, -static_cast<double>(box.top)},
                {0, -1, static_cast<double>(box.bottom)}}
    {
    }
};

PixelPoint Between(PixelPoint from, PixelPoint to, double share)
{
    return {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share};
}

/// What of the way between two points lies inside, as shares of it; `first` above `last` for nothing.
struct Inside
{
    double first = 0;
    double last = 1;
};

Inside PartInside(PixelPoint from, PixelPoint to, const Edges& edges)
{
    Inside part;
    for (const Edge& edge : edges.edges)
    {
        const double start = edge.Inside(from);
        const double end = edge.Inside(to);
        if (start < 0 && end < 0)
            return {1, 0};
        if (start < 0)
            part.first = std::max(part.first, start / (start - end));
        else if (end < 0)
            part.last = std::min(part.last, start / (start - end));
    }
    return part;
}

PixelLine CutAtEdge(const PixelLine& outline, const Edge& edge)
{
    PixelLine cut;
    cut.reserve(outline.size() + 4);
    PixelPoint before = outline.back();
    double insideBefore = edge.Inside(before);
    for (const PixelPoint& point : outline)
    {
        const double inside = edge.Inside(point);
        if ((inside < 0) != (insideBefore < 0))
            cut.push_back(Between(before, point, insideBefore / (insideBefore - inside)));
        if (inside >= 0)
            cut.push_back(point);
        before = point;
        insideBefore = inside;
    }
    return cut;
}

} // namespace

bool Overlap(const PixelBox& first, const PixelBox& second)
{
    return first.left < second.right && second.left < first.right && first.top < second.bottom &&
           second.top < first.bottom;
}

PixelBox Grown(const PixelBox& box, int by)
{
    return {box.left - by, box.top - by, box.right + by, box.bottom + by};
}

std::vector<PixelLine> ClippedLine(const PixelLine& line, const PixelBox& box)
{
    const Edges edges(box);
    std::vector<PixelLine> pieces;
    bool open = false; // the last piece goes on
    for (std::size_t i = 1; i < line.size(); ++i)
    {
        const Inside part = PartInside(line[i - 1], line[i], edges);
        if (part.first > part.last)
        {
            open = false;
            continue;
        }
        if (!open)
            pieces.push_back({Between(line[i - 1], line[i], part.first)});
        pieces.back().push_back(part.last < 1 ? Between(line[i - 1], line[i], part.last) : line[i]);
        open = part.last >= 1;
    }
    return pieces;
}

PixelLine ClippedArea(const PixelLine& outline, const PixelBox& box)
{
    PixelLine area = outline;
    for (const Edge& edge : Edges(box).edges)
    {
        if (area.empty())
            break;
        area = CutAtEdge(area, edge);
    }
    return area.size() < 3 ? PixelLine() : area;
}

PixelLine BarBetween(PixelPoint from, PixelPoint to, double half)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double length = std::max(std::hypot(dx, dy), 1e-9);
    const double x = -dy / length * half;
    const double y = dx / length * half;
    return {{from.x + x, from.y + y}, {to.x + x, to.y + y}, {to.x - x, to.y - y}, {from.x - x, from.y - y}};
}

} // namespace vorn::chart
