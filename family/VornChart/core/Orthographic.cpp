#include "family/VornChart/core/Orthographic.h"

#include "family/VornChart/core/Ellipsoid.h"

#include <new>

namespace vorn::projections
{
namespace
{
constexpr int kCirclePoints = 72;
constexpr double kHorizonSlack = 1e-15; // what rounding lets a point of the horizon sink

constexpr ProjectionFacts kFacts{PROJECTION_ORTHOGRAPHIC, "Orthographic", false, false, false, true, {}};
} // namespace

Orthographic::Orthographic() : BuiltInProjection(kFacts)
{
    Refresh();
}

Projection* Orthographic::Clone() const
{
    return new (std::nothrow) Orthographic(*this); // the interface hands it to its caller
}

bool Orthographic::Prepare()
{
    m_sinPole = std::sin(PoleLat() * kRadian);
    m_cosPole = std::cos(PoleLat() * kRadian);
    return true;
}

double Orthographic::OriginY() const
{
    return 0;
}

bool Orthographic::Forward(double lat, double deltaLon, MapPoint& point) const
{
    const double sinLat = std::sin(lat * kRadian);
    const double cosLat = std::cos(lat * kRadian);
    const double along = cosLat * std::cos(deltaLon * kRadian);
    if (m_sinPole * sinLat + m_cosPole * along < -kHorizonSlack)
    {
        return false;
    }
    point = {cosLat * std::sin(deltaLon * kRadian), m_cosPole * sinLat - m_sinPole * along};
    return true;
}

bool Orthographic::Inverse(const MapPoint& point, double& lat, double& deltaLon) const
{
    double radius = std::hypot(point.x, point.y);
    if (!HoldWithin(radius, 1))
    {
        return false;
    }
    const double height = std::sqrt((1 - radius) * (1 + radius));
    const double along = height * m_cosPole - point.y * m_sinPole;
    lat = std::atan2(point.y * m_cosPole + height * m_sinPole, std::hypot(point.x, along)) / kRadian;
    deltaLon = point.x == 0 && along == 0 ? 0 : std::atan2(point.x, along) / kRadian;
    return true;
}

double Orthographic::Scale(double, double deltaLon) const
{
    return std::hypot(std::cos(deltaLon * kRadian), m_sinPole * std::sin(deltaLon * kRadian));
}

int Orthographic::OutlineCount() const
{
    return kCirclePoints;
}

MapPoint Orthographic::Outline(int index) const
{
    const double angle = index * (360 / kCirclePoints) * kRadian;
    return {std::cos(angle), std::sin(angle)};
}
} // namespace vorn::projections
