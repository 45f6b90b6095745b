#include "aviation/core/DistributePoints.h"

#include "aviation/core/EvenSteps.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <vector>

namespace
{

double SegmentLength(const CPoint& from, const CPoint& to)
{
    const double x = static_cast<double>(to.x) - from.x;
    const double y = static_cast<double>(to.y) - from.y;
    return std::sqrt(x * x + y * y);
}

double LineLength(const CPoint* points, int count)
{
    double length = 0;
    for (int i = 1; i < count; ++i)
    {
        length += SegmentLength(points[i - 1], points[i]);
    }
    return length;
}

/// One coordinate at `place` of a segment's `length`. Multiplied before it is divided: whole places stay whole.
LONG Between(LONG from, LONG to, double place, double length)
{
    return static_cast<LONG>(from + place * (static_cast<double>(to) - from) / length);
}

CPoint* FillSegment(const CPoint& from, const CPoint& to, double length, double step, vorn::StepWalk& walk, CPoint* out)
{
    const int points = walk.PointsOn(length);
    for (int j = 1; j <= points; ++j)
    {
        const double place = j * step - walk.Carry();
        out->x = Between(from.x, to.x, place, length);
        out->y = Between(from.y, to.y, place, length);
        ++out;
    }
    walk.Pass(length, points);
    return out;
}

int BothEnds(const CPoint* points, int count, CPoint** out)
{
    *out = new CPoint[2]{points[0], points[count - 1]};
    return 2;
}

} // namespace

int DistributePoints(CPoint* points, int count, double spacing, CPoint** out)
{
    if (out == nullptr)
    {
        return 0;
    }
    *out = nullptr;
    if (points == nullptr || count < 2)
    {
        return 0;
    }
    const vorn::EvenSteps steps(LineLength(points, count), spacing, sizeof(CPoint));
    const int total = steps.Points();
    *out = total < 2 ? nullptr : new (std::nothrow) CPoint[static_cast<std::size_t>(total)];
    if (*out == nullptr)
    {
        return BothEnds(points, count, out);
    }
    vorn::StepWalk walk(steps);
    CPoint* next = *out;
    *next++ = points[0];
    for (int i = 1; i < count; ++i)
    {
        const double length = SegmentLength(points[i - 1], points[i]);
        if (length > 0)
        {
            next = FillSegment(points[i - 1], points[i], length, steps.Step(), walk, next);
        }
    }
    // Rounding may have left the end open, or a pixel before it.
    std::fill(std::min(next, *out + total - 1), *out + total, points[count - 1]);
    return total;
}

int DistributePoints(LatLon* points, int count, double spacing, LatLon** out)
{
    if (out == nullptr)
    {
        return 0;
    }
    *out = nullptr;
    if (points == nullptr || count < 2)
    {
        return 0;
    }
    std::vector<vorn::GeodesicLeg> legs;
    legs.reserve(static_cast<std::size_t>(count) - 1);
    double length = 0;
    for (int i = 1; i < count; ++i)
    {
        legs.push_back(vorn::LegBetween(points[i - 1], points[i]));
        length += legs.back().distance;
    }
    const vorn::EvenSteps steps(length, spacing, sizeof(LatLon));
    const int total = steps.Points();
    *out = total < 2 ? nullptr : new (std::nothrow) LatLon[static_cast<std::size_t>(total)];
    if (*out == nullptr)
    {
        return 0;
    }
    vorn::StepWalk walk(steps);
    LatLon* next = *out;
    *next++ = points[0];
    for (std::size_t i = 0; i < legs.size(); ++i)
    {
        if (const auto& [distance, direction] = legs[i]; distance > 0)
        {
            const int onLeg = walk.PointsOn(distance);
            vorn::PointsAlong(points[i], direction, steps.Step(), walk.Carry(), onLeg, next);
            walk.Pass(distance, onLeg);
            next += onLeg;
        }
    }
    std::fill(std::min(next, *out + total - 1), *out + total, points[count - 1]);
    return total;
}
