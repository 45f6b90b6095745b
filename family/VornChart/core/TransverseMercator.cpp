#include "family/VornChart/core/TransverseMercator.h"

#include <complex>
#include <new>

namespace vorn::projections
{
namespace
{
constexpr double kFarthest = 1.3; // in the transverse Mercator of the sphere of radius 1: 59.5 degrees
constexpr int kSidePoints = 37;

constexpr ParameterRule kParameters[] = {{"Scale", 1, 0.01, 100}};
constexpr ProjectionFacts kFacts{
    PROJECTION_TRANSVERSE_MERCATOR, "Transverse Mercator", false, false, true, false, kParameters};

/// Karney (2011), equation 35, continued to the sixth power.
std::array<double, 6> ToMap(double n)
{
    const double n2 = n * n;
    const double n3 = n2 * n;
    const double n4 = n3 * n;
    const double n5 = n4 * n;
    const double n6 = n5 * n;
    return {n / 2 - 2.0 / 3 * n2 + 5.0 / 16 * n3 + 41.0 / 180 * n4 - 127.0 / 288 * n5 + 7891.0 / 37800 * n6,
            13.0 / 48 * n2 - 3.0 / 5 * n3 + 557.0 / 1440 * n4 + 281.0 / 630 * n5 - 1983433.0 / 1935360 * n6,
            61.0 / 240 * n3 - 103.0 / 140 * n4 + 15061.0 / 26880 * n5 + 167603.0 / 181440 * n6,
            49561.0 / 161280 * n4 - 179.0 / 168 * n5 + 6601661.0 / 7257600 * n6,
            34729.0 / 80640 * n5 - 3418889.0 / 1995840 * n6,
            212378941.0 / 319334400 * n6};
}

/// Equation 36, with the minus sign of its use.
std::array<double, 6> ToSphere(double n)
{
    const double n2 = n * n;
    const double n3 = n2 * n;
    const double n4 = n3 * n;
    const double n5 = n4 * n;
    const double n6 = n5 * n;
    return {-(n / 2 - 2.0 / 3 * n2 + 37.0 / 96 * n3 - 1.0 / 360 * n4 - 81.0 / 512 * n5 + 96199.0 / 604800 * n6),
            -(1.0 / 48 * n2 + 1.0 / 15 * n3 - 437.0 / 1440 * n4 + 46.0 / 105 * n5 - 1118711.0 / 3870720 * n6),
            -(17.0 / 480 * n3 - 37.0 / 840 * n4 - 209.0 / 4480 * n5 + 5569.0 / 90720 * n6),
            -(4397.0 / 161280 * n4 - 11.0 / 504 * n5 - 830251.0 / 7257600 * n6),
            -(4583.0 / 161280 * n5 - 108847.0 / 3991680 * n6),
            -(20648693.0 / 638668800 * n6)};
}

/// Equation 14: length of a radian of rectifying latitude.
double RectifyingRadius(double n)
{
    const double n2 = n * n;
    return (1 + n2 / 4 * (1 + n2 / 16 * (1 + n2 / 4))) / (1 + n);
}

/// A point of the transverse Mercator of the conformal sphere, with what the series need of it.
struct SpherePoint
{
    double north; ///< angle along the central meridian
    double east;
    double sin2North;
    double cos2North;
    double sinh2East;
    double cosh2East;
};

SpherePoint OnSphere(double conformalTangent, double deltaLon)
{
    const double s = std::sin(deltaLon);
    const double c = std::cos(deltaLon);
    const double h = std::sqrt(conformalTangent * conformalTangent + c * c);
    const double sinNorth = conformalTangent / h;
    const double cosNorth = c / h;
    const double sinhEast = s / h;
    return {std::atan2(conformalTangent, c),
            std::asinh(sinhEast),
            2 * sinNorth * cosNorth,
            (cosNorth - sinNorth) * (cosNorth + sinNorth),
            2 * sinhEast * std::sqrt(1 + sinhEast * sinhEast),
            1 + 2 * sinhEast * sinhEast};
}

SpherePoint WithFunctions(double north, double east)
{
    const double s = std::sin(north);
    const double c = std::cos(north);
    const double sh = std::sinh(east);
    return {north, east, 2 * s * c, (c - s) * (c + s), 2 * sh * std::sqrt(1 + sh * sh), 1 + 2 * sh * sh};
}

struct NorthEast
{
    double north;
    double east;
};

/// The sum of coefficients[j - 1] * sin(2 j (north + i east)), by Clenshaw's method with the real and the imaginary
/// part written out.
NorthEast ComplexSeries(const std::array<double, 6>& coefficients, const SpherePoint& at)
{
    const double factorRe = 2 * at.cos2North * at.cosh2East;
    const double factorIm = -2 * at.sin2North * at.sinh2East;
    double nextRe = 0;
    double nextIm = 0;
    double re = 0;
    double im = 0;
    for (auto j = coefficients.size(); j-- > 0;)
    {
        const double previousRe = factorRe * re - factorIm * im - nextRe + coefficients[j];
        const double previousIm = factorRe * im + factorIm * re - nextIm;
        nextRe = re;
        nextIm = im;
        re = previousRe;
        im = previousIm;
    }
    const double sineRe = at.sin2North * at.cosh2East;
    const double sineIm = at.cos2North * at.sinh2East;
    return {re * sineRe - im * sineIm, re * sineIm + im * sineRe};
}

/// How much the series stretches the map at a point: the magnitude of its derivative with that of the identity.
double SeriesStretch(const std::array<double, 6>& coefficients, const SpherePoint& at)
{
    std::complex<double> derivative = 1;
    for (std::size_t j = 1; j <= coefficients.size(); ++j)
    {
        const double multiple = 2 * static_cast<double>(j);
        derivative += multiple * coefficients[j - 1] * std::cos(multiple * std::complex(at.north, at.east));
    }
    return std::abs(derivative);
}
} // namespace

TransverseMercator::TransverseMercator(double squaredEccentricity)
    : BuiltInProjection(kFacts), m_ellipsoid(squaredEccentricity),
      m_unit(RectifyingRadius(m_ellipsoid.ThirdFlattening())), m_toMap(ToMap(m_ellipsoid.ThirdFlattening())),
      m_toSphere(ToSphere(m_ellipsoid.ThirdFlattening()))
{
    Refresh();
}

Projection* TransverseMercator::Clone() const
{
    return new (std::nothrow) TransverseMercator(*this); // the interface hands it to its caller
}

bool TransverseMercator::Prepare()
{
    m_scale = m_unit * Parameter(0);
    return true;
}

bool TransverseMercator::Forward(double lat, double deltaLon, MapPoint& point) const
{
    const SpherePoint at = OnSphere(m_ellipsoid.ConformalTangent(std::tan(lat * kRadian)), deltaLon * kRadian);
    if (!(std::abs(at.east) <= kFarthest))
    {
        return false;
    }
    const NorthEast series = ComplexSeries(m_toMap, at);
    point = {m_scale * (at.east + series.east), m_scale * (at.north + series.north)};
    return true;
}

bool TransverseMercator::Inverse(const MapPoint& point, double& lat, double& deltaLon) const
{
    const double mapNorth = point.y / m_scale;
    const double mapEast = point.x / m_scale;
    if (!(std::abs(mapNorth) <= 4) || !(std::abs(mapEast) <= 2)) // both lie well outside of the map
    {
        return false;
    }
    const NorthEast series = ComplexSeries(m_toSphere, WithFunctions(mapNorth, mapEast));
    double north = mapNorth + series.north;
    double east = mapEast + series.east;
    if (!HoldWithin(north, std::numbers::pi) || !HoldWithin(east, kFarthest))
    {
        return false;
    }
    const double across = std::cos(north);
    const double sinhEast = std::sinh(east);
    const double reach = std::sqrt(1 + sinhEast * sinhEast);
    lat = m_ellipsoid.LatitudeOfConformal(std::sin(north) / reach,
                                          std::sqrt(sinhEast * sinhEast + across * across) / reach);
    deltaLon = std::atan2(sinhEast, across) / kRadian;
    return true;
}

/// Karney (2011), equations 25 and 27.
double TransverseMercator::Scale(double lat, double deltaLon) const
{
    const double tangent = std::tan(lat * kRadian);
    const double conformal = m_ellipsoid.ConformalTangent(tangent);
    const SpherePoint at = OnSphere(conformal, deltaLon * kRadian);
    const double sine = std::sin(lat * kRadian);
    const double onSphere = std::sqrt(1 - m_ellipsoid.SquaredEccentricity() * sine * sine) * std::hypot(1, tangent) /
                            std::hypot(conformal, std::cos(deltaLon * kRadian));
    return m_scale * onSphere * SeriesStretch(m_toMap, at);
}

int TransverseMercator::OutlineCount() const
{
    return 2 * kSidePoints;
}

/// Up along the eastern limit and down along the western one.
MapPoint TransverseMercator::Outline(int index) const
{
    const bool isWest = index >= kSidePoints;
    const int step = isWest ? 2 * kSidePoints - 1 - index : index;
    const double north = std::numbers::pi * (2.0 * step / (kSidePoints - 1) - 1);
    const SpherePoint at = WithFunctions(north, isWest ? -kFarthest : kFarthest);
    const NorthEast series = ComplexSeries(m_toMap, at);
    return {m_scale * (at.east + series.east), m_scale * (at.north + series.north)};
}
} // namespace vorn::projections
