#include "apps/chart/core/ChartView.h"

#include <algorithm>
#include <cmath>

namespace vorn::chart
{

namespace
{

constexpr double kEarthRadius = 6'378'137; // metres, the equator's on the WGS-84 ellipsoid
constexpr double kMetresPerInch = 0.0254;
constexpr double kMetresPerMile = 1852;

// A chart is moved by looking where the place has gone and moving on by the rest.
constexpr int kMostSteps = 24;
constexpr double kNearEnough = 0.001; // pixels

double LongitudeApart(double from, double to)
{
    return std::remainder(to - from, 360.0);
}

} // namespace

ChartView::ChartView(ChartPlane& plane) : m_plane(&plane)
{
    Recentre();
}

void ChartView::SetPlane(ChartPlane& plane)
{
    m_plane = &plane;
    Recentre();
}

void ChartView::SetSize(int width, int height, double dotsPerInch)
{
    m_width = std::max(1, width);
    m_height = std::max(1, height);
    if (dotsPerInch > 0)
        m_dotsPerInch = dotsPerInch;
    Recentre();
}

int ChartView::Width() const
{
    return m_width;
}

int ChartView::Height() const
{
    return m_height;
}

double ChartView::DotsPerInch() const
{
    return m_dotsPerInch;
}

void ChartView::SetCentre(const LatLon& centre)
{
    if (!std::isfinite(centre.Lat()) || !std::isfinite(centre.Lon()))
        return;
    m_centre = LatLon(std::clamp(centre.Lat(), -kFarthestLatitude, kFarthestLatitude), centre.Lon());
    Recentre();
}

const LatLon& ChartView::Centre() const
{
    return m_centre;
}

void ChartView::SetScale(double denominator)
{
    if (std::isnan(denominator))
        return;
    m_scale = std::clamp(denominator, kLargestScale, kSmallestScale);
    Recentre();
}

double ChartView::Scale() const
{
    return m_scale;
}

void ChartView::SetPixelsPerRadius(double pixels)
{
    if (pixels > 0)
        SetScale(kEarthRadius * m_dotsPerInch / (pixels * kMetresPerInch * Enlarged()));
}

double ChartView::PixelsPerRadius() const
{
    return m_pixelsPerRadius;
}

/// By how much the map is larger at the centre than its scale says.
double ChartView::Enlarged() const
{
    const double enlarged = m_plane->ScaleAt(m_centre);
    return enlarged > 0 ? enlarged : 1;
}

void ChartView::Recentre()
{
    m_plane->PanTo(m_centre);
    m_origin = m_plane->Forward(m_centre).value_or(MapPoint());
    m_pixelsPerRadius = kEarthRadius * m_dotsPerInch / (m_scale * kMetresPerInch * Enlarged());
}

PixelPoint ChartView::Middle() const
{
    return {m_width / 2.0, m_height / 2.0};
}

std::optional<PixelPoint> ChartView::ToPixel(const LatLon& position) const
{
    const std::optional<MapPoint> point = m_plane->Forward(position);
    return point ? std::optional(PixelOf(*point)) : std::nullopt;
}

PixelPoint ChartView::PixelOf(const MapPoint& point) const
{
    const PixelPoint middle = Middle();
    return {middle.x + (point.x - m_origin.x) * m_pixelsPerRadius,
            middle.y - (point.y - m_origin.y) * m_pixelsPerRadius};
}

PixelLine ChartView::Limb() const
{
    PixelLine limb;
    for (const MapPoint& point : m_plane->Limb())
        limb.push_back(PixelOf(point));
    if (!limb.empty())
        limb.push_back(limb.front());
    return limb;
}

std::optional<LatLon> ChartView::ToPosition(PixelPoint pixel) const
{
    const PixelPoint middle = Middle();
    return m_plane->Inverse(
        {m_origin.x + (pixel.x - middle.x) / m_pixelsPerRadius, m_origin.y - (pixel.y - middle.y) / m_pixelsPerRadius});
}

double ChartView::PixelsPerMile() const
{
    return kMetresPerMile / m_scale / kMetresPerInch * m_dotsPerInch;
}

void ChartView::Bring(const LatLon& position, PixelPoint pixel)
{
    const PixelPoint middle = Middle();
    for (int step = 0; step < kMostSteps; ++step)
    {
        const std::optional<PixelPoint> now = ToPixel(position);
        if (!now)
            return;
        const double dx = pixel.x - now->x;
        const double dy = pixel.y - now->y;
        if (std::hypot(dx, dy) < kNearEnough)
            return;
        const std::optional<LatLon> centre = ToPosition({middle.x - dx, middle.y - dy});
        if (!centre)
            return;
        SetCentre(*centre);
    }
}

void ChartView::Pan(double dx, double dy)
{
    const PixelPoint middle = Middle();
    Bring(LatLon(m_centre), {middle.x + dx, middle.y + dy}); // a copy: the centre itself moves
}

void ChartView::ZoomAt(PixelPoint pixel, double factor)
{
    if (!(factor > 0))
        return;
    const std::optional<LatLon> position = ToPosition(pixel);
    SetScale(m_scale / factor);
    if (position)
        Bring(*position, pixel);
}

bool ChartView::ShowAll(const LatLon* positions, int count, int margin)
{
    if (positions == nullptr || count < 1)
        return false;
    double south = positions[0].Lat();
    double north = south;
    double west = 0;
    double east = 0;
    for (int i = 1; i < count; ++i)
    {
        south = std::min(south, positions[i].Lat());
        north = std::max(north, positions[i].Lat());
        west = std::min(west, LongitudeApart(positions[0].Lon(), positions[i].Lon()));
        east = std::max(east, LongitudeApart(positions[0].Lon(), positions[i].Lon()));
    }
    SetCentre(LatLon((south + north) / 2, positions[0].Lon() + (west + east) / 2));

    double larger = 0; // what the drawing is too small by
    for (int i = 0; i < count; ++i)
    {
        const PixelPoint pixel = ToPixel(positions[i]).value_or(Middle());
        larger = std::max(larger, std::abs(pixel.x - Middle().x) / std::max(1.0, m_width / 2.0 - margin));
        larger = std::max(larger, std::abs(pixel.y - Middle().y) / std::max(1.0, m_height / 2.0 - margin));
    }
    if (larger > 0)
        SetScale(m_scale * larger);
    return true;
}

} // namespace vorn::chart
