#include "apps/chart/core/Route.h"

#include "apps/chart/core/PixelGeometry.h"
#include "aviation/core/DistributePoints.h"
#include "aviation/core/SmoothLine.h"
#include "framework/core/Geometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

namespace vorn::chart
{

namespace
{

constexpr std::array kSpacings = {5.0, 10.0, 20.0, 50.0, 100.0, 200.0, 500.0};
constexpr double kLeastMarkPixels = 36;
constexpr double kPiecePixels = 40; // what a leg is divided into, so that only the corners are rounded
constexpr int kMostPieces = 64;
constexpr int kMargin = 64;
constexpr double kParts = 16; // of a pixel

PixelLine LegOnMap(const ChartView& view, const LatLon& from, const LatLon& to)
{
    PixelLine line;
    const GeodesicLeg leg = LegBetween(from, to);
    const double wanted = leg.distance * view.PixelsPerMile() / kPiecePixels;
    const int pieces = static_cast<int>(std::clamp(std::ceil(wanted), 1.0, static_cast<double>(kMostPieces)));
    std::vector<LatLon> places(static_cast<std::size_t>(pieces));
    PointsAlong(from, leg.direction, leg.distance / pieces, 0, pieces, places.data());
    places.back() = to;
    for (const LatLon& place : places)
    {
        const std::optional<PixelPoint> pixel = view.ToPixel(place);
        if (pixel)
            line.push_back(*pixel);
    }
    return line;
}

PixelLine OnMap(const ChartView& view, const std::vector<Waypoint>& route)
{
    PixelLine line;
    if (route.empty())
        return line;
    if (const std::optional<PixelPoint> start = view.ToPixel(route.front().position))
        line.push_back(*start);
    for (std::size_t i = 1; i < route.size(); ++i)
    {
        const PixelLine leg = LegOnMap(view, route[i - 1].position, route[i].position);
        line.insert(line.end(), leg.begin(), leg.end());
    }
    return line;
}

std::vector<PixelLine> WithinReach(const ChartView& view, const PixelLine& line)
{
    return ClippedLine(line, Grown({0, 0, view.Width(), view.Height()}, kMargin));
}

/// Smoothed in whole sixteenths of a pixel, so that the line has no steps however it is drawn.
PixelLine Smoothed(const PixelLine& way)
{
    std::vector<CPoint> corners;
    for (const PixelPoint& point : way)
        corners.emplace_back(static_cast<int>(std::lround(point.x * kParts)),
                             static_cast<int>(std::lround(point.y * kParts)));
    CPoint* points = nullptr;
    const int count = BezierSmoothLine(corners.data(), static_cast<int>(corners.size()), &points);
    const std::unique_ptr<CPoint[]> owner(points);
    PixelLine smooth;
    for (int i = 0; i < count; ++i)
        smooth.push_back({points[i].x / kParts, points[i].y / kParts});
    return smooth;
}

} // namespace

std::vector<Waypoint> RouteFrom(const ChartData& data, std::string_view idents)
{
    std::vector<Waypoint> route;
    const auto nearer = [&](const LatLon& one, const LatLon& other)
    {
        return !route.empty() && route.back().position.Distance(one) < route.back().position.Distance(other);
    };
    while (!idents.empty())
    {
        const std::size_t end = std::min(idents.find(' '), idents.size());
        const std::string_view word = idents.substr(0, end);
        idents.remove_prefix(std::min(end + 1, idents.size()));
        const LatLon* found = nullptr;
        const auto consider = [&](const std::string& ident, const LatLon& position)
        {
            if (!word.empty() && ident == word && (found == nullptr || nearer(position, *found)))
                found = &position;
        };
        for (const Aid& aid : data.aids)
            consider(aid.ident, aid.position);
        for (const Aerodrome& aerodrome : data.aerodromes)
            consider(aerodrome.ident, aerodrome.position);
        if (found != nullptr)
            route.push_back({std::string(word), *found});
    }
    return route;
}

double LengthOf(const std::vector<Waypoint>& route)
{
    double length = 0;
    for (std::size_t i = 1; i < route.size(); ++i)
        length += route[i - 1].position.Distance(route[i].position);
    return length;
}

LatLon MiddleOf(const LatLon& from, const LatLon& to)
{
    const GeodesicLeg leg = LegBetween(from, to);
    return from.EndPoint(leg.direction, leg.distance / 2);
}

std::string LegText(const LatLon& from, const LatLon& to)
{
    const GeodesicLeg rest = LegBetween(MiddleOf(from, to), to);
    const long course = std::lround(rest.direction) % 360;
    const std::string digits = std::to_string(course == 0 ? 360 : course);
    std::string text(3 - digits.size(), '0');
    text += digits;
    text += '\xB0';
    text += ' ';
    text += std::to_string(std::lround(2 * rest.distance));
    return text + " NM";
}

std::vector<LatLon> MarksAlong(const std::vector<Waypoint>& route, double miles)
{
    std::vector<LatLon> corners(route.size());
    std::transform(route.begin(), route.end(), corners.begin(),
                   [](const Waypoint& waypoint)
                   {
                       return waypoint.position;
                   });
    LatLon* marks = nullptr;
    const int count = DistributePoints(corners.data(), static_cast<int>(corners.size()), miles, &marks);
    const std::unique_ptr<LatLon[]> owner(marks);
    return {marks, marks + count};
}

double MarkSpacing(double pixelsPerMile)
{
    for (const double spacing : kSpacings)
    {
        if (spacing * pixelsPerMile >= kLeastMarkPixels)
            return spacing;
    }
    return kSpacings.back();
}

std::vector<PixelLine> SmoothedWay(const ChartView& view, const std::vector<Waypoint>& route)
{
    std::vector<PixelLine> ways = WithinReach(view, OnMap(view, route));
    for (PixelLine& way : ways)
        way = Smoothed(way);
    return ways;
}

std::vector<PixelLine> DirectWay(const ChartView& view, const std::vector<Waypoint>& route)
{
    if (route.size() < 2)
        return {};
    return WithinReach(view, OnMap(view, {route.front(), route.back()}));
}

} // namespace vorn::chart
