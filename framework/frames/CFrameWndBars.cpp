#include "framework/bars/CControlBar.h"
#include "framework/frames/CDockState.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/gdi/CDC.h"
#include "framework/include/afxres.h"
#include "framework/window/CCmdUI.h"
#include <algorithm>

// Control bars of a frame: list, layout, saved state.

void CFrameWnd::AddControlBar(CControlBar* bar)
{
    if (std::find(m_controlBars.begin(), m_controlBars.end(), bar) == m_controlBars.end())
        m_controlBars.push_back(bar);
}

void CFrameWnd::RemoveControlBar(CControlBar* bar)
{
    std::erase(m_controlBars, bar);
}

std::vector<CControlBar*> CFrameWnd::AllBars() const
{
    // An object that was only attached to a frame's window has no list: the bars are the window's children.
    std::vector<CControlBar*> bars = m_controlBars;
    for (HWND child = ::GetTopWindow(m_hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        auto* bar = DYNAMIC_DOWNCAST(CControlBar, CWnd::FromHandlePermanent(child));
        if (bar && std::find(bars.begin(), bars.end(), bar) == bars.end())
            bars.push_back(bar);
    }
    return bars;
}

CControlBar* CFrameWnd::GetControlBar(UINT id)
{
    for (CControlBar* bar : AllBars())
        if (static_cast<UINT>(bar->GetDlgCtrlID()) == id)
            return bar;
    return nullptr;
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
    RecalcLayout(FALSE);
}

void CFrameWnd::EnableDocking(DWORD)
{
    // Bars are laid out along the edges; each side is open to the bars that may go there.
}

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_layingOut || !m_hWnd)
        return;
    m_layingOut = true;
    m_nIdleFlags &= ~static_cast<UINT>(idleLayout | idleNotify);
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_rectBorder);
    m_layingOut = false;
}

void CFrameWnd::DelayRecalcLayout(BOOL notify)
{
    m_nIdleFlags |= notify ? idleLayout | idleNotify : idleLayout;
}

void CFrameWnd::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    if (type != SIZE_MINIMIZED)
        RecalcLayout();
}

BOOL CFrameWnd::OnEraseBkgnd(CDC* dc)
{
    // The view covers what the bars leave: erasing would only flicker. Children that ask the frame to erase for them
    // come with a context of their own.
    if (m_pViewActive && ::WindowFromDC(*dc) == m_hWnd)
        return TRUE;
    return CWnd::OnEraseBkgnd(dc);
}

void CFrameWnd::GetDockState(CDockState& state) const
{
    state.Clear();
    for (const CControlBar* bar : AllBars())
    {
        CControlBarInfo info;
        bar->GetBarInfo(&info);
        state.m_bars.push_back(info);
    }
    state.SetScreenSize(CSize(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)));
}

void CFrameWnd::SetDockState(const CDockState& state)
{
    for (const CControlBarInfo& info : state.m_bars)
        if (CControlBar* bar = GetControlBar(info.m_nBarID))
            bar->SetBarInfo(&info, this);
    RecalcLayout();
}

void CFrameWnd::LoadBarState(LPCTSTR profileName)
{
    CDockState state;
    state.LoadState(profileName);
    if (!state.m_bars.empty())
        SetDockState(state);
}

void CFrameWnd::SaveBarState(LPCTSTR profileName) const
{
    CDockState state;
    GetDockState(state);
    state.SaveState(profileName);
}

void CFrameWnd::OnUpdateControlBarMenu(CCmdUI* cmdUI)
{
    if (const CControlBar* bar = GetControlBar(cmdUI->m_nID))
        cmdUI->SetCheck(bar->IsVisible() ? 1 : 0);
    else
        cmdUI->ContinueRouting();
}

BOOL CFrameWnd::OnBarCheck(UINT id)
{
    CControlBar* bar = GetControlBar(id);
    if (!bar)
        return FALSE;
    ShowControlBar(bar, !bar->IsVisible(), FALSE);
    return TRUE;
}
