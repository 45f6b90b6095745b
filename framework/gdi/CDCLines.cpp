#include "framework/gdi/CDC.h"
#include "framework/gdi/GdiHelpers.h"

using vorn::OnBoth;

namespace
{
/// Moves the attribute context's position to where output has arrived.
BOOL FollowPosition(const CDC& dc, BOOL drawn)
{
    POINT position;
    if (dc.m_hAttribDC && dc.m_hAttribDC != dc.m_hDC && ::GetCurrentPositionEx(dc.m_hDC, &position))
        ::MoveToEx(dc.m_hAttribDC, position.x, position.y, nullptr);
    return drawn;
}
} // namespace

CPoint CDC::GetCurrentPosition() const
{
    CPoint position(0, 0);
    ::GetCurrentPositionEx(m_hAttribDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint former(0, 0);
    OnBoth(*this, ::MoveToEx, x, y, &former);
    return former;
}

CPoint CDC::MoveTo(POINT point)
{
    return MoveTo(point.x, point.y);
}

BOOL CDC::LineTo(int x, int y)
{
    if (m_hAttribDC && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);
    return ::LineTo(m_hDC, x, y);
}

BOOL CDC::LineTo(POINT point)
{
    return LineTo(point.x, point.y);
}

BOOL CDC::Arc(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd, int yEnd)
{
    return ::Arc(m_hDC, left, top, right, bottom, xStart, yStart, xEnd, yEnd);
}

BOOL CDC::Arc(const RECT* rect, POINT start, POINT end)
{
    return Arc(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::ArcTo(int left, int top, int right, int bottom, int xStart, int yStart, int xEnd, int yEnd)
{
    return FollowPosition(*this, ::ArcTo(m_hDC, left, top, right, bottom, xStart, yStart, xEnd, yEnd));
}

BOOL CDC::ArcTo(const RECT* rect, POINT start, POINT end)
{
    return ArcTo(rect->left, rect->top, rect->right, rect->bottom, start.x, start.y, end.x, end.y);
}

BOOL CDC::AngleArc(int x, int y, int radius, float startAngle, float sweepAngle)
{
    if (radius < 0)
        return FALSE;
    return FollowPosition(*this, ::AngleArc(m_hDC, x, y, static_cast<DWORD>(radius), startAngle, sweepAngle));
}

int CDC::GetArcDirection() const
{
    return ::GetArcDirection(m_hAttribDC);
}

int CDC::SetArcDirection(int direction)
{
    return OnBoth(*this, ::SetArcDirection, direction);
}

BOOL CDC::Polyline(const POINT* points, int count)
{
    return ::Polyline(m_hDC, points, count);
}

BOOL CDC::PolylineTo(const POINT* points, int count)
{
    if (count < 0)
        return FALSE;
    return FollowPosition(*this, ::PolylineTo(m_hDC, points, static_cast<DWORD>(count)));
}

BOOL CDC::PolyPolyline(const POINT* points, const DWORD* polylineCounts, int polylineCount)
{
    if (polylineCount < 0)
        return FALSE;
    return ::PolyPolyline(m_hDC, points, polylineCounts, static_cast<DWORD>(polylineCount));
}

BOOL CDC::PolyDraw(const POINT* points, const BYTE* types, int count)
{
    return FollowPosition(*this, ::PolyDraw(m_hDC, points, types, count));
}

BOOL CDC::PolyBezier(const POINT* points, int count)
{
    return count < 0 ? FALSE : ::PolyBezier(m_hDC, points, static_cast<DWORD>(count));
}

BOOL CDC::PolyBezierTo(const POINT* points, int count)
{
    if (count < 0)
        return FALSE;
    return FollowPosition(*this, ::PolyBezierTo(m_hDC, points, static_cast<DWORD>(count)));
}
