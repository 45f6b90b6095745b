#include "framework/core/Geometry.h"

#include <cstdlib>
#include <utility>

using vorn::WrapAdd;
using vorn::WrapSubtract;

// --- CSize ---

void CSize::operator+=(SIZE size) noexcept
{
    *this = *this + size;
}

void CSize::operator-=(SIZE size) noexcept
{
    *this = *this - size;
}

CSize CSize::operator+(SIZE size) const noexcept
{
    return CSize(WrapAdd(cx, size.cx), WrapAdd(cy, size.cy));
}

CSize CSize::operator-(SIZE size) const noexcept
{
    return CSize(WrapSubtract(cx, size.cx), WrapSubtract(cy, size.cy));
}

CSize CSize::operator-() const noexcept
{
    return CSize(WrapSubtract(0, cx), WrapSubtract(0, cy));
}

CPoint CSize::operator+(POINT point) const noexcept
{
    return CPoint(WrapAdd(cx, point.x), WrapAdd(cy, point.y));
}

CPoint CSize::operator-(POINT point) const noexcept
{
    return CPoint(WrapSubtract(cx, point.x), WrapSubtract(cy, point.y));
}

CRect CSize::operator+(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) + *this;
}

CRect CSize::operator-(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) - *this;
}

// --- CPoint ---

void CPoint::Offset(int xOffset, int yOffset) noexcept
{
    x = WrapAdd(x, xOffset);
    y = WrapAdd(y, yOffset);
}

void CPoint::Offset(POINT point) noexcept
{
    Offset(point.x, point.y);
}

void CPoint::Offset(SIZE size) noexcept
{
    Offset(size.cx, size.cy);
}

void CPoint::operator+=(SIZE size) noexcept
{
    Offset(size.cx, size.cy);
}

void CPoint::operator-=(SIZE size) noexcept
{
    *this = *this - size;
}

void CPoint::operator+=(POINT point) noexcept
{
    Offset(point.x, point.y);
}

void CPoint::operator-=(POINT point) noexcept
{
    *this = *this - CSize(point);
}

CPoint CPoint::operator+(SIZE size) const noexcept
{
    return CPoint(WrapAdd(x, size.cx), WrapAdd(y, size.cy));
}

CPoint CPoint::operator-(SIZE size) const noexcept
{
    return CPoint(WrapSubtract(x, size.cx), WrapSubtract(y, size.cy));
}

CPoint CPoint::operator-() const noexcept
{
    return CPoint(WrapSubtract(0, x), WrapSubtract(0, y));
}

CPoint CPoint::operator+(POINT point) const noexcept
{
    return CPoint(WrapAdd(x, point.x), WrapAdd(y, point.y));
}

CSize CPoint::operator-(POINT point) const noexcept
{
    return CSize(WrapSubtract(x, point.x), WrapSubtract(y, point.y));
}

CRect CPoint::operator+(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) + *this;
}

CRect CPoint::operator-(const RECT* lpRect) const noexcept
{
    return CRect(lpRect) - *this;
}
