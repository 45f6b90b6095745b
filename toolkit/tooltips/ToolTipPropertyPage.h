#pragma once

#include "framework/dialog/CPropertyPage.h"
#include "toolkit/tooltips/DialogTips.h"

/// A property page that explains its controls.
class VORNCOMMON_API ToolTipPropertyPage : public CPropertyPage
{
    DECLARE_DYNAMIC(ToolTipPropertyPage)
public:
    ToolTipPropertyPage();
    /// @param captionId string resource of the tab's text; 0: the template's title
    explicit ToolTipPropertyPage(UINT templateId, UINT captionId = 0);
    explicit ToolTipPropertyPage(LPCTSTR templateName, UINT captionId = 0);
    ~ToolTipPropertyPage() override;

    /// Creates the tooltip control, unless it is there. @return whether it is there
    bool InitTips();
    /// Gives controls their texts: ids of controls, and of the string resources of their tips. Controls that do not
    /// exist are skipped; null lists and counts below 1 do nothing.
    void AddTips(const UINT* ctrlIds, const UINT* textIds, int count);
    /// The same with the two ids side by side. @param count of pairs
    void AddTips(const UINT* idPairs, int count);
    /// Whether long lines are wrapped, at 300 pixels.
    void EnableMultiLineToolTips(BOOL bEnable = TRUE);
    /// For tools that are no controls of this window, and for the looks.
    ToolTipCtrlEx& GetToolTipCtrl();

    BOOL OnInitDialog() override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    vorn::DialogTips m_tips;
};
