#pragma once

#include "apps/chart/core/ChartPlane.h"

#include <cmath>
#include <numbers>

namespace vorn::test
{

inline constexpr double kDegree = std::numbers::pi / 180;

/// Mercator's projection of a sphere of radius 1.
class MercatorSphere : public vorn::chart::ChartPlane
{
public:
    bool PanTo(const LatLon& centre) override
    {
        m_centre = centre;
        return true;
    }
    std::optional<vorn::chart::MapPoint> Forward(const LatLon& position) const override
    {
        if (std::abs(position.Lat()) > 89)
            return std::nullopt;
        const double lon = std::remainder(position.Lon() - m_centre.Lon(), 360.0);
        return vorn::chart::MapPoint{lon * kDegree, std::asinh(std::tan(position.Lat() * kDegree))};
    }
    std::optional<LatLon> Inverse(const vorn::chart::MapPoint& point) const override
    {
        if (std::abs(point.x) > std::numbers::pi)
            return std::nullopt;
        return LatLon(std::atan(std::sinh(point.y)) / kDegree, m_centre.Lon() + point.x / kDegree);
    }
    double ScaleAt(const LatLon& position) const override
    {
        return 1 / std::cos(position.Lat() * kDegree);
    }

private:
    LatLon m_centre;
};

/// A sphere of radius 1 seen from far away.
class GlobeSphere : public vorn::chart::ChartPlane
{
public:
    bool PanTo(const LatLon& centre) override
    {
        m_centre = centre;
        return true;
    }
    std::optional<vorn::chart::MapPoint> Forward(const LatLon& position) const override
    {
        const double lat = position.Lat() * kDegree;
        const double lon = (position.Lon() - m_centre.Lon()) * kDegree;
        const double middle = m_centre.Lat() * kDegree;
        if (std::sin(middle) * std::sin(lat) + std::cos(middle) * std::cos(lat) * std::cos(lon) < 0)
            return std::nullopt;
        return vorn::chart::MapPoint{std::cos(lat) * std::sin(lon),
                                     std::cos(middle) * std::sin(lat) -
                                         std::sin(middle) * std::cos(lat) * std::cos(lon)};
    }
    std::optional<LatLon> Inverse(const vorn::chart::MapPoint& point) const override
    {
        const double square = point.x * point.x + point.y * point.y;
        if (square > 1)
            return std::nullopt;
        const double depth = std::sqrt(1 - square);
        const double middle = m_centre.Lat() * kDegree;
        const double lat = std::asin(depth * std::sin(middle) + point.y * std::cos(middle));
        const double lon = std::atan2(point.x, depth * std::cos(middle) - point.y * std::sin(middle));
        return LatLon(lat / kDegree, m_centre.Lon() + lon / kDegree);
    }
    double ScaleAt(const LatLon&) const override
    {
        return 1;
    }

private:
    LatLon m_centre;
};

} // namespace vorn::test
