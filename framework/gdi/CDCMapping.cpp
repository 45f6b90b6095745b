#include "framework/gdi/CDC.h"
#include "framework/gdi/GdiHelpers.h"

using vorn::OnBoth;

int CDC::GetMapMode() const
{
    return ::GetMapMode(m_hAttribDC);
}

CPoint CDC::GetViewportOrg() const
{
    CPoint origin(0, 0);
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CSize CDC::GetViewportExt() const
{
    CSize extent(0, 0);
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CPoint CDC::GetWindowOrg() const
{
    CPoint origin(0, 0);
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CSize CDC::GetWindowExt() const
{
    CSize extent(0, 0);
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

int CDC::SetMapMode(int mode)
{
    return OnBoth(*this, ::SetMapMode, mode);
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint former(0, 0);
    OnBoth(*this, ::SetViewportOrgEx, x, y, &former);
    return former;
}

CPoint CDC::OffsetViewportOrg(int width, int height)
{
    CPoint former(0, 0);
    OnBoth(*this, ::OffsetViewportOrgEx, width, height, &former);
    return former;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    CSize former(0, 0);
    OnBoth(*this, ::SetViewportExtEx, cx, cy, &former);
    return former;
}

CSize CDC::ScaleViewportExt(int xNumerator, int xDenominator, int yNumerator, int yDenominator)
{
    CSize former(0, 0);
    OnBoth(*this, ::ScaleViewportExtEx, xNumerator, xDenominator, yNumerator, yDenominator, &former);
    return former;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint former(0, 0);
    OnBoth(*this, ::SetWindowOrgEx, x, y, &former);
    return former;
}

CPoint CDC::OffsetWindowOrg(int width, int height)
{
    CPoint former(0, 0);
    OnBoth(*this, ::OffsetWindowOrgEx, width, height, &former);
    return former;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    CSize former(0, 0);
    OnBoth(*this, ::SetWindowExtEx, cx, cy, &former);
    return former;
}

CSize CDC::ScaleWindowExt(int xNumerator, int xDenominator, int yNumerator, int yDenominator)
{
    CSize former(0, 0);
    OnBoth(*this, ::ScaleWindowExtEx, xNumerator, xDenominator, yNumerator, yDenominator, &former);
    return former;
}

CPoint CDC::SetViewportOrg(POINT point)
{
    return SetViewportOrg(point.x, point.y);
}

CSize CDC::SetViewportExt(SIZE size)
{
    return SetViewportExt(size.cx, size.cy);
}

CPoint CDC::SetWindowOrg(POINT point)
{
    return SetWindowOrg(point.x, point.y);
}

CSize CDC::SetWindowExt(SIZE size)
{
    return SetWindowExt(size.cx, size.cy);
}
