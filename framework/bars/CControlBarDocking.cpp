#include "framework/bars/BarDragging.h"
#include "framework/bars/CControlBar.h"
#include "framework/bars/CDockBar.h"
#include "framework/frames/CDockState.h"
#include "framework/frames/CFrameWnd.h"

// Docking of a bar: what it may do, how the user asks for it, what is saved.

void CControlBar::EnableDocking(DWORD dockStyle)
{
    m_dwDockStyle = dockStyle & (CBRS_ALIGN_ANY | CBRS_FLOAT_MULTI);
}

CFrameWnd* CControlBar::GetDockingFrame() const
{
    return m_pDockSite ? m_pDockSite : GetParentFrame();
}

CDockBar* CControlBar::GetDockBar() const
{
    return m_pDockBar;
}

BOOL CControlBar::IsDockBar() const
{
    return FALSE;
}

BOOL CControlBar::IsFloating() const
{
    return m_pDockBar && m_pDockBar->IsFloating();
}

bool CControlBar::IsHorizontal() const
{
    return (m_dwStyle & CBRS_ORIENT_HORZ) != 0;
}

bool CControlBar::IsDraggable() const
{
    return m_dwDockStyle != 0 && m_pDockBar && m_pDockSite;
}

void CControlBar::ToggleDocking()
{
    if (!m_hWnd || !m_pDockSite || !m_pDockBar)
        return;
    if (IsFloating())
    {
        m_pDockSite->RestoreDockedBar(this);
        return;
    }
    CRect place;
    GetWindowRect(&place);
    // Before it has ever floated: a little inside the frame, so that one sees what has happened.
    const int step = ::GetSystemMetrics(SM_CYCAPTION);
    const CPoint first(place.left + step, place.top + 2 * step);
    m_pDockSite->FloatControlBar(this, m_hasFloated ? CPoint(m_lastFloat) : first);
}

bool CControlBar::IsFreeArea(CPoint) const
{
    return true; // what lies on an item goes to the item's window
}

void CControlBar::DragBar(CPoint pressed)
{
    vorn::BarDragging(*this, pressed).Run();
}

void CControlBar::OnLButtonDown(UINT flags, CPoint point)
{
    if (!IsDraggable() || !IsFreeArea(point))
    {
        CWnd::OnLButtonDown(flags, point);
        return;
    }
    ClientToScreen(&point);
    DragBar(point);
}

void CControlBar::OnLButtonDblClk(UINT flags, CPoint point)
{
    if (IsDraggable() && IsFreeArea(point))
        ToggleDocking();
    else
        CWnd::OnLButtonDblClk(flags, point);
}

void CControlBar::GetBarInfo(CControlBarInfo* info) const
{
    info->m_nBarID = static_cast<UINT>(GetDlgCtrlID());
    info->m_bVisible = IsVisible();
    info->m_dwAlign = m_dwStyle & CBRS_ALIGN_ANY;
    info->m_bFloating = IsFloating();
    GetWindowRect(&info->m_rect);
    const bool docked = m_pDockBar && !info->m_bFloating;
    if (!info->m_bFloating)
        ::MapWindowPoints(nullptr, docked && m_pDockSite ? m_pDockSite->m_hWnd : ::GetParent(m_hWnd),
                          reinterpret_cast<POINT*>(&info->m_rect), 2);
    info->m_dock = docked ? m_pDockBar->PlaceOf(*this) : m_lastDock;
    info->m_bHasFloated = info->m_bFloating || m_hasFloated;
    info->m_ptFloat = info->m_bFloating ? info->m_rect.TopLeft() : CPoint(m_lastFloat);
}

void CControlBar::SetBarInfo(const CControlBarInfo* info, CFrameWnd* frame)
{
    m_lastDock = info->m_dock;
    m_lastFloat = info->m_ptFloat;
    m_hasFloated = info->m_bHasFloated != FALSE;
    // Only to a side where docking was allowed: a bar nailed to its side stays there.
    if (!m_pDockBar && (info->m_dwAlign & m_dwDockStyle & CBRS_ALIGN_ANY))
        SetBarStyle((m_dwStyle & ~CBRS_ALIGN_ANY) | (info->m_dwAlign & CBRS_ALIGN_ANY));
    frame->ShowControlBar(this, info->m_bVisible, TRUE);
}
