#include "framework/window/CWnd.h"

BOOL CWnd::EnableWindow(BOOL bEnable)
{
    return ::EnableWindow(m_hWnd, bEnable);
}

BOOL CWnd::IsWindowEnabled() const
{
    return ::IsWindowEnabled(m_hWnd);
}

CWnd* CWnd::SetActiveWindow()
{
    return FromHandle(::SetActiveWindow(m_hWnd));
}

BOOL CWnd::SetForegroundWindow()
{
    return ::SetForegroundWindow(m_hWnd);
}

CWnd* CWnd::SetFocus()
{
    return FromHandle(::SetFocus(m_hWnd));
}

CWnd* CWnd::SetCapture()
{
    return FromHandle(::SetCapture(m_hWnd));
}

BOOL CWnd::FlashWindow(BOOL bInvert)
{
    return ::FlashWindow(m_hWnd, bInvert);
}

BOOL CWnd::IsTopParentActive() const
{
    const CWnd* top = GetTopLevelParent();
    return top && ::GetForegroundWindow() == ::GetLastActivePopup(top->m_hWnd);
}

void CWnd::ActivateTopParent()
{
    const CWnd* top = GetTopLevelParent();
    if (top && ::GetActiveWindow() != top->m_hWnd)
    {
        ::SetActiveWindow(top->m_hWnd);
    }
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer)
{
    return ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer);
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent)
{
    return ::KillTimer(m_hWnd, nIDEvent);
}

BOOL CWnd::ChangeClipboardChain(HWND hWndNext)
{
    return ::ChangeClipboardChain(m_hWnd, hWndNext);
}

HWND CWnd::SetClipboardViewer()
{
    return ::SetClipboardViewer(m_hWnd);
}

BOOL CWnd::OpenClipboard()
{
    return ::OpenClipboard(m_hWnd);
}

CWnd* CWnd::GetClipboardOwner()
{
    return FromHandle(::GetClipboardOwner());
}

CWnd* CWnd::GetClipboardViewer()
{
    return FromHandle(::GetClipboardViewer());
}

CWnd* CWnd::GetOpenClipboardWindow()
{
    return FromHandle(::GetOpenClipboardWindow());
}

void CWnd::CreateSolidCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, nullptr, nWidth, nHeight);
}

void CWnd::CreateGrayCaret(int nWidth, int nHeight)
{
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(1), nWidth, nHeight);
}

CPoint CWnd::GetCaretPos()
{
    POINT point = {};
    ::GetCaretPos(&point);
    return CPoint(point);
}

void CWnd::SetCaretPos(POINT point)
{
    ::SetCaretPos(point.x, point.y);
}

void CWnd::HideCaret()
{
    ::HideCaret(m_hWnd);
}

void CWnd::ShowCaret()
{
    ::ShowCaret(m_hWnd);
}

void CWnd::DragAcceptFiles(BOOL bAccept)
{
    ::DragAcceptFiles(m_hWnd, bAccept);
}

BOOL CWnd::SetWindowContextHelpId(DWORD dwContextHelpId)
{
    return ::SetWindowContextHelpId(m_hWnd, dwContextHelpId);
}

DWORD CWnd::GetWindowContextHelpId() const
{
    return ::GetWindowContextHelpId(m_hWnd);
}
