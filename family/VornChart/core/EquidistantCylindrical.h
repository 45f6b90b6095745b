#pragma once

#include "family/VornChart/core/BuiltInProjection.h"

namespace vorn::projections
{
/// Equidistant cylindrical of the sphere: degrees of latitude have the same length everywhere, and those of longitude
/// too. Snyder (1987), section 12.
class EquidistantCylindrical final : public BuiltInProjection
{
public:
    EquidistantCylindrical();
    Projection* Clone() const override;

private:
    bool Prepare() override;
    bool Forward(double lat, double deltaLon, MapPoint& point) const override;
    bool Inverse(const MapPoint& point, double& lat, double& deltaLon) const override;
    double Scale(double lat, double deltaLon) const override;
    int OutlineCount() const override;
    MapPoint Outline(int index) const override;

    double m_width = 1; ///< of a radian of longitude
};
} // namespace vorn::projections
