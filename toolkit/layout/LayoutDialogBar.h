#pragma once

/// @file
/// A control bar that lays out its controls and explains them.
#include "toolkit/layout/LayoutMgr.h"
#include "toolkit/tooltips/ToolTipDlgBar.h"

namespace LayoutManagement
{

/// A dialog bar whose OnInitDialog() declares its panes, after that of this class, and adds its tips. The bar is never
/// smaller than its layout asks for, and its controls follow its size, wherever it is docked or floats.
class VORNCOMMON_API LayoutDialogBar : public ToolTipDlgBar, protected LayoutMgr
{
    DECLARE_DYNAMIC(LayoutDialogBar)

public:
    /// @param section of the application's profile, where the placement is kept; null or empty for nowhere
    explicit LayoutDialogBar(LPCSTR section = nullptr);
    ~LayoutDialogBar() override;

    /// The size that the framework would give it, at least the layout's smallest with the root borders and the bar's
    /// own frame.
    CSize CalcDynamicLayout(int length, DWORD mode) override;
    /// Tells the tips where the controls are, too.
    void UpdateLayout(bool bRedraw = false) override;
    using LayoutMgr::UpdateLayout;

protected:
    /// Called when the controls exist. The bar leaves the focus where it is. @return TRUE
    virtual BOOL OnInitDialog();
    /// The layout's smallest client area with the root borders; 0 x 0 without a root.
    CSize LayoutMinimum();

    afx_msg LRESULT OnInitBar(WPARAM wParam, LPARAM lParam);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnDestroy();

    CString m_strSection;

    DECLARE_MESSAGE_MAP()

private:
    CSize FrameAround();
};

} // namespace LayoutManagement
