#include "apps/sample/AboutDialog.h"

#include "apps/sample/model/ModuleVersions.h"
#include "apps/sample/resource.h"

AboutDialog::AboutDialog(CWnd* parent) : CDialog(IDD_ABOUT, parent)
{
}

BOOL AboutDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    CString text;
    for (const ModuleVersion& module : LoadedModules())
        text.AppendFormat("%s  %s\r\n", module.fileName.c_str(), module.version.c_str());
    SetDlgItemText(IDC_ABOUT_VERSIONS, text);
    CenterWindow();
    GetDlgItem(IDOK)->SetFocus(); // otherwise the list of versions comes up selected
    return FALSE;
}
