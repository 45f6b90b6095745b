// What the open file dialog tells, and what it is told.
#include "framework/dialog/CFileDialog.h"

void CFileDialog::SetControlText(int id, LPCSTR text)
{
    ::SendMessageA(::GetParent(m_hWnd), CDM_SETCONTROLTEXT, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(text));
}

void CFileDialog::HideControl(int id)
{
    ::SendMessageA(::GetParent(m_hWnd), CDM_HIDECONTROL, static_cast<WPARAM>(id), 0);
}

void CFileDialog::SetDefExt(LPCSTR extension)
{
    ::SendMessageA(::GetParent(m_hWnd), CDM_SETDEFEXT, 0, reinterpret_cast<LPARAM>(extension));
}

BOOL CFileDialog::OnFileNameOK()
{
    return FALSE;
}

UINT CFileDialog::OnShareViolation(LPCTSTR)
{
    return OFN_SHAREWARN;
}

void CFileDialog::OnInitDone()
{
}

void CFileDialog::OnFileNameChange()
{
}

void CFileDialog::OnFolderChange()
{
}

void CFileDialog::OnTypeChange()
{
}

BOOL CFileDialog::Answer(LRESULT answer, LRESULT* result)
{
    // The system reads the answer from the dialog's message result.
    ::SetWindowLongA(m_hWnd, DWL_MSGRESULT, answer);
    if (result)
        *result = answer;
    return TRUE;
}

BOOL CFileDialog::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    const auto* const notification = reinterpret_cast<const OFNOTIFYA*>(lParam);
    switch (notification->hdr.code)
    {
    case CDN_INITDONE:
        OnInitDone();
        return Answer(0, result);
    case CDN_SELCHANGE:
        OnFileNameChange();
        return Answer(0, result);
    case CDN_FOLDERCHANGE:
        OnFolderChange();
        return Answer(0, result);
    case CDN_TYPECHANGE:
        OnTypeChange();
        return Answer(0, result);
    case CDN_SHAREVIOLATION:
        return Answer(static_cast<LRESULT>(OnShareViolation(notification->pszFile)), result);
    case CDN_FILEOK:
        return Answer(OnFileNameOK(), result);
    default:
        return CCommonDialog::OnNotify(wParam, lParam, result);
    }
}
