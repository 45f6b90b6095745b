#pragma once

/// @file
/// Bar with the controls of a dialog template.
#include "framework/bars/CControlBar.h"

/// A control bar made from a dialog template, which should have the style WS_CHILD and no caption. The Tab key moves
/// among its controls as in a dialog; their commands and notifications go to the bar's owner, the frame, when the
/// bar's own message map does not handle them. Buttons whose command nobody handles are disabled at idle time.
///
/// A derived class prepares its controls in a handler of WM_INITDIALOG, which calls HandleInitDialog() first.
class HOSTFRAMEWORK_API CDialogBar : public CControlBar
{
    DECLARE_DYNAMIC(CDialogBar)

public:
    CDialogBar();
    ~CDialogBar() override;

    /// @param templateName looked up along the resource chain
    /// @param style side and other CBRS_ bits
    /// @param id the bar's window id
    /// @return FALSE without such a template, or when the window cannot be created
    virtual BOOL Create(CWnd* parent, LPCTSTR templateName, UINT style, UINT id);
    virtual BOOL Create(CWnd* parent, UINT templateId, UINT style, UINT id);

    /// The size of the template in pixels.
    CSize m_sizeDefault{0, 0};

    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disableIfNoHandler) override;
    BOOL PreTranslateMessage(MSG* message) override;

protected:
    afx_msg LRESULT HandleInitDialog(WPARAM wParam, LPARAM lParam);

private:
    LPCTSTR m_templateName = nullptr; ///< while the window is created

    DECLARE_MESSAGE_MAP()
};
