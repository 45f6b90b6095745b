#include "framework/window/CMenu.h"

#include "framework/gdi/CBitmap.h"

namespace
{

/// Menu functions take a bitmap in the place of the text.
LPCTSTR AsItem(const CBitmap* bitmap)
{
    return bitmap ? static_cast<LPCTSTR>(bitmap->GetSafeHandle()) : nullptr;
}

HBITMAP HandleOf(const CBitmap* bitmap)
{
    return bitmap ? static_cast<HBITMAP>(bitmap->GetSafeHandle()) : nullptr;
}

} // namespace

BOOL CMenu::DeleteMenu(UINT nPosition, UINT nFlags)
{
    return ::DeleteMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::AppendMenu(m_hMenu, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::AppendMenu(m_hMenu, nFlags | MF_BITMAP, nIDNewItem, AsItem(pBmp));
}

UINT CMenu::CheckMenuItem(UINT nIDCheckItem, UINT nCheck)
{
    return ::CheckMenuItem(m_hMenu, nIDCheckItem, nCheck);
}

BOOL CMenu::CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags)
{
    return ::CheckMenuRadioItem(m_hMenu, nIDFirst, nIDLast, nIDItem, nFlags);
}

UINT CMenu::EnableMenuItem(UINT nIDEnableItem, UINT nEnable)
{
    return static_cast<UINT>(::EnableMenuItem(m_hMenu, nIDEnableItem, nEnable));
}

UINT CMenu::GetMenuItemCount() const
{
    return static_cast<UINT>(::GetMenuItemCount(m_hMenu));
}

UINT CMenu::GetMenuItemID(int nPos) const
{
    return ::GetMenuItemID(m_hMenu, nPos);
}

UINT CMenu::GetMenuState(UINT nID, UINT nFlags) const
{
    return ::GetMenuState(m_hMenu, nID, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const
{
    return ::GetMenuString(m_hMenu, nIDItem, lpString, nMaxCount, nFlags);
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const
{
    rString.Empty();
    const int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length > 0)
    {
        const int copied = ::GetMenuString(m_hMenu, nIDItem, rString.GetBuffer(length + 1), length + 1, nFlags);
        rString.ReleaseBuffer(copied);
    }
    return rString.GetLength();
}

BOOL CMenu::GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    lpMenuItemInfo->cbSize = sizeof(*lpMenuItemInfo);
    return ::GetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    lpMenuItemInfo->cbSize = sizeof(*lpMenuItemInfo);
    return ::SetMenuItemInfo(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

CMenu* CMenu::GetSubMenu(int nPos) const
{
    return FromHandle(::GetSubMenu(m_hMenu, nPos));
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::InsertMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItem(pBmp));
}

BOOL CMenu::InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos)
{
    lpMenuItemInfo->cbSize = sizeof(*lpMenuItemInfo);
    return ::InsertMenuItem(m_hMenu, uItem, fByPos, lpMenuItemInfo);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, LPCTSTR lpszNewItem)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags, nIDNewItem, lpszNewItem);
}

BOOL CMenu::ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp)
{
    return ::ModifyMenu(m_hMenu, nPosition, nFlags | MF_BITMAP, nIDNewItem, AsItem(pBmp));
}

BOOL CMenu::RemoveMenu(UINT nPosition, UINT nFlags)
{
    return ::RemoveMenu(m_hMenu, nPosition, nFlags);
}

BOOL CMenu::SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked, const CBitmap* pBmpChecked)
{
    return ::SetMenuItemBitmaps(m_hMenu, nPosition, nFlags, HandleOf(pBmpUnchecked), HandleOf(pBmpChecked));
}

UINT CMenu::GetDefaultItem(UINT gmdiFlags, BOOL fByPos)
{
    return ::GetMenuDefaultItem(m_hMenu, static_cast<UINT>(fByPos), gmdiFlags);
}

BOOL CMenu::SetDefaultItem(UINT uItem, BOOL fByPos)
{
    return ::SetMenuDefaultItem(m_hMenu, uItem, static_cast<UINT>(fByPos));
}

BOOL CMenu::SetMenuContextHelpId(DWORD dwContextHelpId)
{
    return ::SetMenuContextHelpId(m_hMenu, dwContextHelpId);
}

DWORD CMenu::GetMenuContextHelpId() const
{
    return ::GetMenuContextHelpId(m_hMenu);
}
