#include "framework/gdi/CBrush.h"
#include "framework/gdi/CDC.h"
#include "framework/gdi/CRgn.h"
#include "framework/gdi/GdiHelpers.h"
#include "framework/window/CWnd.h"

using vorn::OnBoth;

namespace
{
HRGN RegionOf(const CRgn* region)
{
    return static_cast<HRGN>(vorn::HandleOf(region));
}

HBRUSH BrushOf(const CBrush* brush)
{
    return static_cast<HBRUSH>(vorn::HandleOf(brush));
}
} // namespace

BOOL CDC::FillRgn(CRgn* region, CBrush* brush)
{
    return ::FillRgn(m_hDC, RegionOf(region), BrushOf(brush));
}

BOOL CDC::FrameRgn(CRgn* region, CBrush* brush, int width, int height)
{
    return ::FrameRgn(m_hDC, RegionOf(region), BrushOf(brush), width, height);
}

BOOL CDC::InvertRgn(CRgn* region)
{
    return ::InvertRgn(m_hDC, RegionOf(region));
}

BOOL CDC::PaintRgn(CRgn* region)
{
    return ::PaintRgn(m_hDC, RegionOf(region));
}

int CDC::GetClipBox(LPRECT rect) const
{
    return ::GetClipBox(m_hDC, rect);
}

BOOL CDC::PtVisible(int x, int y) const
{
    return ::PtVisible(m_hDC, x, y);
}

BOOL CDC::PtVisible(POINT point) const
{
    return PtVisible(point.x, point.y);
}

BOOL CDC::RectVisible(const RECT* rect) const
{
    return ::RectVisible(m_hDC, rect);
}

int CDC::SelectClipRgn(CRgn* region)
{
    return OnBoth(*this, ::SelectClipRgn, RegionOf(region));
}

int CDC::SelectClipRgn(CRgn* region, int mode)
{
    return OnBoth(*this, ::ExtSelectClipRgn, RegionOf(region), mode);
}

int CDC::ExcludeClipRect(int left, int top, int right, int bottom)
{
    return OnBoth(*this, ::ExcludeClipRect, left, top, right, bottom);
}

int CDC::ExcludeClipRect(const RECT* rect)
{
    return ExcludeClipRect(rect->left, rect->top, rect->right, rect->bottom);
}

int CDC::ExcludeUpdateRgn(CWnd* window)
{
    return window ? ::ExcludeUpdateRgn(m_hDC, window->m_hWnd) : ERROR;
}

int CDC::IntersectClipRect(int left, int top, int right, int bottom)
{
    return OnBoth(*this, ::IntersectClipRect, left, top, right, bottom);
}

int CDC::IntersectClipRect(const RECT* rect)
{
    return IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom);
}

int CDC::OffsetClipRgn(int x, int y)
{
    return OnBoth(*this, ::OffsetClipRgn, x, y);
}

int CDC::OffsetClipRgn(SIZE size)
{
    return OffsetClipRgn(size.cx, size.cy);
}
