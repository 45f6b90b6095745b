// What a sheet tells its pages.
#include "framework/dialog/CPropertyPage.h"

BOOL CPropertyPage::OnSetActive()
{
    return TRUE;
}

BOOL CPropertyPage::OnKillActive()
{
    return UpdateData(TRUE);
}

BOOL CPropertyPage::OnApply()
{
    OnOK();
    return TRUE;
}

void CPropertyPage::OnReset()
{
    OnCancel();
}

void CPropertyPage::OnOK()
{
    SetModified(FALSE);
}

void CPropertyPage::OnCancel()
{
}

BOOL CPropertyPage::OnQueryCancel()
{
    return TRUE;
}

LRESULT CPropertyPage::OnWizardBack()
{
    return 0;
}

LRESULT CPropertyPage::OnWizardNext()
{
    return 0;
}

BOOL CPropertyPage::OnWizardFinish()
{
    return UpdateData(TRUE); // the system finishes without leaving the page
}

BOOL CPropertyPage::PreTranslateMessage(MSG* message)
{
    // What dialogs do with keys is the sheet's to do, or Tab would never leave the page and Return never reach the
    // sheet's buttons.
    FilterToolTipMessage(message);
    return FALSE;
}

bool CPropertyPage::AnswerSheet(UINT code, LRESULT& answer)
{
    switch (code)
    {
    case PSN_SETACTIVE:
        answer = OnSetActive() ? 0 : -1;
        return true;
    case PSN_KILLACTIVE:
        answer = !OnKillActive();
        return true;
    case PSN_APPLY:
        answer = OnApply() ? PSNRET_NOERROR : PSNRET_INVALID_NOCHANGEPAGE;
        return true;
    case PSN_RESET:
        OnReset();
        answer = 0;
        return true;
    case PSN_QUERYCANCEL:
        answer = !OnQueryCancel();
        return true;
    case PSN_WIZBACK:
        answer = OnWizardBack();
        return true;
    case PSN_WIZNEXT:
        answer = OnWizardNext();
        return true;
    case PSN_WIZFINISH:
        answer = !OnWizardFinish();
        return true;
    case PSN_HELP:
        answer = SendMessage(WM_COMMANDHELP);
        return true;
    default:
        return false;
    }
}

BOOL CPropertyPage::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
    const HWND window = m_hWnd;
    LRESULT answer = 0;
    // The page's own controls number their notifications themselves.
    if (::IsChild(window, header->hwndFrom) || !AnswerSheet(header->code, answer))
        return CDialog::OnNotify(wParam, lParam, result);
    ::SetWindowLongA(window, DWL_MSGRESULT, answer);
    if (result)
        *result = answer;
    return TRUE;
}
