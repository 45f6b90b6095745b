#include "toolkit/tooltips/InfoBoxWatch.h"
#include "toolkit/tooltips/TipSwitch.h"
#include "toolkit/tooltips/ToolTipCtrlEx.h"

// What tips do when the mouse moves, when time passes, and at clicks and keys.

using Phase = vorn::TipState::Phase;

namespace
{

bool IsMove(UINT message)
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
}

bool IsButtonHeld(const MSG& message)
{
    return message.message == WM_MOUSEMOVE && (message.wParam & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) != 0;
}

bool IsKeyDown(UINT message)
{
    return message == WM_KEYDOWN || message == WM_SYSKEYDOWN;
}

} // namespace

// --- Messages of the tools ----------------------------------------------------------------------------------

bool ToolTipCtrlEx::MayShow() const
{
    return m_active && vorn::TipSwitch::IsOn();
}

void ToolTipCtrlEx::RelayEvent(MSG* message)
{
    if (message == nullptr || m_hWnd == nullptr || message->hwnd == m_hWnd || !MayShow())
    {
        return;
    }
    if (IsMove(message->message))
    {
        MouseMoved(*message);
    }
    else if (vorn::IsMousePress(message->message) || IsKeyDown(message->message) ||
             (vorn::IsMouseButton(message->message) && m_state.Now() != Phase::InfoBox))
    {
        Hush();
    }
}

void ToolTipCtrlEx::MouseMoved(const MSG& message)
{
    if (IsButtonHeld(message))
    {
        return;
    }
    const Phase before = m_state.Now();
    if (m_state.MouseMoved(ToolOfMove(message)))
    {
        Follow(before);
    }
}

// --- Changes of phase -----------------------------------------------------------------------------------------

/// Timers and window follow the phase.
void ToolTipCtrlEx::Follow(Phase before)
{
    if (m_hWnd == nullptr)
    {
        return;
    }
    const Phase now = m_state.Now();
    if (before == Phase::Waiting && now != Phase::Waiting)
    {
        KillTimer(vorn::kTipWaitTimer);
    }
    if (before == Phase::Shown && now != Phase::Shown)
    {
        KillTimer(vorn::kTipLookTimer);
    }
    if (before == Phase::InfoBox && now != Phase::InfoBox)
    {
        vorn::InfoBoxWatch::Stop(m_hWnd);
    }
    if (now == Phase::Waiting)
    {
        SetTimer(vorn::kTipWaitTimer, static_cast<UINT>(m_delays.Get(vorn::kTipInitial)));
    }
    if (!m_state.IsVisible() && (before == Phase::Shown || before == Phase::InfoBox))
    {
        SetWindowPos(nullptr, 0, 0, 0, 0,
                     SWP_HIDEWINDOW | SWP_NOACTIVATE | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOOWNERZORDER);
    }
}

void ToolTipCtrlEx::Hush()
{
    const Phase before = m_state.Now();
    if (before != Phase::Idle && before != Phase::Quiet)
    {
        m_state.Hush();
        Follow(before);
    }
}

void ToolTipCtrlEx::SwitchOff()
{
    const Phase before = m_state.Now();
    m_state.Forget();
    Follow(before);
}

void ToolTipCtrlEx::Activate(bool active)
{
    m_active = active;
    if (!active)
    {
        SwitchOff();
    }
}

void ToolTipCtrlEx::Pop()
{
    Hush();
}

void ToolTipCtrlEx::OnTimer(UINT_PTR id)
{
    switch (id)
    {
    case vorn::kTipWaitTimer:
        OnWaited();
        break;
    case vorn::kTipLookTimer:
        OnLook();
        break;
    default:
        CWnd::OnTimer(id);
        break;
    }
}

void ToolTipCtrlEx::OnWaited()
{
    const Phase before = m_state.Now();
    if (before != Phase::Waiting)
    {
        return;
    }
    const bool appears = m_state.Waited(ToolAtCursor());
    Follow(before);
    if (appears)
    {
        Display();
    }
}

void ToolTipCtrlEx::OnLook()
{
    const Phase before = m_state.Now();
    if (before != Phase::Shown)
    {
        return;
    }
    POINT cursor{};
    CRect tip;
    GetWindowRect(&tip);
    const bool overTip = ::GetCursorPos(&cursor) && tip.PtInRect(cursor);
    if (!m_state.Looked(ToolAtCursor(), overTip, m_delays.Get(vorn::kTipAutoPop)))
    {
        Follow(before);
    }
}

// --- Messages of the tip ---

void ToolTipCtrlEx::OnLButtonDown(UINT, CPoint)
{
    if (m_state.Now() == Phase::Shown && !m_info.IsEmpty())
    {
        OpenInfoBox();
    }
    else
    {
        Hush();
    }
}

void ToolTipCtrlEx::OnRButtonDown(UINT, CPoint)
{
    Hush();
}

void ToolTipCtrlEx::OnMButtonDown(UINT, CPoint)
{
    Hush();
}

LRESULT ToolTipCtrlEx::OnNcHitTest(CPoint)
{
    return HTCLIENT;
}

int ToolTipCtrlEx::OnMouseActivate(CWnd*, UINT, UINT)
{
    return MA_NOACTIVATE;
}

void ToolTipCtrlEx::OnActivateApp(BOOL active, DWORD thread)
{
    CWnd::OnActivateApp(active, thread);
    if (!active)
    {
        Hush();
    }
}

void ToolTipCtrlEx::OnKillFocus(CWnd* next)
{
    CWnd::OnKillFocus(next);
    Hush();
}

void ToolTipCtrlEx::OnCancelMode()
{
    CWnd::OnCancelMode();
    Hush();
}
