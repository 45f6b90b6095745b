#include "framework/window/CWnd.h"

// Handlers of messages that nobody handles otherwise: each lets the window do what it did before.

void CWnd::OnAppCommand(CWnd*, UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnCaptureChanged(CWnd*)
{
    Default();
}

void CWnd::OnChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnContextMenu(CWnd*, CPoint)
{
    Default();
}

void CWnd::OnDeadChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnHotKey(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnInputLangChange(UINT, UINT)
{
    Default();
}

void CWnd::OnInputLangChangeRequest(UINT, UINT)
{
    Default();
}

void CWnd::OnKeyDown(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnKeyUp(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnLButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnLButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnMButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnMButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnMButtonUp(UINT, CPoint)
{
    Default();
}

int CWnd::OnMouseActivate(CWnd*, UINT, UINT)
{
    return static_cast<int>(Default());
}

void CWnd::OnMouseHWheel(UINT, short, CPoint)
{
    Default();
}

void CWnd::OnMouseHover(UINT, CPoint)
{
    Default();
}

void CWnd::OnMouseLeave()
{
    Default();
}

void CWnd::OnMouseMove(UINT, CPoint)
{
    Default();
}

BOOL CWnd::OnMouseWheel(UINT, short, CPoint)
{
    return static_cast<BOOL>(Default());
}

LRESULT CWnd::OnNcHitTest(CPoint)
{
    return Default();
}

void CWnd::OnNcLButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcLButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcLButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMouseHover(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcMouseLeave()
{
    Default();
}

void CWnd::OnNcMouseMove(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcRButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcRButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnNcRButtonUp(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonDblClk(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonDown(UINT, CPoint)
{
    Default();
}

void CWnd::OnRButtonUp(UINT, CPoint)
{
    Default();
}

BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnSysChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnSysDeadChar(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnSysKeyDown(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnSysKeyUp(UINT, UINT, UINT)
{
    Default();
}

void CWnd::OnXButtonDblClk(UINT, UINT, CPoint)
{
    Default();
}

void CWnd::OnXButtonDown(UINT, UINT, CPoint)
{
    Default();
}

void CWnd::OnXButtonUp(UINT, UINT, CPoint)
{
    Default();
}
