#include "apps/sample/preferences/NetworkCategory.h"

#include "apps/sample/preferences/ProxyDialog.h"
#include "apps/sample/preferences/resource.h"

#include <array>

namespace vorn::preferences
{

namespace
{

constexpr UINT kProxiesText = 1766;

constexpr std::array kTips = {
    Tip{IDC_OPT_PROXY_LIST, kProxiesText},
    Tip{IDC_OPT_PROXIES, kProxiesText},
};

std::string LineOf(const ProxyInfo& proxy)
{
    const URI& address = proxy.mAddress;
    std::string line = address.mpHost != nullptr ? address.mpHost : "<no host>";
    if (address.mPort != 0)
        line.append(":").append(std::to_string(address.mPort));
    return proxy.mEnabled ? line : line + " (not used)";
}

} // namespace

NetworkCategory::NetworkCategory() : Category("Network", IDC_OPT_NETWORK_FIRST, kTips)
{
}

void NetworkCategory::Fill()
{
    auto& list = static_cast<CListBox&>(Control(IDC_OPT_PROXY_LIST));
    list.ResetContent();
    ProxySet set;
    LoadProxies(set);
    for (int i = 0; i < set.GetCount(); ++i)
        list.AddString(LineOf(*set.GetAt(i)).c_str());
    if (set.GetCount() == 0)
        list.AddString("No proxies: straight to the network");
}

void NetworkCategory::Arrange(Form& form, Form::Pane& area)
{
    area << form.Whole(IDC_OPT_PROXY_LIST_LABEL) << form.Large(IDC_OPT_PROXY_LIST, 120, 50)
         << (form.Line() << form.Fixed(IDC_OPT_PROXIES));
}

bool NetworkCategory::Store()
{
    return false;
}

bool NetworkCategory::OnControl(UINT id, UINT code)
{
    if (id == IDC_OPT_PROXIES && code == BN_CLICKED)
        EditProxies();
    return false;
}

void NetworkCategory::EditProxies()
{
    ProxySet set;
    LoadProxies(set);
    if (ProxyDialog(&set, &Dialog()).DoModal() != IDOK)
        return;
    if (!StoreProxies(set))
        AfxMessageBox("Not all proxies could be stored.\n\nMay this user write settings?", MB_OK | MB_ICONEXCLAMATION);
    Fill();
}

} // namespace vorn::preferences
