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

void CFrameWnd::RecalcLayout(BOOL)
{
    if (m_layingOut || !m_hWnd)
        return;
    m_layingOut = true;
    m_nIdleFlags &= ~static_cast<UINT>(idleLayout | idleNotify);
    if (GetStyle() & FWS_SNAPTOBARS)
        FitToBars();
    else
        RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_rectBorder);
    m_layingOut = false;
}

/// Makes the frame as large as its bars want to be.
void CFrameWnd::FitToBars()
{
    constexpr int kNoLimit = 32767;
    CRect rect(0, 0, kNoLimit, kNoLimit);
    const CRect all = rect;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposQuery, &rect, &all, FALSE);
    const CRect client = rect;
    RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, reposExtra, &m_rectBorder, &client, TRUE);
    CalcWindowRect(&rect);
    SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
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
        if (bar->IsDockBar())
            continue;
        CControlBarInfo info;
        bar->GetBarInfo(&info);
        state.m_bars.push_back(info);
    }
    state.SetScreenSize(CSize(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)));
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
