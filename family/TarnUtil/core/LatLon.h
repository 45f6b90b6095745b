#pragma once

#include "family/TarnUtil/core/Export.h"

/// @file
/// Positions on the earth and the shortest ways between them.

/// A position in degrees on the WGS-84 ellipsoid, north and east positive. Latitudes are held within -90 and 90: what
/// lies beyond is cut. Longitudes are held in (-180, 180]: any other is turned by whole circles, so that equal
/// meridians compare equal. NaN stays NaN; an infinite longitude becomes NaN.
class TARNUTIL_API LatLon
{
public:
    /// 0 north, 0 east.
    LatLon() = default;
    LatLon(double lat, double lon) : m_lat(HeldLatitude(lat)), m_lon(HeldLongitude(lon))
    {
    }

    double Lat() const
    {
        return m_lat;
    }
    double Lon() const
    {
        return m_lon;
    }
    void SetLat(double lat)
    {
        m_lat = HeldLatitude(lat);
    }
    void SetLon(double lon)
    {
        m_lon = HeldLongitude(lon);
    }
    bool operator==(const LatLon& other) const = default;

    /// Length of the geodesic to `other` in nautical miles of 1852 m. NaN for a position that is no number.
    double Distance(const LatLon& other) const;
    /// True course in which the geodesic to `other` begins, in [0, 360). 0 for a distance of 0; at a pole the course is
    /// that of the meridian which the position's longitude names.
    double Direction(const LatLon& other) const;
    /// Where the geodesic in true course `direction` (degrees, any number) arrives after `distance` nautical miles;
    /// negative distances go backward. NaN in both coordinates when an argument is no finite number.
    LatLon EndPoint(double direction, double distance) const;

private:
    static double HeldLatitude(double lat)
    {
        return lat > 90 ? 90 : lat < -90 ? -90 : lat;
    }
    static double HeldLongitude(double lon)
    {
        return lon > -180 && lon <= 180 ? lon : Turned(lon);
    }
    static double Turned(double lon);

    double m_lat = 0;
    double m_lon = 0;
};

namespace vorn
{

/// The geodesic between two positions, as it begins.
struct GeodesicLeg
{
    double distance;  ///< nautical miles
    double direction; ///< true course at its start, [0, 360)
};

/// Distance and direction at once, for the time of one.
TARNUTIL_API GeodesicLeg LegBetween(const LatLon& from, const LatLon& to);

/// Fills out[j - 1] for j = 1 .. count with the end point from `from` in true course `direction` at the distance
/// j * step - carry (nautical miles). What the points of one line share is computed once.
TARNUTIL_API void PointsAlong(const LatLon& from, double direction, double step, double carry, int count, LatLon* out);

} // namespace vorn
