#pragma once

#include "family/VornChart/core/Export.h"

/// @file
/// Map projections: from positions to map coordinates and back.

/// The projections that the library itself brings, as Projection::CreateProjection() numbers them.
enum ProjectionKind : int
{
    PROJECTION_EQUIDISTANT_CYLINDRICAL = 0, ///< sphere; parameter: true-scale latitude (0)
    PROJECTION_MERCATOR = 1,                ///< WGS-84; parameter: true-scale latitude (0)
    PROJECTION_LAMBERT_CONFORMAL = 2,       ///< WGS-84; parameters: the two standard parallels (33, 45)
    PROJECTION_POLAR_STEREOGRAPHIC = 3,     ///< WGS-84; parameter: true-scale latitude (90), its sign does not matter
    PROJECTION_TRANSVERSE_MERCATOR = 4,     ///< WGS-84; parameter: scale along the central meridian (1)
    PROJECTION_ORTHOGRAPHIC = 5,            ///< sphere; no parameter
    PROJECTION_BUILT_IN_COUNT = 6
};

/// A map projection with its state. Positions are geographic, in degrees, north and east positive. Map coordinates are
/// in Earth radii (the WGS-84 semi-major axis, 6378137 m) at scale 1, x to the right and y up.
///
/// Two positions belong to a projection. The *map pole* is what it is built around: the origin of map coordinates,
/// its longitude being the meridian that points straight up there (the polar stereographic's origin is the pole of the
/// map pole's hemisphere, its longitude the meridian that points straight down in the north, up in the south). The
/// *centre* is what the map is looked at around. SetMapPole() sets both. PanTo() moves the centre over the same map;
/// only a globe (Is3D()) turns, so that its map pole goes along.
///
/// The map is cut along the meridian opposite to the map pole's. Longitudes may be any number of degrees; those that
/// come back are in (-180, 180].
///
/// Operations that can refuse return false, and then leave their results and the projection as they were. NaN and
/// infinities are always refused. Used from one thread at a time.
///
/// The order of the virtual operations is part of the interface.
class VORNCHART_API Projection
{
public:
    /// A new built-in projection with the map pole at 0, 0, which the caller deletes; null for any other number.
    static Projection* CreateProjection(int index);

    virtual ~Projection();

    /// Makes the projection ready after it was made. False when it refuses to work.
    virtual bool Init();

    /// Display name, never null.
    virtual const char* QueryProjectionName() const = 0;

    /// Moves the whole state (map pole, centre, skew, parameters) to or from a buffer and advances @p cursor and
    /// @p remaining by each field. @return false when the buffer is too short or holds no state of such a projection.
    virtual bool ReadWrite(char*& cursor, unsigned long& remaining, bool read) = 0;

    virtual void GetCenterLatLon(double& lat, double& lon) const = 0;

    /// Turns map coordinates clockwise around the origin by the skew; UnSkew() turns them back. LLtoXY() and XYtoLL()
    /// know nothing of the skew.
    virtual void Skew(double& x, double& y) const = 0;
    virtual void UnSkew(double& x, double& y) const = 0;

    /// Degrees clockwise, in (-180, 180]. OffsetSkew() adds to it.
    virtual double GetSkew() const = 0;
    virtual void SetSkew(double degrees) = 0;
    virtual void OffsetSkew(double degrees) = 0;

    /// False for a latitude beyond 90 degrees and for a position that the map does not show.
    virtual bool LLtoXY(double lat, double lon, double& x, double& y) const = 0;

    /// False for a point outside of the map.
    virtual bool XYtoLL(double x, double y, double& lat, double& lon) const = 0;

    /// A copy with the same state, which the caller deletes; null when there can be none.
    virtual Projection* Clone() const = 0;

    /// The rectangle around the part of the map that is worth drawing, without the skew.
    virtual void MinMaxMapXY(double& minX, double& minY, double& maxX, double& maxY) const = 0;

    /// False where the projection cannot be built around the position.
    virtual bool SetMapPole(double lat, double lon) = 0;

    /// False for a position that the map does not show.
    virtual bool PanTo(double lat, double lon) = 0;

    /// Map coordinates of the centre.
    virtual bool CenterMapXY(double& x, double& y) const = 0;

    /// Whether meridians are upright parallel lines.
    virtual bool IsCylindrical() const = 0;
    virtual bool IsConic() const = 0;
    virtual bool IsConformal() const = 0;
    virtual bool IsZoomable() const = 0;

    /// Whether the map looks like a globe.
    virtual bool Is3D() const = 0;

    /// Parameters count from 0. There is no name ("") and the value 0 where there is no parameter.
    virtual int NumParams() const = 0;
    virtual const char* ParamName(int index) const = 0;
    virtual double GetParamValue(int index) const = 0;
    virtual bool SetParamValue(int index, double value) = 0;

    /// What lies behind the map, as a COLORREF.
    virtual unsigned long BackgroundColor() const = 0;

    /// The outline of the part of the map that is worth drawing: a polygon without a doubled last point.
    virtual int NMapLimitPts() const = 0;
    virtual bool MapLimitPt(int index, double& x, double& y) const = 0;

    /// Scale along the parallel at a position (the same in all directions when conformal), 0 where there is no map.
    virtual double ScaleMult(double lat, double lon) const = 0;

    /// ScaleMult() - 1.
    virtual double ScaleError(double lat, double lon) const = 0;

protected:
    Projection() = default;
    Projection(const Projection&) = default;
    Projection& operator=(const Projection&) = default;
};
