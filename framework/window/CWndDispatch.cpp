#include "framework/window/CWnd.h"

#include "framework/window/CommandTest.h"
#include "framework/window/MessageLookup.h"

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LRESULT result = 0;
    return OnWndMsg(message, wParam, lParam, &result) ? result : DefWindowProc(message, wParam, lParam);
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult)
{
    LRESULT unused = 0;
    LRESULT& result = pResult ? *pResult : unused;
    if (message == WM_COMMAND)
    {
        const BOOL handled = OnCommand(wParam, lParam);
        result = handled ? 1 : result;
        return handled;
    }
    if (message == WM_NOTIFY)
    {
        return lParam != 0 && OnNotify(wParam, lParam, &result);
    }
    const AFX_MSGMAP_ENTRY* entry = vorn::FindMessageEntry(GetMessageMap(), message);
    if (!entry)
    {
        return FALSE;
    }
    AfxMessageCall call;
    call.message = message;
    call.wParam = wParam;
    call.lParam = lParam;
    const BOOL handled = entry->pfn(this, call);
    if (handled)
    {
        result = call.result;
    }
    return handled;
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT id = LOWORD(wParam);
    const auto control = reinterpret_cast<HWND>(lParam);
    if (!control)
    {
        // A menu or accelerator may be out of date: a command that is disabled now is not carried out.
        return id != 0 && (!vorn::IsCommandEnabled(*this, id) || OnCmdMsg(id, CN_COMMAND, nullptr, nullptr));
    }
    if (m_nFlags & kStateUpdatingData)
    {
        return TRUE;
    }
    // A control hears its own notifications whatever its number; number 0 is nobody's in a map of commands.
    return ReflectLastMsg(control) || (id != 0 && OnCmdMsg(id, HIWORD(wParam), nullptr, nullptr));
}

BOOL CWnd::OnNotify(WPARAM, LPARAM lParam, LRESULT* pResult)
{
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    const HWND control = header->hwndFrom;
    if (ReflectLastMsg(control, pResult))
    {
        return TRUE;
    }
    // The number of the sending window counts: a tooltip's header holds the number of a tool.
    const UINT id = static_cast<UINT>(::GetDlgCtrlID(control));
    AFX_NOTIFY notify = {pResult, header};
    return OnCmdMsg(id, static_cast<int>(MAKELONG(header->code, WM_NOTIFY)), &notify, nullptr);
}
