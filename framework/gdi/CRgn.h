#pragma once

/// @file
/// Regions: sets of pixels, combined like sets.
#include "framework/gdi/CGdiObject.h"

class CDC;

/// A region. Coordinates are pixels; right and bottom edges lie outside. Operations that return an int return
/// SIMPLEREGION, COMPLEXREGION, NULLREGION or ERROR.
class HOSTFRAMEWORK_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn();
    operator HRGN() const;

    /// See CGdiObject::FromHandle().
    static CRgn* PASCAL FromHandle(HRGN region);

    BOOL CreateRectRgn(int left, int top, int right, int bottom);
    BOOL CreateRectRgnIndirect(const RECT* rect);
    BOOL CreateEllipticRgn(int left, int top, int right, int bottom);
    BOOL CreateEllipticRgnIndirect(const RECT* rect);
    /// `mode` is ALTERNATE or WINDING.
    BOOL CreatePolygonRgn(const POINT* points, int count, int mode);
    BOOL CreatePolyPolygonRgn(const POINT* points, const int* polygonCounts, int polygonCount, int mode);
    BOOL CreateRoundRectRgn(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight);
    /// From the path of `dc`, which must be closed; the path is used up.
    BOOL CreateFromPath(CDC* dc);
    BOOL CreateFromData(const XFORM* transform, int size, const RGNDATA* data);

    void SetRectRgn(int left, int top, int right, int bottom);
    void SetRectRgn(const RECT* rect);
    /// Makes this region, which must exist, the combination (RGN_AND, RGN_OR, ...) of two others, either of
    /// which may be this one. `second` may be null with RGN_COPY.
    int CombineRgn(const CRgn* first, const CRgn* second, int mode);
    /// Makes this region, which must exist, a copy of `source`.
    int CopyRgn(const CRgn* source);
    BOOL EqualRgn(const CRgn* other) const;
    int OffsetRgn(int dx, int dy);
    int OffsetRgn(POINT offset);
    int GetRgnBox(RECT* box) const;
    BOOL PtInRegion(int x, int y) const;
    BOOL PtInRegion(POINT point) const;
    /// Whether any part of `rect` lies in the region.
    BOOL RectInRegion(const RECT* rect) const;
    /// @return bytes stored, or bytes needed when `data` is null; 0 on failure.
    int GetRegionData(RGNDATA* data, int size) const;
};
