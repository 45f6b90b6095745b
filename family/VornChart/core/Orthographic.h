#pragma once

#include "family/VornChart/core/BuiltInProjection.h"

namespace vorn::projections
{
/// The spherical earth seen from infinitely far above the map pole. Only the near half is shown. Snyder (1987),
/// section 20.
class Orthographic final : public BuiltInProjection
{
public:
    Orthographic();
    Projection* Clone() const override;

private:
    bool Prepare() override;
    bool Forward(double lat, double deltaLon, MapPoint& point) const override;
    bool Inverse(const MapPoint& point, double& lat, double& deltaLon) const override;
    double OriginY() const override;
    double Scale(double lat, double deltaLon) const override;
    int OutlineCount() const override;
    MapPoint Outline(int index) const override;

    double m_sinPole = 0;
    double m_cosPole = 1;
};
} // namespace vorn::projections
