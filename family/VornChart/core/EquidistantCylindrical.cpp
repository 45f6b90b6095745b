#include "family/VornChart/core/EquidistantCylindrical.h"

#include "family/VornChart/core/Ellipsoid.h"

#include <new>

namespace vorn::projections
{
namespace
{
constexpr ParameterRule kParameters[] = {{"True-scale latitude", 0, -89, 89}};
constexpr ProjectionFacts kFacts{
    PROJECTION_EQUIDISTANT_CYLINDRICAL, "Equidistant cylindrical", true, false, false, false, kParameters};
} // namespace

EquidistantCylindrical::EquidistantCylindrical() : BuiltInProjection(kFacts)
{
    Refresh();
}

Projection* EquidistantCylindrical::Clone() const
{
    return new (std::nothrow) EquidistantCylindrical(*this); // the interface hands it to its caller
}

bool EquidistantCylindrical::Prepare()
{
    m_width = std::cos(Parameter(0) * kRadian);
    return true;
}

bool EquidistantCylindrical::Forward(double lat, double deltaLon, MapPoint& point) const
{
    point = {m_width * deltaLon * kRadian, lat * kRadian};
    return true;
}

bool EquidistantCylindrical::Inverse(const MapPoint& point, double& lat, double& deltaLon) const
{
    lat = point.y / kRadian;
    deltaLon = point.x / (m_width * kRadian);
    return HoldWithin(deltaLon, 180) && HoldWithin(lat, 90);
}

double EquidistantCylindrical::Scale(double lat, double) const
{
    return std::abs(lat) < 90 ? m_width / std::cos(lat * kRadian) : 0; // a pole's parallel has no length
}

int EquidistantCylindrical::OutlineCount() const
{
    return 4;
}

MapPoint EquidistantCylindrical::Outline(int index) const
{
    MapPoint corner{};
    Forward(index < 2 ? -90 : 90, index == 0 || index == 3 ? -180 : 180, corner);
    return corner;
}
} // namespace vorn::projections
