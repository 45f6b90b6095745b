#include "framework/window/CWnd.h"

// Handlers of messages that nobody handles otherwise: each lets the window do what it did before.

void CWnd::OnAskCbFormatName(UINT, LPTSTR)
{
    Default();
}

void CWnd::OnChangeCbChain(HWND, HWND)
{
    Default();
}

void CWnd::OnChangeUIState(UINT, UINT)
{
    Default();
}

void CWnd::OnClipboardUpdate()
{
    Default();
}

void CWnd::OnCompacting(UINT)
{
    Default();
}

BOOL CWnd::OnCopyData(CWnd*, COPYDATASTRUCT*)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnDestroyClipboard()
{
    Default();
}

void CWnd::OnDevModeChange(LPTSTR)
{
    Default();
}

BOOL CWnd::OnDeviceChange(UINT, DWORD_PTR)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnDrawClipboard()
{
    Default();
}

void CWnd::OnEndSession(BOOL)
{
    Default();
}

void CWnd::OnEnterMenuLoop(BOOL)
{
    Default();
}

void CWnd::OnExitMenuLoop(BOOL)
{
    Default();
}

void CWnd::OnFontChange()
{
    Default();
}

void CWnd::OnHScrollClipboard(CWnd*, UINT, UINT)
{
    Default();
}

BOOL CWnd::OnHelpInfo(HELPINFO*)
{
    return static_cast<BOOL>(Default());
}

void CWnd::OnInitMenu(CMenu*)
{
    Default();
}

void CWnd::OnInitMenuPopup(CMenu*, UINT, BOOL)
{
    Default();
}

LRESULT CWnd::OnMenuChar(UINT, UINT, CMenu*)
{
    return Default();
}

void CWnd::OnMenuRButtonUp(UINT, CMenu*)
{
    Default();
}

void CWnd::OnMenuSelect(UINT, UINT, HMENU)
{
    Default();
}

UINT CWnd::OnNotifyFormat(CWnd*, UINT)
{
    return static_cast<UINT>(Default());
}

void CWnd::OnPaintClipboard(CWnd*, HGLOBAL)
{
    Default();
}

void CWnd::OnPaletteChanged(CWnd*)
{
    Default();
}

void CWnd::OnPaletteIsChanging(CWnd*)
{
    Default();
}

UINT CWnd::OnPowerBroadcast(UINT, LPARAM)
{
    return static_cast<UINT>(Default());
}

BOOL CWnd::OnQueryEndSession()
{
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnQueryNewPalette()
{
    return static_cast<BOOL>(Default());
}

BOOL CWnd::OnQueryOpen()
{
    return static_cast<BOOL>(Default());
}

UINT CWnd::OnQueryUIState()
{
    return static_cast<UINT>(Default());
}

void CWnd::OnRenderAllFormats()
{
    Default();
}

void CWnd::OnRenderFormat(UINT)
{
    Default();
}

void CWnd::OnSettingChange(UINT, LPCTSTR)
{
    Default();
}

void CWnd::OnSizeClipboard(CWnd*, HGLOBAL)
{
    Default();
}

void CWnd::OnSpoolerStatus(UINT, UINT)
{
    Default();
}

void CWnd::OnSysCommand(UINT, LPARAM)
{
    Default();
}

void CWnd::OnTCard(UINT, DWORD_PTR)
{
    Default();
}

LRESULT CWnd::OnThemeChanged()
{
    return Default();
}

void CWnd::OnTimeChange()
{
    Default();
}

void CWnd::OnTimer(UINT_PTR)
{
    Default();
}

void CWnd::OnUnInitMenuPopup(CMenu*, UINT)
{
    Default();
}

void CWnd::OnUpdateUIState(UINT, UINT)
{
    Default();
}

void CWnd::OnUserChanged()
{
    Default();
}

void CWnd::OnVScrollClipboard(CWnd*, UINT, UINT)
{
    Default();
}

void CWnd::OnWinIniChange(LPCTSTR)
{
    Default();
}
