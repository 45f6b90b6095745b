#pragma once

/// @file
/// Base of the bars along the edges of a frame window.
#include "framework/bars/BarStyles.h"
#include "framework/window/CWnd.h"

class CControlBarInfo;
class CFrameWnd;

/// A bar: a child window of a frame that takes its strip of the frame's client area when the frame lays itself
/// out, keeps its items up to date while the program is idle, and passes on the notifications of its controls to its
/// owner, the frame.
///
/// A bar is usually a member of the frame's class. It joins its frame's list when its window is created and
/// leaves it when the window goes.
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
    /// Allows docking at these sides (CBRS_ALIGN_ bits). Sides are remembered; a docked bar moves there by
    /// SetBarStyle().
    void EnableDocking(DWORD dockStyle);
    /// Frame that lays the bar out.
    CFrameWnd* GetDockingFrame() const;
    BOOL IsFloating() const;
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

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
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
    DWORD m_dwStyle = 0;     ///< CBRS_ bits
    DWORD m_dwDockStyle = 0; ///< sides where the bar may be docked

    friend class CFrameWnd;

    DECLARE_MESSAGE_MAP()
};
