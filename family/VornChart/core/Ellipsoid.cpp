#include "family/VornChart/core/Ellipsoid.h"

namespace vorn::projections
{
namespace
{
/// Coefficients of the series from the conformal to the geographic latitude, in powers of the third flattening
/// (L. Krüger, Konforme Abbildung des Erdellipsoids in der Ebene, 1912, continued to the sixth power).
std::array<double, 6> FromConformal(double n)
{
    const double n2 = n * n;
    const double n3 = n2 * n;
    const double n4 = n3 * n;
    const double n5 = n4 * n;
    const double n6 = n5 * n;
    return {2 * n - 2.0 / 3 * n2 - 2 * n3 + 116.0 / 45 * n4 + 26.0 / 45 * n5 - 2854.0 / 675 * n6,
            7.0 / 3 * n2 - 8.0 / 5 * n3 - 227.0 / 45 * n4 + 2704.0 / 315 * n5 + 2323.0 / 945 * n6,
            56.0 / 15 * n3 - 136.0 / 35 * n4 - 1262.0 / 105 * n5 + 73814.0 / 2835 * n6,
            4279.0 / 630 * n4 - 332.0 / 35 * n5 - 399572.0 / 14175 * n6,
            4174.0 / 315 * n5 - 144838.0 / 6237 * n6,
            601676.0 / 22275 * n6};
}
} // namespace

double SineSeries(const std::array<double, 6>& coefficients, double sinTwice, double cosTwice)
{
    const double factor = 2 * cosTwice;
    double next = 0;
    double current = 0;
    for (auto j = coefficients.size(); j-- > 0;)
    {
        const double previous = factor * current - next + coefficients[j];
        next = current;
        current = previous;
    }
    return current * sinTwice;
}

Ellipsoid::Ellipsoid(double squaredEccentricity)
    : m_e2(squaredEccentricity), m_e(std::sqrt(squaredEccentricity)),
      m_n((1 - std::sqrt(1 - m_e2)) / (1 + std::sqrt(1 - m_e2))), m_fromConformal(FromConformal(m_n))
{
}

double Ellipsoid::LatitudeOfHalfTangent(double tangent) const
{
    const double square = tangent * tangent;
    if (std::isinf(square))
    {
        return -90;
    }
    return LatitudeOfConformal((1 - square) / (1 + square), 2 * tangent / (1 + square));
}

double Ellipsoid::LatitudeOfIsometric(double isometric) const
{
    return LatitudeOfConformal(std::tanh(isometric), 1 / std::cosh(isometric));
}

double Ellipsoid::ConformalTangent(double tangent) const
{
    const double secant = std::sqrt(1 + tangent * tangent);
    const double sigma = std::sinh(Bend(tangent / secant));
    return tangent * std::sqrt(1 + sigma * sigma) - sigma * secant;
}

double Ellipsoid::LatitudeOfConformal(double sine, double cosine) const
{
    const double series = SineSeries(m_fromConformal, 2 * sine * cosine, (cosine - sine) * (cosine + sine));
    return (std::atan2(sine, cosine) + series) / kRadian;
}
} // namespace vorn::projections
