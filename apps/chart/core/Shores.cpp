#include "apps/chart/core/Shores.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vorn::chart
{

namespace
{

constexpr double kLongestStretch = 0.5; // degrees

std::optional<ShoreKind> KindOf(const std::string& word)
{
    if (word == "land")
        return ShoreKind::Land;
    if (word == "water")
        return ShoreKind::Water;
    return word == "border" ? std::optional(ShoreKind::Border) : std::nullopt;
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

std::vector<LatLon> Divided(const Shore& shore)
{
    std::vector<LatLon> points = {shore.points.front()};
    for (std::size_t i = 1; i < shore.points.size(); ++i)
        AddStretch(points, shore.points[i - 1], shore.points[i]);
    if (shore.kind != ShoreKind::Border)
    {
        AddStretch(points, shore.points.back(), shore.points.front());
        points.pop_back();
    }
    return points;
}

} // namespace

void AddShorePoint(std::vector<Shore>& shores, const FieldOf& field)
{
    const std::string part = field("PART");
    const std::optional<ShoreKind> kind = KindOf(field("KIND"));
    const std::optional<double> lat = NumberIn(field("LATITUDE"));
    const std::optional<double> lon = NumberIn(field("LONGITUDE"));
    if (part.empty() || !kind || !lat || !lon)
        return;
    if (shores.empty() || shores.back().part != part)
    {
        shores.emplace_back();
        shores.back().part = part;
        shores.back().kind = *kind;
    }
    shores.back().points.emplace_back(*lat, *lon);
}

void FinishShores(std::vector<Shore>& shores)
{
    for (Shore& shore : shores)
    {
        shore.points = Divided(shore);
        for (const LatLon& point : shore.points)
        {
            shore.south = std::min(shore.south, point.Lat());
            shore.north = std::max(shore.north, point.Lat());
            shore.west = std::min(shore.west, point.Lon());
            shore.east = std::max(shore.east, point.Lon());
        }
    }
}

} // namespace vorn::chart
