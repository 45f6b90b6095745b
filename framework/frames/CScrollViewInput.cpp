// What makes a scroll view scroll: its bars, the wheel and the keys.
#include "framework/frames/CScrollView.h"

#include "framework/gdi/CClientDC.h"

#include <algorithm>

namespace
{
constexpr UINT kNoCode = 0xFF;
constexpr int kShortRange = 0x7FFF; // positions beyond it do not fit into the message

UINT CodesOf(UINT horizontal, UINT vertical)
{
    return MAKEWORD(horizontal, vertical);
}

struct KeyScroll
{
    UINT key;
    bool control;
    UINT horizontal;
    UINT vertical;
};

constexpr KeyScroll kKeys[] = {
    {VK_UP, false, kNoCode, SB_LINEUP},     {VK_DOWN, false, kNoCode, SB_LINEDOWN},
    {VK_LEFT, false, SB_LINELEFT, kNoCode}, {VK_RIGHT, false, SB_LINERIGHT, kNoCode},
    {VK_PRIOR, false, kNoCode, SB_PAGEUP},  {VK_NEXT, false, kNoCode, SB_PAGEDOWN},
    {VK_PRIOR, true, SB_PAGELEFT, kNoCode}, {VK_NEXT, true, SB_PAGERIGHT, kNoCode},
    {VK_HOME, false, SB_LEFT, kNoCode},     {VK_END, false, SB_RIGHT, kNoCode},
    {VK_HOME, true, SB_LEFT, SB_TOP},       {VK_END, true, SB_RIGHT, SB_BOTTOM},
};
} // namespace

int CScrollView::NewPosition(int bar, UINT code, UINT position, int present)
{
    const bool horizontal = bar == SB_HORZ;
    const int line = static_cast<int>(horizontal ? m_lineDev.cx : m_lineDev.cy);
    const int page = static_cast<int>(horizontal ? m_pageDev.cx : m_pageDev.cy);
    const int total = static_cast<int>(horizontal ? m_totalDev.cx : m_totalDev.cy);
    switch (code)
    {
    case SB_LINEUP:
        return present - line;
    case SB_LINEDOWN:
        return present + line;
    case SB_PAGEUP:
        return present - page;
    case SB_PAGEDOWN:
        return present + page;
    case SB_TOP:
        return 0;
    case SB_BOTTOM:
        return total;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        break;
    default:
        return present;
    }
    SCROLLINFO info{};
    if (total > kShortRange && GetScrollInfo(bar, &info, SIF_TRACKPOS))
        return info.nTrackPos;
    return static_cast<int>(position);
}

BOOL CScrollView::OnScroll(UINT code, UINT position, BOOL doScroll)
{
    const CPoint present = GetDeviceScrollPosition();
    const int x = NewPosition(SB_HORZ, LOBYTE(code), position, static_cast<int>(present.x));
    const int y = NewPosition(SB_VERT, HIBYTE(code), position, static_cast<int>(present.y));
    return OnScrollBy(CPoint(x, y) - present, doScroll);
}

BOOL CScrollView::OnScrollBy(CSize pixels, BOOL doScroll)
{
    if (m_mapMode == kFit || m_mapMode == kUnset)
        return FALSE;
    const CSize farthest = Farthest();
    const LONG x = std::clamp(m_position.x + pixels.cx, 0L, farthest.cx);
    const LONG y = std::clamp(m_position.y + pixels.cy, 0L, farthest.cy);
    if (x == m_position.x && y == m_position.y)
        return FALSE;
    if (doScroll)
        MoveTo(CPoint(static_cast<int>(x), static_cast<int>(y)));
    return TRUE;
}

void CScrollView::ScrollToPosition(POINT point)
{
    if (m_mapMode == kFit || m_mapMode == kUnset)
        return;
    if (m_mapMode != MM_TEXT)
    {
        CDC dc;
        dc.CreateCompatibleDC(nullptr);
        dc.SetMapMode(m_mapMode);
        dc.LPtoDP(&point);
    }
    MoveTo(point);
}

void CScrollView::OnHScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar)
        CView::OnHScroll(code, position, bar); // a control in the view
    else
        OnScroll(CodesOf(code, kNoCode), position);
}

void CScrollView::OnVScroll(UINT code, UINT position, CScrollBar* bar)
{
    if (bar)
        CView::OnVScroll(code, position, bar);
    else
        OnScroll(CodesOf(kNoCode, code), position);
}

BOOL CScrollView::OnMouseWheel(UINT flags, short delta, CPoint point)
{
    BOOL hasHorizontal = FALSE;
    BOOL hasVertical = FALSE;
    CheckScrollBars(hasHorizontal, hasVertical);
    if ((flags & (MK_SHIFT | MK_CONTROL)) != 0 || (!hasVertical && !hasHorizontal))
        return CView::OnMouseWheel(flags, delta, point);
    UINT lines = 3;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    m_wheelRest += delta;
    const int notches = m_wheelRest / WHEEL_DELTA;
    m_wheelRest -= notches * WHEEL_DELTA;
    const CSize line = lines == WHEEL_PAGESCROLL ? m_pageDev : m_lineDev;
    const int steps = -notches * (lines == WHEEL_PAGESCROLL ? 1 : static_cast<int>(lines));
    return hasVertical ? OnScrollBy(CSize(0, steps * static_cast<int>(line.cy)))
                       : OnScrollBy(CSize(steps * static_cast<int>(line.cx), 0));
}

void CScrollView::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    const bool control = ::GetKeyState(VK_CONTROL) < 0;
    for (const KeyScroll& scroll : kKeys)
    {
        if (scroll.key == key && scroll.control == control)
        {
            OnScroll(CodesOf(scroll.horizontal, scroll.vertical), 0);
            return;
        }
    }
    CView::OnKeyDown(key, repeats, flags);
}
