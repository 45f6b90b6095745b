#include "framework/window/CMenu.h"

#include "framework/window/CWnd.h"
#include "framework/window/MenuMap.h"
#include "framework/window/ModuleState.h"
#include "framework/window/ThreadState.h"

IMPLEMENT_DYNAMIC(CMenu, CObject)

CMenu::CMenu() : m_hMenu(nullptr)
{
}

CMenu::~CMenu()
{
    DestroyMenu();
}

CMenu* CMenu::FromHandle(HMENU hMenu)
{
    return vorn::MenuMap().FromHandle(hMenu);
}

CMenu* CMenu::FromHandlePermanent(HMENU hMenu)
{
    return hMenu ? vorn::MenuMap().LookupPermanent(hMenu) : nullptr;
}

void CMenu::DeleteTempMap()
{
    vorn::MenuMap().FreeTemporary(0);
}

BOOL CMenu::Attach(HMENU hMenu)
{
    auto& map = vorn::MenuMap();
    if (!hMenu || m_hMenu || map.LookupPermanent(hMenu))
    {
        return FALSE;
    }
    map.SetPermanent(hMenu, this);
    m_hMenu = hMenu;
    return TRUE;
}

HMENU CMenu::Detach()
{
    const HMENU menu = m_hMenu;
    if (menu && FromHandlePermanent(menu) == this)
    {
        vorn::MenuMap().RemovePermanent(menu);
    }
    m_hMenu = nullptr;
    return menu;
}

BOOL CMenu::DestroyMenu()
{
    return m_hMenu && ::DestroyMenu(Detach());
}

HMENU CMenu::GetSafeHmenu() const
{
    // Callers may ask through a null pointer; the detour keeps the compiler from assuming that they do not.
    const CMenu* volatile self = this;
    const CMenu* menu = self;
    return menu ? menu->m_hMenu : nullptr;
}

CMenu::operator HMENU() const
{
    return m_hMenu;
}

bool CMenu::operator==(const CMenu& menu) const
{
    return m_hMenu == menu.m_hMenu;
}

BOOL CMenu::CreateMenu()
{
    return Attach(::CreateMenu());
}

BOOL CMenu::CreatePopupMenu()
{
    return Attach(::CreatePopupMenu());
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName)
{
    return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

BOOL CMenu::LoadMenu(UINT nIDResource)
{
    return LoadMenu(MAKEINTRESOURCE(nIDResource));
}

BOOL CMenu::LoadMenuIndirect(const void* lpMenuTemplate)
{
    return Attach(::LoadMenuIndirect(lpMenuTemplate));
}

BOOL CMenu::TrackPopupMenu(UINT nFlags, int x, int y, CWnd* pWnd, LPCRECT lpRect)
{
    HMENU& tracked = vorn::CurrentThreadState().trackedMenu;
    const HMENU before = tracked;
    tracked = m_hMenu;
    const BOOL result = ::TrackPopupMenu(m_hMenu, nFlags, x, y, 0, pWnd->GetSafeHwnd(), lpRect);
    tracked = before;
    return result;
}

BOOL CMenu::TrackPopupMenuEx(UINT fuFlags, int x, int y, CWnd* pWnd, LPTPMPARAMS lptpm)
{
    HMENU& tracked = vorn::CurrentThreadState().trackedMenu;
    const HMENU before = tracked;
    tracked = m_hMenu;
    const BOOL result = ::TrackPopupMenuEx(m_hMenu, fuFlags, x, y, pWnd->GetSafeHwnd(), lptpm);
    tracked = before;
    return result;
}

void CMenu::DrawItem(LPDRAWITEMSTRUCT)
{
}

void CMenu::MeasureItem(LPMEASUREITEMSTRUCT)
{
}
