#include "family/VornChart/core/Mercator.h"

#include <new>

namespace vorn::projections
{
namespace
{
constexpr double kDrawnLatitude = 85; // north and south of it nobody wants this map

constexpr ParameterRule kParameters[] = {{"True-scale latitude", 0, -89, 89}};
constexpr ProjectionFacts kFacts{PROJECTION_MERCATOR, "Mercator", true, false, true, false, kParameters};
} // namespace

Mercator::Mercator(double squaredEccentricity) : BuiltInProjection(kFacts), m_ellipsoid(squaredEccentricity)
{
    Refresh();
}

Projection* Mercator::Clone() const
{
    return new (std::nothrow) Mercator(*this); // the interface hands it to its caller
}

bool Mercator::Prepare()
{
    const double lat = Parameter(0) * kRadian;
    m_scale = m_ellipsoid.ParallelRadius(std::sin(lat), std::cos(lat));
    return true;
}

bool Mercator::Forward(double lat, double deltaLon, MapPoint& point) const
{
    if (!(std::abs(lat) < 90))
    {
        return false;
    }
    point = {m_scale * deltaLon * kRadian, m_scale * m_ellipsoid.Isometric(lat)};
    return true;
}

bool Mercator::Inverse(const MapPoint& point, double& lat, double& deltaLon) const
{
    deltaLon = point.x / (m_scale * kRadian);
    if (!HoldWithin(deltaLon, 180))
    {
        return false;
    }
    lat = m_ellipsoid.LatitudeOfIsometric(point.y / m_scale);
    return true;
}

double Mercator::Scale(double lat, double) const
{
    return m_scale / m_ellipsoid.ParallelRadius(std::sin(lat * kRadian), std::cos(lat * kRadian));
}

int Mercator::OutlineCount() const
{
    return 4;
}

MapPoint Mercator::Outline(int index) const
{
    MapPoint corner{};
    Forward(index < 2 ? -kDrawnLatitude : kDrawnLatitude, index == 0 || index == 3 ? -180 : 180, corner);
    return corner;
}
} // namespace vorn::projections
