#pragma once

/// @file
/// Menu handle wrapper.
#include "framework/core/CString.h"
#include "framework/core/Export.h"
#include "framework/core/Object.h"

class CBitmap;
class CWnd;

/// Wrapper of a menu. The destructor destroys the menu, unless it was detached.
class HOSTFRAMEWORK_API CMenu : public CObject
{
    DECLARE_DYNAMIC(CMenu)

public:
    CMenu();
    ~CMenu() override;

    HMENU m_hMenu; ///< the menu; null when none is attached

    BOOL CreateMenu();
    BOOL CreatePopupMenu();
    /// Loads from the resource chain.
    BOOL LoadMenu(LPCTSTR lpszResourceName);
    BOOL LoadMenu(UINT nIDResource);
    BOOL LoadMenuIndirect(const void* lpMenuTemplate);
    BOOL DestroyMenu();

    /// The object of a menu, temporary if nobody wraps it.
    static CMenu* FromHandle(HMENU hMenu);
    /// The permanent object of a menu, or null.
    static CMenu* FromHandlePermanent(HMENU hMenu);
    /// Frees this thread's temporary menu objects.
    static void DeleteTempMap();
    BOOL Attach(HMENU hMenu);
    HMENU Detach();
    HMENU GetSafeHmenu() const;
    operator HMENU() const;
    bool operator==(const CMenu& menu) const;

    BOOL DeleteMenu(UINT nPosition, UINT nFlags);
    BOOL TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect = nullptr);
    BOOL TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm);
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL AppendMenu(UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    UINT CheckMenuItem(UINT nIDCheckItem, UINT nCheck);
    BOOL CheckMenuRadioItem(UINT nIDFirst, UINT nIDLast, UINT nIDItem, UINT nFlags);
    UINT EnableMenuItem(UINT nIDEnableItem, UINT nEnable);
    UINT GetMenuItemCount() const;
    UINT GetMenuItemID(int nPos) const;
    UINT GetMenuState(UINT nID, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, LPTSTR lpString, int nMaxCount, UINT nFlags) const;
    int GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const;
    BOOL GetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL SetMenuItemInfo(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    /// Popup at a position; temporary object if nobody wraps it.
    CMenu* GetSubMenu(int nPos) const;
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL InsertMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL InsertMenuItem(UINT uItem, LPMENUITEMINFO lpMenuItemInfo, BOOL fByPos = FALSE);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem = 0, LPCTSTR lpszNewItem = nullptr);
    BOOL ModifyMenu(UINT nPosition, UINT nFlags, UINT_PTR nIDNewItem, const CBitmap* pBmp);
    BOOL RemoveMenu(UINT nPosition, UINT nFlags);
    BOOL SetMenuItemBitmaps(UINT nPosition, UINT nFlags, const CBitmap* pBmpUnchecked, const CBitmap* pBmpChecked);
    UINT GetDefaultItem(UINT gmdiFlags, BOOL fByPos = FALSE);
    BOOL SetDefaultItem(UINT uItem, BOOL fByPos = FALSE);
    BOOL SetMenuContextHelpId(DWORD dwContextHelpId);
    DWORD GetMenuContextHelpId() const;

    /// Owner-draw items; the base versions do nothing.
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
};
