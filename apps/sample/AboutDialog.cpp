#include "apps/sample/AboutDialog.h"

#include "apps/datasets/DataSets.h"
#include "apps/sample/model/ModuleVersions.h"
#include "apps/sample/resource.h"

#include <array>

namespace
{

constexpr const char* kPage = "https://www.vornwald.example/";
constexpr const char* kLicences = "..\\share\\doc\\vorn\\licences\\README.txt"; // in an installed package

constexpr UINT kWebLinkText = 1759; // of the library

// Control and tip by turns.
constexpr std::array<UINT, 6> kTips = {IDC_ABOUT_VERSIONS, IDS_TIP_ABOUT_VERSIONS, IDC_ABOUT_PAGE,
                                       kWebLinkText,       IDC_ABOUT_LICENCES,     IDS_TIP_ABOUT_LICENCES};

} // namespace

AboutDialog::AboutDialog(CWnd* parent) : ToolTipDlg(IDD_ABOUT, parent)
{
}

BOOL AboutDialog::OnInitDialog()
{
    ToolTipDlg::OnInitDialog();
    AddTips(kTips.data(), static_cast<int>(kTips.size() / 2));
    CString text;
    for (const ModuleVersion& module : LoadedModules())
        text.AppendFormat("%s  %s\r\n", module.fileName.c_str(), module.version.c_str());
    SetDlgItemText(IDC_ABOUT_VERSIONS, text);
    AddLinks();
    CenterWindow();
    GetDlgItem(IDOK)->SetFocus(); // otherwise the list of versions comes up selected
    return FALSE;
}

void AboutDialog::AddLinks()
{
    m_page.SubclassDlgItem(IDC_ABOUT_PAGE, this, kPage);
    const std::string licences = ProgramFolder() + kLicences;
    m_licences.SubclassDlgItem(IDC_ABOUT_LICENCES, this, licences.c_str());
    m_licences.ShowWindow(FileExists(licences.c_str()) ? SW_SHOW : SW_HIDE);
}
