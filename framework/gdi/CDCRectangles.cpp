#include "framework/gdi/CBrush.h"
#include "framework/gdi/CDC.h"
#include "framework/gdi/GdiHelpers.h"

namespace
{
HBRUSH BrushOf(const CBrush* brush)
{
    return static_cast<HBRUSH>(vorn::HandleOf(brush));
}
} // namespace

void CDC::FillRect(const RECT* rect, CBrush* brush)
{
    ::FillRect(m_hDC, rect, BrushOf(brush));
}

void CDC::FrameRect(const RECT* rect, CBrush* brush)
{
    ::FrameRect(m_hDC, rect, BrushOf(brush));
}

void CDC::InvertRect(const RECT* rect)
{
    ::InvertRect(m_hDC, rect);
}

void CDC::FillSolidRect(const RECT* rect, COLORREF color)
{
    const COLORREF former = ::SetBkColor(m_hDC, color);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
    ::SetBkColor(m_hDC, former);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF color)
{
    const RECT rect{x, y, x + cx, y + cy};
    FillSolidRect(&rect, color);
}

void CDC::Draw3dRect(const RECT* rect, COLORREF topLeft, COLORREF bottomRight)
{
    Draw3dRect(rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, topLeft, bottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight)
{
    if (cx <= 0 || cy <= 0)
        return;
    FillSolidRect(x, y, cx - 1, 1, topLeft);
    FillSolidRect(x, y, 1, cy - 1, topLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, bottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, bottomRight);
}

BOOL CDC::DrawEdge(LPRECT rect, UINT edge, UINT flags)
{
    return ::DrawEdge(m_hDC, rect, edge, flags);
}

BOOL CDC::DrawFrameControl(LPRECT rect, UINT type, UINT state)
{
    return ::DrawFrameControl(m_hDC, rect, type, state);
}

void CDC::DrawFocusRect(const RECT* rect)
{
    ::DrawFocusRect(m_hDC, rect);
}

BOOL CDC::DrawIcon(int x, int y, HICON icon)
{
    return ::DrawIcon(m_hDC, x, y, icon);
}

BOOL CDC::DrawIcon(POINT point, HICON icon)
{
    return DrawIcon(point.x, point.y, icon);
}
