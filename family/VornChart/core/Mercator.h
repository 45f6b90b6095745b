#pragma once

#include "family/VornChart/core/BuiltInProjection.h"
#include "family/VornChart/core/Ellipsoid.h"

namespace vorn::projections
{
/// Mercator of the ellipsoid, normal aspect. The poles are infinitely far. Snyder (1987), section 7.
class Mercator final : public BuiltInProjection
{
public:
    explicit Mercator(double squaredEccentricity = kWgs84);
    Projection* Clone() const override;

private:
    bool Prepare() override;
    bool Forward(double lat, double deltaLon, MapPoint& point) const override;
    bool Inverse(const MapPoint& point, double& lat, double& deltaLon) const override;
    double Scale(double lat, double deltaLon) const override;
    int OutlineCount() const override;
    MapPoint Outline(int index) const override;

    Ellipsoid m_ellipsoid;
    double m_scale = 1; ///< along the equator
};
} // namespace vorn::projections
