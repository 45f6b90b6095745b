#include "framework/frames/CPrintingDialog.h"
#include "framework/frames/FrameResources.h"
#include "framework/window/MessageLoop.h"

namespace vorn
{
namespace
{
/// One job can run on a thread at a time: its dialog disables the window that would start another.
thread_local bool cancelled = false;
} // namespace

CPrintingDialog::CPrintingDialog(CWnd* owner, const CString& documentTitle, const CString& printerName)
{
    cancelled = false;
    CDialog::Create(IDD_FRAME_PRINTING, owner);
    SetDlgItemText(IDC_FRAME_DOCUMENT, documentTitle);
    SetDlgItemText(IDC_FRAME_PRINTER, printerName);
    if (owner && owner->IsWindowEnabled())
    {
        m_disabledOwner = owner->m_hWnd;
        ::EnableWindow(m_disabledOwner, FALSE);
    }
    if (m_hWnd)
    {
        ShowWindow(SW_SHOW);
        UpdateWindow();
    }
}

CPrintingDialog::~CPrintingDialog()
{
    // First the owner, or the system would activate another program's window.
    if (::IsWindow(m_disabledOwner))
        ::EnableWindow(m_disabledOwner, TRUE);
    DestroyWindow();
}

void CPrintingDialog::ShowPage(const CString& text)
{
    if (m_hWnd)
        SetDlgItemText(IDC_FRAME_PAGE, text);
}

bool CPrintingDialog::IsCancelled()
{
    return cancelled;
}

BOOL CALLBACK CPrintingDialog::AbortProc(HDC, int)
{
    MSG message;
    while (!cancelled && ::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
    {
        if (!PumpMessage())
        {
            // The program ends: the job with it, and the message loops outside shall hear of it too.
            cancelled = true;
            ::PostQuitMessage(static_cast<int>(LastPumpedMessage().wParam));
        }
    }
    return !cancelled;
}

void CPrintingDialog::OnCancel()
{
    cancelled = true;
    ShowWindow(SW_HIDE);
}

void CPrintingDialog::OnOK()
{
}
} // namespace vorn
