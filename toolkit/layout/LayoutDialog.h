#pragma once

/// @file
/// A dialog that lays out its controls and explains them.
#include "framework/bars/CStatusBar.h"
#include "toolkit/layout/LayoutMgr.h"
#include "toolkit/tooltips/ToolTipDlg.h"

namespace LayoutManagement
{

/// A dialog whose OnInitDialog() declares its panes, after that of this class, and calls UpdateLayout(false); there it
/// adds its tips, too. Sizes, limits, background and placement follow by themselves.
class VORNCOMMON_API LayoutDialog : public ToolTipDlg, protected LayoutMgr
{
    DECLARE_DYNAMIC(LayoutDialog)

public:
    /// @param section of the application's profile, where the placement is kept; null or empty for nowhere
    /// @param bStatusBar with a status bar below the panes
    /// @param bResizable with a frame by which the user sizes it
    LayoutDialog(UINT nIDTemplate, CWnd* parent, LPCSTR section, bool bStatusBar = false, bool bResizable = true);
    LayoutDialog(LPCTSTR templateName, CWnd* parent, LPCSTR section, bool bStatusBar = false, bool bResizable = true);
    ~LayoutDialog() override;

    /// In this order: controls, icon and tips; the sizing frame; the status bar; the placement.
    /// @return TRUE
    BOOL OnInitDialog() override;
    void UpdateLayout(bool bRedraw = false) override;
    using LayoutMgr::UpdateLayout;
    /// The client rectangle without the status bar.
    CRect GetRect() override;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg void OnDestroy();

    CString m_strSection;
    CStatusBar m_statusBar;
    bool m_bStatusBar;
    bool m_bResizable;

    DECLARE_MESSAGE_MAP()

private:
    void MatchSystemMenu();
    void AddStatusBar();
};

} // namespace LayoutManagement
