#pragma once

/// @file
/// A property page that lays out its controls and explains them.
#include "toolkit/layout/LayoutMgr.h"
#include "toolkit/tooltips/ToolTipPropertyPage.h"

namespace LayoutManagement
{

/// A page whose OnInitDialog() declares its panes, after that of this class. In a LayoutPropertySheet it fills the
/// sheet's page area at every size; in another sheet it has the size that the sheet gives it.
class VORNCOMMON_API LayoutPropertyPage : public ToolTipPropertyPage, protected LayoutMgr
{
    DECLARE_DYNAMIC(LayoutPropertyPage)

public:
    /// Followed by Construct().
    LayoutPropertyPage();
    /// @param nIDCaption text for the page's tab, in place of the template's title; 0 for that one
    explicit LayoutPropertyPage(UINT nIDTemplate, UINT nIDCaption = 0);
    explicit LayoutPropertyPage(LPCTSTR templateName, UINT nIDCaption = 0);
    ~LayoutPropertyPage() override;

    BOOL OnInitDialog() override;
    BOOL OnSetActive() override;
    /// The client rectangle.
    CRect GetRect() override;

protected:
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* info);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnWindowPosChanging(WINDOWPOS* position);
    afx_msg void OnWindowPosChanged(WINDOWPOS* position);
    afx_msg void OnDestroy();

    DECLARE_MESSAGE_MAP()

private:
    friend class LayoutPropertySheet;
};

} // namespace LayoutManagement
