#pragma once

/// @file
/// State of one user-interface item (menu item, tool button, status pane) while the command
/// target that knows about it brings it up to date.
#include "framework/core/Export.h"

#include <windows.h>

class CCmdTarget;
class CMenu;
class CWnd;

/// Handed to ON_UPDATE_COMMAND_UI handlers. This class serves menu items, and buttons of a
/// window (m_pOther); control bars derive their own.
class HOSTFRAMEWORK_API CCmdUI
{
public:
    CCmdUI() = default;
    CCmdUI(const CCmdUI&) = delete;
    CCmdUI& operator=(const CCmdUI&) = delete;
    virtual ~CCmdUI();

    UINT m_nID = 0;                 ///< command id
    UINT m_nIndex = 0;              ///< position in the menu or bar
    CMenu* m_pMenu = nullptr;       ///< menu of the item, null for others
    CMenu* m_pSubMenu = nullptr;    ///< the popup itself when a popup item is asked about (then m_pMenu too)
    CMenu* m_pParentMenu = nullptr; ///< menu that holds the popup in m_pMenu, when known
    CWnd* m_pOther = nullptr;       ///< window of the item when it is not in a menu
    BOOL m_bEnableChanged = FALSE;
    BOOL m_bContinueRouting = FALSE;
    UINT m_nIndexMax = 0; ///< number of items in the menu or bar

    /// Lets the update go on to further command targets, as if this handler did not exist.
    void ContinueRouting();
    virtual void Enable(BOOL bOn = TRUE);
    /// @param nCheck 0 not checked, 1 checked, 2 indeterminate (a menu shows it checked)
    virtual void SetCheck(int nCheck = 1);
    /// As SetCheck, with a dot instead of a check mark in menus.
    virtual void SetRadio(BOOL bOn = TRUE);
    virtual void SetText(LPCTSTR lpszText);

    /// Sends the update to @p pTarget. With @p bDisableIfNoHndler an item for which nobody
    /// handles the command is disabled.
    /// @return whether somebody answered
    BOOL DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);
};
