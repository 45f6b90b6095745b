#include "framework/window/CWnd.h"

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::PostMessage(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::SendNotifyMessage(m_hWnd, message, wParam, lParam);
}

void CWnd::SendMessageToDescendants(UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    SendMessageToDescendants(m_hWnd, message, wParam, lParam, bDeep, bOnlyPerm);
}

void CWnd::SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep, BOOL bOnlyPerm)
{
    HWND next = nullptr;
    for (HWND child = ::GetTopWindow(hWnd); child; child = next)
    {
        next = ::GetWindow(child, GW_HWNDNEXT); // the child may go away in its handler
        if (!bOnlyPerm)
        {
            ::SendMessage(child, message, wParam, lParam);
        }
        else if (CWnd* window = FromHandlePermanent(child))
        {
            AfxCallWndProc(window, child, message, wParam, lParam);
        }
        if (bDeep && ::IsWindow(child))
        {
            SendMessageToDescendants(child, message, wParam, lParam, bDeep, bOnlyPerm);
        }
    }
}

BOOL CWnd::PreTranslateMessage(MSG* pMsg)
{
    FilterToolTipMessage(pMsg);
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND hWndStop, MSG* pMsg)
{
    for (HWND window = pMsg->hwnd; window; window = ::GetParent(window))
    {
        CWnd* object = FromHandlePermanent(window);
        if (object && object->PreTranslateMessage(pMsg))
        {
            return TRUE;
        }
        if (window == hWndStop)
        {
            break;
        }
    }
    return FALSE;
}

BOOL CWnd::PreTranslateInput(LPMSG lpMsg)
{
    const UINT message = lpMsg->message;
    const bool isKey = message >= WM_KEYFIRST && message <= WM_KEYLAST;
    const bool isMouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
    return (isKey || isMouse) && IsDialogMessage(lpMsg);
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg)
{
    return ::IsDialogMessage(m_hWnd, lpMsg);
}
