#include "apps/chart/core/SymbolOutlines.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vorn::chart
{

namespace
{

constexpr double kSharpest = 2; // a corner sticks out by no more than so many half widths

double TwiceArea(const PixelLine& outline)
{
    double area = 0;
    PixelPoint before = outline.back();
    for (const PixelPoint& point : outline)
    {
        area += before.x * point.y - point.x * before.y;
        before = point;
    }
    return area;
}

void AddTurned(PixelLine outline, bool solid, std::vector<PixelLine>& outlines)
{
    if (outline.empty())
        return;
    if ((TwiceArea(outline) > 0) != solid)
        std::reverse(outline.begin(), outline.end());
    outlines.push_back(std::move(outline));
}

PixelLine Circle(PixelPoint middle, double radius)
{
    const int corners = std::clamp(static_cast<int>(radius * 3), 8, 96);
    PixelLine circle;
    for (int corner = 0; corner < corners; ++corner)
    {
        const double angle = 2 * std::numbers::pi * corner / corners;
        circle.push_back({middle.x + radius * std::sin(angle), middle.y - radius * std::cos(angle)});
    }
    return circle;
}

PixelLine Square(PixelPoint middle, double half)
{
    return {{middle.x - half, middle.y - half},
            {middle.x + half, middle.y - half},
            {middle.x + half, middle.y + half},
            {middle.x - half, middle.y + half}};
}

void AddRing(PixelPoint middle, double radius, double stroke, std::vector<PixelLine>& outlines)
{
    AddTurned(Circle(middle, radius + stroke / 2), true, outlines);
    if (radius > stroke / 2)
        AddTurned(Circle(middle, radius - stroke / 2), false, outlines);
}

/// The outline moved outwards (or, below 0, inwards) from the symbol's place, corner by corner.
PixelLine Moved(const PixelLine& points, PixelPoint at, double by)
{
    PixelLine moved;
    for (const PixelPoint& point : points)
    {
        const double away = std::max(std::hypot(point.x - at.x, point.y - at.y), 1e-9);
        const double factor = std::max(0.0, (away + by) / away);
        moved.push_back({at.x + (point.x - at.x) * factor, at.y + (point.y - at.y) * factor});
    }
    return moved;
}

/// The direction across a stretch, one long.
PixelPoint Across(PixelPoint from, PixelPoint to)
{
    const double length = std::max(std::hypot(to.x - from.x, to.y - from.y), 1e-9);
    return {-(to.y - from.y) / length, (to.x - from.x) / length};
}

} // namespace

void AddOutlines(const SymbolShape& shape, PixelPoint at, double unit, double stroke, Outlines& outlines)
{
    for (const ShapePart& part : shape.parts)
    {
        PixelLine points;
        for (const PixelPoint& point : part.points)
            points.push_back({at.x + point.x * unit, at.y + point.y * unit});
        switch (part.form)
        {
        case ShapePart::Form::Line:
            AddTurned(Stroked(points, stroke), true, outlines.ink);
            break;
        case ShapePart::Form::Outline:
            AddTurned(Moved(points, at, stroke / 2), true, outlines.ink);
            AddTurned(Moved(points, at, -stroke / 2), false, outlines.ink);
            break;
        case ShapePart::Form::Area:
            AddTurned(std::move(points), true, outlines.ink);
            break;
        case ShapePart::Form::Window:
            AddTurned(std::move(points), true, outlines.windows);
            break;
        case ShapePart::Form::Ring:
            AddRing(points.front(), part.radius * unit, stroke, outlines.ink);
            break;
        case ShapePart::Form::Disc:
            AddTurned(Circle(points.front(), part.radius * unit), true, outlines.ink);
            break;
        case ShapePart::Form::Dots:
            for (const PixelPoint& point : points)
                AddTurned(Square(point, part.radius * unit), true, outlines.ink);
            break;
        }
    }
}

PixelLine Stroked(const PixelLine& line, double width)
{
    PixelLine points;
    for (const PixelPoint& point : line)
    {
        if (points.empty() || std::hypot(point.x - points.back().x, point.y - points.back().y) > 1e-6)
            points.push_back(point);
    }
    if (points.size() < 2)
        return {};
    PixelLine left;
    PixelLine right;
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        const PixelPoint before = Across(points[i > 0 ? i - 1 : 0], points[i > 0 ? i : 1]);
        const bool last = i + 1 == points.size();
        const PixelPoint after = last ? before : Across(points[i], points[i + 1]);
        const double x = before.x + after.x;
        const double y = before.y + after.y;
        // Half the angle between the two stretches: the corner's way out is longer by its cosine.
        const double square = std::max(x * x + y * y, 4 / (kSharpest * kSharpest));
        const double reach = width / square;
        left.push_back({points[i].x + x * reach, points[i].y + y * reach});
        right.push_back({points[i].x - x * reach, points[i].y - y * reach});
    }
    left.insert(left.end(), right.rbegin(), right.rend());
    return left;
}

} // namespace vorn::chart
