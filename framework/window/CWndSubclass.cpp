#include "framework/window/CWnd.h"

#include "framework/window/ModuleState.h"
#include "framework/window/WindowMap.h"

namespace
{

bool IsOfThisThread(HWND window)
{
    return ::GetWindowThreadProcessId(window, nullptr) == ::GetCurrentThreadId();
}

WNDPROC ProcedureOf(HWND window)
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtr(window, GWLP_WNDPROC));
}

} // namespace

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    return ::IsWindow(hWnd) && IsOfThisThread(hWnd) && AttachAndSubclass(hWnd);
}

BOOL CWnd::SubclassDlgItem(UINT nID, CWnd* pParent)
{
    const HWND parent = pParent ? pParent->m_hWnd : nullptr;
    const HWND item = parent ? ::GetDlgItem(parent, static_cast<int>(nID)) : nullptr;
    return item && SubclassWindow(item);
}

HWND CWnd::UnsubclassWindow()
{
    const HWND window = m_hWnd;
    WNDPROC* super = GetSuperWndProcAddr();
    if (window && *super && ProcedureOf(window) == &AfxWndProc)
    {
        ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(*super));
        *super = nullptr;
    }
    // When somebody else subclassed the window after us, our procedure must stay in the chain; Detach remembers
    // where it leads.
    return Detach();
}
