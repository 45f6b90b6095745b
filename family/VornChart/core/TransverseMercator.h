#pragma once

#include "family/VornChart/core/BuiltInProjection.h"
#include "family/VornChart/core/Ellipsoid.h"

namespace vorn::projections
{
/// Transverse Mercator of the ellipsoid, up to some 60 degrees east and west of the central meridian, which goes on
/// over the poles around the whole earth. Krüger's series to the sixth power of the third flattening; C. F. F. Karney,
/// Transverse Mercator with an accuracy of a few nanometers, Journal of Geodesy 85 (2011).
class TransverseMercator final : public BuiltInProjection
{
public:
    explicit TransverseMercator(double squaredEccentricity = kWgs84);
    Projection* Clone() const override;

private:
    bool Prepare() override;
    bool Forward(double lat, double deltaLon, MapPoint& point) const override;
    bool Inverse(const MapPoint& point, double& lat, double& deltaLon) const override;
    double Scale(double lat, double deltaLon) const override;
    int OutlineCount() const override;
    MapPoint Outline(int index) const override;

    Ellipsoid m_ellipsoid;
    double m_unit;                    ///< length of a radian of rectifying latitude, at scale 1
    double m_scale = 1;               ///< the same, with the scale along the central meridian
    std::array<double, 6> m_toMap;    ///< from the conformal sphere's transverse Mercator
    std::array<double, 6> m_toSphere; ///< and back, negative
};
} // namespace vorn::projections
