#include "framework/gdi/CRgn.h"
#include "framework/gdi/GdiHelpers.h"

IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

namespace
{
HRGN RegionOf(const CRgn* region)
{
    return static_cast<HRGN>(vorn::HandleOf(region));
}
} // namespace

CRgn::CRgn() = default;

CRgn::operator HRGN() const
{
    return static_cast<HRGN>(m_hObject);
}

CRgn* PASCAL CRgn::FromHandle(HRGN region)
{
    return static_cast<CRgn*>(CGdiObject::FromHandle(region));
}

BOOL CRgn::CreateRectRgn(int left, int top, int right, int bottom)
{
    return Attach(::CreateRectRgn(left, top, right, bottom));
}

BOOL CRgn::CreateRectRgnIndirect(const RECT* rect)
{
    return rect ? Attach(::CreateRectRgnIndirect(rect)) : FALSE;
}

BOOL CRgn::CreateEllipticRgn(int left, int top, int right, int bottom)
{
    return Attach(::CreateEllipticRgn(left, top, right, bottom));
}

BOOL CRgn::CreateEllipticRgnIndirect(const RECT* rect)
{
    return rect ? Attach(::CreateEllipticRgnIndirect(rect)) : FALSE;
}

BOOL CRgn::CreatePolygonRgn(const POINT* points, int count, int mode)
{
    return Attach(::CreatePolygonRgn(points, count, mode));
}

BOOL CRgn::CreatePolyPolygonRgn(const POINT* points, const int* polygonCounts, int polygonCount, int mode)
{
    return Attach(::CreatePolyPolygonRgn(points, polygonCounts, polygonCount, mode));
}

BOOL CRgn::CreateRoundRectRgn(int left, int top, int right, int bottom, int ellipseWidth, int ellipseHeight)
{
    return Attach(::CreateRoundRectRgn(left, top, right, bottom, ellipseWidth, ellipseHeight));
}

BOOL CRgn::CreateFromPath(CDC* dc)
{
    return Attach(::PathToRegion(vorn::HandleOf(dc)));
}

BOOL CRgn::CreateFromData(const XFORM* transform, int size, const RGNDATA* data)
{
    return data && size >= 0 ? Attach(::ExtCreateRegion(transform, static_cast<DWORD>(size), data)) : FALSE;
}

void CRgn::SetRectRgn(int left, int top, int right, int bottom)
{
    ::SetRectRgn(*this, left, top, right, bottom);
}

void CRgn::SetRectRgn(const RECT* rect)
{
    SetRectRgn(rect->left, rect->top, rect->right, rect->bottom);
}

int CRgn::CombineRgn(const CRgn* first, const CRgn* second, int mode)
{
    return ::CombineRgn(*this, RegionOf(first), RegionOf(second), mode);
}

int CRgn::CopyRgn(const CRgn* source)
{
    return CombineRgn(source, nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(const CRgn* other) const
{
    return ::EqualRgn(*this, RegionOf(other));
}

int CRgn::OffsetRgn(int dx, int dy)
{
    return ::OffsetRgn(*this, dx, dy);
}

int CRgn::OffsetRgn(POINT offset)
{
    return OffsetRgn(offset.x, offset.y);
}

int CRgn::GetRgnBox(RECT* box) const
{
    return ::GetRgnBox(*this, box);
}

BOOL CRgn::PtInRegion(int x, int y) const
{
    return ::PtInRegion(*this, x, y);
}

BOOL CRgn::PtInRegion(POINT point) const
{
    return PtInRegion(point.x, point.y);
}

BOOL CRgn::RectInRegion(const RECT* rect) const
{
    return ::RectInRegion(*this, rect);
}

int CRgn::GetRegionData(RGNDATA* data, int size) const
{
    return static_cast<int>(::GetRegionData(*this, static_cast<DWORD>(size), data));
}
