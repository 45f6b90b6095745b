#include "framework/bars/CControlBar.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/gdi/CBrush.h"
#include "framework/gdi/CPaintDC.h"
#include <algorithm>

namespace
{
constexpr LONG kAsLongAsPossible = 32767;

/// Takes a strip of `size` from the side of `rect` that the style names and returns it.
CRect TakeStrip(RECT& rect, DWORD style, CSize size)
{
    RECT strip = rect;
    if (style & CBRS_ORIENT_HORZ)
        strip.right = strip.left + size.cx;
    else
        strip.bottom = strip.top + size.cy;
    if (style & CBRS_ALIGN_TOP)
        strip.bottom = rect.top += size.cy;
    else if (style & CBRS_ALIGN_BOTTOM)
        strip.top = rect.bottom -= size.cy;
    else if (style & CBRS_ALIGN_LEFT)
        strip.right = rect.left += size.cx;
    else
        strip.left = rect.right -= size.cx;
    return strip;
}

/// Adds a strip to the total of a layout: strips along an edge add up across it.
void AddToTotal(SIZE& total, BOOL horizontal, CSize size)
{
    total.cx = horizontal ? std::max(total.cx, size.cx) : total.cx + size.cx;
    total.cy = horizontal ? total.cy + size.cy : std::max(total.cy, size.cy);
}

/// Moves a window in a layout, if it is not there yet and nothing else changes.
void PlaceWindow(AFX_SIZEPARENTPARAMS& layout, HWND window, const CRect& place, UINT showFlags)
{
    CRect present;
    ::GetWindowRect(window, &present);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&present), 2);
    if (!layout.hDWP || (present == place && !showFlags))
        return;
    layout.hDWP = ::DeferWindowPos(layout.hDWP, window, nullptr, place.left, place.top, place.Width(), place.Height(),
                                   SWP_NOACTIVATE | SWP_NOZORDER | showFlags);
}
} // namespace

BOOL CControlBar::IsVisible() const
{
    if (m_pending != Pending::None)
        return m_pending == Pending::Show;
    return (GetStyle() & WS_VISIBLE) != 0;
}

void CControlBar::DelayShow(BOOL show)
{
    const bool visible = (GetStyle() & WS_VISIBLE) != 0;
    m_pending = visible == (show != FALSE) ? Pending::None : show ? Pending::Show : Pending::Hide;
}

DWORD CControlBar::RecalcDelayShow(AFX_SIZEPARENTPARAMS* layout)
{
    // A query leaves the change for the layout that is carried out.
    if (layout && !layout->hDWP)
        return 0;
    const Pending pending = m_pending;
    m_pending = Pending::None;
    return pending == Pending::Show ? SWP_SHOWWINDOW : pending == Pending::Hide ? SWP_HIDEWINDOW : 0U;
}

CSize CControlBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    return CSize(stretch && horizontal ? kAsLongAsPossible : 0, stretch && !horizontal ? kAsLongAsPossible : 0);
}

CSize CControlBar::CalcDynamicLayout(int, DWORD mode)
{
    return CalcFixedLayout((mode & LM_STRETCH) != 0, (mode & LM_HORZ) != 0);
}

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam)
{
    auto& layout = *reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
    const bool visible = IsVisible() != FALSE;
    const UINT showFlags = RecalcDelayShow(&layout);
    CRect place;
    ::GetWindowRect(m_hWnd, &place);
    ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&place), 2);
    if (visible && (m_dwStyle & CBRS_ALIGN_ANY))
    {
        const BOOL horizontal = (m_dwStyle & CBRS_ORIENT_HORZ) != 0;
        const CSize available(std::max(0L, layout.rect.right - layout.rect.left),
                              std::max(0L, layout.rect.bottom - layout.rect.top));
        const DWORD mode = (layout.bStretch ? LM_STRETCH : 0U) | (horizontal ? LM_HORZ : 0U);
        CSize size = CalcDynamicLayout(-1, mode);
        size.cx = std::min(size.cx, available.cx);
        size.cy = std::min(size.cy, available.cy);
        AddToTotal(layout.sizeTotal, horizontal, size);
        place = TakeStrip(layout.rect, m_dwStyle, size);
    }
    PlaceWindow(layout, m_hWnd, place, showFlags);
    return 0;
}

void CControlBar::OnPaint()
{
    CPaintDC dc(this);
    if (IsWindowVisible())
        DoPaint(&dc);
}

void CControlBar::DoPaint(CDC* dc)
{
    CRect rect;
    GetClientRect(&rect);
    DrawBorders(dc, rect);
}

void CControlBar::DrawBorders(CDC* dc, CRect& rect)
{
    UINT sides = 0;
    sides |= m_dwStyle & CBRS_BORDER_LEFT ? BF_LEFT : 0U;
    sides |= m_dwStyle & CBRS_BORDER_TOP ? BF_TOP : 0U;
    sides |= m_dwStyle & CBRS_BORDER_RIGHT ? BF_RIGHT : 0U;
    sides |= m_dwStyle & CBRS_BORDER_BOTTOM ? BF_BOTTOM : 0U;
    if (sides)
        dc->DrawEdge(&rect, m_dwStyle & CBRS_BORDER_3D ? EDGE_ETCHED : BDR_SUNKENOUTER, sides | BF_ADJUST);
}

void CControlBar::CalcInsideRect(CRect& rect, BOOL) const
{
    rect.DeflateRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
}

HBRUSH CControlBar::OnCtlColor(CDC* dc, CWnd* window, UINT type)
{
    LRESULT result = 0;
    if (window && window->SendChildNotifyLastMsg(&result))
        return reinterpret_cast<HBRUSH>(result);
    return CWnd::OnCtlColor(dc, window, type);
}
