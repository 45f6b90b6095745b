#include "framework/window/CWnd.h"

int CWnd::GetDlgCtrlID() const
{
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID)
{
    return static_cast<int>(::SetWindowLongPtr(m_hWnd, GWLP_ID, nID));
}

CWnd* CWnd::GetDlgItem(int nID) const
{
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const
{
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

int CWnd::GetCheckedRadioButton(int nIDFirstButton, int nIDLastButton) const
{
    for (int id = nIDFirstButton; id <= nIDLastButton; ++id)
    {
        if (::IsDlgButtonChecked(m_hWnd, id) != BST_UNCHECKED)
        {
            return id;
        }
    }
    return 0;
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck)
{
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

void CWnd::CheckRadioButton(int nIDFirstButton, int nIDLastButton, int nIDCheckButton)
{
    ::CheckRadioButton(m_hWnd, nIDFirstButton, nIDLastButton, nIDCheckButton);
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const
{
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const
{
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned)
{
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const
{
    return static_cast<int>(::GetDlgItemText(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const
{
    rString.Empty();
    if (const CWnd* item = GetDlgItem(nID))
    {
        item->GetWindowText(rString);
    }
    return rString.GetLength();
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString)
{
    ::SetDlgItemText(m_hWnd, nID, lpszString);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::SendDlgItemMessage(m_hWnd, nID, message, wParam, lParam);
}

CWnd* CWnd::GetNextDlgGroupItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, pWndCtl->GetSafeHwnd(), bPrevious));
}

int CWnd::DlgDirList(LPTSTR lpPathSpec, int nIDListBox, int nIDStaticPath, UINT nFileType)
{
    return ::DlgDirList(m_hWnd, lpPathSpec, nIDListBox, nIDStaticPath, nFileType);
}

BOOL CWnd::DlgDirSelect(LPTSTR lpString, int nSize, int nIDListBox)
{
    return ::DlgDirSelectEx(m_hWnd, lpString, nSize, nIDListBox);
}

void CWnd::GotoDlgCtrl(CWnd* pWndCtrl)
{
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(pWndCtrl->GetSafeHwnd()), TRUE);
}

void CWnd::NextDlgCtrl() const
{
    SendMessage(WM_NEXTDLGCTL, 0, FALSE);
}

void CWnd::PrevDlgCtrl() const
{
    SendMessage(WM_NEXTDLGCTL, 1, FALSE);
}
