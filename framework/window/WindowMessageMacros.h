#pragma once

/// @file
/// Message map macros for window messages: ON_WM_NAME() connects WM_NAME with the member
/// function OnName, whose signature stands in the macro.

class CListBox;
class CScrollBar;

#define AFX_WM_VOID(message, name, parameters, arguments)                                                              \
    AFX_ID_VOID(message, 0, 0, 0, &ThisClass::name, parameters, arguments)
#define AFX_WM_VALUE(message, name, type, parameters, arguments)                                                       \
    AFX_ID_ENTRY(message, 0, 0, 0, call.Answer(AFX_BIND(&ThisClass::name, type, parameters) arguments); return TRUE;)

/// Stands for the seven WM_CTLCOLOR... messages (message box, edit, list box, button, dialog,
/// scroll bar, static), which one handler takes together.
inline constexpr UINT AFX_WM_CTLCOLOR = 0x0019;

#define ON_WM_CTLCOLOR()                                                                                               \
    AFX_WM_VALUE(AFX_WM_CTLCOLOR, OnCtlColor, HBRUSH, (CDC*, CWnd*, UINT),                                             \
                 (call.DcW(), call.WndL(), call.CtlColorType()))
#define ON_WM_ACTIVATE()                                                                                               \
    AFX_WM_VOID(WM_ACTIVATE, OnActivate, (UINT, CWnd*, BOOL), (call.LoWordW(), call.WndL(), call.HiWordW() != 0))
#define ON_WM_ACTIVATEAPP()                                                                                            \
    AFX_WM_VOID(WM_ACTIVATEAPP, OnActivateApp, (BOOL, DWORD), (call.BoolW(), static_cast<DWORD>(call.lParam)))
#define ON_WM_APPCOMMAND()                                                                                             \
    AFX_WM_VOID(WM_APPCOMMAND, OnAppCommand, (CWnd*, UINT, UINT, UINT),                                                \
                (call.WndW(), call.AppCommand(), call.AppDevice(), call.LoWordL()))
#define ON_WM_ASKCBFORMATNAME()                                                                                        \
    AFX_WM_VOID(WM_ASKCBFORMATNAME, OnAskCbFormatName, (UINT, LPTSTR), (call.UintW(), call.PointerL<LPTSTR>()))
#define ON_WM_CANCELMODE() AFX_WM_VOID(WM_CANCELMODE, OnCancelMode, (), ())
#define ON_WM_CAPTURECHANGED() AFX_WM_VOID(WM_CAPTURECHANGED, OnCaptureChanged, (CWnd*), (call.WndL()))
#define ON_WM_CHANGECBCHAIN()                                                                                          \
    AFX_WM_VOID(WM_CHANGECBCHAIN, OnChangeCbChain, (HWND, HWND), (call.PointerW<HWND>(), call.PointerL<HWND>()))
#define ON_WM_CHANGEUISTATE()                                                                                          \
    AFX_WM_VOID(WM_CHANGEUISTATE, OnChangeUIState, (UINT, UINT), (call.LoWordW(), call.HiWordW()))
#define ON_WM_CHAR() AFX_WM_VOID(WM_CHAR, OnChar, (UINT, UINT, UINT), (call.UintW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_CHARTOITEM()                                                                                             \
    AFX_WM_VALUE(WM_CHARTOITEM, OnCharToItem, int, (UINT, CListBox*, UINT),                                            \
                 (call.LoWordW(), call.ControlL<CListBox>(), call.HiWordW()))
#define ON_WM_CHILDACTIVATE() AFX_WM_VOID(WM_CHILDACTIVATE, OnChildActivate, (), ())
#define ON_WM_CLIPBOARDUPDATE() AFX_WM_VOID(WM_CLIPBOARDUPDATE, OnClipboardUpdate, (), ())
#define ON_WM_CLOSE() AFX_WM_VOID(WM_CLOSE, OnClose, (), ())
#define ON_WM_COMPACTING() AFX_WM_VOID(WM_COMPACTING, OnCompacting, (UINT), (call.UintW()))
#define ON_WM_COMPAREITEM()                                                                                            \
    AFX_WM_VALUE(WM_COMPAREITEM, OnCompareItem, int, (int, LPCOMPAREITEMSTRUCT),                                       \
                 (static_cast<int>(call.wParam), call.PointerL<LPCOMPAREITEMSTRUCT>()))
#define ON_WM_CONTEXTMENU() AFX_WM_VOID(WM_CONTEXTMENU, OnContextMenu, (CWnd*, CPoint), (call.WndW(), call.PointL()))
#define ON_WM_COPYDATA()                                                                                               \
    AFX_WM_VALUE(WM_COPYDATA, OnCopyData, BOOL, (CWnd*, COPYDATASTRUCT*),                                              \
                 (call.WndW(), call.PointerL<COPYDATASTRUCT*>()))
#define ON_WM_CREATE() AFX_WM_VALUE(WM_CREATE, OnCreate, int, (LPCREATESTRUCT), (call.PointerL<LPCREATESTRUCT>()))
#define ON_WM_DEADCHAR()                                                                                               \
    AFX_WM_VOID(WM_DEADCHAR, OnDeadChar, (UINT, UINT, UINT), (call.UintW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_DELETEITEM()                                                                                             \
    AFX_WM_VOID(WM_DELETEITEM, OnDeleteItem, (int, LPDELETEITEMSTRUCT),                                                \
                (static_cast<int>(call.wParam), call.PointerL<LPDELETEITEMSTRUCT>()))
#define ON_WM_DESTROY() AFX_WM_VOID(WM_DESTROY, OnDestroy, (), ())
#define ON_WM_DESTROYCLIPBOARD() AFX_WM_VOID(WM_DESTROYCLIPBOARD, OnDestroyClipboard, (), ())
#define ON_WM_DEVICECHANGE()                                                                                           \
    AFX_WM_VALUE(WM_DEVICECHANGE, OnDeviceChange, BOOL, (UINT, DWORD_PTR),                                             \
                 (call.UintW(), static_cast<DWORD_PTR>(call.lParam)))
#define ON_WM_DEVMODECHANGE() AFX_WM_VOID(WM_DEVMODECHANGE, OnDevModeChange, (LPTSTR), (call.PointerL<LPTSTR>()))
#define ON_WM_DRAWCLIPBOARD() AFX_WM_VOID(WM_DRAWCLIPBOARD, OnDrawClipboard, (), ())
#define ON_WM_DRAWITEM()                                                                                               \
    AFX_WM_VOID(WM_DRAWITEM, OnDrawItem, (int, LPDRAWITEMSTRUCT),                                                      \
                (static_cast<int>(call.wParam), call.PointerL<LPDRAWITEMSTRUCT>()))
#define ON_WM_DROPFILES() AFX_WM_VOID(WM_DROPFILES, OnDropFiles, (HDROP), (call.PointerW<HDROP>()))
#define ON_WM_ENABLE() AFX_WM_VOID(WM_ENABLE, OnEnable, (BOOL), (call.BoolW()))
#define ON_WM_ENDSESSION() AFX_WM_VOID(WM_ENDSESSION, OnEndSession, (BOOL), (call.BoolW()))
#define ON_WM_ENTERIDLE() AFX_WM_VOID(WM_ENTERIDLE, OnEnterIdle, (UINT, CWnd*), (call.UintW(), call.WndL()))
#define ON_WM_ENTERMENULOOP() AFX_WM_VOID(WM_ENTERMENULOOP, OnEnterMenuLoop, (BOOL), (call.BoolW()))
#define ON_WM_ENTERSIZEMOVE() AFX_WM_VOID(WM_ENTERSIZEMOVE, OnEnterSizeMove, (), ())
#define ON_WM_ERASEBKGND() AFX_WM_VALUE(WM_ERASEBKGND, OnEraseBkgnd, BOOL, (CDC*), (call.DcW()))
#define ON_WM_EXITMENULOOP() AFX_WM_VOID(WM_EXITMENULOOP, OnExitMenuLoop, (BOOL), (call.BoolW()))
#define ON_WM_EXITSIZEMOVE() AFX_WM_VOID(WM_EXITSIZEMOVE, OnExitSizeMove, (), ())
#define ON_WM_FONTCHANGE() AFX_WM_VOID(WM_FONTCHANGE, OnFontChange, (), ())
#define ON_WM_GETDLGCODE() AFX_WM_VALUE(WM_GETDLGCODE, OnGetDlgCode, UINT, (), ())
#define ON_WM_GETMINMAXINFO()                                                                                          \
    AFX_WM_VOID(WM_GETMINMAXINFO, OnGetMinMaxInfo, (MINMAXINFO*), (call.PointerL<MINMAXINFO*>()))
#define ON_WM_HELPINFO() AFX_WM_VALUE(WM_HELP, OnHelpInfo, BOOL, (HELPINFO*), (call.PointerL<HELPINFO*>()))
#define ON_WM_HOTKEY()                                                                                                 \
    AFX_WM_VOID(WM_HOTKEY, OnHotKey, (UINT, UINT, UINT), (call.UintW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_HSCROLL()                                                                                                \
    AFX_WM_VOID(WM_HSCROLL, OnHScroll, (UINT, UINT, CScrollBar*),                                                      \
                (call.LoWordW(), call.HiWordW(), call.ControlL<CScrollBar>()))
#define ON_WM_HSCROLLCLIPBOARD()                                                                                       \
    AFX_WM_VOID(WM_HSCROLLCLIPBOARD, OnHScrollClipboard, (CWnd*, UINT, UINT),                                          \
                (call.WndW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_ICONERASEBKGND() AFX_WM_VOID(WM_ICONERASEBKGND, OnIconEraseBkgnd, (CDC*), (call.DcW()))
#define ON_WM_INITMENU() AFX_WM_VOID(WM_INITMENU, OnInitMenu, (CMenu*), (call.MenuW()))
#define ON_WM_INITMENUPOPUP()                                                                                          \
    AFX_WM_VOID(WM_INITMENUPOPUP, OnInitMenuPopup, (CMenu*, UINT, BOOL),                                               \
                (call.MenuW(), call.LoWordL(), call.HiWordL() != 0))
#define ON_WM_INPUTLANGCHANGE()                                                                                        \
    AFX_WM_VOID(WM_INPUTLANGCHANGE, OnInputLangChange, (UINT, UINT), (call.UintW(), static_cast<UINT>(call.lParam)))
#define ON_WM_INPUTLANGCHANGEREQUEST()                                                                                 \
    AFX_WM_VOID(WM_INPUTLANGCHANGEREQUEST, OnInputLangChangeRequest, (UINT, UINT),                                     \
                (call.UintW(), static_cast<UINT>(call.lParam)))
#define ON_WM_KEYDOWN()                                                                                                \
    AFX_WM_VOID(WM_KEYDOWN, OnKeyDown, (UINT, UINT, UINT), (call.UintW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_KEYUP() AFX_WM_VOID(WM_KEYUP, OnKeyUp, (UINT, UINT, UINT), (call.UintW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_KILLFOCUS() AFX_WM_VOID(WM_KILLFOCUS, OnKillFocus, (CWnd*), (call.WndW()))
#define ON_WM_LBUTTONDBLCLK()                                                                                          \
    AFX_WM_VOID(WM_LBUTTONDBLCLK, OnLButtonDblClk, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_LBUTTONDOWN() AFX_WM_VOID(WM_LBUTTONDOWN, OnLButtonDown, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_LBUTTONUP() AFX_WM_VOID(WM_LBUTTONUP, OnLButtonUp, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_MBUTTONDBLCLK()                                                                                          \
    AFX_WM_VOID(WM_MBUTTONDBLCLK, OnMButtonDblClk, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_MBUTTONDOWN() AFX_WM_VOID(WM_MBUTTONDOWN, OnMButtonDown, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_MBUTTONUP() AFX_WM_VOID(WM_MBUTTONUP, OnMButtonUp, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_MDIACTIVATE()                                                                                            \
    AFX_WM_VOID(WM_MDIACTIVATE, OnMDIActivate, (BOOL, CWnd*, CWnd*),                                                   \
                (call.IsMdiActivation(afxTarget), call.WndL(), call.WndW()))
#define ON_WM_MEASUREITEM()                                                                                            \
    AFX_WM_VOID(WM_MEASUREITEM, OnMeasureItem, (int, LPMEASUREITEMSTRUCT),                                             \
                (static_cast<int>(call.wParam), call.PointerL<LPMEASUREITEMSTRUCT>()))
#define ON_WM_MENUCHAR()                                                                                               \
    AFX_WM_VALUE(WM_MENUCHAR, OnMenuChar, LRESULT, (UINT, UINT, CMenu*), (call.LoWordW(), call.HiWordW(), call.MenuL()))
#define ON_WM_MENURBUTTONUP()                                                                                          \
    AFX_WM_VOID(WM_MENURBUTTONUP, OnMenuRButtonUp, (UINT, CMenu*), (call.UintW(), call.MenuL()))
#define ON_WM_MENUSELECT()                                                                                             \
    AFX_WM_VOID(WM_MENUSELECT, OnMenuSelect, (UINT, UINT, HMENU),                                                      \
                (call.LoWordW(), call.HiWordW(), call.PointerL<HMENU>()))
#define ON_WM_MOUSEACTIVATE()                                                                                          \
    AFX_WM_VALUE(WM_MOUSEACTIVATE, OnMouseActivate, int, (CWnd*, UINT, UINT),                                          \
                 (call.WndW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_MOUSEHOVER() AFX_WM_VOID(WM_MOUSEHOVER, OnMouseHover, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_MOUSEHWHEEL()                                                                                            \
    AFX_WM_VOID(WM_MOUSEHWHEEL, OnMouseHWheel, (UINT, short, CPoint), (call.LoWordW(), call.ShortHiW(), call.PointL()))
#define ON_WM_MOUSELEAVE() AFX_WM_VOID(WM_MOUSELEAVE, OnMouseLeave, (), ())
#define ON_WM_MOUSEMOVE() AFX_WM_VOID(WM_MOUSEMOVE, OnMouseMove, (UINT, CPoint), (call.UintW(), call.PointL()))
/// A handler that answers FALSE lets the wheel go on to the parent.
#define ON_WM_MOUSEWHEEL()                                                                                             \
    AFX_ID_ENTRY(WM_MOUSEWHEEL, 0, 0, 0,                                                                               \
                 call.Answer(AFX_BIND(&ThisClass::OnMouseWheel, BOOL,                                                  \
                                      (UINT, short, CPoint))(call.LoWordW(), call.ShortHiW(), call.PointL()));         \
                 return call.result != 0;)
#define ON_WM_MOVE() AFX_WM_VOID(WM_MOVE, OnMove, (int, int), (call.IntLoL(), call.IntHiL()))
#define ON_WM_MOVING() AFX_WM_VOID(WM_MOVING, OnMoving, (UINT, LPRECT), (call.UintW(), call.PointerL<LPRECT>()))
#define ON_WM_NCACTIVATE() AFX_WM_VALUE(WM_NCACTIVATE, OnNcActivate, BOOL, (BOOL), (call.BoolW()))
#define ON_WM_NCCALCSIZE()                                                                                             \
    AFX_WM_VOID(WM_NCCALCSIZE, OnNcCalcSize, (BOOL, NCCALCSIZE_PARAMS*),                                               \
                (call.BoolW(), call.PointerL<NCCALCSIZE_PARAMS*>()))
#define ON_WM_NCCREATE()                                                                                               \
    AFX_WM_VALUE(WM_NCCREATE, OnNcCreate, BOOL, (LPCREATESTRUCT), (call.PointerL<LPCREATESTRUCT>()))
#define ON_WM_NCDESTROY() AFX_WM_VOID(WM_NCDESTROY, OnNcDestroy, (), ())
#define ON_WM_NCHITTEST() AFX_WM_VALUE(WM_NCHITTEST, OnNcHitTest, LRESULT, (CPoint), (call.PointL()))
#define ON_WM_NCLBUTTONDBLCLK()                                                                                        \
    AFX_WM_VOID(WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCLBUTTONDOWN()                                                                                          \
    AFX_WM_VOID(WM_NCLBUTTONDOWN, OnNcLButtonDown, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCLBUTTONUP() AFX_WM_VOID(WM_NCLBUTTONUP, OnNcLButtonUp, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCMBUTTONDBLCLK()                                                                                        \
    AFX_WM_VOID(WM_NCMBUTTONDBLCLK, OnNcMButtonDblClk, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCMBUTTONDOWN()                                                                                          \
    AFX_WM_VOID(WM_NCMBUTTONDOWN, OnNcMButtonDown, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCMBUTTONUP() AFX_WM_VOID(WM_NCMBUTTONUP, OnNcMButtonUp, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCMOUSEHOVER() AFX_WM_VOID(WM_NCMOUSEHOVER, OnNcMouseHover, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCMOUSELEAVE() AFX_WM_VOID(WM_NCMOUSELEAVE, OnNcMouseLeave, (), ())
#define ON_WM_NCMOUSEMOVE() AFX_WM_VOID(WM_NCMOUSEMOVE, OnNcMouseMove, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCPAINT() AFX_WM_VOID(WM_NCPAINT, OnNcPaint, (), ())
#define ON_WM_NCRBUTTONDBLCLK()                                                                                        \
    AFX_WM_VOID(WM_NCRBUTTONDBLCLK, OnNcRButtonDblClk, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCRBUTTONDOWN()                                                                                          \
    AFX_WM_VOID(WM_NCRBUTTONDOWN, OnNcRButtonDown, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NCRBUTTONUP() AFX_WM_VOID(WM_NCRBUTTONUP, OnNcRButtonUp, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_NOTIFYFORMAT()                                                                                           \
    AFX_WM_VALUE(WM_NOTIFYFORMAT, OnNotifyFormat, UINT, (CWnd*, UINT), (call.WndW(), static_cast<UINT>(call.lParam)))
#define ON_WM_PAINT() AFX_WM_VOID(WM_PAINT, OnPaint, (), ())
#define ON_WM_PAINTCLIPBOARD()                                                                                         \
    AFX_WM_VOID(WM_PAINTCLIPBOARD, OnPaintClipboard, (CWnd*, HGLOBAL), (call.WndW(), call.PointerL<HGLOBAL>()))
#define ON_WM_PALETTECHANGED() AFX_WM_VOID(WM_PALETTECHANGED, OnPaletteChanged, (CWnd*), (call.WndW()))
#define ON_WM_PALETTEISCHANGING() AFX_WM_VOID(WM_PALETTEISCHANGING, OnPaletteIsChanging, (CWnd*), (call.WndW()))
#define ON_WM_PARENTNOTIFY() AFX_WM_VOID(WM_PARENTNOTIFY, OnParentNotify, (UINT, LPARAM), (call.LoWordW(), call.lParam))
#define ON_WM_POWERBROADCAST()                                                                                         \
    AFX_WM_VALUE(WM_POWERBROADCAST, OnPowerBroadcast, UINT, (UINT, LPARAM), (call.UintW(), call.lParam))
#define ON_WM_PRINTCLIENT()                                                                                            \
    AFX_WM_VALUE(WM_PRINTCLIENT, OnPrintClient, LRESULT, (CDC*, UINT), (call.DcW(), static_cast<UINT>(call.lParam)))
#define ON_WM_QUERYDRAGICON() AFX_WM_VALUE(WM_QUERYDRAGICON, OnQueryDragIcon, HCURSOR, (), ())
#define ON_WM_QUERYENDSESSION() AFX_WM_VALUE(WM_QUERYENDSESSION, OnQueryEndSession, BOOL, (), ())
#define ON_WM_QUERYNEWPALETTE() AFX_WM_VALUE(WM_QUERYNEWPALETTE, OnQueryNewPalette, BOOL, (), ())
#define ON_WM_QUERYOPEN() AFX_WM_VALUE(WM_QUERYOPEN, OnQueryOpen, BOOL, (), ())
#define ON_WM_QUERYUISTATE() AFX_WM_VALUE(WM_QUERYUISTATE, OnQueryUIState, UINT, (), ())
#define ON_WM_RBUTTONDBLCLK()                                                                                          \
    AFX_WM_VOID(WM_RBUTTONDBLCLK, OnRButtonDblClk, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_RBUTTONDOWN() AFX_WM_VOID(WM_RBUTTONDOWN, OnRButtonDown, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_RBUTTONUP() AFX_WM_VOID(WM_RBUTTONUP, OnRButtonUp, (UINT, CPoint), (call.UintW(), call.PointL()))
#define ON_WM_RENDERALLFORMATS() AFX_WM_VOID(WM_RENDERALLFORMATS, OnRenderAllFormats, (), ())
#define ON_WM_RENDERFORMAT() AFX_WM_VOID(WM_RENDERFORMAT, OnRenderFormat, (UINT), (call.UintW()))
#define ON_WM_SETCURSOR()                                                                                              \
    AFX_WM_VALUE(WM_SETCURSOR, OnSetCursor, BOOL, (CWnd*, UINT, UINT), (call.WndW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_SETFOCUS() AFX_WM_VOID(WM_SETFOCUS, OnSetFocus, (CWnd*), (call.WndW()))
#define ON_WM_SETTINGCHANGE()                                                                                          \
    AFX_WM_VOID(WM_SETTINGCHANGE, OnSettingChange, (UINT, LPCTSTR), (call.UintW(), call.PointerL<LPCTSTR>()))
#define ON_WM_WININICHANGE() AFX_WM_VOID(WM_WININICHANGE, OnWinIniChange, (LPCTSTR), (call.PointerL<LPCTSTR>()))
#define ON_WM_SHOWWINDOW()                                                                                             \
    AFX_WM_VOID(WM_SHOWWINDOW, OnShowWindow, (BOOL, UINT), (call.BoolW(), static_cast<UINT>(call.lParam)))
#define ON_WM_SIZE()                                                                                                   \
    AFX_WM_VOID(WM_SIZE, OnSize, (UINT, int, int),                                                                     \
                (call.UintW(), static_cast<int>(call.LoWordL()), static_cast<int>(call.HiWordL())))
#define ON_WM_SIZECLIPBOARD()                                                                                          \
    AFX_WM_VOID(WM_SIZECLIPBOARD, OnSizeClipboard, (CWnd*, HGLOBAL), (call.WndW(), call.PointerL<HGLOBAL>()))
#define ON_WM_SIZING() AFX_WM_VOID(WM_SIZING, OnSizing, (UINT, LPRECT), (call.UintW(), call.PointerL<LPRECT>()))
#define ON_WM_SPOOLERSTATUS()                                                                                          \
    AFX_WM_VOID(WM_SPOOLERSTATUS, OnSpoolerStatus, (UINT, UINT), (call.UintW(), call.LoWordL()))
#define ON_WM_STYLECHANGED()                                                                                           \
    AFX_WM_VOID(WM_STYLECHANGED, OnStyleChanged, (int, LPSTYLESTRUCT),                                                 \
                (static_cast<int>(call.wParam), call.PointerL<LPSTYLESTRUCT>()))
#define ON_WM_STYLECHANGING()                                                                                          \
    AFX_WM_VOID(WM_STYLECHANGING, OnStyleChanging, (int, LPSTYLESTRUCT),                                               \
                (static_cast<int>(call.wParam), call.PointerL<LPSTYLESTRUCT>()))
#define ON_WM_SYSCHAR()                                                                                                \
    AFX_WM_VOID(WM_SYSCHAR, OnSysChar, (UINT, UINT, UINT), (call.UintW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_SYSCOLORCHANGE() AFX_WM_VOID(WM_SYSCOLORCHANGE, OnSysColorChange, (), ())
#define ON_WM_SYSCOMMAND() AFX_WM_VOID(WM_SYSCOMMAND, OnSysCommand, (UINT, LPARAM), (call.UintW(), call.lParam))
#define ON_WM_SYSDEADCHAR()                                                                                            \
    AFX_WM_VOID(WM_SYSDEADCHAR, OnSysDeadChar, (UINT, UINT, UINT), (call.UintW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_SYSKEYDOWN()                                                                                             \
    AFX_WM_VOID(WM_SYSKEYDOWN, OnSysKeyDown, (UINT, UINT, UINT), (call.UintW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_SYSKEYUP()                                                                                               \
    AFX_WM_VOID(WM_SYSKEYUP, OnSysKeyUp, (UINT, UINT, UINT), (call.UintW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_TCARD()                                                                                                  \
    AFX_WM_VOID(WM_TCARD, OnTCard, (UINT, DWORD_PTR), (call.UintW(), static_cast<DWORD_PTR>(call.lParam)))
#define ON_WM_THEMECHANGED() AFX_WM_VALUE(WM_THEMECHANGED, OnThemeChanged, LRESULT, (), ())
#define ON_WM_TIMECHANGE() AFX_WM_VOID(WM_TIMECHANGE, OnTimeChange, (), ())
#define ON_WM_TIMER() AFX_WM_VOID(WM_TIMER, OnTimer, (UINT_PTR), (static_cast<UINT_PTR>(call.wParam)))
#define ON_WM_UNINITMENUPOPUP()                                                                                        \
    AFX_WM_VOID(WM_UNINITMENUPOPUP, OnUnInitMenuPopup, (CMenu*, UINT), (call.MenuW(), call.HiWordL()))
#define ON_WM_UPDATEUISTATE()                                                                                          \
    AFX_WM_VOID(WM_UPDATEUISTATE, OnUpdateUIState, (UINT, UINT), (call.LoWordW(), call.HiWordW()))
#define ON_WM_USERCHANGED() AFX_WM_VOID(WM_USERCHANGED, OnUserChanged, (), ())
#define ON_WM_VKEYTOITEM()                                                                                             \
    AFX_WM_VALUE(WM_VKEYTOITEM, OnVKeyToItem, int, (UINT, CListBox*, UINT),                                            \
                 (call.LoWordW(), call.ControlL<CListBox>(), call.HiWordW()))
#define ON_WM_VSCROLL()                                                                                                \
    AFX_WM_VOID(WM_VSCROLL, OnVScroll, (UINT, UINT, CScrollBar*),                                                      \
                (call.LoWordW(), call.HiWordW(), call.ControlL<CScrollBar>()))
#define ON_WM_VSCROLLCLIPBOARD()                                                                                       \
    AFX_WM_VOID(WM_VSCROLLCLIPBOARD, OnVScrollClipboard, (CWnd*, UINT, UINT),                                          \
                (call.WndW(), call.LoWordL(), call.HiWordL()))
#define ON_WM_WINDOWPOSCHANGED()                                                                                       \
    AFX_WM_VOID(WM_WINDOWPOSCHANGED, OnWindowPosChanged, (WINDOWPOS*), (call.PointerL<WINDOWPOS*>()))
#define ON_WM_WINDOWPOSCHANGING()                                                                                      \
    AFX_WM_VOID(WM_WINDOWPOSCHANGING, OnWindowPosChanging, (WINDOWPOS*), (call.PointerL<WINDOWPOS*>()))
#define ON_WM_XBUTTONDBLCLK()                                                                                          \
    AFX_WM_VOID(WM_XBUTTONDBLCLK, OnXButtonDblClk, (UINT, UINT, CPoint),                                               \
                (call.LoWordW(), call.HiWordW(), call.PointL()))
#define ON_WM_XBUTTONDOWN()                                                                                            \
    AFX_WM_VOID(WM_XBUTTONDOWN, OnXButtonDown, (UINT, UINT, CPoint), (call.LoWordW(), call.HiWordW(), call.PointL()))
#define ON_WM_XBUTTONUP()                                                                                              \
    AFX_WM_VOID(WM_XBUTTONUP, OnXButtonUp, (UINT, UINT, CPoint), (call.LoWordW(), call.HiWordW(), call.PointL()))
