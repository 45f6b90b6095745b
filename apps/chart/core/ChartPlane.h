#pragma once

#include "family/TarnUtil/core/LatLon.h"

#include <optional>
#include <vector>

namespace vorn::chart
{

/// A place on the flat map in radii of the earth at scale 1: x to the right, y up, from the map's centre.
struct MapPoint
{
    double x = 0;
    double y = 0;
};

/// What the chart needs of a map projection.
class ChartPlane
{
public:
    virtual ~ChartPlane() = default;

    /// Turns the map so that `centre` is its origin and north is up there. False, and nothing changed, where the
    /// projection cannot have its centre.
    virtual bool PanTo(const LatLon& centre) = 0;

    /// Nothing for a place that the map does not show.
    virtual std::optional<MapPoint> Forward(const LatLon& position) const = 0;
    virtual std::optional<LatLon> Inverse(const MapPoint& point) const = 0;

    /// The edge of a map that looks like a globe, without a doubled last point; nothing for other maps.
    virtual std::vector<MapPoint> Limb() const
    {
        return {};
    }

    /// Length on the map of a short way there, for each length on the earth; above 0.
    virtual double ScaleAt(const LatLon& position) const = 0;
};

} // namespace vorn::chart
