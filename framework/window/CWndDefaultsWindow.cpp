#include "framework/window/CWnd.h"

// Handlers of messages that nobody handles otherwise: each lets the window do what it did before.

void CWnd::OnActivate(UINT, CWnd*, BOOL)
{
    Default();
}

void CWnd::OnActivateApp(BOOL, DWORD)
{
    Default();
}

void CWnd::OnCancelMode()
{
    Default();
}

void CWnd::OnChildActivate()
{
    Default();
}

void CWnd::OnClose()
{
    Default();
}

int CWnd::OnCreate(LPCREATESTRUCT)
{
    return static_cast<int>(Default());
}

void CWnd::OnDestroy()
{
    Default();
}

void CWnd::OnDropFiles(HDROP)
{
    Default();
}

void CWnd::OnEnable(BOOL)
{
    Default();
}

void CWnd::OnEnterIdle(UINT, CWnd*)
{
    Default();
}

void CWnd::OnEnterSizeMove()
{
    Default();
}

BOOL CWnd::OnEraseBkgnd(CDC*)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnExitSizeMove()
{
    Default();
}

UINT CWnd::OnGetDlgCode()
{
    return static_cast<UINT>(Default());
}

void CWnd::OnGetMinMaxInfo(MINMAXINFO*)
{
    Default();
}

void CWnd::OnIconEraseBkgnd(CDC*)
{
    Default();
}

void CWnd::OnKillFocus(CWnd*)
{
    Default();
}

void CWnd::OnMDIActivate(BOOL, CWnd*, CWnd*)
{
    Default();
}

void CWnd::OnMove(int, int)
{
    Default();
}

void CWnd::OnMoving(UINT, LPRECT)
{
    Default();
}

BOOL CWnd::OnNcActivate(BOOL)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*)
{
    Default();
}

BOOL CWnd::OnNcCreate(LPCREATESTRUCT)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnNcPaint()
{
    Default();
}

void CWnd::OnPaint()
{
    Default();
}

LRESULT CWnd::OnPrintClient(CDC*, UINT)
{
    return Default();
}

HCURSOR CWnd::OnQueryDragIcon()
{
    return reinterpret_cast<HCURSOR>(Default());
}

void CWnd::OnSetFocus(CWnd*)
{
    Default();
}

void CWnd::OnShowWindow(BOOL, UINT)
{
    Default();
}

void CWnd::OnSize(UINT, int, int)
{
    Default();
}

void CWnd::OnSizing(UINT, LPRECT)
{
    Default();
}

void CWnd::OnStyleChanged(int, LPSTYLESTRUCT)
{
    Default();
}

void CWnd::OnStyleChanging(int, LPSTYLESTRUCT)
{
    Default();
}

void CWnd::OnWindowPosChanged(WINDOWPOS*)
{
    Default();
}

void CWnd::OnWindowPosChanging(WINDOWPOS*)
{
    Default();
}
