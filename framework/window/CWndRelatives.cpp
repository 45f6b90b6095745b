#include "framework/window/CWnd.h"

#include "framework/window/CWinApp.h"

CWnd* CWnd::GetParent() const
{
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent)
{
    return FromHandle(::SetParent(m_hWnd, pWndNewParent->GetSafeHwnd()));
}

CWnd* CWnd::GetOwner() const
{
    return m_hWndOwner ? FromHandle(m_hWndOwner) : GetParent();
}

void CWnd::SetOwner(CWnd* pOwnerWnd)
{
    m_hWndOwner = pOwnerWnd->GetSafeHwnd();
}

namespace
{

bool IsChildWindow(HWND window)
{
    return (::GetWindowLong(window, GWL_STYLE) & WS_CHILD) != 0;
}

HWND ParentOwner(HWND window)
{
    return IsChildWindow(window) ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}

/// Where the child-parent relation ends.
HWND TopLevelParent(HWND window)
{
    while (window && IsChildWindow(window))
    {
        window = ::GetParent(window);
    }
    return window;
}

} // namespace

CWnd* CWnd::GetParentOwner() const
{
    return m_hWnd ? FromHandle(ParentOwner(m_hWnd)) : nullptr;
}

CWnd* CWnd::GetTopLevelParent() const
{
    HWND window = m_hWnd;
    for (HWND parent = window ? ::GetParent(window) : nullptr; parent; parent = ::GetParent(parent))
    {
        window = parent;
    }
    return FromHandle(window);
}

CWnd* CWnd::GetTopLevelOwner() const
{
    HWND window = m_hWnd;
    for (HWND owner = window ? ParentOwner(window) : nullptr; owner; owner = ParentOwner(owner))
    {
        window = owner;
    }
    return FromHandle(window);
}

CWnd* CWnd::EnsureTopLevelParent()
{
    CWnd* parent = GetTopLevelParent();
    return parent ? parent : this;
}

BOOL CWnd::IsFrameWnd() const
{
    return FALSE;
}

CWnd* CWnd::GetSafeOwner(CWnd* pParent, HWND* pTopLevel)
{
    // Asked first: after a call through the pointer the compiler takes it for one that is not null.
    HWND window = pParent ? pParent->m_hWnd : nullptr;
    if (!window)
    {
        window = AfxGetMainWnd()->GetSafeHwnd();
    }
    window = TopLevelParent(window);
    // The top window is the one to be disabled; its last active popup owns the new dialog.
    HWND top = window;
    for (HWND owner = top ? ParentOwner(top) : nullptr; owner; owner = ParentOwner(owner))
    {
        top = owner;
    }
    if (!pParent && window)
    {
        window = ::GetLastActivePopup(window);
    }
    if (pTopLevel)
    {
        *pTopLevel = top && top != window && ::IsWindowEnabled(top) ? top : nullptr;
    }
    return FromHandle(window);
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const
{
    return GetDescendantWindow(m_hWnd, nID, bOnlyPerm);
}

CWnd* CWnd::GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm)
{
    if (const HWND child = ::GetDlgItem(hWnd, nID))
    {
        // A child of the child with the same number counts first.
        if (CWnd* window = ::GetTopWindow(child) ? GetDescendantWindow(child, nID, bOnlyPerm) : nullptr)
        {
            return window;
        }
        if (CWnd* window = bOnlyPerm ? FromHandlePermanent(child) : FromHandle(child))
        {
            return window;
        }
    }
    for (HWND child = ::GetTopWindow(hWnd); child; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        if (CWnd* window = GetDescendantWindow(child, nID, bOnlyPerm))
        {
            return window;
        }
    }
    return nullptr;
}

CWnd* CWnd::GetWindow(UINT nCmd) const
{
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetTopWindow() const
{
    return FromHandle(::GetTopWindow(m_hWnd));
}

CWnd* CWnd::GetNextWindow(UINT nFlag) const
{
    return FromHandle(::GetWindow(m_hWnd, nFlag));
}

CWnd* CWnd::GetLastActivePopup() const
{
    return FromHandle(::GetLastActivePopup(m_hWnd));
}

BOOL CWnd::IsChild(const CWnd* pWnd) const
{
    return ::IsChild(m_hWnd, pWnd->GetSafeHwnd());
}

CWnd* CWnd::ChildWindowFromPoint(POINT point) const
{
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const
{
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd* CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName)
{
    return FromHandle(::FindWindow(lpszClassName, lpszWindowName));
}

CWnd* CWnd::WindowFromPoint(POINT point)
{
    return FromHandle(::WindowFromPoint(point));
}

CWnd* CWnd::GetDesktopWindow()
{
    return FromHandle(::GetDesktopWindow());
}

CWnd* CWnd::GetForegroundWindow()
{
    return FromHandle(::GetForegroundWindow());
}

CWnd* CWnd::GetActiveWindow()
{
    return FromHandle(::GetActiveWindow());
}

CWnd* CWnd::GetFocus()
{
    return FromHandle(::GetFocus());
}

CWnd* CWnd::GetCapture()
{
    return FromHandle(::GetCapture());
}
