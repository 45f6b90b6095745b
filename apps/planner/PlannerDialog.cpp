#include "apps/planner/PlannerDialog.h"

namespace vorn::planner
{

PlannerDialog::PlannerDialog(UINT id, PlannerData& data, CWnd* parent, LPCSTR section)
    : LayoutDialog(id, parent, section), m_data(data)
{
}

BOOL PlannerDialog::OnInitDialog()
{
    LockLayout(true); // nothing is declared while the frame and the former place are taken
    LayoutDialog::OnInitDialog();
    Fill();
    Form form(*this, *this);
    Arrange(form);
    UnlockLayout();
    UpdateLayout(false);
    for (const Tip& tip : Tips())
        AddTips(&tip.control, &tip.text, 1);
    return TRUE;
}

std::span<const Tip> PlannerDialog::Tips() const
{
    return {};
}

void PlannerDialog::OnOK()
{
    if (!Take())
        return;
    Keep();
    LayoutDialog::OnOK();
}

void PlannerDialog::Keep()
{
    m_data.Store();
}

CString PlannerDialog::TextAt(UINT id) const
{
    CString text;
    GetDlgItemText(static_cast<int>(id), text);
    return text;
}

bool PlannerDialog::IsChecked(UINT id) const
{
    return IsDlgButtonChecked(static_cast<int>(id)) == BST_CHECKED;
}

void PlannerDialog::Check(UINT id, bool checked)
{
    CheckDlgButton(static_cast<int>(id), checked ? BST_CHECKED : BST_UNCHECKED);
}

void PlannerDialog::FillWithPlaces(CComboBox& box, const std::string& chosen) const
{
    for (const Place& place : m_data.places)
        box.AddString(place.ident.c_str());
    if (box.SelectString(-1, chosen.c_str()) < 0)
        box.SetWindowText(chosen.c_str());
}

void TakeNumber(FloatEdit& field, CWnd& dialog, UINT id, short decimals, double value, const char* suffix,
                const char* prefix)
{
    field.SubclassDlgItem(id, &dialog);
    field.SetAttributes(decimals, decimals > 0);
    field.SetPrefix(prefix);
    field.SetSuffix(suffix);
    field.SetValue(value);
}

} // namespace vorn::planner
