#pragma once

#include "family/VornChart/core/BuiltInProjection.h"
#include "family/VornChart/core/Ellipsoid.h"

namespace vorn::projections
{
/// Stereographic of the ellipsoid from a pole: the south pole for a map pole south of the equator, else the north pole,
/// which is the origin of the map. The opposite pole is infinitely far. Snyder (1987), section 21.
class PolarStereographic final : public BuiltInProjection
{
public:
    explicit PolarStereographic(double squaredEccentricity = kWgs84);
    Projection* Clone() const override;

private:
    bool Prepare() override;
    bool Forward(double lat, double deltaLon, MapPoint& point) const override;
    bool Inverse(const MapPoint& point, double& lat, double& deltaLon) const override;
    double OriginY() const override;
    double Scale(double lat, double deltaLon) const override;
    int OutlineCount() const override;
    MapPoint Outline(int index) const override;

    Ellipsoid m_ellipsoid;
    double m_side = 1;   ///< 1 for the north pole, -1 for the south
    double m_factor = 2; ///< radius of the parallel whose half polar tangent is 1
};
} // namespace vorn::projections
