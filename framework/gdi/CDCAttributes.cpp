#include "framework/gdi/CDC.h"
#include "framework/gdi/GdiHelpers.h"

using vorn::OnBoth;

COLORREF CDC::GetBkColor() const
{
    return ::GetBkColor(m_hAttribDC);
}

int CDC::GetBkMode() const
{
    return ::GetBkMode(m_hAttribDC);
}

int CDC::GetPolyFillMode() const
{
    return ::GetPolyFillMode(m_hAttribDC);
}

int CDC::GetROP2() const
{
    return ::GetROP2(m_hAttribDC);
}

int CDC::GetStretchBltMode() const
{
    return ::GetStretchBltMode(m_hAttribDC);
}

COLORREF CDC::GetTextColor() const
{
    return ::GetTextColor(m_hAttribDC);
}

COLORREF CDC::GetDCBrushColor() const
{
    return ::GetDCBrushColor(m_hAttribDC);
}

COLORREF CDC::GetDCPenColor() const
{
    return ::GetDCPenColor(m_hAttribDC);
}

COLORREF CDC::SetBkColor(COLORREF color)
{
    return OnBoth(*this, ::SetBkColor, color);
}

int CDC::SetBkMode(int mode)
{
    return OnBoth(*this, ::SetBkMode, mode);
}

int CDC::SetPolyFillMode(int mode)
{
    return OnBoth(*this, ::SetPolyFillMode, mode);
}

int CDC::SetROP2(int mode)
{
    return OnBoth(*this, ::SetROP2, mode);
}

int CDC::SetStretchBltMode(int mode)
{
    return OnBoth(*this, ::SetStretchBltMode, mode);
}

COLORREF CDC::SetTextColor(COLORREF color)
{
    return OnBoth(*this, ::SetTextColor, color);
}

COLORREF CDC::SetDCBrushColor(COLORREF color)
{
    return OnBoth(*this, ::SetDCBrushColor, color);
}

COLORREF CDC::SetDCPenColor(COLORREF color)
{
    return OnBoth(*this, ::SetDCPenColor, color);
}

BOOL CDC::GetColorAdjustment(LPCOLORADJUSTMENT adjustment) const
{
    return ::GetColorAdjustment(m_hAttribDC, adjustment);
}

BOOL CDC::SetColorAdjustment(const COLORADJUSTMENT* adjustment)
{
    return OnBoth(*this, ::SetColorAdjustment, adjustment);
}

int CDC::GetGraphicsMode() const
{
    return ::GetGraphicsMode(m_hAttribDC);
}

int CDC::SetGraphicsMode(int mode)
{
    return OnBoth(*this, ::SetGraphicsMode, mode);
}

BOOL CDC::GetWorldTransform(XFORM& transform) const
{
    return ::GetWorldTransform(m_hAttribDC, &transform);
}

BOOL CDC::SetWorldTransform(const XFORM& transform)
{
    return OnBoth(*this, ::SetWorldTransform, &transform);
}

BOOL CDC::ModifyWorldTransform(const XFORM& transform, DWORD mode)
{
    return OnBoth(*this, ::ModifyWorldTransform, &transform, mode);
}

DWORD CDC::GetLayout() const
{
    return ::GetLayout(m_hAttribDC);
}

DWORD CDC::SetLayout(DWORD layout)
{
    return OnBoth(*this, ::SetLayout, layout);
}
