#include "framework/window/CWnd.h"

#include "framework/controls/ControlMessage.h"
#include "framework/window/ModuleState.h"
#include "framework/window/ThreadState.h"

namespace
{

/// The record's first form: every version of the common controls takes it.
constexpr UINT kToolInfoSize = offsetof(TOOLINFO, lpszText) + sizeof(LPTSTR);

bool IsMouseMessage(UINT message)
{
    return (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) ||
           (message >= WM_NCMOUSEMOVE && message <= WM_NCMBUTTONDBLCLK);
}

bool IsButtonDown()
{
    return ::GetKeyState(VK_LBUTTON) < 0 || ::GetKeyState(VK_RBUTTON) < 0 || ::GetKeyState(VK_MBUTTON) < 0;
}

/// This thread's tooltip window, made when first needed.
HWND ToolTipWindow(vorn::ThreadState& state)
{
    if (!::IsWindow(state.toolTip))
    {
        vorn::EnsureCommonControls();
        state.toolTip = ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_ALWAYSTIP, 0, 0, 0, 0,
                                         nullptr, nullptr, AfxGetInstanceHandle(), nullptr);
    }
    return state.toolTip;
}

void RemoveTool(vorn::ThreadState& state)
{
    if (!state.toolTipOwner)
    {
        return;
    }
    TOOLINFO tool = {};
    tool.cbSize = kToolInfoSize;
    while (::SendMessage(state.toolTip, TTM_ENUMTOOLS, 0, reinterpret_cast<LPARAM>(&tool)))
    {
        ::SendMessage(state.toolTip, TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&tool));
    }
    state.toolTipOwner = nullptr;
    state.toolTipHit = -1;
}

void AddTool(vorn::ThreadState& state, HWND owner, INT_PTR hit, TOOLINFO& tool)
{
    RemoveTool(state);
    if (::SendMessage(ToolTipWindow(state), TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool)))
    {
        state.toolTipOwner = owner;
        state.toolTipHit = hit;
    }
}

TOOLINFO EmptyTool(HWND owner)
{
    TOOLINFO tool = {};
    tool.cbSize = kToolInfoSize;
    tool.hwnd = owner;
    tool.lpszText = LPSTR_TEXTCALLBACK;
    return tool;
}

} // namespace

BOOL CWnd::EnableToolTips(BOOL bEnable, UINT)
{
    if (bEnable)
    {
        m_nFlags |= kStateToolTips;
        return TRUE;
    }
    m_nFlags &= ~static_cast<UINT>(kStateToolTips);
    if (vorn::CurrentThreadState().toolTipOwner == m_hWnd)
    {
        CancelToolTips();
    }
    return TRUE;
}

void CWnd::CancelToolTips(BOOL)
{
    vorn::ThreadState& state = vorn::CurrentThreadState();
    if (state.toolTipOwner && ::IsWindow(state.toolTip))
    {
        RemoveTool(state);
    }
    state.toolTipOwner = nullptr;
}

INT_PTR CWnd::OnToolHitTest(CPoint point, TOOLINFO* pTI) const
{
    const HWND child = ::ChildWindowFromPointEx(m_hWnd, point, CWP_SKIPINVISIBLE);
    if (!child || child == m_hWnd)
    {
        return -1;
    }
    if (pTI)
    {
        *pTI = EmptyTool(m_hWnd);
        pTI->uFlags = TTF_IDISHWND;
        pTI->uId = reinterpret_cast<UINT_PTR>(child);
    }
    return ::GetDlgCtrlID(child);
}

void CWnd::FilterToolTipMessage(MSG* pMsg)
{
    if (!(m_nFlags & kStateToolTips) || !m_hWnd || !IsMouseMessage(pMsg->message))
    {
        return;
    }
    vorn::ThreadState& state = vorn::CurrentThreadState();
    CPoint point(pMsg->pt);
    ScreenToClient(&point);
    TOOLINFO tool = EmptyTool(m_hWnd);
    const INT_PTR hit = IsButtonDown() ? -1 : OnToolHitTest(point, &tool);
    if (hit == -1)
    {
        CancelToolTips();
        return;
    }
    if (state.toolTipOwner != m_hWnd || state.toolTipHit != hit)
    {
        AddTool(state, m_hWnd, hit, tool);
    }
    ::SendMessage(state.toolTip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(pMsg));
}
