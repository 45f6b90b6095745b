#pragma once

/// @file
/// Window handle wrapper: the base of all window classes.
#include "framework/core/CString.h"
#include "framework/core/Geometry.h"
#include "framework/window/CCmdTarget.h"

#include <commctrl.h>
#include <shellapi.h>
#include <windows.h>

// The system's header turns these names into macros with other arguments.
#undef GetNextWindow
#undef SubclassWindow

class CBitmap;
class CDataExchange;
class CFont;
class CFrameWnd;
class CRgn;
class CToolTipCtrl;
struct CCreateContext;

/// Flags for RunModalLoop.
inline constexpr DWORD MLF_NOIDLEMSG = 0x0001;  ///< do not send WM_ENTERIDLE to the parent
inline constexpr DWORD MLF_NOKICKIDLE = 0x0002; ///< do not send WM_KICKIDLE to the window
inline constexpr DWORD MLF_SHOWONIDLE = 0x0004; ///< show the window when the queue is empty

/// The object of a window. Objects made by the program are permanent: they are bound to their window from its first
/// message to its last. FromHandle makes temporary objects for all other windows.
///
/// The end of a window comes by one of four ways: DestroyWindow, the destruction of its parent, the
/// destructor of the object (which destroys a living window, but runs without the derived
/// class's handlers), or Detach, which leaves the window alive and without object. In the first two the object hears
/// OnDestroy, OnNcDestroy and PostNcDestroy, in that order; m_hWnd is null in PostNcDestroy, which may delete the
/// object.
class HOSTFRAMEWORK_API CWnd : public CCmdTarget
{
    DECLARE_DYNCREATE(CWnd)

public:
    CWnd();
    ~CWnd() override;

    HWND m_hWnd; ///< the window; null when none is attached

    static const CWnd wndTop;       ///< for SetWindowPos: HWND_TOP
    static const CWnd wndBottom;    ///< HWND_BOTTOM
    static const CWnd wndTopMost;   ///< HWND_TOPMOST
    static const CWnd wndNoTopMost; ///< HWND_NOTOPMOST

    // --- Object and handle ---------------------------------------------------------------

    operator HWND() const;
    bool operator==(const CWnd& wnd) const;
    bool operator!=(const CWnd& wnd) const;
    /// The handle, also of a null object pointer.
    HWND GetSafeHwnd() const;
    DWORD GetStyle() const;
    DWORD GetExStyle() const;
    /// @param nFlags SetWindowPos flags; not 0: the frame is redrawn with them. @return whether the style changed
    BOOL ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    BOOL ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags = 0);
    static BOOL ModifyStyle(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    static BOOL ModifyStyleEx(HWND hWnd, DWORD dwRemove, DWORD dwAdd, UINT nFlags);
    /// The object of a window, temporary if nobody on this thread wraps it. Temporary objects are for immediate
    /// use: they end when the running message loop is idle.
    static CWnd* FromHandle(HWND hWnd);
    /// The permanent object of a window on this thread, or null.
    static CWnd* FromHandlePermanent(HWND hWnd);
    /// Frees this thread's temporary window objects.
    static void DeleteTempMap();
    /// Binds this object to a window without subclassing it.
    BOOL Attach(HWND hWndNew);
    HWND Detach();

    // --- Creation, subclassing, end --------------------------------------------------------

    /// Creates a child window.
    virtual BOOL Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                        CWnd* pParentWnd, UINT nID, CCreateContext* pContext = nullptr);
    /// Creates any window. A failure ends in PostNcDestroy, like the window's end.
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                          int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam = nullptr);
    virtual BOOL CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle,
                          const RECT& rect, CWnd* pParentWnd, UINT nID, LPVOID lpParam = nullptr);
    /// Last chance to change the creation record. A null class name gets the framework's plain child class.
    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);
    virtual BOOL DestroyWindow();
    /// Takes a living window over: attaches it and puts the framework's window procedure before its own.
    BOOL SubclassWindow(HWND hWnd);
    BOOL SubclassDlgItem(UINT nID, CWnd* pParent);
    /// Gives the window its own procedure back and detaches it.
    HWND UnsubclassWindow();
    /// Called before the window is subclassed, at creation too; m_hWnd is set.
    virtual void PreSubclassWindow();
    BOOL ExecuteDlgInit(LPCTSTR lpszResourceName);
    BOOL ExecuteDlgInit(LPVOID lpResource);

    // --- Messages --------------------------------------------------------------------------

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    BOOL SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) const;
    /// @param bDeep grandchildren too. @param bOnlyPerm only windows with a permanent object, called directly
    void SendMessageToDescendants(UINT message, WPARAM wParam = 0, LPARAM lParam = 0, BOOL bDeep = TRUE,
                                  BOOL bOnlyPerm = FALSE);
    static void SendMessageToDescendants(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam, BOOL bDeep,
                                         BOOL bOnlyPerm);
    /// Window procedure of the object. Calls OnWndMsg, and DefWindowProc for what nobody handled.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Looks the message up in the message map. @return whether it was handled
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// What the window did before it was subclassed, or the system's default.
    virtual LRESULT DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam);
    /// DefWindowProc with the message being handled now.
    LRESULT Default();
    /// The message being handled on this thread.
    static const MSG* GetCurrentMessage();
    /// Where the window's previous procedure is kept.
    virtual WNDPROC* GetSuperWndProcAddr();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Asks PreTranslateMessage of the message's window and its parents up to @p hWndStop.
    static BOOL WalkPreTranslateTree(HWND hWndStop, MSG* pMsg);
    /// IsDialogMessage, for windows used like dialogs.
    BOOL PreTranslateInput(LPMSG lpMsg);
    BOOL IsDialogMessage(LPMSG lpMsg);

    // --- Reflection ------------------------------------------------------------------------

    /// Gives the message being handled to this control. @return whether the control took it
    BOOL SendChildNotifyLastMsg(LRESULT* pResult = nullptr);
    /// The same for the control of a handle, when it has a permanent object.
    static BOOL ReflectLastMsg(HWND hWndChild, LRESULT* pResult = nullptr);
    /// Called in the control for a message that its parent got because of it.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Message map part of OnChildNotify.
    BOOL ReflectChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult);

    // --- Modal loop ------------------------------------------------------------------------

    /// Runs a message loop, with PreTranslateMessage and idle work, until EndModalLoop.
    /// @return its result, or -1 when WM_QUIT came
    int RunModalLoop(DWORD dwFlags = 0);
    virtual BOOL ContinueModal();
    virtual void EndModalLoop(int nResult);
    /// Prepares data exchange; shows failures. @return whether all controls' data was good
    BOOL UpdateData(BOOL bSaveAndValidate = TRUE);
    virtual void DoDataExchange(CDataExchange* pDX);
    void UpdateDialogControls(CCmdTarget* pTarget, BOOL bDisableIfNoHndler);

    // --- Relatives ---------------------------------------------------------------------------

    CWnd* GetParent() const;
    CWnd* SetParent(CWnd* pWndNewParent);
    CWnd* GetOwner() const;
    /// Chooses who gets commands and notifications instead of the real owner.
    void SetOwner(CWnd* pOwnerWnd);
    CWnd* GetParentOwner() const;
    CWnd* GetTopLevelParent() const;
    CWnd* GetTopLevelOwner() const;
    CWnd* EnsureTopLevelParent();
    CFrameWnd* GetTopLevelFrame() const;
    CFrameWnd* GetParentFrame() const;
    virtual BOOL IsFrameWnd() const;
    /// Window that shall own a modal dialog; @p pTopLevel receives the top window to be disabled meanwhile.
    static CWnd* GetSafeOwner(CWnd* pParent = nullptr, HWND* pTopLevel = nullptr);
    CWnd* GetDescendantWindow(int nID, BOOL bOnlyPerm = FALSE) const;
    static CWnd* GetDescendantWindow(HWND hWnd, int nID, BOOL bOnlyPerm);
    CWnd* GetWindow(UINT nCmd) const;
    CWnd* GetTopWindow() const;
    CWnd* GetNextWindow(UINT nFlag = GW_HWNDNEXT) const;
    CWnd* GetLastActivePopup() const;
    BOOL IsChild(const CWnd* pWnd) const;
    CWnd* ChildWindowFromPoint(POINT point) const;
    CWnd* ChildWindowFromPoint(POINT point, UINT nFlags) const;
    static CWnd* FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName);
    static CWnd* WindowFromPoint(POINT point);
    static CWnd* GetDesktopWindow();
    static CWnd* GetForegroundWindow();
    static CWnd* GetActiveWindow();
    static CWnd* GetFocus();
    static CWnd* GetCapture();

    // --- Dialog items ------------------------------------------------------------------------

    int GetDlgCtrlID() const;
    int SetDlgCtrlID(int nID);
    CWnd* GetDlgItem(int nID) const;
    void GetDlgItem(int nID, HWND* phWnd) const;
    int GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const;
    void CheckDlgButton(int nIDButton, UINT nCheck);
    void CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton);
    UINT IsDlgButtonChecked(int nIDButton) const;
    UINT GetDlgItemInt(int nID, BOOL* lpTrans = nullptr, BOOL bSigned = TRUE) const;
    void SetDlgItemInt(int nID, UINT nValue, BOOL bSigned = TRUE);
    int GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const;
    int GetDlgItemText(int nID, CString& rString) const;
    void SetDlgItemText(int nID, LPCTSTR lpszString);
    LRESULT SendDlgItemMessage(int nID, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    CWnd* GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    CWnd* GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious = FALSE) const;
    int DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType);
    BOOL DlgDirSelect(LPTSTR lpString, int nSize, int nIDListBox);
    void GotoDlgCtrl(CWnd* pWndCtrl);
    void NextDlgCtrl() const;
    void PrevDlgCtrl() const;

    // --- Text, font, menu, icon ----------------------------------------------------------------

    void SetWindowText(LPCTSTR lpszString);
    int GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const;
    void GetWindowText(CString& rString) const;
    int GetWindowTextLength() const;
    void SetFont(CFont* pFont, BOOL bRedraw = TRUE);
    CFont* GetFont() const;
    CMenu* GetMenu() const;
    BOOL SetMenu(CMenu* pMenu);
    void DrawMenuBar();
    CMenu* GetSystemMenu(BOOL bRevert) const;
    BOOL HiliteMenuItem(CMenu* pMenu, UINT nIDHiliteItem, UINT nHilite);
    HICON SetIcon(HICON hIcon, BOOL bBigIcon);
    HICON GetIcon(BOOL bBigIcon) const;
    int MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption = nullptr, UINT nType = MB_OK);

    // --- Place and state -------------------------------------------------------------------------

    BOOL IsIconic() const;
    BOOL IsZoomed() const;
    void MoveWindow(int x, int y, int nWidth, int nHeight, BOOL bRepaint = TRUE);
    void MoveWindow(LPCRECT lpRect, BOOL bRepaint = TRUE);
    int SetWindowRgn(HRGN hRgn, BOOL bRedraw);
    int GetWindowRgn(HRGN hRgn) const;
    BOOL SetWindowPos(const CWnd* pWndInsertAfter, int x, int y, int cx, int cy, UINT nFlags);
    UINT ArrangeIconicWindows();
    void BringWindowToTop();
    void GetWindowRect(LPRECT lpRect) const;
    void GetClientRect(LPRECT lpRect) const;
    BOOL GetWindowPlacement(WINDOWPLACEMENT* lpwndpl) const;
    BOOL SetWindowPlacement(const WINDOWPLACEMENT* lpwndpl);
    /// Centers in the alternate window, the parent (child) or the owner (popup), inside the work area.
    void CenterWindow(CWnd* pAlternateOwner = nullptr);
    BOOL ShowWindow(int nCmdShow);
    BOOL IsWindowVisible() const;
    void ShowOwnedPopups(BOOL bShow = TRUE);
    BOOL EnableWindow(BOOL bEnable = TRUE);
    BOOL IsWindowEnabled() const;
    CWnd* SetActiveWindow();
    BOOL SetForegroundWindow();
    CWnd* SetFocus();
    CWnd* SetCapture();
    BOOL FlashWindow(BOOL bInvert);
    void CloseWindow();
    BOOL OpenIcon();
    BOOL IsTopParentActive() const;
    void ActivateTopParent();
    virtual void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType = adjustBorder);
    enum AdjustType
    {
        adjustBorder = 0,
        adjustOutside = 1
    };
    void RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag = reposDefault,
                        LPRECT lpRectParam = nullptr, LPCRECT lpRectClient = nullptr, BOOL bStretch = TRUE);
    enum RepositionFlags
    {
        reposDefault = 0,
        reposQuery = 1,
        reposExtra = 2
    };

    // --- Coordinates -----------------------------------------------------------------------------

    void ClientToScreen(LPPOINT lpPoint) const;
    void ClientToScreen(LPRECT lpRect) const;
    void ScreenToClient(LPPOINT lpPoint) const;
    void ScreenToClient(LPRECT lpRect) const;
    void MapWindowPoints(CWnd* pwndTo, LPPOINT lpPoint, UINT nCount) const;
    void MapWindowPoints(CWnd* pwndTo, LPRECT lpRect) const;

    // --- Painting --------------------------------------------------------------------------------

    CDC* BeginPaint(LPPAINTSTRUCT lpPaint);
    void EndPaint(LPPAINTSTRUCT lpPaint);
    CDC* GetDC();
    CDC* GetWindowDC();
    CDC* GetDCEx(CRgn* prgnClip, DWORD flags);
    int ReleaseDC(CDC* pDC);
    void Print(CDC* pDC, DWORD dwFlags) const;
    void PrintClient(CDC* pDC, DWORD dwFlags) const;
    void UpdateWindow();
    void SetRedraw(BOOL bRedraw = TRUE);
    BOOL GetUpdateRect(LPRECT lpRect, BOOL bErase = FALSE);
    int GetUpdateRgn(CRgn* pRgn, BOOL bErase = FALSE);
    void Invalidate(BOOL bErase = TRUE);
    void InvalidateRect(LPCRECT lpRect, BOOL bErase = TRUE);
    void InvalidateRgn(CRgn* pRgn, BOOL bErase = TRUE);
    void ValidateRect(LPCRECT lpRect);
    void ValidateRgn(CRgn* pRgn);
    BOOL RedrawWindow(LPCRECT lpRectUpdate = nullptr, CRgn* prgnUpdate = nullptr,
                      UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    BOOL LockWindowUpdate();
    void UnlockWindowUpdate();

    // --- Scrolling -------------------------------------------------------------------------------

    int GetScrollPos(int nBar) const;
    void GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const;
    void ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect = nullptr, LPCRECT lpClipRect = nullptr);
    int ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate, LPRECT lpRectUpdate,
                       UINT flags);
    int SetScrollPos(int nBar, int nPos, BOOL bRedraw = TRUE);
    void SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw = TRUE);
    void ShowScrollBar(UINT nBar, BOOL bShow = TRUE);
    void EnableScrollBarCtrl(int nBar, BOOL bEnable = TRUE);
    BOOL EnableScrollBar(int nSBFlags, UINT nArrowFlags = ESB_ENABLE_BOTH);
    /// The scroll-bar control that serves as this window's bar, if any.
    virtual CScrollBar* GetScrollBarCtrl(int nBar) const;
    BOOL SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw = TRUE);
    /// @p nMask chooses the fields; cbSize and fMask are filled in.
    BOOL GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask = SIF_ALL);
    int GetScrollLimit(int nBar);

    // --- Timers, clipboard, caret, files, help -----------------------------------------------------

    UINT_PTR SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer = nullptr);
    BOOL KillTimer(UINT_PTR nIDEvent);
    BOOL ChangeClipboardChain(HWND hWndNext);
    HWND SetClipboardViewer();
    BOOL OpenClipboard();
    static CWnd* GetClipboardOwner();
    static CWnd* GetClipboardViewer();
    static CWnd* GetOpenClipboardWindow();
    void CreateCaret(CBitmap* pBitmap);
    void CreateSolidCaret(int nWidth, int nHeight);
    void CreateGrayCaret(int nWidth, int nHeight);
    static CPoint GetCaretPos();
    static void SetCaretPos(POINT point);
    void HideCaret();
    void ShowCaret();
    void DragAcceptFiles(BOOL bAccept = TRUE);
    BOOL SetWindowContextHelpId(DWORD dwContextHelpId);
    DWORD GetWindowContextHelpId() const;
    virtual void WinHelp(DWORD_PTR dwData, UINT nCmd = HELP_CONTEXT);

    // --- Tooltips ----------------------------------------------------------------------------------

    /// @param nType TTS_ styles of the tooltip window
    BOOL EnableToolTips(BOOL bEnable = TRUE, UINT nType = 0);
    static void CancelToolTips(BOOL bKeys = FALSE);
    /// Which tool is at a point: the child's id with TTF_IDISHWND here.
    /// @return tool id, -1 for none; @p pTI is filled in when not null
    virtual INT_PTR OnToolHitTest(CPoint point, TOOLINFO* pTI) const;
    void FilterToolTipMessage(MSG* pMsg);

    // --- Message handlers: each default answers what the system's default does ------------------------

protected:
    /// A command or control notification. @return whether it was handled
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    /// A WM_NOTIFY notification. @return whether it was handled
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);
    /// Called last, after the window has gone; may delete the object.
    virtual void PostNcDestroy();

public:
    afx_msg void OnActivate(UINT, CWnd*, BOOL);
    afx_msg void OnActivateApp(BOOL, DWORD);
    afx_msg void OnAppCommand(CWnd*, UINT, UINT, UINT);
    afx_msg void OnAskCbFormatName(UINT, LPTSTR);
    afx_msg void OnCancelMode();
    afx_msg void OnCaptureChanged(CWnd*);
    afx_msg void OnChangeCbChain(HWND, HWND);
    afx_msg void OnChangeUIState(UINT, UINT);
    afx_msg void OnChar(UINT, UINT, UINT);
    afx_msg int OnCharToItem(UINT, CListBox*, UINT);
    afx_msg void OnChildActivate();
    afx_msg void OnClipboardUpdate();
    afx_msg void OnClose();
    afx_msg void OnCompacting(UINT);
    afx_msg int OnCompareItem(int, LPCOMPAREITEMSTRUCT);
    afx_msg void OnContextMenu(CWnd*, CPoint);
    afx_msg BOOL OnCopyData(CWnd*, COPYDATASTRUCT*);
    afx_msg int OnCreate(LPCREATESTRUCT);
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT);
    afx_msg void OnDeadChar(UINT, UINT, UINT);
    afx_msg void OnDeleteItem(int, LPDELETEITEMSTRUCT);
    afx_msg void OnDestroy();
    afx_msg void OnDestroyClipboard();
    afx_msg void OnDevModeChange(LPTSTR);
    afx_msg BOOL OnDeviceChange(UINT, DWORD_PTR);
    afx_msg void OnDrawClipboard();
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT);
    afx_msg void OnDropFiles(HDROP);
    afx_msg void OnEnable(BOOL);
    afx_msg void OnEndSession(BOOL);
    afx_msg void OnEnterIdle(UINT, CWnd*);
    afx_msg void OnEnterMenuLoop(BOOL);
    afx_msg void OnEnterSizeMove();
    afx_msg BOOL OnEraseBkgnd(CDC*);
    afx_msg void OnExitMenuLoop(BOOL);
    afx_msg void OnExitSizeMove();
    afx_msg void OnFontChange();
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*);
    afx_msg void OnHScroll(UINT, UINT, CScrollBar*);
    afx_msg void OnHScrollClipboard(CWnd*, UINT, UINT);
    afx_msg BOOL OnHelpInfo(HELPINFO*);
    afx_msg void OnHotKey(UINT, UINT, UINT);
    afx_msg void OnIconEraseBkgnd(CDC*);
    afx_msg void OnInitMenu(CMenu*);
    afx_msg void OnInitMenuPopup(CMenu*, UINT, BOOL);
    afx_msg void OnInputLangChange(UINT, UINT);
    afx_msg void OnInputLangChangeRequest(UINT, UINT);
    afx_msg void OnKeyDown(UINT, UINT, UINT);
    afx_msg void OnKeyUp(UINT, UINT, UINT);
    afx_msg void OnKillFocus(CWnd*);
    afx_msg void OnLButtonDblClk(UINT, CPoint);
    afx_msg void OnLButtonDown(UINT, CPoint);
    afx_msg void OnLButtonUp(UINT, CPoint);
    afx_msg void OnMButtonDblClk(UINT, CPoint);
    afx_msg void OnMButtonDown(UINT, CPoint);
    afx_msg void OnMButtonUp(UINT, CPoint);
    afx_msg void OnMDIActivate(BOOL, CWnd*, CWnd*);
    afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT);
    afx_msg LRESULT OnMenuChar(UINT, UINT, CMenu*);
    afx_msg void OnMenuRButtonUp(UINT, CMenu*);
    afx_msg void OnMenuSelect(UINT, UINT, HMENU);
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT);
    afx_msg void OnMouseHWheel(UINT, short, CPoint);
    afx_msg void OnMouseHover(UINT, CPoint);
    afx_msg void OnMouseLeave();
    afx_msg void OnMouseMove(UINT, CPoint);
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint);
    afx_msg void OnMove(int, int);
    afx_msg void OnMoving(UINT, LPRECT);
    afx_msg BOOL OnNcActivate(BOOL);
    afx_msg void OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*);
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT);
    afx_msg void OnNcDestroy();
    afx_msg LRESULT OnNcHitTest(CPoint);
    afx_msg void OnNcLButtonDblClk(UINT, CPoint);
    afx_msg void OnNcLButtonDown(UINT, CPoint);
    afx_msg void OnNcLButtonUp(UINT, CPoint);
    afx_msg void OnNcMButtonDblClk(UINT, CPoint);
    afx_msg void OnNcMButtonDown(UINT, CPoint);
    afx_msg void OnNcMButtonUp(UINT, CPoint);
    afx_msg void OnNcMouseHover(UINT, CPoint);
    afx_msg void OnNcMouseLeave();
    afx_msg void OnNcMouseMove(UINT, CPoint);
    afx_msg void OnNcPaint();
    afx_msg void OnNcRButtonDblClk(UINT, CPoint);
    afx_msg void OnNcRButtonDown(UINT, CPoint);
    afx_msg void OnNcRButtonUp(UINT, CPoint);
    afx_msg UINT OnNotifyFormat(CWnd*, UINT);
    afx_msg void OnPaint();
    afx_msg void OnPaintClipboard(CWnd*, HGLOBAL);
    afx_msg void OnPaletteChanged(CWnd*);
    afx_msg void OnPaletteIsChanging(CWnd*);
    afx_msg void OnParentNotify(UINT, LPARAM);
    afx_msg UINT OnPowerBroadcast(UINT, LPARAM);
    afx_msg LRESULT OnPrintClient(CDC*, UINT);
    afx_msg HCURSOR OnQueryDragIcon();
    afx_msg BOOL OnQueryEndSession();
    afx_msg BOOL OnQueryNewPalette();
    afx_msg BOOL OnQueryOpen();
    afx_msg UINT OnQueryUIState();
    afx_msg void OnRButtonDblClk(UINT, CPoint);
    afx_msg void OnRButtonDown(UINT, CPoint);
    afx_msg void OnRButtonUp(UINT, CPoint);
    afx_msg void OnRenderAllFormats();
    afx_msg void OnRenderFormat(UINT);
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT);
    afx_msg void OnSetFocus(CWnd*);
    afx_msg void OnSettingChange(UINT, LPCTSTR);
    afx_msg void OnShowWindow(BOOL, UINT);
    afx_msg void OnSize(UINT, int, int);
    afx_msg void OnSizeClipboard(CWnd*, HGLOBAL);
    afx_msg void OnSizing(UINT, LPRECT);
    afx_msg void OnSpoolerStatus(UINT, UINT);
    afx_msg void OnStyleChanged(int, LPSTYLESTRUCT);
    afx_msg void OnStyleChanging(int, LPSTYLESTRUCT);
    afx_msg void OnSysChar(UINT, UINT, UINT);
    afx_msg void OnSysColorChange();
    afx_msg void OnSysCommand(UINT, LPARAM);
    afx_msg void OnSysDeadChar(UINT, UINT, UINT);
    afx_msg void OnSysKeyDown(UINT, UINT, UINT);
    afx_msg void OnSysKeyUp(UINT, UINT, UINT);
    afx_msg void OnTCard(UINT, DWORD_PTR);
    afx_msg LRESULT OnThemeChanged();
    afx_msg void OnTimeChange();
    afx_msg void OnTimer(UINT_PTR);
    afx_msg void OnUnInitMenuPopup(CMenu*, UINT);
    afx_msg void OnUpdateUIState(UINT, UINT);
    afx_msg void OnUserChanged();
    afx_msg int OnVKeyToItem(UINT, CListBox*, UINT);
    afx_msg void OnVScroll(UINT, UINT, CScrollBar*);
    afx_msg void OnVScrollClipboard(CWnd*, UINT, UINT);
    afx_msg void OnWinIniChange(LPCTSTR);
    afx_msg void OnWindowPosChanged(WINDOWPOS*);
    afx_msg void OnWindowPosChanging(WINDOWPOS*);
    afx_msg void OnXButtonDblClk(UINT, UINT, CPoint);
    afx_msg void OnXButtonDown(UINT, UINT, CPoint);
    afx_msg void OnXButtonUp(UINT, UINT, CPoint);

    // --- For the framework itself -----------------------------------------------------------------------

    /// Bits of m_nFlags.
    enum StateFlags : UINT
    {
        kStateModalLoop = 0x0001,     ///< RunModalLoop is running
        kStateContinueModal = 0x0002, ///< EndModalLoop was not called yet
        kStateToolTips = 0x0004,
        kStateTempHidden = 0x0008,   ///< hidden together with its frame
        kStateStayDisabled = 0x0010, ///< was disabled before its frame began a modal state
        kStateUpdatingData = 0x0020, ///< control notifications are held back during UpdateData
        kStateUser = 0x0100          ///< first bit free for derived classes of the framework
    };

    /// Takes the object off its window without touching the window, which is going or gone.
    void ForgetWindow();

protected:
    UINT m_nFlags;
    WNDPROC m_pfnSuper; ///< the window's procedure before subclassing
    int m_nModalResult;
    HWND m_hWndOwner; ///< SetOwner's choice

private:
    explicit CWnd(HWND hWnd); // the four place marks for SetWindowPos
    BOOL AttachAndSubclass(HWND hWnd);
    void TakeOver(HWND hWnd);
    BOOL FinishFailedCreation(BOOL bound);
    BOOL IsPlaceMark() const;
    void EndMainWindow();
    friend struct AfxWindowAccess;

    DECLARE_MESSAGE_MAP()
};

/// The next window created on this thread will belong to @p pWnd. For callers of creation functions other than
/// CreateEx, such as dialogs from templates.
HOSTFRAMEWORK_API void AfxHookWindowCreate(CWnd* pWnd);
/// Takes the hook away. @return FALSE when no window was created (the hook was still waiting)
HOSTFRAMEWORK_API BOOL AfxUnhookWindowCreate();
/// Calls the object's WindowProc, keeping the current message right and catching exceptions.
HOSTFRAMEWORK_API LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam = 0, LPARAM lParam = 0);

/// Sent to windows in a modal loop at idle time, to update their user interface.
inline constexpr UINT WM_KICKIDLE = 0x036A;
/// Sent to windows to update their user interface: wParam tells whether to disable items without handler.
inline constexpr UINT WM_IDLEUPDATECMDUI = 0x0363;
/// Query of a window's command handling of help (wParam unused).
inline constexpr UINT WM_COMMANDHELP = 0x0365;
/// Sent by RepositionBars to each bar: lParam is AFX_SIZEPARENTPARAMS*.
inline constexpr UINT WM_SIZEPARENT = 0x0361;
/// Asks a window to show its idle message text.
inline constexpr UINT WM_SETMESSAGESTRING = 0x0362;
/// Sent to give a view its first content.
inline constexpr UINT WM_INITIALUPDATE = 0x0364;

/// lParam of WM_SIZEPARENT: each bar takes its part of the rectangle.
struct AFX_SIZEPARENTPARAMS
{
    HDWP hDWP;      ///< null: only ask
    RECT rect;      ///< what is left
    SIZE sizeTotal; ///< what the bars take together
    BOOL bStretch;
};

/// Moves a window as part of a layout (or at once without one), unless it is there already.
/// With a layout that only asks, nothing moves.
HOSTFRAMEWORK_API void AfxRepositionWindow(AFX_SIZEPARENTPARAMS* lpLayout, HWND hWnd, LPCRECT lpRect);
