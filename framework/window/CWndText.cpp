#include "framework/window/CWnd.h"

#include "framework/gdi/CFont.h"
#include "framework/window/CMenu.h"
#include "framework/window/CWinApp.h"

void CWnd::SetWindowText(LPCTSTR lpszString)
{
    ::SetWindowText(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const
{
    return ::GetWindowText(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const
{
    // The stated length is an upper bound: it may count bytes that the text does not have.
    const int length = ::GetWindowTextLength(m_hWnd);
    LPTSTR buffer = rString.GetBuffer(length + 1);
    const int copied = ::GetWindowText(m_hWnd, buffer, length + 1);
    rString.ReleaseBuffer(copied);
}

int CWnd::GetWindowTextLength() const
{
    return ::GetWindowTextLength(m_hWnd);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw)
{
    SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(pFont ? pFont->GetSafeHandle() : nullptr), bRedraw);
}

CFont* CWnd::GetFont() const
{
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

CMenu* CWnd::GetMenu() const
{
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu)
{
    return ::SetMenu(m_hWnd, pMenu->GetSafeHmenu());
}

void CWnd::DrawMenuBar()
{
    ::DrawMenuBar(m_hWnd);
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const
{
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

BOOL CWnd::HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite)
{
    return ::HiliteMenuItem(m_hWnd, pMenu->GetSafeHmenu(), nIDHiliteItem, nHilite);
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon)
{
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, bBigIcon ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(hIcon)));
}

HICON CWnd::GetIcon(BOOL bBigIcon) const
{
    return reinterpret_cast<HICON>(SendMessage(WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL));
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType)
{
    return ::MessageBox(GetSafeHwnd(), lpszText, lpszCaption ? lpszCaption : AfxGetAppName(), nType);
}
