#pragma once

/// @file
/// Frame window: caption, menu, bars around a view.
#include "framework/frames/CCreateContext.h"
#include "framework/window/CWnd.h"
#include <vector>

class CControlBar;
class CControlBarInfo;
class CDockBar;
class CDockState;
class CDocument;
class CView;

/// Styles of a frame beside those of the system. They live in unused bits of the window style.
inline constexpr LONG FWS_ADDTOTITLE = 0x8000;  ///< the document's name is part of the title
inline constexpr LONG FWS_PREFIXTITLE = 0x4000; ///< and stands before the frame's own
inline constexpr LONG FWS_SNAPTOBARS = 0x2000;  ///< the frame fits its bars (floating bars)

/// Style of the view in a frame.
inline constexpr DWORD AFX_WS_DEFAULT_VIEW = WS_CHILD | WS_VISIBLE | WS_BORDER;

/// A frame window. It lays out its control bars along its edges and its view in the rest, routes commands from the
/// active view over itself to the application, keeps title and menu up to date, and shows help texts of menu items in
/// its status bar. A frame is made with new and deletes itself after its window has gone (or could not be created).
///
/// A frame object that is only attached to a living window and detached again works on the bars it finds there.
class HOSTFRAMEWORK_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd();
    ~CFrameWnd() override;

    /// Lets the system choose position and size.
    static const CRect rectDefault;
    /// Whether menu items without handler are disabled (TRUE at first). Set it before the frame is created.
    BOOL m_bAutoMenuEnable = TRUE;

    /// @name Creation
    /// @{
    /// @param menuName resource, looked up along the chain; null for no menu
    /// @return FALSE on failure; the object has then gone its way through PostNcDestroy()
    virtual BOOL Create(LPCTSTR className, LPCTSTR windowName, DWORD style = WS_OVERLAPPEDWINDOW,
                        const RECT& rect = rectDefault, CWnd* parent = nullptr, LPCTSTR menuName = nullptr,
                        DWORD exStyle = 0, CCreateContext* context = nullptr);
    /// Creates the frame from the resources of one id: menu, accelerators, icon, and a string whose first line is the
    /// title. Each of them may be missing.
    virtual BOOL LoadFrame(UINT resourceId, DWORD defaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* parent = nullptr, CCreateContext* context = nullptr);
    BOOL LoadAccelTable(LPCTSTR resourceName);
    /// Creates the context's view as a child. @return null on failure
    CWnd* CreateView(CCreateContext* context, UINT id = 0xE900);
    /// Sends WM_INITIALUPDATE to the views, makes the first one active and, if asked, shows the frame.
    void InitialUpdateFrame(CDocument* document, BOOL makeVisible);
    /// Shows the frame usably: restored if minimised, on top. @param showCommand -1: as it is
    virtual void ActivateFrame(int showCommand = -1);
    /// @}

    /// @name Title
    /// @{
    CString GetTitle() const;
    /// Title without document name; shown at the next OnUpdateFrameTitle().
    void SetTitle(LPCTSTR title);
    /// @param addToTitle with the name of the active document, if the style has FWS_ADDTOTITLE
    virtual void OnUpdateFrameTitle(BOOL addToTitle);
    void UpdateFrameTitleForDocument(LPCTSTR documentName);
    /// Asks for a new title at idle time.
    void DelayUpdateFrameTitle();
    /// @}

    /// @name View and document
    /// @{
    CView* GetActiveView() const;
    /// @param notify tell the views by OnActivateView()
    void SetActiveView(CView* view, BOOL notify = TRUE);
    virtual CDocument* GetActiveDocument();
    virtual CFrameWnd* GetActiveFrame();
    /// @}

    /// @name Bars and layout
    /// @{
    void AddControlBar(CControlBar* bar);
    void RemoveControlBar(CControlBar* bar);
    /// @return null when there is no such bar
    CControlBar* GetControlBar(UINT id);
    /// @param delay wait for the next layout, which is asked for
    void ShowControlBar(CControlBar* bar, BOOL show, BOOL delay);
    /// Opens sides (CBRS_ALIGN_ bits) to bars that may be docked there. Bars that exist then lie outside the docks.
    void EnableDocking(DWORD dockStyle);
    /// Docks a bar. Nothing happens when bar and frame have no side in common.
    /// @param dockBarId one of AFX_IDW_DOCKBAR_; 0: the side that the bar's style names, else the first possible one
    /// @param rect where, on the screen: in the row that it lies on, or a new one; null: a new row behind the others
    void DockControlBar(CControlBar* bar, UINT dockBarId = 0, LPCRECT rect = nullptr);
    /// Lets a bar float. @param point its upper left corner on the screen
    /// @param style CBRS_ALIGN_TOP or _BOTTOM: it lies; _LEFT or _RIGHT: it stands
    /// @return the frame in which it floats, which ends when the bar leaves it; null on failure
    CFrameWnd* FloatControlBar(CControlBar* bar, CPoint point, DWORD style = 0x2000);
    /// Docks a bar where it was docked last, or like DockControlBar() when it never was.
    void RestoreDockedBar(CControlBar* bar);
    /// Lays bars and view out. @param notify bars and view may have been changed by the layout itself
    virtual void RecalcLayout(BOOL notify = TRUE);
    /// Asks for a layout at idle time.
    void DelayRecalcLayout(BOOL notify = TRUE);
    /// Docks, floats, shows and hides the bars of this frame as the section tells. Bars not named there stay. What
    /// would float out of the user's reach, as after a change of the screen, is brought back.
    void LoadBarState(LPCTSTR profileName);
    void SaveBarState(LPCTSTR profileName) const;
    void GetDockState(CDockState& state) const;
    void SetDockState(const CDockState& state);
    /// @}

    /// @name Message line
    /// @{
    void SetMessageText(LPCTSTR text);
    void SetMessageText(UINT id);
    /// Text of a command: the first line of the string with its id.
    virtual void GetMessageString(UINT id, CString& message) const;
    /// Window whose text is the message line: the status bar. Null when there is none.
    virtual CWnd* GetMessageBar();
    /// @}

    BOOL IsFrameWnd() const override;
    /// Whether menu or accelerator is tracked.
    BOOL IsTracking() const;
    HACCEL GetDefaultAccelerator() const;

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    BOOL PreTranslateMessage(MSG* message) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    CView* m_pViewActive = nullptr;

    /// Commands of the View menu that show or hide the bar of the same id.
    afx_msg void OnUpdateControlBarMenu(CCmdUI* cmdUI);
    afx_msg BOOL OnBarCheck(UINT id);
    afx_msg void OnUpdateKeyIndicator(CCmdUI* cmdUI);

protected:
    /// Creates what fills the client area: here the context's view, if any. FALSE stops the creation.
    virtual BOOL OnCreateClient(LPCREATESTRUCT create, CCreateContext* context);
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnClose();
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSetFocus(CWnd* former);
    afx_msg void OnActivate(UINT state, CWnd* other, BOOL minimized);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnEnable(BOOL enable);
    afx_msg void OnInitMenuPopup(CMenu* menu, UINT index, BOOL systemMenu);
    afx_msg void OnMenuSelect(UINT id, UINT flags, HMENU menu);
    afx_msg BOOL OnQueryEndSession();
    afx_msg void OnEndSession(BOOL ending);
    afx_msg LRESULT OnSetMessageString(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM, LPARAM);
    afx_msg BOOL OnToolTipText(UINT id, NMHDR* header, LRESULT* result);

    /// Work for idle time.
    enum IdleFlags : UINT
    {
        idleMenu = 1,
        idleTitle = 2,
        idleNotify = 4,
        idleLayout = 8
    };

    CString m_strTitle;
    HACCEL m_hAccelTable = nullptr;
    HMENU m_hMenuDefault = nullptr; ///< menu of LoadFrame() or Create(); destroyed with the frame
    int m_nWindow = -1;             ///< number for the title when a document has several frames, from 1; else -1 or 0
    UINT m_nIDTracking = 0;         ///< item under the menu's highlight
    UINT m_nIDLastMessage = 0;      ///< what the message line shows
    UINT m_nIdleFlags = 0;
    CRect m_rectBorder{0, 0, 0, 0};

private:
    std::vector<CControlBar*> AllBars() const;
    CDockBar* DockFor(const CControlBar& bar, UINT dockBarId);
    void TakeControlBar(CControlBar* bar);
    void UpdateFloatingFrames();
    void FitToBars();
    void RestoreDocked(const CDockState& state);
    void RestoreFloating(const CControlBarInfo& info, CControlBar& bar);
    void UpdateMenuItems(CMenu& menu);
    CMenu* ParentOf(const CMenu& menu) const;
    bool IsMainWindow() const;
    CString DocumentText(LPCTSTR documentName) const;

    std::vector<CControlBar*> m_controlBars;
    bool m_layingOut = false;

    DECLARE_MESSAGE_MAP()
};
