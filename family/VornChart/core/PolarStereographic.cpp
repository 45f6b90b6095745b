#include "family/VornChart/core/PolarStereographic.h"

#include <new>

namespace vorn::projections
{
namespace
{
constexpr double kDrawnLatitude = -30; // as seen from the map's pole
constexpr int kCirclePoints = 72;

constexpr ParameterRule kParameters[] = {{"True-scale latitude", 90, -90, 90}};
constexpr ProjectionFacts kFacts{
    PROJECTION_POLAR_STEREOGRAPHIC, "Polar stereographic", false, false, true, false, kParameters};

/// What times the half polar tangent is the radius of the parallel, close to the pole.
double AtPole(const Ellipsoid& ellipsoid)
{
    return 2 / (std::exp(ellipsoid.Bend(1)) * std::sqrt(1 - ellipsoid.SquaredEccentricity()));
}
} // namespace

PolarStereographic::PolarStereographic(double squaredEccentricity)
    : BuiltInProjection(kFacts), m_ellipsoid(squaredEccentricity)
{
    Refresh();
}

Projection* PolarStereographic::Clone() const
{
    return new (std::nothrow) PolarStereographic(*this); // the interface hands it to its caller
}

bool PolarStereographic::Prepare()
{
    m_side = PoleLat() < 0 ? -1 : 1;
    const double lat = std::abs(Parameter(0));
    m_factor = lat < 90 ? m_ellipsoid.ParallelRadius(std::sin(lat * kRadian), std::cos(lat * kRadian)) /
                              m_ellipsoid.HalfPolarTangent(lat)
                        : AtPole(m_ellipsoid);
    return true;
}

double PolarStereographic::OriginY() const
{
    return 0;
}

bool PolarStereographic::Forward(double lat, double deltaLon, MapPoint& point) const
{
    const double seen = m_side * lat;
    if (!(seen > -90))
    {
        return false;
    }
    const double radius = m_factor * m_ellipsoid.HalfPolarTangent(seen);
    point = {radius * std::sin(deltaLon * kRadian), -m_side * radius * std::cos(deltaLon * kRadian)};
    return true;
}

bool PolarStereographic::Inverse(const MapPoint& point, double& lat, double& deltaLon) const
{
    const double down = -m_side * point.y;
    const double radius = std::hypot(point.x, down);
    deltaLon = radius > 0 ? std::atan2(point.x, down) / kRadian : 0;
    lat = m_side * m_ellipsoid.LatitudeOfHalfTangent(radius / m_factor);
    return true;
}

double PolarStereographic::Scale(double lat, double) const
{
    if (!(std::abs(lat) < 90))
    {
        return m_factor / AtPole(m_ellipsoid);
    }
    return m_factor * m_ellipsoid.HalfPolarTangent(m_side * lat) /
           m_ellipsoid.ParallelRadius(std::sin(lat * kRadian), std::cos(lat * kRadian));
}

int PolarStereographic::OutlineCount() const
{
    return kCirclePoints;
}

MapPoint PolarStereographic::Outline(int index) const
{
    MapPoint point{};
    Forward(m_side * kDrawnLatitude, index * (360.0 / kCirclePoints), point);
    return point;
}
} // namespace vorn::projections
