#include "apps/sample/preferences/ProxyDialog.h"

namespace vorn::preferences
{

namespace
{

constexpr UINT kFirstText = 1766; // of the list; the controls' ids and those of the texts are in the same order

} // namespace

BEGIN_MESSAGE_MAP(ProxyDialog, ProxyConfigDlg)
ON_WM_DESTROY()
END_MESSAGE_MAP()

ProxyDialog::ProxyDialog(ProxySet* proxies, CWnd* parent) : ProxyConfigDlg(proxies, parent)
{
}

BOOL ProxyDialog::OnInitDialog()
{
    const BOOL result = ProxyConfigDlg::OnInitDialog();
    m_tips.Create(this);
    for (UINT id = IDC_VORN_PROXY_LIST; id <= IDC_VORN_PROXY_DELETE; ++id)
        m_tips.AddTool(GetDlgItem(static_cast<int>(id)), kFirstText + id - IDC_VORN_PROXY_LIST, id);
    return result;
}

BOOL ProxyDialog::PreTranslateMessage(MSG* message)
{
    if (m_tips.m_hWnd != nullptr)
        m_tips.RelayEvent(message);
    return ProxyConfigDlg::PreTranslateMessage(message);
}

const ToolTipCtrlEx& ProxyDialog::Tips() const
{
    return m_tips;
}

void ProxyDialog::OnDestroy()
{
    m_tips.DestroyWindow();
    ProxyConfigDlg::OnDestroy();
}

} // namespace vorn::preferences
