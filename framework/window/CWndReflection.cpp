#include "framework/window/CWnd.h"

#include "framework/window/ThreadState.h"

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* pResult)
{
    const MSG message = vorn::CurrentThreadState().currentMessage;
    return OnChildNotify(message.message, message.wParam, message.lParam, pResult);
}

BOOL CWnd::ReflectLastMsg(HWND hWndChild, LRESULT* pResult)
{
    CWnd* child = FromHandlePermanent(hWndChild);
    return child && child->SendChildNotifyLastMsg(pResult);
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    return ReflectChildNotify(message, wParam, lParam, pResult);
}

BOOL CWnd::ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    const UINT reflected = WM_REFLECT_BASE + message;
    switch (message)
    {
    case WM_COMMAND:
        return OnCmdMsg(0, static_cast<int>(MAKELONG(HIWORD(wParam), reflected)), nullptr, nullptr);

    case WM_NOTIFY:
    {
        LRESULT unused = 0;
        auto* header = reinterpret_cast<NMHDR*>(lParam);
        AFX_NOTIFY notify = {pResult ? pResult : &unused, header};
        return OnCmdMsg(0, static_cast<int>(MAKELONG(header->code, reflected)), &notify, nullptr);
    }

    default:
        return OnWndMsg(reflected, wParam, lParam, pResult);
    }
}
