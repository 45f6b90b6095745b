#pragma once

/// @file
/// Points, sizes and rectangles. Sums beyond 32 bits wrap around, as the system's own functions do.
#include "framework/core/BaseTypes.h"
#include "framework/core/Export.h"

class CPoint;
class CRect;

namespace vorn
{
/// 32-bit sum and difference that wrap around instead of being undefined.
constexpr LONG WrapAdd(LONG first, LONG second) noexcept
{
    return static_cast<LONG>(static_cast<ULONG>(first) + static_cast<ULONG>(second));
}
constexpr LONG WrapSubtract(LONG first, LONG second) noexcept
{
    return static_cast<LONG>(static_cast<ULONG>(first) - static_cast<ULONG>(second));
}
} // namespace vorn

// The members are set in the bodies: the analyser does not see what braces give to a base.

/// A width and a height, or a displacement. Same layout as SIZE.
class HOSTFRAMEWORK_API CSize : public SIZE
{
public:
    CSize() noexcept
    {
        cx = 0;
        cy = 0;
    }
    CSize(int initCX, int initCY) noexcept
    {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE initSize) noexcept : SIZE(initSize)
    {
    }
    explicit CSize(POINT initPt) noexcept
    {
        cx = initPt.x;
        cy = initPt.y;
    }
    /// Width in the low, height in the high 16 bits, both signed.
    explicit CSize(DWORD dwSize) noexcept
    {
        cx = static_cast<SHORT>(dwSize & 0xFFFF);
        cy = static_cast<SHORT>(dwSize >> 16);
    }

    friend bool operator==(const CSize& first, const SIZE& second) noexcept
    {
        return first.cx == second.cx && first.cy == second.cy;
    }
    friend bool operator==(const CSize& first, const CSize& second) noexcept
    {
        return first == static_cast<const SIZE&>(second);
    }
    void operator+=(SIZE size) noexcept;
    void operator-=(SIZE size) noexcept;
    void SetSize(int width, int height) noexcept
    {
        cx = width;
        cy = height;
    }
    CSize operator+(SIZE size) const noexcept;
    CSize operator-(SIZE size) const noexcept;
    CSize operator-() const noexcept;
    CPoint operator+(POINT point) const noexcept;
    CPoint operator-(POINT point) const noexcept;
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// A place. Same layout as POINT.
class HOSTFRAMEWORK_API CPoint : public POINT
{
public:
    CPoint() noexcept
    {
        x = 0;
        y = 0;
    }
    CPoint(int initX, int initY) noexcept
    {
        x = initX;
        y = initY;
    }
    CPoint(POINT initPt) noexcept : POINT(initPt)
    {
    }
    explicit CPoint(SIZE initSize) noexcept
    {
        x = initSize.cx;
        y = initSize.cy;
    }
    /// x in the low, y in the high 16 bits, both signed (the form in which mouse messages carry a place).
    explicit CPoint(DWORD dwPoint) noexcept
    {
        x = static_cast<SHORT>(dwPoint & 0xFFFF);
        y = static_cast<SHORT>(dwPoint >> 16);
    }

    void Offset(int xOffset, int yOffset) noexcept;
    void Offset(POINT point) noexcept;
    void Offset(SIZE size) noexcept;
    void SetPoint(int newX, int newY) noexcept
    {
        x = newX;
        y = newY;
    }
    friend bool operator==(const CPoint& first, const POINT& second) noexcept
    {
        return first.x == second.x && first.y == second.y;
    }
    friend bool operator==(const CPoint& first, const CPoint& second) noexcept
    {
        return first == static_cast<const POINT&>(second);
    }
    void operator+=(SIZE size) noexcept;
    void operator-=(SIZE size) noexcept;
    void operator+=(POINT point) noexcept;
    void operator-=(POINT point) noexcept;
    CPoint operator+(SIZE size) const noexcept;
    CPoint operator-(SIZE size) const noexcept;
    CPoint operator-() const noexcept;
    CPoint operator+(POINT point) const noexcept;
    /// The way from `point` to this one.
    CSize operator-(POINT point) const noexcept;
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// A rectangle. Same layout as RECT. Right and bottom lie outside; a rectangle whose left exceeds its right or whose
/// top exceeds its bottom is not normalised, and set operations and PtInRect() expect a normalised one. Null rectangle
/// pointers are the caller's error.
class HOSTFRAMEWORK_API CRect : public RECT
{
public:
    CRect() noexcept
    {
        left = 0;
        top = 0;
        right = 0;
        bottom = 0;
    }
    CRect(int l, int t, int r, int b) noexcept
    {
        left = l;
        top = t;
        right = r;
        bottom = b;
    }
    CRect(const RECT& srcRect) noexcept : RECT(srcRect)
    {
    }
    CRect(const RECT* lpSrcRect) noexcept : RECT(*lpSrcRect)
    {
    }
    CRect(POINT point, SIZE size) noexcept;
    CRect(POINT topLeft, POINT bottomRight) noexcept
    {
        left = topLeft.x;
        top = topLeft.y;
        right = bottomRight.x;
        bottom = bottomRight.y;
    }

    int Width() const noexcept
    {
        return vorn::WrapSubtract(right, left);
    }
    int Height() const noexcept
    {
        return vorn::WrapSubtract(bottom, top);
    }
    CSize Size() const noexcept
    {
        return CSize(Width(), Height());
    }
    /// The corners themselves: they can be changed.
    CPoint& TopLeft() noexcept;
    CPoint& BottomRight() noexcept;
    const CPoint& TopLeft() const noexcept;
    const CPoint& BottomRight() const noexcept;
    /// The middle, rounded toward the top left corner for normalised rectangles.
    CPoint CenterPoint() const noexcept;
    void SwapLeftRight() noexcept;
    static void SwapLeftRight(RECT* lpRect) noexcept;

    operator RECT*() noexcept
    {
        return this;
    }
    operator const RECT*() const noexcept
    {
        return this;
    }

    /// No width or no height (also when not normalised).
    BOOL IsRectEmpty() const noexcept;
    /// All four coordinates 0.
    BOOL IsRectNull() const noexcept;
    /// Whether a point is inside; the left and top edges belong to the rectangle, the right and bottom ones do not.
    BOOL PtInRect(POINT point) const noexcept;
    void SetRect(int x1, int y1, int x2, int y2) noexcept;
    void SetRect(POINT topLeft, POINT bottomRight) noexcept;
    void SetRectEmpty() noexcept;
    void CopyRect(const RECT* lpSrcRect) noexcept;
    BOOL EqualRect(const RECT* lpRect) const noexcept;

    /// Moves the sides outward; negative values move them inward.
    void InflateRect(int x, int y) noexcept;
    void InflateRect(SIZE size) noexcept;
    void InflateRect(const RECT* lpRect) noexcept;
    void InflateRect(int l, int t, int r, int b) noexcept;
    /// Moves the sides inward.
    void DeflateRect(int x, int y) noexcept;
    void DeflateRect(SIZE size) noexcept;
    void DeflateRect(const RECT* lpRect) noexcept;
    void DeflateRect(int l, int t, int r, int b) noexcept;

    void OffsetRect(int x, int y) noexcept;
    void OffsetRect(SIZE size) noexcept;
    void OffsetRect(POINT point) noexcept;
    void NormalizeRect() noexcept;
    void MoveToY(int y) noexcept;
    void MoveToX(int x) noexcept;
    void MoveToXY(int x, int y) noexcept;
    void MoveToXY(POINT point) noexcept;

    /// What both have in common; FALSE and the null rectangle when that is empty.
    BOOL IntersectRect(const RECT* lpRect1, const RECT* lpRect2) noexcept;
    /// The smallest rectangle that holds both; an empty one does not count. FALSE when both are empty.
    BOOL UnionRect(const RECT* lpRect1, const RECT* lpRect2) noexcept;
    /// The first without the second, where the rest is a rectangle; otherwise the first. FALSE when nothing is left.
    BOOL SubtractRect(const RECT* lpRectSrc1, const RECT* lpRectSrc2) noexcept;

    void operator=(const RECT& srcRect) noexcept;
    friend bool operator==(const CRect& first, const RECT& second) noexcept
    {
        return first.EqualRect(&second) != FALSE;
    }
    friend bool operator==(const CRect& first, const CRect& second) noexcept
    {
        return first == static_cast<const RECT&>(second);
    }
    void operator+=(POINT point) noexcept;
    void operator+=(SIZE size) noexcept;
    void operator+=(const RECT* lpRect) noexcept;
    void operator-=(POINT point) noexcept;
    void operator-=(SIZE size) noexcept;
    void operator-=(const RECT* lpRect) noexcept;
    void operator&=(const RECT& rect) noexcept;
    void operator|=(const RECT& rect) noexcept;
    CRect operator+(POINT point) const noexcept;
    CRect operator-(POINT point) const noexcept;
    CRect operator+(SIZE size) const noexcept;
    CRect operator-(SIZE size) const noexcept;
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
    CRect operator&(const RECT& rect) const noexcept;
    CRect operator|(const RECT& rect) const noexcept;
    /// Each coordinate times nMultiplier / nDivisor, the product in 64 bits, rounded to nearest (halves away from 0);
    /// -1 for a divisor of 0 or a result beyond 32 bits.
    CRect MulDiv(int nMultiplier, int nDivisor) const noexcept;
};
