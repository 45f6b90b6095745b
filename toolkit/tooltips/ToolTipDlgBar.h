#pragma once

#include "framework/bars/CDialogBar.h"
#include "toolkit/tooltips/DialogTips.h"

/// A dialog bar that explains its controls.
class VORNCOMMON_API ToolTipDlgBar : public CDialogBar
{
    DECLARE_DYNAMIC(ToolTipDlgBar)
public:
    ToolTipDlgBar();
    ~ToolTipDlgBar() override;

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
    /// The controls have moved within the bar.
    void UpdateToolRects();

    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    vorn::DialogTips m_tips;
};
