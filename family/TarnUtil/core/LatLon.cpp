#include "family/TarnUtil/core/LatLon.h"

#include <GeographicLib/Geodesic.hpp>
#include <GeographicLib/GeodesicLine.hpp>

#include <cmath>

namespace
{

using GeographicLib::Geodesic;

constexpr double kMetresPerMile = 1852;

double Course(double azimuth, double metres)
{
    if (!(metres > 0))
    {
        return metres; // no way, no direction; and what is no number stays none
    }
    const double course = azimuth < 0 ? azimuth + 360 : azimuth;
    return course < 360 ? std::abs(course) : 0; // a tiny azimuth west of north would round up to the full circle
}

} // namespace

double LatLon::Turned(double lon)
{
    const double rest = std::remainder(lon, 360);
    return rest == -180 ? 180 : rest;
}

double LatLon::Distance(const LatLon& other) const
{
    double metres = 0;
    Geodesic::WGS84().Inverse(m_lat, m_lon, other.m_lat, other.m_lon, metres);
    return metres / kMetresPerMile;
}

double LatLon::Direction(const LatLon& other) const
{
    return vorn::LegBetween(*this, other).direction;
}

LatLon LatLon::EndPoint(double direction, double distance) const
{
    double lat = 0;
    double lon = 0;
    Geodesic::WGS84().Direct(m_lat, m_lon, direction, distance * kMetresPerMile, lat, lon);
    return {lat, lon};
}

namespace vorn
{

GeodesicLeg LegBetween(const LatLon& from, const LatLon& to)
{
    double metres = 0;
    double azimuth = 0;
    double arrival = 0;
    Geodesic::WGS84().Inverse(from.Lat(), from.Lon(), to.Lat(), to.Lon(), metres, azimuth, arrival);
    return {metres / kMetresPerMile, Course(azimuth, metres)};
}

void PointsAlong(const LatLon& from, double direction, double step, double carry, int count, LatLon* out)
{
    const auto line = Geodesic::WGS84().Line(from.Lat(), from.Lon(), direction,
                                             Geodesic::LATITUDE | Geodesic::LONGITUDE | Geodesic::DISTANCE_IN);
    for (int j = 1; j <= count; ++j)
    {
        double lat = 0;
        double lon = 0;
        line.Position((j * step - carry) * kMetresPerMile, lat, lon);
        *out++ = LatLon(lat, lon);
    }
}

} // namespace vorn
