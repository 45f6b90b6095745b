#include "apps/chart/core/SymbolShapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace vorn::chart
{

namespace
{

using Form = ShapePart::Form;

constexpr double kHexagon = 7; // from the middle to a corner
constexpr double kSquare = 8;  // from the middle to a side
constexpr double kSmallSquare = 3.5;
constexpr double kTab = 3.5;      // how far the tabs of a TACAN stand out
constexpr double kField = 5.5;    // radius of a field's disc
constexpr double kPattern = 9;    // reach of a runway pattern
constexpr double kBar = 1.25;     // half a runway's width
constexpr double kEdge = 0.75;    // what a pen adds outside
constexpr int kLongRunway = 8000; // feet

/// `radius` from the middle, `degrees` clockwise from straight up.
PixelPoint Polar(double radius, double degrees)
{
    const double angle = degrees * std::numbers::pi / 180;
    return {radius * std::sin(angle), -radius * std::cos(angle)};
}

ShapePart Hexagon()
{
    ShapePart part{Form::Outline, {}, 0};
    for (int corner = 0; corner < 6; ++corner)
        part.points.push_back(Polar(kHexagon, 30 + 60 * corner + 60)); // corners to the left and right
    return part;
}

ShapePart Square(double half)
{
    return {Form::Outline, {{-half, -half}, {half, -half}, {half, half}, {-half, half}}, 0};
}

/// A filled tab on the side of the hexagon that faces `degrees`.
ShapePart Tab(double degrees)
{
    const PixelPoint left = Polar(kHexagon, degrees - 30);
    const PixelPoint right = Polar(kHexagon, degrees + 30);
    const PixelPoint out = Polar(kTab, degrees);
    return {Form::Area, {left, {left.x + out.x, left.y + out.y}, {right.x + out.x, right.y + out.y}, right}, 0};
}

ShapePart Dot()
{
    return {Form::Disc, {{0, 0}}, 1.5};
}

void AddTabs(SymbolShape& shape)
{
    for (const double degrees : {60.0, 180.0, 300.0})
        shape.parts.push_back(Tab(degrees));
}

ShapePart DotRing(double radius, int dots)
{
    ShapePart part{Form::Dots, {}, 0.65};
    for (int dot = 0; dot < dots; ++dot)
        part.points.push_back(Polar(radius, 360.0 * dot / dots));
    return part;
}

void AddDotRings(SymbolShape& shape)
{
    shape.parts.push_back(DotRing(4.5, 10));
    shape.parts.push_back(DotRing(7, 15));
    shape.parts.push_back(DotRing(9.5, 20));
}

/// The shape with its reach measured.
SymbolShape Measured(SymbolShape shape)
{
    for (const ShapePart& part : shape.parts)
    {
        for (const PixelPoint& point : part.points)
            shape.reach = std::max({shape.reach, std::abs(point.x) + part.radius, std::abs(point.y) + part.radius});
    }
    shape.reach += kEdge;
    return shape;
}

SymbolShape Made(AidKind kind)
{
    SymbolShape shape;
    switch (kind)
    {
    case AidKind::Vor:
        shape.parts = {Hexagon(), Dot()};
        break;
    case AidKind::VorDme:
        shape.parts = {Square(kSquare), Hexagon(), Dot()};
        break;
    case AidKind::Vortac:
        shape.parts = {Hexagon(), Dot()};
        AddTabs(shape);
        break;
    case AidKind::Dme:
        shape.parts = {Square(kSquare - 1), Dot()};
        break;
    case AidKind::Tacan:
    {
        ShapePart outline = Hexagon();
        outline.form = Form::Outline;
        PixelLine waist;
        for (std::size_t i = 0; i < outline.points.size(); ++i)
        {
            waist.push_back(outline.points[i]);
            if (i % 2 == 0) // the sides between the tabs bend inwards
                waist.push_back(Polar(kHexagon * 0.55, 120 + 60.0 * static_cast<double>(i)));
        }
        outline.points = waist;
        shape.parts = {outline, Dot()};
        AddTabs(shape);
        break;
    }
    case AidKind::Ndb:
        shape.parts = {Dot()};
        AddDotRings(shape);
        break;
    case AidKind::NdbDme:
        shape.parts = {Square(kSmallSquare), Dot()};
        AddDotRings(shape);
        break;
    }
    return Measured(std::move(shape));
}

/// Where a runway's end lies seen from the field, in miles, x to the right with `up` taken out.
PixelPoint Offset(const LatLon& field, const LatLon& end, double up)
{
    const GeodesicLeg leg = LegBetween(field, end);
    return Polar(leg.distance, leg.direction + up);
}

SymbolShape RunwayPattern(const Aerodrome& aerodrome, double up)
{
    std::vector<std::array<PixelPoint, 2>> bars;
    double reach = 1e-9;
    for (const Runway& runway : aerodrome.runways)
    {
        bars.push_back({Offset(aerodrome.position, runway.low, up), Offset(aerodrome.position, runway.high, up)});
        for (const PixelPoint& end : bars.back())
            reach = std::max(reach, std::hypot(end.x, end.y));
    }
    SymbolShape shape;
    for (auto& bar : bars)
    {
        for (PixelPoint& end : bar)
            end = {end.x * kPattern / reach, end.y * kPattern / reach};
        shape.parts.push_back({Form::Area, BarBetween(bar[0], bar[1], kBar), 0});
    }
    return Measured(std::move(shape));
}

} // namespace

const SymbolShape& ShapeOf(AidKind kind)
{
    static const std::array<SymbolShape, 7> shapes = {
        Made(AidKind::Vor),   Made(AidKind::VorDme), Made(AidKind::Vortac), Made(AidKind::Dme),
        Made(AidKind::Tacan), Made(AidKind::Ndb),    Made(AidKind::NdbDme)};
    return shapes[static_cast<std::size_t>(kind)];
}

double CourseOf(const Runway& runway)
{
    return runway.low.Direction(runway.high);
}

SymbolShape ShapeOf(const Aerodrome& aerodrome, double up)
{
    const Runway& longest = aerodrome.Longest();
    if (longest.hard && longest.length > kLongRunway)
        return RunwayPattern(aerodrome, up);
    SymbolShape shape;
    shape.parts.push_back({longest.hard ? Form::Disc : Form::Ring, {{0, 0}}, kField});
    if (longest.hard)
    {
        const double course = CourseOf(longest) + up;
        shape.parts.push_back(
            {Form::Window, BarBetween(Polar(kField - 1.25, course), Polar(1.25 - kField, course), 1), 0});
    }
    return Measured(std::move(shape));
}

SymbolShape CompassRose(double radius, double north)
{
    SymbolShape shape;
    shape.parts.push_back({Form::Ring, {{0, 0}}, radius});
    for (int degrees = 0; degrees < 360; degrees += 10)
    {
        const double length = degrees % 30 == 0 ? 7 : 4;
        shape.parts.push_back(
            {Form::Line, {Polar(radius, degrees + north), Polar(radius - length, degrees + north)}, 0});
    }
    const PixelPoint head = Polar(radius + 9, north);
    shape.parts.push_back({Form::Area, {head, Polar(radius, north - 4), Polar(radius, north + 4)}, 0});
    return Measured(std::move(shape));
}

} // namespace vorn::chart
