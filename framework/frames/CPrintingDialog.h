#pragma once

/// @file
/// Progress of a print job, with a button to cancel it.
#include "framework/dialog/CDialog.h"

namespace vorn
{
/// Modeless dialog that shows document, printer and page of a print job. While it stands, the program's main window is
/// disabled.
class CPrintingDialog : public CDialog
{
public:
    CPrintingDialog(CWnd* owner, const CString& documentTitle, const CString& printerName);
    ~CPrintingDialog() override;

    void ShowPage(const CString& text);
    /// Whether the user cancelled the job that runs on this thread.
    static bool IsCancelled();

    /// For CDC::SetAbortProc: handles waiting messages. @return whether the job goes on
    static BOOL CALLBACK AbortProc(HDC dc, int code);

protected:
    void OnCancel() override;
    /// There is nothing to confirm: the Return key does nothing.
    void OnOK() override;

private:
    HWND m_disabledOwner = nullptr;
};
} // namespace vorn
