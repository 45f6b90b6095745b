#include "framework/frames/CScrollView.h"

#include "framework/frames/CFrameWnd.h"
#include "framework/gdi/CBrush.h"
#include "framework/gdi/CClientDC.h"

#include <algorithm>
#include <cstdlib>

// Sizes, mapping and bars of a scroll view.

IMPLEMENT_DYNAMIC(CScrollView, CView)

BEGIN_MESSAGE_MAP(CScrollView, CView)
ON_WM_SIZE()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
ON_WM_KEYDOWN()
END_MESSAGE_MAP()

const SIZE CScrollView::sizeDefault = {0, 0};

namespace
{
constexpr int kPagesInAll = 10;
constexpr int kLinesInPage = 10;

CSize BarSize()
{
    return {::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL)};
}

CSize OrShareOf(const CSize& given, const CSize& whole, int parts)
{
    const auto share = [parts](LONG size, LONG of)
    {
        return static_cast<int>(size != 0 ? size : of / parts);
    };
    return {share(given.cx, whole.cx), share(given.cy, whole.cy)};
}

CSize ClientSizeOf(const CWnd& window)
{
    CRect client(0, 0, 0, 0);
    if (window.m_hWnd)
        window.GetClientRect(&client);
    return client.Size();
}
} // namespace

CScrollView::CScrollView() = default;

CScrollView::~CScrollView() = default;

/// Sizes are lengths: the directions of the axes do not matter.
CSize CScrollView::ToDevice(SIZE logical) const
{
    if (m_mapMode == MM_TEXT || m_mapMode == kFit)
        return logical;
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.SetMapMode(m_mapMode);
    POINT point{logical.cx, logical.cy};
    dc.LPtoDP(&point);
    return {std::abs(static_cast<int>(point.x)), std::abs(static_cast<int>(point.y))};
}

void CScrollView::SetScrollSizes(int mapMode, SIZE total, const SIZE& page, const SIZE& line)
{
    const int formerMode = m_mapMode;
    m_mapMode = mapMode;
    m_totalLog = total;
    m_totalDev = ToDevice(total);
    m_pageDev = OrShareOf(ToDevice(page), m_totalDev, kPagesInAll);
    m_lineDev = OrShareOf(ToDevice(line), m_pageDev, kLinesInPage);
    if (!m_hWnd)
        return;
    UpdateBars();
    if (formerMode != m_mapMode)
        Invalidate(TRUE);
}

void CScrollView::SetScaleToFitSize(SIZE total)
{
    m_mapMode = kFit;
    m_totalLog = total;
    m_position = CPoint(0, 0);
    if (!m_hWnd)
        return;
    if (GetStyle() & (WS_HSCROLL | WS_VSCROLL))
        ShowScrollBar(SB_BOTH, FALSE);
    m_totalDev = ClientSizeOf(*this);
    Invalidate(TRUE);
}

CPoint CScrollView::GetDeviceScrollPosition() const
{
    return m_position;
}

CPoint CScrollView::GetScrollPosition() const
{
    if (m_mapMode == MM_TEXT || m_mapMode == kFit || m_mapMode == kUnset)
        return m_position;
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.SetMapMode(m_mapMode);
    POINT point = m_position;
    dc.DPtoLP(&point);
    return point;
}

CSize CScrollView::GetTotalSize() const
{
    return m_totalLog;
}

void CScrollView::GetDeviceScrollSizes(int& mapMode, SIZE& total, SIZE& page, SIZE& line) const
{
    mapMode = m_mapMode;
    total = m_totalDev;
    page = m_pageDev;
    line = m_lineDev;
}

void CScrollView::CheckScrollBars(BOOL& hasHorizontal, BOOL& hasVertical) const
{
    const DWORD style = GetStyle();
    hasHorizontal = (style & WS_HSCROLL) != 0;
    hasVertical = (style & WS_VSCROLL) != 0;
}

/// The client area as it would be without bars.
CSize CScrollView::RoomWithoutBars() const
{
    CSize room = ClientSizeOf(*this);
    BOOL hasHorizontal = FALSE;
    BOOL hasVertical = FALSE;
    CheckScrollBars(hasHorizontal, hasVertical);
    if (hasVertical)
        room.cx += BarSize().cx;
    if (hasHorizontal)
        room.cy += BarSize().cy;
    return room;
}

void CScrollView::UpdateBars()
{
    if (m_updatingBars || m_mapMode == kFit || m_mapMode == kUnset)
        return;
    m_updatingBars = true; // showing a bar changes the client area, which asks for the bars
    ShowBars(RoomWithoutBars());
    MoveTo(m_position);
    m_updatingBars = false;
}

/// One bar may take the room that makes the other one necessary.
void CScrollView::ShowBars(const CSize& room)
{
    const CSize bar = BarSize();
    bool horizontal = m_totalDev.cx > room.cx;
    const bool vertical = m_totalDev.cy > room.cy - (horizontal ? bar.cy : 0);
    horizontal = m_totalDev.cx > room.cx - (vertical ? bar.cx : 0);
    BOOL hasHorizontal = FALSE;
    BOOL hasVertical = FALSE;
    CheckScrollBars(hasHorizontal, hasVertical);
    if (horizontal != (hasHorizontal != FALSE))
        ShowScrollBar(SB_HORZ, horizontal);
    if (vertical != (hasVertical != FALSE))
        ShowScrollBar(SB_VERT, vertical);
}

void CScrollView::TellBar(int bar, int total, int page, int position)
{
    if ((GetStyle() & (bar == SB_HORZ ? WS_HSCROLL : WS_VSCROLL)) == 0)
        return;
    SCROLLINFO info{};
    info.fMask = SIF_PAGE | SIF_POS | SIF_RANGE;
    info.nMax = std::max(total - 1, 0);
    info.nPage = static_cast<UINT>(std::max(page, 0));
    info.nPos = position;
    SetScrollInfo(bar, &info);
}

/// The largest position in each direction.
CSize CScrollView::Farthest()
{
    const CSize client = ClientSizeOf(*this);
    return {static_cast<int>(std::max(0L, m_totalDev.cx - client.cx)),
            static_cast<int>(std::max(0L, m_totalDev.cy - client.cy))};
}

/// Scrolls to the nearest position that there is and tells the bars.
void CScrollView::MoveTo(CPoint position)
{
    const CSize farthest = Farthest();
    position.x = std::clamp(position.x, 0L, farthest.cx);
    position.y = std::clamp(position.y, 0L, farthest.cy);
    const CSize way = m_position - position;
    m_position = position;
    const CSize client = ClientSizeOf(*this);
    TellBar(SB_HORZ, static_cast<int>(m_totalDev.cx), static_cast<int>(client.cx), static_cast<int>(position.x));
    TellBar(SB_VERT, static_cast<int>(m_totalDev.cy), static_cast<int>(client.cy), static_cast<int>(position.y));
    if (way.cx != 0 || way.cy != 0)
        ScrollWindow(static_cast<int>(way.cx), static_cast<int>(way.cy));
}

void CScrollView::OnPrepareDC(CDC* dc, CPrintInfo* info)
{
    if (m_mapMode == kFit)
    {
        dc->SetMapMode(MM_ANISOTROPIC);
        dc->SetWindowExt(m_totalLog);
        dc->SetViewportExt(m_totalDev);
        // A window with nothing in it cannot be stretched to.
        if (m_totalDev.cx == 0 || m_totalDev.cy == 0)
            dc->SetMapMode(MM_TEXT);
    }
    else if (m_mapMode != kUnset)
    {
        dc->SetMapMode(m_mapMode);
    }
    if (!dc->IsPrinting())
        dc->SetViewportOrg(-static_cast<int>(m_position.x), -static_cast<int>(m_position.y));
    CView::OnPrepareDC(dc, info);
}

void CScrollView::OnSize(UINT type, int cx, int cy)
{
    CView::OnSize(type, cx, cy);
    if (m_mapMode == kFit)
        SetScaleToFitSize(m_totalLog);
    else if (type != SIZE_MINIMIZED)
        UpdateBars();
}

void CScrollView::FillOutsideRect(CDC* dc, CBrush* brush)
{
    const CSize client = ClientSizeOf(*this);
    const int right = static_cast<int>(m_totalDev.cx - m_position.x);
    const int bottom = static_cast<int>(m_totalDev.cy - m_position.y);
    if (right < client.cx)
        dc->FillRect(CRect(right, 0, static_cast<int>(client.cx), static_cast<int>(client.cy)), brush);
    if (bottom < client.cy)
        dc->FillRect(CRect(0, bottom, right, static_cast<int>(client.cy)), brush);
}

void CScrollView::ResizeParentToFit(BOOL shrinkOnly)
{
    CFrameWnd* const frame = GetParentFrame();
    if (!frame)
        return;
    if (frame->GetActiveView() != nullptr || m_hWnd)
        frame->RecalcLayout();
    CSize more = m_totalDev - RoomWithoutBars();
    if (shrinkOnly)
        more = CSize(static_cast<int>(std::min(more.cx, 0L)), static_cast<int>(std::min(more.cy, 0L)));
    CRect window;
    frame->GetWindowRect(&window);
    frame->SetWindowPos(nullptr, 0, 0, window.Width() + static_cast<int>(more.cx),
                        window.Height() + static_cast<int>(more.cy), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
