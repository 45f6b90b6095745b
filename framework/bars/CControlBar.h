#pragma once

/// @file
/// Base of the bars along the edges of a frame window.
#include "framework/bars/BarStyles.h"
#include "framework/bars/DockPlace.h"
#include "framework/window/CWnd.h"

class CControlBarInfo;
class CDockBar;
class CFrameWnd;

namespace vorn
{
class BarDragging;
}

/// A bar: a child window of a frame that takes its strip of the frame's client area when the frame lays itself
/// out, keeps its items up to date while the program is idle, and passes on the notifications of its controls to its
/// owner, the frame.
///
/// A bar is usually a member of the frame's class. It joins its frame's list when its window is created and
/// leaves it when the window goes.
///
/// A bar that may be docked lies in a CDockBar of its frame, or in that of a small frame of its own that floats
/// before it. The user drags it by its free area, and sends it from the one to the other by a double click there.
class HOSTFRAMEWORK_API CControlBar : public CWnd
{
    DECLARE_DYNAMIC(CControlBar)

public:
    ~CControlBar() override;

    /// Whether the object is deleted with its window.
    BOOL m_bAutoDelete = FALSE;

    /// Number of items (panes, buttons).
    int GetCount() const;
    DWORD GetBarStyle() const;
    /// @param style CBRS_ bits; a change of the bits that matter for the place takes effect at the frame's next layout
    void SetBarStyle(DWORD style);
    CRect GetBorders() const;
    /// Empty room inside the bar's edges, in pixels.
    void SetBorders(int left = 0, int top = 0, int right = 0, int bottom = 0);
    void SetBorders(LPCRECT borders);
    /// Allows docking at these sides (CBRS_ALIGN_ bits) of a frame that allows them too, and lets the user drag the
    /// bar. 0: it stays where it is.
    void EnableDocking(DWORD dockStyle);
    /// Frame to which the bar belongs, also while it floats.
    CFrameWnd* GetDockingFrame() const;
    /// The dock in which the bar lies; null for a bar at a fixed place of its frame.
    CDockBar* GetDockBar() const;
    virtual BOOL IsDockBar() const;
    /// Whether the bar, shown or hidden, is in a floating frame.
    virtual BOOL IsFloating() const;
    /// From the dock into a floating frame and back, each to the place where the bar was last.
    void ToggleDocking();
    /// Whether the bar is, or as soon as a delayed change is done will be, visible.
    virtual BOOL IsVisible() const;
    /// Notes that the bar is to be shown or hidden at the next layout.
    virtual void DelayShow(BOOL show);

    /// The bar's size when docked. @param stretch as long as the frame @param horizontal lying
    virtual CSize CalcFixedLayout(BOOL stretch, BOOL horizontal);
    /// Size for a length or a mode of LM_ bits; here the fixed one.
    virtual CSize CalcDynamicLayout(int length, DWORD mode);
    /// Brings the items up to date. @param target frame that routes the updates
    virtual void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) = 0;
    /// Called when style bits change, old first; the bar may still change @p newStyle by SetBarStyle().
    virtual void OnBarStyleChange(DWORD oldStyle, DWORD newStyle);

    /// Describes the bar for the frame's saved state, and takes such a description over.
    void GetBarInfo(CControlBarInfo* info) const;
    void SetBarInfo(const CControlBarInfo* info, CFrameWnd* frame);

    DWORD RecalcDelayShow(AFX_SIZEPARENTPARAMS* layout);

    BOOL DestroyWindow() override;

protected:
    CControlBar();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;
    /// Paints the bar's own parts; bars that are system controls do not come here.
    virtual void DoPaint(CDC* dc);
    void DrawBorders(CDC* dc, CRect& rect);
    /// The part of @p rect inside borders.
    virtual void CalcInsideRect(CRect& rect, BOOL horizontal) const;
    /// Whether a bar that is pressed there, in client coordinates, is dragged: everywhere but on its own items.
    virtual bool IsFreeArea(CPoint point) const;
    /// Width in pixels of the band outside the client area, at the bar's beginning, where the gripper is drawn: with
    /// CBRS_GRIPPER, while the bar does not float.
    virtual int GripperExtent() const;
    /// The size with the gripper's band.
    CSize WithGripper(CSize size, BOOL horizontal) const;
    bool IsHorizontal() const;
    /// Lets the user drag the bar until the button goes up. @param pressed where it went down, on the screen
    void DragBar(CPoint pressed);
    bool IsDraggable() const;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params);
    afx_msg LRESULT OnNcHitTest(CPoint point);
    afx_msg void OnNcPaint();
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* window, UINT type);
    afx_msg LRESULT OnSizeParent(WPARAM, LPARAM lParam);
    afx_msg LRESULT OnIdleUpdateCmdUI(WPARAM wParam, LPARAM);
    afx_msg LRESULT OnInitialUpdate(WPARAM, LPARAM);

    enum class Pending
    {
        None,
        Show,
        Hide
    };

    int m_cxLeftBorder = 0;
    int m_cxRightBorder = 0;
    int m_cyTopBorder = 0;
    int m_cyBottomBorder = 0;
    int m_nCount = 0;
    Pending m_pending = Pending::None;
    CFrameWnd* m_pDockSite = nullptr;
    CDockBar* m_pDockBar = nullptr;
    DWORD m_dwStyle = 0;     ///< CBRS_ bits
    DWORD m_dwDockStyle = 0; ///< sides where the bar may be docked

private:
    vorn::DockPlace m_lastDock; ///< for the way back from floating
    POINT m_lastFloat{};        ///< its corner on the screen, for the way back from a dock
    bool m_hasFloated = false;  ///< whether m_lastFloat means something
    bool m_hasBorders = false;  ///< whether it has a border toward the view wherever it is docked

    friend class CDockBar;
    friend class CFrameWnd;
    friend class vorn::BarDragging;

    DECLARE_MESSAGE_MAP()
};
