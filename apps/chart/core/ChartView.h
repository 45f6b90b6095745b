#pragma once

#include "apps/chart/core/ChartPlane.h"
#include "apps/chart/core/PixelGeometry.h"

#include <optional>

namespace vorn::chart
{

/// Which part of the earth a chart shows and how large: centre, scale and the size of the drawing. The scale 1:N holds
/// at the centre. Pixels count from the drawing's upper left corner, x to the right, y down.
class ChartView
{
public:
    static constexpr double kLargestScale = 100'000; ///< denominators
    static constexpr double kSmallestScale = 60'000'000;
    static constexpr double kFarthestLatitude = 85; ///< of the centre, either way

    /// @param plane lives longer than the view
    explicit ChartView(ChartPlane& plane);

    /// Another projection; centre and scale stay.
    void SetPlane(ChartPlane& plane);

    /// @param dotsPerInch of the device, above 0
    void SetSize(int width, int height, double dotsPerInch);
    int Width() const;
    int Height() const;
    double DotsPerInch() const;

    /// A centre beyond the limits is brought back to them; one that is no number changes nothing.
    void SetCentre(const LatLon& centre);
    const LatLon& Centre() const;

    /// The denominator N of 1:N, brought within the limits; what is no number changes nothing.
    void SetScale(double denominator);
    double Scale() const;

    std::optional<PixelPoint> ToPixel(const LatLon& position) const;
    std::optional<LatLon> ToPosition(PixelPoint pixel) const;

    /// The edge of the globe, closed; empty for maps that look like none.
    PixelLine Limb() const;

    /// Pixels for a radius of the earth on the map, which is how stored views keep their scale. Not above 0: no change.
    void SetPixelsPerRadius(double pixels);
    double PixelsPerRadius() const;

    /// Pixels for a nautical mile at the centre.
    double PixelsPerMile() const;

    /// Moves the chart so that `position` comes to lie at `pixel`, as near as the limits let it.
    void Bring(const LatLon& position, PixelPoint pixel);

    /// Moves the chart by pixels, as a hand would: what was at the centre goes `dx` to the right and `dy` down.
    void Pan(double dx, double dy);

    /// Makes the chart `factor` times as large; the place at `pixel` stays there.
    void ZoomAt(PixelPoint pixel, double factor);

    /// The smallest scale change that shows all positions with `margin` pixels around them; the centre moves between
    /// them. False without positions.
    bool ShowAll(const LatLon* positions, int count, int margin);

private:
    void Recentre();
    double Enlarged() const;
    PixelPoint Middle() const;
    PixelPoint PixelOf(const MapPoint& point) const;

    ChartPlane* m_plane;
    LatLon m_centre{47.5, -120};
    double m_scale = 2'000'000;
    int m_width = 1;
    int m_height = 1;
    double m_dotsPerInch = 96;
    MapPoint m_origin; // the centre on the map
    double m_pixelsPerRadius = 1;
};

} // namespace vorn::chart
