#include "framework/window/CWnd.h"

#include "framework/window/CMenu.h"
#include "framework/window/ThreadState.h"

// Messages that controls cause in their parent: unless the parent's class has a handler of its own, the control itself
// is asked first.

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT)
{
    LRESULT result = 0;
    if (ReflectLastMsg(pWnd->GetSafeHwnd(), &result))
    {
        return reinterpret_cast<HBRUSH>(result);
    }
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->CtlType == ODT_MENU)
    {
        if (CMenu* menu = CMenu::FromHandlePermanent(reinterpret_cast<HMENU>(lpDrawItemStruct->hwndItem)))
        {
            menu->DrawItem(lpDrawItemStruct);
        }
    }
    else if (ReflectLastMsg(lpDrawItemStruct->hwndItem))
    {
        return;
    }
    Default();
}

namespace
{

/// The popup that holds a command, in a menu or the popups below it.
HMENU FindPopupWith(HMENU menu, UINT id)
{
    const int count = menu ? ::GetMenuItemCount(menu) : 0;
    for (int position = 0; position < count; ++position)
    {
        const HMENU popup = ::GetSubMenu(menu, position);
        if (popup)
        {
            if (const HMENU found = FindPopupWith(popup, id))
            {
                return found;
            }
        }
        else if (::GetMenuItemID(menu, position) == id)
        {
            return menu;
        }
    }
    return nullptr;
}

CMenu* FindMeasuredMenu(HWND window, UINT id)
{
    const HMENU tracked = vorn::CurrentThreadState().trackedMenu;
    return CMenu::FromHandlePermanent(FindPopupWith(tracked ? tracked : ::GetMenu(window), id));
}

} // namespace

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    if (lpMeasureItemStruct->CtlType == ODT_MENU)
    {
        if (CMenu* menu = FindMeasuredMenu(m_hWnd, lpMeasureItemStruct->itemID))
        {
            menu->MeasureItem(lpMeasureItemStruct);
        }
    }
    else
    {
        CWnd* child = GetDescendantWindow(static_cast<int>(lpMeasureItemStruct->CtlID), TRUE);
        if (child && child->SendChildNotifyLastMsg())
        {
            return;
        }
    }
    Default();
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    LRESULT result = 0;
    return static_cast<int>(ReflectLastMsg(lpCompareItemStruct->hwndItem, &result) ? result : Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem))
    {
        Default();
    }
}

int CWnd::OnCharToItem(UINT, CListBox* pListBox, UINT)
{
    LRESULT result = 0;
    const HWND control = reinterpret_cast<CWnd*>(pListBox)->GetSafeHwnd();
    return static_cast<int>(ReflectLastMsg(control, &result) ? result : Default());
}

int CWnd::OnVKeyToItem(UINT, CListBox* pListBox, UINT)
{
    LRESULT result = 0;
    const HWND control = reinterpret_cast<CWnd*>(pListBox)->GetSafeHwnd();
    return static_cast<int>(ReflectLastMsg(control, &result) ? result : Default());
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (!ReflectLastMsg(reinterpret_cast<CWnd*>(pScrollBar)->GetSafeHwnd()))
    {
        Default();
    }
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar)
{
    if (!ReflectLastMsg(reinterpret_cast<CWnd*>(pScrollBar)->GetSafeHwnd()))
    {
        Default();
    }
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam)
{
    const bool namesChild = message == WM_CREATE || message == WM_DESTROY;
    if (!namesChild || !ReflectLastMsg(reinterpret_cast<HWND>(lParam)))
    {
        Default();
    }
}

void CWnd::OnSysColorChange()
{
    // Only top windows are told; controls of the framework hear it from them.
    if (!(GetStyle() & WS_CHILD))
    {
        SendMessageToDescendants(WM_SYSCOLORCHANGE, 0, 0, TRUE, TRUE);
    }
    Default();
}
