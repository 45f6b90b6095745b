#include "framework/core/Geometry.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <utility>

using vorn::WrapAdd;
using vorn::WrapSubtract;

static_assert(sizeof(CPoint) == sizeof(POINT) && offsetof(RECT, right) == 2 * sizeof(LONG));

namespace
{
bool IsEmpty(const RECT& rect)
{
    return rect.left >= rect.right || rect.top >= rect.bottom;
}

LONG MulDivRounded(LONG value, int multiplier, int divisor)
{
    if (divisor == 0)
    {
        return -1;
    }
    const long long product = static_cast<long long>(value) * multiplier;
    const long long half = std::llabs(static_cast<long long>(divisor)) / 2;
    const long long result = (product + (product < 0 ? -half : half)) / divisor;
    const bool fits = result >= std::numeric_limits<LONG>::min() && result <= std::numeric_limits<LONG>::max();
    return fits ? static_cast<LONG>(result) : -1;
}
} // namespace

CRect::CRect(POINT point, SIZE size) noexcept
    : RECT{point.x, point.y, WrapAdd(point.x, size.cx), WrapAdd(point.y, size.cy)}
{
}

CPoint& CRect::TopLeft() noexcept
{
    return *reinterpret_cast<CPoint*>(&left);
}

CPoint& CRect::BottomRight() noexcept
{
    return *reinterpret_cast<CPoint*>(&right);
}

const CPoint& CRect::TopLeft() const noexcept
{
    return *reinterpret_cast<const CPoint*>(&left);
}

const CPoint& CRect::BottomRight() const noexcept
{
    return *reinterpret_cast<const CPoint*>(&right);
}

CPoint CRect::CenterPoint() const noexcept
{
    return CPoint(static_cast<int>((static_cast<long long>(left) + right) / 2),
                  static_cast<int>((static_cast<long long>(top) + bottom) / 2));
}

void CRect::SwapLeftRight() noexcept
{
    SwapLeftRight(this);
}

void CRect::SwapLeftRight(RECT* lpRect) noexcept
{
    std::swap(lpRect->left, lpRect->right);
}

BOOL CRect::IsRectEmpty() const noexcept
{
    return IsEmpty(*this) ? TRUE : FALSE;
}

BOOL CRect::IsRectNull() const noexcept
{
    return left == 0 && top == 0 && right == 0 && bottom == 0;
}

BOOL CRect::PtInRect(POINT point) const noexcept
{
    return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
}

void CRect::SetRect(int x1, int y1, int x2, int y2) noexcept
{
    *this = CRect(x1, y1, x2, y2);
}

void CRect::SetRect(POINT topLeft, POINT bottomRight) noexcept
{
    *this = CRect(topLeft, bottomRight);
}

void CRect::SetRectEmpty() noexcept
{
    *this = CRect();
}

void CRect::CopyRect(const RECT* lpSrcRect) noexcept
{
    *this = *lpSrcRect;
}

BOOL CRect::EqualRect(const RECT* lpRect) const noexcept
{
    return left == lpRect->left && top == lpRect->top && right == lpRect->right && bottom == lpRect->bottom;
}

void CRect::operator=(const RECT& srcRect) noexcept
{
    static_cast<RECT&>(*this) = srcRect;
}

// --- Growing, shrinking, moving ---

void CRect::InflateRect(int x, int y) noexcept
{
    InflateRect(x, y, x, y);
}

void CRect::InflateRect(SIZE size) noexcept
{
    InflateRect(size.cx, size.cy);
}

void CRect::InflateRect(const RECT* lpRect) noexcept
{
    InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

void CRect::InflateRect(int l, int t, int r, int b) noexcept
{
    SetRect(WrapSubtract(left, l), WrapSubtract(top, t), WrapAdd(right, r), WrapAdd(bottom, b));
}

void CRect::DeflateRect(int x, int y) noexcept
{
    DeflateRect(x, y, x, y);
}

void CRect::DeflateRect(SIZE size) noexcept
{
    DeflateRect(size.cx, size.cy);
}

void CRect::DeflateRect(const RECT* lpRect) noexcept
{
    DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
}

void CRect::DeflateRect(int l, int t, int r, int b) noexcept
{
    SetRect(WrapAdd(left, l), WrapAdd(top, t), WrapSubtract(right, r), WrapSubtract(bottom, b));
}

void CRect::OffsetRect(int x, int y) noexcept
{
    SetRect(WrapAdd(left, x), WrapAdd(top, y), WrapAdd(right, x), WrapAdd(bottom, y));
}

void CRect::OffsetRect(SIZE size) noexcept
{
    OffsetRect(size.cx, size.cy);
}

void CRect::OffsetRect(POINT point) noexcept
{
    OffsetRect(point.x, point.y);
}

void CRect::NormalizeRect() noexcept
{
    SetRect(std::min(left, right), std::min(top, bottom), std::max(left, right), std::max(top, bottom));
}

void CRect::MoveToY(int y) noexcept
{
    OffsetRect(0, WrapSubtract(y, top));
}

void CRect::MoveToX(int x) noexcept
{
    OffsetRect(WrapSubtract(x, left), 0);
}

void CRect::MoveToXY(int x, int y) noexcept
{
    MoveToX(x);
    MoveToY(y);
}

void CRect::MoveToXY(POINT point) noexcept
{
    MoveToXY(point.x, point.y);
}

// --- Set operations ---

BOOL CRect::IntersectRect(const RECT* lpRect1, const RECT* lpRect2) noexcept
{
    const CRect common(std::max(lpRect1->left, lpRect2->left), std::max(lpRect1->top, lpRect2->top),
                       std::min(lpRect1->right, lpRect2->right), std::min(lpRect1->bottom, lpRect2->bottom));
    const bool isEmpty = IsEmpty(*lpRect1) || IsEmpty(*lpRect2) || IsEmpty(common);
    *this = isEmpty ? CRect() : common;
    return isEmpty ? FALSE : TRUE;
}

BOOL CRect::UnionRect(const RECT* lpRect1, const RECT* lpRect2) noexcept
{
    const RECT first = *lpRect1;
    const RECT second = *lpRect2;
    if (IsEmpty(first) || IsEmpty(second))
    {
        const CRect only = IsEmpty(first) ? (IsEmpty(second) ? CRect() : CRect(second)) : CRect(first);
        *this = only;
        return !only.IsRectEmpty();
    }
    SetRect(std::min(first.left, second.left), std::min(first.top, second.top), std::max(first.right, second.right),
            std::max(first.bottom, second.bottom));
    return TRUE;
}

BOOL CRect::SubtractRect(const RECT* lpRectSrc1, const RECT* lpRectSrc2) noexcept
{
    CRect rest(*lpRectSrc1);
    CRect common;
    if (IsEmpty(rest))
    {
        SetRectEmpty();
        return FALSE;
    }
    if (common.IntersectRect(lpRectSrc1, lpRectSrc2))
    {
        if (common.EqualRect(rest))
        {
            rest.SetRectEmpty();
        }
        else if (common.top == rest.top && common.bottom == rest.bottom)
        {
            if (common.left == rest.left)
            {
                rest.left = common.right;
            }
            else if (common.right == rest.right)
            {
                rest.right = common.left;
            }
        }
        else if (common.left == rest.left && common.right == rest.right)
        {
            if (common.top == rest.top)
            {
                rest.top = common.bottom;
            }
            else if (common.bottom == rest.bottom)
            {
                rest.bottom = common.top;
            }
        }
    }
    *this = rest;
    return !IsEmpty(rest);
}

// --- Operators ---

void CRect::operator+=(POINT point) noexcept
{
    OffsetRect(point);
}

void CRect::operator+=(SIZE size) noexcept
{
    OffsetRect(size);
}

void CRect::operator+=(const RECT* lpRect) noexcept
{
    InflateRect(lpRect);
}

void CRect::operator-=(POINT point) noexcept
{
    OffsetRect(-CPoint(point));
}

void CRect::operator-=(SIZE size) noexcept
{
    OffsetRect(-CSize(size));
}

void CRect::operator-=(const RECT* lpRect) noexcept
{
    DeflateRect(lpRect);
}

void CRect::operator&=(const RECT& rect) noexcept
{
    IntersectRect(this, &rect);
}

void CRect::operator|=(const RECT& rect) noexcept
{
    UnionRect(this, &rect);
}

CRect CRect::operator+(POINT point) const noexcept
{
    CRect result(*this);
    result += point;
    return result;
}

CRect CRect::operator-(POINT point) const noexcept
{
    CRect result(*this);
    result -= point;
    return result;
}

CRect CRect::operator+(SIZE size) const noexcept
{
    CRect result(*this);
    result += size;
    return result;
}

CRect CRect::operator-(SIZE size) const noexcept
{
    CRect result(*this);
    result -= size;
    return result;
}

CRect CRect::operator+(const RECT* lpRect) const noexcept
{
    CRect result(*this);
    result += lpRect;
    return result;
}

CRect CRect::operator-(const RECT* lpRect) const noexcept
{
    CRect result(*this);
    result -= lpRect;
    return result;
}

CRect CRect::operator&(const RECT& rect) const noexcept
{
    CRect result;
    result.IntersectRect(this, &rect);
    return result;
}

CRect CRect::operator|(const RECT& rect) const noexcept
{
    CRect result;
    result.UnionRect(this, &rect);
    return result;
}

CRect CRect::MulDiv(int nMultiplier, int nDivisor) const noexcept
{
    return CRect(MulDivRounded(left, nMultiplier, nDivisor), MulDivRounded(top, nMultiplier, nDivisor),
                 MulDivRounded(right, nMultiplier, nDivisor), MulDivRounded(bottom, nMultiplier, nDivisor));
}
