#pragma once

#include <array>
#include <cmath>
#include <numbers>

/// @file
/// Latitudes on an ellipsoid of revolution with semi-major axis 1, as conformal projections need them.
///
/// Sources: J. P. Snyder, Map Projections: A Working Manual, USGS Professional Paper 1395 (1987), section 3;
/// C. F. F. Karney, Transverse Mercator with an accuracy of a few nanometers, Journal of Geodesy 85 (2011).
namespace vorn::projections
{
inline constexpr double kRadian = std::numbers::pi / 180; ///< one degree

inline constexpr double kWgs84Flattening = 1 / 298.257223563;

/// Square of the first eccentricity of WGS-84.
inline constexpr double kWgs84 = kWgs84Flattening * (2 - kWgs84Flattening);

/// sum of coefficients[j - 1] * sin(2 j angle) for j = 1 .. 6, by Clenshaw's method.
double SineSeries(const std::array<double, 6>& coefficients, double sinTwice, double cosTwice);

/// An ellipsoid as flat as an earth's: the series stop after the sixth power of the third flattening.
class Ellipsoid
{
public:
    /// @param squaredEccentricity from 0, a sphere, to some hundredths.
    explicit Ellipsoid(double squaredEccentricity);

    double SquaredEccentricity() const
    {
        return m_e2;
    }
    /// (a - b) / (a + b).
    double ThirdFlattening() const
    {
        return m_n;
    }

    /// e * atanh(e * sin(latitude)), by which the isometric latitude is less than on the sphere.
    double Bend(double sinLat) const
    {
        return m_e * std::atanh(m_e * sinLat);
    }

    /// Radius of the parallel.
    double ParallelRadius(double sinLat, double cosLat) const
    {
        return cosLat / std::sqrt(1 - m_e2 * sinLat * sinLat);
    }

    /// Tangent of half the conformal latitude's distance from the north pole; 0 exactly at 90 degrees.
    double HalfPolarTangent(double lat) const
    {
        return std::tan((90 - lat) * (kRadian / 2)) * std::exp(Bend(std::sin(lat * kRadian)));
    }

    /// Latitude in degrees of a half polar tangent from 0 to anything.
    double LatitudeOfHalfTangent(double tangent) const;

    /// Isometric latitude: y of the normal Mercator projection.
    double Isometric(double lat) const
    {
        return std::asinh(std::tan(lat * kRadian)) - Bend(std::sin(lat * kRadian));
    }

    /// Latitude in degrees of an isometric latitude.
    double LatitudeOfIsometric(double isometric) const;

    /// Tangent of the conformal latitude, from the tangent of the latitude.
    double ConformalTangent(double tangent) const;

    /// Latitude in degrees, from sine and cosine of the conformal latitude.
    double LatitudeOfConformal(double sine, double cosine) const;

private:
    double m_e2;
    double m_e;
    double m_n;
    std::array<double, 6> m_fromConformal;
};
} // namespace vorn::projections
