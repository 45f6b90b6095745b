#pragma once

#include "framework/include/afxcmn.h"

class VornLog;

/// The window that shows a log's text, from its beginning, to be read and copied.
class VornLogDlg : public CDialog
{
    DECLARE_DYNAMIC(VornLogDlg)
public:
    /// `log` is asked for its text when the window opens, once. Owned by the application's main window.
    explicit VornLogDlg(VornLog& log);
    ~VornLogDlg() override;

    INT_PTR DoModal() override;
    BOOL OnInitDialog() override;

protected:
    void DoDataExchange(CDataExchange* exchange) override;

private:
    void ShowText();
    void Insert(const char* text);

    VornLog& m_log;
    CRichEditCtrl m_text;
};
