#pragma once

#include "toolkit/IconDlg.h"

/// A warning with a check box ("Do not show this again"), as large as its text needs. Lines that are too wide are
/// wrapped; a text that is too high for the screen scrolls.
class VORNCOMMON_API WarningDlgWithCheck : public IconDlg
{
    DECLARE_DYNAMIC(WarningDlgWithCheck)
public:
    /// Null texts are empty; an empty `checkText` leaves the check box out.
    /// @param checked its state at first.
    WarningDlgWithCheck(LPCSTR text, LPCSTR title, LPCSTR checkText, bool checked, CWnd* parent = nullptr);
    ~WarningDlgWithCheck() override;

    /// After DoModal: the state of the box when the warning was confirmed. A cancelled one leaves the first state.
    bool WasCheckChecked() const;

    BOOL OnInitDialog() override;

protected:
    void OnOK() override;
    /// Measures the text and gives the box its size.
    virtual void SetSize();
    /// Places the controls.
    virtual void MoveControls();

private:
    CSize TextSize(int maxWidth);
    CSize CheckSize();

    CString m_text;
    CString m_title;
    CString m_checkText;
    bool m_checked;
    CRect m_iconPlace;
    CRect m_textPlace;
    CRect m_checkPlace;
    CRect m_buttonPlace;
    bool m_scrolls = false;
};
