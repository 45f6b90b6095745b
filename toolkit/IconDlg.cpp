#include "toolkit/IconDlg.h"

IMPLEMENT_DYNAMIC(IconDlg, CDialog)

IconDlg::IconDlg() = default;

IconDlg::IconDlg(UINT id, CWnd* parent) : CDialog(id, parent)
{
}

IconDlg::IconDlg(LPCSTR name, CWnd* parent) : CDialog(name, parent)
{
}

IconDlg::~IconDlg() = default;

BOOL IconDlg::OnInitDialog()
{
    const BOOL result = CDialog::OnInitDialog();
    m_icons.Put(*this, GetIconID());
    return result;
}

UINT IconDlg::GetIconID()
{
    return vorn::kHostIcon;
}
