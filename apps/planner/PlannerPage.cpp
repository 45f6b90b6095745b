#include "apps/planner/PlannerPage.h"

namespace vorn::planner
{

PlannerPage::PlannerPage(UINT id) : LayoutPropertyPage(id, 0)
{
}

BOOL PlannerPage::OnInitDialog()
{
    LayoutPropertyPage::OnInitDialog();
    Fill();
    Form form(*this, *this);
    Arrange(form);
    UpdateLayout(false);
    m_filled = true;
    return TRUE;
}

BOOL PlannerPage::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const UINT code = HIWORD(wParam);
    const bool isFromControl = lParam != 0;
    // EN_CHANGE and CBN_SELCHANGE; a button's click is 0.
    if (m_filled && isFromControl && (code == BN_CLICKED || code == CBN_SELCHANGE || code == EN_CHANGE))
        SetModified(TRUE);
    return LayoutPropertyPage::OnCommand(wParam, lParam);
}

bool PlannerPage::IsChecked(UINT id) const
{
    return IsDlgButtonChecked(static_cast<int>(id)) == BST_CHECKED;
}

void PlannerPage::Check(UINT id, bool checked)
{
    CheckDlgButton(static_cast<int>(id), checked ? BST_CHECKED : BST_UNCHECKED);
}

} // namespace vorn::planner
