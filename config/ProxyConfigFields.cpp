// What the user types into the fields of the proxy dialog.
#include "config/ProxyConfigDlg.h"
#include "config/core/ProxyTexts.h"

namespace
{

constexpr const char* kMismatch = "Your password entries do not match.  Please retype your password.";

constexpr UINT_PTR kMismatchTimer = 1;
constexpr UINT kMismatchDelay = 10; // milliseconds

/// Id of the control that has the focus, or gets it from the field that is being left; 0 in another program.
int FocusedId()
{
    const HWND focus = ::GetFocus();
    return focus ? ::GetDlgCtrlID(focus) : 0;
}

/// Whether what took the focus from a field may settle by itself that the passwords differ: a button that checks them,
/// or another line. Not so when it was reached by a key, so it must be asked again afterwards.
bool MaySettleMismatch()
{
    switch (FocusedId())
    {
    case 0:
    case IDOK:
    case IDC_VORN_PROXY_ADD:
    case IDC_VORN_PROXY_DELETE:
    case IDC_VORN_PROXY_LIST:
        return true;
    default:
        return ::GetKeyState(VK_LBUTTON) < 0;
    }
}

} // namespace

void ProxyConfigDlg::OnSelectType()
{
    ProxyInfo* const proxy = Selected();
    const int entry = m_types.GetCurSel();
    if (proxy && entry != CB_ERR)
    {
        proxy->mType = static_cast<int>(m_types.GetItemData(entry));
    }
}

void ProxyConfigDlg::OnLeaveField(UINT id)
{
    // Who leaves a field for the button Cancel throws away what he typed, unless he leaves the button unpressed.
    if (m_ends || m_tells || FocusedId() == IDCANCEL)
    {
        return;
    }
    Apply(id);
    const bool isConfirmed = id == IDC_VORN_PROXY_CONFIRMATION || (id == IDCANCEL && m_confirmation.HasChanged());
    if (isConfirmed && !ArePasswordsEqual())
    {
        NoteMismatch();
    }
}

void ProxyConfigDlg::NoteMismatch()
{
    if (MaySettleMismatch())
    {
        SetTimer(kMismatchTimer, kMismatchDelay);
    }
    else
    {
        CheckPasswords();
    }
}

void ProxyConfigDlg::OnTimer(UINT_PTR id)
{
    if (id != kMismatchTimer)
    {
        CDialog::OnTimer(id);
    }
    else if (FocusedId() == IDC_VORN_PROXY_CONFIRMATION)
    {
        KillTimer(kMismatchTimer); // the user is back
    }
    else if (FocusedId() != 0 && GetCapture() == nullptr)
    {
        CheckPasswords();
    }
}

void ProxyConfigDlg::Apply(UINT id)
{
    ProxyInfo* const proxy = Selected();
    if (!proxy)
    {
        return;
    }
    switch (id)
    {
    case IDC_VORN_PROXY_HOST:
        ApplyHost(*proxy);
        break;
    case IDC_VORN_PROXY_PORTS:
        ApplyPorts(*proxy);
        break;
    case IDC_VORN_PROXY_USER:
        ApplyUser(*proxy);
        break;
    case IDC_VORN_PROXY_PASSWORD:
    case IDC_VORN_PROXY_CONFIRMATION:
        ApplyPassword(*proxy);
        break;
    case IDCANCEL: // one of them waits at most, so none overwrites another by showing the entry again
        ApplyUser(*proxy);
        ApplyPassword(*proxy);
        ApplyPorts(*proxy);
        ApplyHost(*proxy);
        break;
    default:
        break;
    }
}

/// What is typed and not left yet.
void ProxyConfigDlg::ApplyTyped()
{
    Apply(IDC_VORN_PROXY_USER);
    Apply(IDC_VORN_PROXY_PASSWORD);
    Apply(static_cast<UINT>(FocusedId()));
}

void ProxyConfigDlg::ApplyHost(ProxyInfo& proxy)
{
    if (!m_host.HasChanged())
    {
        return; // "<no host>" among others
    }
    proxy.mAddress.Parse(m_host.Text());
    if (proxy.mAddress.mPort == 0)
    {
        proxy.mAddress.mPort = ProxyInfo::UsualPort(proxy.mType);
    }
    ReplaceSelectedLine();
}

void ProxyConfigDlg::ApplyPorts(ProxyInfo& proxy)
{
    if (!m_ports.HasChanged())
    {
        return;
    }
    const vorn::PortRange ports = vorn::ParsePorts(m_ports.Text().GetString());
    proxy.mFirstPort = ports.first;
    proxy.mLastPort = ports.last;
    ReplaceSelectedLine();
}

void ProxyConfigDlg::ApplyUser(ProxyInfo& proxy)
{
    if (m_user.HasChanged())
    {
        URI::SetString(proxy.mAddress.mpUser, m_user.Text());
        m_user.TakeAsShown();
    }
}

void ProxyConfigDlg::ApplyPassword(ProxyInfo& proxy)
{
    if (m_password.HasChanged() && ArePasswordsEqual())
    {
        URI::SetString(proxy.mAddress.mpPassword, m_password.Text());
        m_password.TakeAsShown();
        m_confirmation.TakeAsShown();
    }
}

bool ProxyConfigDlg::ArePasswordsEqual() const
{
    return m_password.Text() == m_confirmation.Text();
}

bool ProxyConfigDlg::CheckPasswords()
{
    KillTimer(kMismatchTimer);
    if (ArePasswordsEqual())
    {
        return true;
    }
    m_tells = true;
    AfxMessageBox(kMismatch);
    if (m_hWnd)
    {
        GotoDlgCtrl(&m_password);
    }
    m_tells = false;
    return false;
}
