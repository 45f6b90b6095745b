#include "tests/windows/proxy/ProxyBox.h"

#include "tests/support/DialogDriver.h"

#include <memory>

ProxyApp g_app;

ProxyApp::ProxyApp() : CWinApp("ProxyTests")
{
}

int ProxyApp::DoMessageBox(LPCTSTR prompt, UINT type, UINT promptId)
{
    messages.emplace_back(prompt);
    return shows ? CWinApp::DoMessageBox(prompt, type, promptId) : IDOK;
}

HWND ProxyBox::Item(int id) const
{
    return ::GetDlgItem(m_window, id);
}

std::string ProxyBox::Text(int id) const
{
    std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(Item(id))) + 1, '\0');
    text.resize(static_cast<std::size_t>(::GetWindowTextA(Item(id), text.data(), static_cast<int>(text.size()))));
    return text;
}

bool ProxyBox::IsEnabled(int id) const
{
    return ::IsWindowEnabled(Item(id)) != FALSE;
}

std::vector<std::string> ProxyBox::Lines() const
{
    const HWND list = Item(IDC_VORN_PROXY_LIST);
    std::vector<std::string> lines(static_cast<std::size_t>(::SendMessageA(list, LB_GETCOUNT, 0, 0)));
    for (std::size_t i = 0; i < lines.size(); ++i)
    {
        lines[i].resize(static_cast<std::size_t>(::SendMessageA(list, LB_GETTEXTLEN, i, 0)));
        ::SendMessageA(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(lines[i].data()));
    }
    return lines;
}

int ProxyBox::Selected() const
{
    return static_cast<int>(::SendMessageA(Item(IDC_VORN_PROXY_LIST), LB_GETCURSEL, 0, 0));
}

bool ProxyBox::IsTicked(int line) const
{
    auto* const list = dynamic_cast<CCheckListBox*>(CWnd::FromHandlePermanent(Item(IDC_VORN_PROXY_LIST)));
    return list != nullptr && list->GetCheck(line) == BST_CHECKED;
}

void ProxyBox::Select(int line) const
{
    const HWND list = Item(IDC_VORN_PROXY_LIST);
    ::SendMessageA(list, LB_SETCURSEL, static_cast<WPARAM>(line), 0);
    ::SendMessageA(m_window, WM_COMMAND, MAKEWPARAM(IDC_VORN_PROXY_LIST, LBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(list));
}

void ProxyBox::Click(int line, bool onBox) const
{
    const HWND list = Item(IDC_VORN_PROXY_LIST);
    RECT place = {};
    ::SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(&place));
    const int height = place.bottom - place.top;
    const int x = place.left + (onBox ? height / 2 : 3 * height);
    const LPARAM point = MAKELPARAM(x, place.top + height / 2);
    ::SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, point);
    ::SendMessageA(list, WM_LBUTTONUP, 0, point);
}

void ProxyBox::Tick(int line) const
{
    Click(line, true);
}

std::string ProxyBox::Type() const
{
    return Text(IDC_VORN_PROXY_TYPE);
}

void ProxyBox::ChooseType(int entry) const
{
    const HWND types = Item(IDC_VORN_PROXY_TYPE);
    ::SendMessageA(types, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
    ::SendMessageA(m_window, WM_COMMAND, MAKEWPARAM(IDC_VORN_PROXY_TYPE, CBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(types));
}

void ProxyBox::Focus(int id) const
{
    ::SetFocus(Item(id));
}

void ProxyBox::Type(int id, const std::string& text) const
{
    Focus(id);
    ::SendMessageA(Item(id), EM_SETSEL, 0, -1);
    ::SendMessageA(Item(id), WM_CLEAR, 0, 0);
    for (const char c : text)
    {
        ::SendMessageA(Item(id), WM_CHAR, static_cast<unsigned char>(c), 1);
    }
}

void ProxyBox::Enter(int id, const std::string& text) const
{
    Type(id, text);
    Leave();
}

void ProxyBox::Leave() const
{
    ::SendMessageA(m_window, WM_NEXTDLGCTL, 0, FALSE);
}

void ProxyBox::Press(int id) const
{
    ::SendMessageA(Item(id), BM_CLICK, 0, 0);
}

void ProxyBox::PressAndDragOff(int id) const
{
    const LPARAM off = MAKELPARAM(-20, -20);
    ::SendMessageA(Item(id), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ::SendMessageA(Item(id), WM_MOUSEMOVE, MK_LBUTTON, off);
    ::SendMessageA(Item(id), WM_LBUTTONUP, 0, off);
}

ProxyDialog::ProxyDialog()
{
    g_app.messages.clear();
    g_app.shows = false;
}

ProxyDialog::~ProxyDialog() = default;

ProxyInfo* ProxyDialog::Put(const char* address, int type)
{
    auto proxy = std::make_unique<ProxyInfo>();
    proxy->mAddress.Parse(address);
    proxy->mType = type;
    EXPECT_TRUE(m_set.AddProxy(proxy.get()));
    return proxy.release();
}

INT_PTR ProxyDialog::Run(const std::function<void(const ProxyBox&)>& use, int end)
{
    return Run(&m_set, use, end);
}

INT_PTR ProxyDialog::Run(ProxySet* proxies, const std::function<void(const ProxyBox&)>& use, int end)
{
    ProxyConfigDlg dialog(proxies, nullptr);
    return RunObject(dialog, use, end);
}

INT_PTR ProxyDialog::RunObject(ProxyConfigDlg& dialog, const std::function<void(const ProxyBox&)>& use, int end)
{
    DialogDriver driver(
        [&]
        {
            const HWND window = FindDialog("Proxy Settings");
            if (window == nullptr)
            {
                return false;
            }
            use(ProxyBox(window));
            ::PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(end), 0);
            return true;
        });
    return dialog.DoModal();
}

std::string ProxyDialog::Address(const ProxyInfo* proxy)
{
    const URI& address = proxy->mAddress;
    std::string text = address.mpUser ? address.mpUser : "-";
    text.append(" ").append(address.mpPassword ? address.mpPassword : "-");
    text.append(" ").append(address.mpHost ? address.mpHost : "-");
    return text.append(" ").append(std::to_string(address.mPort));
}
