#include "apps/chart/core/Thinning.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace vorn::chart
{

namespace
{

constexpr double kLongestStretch = 0.5; // degrees

/// Distance of a point from the stretch between two others, in degrees of latitude.
double Away(const LatLon& point, const LatLon& from, const LatLon& to)
{
    const double narrowing = std::cos(from.Lat() * std::numbers::pi / 180);
    const double x = (to.Lon() - from.Lon()) * narrowing;
    const double y = to.Lat() - from.Lat();
    const double px = (point.Lon() - from.Lon()) * narrowing;
    const double py = point.Lat() - from.Lat();
    const double square = x * x + y * y;
    const double along = square > 0 ? std::clamp((px * x + py * y) / square, 0.0, 1.0) : 0;
    return std::hypot(px - along * x, py - along * y);
}

/// Marks the points between two kept ones that have to be kept too.
void Keep(const std::vector<LatLon>& points, std::size_t first, std::size_t last, double tolerance,
          std::vector<bool>& kept)
{
    std::vector<std::pair<std::size_t, std::size_t>> open = {{first, last}};
    while (!open.empty())
    {
        const auto [from, to] = open.back();
        open.pop_back();
        double most = tolerance;
        std::size_t farthest = to;
        for (std::size_t i = from + 1; i < to; ++i)
        {
            const double away = Away(points[i], points[from], points[to]);
            if (away > most)
            {
                most = away;
                farthest = i;
            }
        }
        if (farthest == to)
            continue;
        kept[farthest] = true;
        open.emplace_back(from, farthest);
        open.emplace_back(farthest, to);
    }
}

void AddStretch(std::vector<LatLon>& points, const LatLon& from, const LatLon& to)
{
    const double lat = to.Lat() - from.Lat();
    const double lon = to.Lon() - from.Lon();
    const int steps = static_cast<int>(std::ceil(std::max(std::abs(lat), std::abs(lon)) / kLongestStretch));
    for (int step = 1; step < steps; ++step)
        points.emplace_back(from.Lat() + lat * step / steps, from.Lon() + lon * step / steps);
    points.push_back(to);
}

} // namespace

std::vector<LatLon> Thinned(const std::vector<LatLon>& points, double tolerance, bool closed)
{
    if (points.size() < 3)
        return points;
    std::vector<LatLon> line = points;
    if (closed)
        line.push_back(points.front());
    std::vector<bool> kept(line.size());
    kept.front() = kept.back() = true;
    std::size_t middle = line.size() - 1;
    if (closed) // an outline has no ends: the point farthest from the first is the other one
    {
        const auto farther = [&](const LatLon& first, const LatLon& second)
        {
            return Away(first, line.front(), line.front()) < Away(second, line.front(), line.front());
        };
        middle = static_cast<std::size_t>(std::max_element(line.begin(), line.end(), farther) - line.begin());
        kept[middle] = true;
    }
    Keep(line, 0, middle, tolerance, kept);
    Keep(line, middle, line.size() - 1, tolerance, kept);
    std::vector<LatLon> thin;
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        if (kept[i])
            thin.push_back(line[i]);
    }
    return thin;
}

std::vector<LatLon> Divided(const std::vector<LatLon>& points, bool closed)
{
    if (points.empty())
        return {};
    std::vector<LatLon> divided = {points.front()};
    for (std::size_t i = 1; i < points.size(); ++i)
        AddStretch(divided, points[i - 1], points[i]);
    if (closed)
    {
        AddStretch(divided, points.back(), points.front());
        divided.pop_back();
    }
    return divided;
}

} // namespace vorn::chart
