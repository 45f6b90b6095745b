#include "config/ProxyConfigDlg.h"

#include "config/core/ProxyTexts.h"
#include "frame/LibraryDialog.h"

#include <algorithm>
#include <memory>

// The dialog as a whole and its list. What is typed into the fields: ProxyConfigFields.cpp.

IMPLEMENT_DYNAMIC(ProxyConfigDlg, CDialog)

BEGIN_MESSAGE_MAP(ProxyConfigDlg, CDialog)
ON_LBN_SELCHANGE(IDC_VORN_PROXY_LIST, &ProxyConfigDlg::OnSelectLine)
ON_CBN_SELCHANGE(IDC_VORN_PROXY_TYPE, &ProxyConfigDlg::OnSelectType)
ON_CONTROL_RANGE(EN_KILLFOCUS, IDC_VORN_PROXY_HOST, IDC_VORN_PROXY_CONFIRMATION, &ProxyConfigDlg::OnLeaveField)
ON_CONTROL_RANGE(BN_KILLFOCUS, IDCANCEL, IDCANCEL, &ProxyConfigDlg::OnLeaveField)
ON_BN_CLICKED(IDC_VORN_PROXY_ADD, &ProxyConfigDlg::OnAdd)
ON_BN_CLICKED(IDC_VORN_PROXY_DELETE, &ProxyConfigDlg::OnDelete)
ON_WM_TIMER()
END_MESSAGE_MAP()

ProxyConfigDlg::ProxyConfigDlg(ProxySet* proxies, CWnd* parent) : m_proxies(proxies)
{
    m_nIDHelp = IDD_VORN_PROXIES;
    InitModalIndirect(vorn::LibraryDialog(IDD_VORN_PROXIES), parent);
}

ProxyConfigDlg::~ProxyConfigDlg() = default;

void ProxyConfigDlg::DoDataExchange(CDataExchange* exchange)
{
    CDialog::DoDataExchange(exchange);
    DDX_Control(exchange, IDC_VORN_PROXY_LIST, m_list);
    DDX_Control(exchange, IDC_VORN_PROXY_TYPE, m_types);
    DDX_Control(exchange, IDC_VORN_PROXY_HOST, m_host);
    DDX_Control(exchange, IDC_VORN_PROXY_PORTS, m_ports);
    DDX_Control(exchange, IDC_VORN_PROXY_USER, m_user);
    DDX_Control(exchange, IDC_VORN_PROXY_PASSWORD, m_password);
    DDX_Control(exchange, IDC_VORN_PROXY_CONFIRMATION, m_confirmation);
    DDX_Control(exchange, IDC_VORN_PROXY_DELETE, m_delete);
}

BOOL ProxyConfigDlg::OnInitDialog()
{
    m_ends = false;
    m_tells = false;
    const BOOL result = CDialog::OnInitDialog();
    m_list.SetCheckStyle(BS_AUTOCHECKBOX);
    FillTypes();
    FillList();
    ShowSelected();
    ShowPassword();
    return result;
}

void ProxyConfigDlg::OnOK()
{
    if (!CheckPasswords())
    {
        return;
    }
    ApplyTyped();
    for (int line = 0; line < m_list.GetCount(); ++line)
    {
        EntryOf(line)->mEnabled = m_list.GetCheck(line) == BST_CHECKED;
    }
    m_ends = true;
    CDialog::OnOK();
}

void ProxyConfigDlg::OnCancel()
{
    m_ends = true;
    CDialog::OnCancel();
}

void ProxyConfigDlg::FillTypes()
{
    for (const vorn::ProxyTypeName& each : vorn::kProxyTypes)
    {
        m_types.SetItemData(m_types.AddString(each.text), static_cast<DWORD_PTR>(each.type));
    }
}

void ProxyConfigDlg::FillList()
{
    const int count = m_proxies ? m_proxies->GetCount() : 0;
    m_list.SetRedraw(FALSE);
    for (int i = 0; i < count; ++i)
    {
        ProxyInfo* const proxy = m_proxies->GetAt(i);
        InsertLine(i, proxy, proxy->mEnabled ? BST_CHECKED : BST_UNCHECKED);
    }
    m_list.SetRedraw(TRUE);
}

ProxyInfo* ProxyConfigDlg::EntryOf(int line) const
{
    return static_cast<ProxyInfo*>(m_list.GetItemDataPtr(line));
}

ProxyInfo* ProxyConfigDlg::Selected()
{
    const int line = m_list.m_hWnd ? m_list.GetCurSel() : LB_ERR;
    return line == LB_ERR ? nullptr : EntryOf(line);
}

void ProxyConfigDlg::InsertLine(int line, ProxyInfo* proxy, int check)
{
    const std::string text = vorn::ProxyLine(proxy->mAddress.mpHost, proxy->mAddress.mPort);
    const int inserted = m_list.InsertString(line, text.c_str());
    m_list.SetItemDataPtr(inserted, proxy);
    m_list.SetCheck(inserted, check);
}

void ProxyConfigDlg::SelectLine(int line)
{
    m_list.SetCurSel(line);
    ShowSelected();
    ShowPassword();
}

void ProxyConfigDlg::ReplaceSelectedLine()
{
    const int line = m_list.GetCurSel();
    ProxyInfo* const proxy = EntryOf(line);
    const int check = m_list.GetCheck(line); // the tick, which the entry gets with OK alone
    m_list.SetRedraw(FALSE);
    m_list.DeleteString(static_cast<UINT>(line));
    InsertLine(line, proxy, check);
    m_list.SetRedraw(TRUE);
    m_list.SetCurSel(line);
    ShowSelected();
    // A password that is being typed stays, or two that differ would be taken for equal.
    if (!m_password.HasChanged() && !m_confirmation.HasChanged())
    {
        ShowPassword();
    }
}

void ProxyConfigDlg::OnSelectLine()
{
    ShowSelected();
    ShowPassword();
}

void ProxyConfigDlg::ShowSelected()
{
    const ProxyInfo* const proxy = Selected();
    const bool there = proxy != nullptr;
    if (!there)
    {
        LeaveControlsOfEntry();
    }
    const ProxyInfo none;
    const ProxyInfo& shown = there ? *proxy : none;
    m_host.Show(vorn::ProxyLine(shown.mAddress.mpHost, shown.mAddress.mPort).c_str(), there);
    m_ports.Show(vorn::PortsText({shown.mFirstPort, shown.mLastPort}).c_str(), there);
    m_user.Show(shown.mAddress.mpUser, there);
    ShowType(proxy);
    m_delete.EnableWindow(there);
}

void ProxyConfigDlg::ShowPassword()
{
    const ProxyInfo* const proxy = Selected();
    const bool there = proxy != nullptr;
    const char* const password = there ? proxy->mAddress.mpPassword : nullptr;
    m_password.Show(password, there);
    m_confirmation.Show(password, there);
}

void ProxyConfigDlg::ShowType(const ProxyInfo* proxy)
{
    int entry = CB_ERR;
    for (int i = 0; proxy && i < m_types.GetCount(); ++i)
    {
        entry = static_cast<int>(m_types.GetItemData(i)) == proxy->mType ? i : entry;
    }
    m_types.SetCurSel(entry);
    m_types.EnableWindow(proxy != nullptr);
}

/// Takes the focus from a control that is about to be disabled, as the system would not know where to put it.
void ProxyConfigDlg::LeaveControlsOfEntry()
{
    const CWnd* const focus = GetFocus();
    const int id = focus && IsChild(focus) ? focus->GetDlgCtrlID() : 0;
    if (id == IDC_VORN_PROXY_DELETE || (id >= IDC_VORN_PROXY_TYPE && id <= IDC_VORN_PROXY_CONFIRMATION))
    {
        GotoDlgCtrl(GetDlgItem(IDC_VORN_PROXY_ADD));
    }
}

void ProxyConfigDlg::OnAdd()
{
    if (!CheckPasswords() || !m_proxies)
    {
        return;
    }
    ApplyTyped();
    auto made = std::make_unique<ProxyInfo>();
    if (!m_proxies->AddProxy(made.get()))
    {
        return;
    }
    ProxyInfo* const proxy = made.release(); // the set's now
    const int line = m_list.GetCount();
    InsertLine(line, proxy, proxy->mEnabled ? BST_CHECKED : BST_UNCHECKED);
    SelectLine(line);
    GotoDlgCtrl(&m_host);
}

void ProxyConfigDlg::OnDelete()
{
    ProxyInfo* const proxy = Selected();
    if (!proxy || !CheckPasswords())
    {
        return;
    }
    const int line = m_list.GetCurSel();
    m_list.DeleteString(static_cast<UINT>(line));
    m_proxies->DeleteProxy(proxy);
    SelectLine(std::min(line, m_list.GetCount() - 1));
}
