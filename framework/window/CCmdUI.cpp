#include "framework/window/CCmdUI.h"

#include "framework/window/CMenu.h"
#include "framework/window/CWnd.h"

namespace
{

/// Whether a control has a check state of its own.
bool IsCheckable(HWND control)
{
    return (::SendMessage(control, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
}

/// A control that is about to be disabled must not keep the focus.
void MoveFocusOn(HWND control)
{
    if (::GetFocus() == control)
    {
        ::SendMessage(::GetParent(control), WM_NEXTDLGCTL, 0, FALSE);
    }
}

void SetRadioLook(HMENU menu, UINT index, bool radio)
{
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE;
    if (::GetMenuItemInfo(menu, index, TRUE, &info))
    {
        info.fType = radio ? info.fType | MFT_RADIOCHECK : info.fType & ~static_cast<UINT>(MFT_RADIOCHECK);
        ::SetMenuItemInfo(menu, index, TRUE, &info);
    }
}

void SetItemText(HMENU menu, UINT index, LPCTSTR text)
{
    MENUITEMINFO info = {};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_STRING;
    info.dwTypeData = const_cast<LPTSTR>(text); // the record serves reading too; nothing is written here
    ::SetMenuItemInfo(menu, index, TRUE, &info);
}

} // namespace

CCmdUI::~CCmdUI() = default;

void CCmdUI::ContinueRouting()
{
    m_bContinueRouting = TRUE;
}

void CCmdUI::Enable(BOOL bOn)
{
    m_bEnableChanged = TRUE;
    if (m_pMenu)
    {
        // An item that is itself a popup is not changed through the popup's own update.
        if (!m_pSubMenu)
        {
            ::EnableMenuItem(m_pMenu->m_hMenu, m_nIndex,
                             MF_BYPOSITION | static_cast<UINT>(bOn ? MF_ENABLED : MF_DISABLED | MF_GRAYED));
        }
    }
    else if (m_pOther)
    {
        if (!bOn)
        {
            MoveFocusOn(m_pOther->m_hWnd);
        }
        m_pOther->EnableWindow(bOn);
    }
}

void CCmdUI::SetCheck(int nCheck)
{
    if (m_pMenu)
    {
        if (!m_pSubMenu)
        {
            ::CheckMenuItem(m_pMenu->m_hMenu, m_nIndex,
                            MF_BYPOSITION | static_cast<UINT>(nCheck ? MF_CHECKED : MF_UNCHECKED));
            SetRadioLook(m_pMenu->m_hMenu, m_nIndex, false);
        }
    }
    else if (m_pOther && IsCheckable(m_pOther->m_hWnd))
    {
        m_pOther->SendMessage(BM_SETCHECK, static_cast<WPARAM>(nCheck));
    }
}

void CCmdUI::SetRadio(BOOL bOn)
{
    SetCheck(bOn ? 1 : 0);
    if (m_pMenu && !m_pSubMenu && bOn)
    {
        SetRadioLook(m_pMenu->m_hMenu, m_nIndex, true);
    }
}

void CCmdUI::SetText(LPCTSTR lpszText)
{
    if (!lpszText)
    {
        return;
    }
    if (m_pMenu)
    {
        if (!m_pSubMenu)
        {
            SetItemText(m_pMenu->m_hMenu, m_nIndex, lpszText);
        }
    }
    else if (m_pOther)
    {
        CString before;
        m_pOther->GetWindowText(before);
        if (before != lpszText)
        {
            m_pOther->SetWindowText(lpszText);
        }
    }
}

BOOL CCmdUI::DoUpdate(CCmdTarget* pTarget, BOOL bDisableIfNoHndler)
{
    // Separators and static texts take no part.
    if (m_nID == 0 || LOWORD(m_nID) == 0xFFFF)
    {
        return TRUE;
    }
    m_bEnableChanged = FALSE;
    const BOOL answered = pTarget->OnCmdMsg(m_nID, CN_UPDATE_COMMAND_UI, this, nullptr);
    // A handler may have taken its item out of the menu: what stands there now is another one.
    const bool hasItem =
        !m_pMenu || m_pSubMenu || ::GetMenuItemID(m_pMenu->m_hMenu, static_cast<int>(m_nIndex)) == m_nID;
    if (bDisableIfNoHndler && !m_bEnableChanged && hasItem)
    {
        AFX_CMDHANDLERINFO info = {};
        Enable(pTarget->OnCmdMsg(m_nID, CN_COMMAND, this, &info));
    }
    return answered;
}
