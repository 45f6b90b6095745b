#include "apps/chart/core/Graticule.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <numbers>

namespace vorn::chart
{

namespace
{

constexpr std::array kSteps = {1, 2, 5, 10, 15, 20, 30, 60, 120, 300, 600, 900, 1800};
constexpr int kMinutesAround = 360 * 60;
constexpr int kFarthestParallel = 85 * 60; // meridians and parallels end there: they crowd at the poles
constexpr double kSampleSpacing = 20;      // pixels between the points of a line
constexpr int kMostSamples = 400;
constexpr int kEdgeSteps = 16;  // halvings on the way to the map's edge
constexpr int kEdgeSamples = 8; // an edge of the view and a row within it are looked at in so many steps

std::string DegreeText(int minutes, int step, char plus, char minus)
{
    const int amount = std::abs(minutes);
    std::string text = std::to_string(amount / 60);
    text += '\xB0';
    if (step % 60 != 0)
    {
        const std::string rest = std::to_string(amount % 60);
        text += rest.size() < 2 ? "0" : "";
        text += rest;
        text += '\'';
    }
    if (amount != 0 && amount != kMinutesAround / 2)
        text += minutes > 0 ? plus : minus;
    return text;
}

/// The longitude nearest to `other` on the same meridian.
double Beside(double longitude, double other)
{
    return other + std::remainder(longitude - other, 360.0);
}

bool Shows(const ChartView& view, const LatLon& position)
{
    const std::optional<PixelPoint> pixel = view.ToPixel(position);
    return pixel && pixel->x >= 0 && pixel->x <= view.Width() && pixel->y >= 0 && pixel->y <= view.Height();
}

/// A view with a pole in it shows all meridians, and every latitude up to there.
void WidenToPole(const ChartView& view, double latitude, Extent& extent)
{
    if (!Shows(view, LatLon(latitude, view.Centre().Lon())))
        return;
    (latitude > 0 ? extent.north : extent.south) = latitude;
    extent.west = view.Centre().Lon() - 180;
    extent.east = view.Centre().Lon() + 180;
}

/// A place on a line: so many degrees along it.
std::optional<PixelPoint> PlaceOn(const ChartView& view, const GridLine& line, double along)
{
    const double fixed = line.minutes / 60.0;
    return view.ToPixel(line.parallel ? LatLon(fixed, along) : LatLon(along, fixed));
}

/// The last place that the map shows on the way to one that it does not.
std::optional<PixelPoint> EdgeOf(const ChartView& view, const GridLine& line, double shown, double hidden)
{
    std::optional<PixelPoint> edge;
    for (int step = 0; step < kEdgeSteps; ++step)
    {
        const double middle = (shown + hidden) / 2;
        const std::optional<PixelPoint> pixel = PlaceOn(view, line, middle);
        (pixel ? shown : hidden) = middle;
        edge = pixel ? pixel : edge;
    }
    return edge;
}

/// The pieces of a line that the map shows, up to its edges.
std::vector<PixelLine> Sampled(const ChartView& view, const GridLine& line, double from, double to, int samples)
{
    std::vector<PixelLine> pieces(1);
    const auto add = [&](const std::optional<PixelPoint>& point)
    {
        if (point)
            pieces.back().push_back(*point);
    };
    const double apart = std::max(view.Width(), view.Height());
    double before = from;
    for (int i = 0; i <= samples; ++i)
    {
        const double along = from + (to - from) * i / samples;
        const std::optional<PixelPoint> pixel = PlaceOn(view, line, along);
        const bool wasShown = !pieces.back().empty();
        if (wasShown && !pixel)
            add(EdgeOf(view, line, before, along));
        else if (!wasShown && pixel && i > 0)
            add(EdgeOf(view, line, along, before));
        if (wasShown &&
            (!pixel || std::hypot(pixel->x - pieces.back().back().x, pixel->y - pieces.back().back().y) > apart))
            pieces.emplace_back();
        add(pixel);
        before = along;
    }
    return pieces;
}

void AddLine(const ChartView& view, GridLine line, double from, double to, double pixelsPerDegree,
             std::vector<GridLine>& lines)
{
    if (!(to > from))
        return;
    const double wanted = std::ceil((to - from) * pixelsPerDegree / kSampleSpacing);
    const int samples = std::max(2, static_cast<int>(std::min<double>(kMostSamples, wanted)));
    const PixelBox box{0, 0, view.Width(), view.Height()};
    for (const PixelLine& piece : Sampled(view, line, from, to, samples))
    {
        for (PixelLine& part : ClippedLine(piece, box))
            line.pieces.push_back(std::move(part));
    }
    if (!line.pieces.empty())
        lines.push_back(std::move(line));
}

int FirstMultiple(double degrees, int step)
{
    return static_cast<int>(std::ceil(degrees * 60 / step)) * step;
}

bool StandsOut(int minutes, int step)
{
    const int unit = step < 60 ? 60 : step < 300 ? 300 : 1800;
    return minutes % unit == 0;
}

template <typename Cross>
std::optional<PixelPoint> Crossing(const GridLine& line, Cross cross)
{
    for (const PixelLine& piece : line.pieces)
    {
        for (std::size_t i = 1; i < piece.size(); ++i)
        {
            const double before = cross(piece[i - 1]);
            const double after = cross(piece[i]);
            if ((before <= 0) == (after <= 0))
                continue;
            const double share = before / (before - after);
            return PixelPoint{piece[i - 1].x + (piece[i].x - piece[i - 1].x) * share,
                              piece[i - 1].y + (piece[i].y - piece[i - 1].y) * share};
        }
    }
    return std::nullopt;
}

} // namespace

int GraticuleStep(double pixelsPerMinute, double leastPixels)
{
    for (const int step : kSteps)
    {
        if (step * pixelsPerMinute >= leastPixels)
            return step;
    }
    return kSteps.back();
}

std::string ParallelText(int minutes, int step)
{
    return DegreeText(minutes, step, 'N', 'S');
}

std::string MeridianText(int minutes, int step)
{
    return DegreeText(minutes, step, 'E', 'W');
}

Extent ExtentOf(const ChartView& view)
{
    const LatLon& centre = view.Centre();
    Extent extent{centre.Lat(), centre.Lat(), centre.Lon(), centre.Lon()};
    bool beyond = false; // a place of the drawing shows no place of the earth
    for (int row = 0; row <= kEdgeSamples; ++row)
    {
        for (int column = 0; column <= kEdgeSamples; ++column)
        {
            const std::optional<LatLon> position =
                view.ToPosition({view.Width() * static_cast<double>(column) / kEdgeSamples,
                                 view.Height() * static_cast<double>(row) / kEdgeSamples});
            if (!position)
            {
                beyond = true;
                continue;
            }
            const double longitude = Beside(position->Lon(), centre.Lon());
            extent.south = std::min(extent.south, position->Lat());
            extent.north = std::max(extent.north, position->Lat());
            extent.west = std::min(extent.west, longitude);
            extent.east = std::max(extent.east, longitude);
        }
    }
    if (beyond)
        return {-90, 90, centre.Lon() - 180, centre.Lon() + 180};
    WidenToPole(view, 90, extent);
    WidenToPole(view, -90, extent);
    return extent;
}

Graticule GraticuleOf(const ChartView& view, double leastPixels)
{
    const double perMinute = view.PixelsPerMile(); // a minute of latitude is a mile, or nearly
    const double narrowing = std::max(0.05, std::cos(view.Centre().Lat() * std::numbers::pi / 180));
    Graticule graticule;
    graticule.latitudeStep = GraticuleStep(perMinute, leastPixels);
    graticule.longitudeStep = GraticuleStep(perMinute * narrowing, leastPixels);

    const Extent extent = ExtentOf(view);
    const double farthest = kFarthestParallel / 60.0;
    const double south = std::max(extent.south, -farthest);
    const double north = std::min(extent.north, farthest);
    for (int minutes = FirstMultiple(south, graticule.latitudeStep); minutes <= north * 60;
         minutes += graticule.latitudeStep)
    {
        const double perDegree = 60 * perMinute * std::max(0.05, std::cos(minutes / 60.0 * std::numbers::pi / 180));
        AddLine(view, {true, minutes, StandsOut(minutes, graticule.latitudeStep), {}}, extent.west, extent.east,
                perDegree, graticule.lines);
    }
    const int first = FirstMultiple(extent.west, graticule.longitudeStep);
    for (int minutes = first; minutes <= extent.east * 60 && minutes < first + kMinutesAround;
         minutes += graticule.longitudeStep)
    {
        const int turned = static_cast<int>(std::lround(std::remainder(minutes, static_cast<double>(kMinutesAround))));
        AddLine(view, {false, turned, StandsOut(turned, graticule.longitudeStep), {}}, south, north, 60 * perMinute,
                graticule.lines);
    }
    return graticule;
}

std::optional<PixelPoint> CrossingAtX(const GridLine& line, double x)
{
    return Crossing(line,
                    [x](PixelPoint point)
                    {
                        return point.x - x;
                    });
}

std::optional<PixelPoint> CrossingAtY(const GridLine& line, double y)
{
    return Crossing(line,
                    [y](PixelPoint point)
                    {
                        return point.y - y;
                    });
}

} // namespace vorn::chart
