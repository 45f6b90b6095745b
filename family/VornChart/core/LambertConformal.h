#pragma once

#include "family/VornChart/core/BuiltInProjection.h"
#include "family/VornChart/core/Ellipsoid.h"

namespace vorn::projections
{
/// Lambert's conformal conic of the ellipsoid with two standard parallels, which may be equal. Parallels that lie
/// opposite to each other, or nearly, make no cone: the projection then refuses. Snyder (1987), section 15.
class LambertConformal final : public BuiltInProjection
{
public:
    explicit LambertConformal(double squaredEccentricity = kWgs84);
    Projection* Clone() const override;

private:
    bool Prepare() override;
    bool Forward(double lat, double deltaLon, MapPoint& point) const override;
    bool Inverse(const MapPoint& point, double& lat, double& deltaLon) const override;
    double Scale(double lat, double deltaLon) const override;
    int OutlineCount() const override;
    MapPoint Outline(int index) const override;
    Bounds OutlineBounds() const override;

    double ConeConstant(double lat1, double lat2) const;
    double Radius(double lat) const;

    Ellipsoid m_ellipsoid;
    double m_side = 1;   ///< 1 for a cone over the north pole, -1 over the south
    double m_cone = 1;   ///< cone constant, positive
    double m_factor = 1; ///< radius of the parallel whose half polar tangent is 1
};
} // namespace vorn::projections
