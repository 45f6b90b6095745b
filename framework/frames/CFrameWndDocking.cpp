#include "framework/bars/CControlBar.h"
#include "framework/bars/CDockBar.h"
#include "framework/bars/core/DockDrag.h"
#include "framework/frames/CDockState.h"
#include "framework/frames/CFloatingBarFrame.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/frames/SyncedCaptions.h"
#include "framework/include/afxres.h"
#include <algorithm>

// Docks and floating frames of a frame.

namespace
{
struct Side
{
    UINT id;
    DWORD align;
};

/// In the order in which they take their strips of the frame.
constexpr Side kSides[] = {{AFX_IDW_DOCKBAR_TOP, CBRS_ALIGN_TOP},
                           {AFX_IDW_DOCKBAR_BOTTOM, CBRS_ALIGN_BOTTOM},
                           {AFX_IDW_DOCKBAR_LEFT, CBRS_ALIGN_LEFT},
                           {AFX_IDW_DOCKBAR_RIGHT, CBRS_ALIGN_RIGHT}};

CFloatingBarFrame* FrameAround(const CControlBar& bar)
{
    return bar.IsFloating() ? DYNAMIC_DOWNCAST(CFloatingBarFrame, bar.GetParentFrame()) : nullptr;
}

/// Where a floating frame may stand: as asked, or, if nobody could take hold of it there, on the nearest screen.
CPoint Reachable(const RECT& saved)
{
    constexpr LONG kFar = 100000; // saved numbers may be any
    const CPoint corner(std::clamp(saved.left, -kFar, kFar), std::clamp(saved.top, -kFar, kFar));
    const CSize size(std::clamp(saved.right, corner.x, kFar) - corner.x,
                     std::clamp(saved.bottom, corner.y, kFar) - corner.y);
    MONITORINFO screen{};
    screen.cbSize = sizeof(screen);
    const int caption = ::GetSystemMetrics(SM_CYSMCAPTION);
    const RECT wanted{corner.x, corner.y - caption, corner.x + size.cx, corner.y + size.cy};
    if (!::GetMonitorInfo(::MonitorFromRect(&wanted, MONITOR_DEFAULTTONEAREST), &screen))
        return corner;
    const RECT reachable = vorn::ReachableRect(wanted, screen.rcWork, caption);
    return CPoint(reachable.left, reachable.top + caption);
}
} // namespace

void CFrameWnd::EnableDocking(DWORD dockStyle)
{
    for (const Side& side : kSides)
    {
        if (!m_hWnd || !(dockStyle & side.align) || GetControlBar(side.id))
            continue;
        auto* dock = new CDockBar;
        dock->m_bAutoDelete = TRUE; // ends with the frame's window
        dock->Create(this, WS_CHILD | WS_VISIBLE | side.align, side.id);
    }
}

/// The dock where a bar may go; null when there is none.
CDockBar* CFrameWnd::DockFor(const CControlBar& bar, UINT dockBarId)
{
    const auto dockAt = [this, &bar](const Side& side)
    {
        const bool allowed = (bar.m_dwDockStyle & side.align) != 0;
        return allowed ? DYNAMIC_DOWNCAST(CDockBar, GetControlBar(side.id)) : nullptr;
    };
    CDockBar* first = nullptr;
    for (const Side& side : kSides)
    {
        CDockBar* dock = dockBarId == 0 || dockBarId == side.id ? dockAt(side) : nullptr;
        if (dock && (dockBarId != 0 || (bar.m_dwStyle & side.align)))
            return dock;
        first = first ? first : dock;
    }
    return first;
}

void CFrameWnd::DockControlBar(CControlBar* bar, UINT dockBarId, LPCRECT rect)
{
    CDockBar* dock = bar && bar->m_hWnd ? DockFor(*bar, dockBarId) : nullptr;
    if (!dock)
        return;
    TakeControlBar(bar);
    CDockBar* former = bar->m_pDockBar;
    if (rect && former && former != dock && !former->IsFloating())
    {
        // What the former dock gives up may move the other one: the rectangle is meant for where it is then.
        former->RemoveControlBar(bar);
        RecalcLayout();
    }
    dock->DockControlBar(bar, rect);
    RecalcLayout();
}

void CFrameWnd::RestoreDockedBar(CControlBar* bar)
{
    if (!bar || !bar->m_hWnd)
        return;
    const vorn::DockPlace place = bar->m_lastDock;
    CDockBar* dock = place.dockBar ? DockFor(*bar, place.dockBar) : nullptr;
    if (!dock)
    {
        DockControlBar(bar);
        return;
    }
    TakeControlBar(bar);
    dock->DockControlBar(bar, place);
    RecalcLayout();
}

/// A bar of another frame joins this one.
void CFrameWnd::TakeControlBar(CControlBar* bar)
{
    if (bar->m_pDockSite == this)
        return;
    if (bar->m_pDockSite)
        bar->m_pDockSite->RemoveControlBar(bar);
    bar->m_pDockSite = this;
    bar->SetOwner(this);
    AddControlBar(bar);
}

CFrameWnd* CFrameWnd::FloatControlBar(CControlBar* bar, CPoint point, DWORD style)
{
    if (!bar || !bar->m_hWnd || !m_hWnd || bar->IsDockBar())
        return nullptr;
    CFloatingBarFrame* floating = FrameAround(*bar);
    if (!floating)
    {
        floating = new CFloatingBarFrame;
        if (!floating->CreateFor(this))
            return nullptr;
    }
    TakeControlBar(bar);
    const bool standing = (style & CBRS_ORIENT_VERT) && !(style & CBRS_ORIENT_HORZ);
    floating->TakeBar(*bar, standing ? CBRS_ALIGN_LEFT : CBRS_ALIGN_TOP);
    floating->PutBarAt(point);
    floating->FitBar();
    RecalcLayout();
    return floating;
}

void CFrameWnd::ShowControlBar(CControlBar* bar, BOOL show, BOOL delay)
{
    bar->DelayShow(show);
    if (delay)
    {
        DelayRecalcLayout(FALSE);
        return;
    }
    const UINT flags = bar->RecalcDelayShow(nullptr);
    if (flags)
        bar->SetWindowPos(nullptr, 0, 0, 0, 0, flags | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (CFloatingBarFrame* floating = FrameAround(*bar))
        floating->FitBar();
    else
        RecalcLayout(FALSE);
}

/// Lays the floating frames out, and shows those whose bar is visible while this frame is.
void CFrameWnd::UpdateFloatingFrames()
{
    for (HWND window : vorn::MiniFramesOf(m_hWnd))
        if (auto* floating = DYNAMIC_DOWNCAST(CFloatingBarFrame, FromHandlePermanent(window)))
            floating->FitBar();
}

void CFrameWnd::OnShowWindow(BOOL show, UINT status)
{
    CWnd::OnShowWindow(show, status);
    // The window's own state changes after this message; minimising takes owned windows along by itself.
    if (status != 0)
        return;
    for (HWND window : vorn::MiniFramesOf(m_hWnd))
    {
        auto* floating = DYNAMIC_DOWNCAST(CFloatingBarFrame, FromHandlePermanent(window));
        if (floating && floating->GetDock().GetDockedVisibleCount() > 0)
            floating->ShowWindow(show ? SW_SHOWNA : SW_HIDE);
    }
}

void CFrameWnd::OnEnable(BOOL enable)
{
    CWnd::OnEnable(enable);
    for (HWND window : vorn::MiniFramesOf(m_hWnd))
        ::EnableWindow(window, enable);
}

void CFrameWnd::SetDockState(const CDockState& state)
{
    RestoreDocked(state);
    for (const CControlBarInfo& info : state.m_bars)
    {
        CControlBar* bar = GetControlBar(info.m_nBarID);
        if (!bar || bar->IsDockBar())
            continue;
        if (info.m_bFloating)
            RestoreFloating(info, *bar);
        bar->SetBarInfo(&info, this);
    }
    RecalcLayout();
    UpdateFloatingFrames();
}

void CFrameWnd::RestoreDocked(const CDockState& state)
{
    struct Docked
    {
        const CControlBarInfo* info;
        CControlBar* bar;
        CDockBar* dock;
    };
    std::vector<Docked> docked;
    for (const CControlBarInfo& info : state.m_bars)
    {
        CControlBar* bar = info.m_bFloating || info.m_dock.dockBar == 0 ? nullptr : GetControlBar(info.m_nBarID);
        if (CDockBar* dock = bar && bar->m_hWnd && !bar->IsDockBar() ? DockFor(*bar, info.m_dock.dockBar) : nullptr)
            docked.push_back({&info, bar, dock});
    }
    std::stable_sort(docked.begin(), docked.end(),
                     [](const Docked& first, const Docked& second)
                     {
                         return first.info->m_dock.row < second.info->m_dock.row;
                     });
    // Out of their rows first, so that nothing of the present order is left among them.
    for (const Docked& one : docked)
        if (one.bar->m_pDockBar && !one.bar->IsFloating())
            one.bar->m_pDockBar->RemoveControlBar(one.bar);
    std::vector<std::pair<CDockBar*, int>> last; // row that was filled last, for each dock
    for (const Docked& one : docked)
    {
        auto found = std::find_if(last.begin(), last.end(),
                                  [&one](const auto& filled)
                                  {
                                      return filled.first == one.dock;
                                  });
        const bool joins = found != last.end() && found->second == one.info->m_dock.row;
        if (found == last.end())
            found = last.insert(last.end(), {one.dock, 0});
        found->second = one.info->m_dock.row;
        const int rows = one.dock->GetRowCount();
        one.dock->DockControlBar(one.bar,
                                 vorn::DockPlace{0, joins ? rows - 1 : rows, one.info->m_dock.position, !joins});
    }
}

void CFrameWnd::RestoreFloating(const CControlBarInfo& info, CControlBar& bar)
{
    const DWORD style = info.m_dwAlign & CBRS_ALIGN_ANY;
    FloatControlBar(&bar, Reachable(info.m_rect), style ? style : CBRS_ALIGN_TOP);
}
