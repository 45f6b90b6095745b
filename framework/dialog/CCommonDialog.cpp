#include "framework/dialog/CCommonDialog.h"

IMPLEMENT_DYNAMIC(CCommonDialog, CDialog)

CCommonDialog::CCommonDialog(CWnd* parent) : CDialog(static_cast<LPCTSTR>(nullptr), parent)
{
}

void CCommonDialog::OnOK()
{
    if (UpdateData(TRUE))
        Default();
}

void CCommonDialog::OnCancel()
{
    Default();
}
