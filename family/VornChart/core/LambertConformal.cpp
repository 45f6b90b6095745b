#include "family/VornChart/core/LambertConformal.h"

#include <algorithm>
#include <new>

namespace vorn::projections
{
namespace
{
constexpr double kFlattestCone = 1e-4;
constexpr double kDrawnLatitude = -30; // as seen from the cone's pole
constexpr int kArcPoints = 73;

constexpr ParameterRule kParameters[] = {{"Standard parallel 1", 33, -89, 89}, {"Standard parallel 2", 45, -89, 89}};
constexpr ProjectionFacts kFacts{
    PROJECTION_LAMBERT_CONFORMAL, "Lambert conformal conic", false, true, true, false, kParameters};
} // namespace

LambertConformal::LambertConformal(double squaredEccentricity)
    : BuiltInProjection(kFacts), m_ellipsoid(squaredEccentricity)
{
    Refresh();
}

Projection* LambertConformal::Clone() const
{
    return new (std::nothrow) LambertConformal(*this); // the interface hands it to its caller
}

/// The ratio of the differences of ln m and of the isometric latitude, arranged so that parallels may come close:
/// both differences are made from that of the sines.
double LambertConformal::ConeConstant(double lat1, double lat2) const
{
    const double s1 = std::sin(lat1);
    const double s2 = std::sin(lat2);
    const double step = 2 * std::cos((lat1 + lat2) / 2) * std::sin((lat2 - lat1) / 2);
    if (step == 0)
    {
        return s1;
    }
    const double e2 = m_ellipsoid.SquaredEccentricity();
    const double e = std::sqrt(e2);
    const double squares = step * (s1 + s2);
    const double logs = (std::log1p(-squares / (1 - s1 * s1)) - std::log1p(-e2 * squares / (1 - e2 * s1 * s1))) / 2;
    const double isometrics = std::atanh(step / (1 - s1 * s2)) - e * std::atanh(e * step / (1 - e2 * s1 * s2));
    return -logs / isometrics;
}

bool LambertConformal::Prepare()
{
    const double lat1 = Parameter(0) * kRadian;
    const double cone = ConeConstant(lat1, Parameter(1) * kRadian);
    m_side = cone < 0 ? -1 : 1;
    m_cone = std::abs(cone);
    if (!(m_cone >= kFlattestCone))
    {
        return false;
    }
    const double tangent = m_ellipsoid.HalfPolarTangent(m_side * Parameter(0));
    m_factor = m_ellipsoid.ParallelRadius(std::sin(lat1), std::cos(lat1)) / (m_cone * std::pow(tangent, m_cone));
    return true;
}

/// Of a parallel, by its latitude as seen from the cone's pole.
double LambertConformal::Radius(double lat) const
{
    return m_factor * std::pow(m_ellipsoid.HalfPolarTangent(lat), m_cone);
}

bool LambertConformal::Forward(double lat, double deltaLon, MapPoint& point) const
{
    const double seen = m_side * lat;
    if (!(seen > -90))
    {
        return false;
    }
    const double radius = Radius(seen);
    const double angle = m_cone * deltaLon * kRadian;
    point = {radius * std::sin(angle), -m_side * radius * std::cos(angle)};
    return true;
}

bool LambertConformal::Inverse(const MapPoint& point, double& lat, double& deltaLon) const
{
    const double down = -m_side * point.y;
    const double radius = std::hypot(point.x, down);
    deltaLon = radius > 0 ? std::atan2(point.x, down) / (m_cone * kRadian) : 0;
    if (!HoldWithin(deltaLon, 180))
    {
        return false;
    }
    lat = m_side * m_ellipsoid.LatitudeOfHalfTangent(std::pow(radius / m_factor, 1 / m_cone));
    return true;
}

double LambertConformal::Scale(double lat, double) const
{
    if (!(std::abs(lat) < 90))
    {
        return 0; // a pole's parallel has no length
    }
    return m_cone * Radius(m_side * lat) / m_ellipsoid.ParallelRadius(std::sin(lat * kRadian), std::cos(lat * kRadian));
}

int LambertConformal::OutlineCount() const
{
    return kArcPoints + 1;
}

MapPoint LambertConformal::Outline(int index) const
{
    MapPoint point{};
    if (index < kArcPoints)
    {
        Forward(m_side * kDrawnLatitude, -180 + index * (360.0 / (kArcPoints - 1)), point);
    }
    return point; // the last is the cone's pole
}

LambertConformal::Bounds LambertConformal::OutlineBounds() const
{
    Bounds bounds = BuiltInProjection::OutlineBounds();
    if (m_cone > 0.5) // the arc reaches out farthest between its points
    {
        const double radius = Radius(kDrawnLatitude);
        bounds.minX = -radius;
        bounds.maxX = radius;
    }
    return bounds;
}
} // namespace vorn::projections
