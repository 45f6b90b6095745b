#include "apps/sample/EditFieldDialog.h"

#include "apps/sample/resource.h"

#include <array>

namespace
{

// Control and tip by turns.
constexpr std::array<UINT, 4> kTips = {IDC_EDIT_FIELD, IDS_TIP_EDIT_FIELD, IDC_EDIT_VALUE, IDS_TIP_EDIT_VALUE};

} // namespace

BEGIN_MESSAGE_MAP(EditFieldDialog, ToolTipDlg)
ON_CBN_SELCHANGE(IDC_EDIT_FIELD, &EditFieldDialog::OnFieldChosen)
ON_EN_CHANGE(IDC_EDIT_VALUE, &EditFieldDialog::OnValueChanged)
END_MESSAGE_MAP()

EditFieldDialog::EditFieldDialog(CWnd* parent, vorn::DataTable& table, int row, int field)
    : ToolTipDlg(IDD_EDIT_FIELD, parent), m_table(table), m_row(row), m_field(field)
{
}

int EditFieldDialog::Field() const
{
    return m_field;
}

BOOL EditFieldDialog::OnInitDialog()
{
    ToolTipDlg::OnInitDialog();
    AddTips(kTips.data(), static_cast<int>(kTips.size() / 2));
    CString caption;
    caption.Format("Edit record %d", m_table.RecordOf(m_row));
    SetWindowText(caption);
    auto& fields = static_cast<CComboBox&>(*GetDlgItem(IDC_EDIT_FIELD));
    for (const vorn::FieldFacts& field : m_table.Fields())
        fields.AddString(field.name.c_str());
    fields.SetCurSel(m_field);
    OnFieldChosen();
    CenterWindow();
    auto& value = static_cast<CEdit&>(*GetDlgItem(IDC_EDIT_VALUE));
    value.SetFocus();
    value.SetSel(0, -1);
    return FALSE;
}

void EditFieldDialog::OnFieldChosen()
{
    m_field = static_cast<CComboBox&>(*GetDlgItem(IDC_EDIT_FIELD)).GetCurSel();
    SetDlgItemText(IDC_EDIT_VALUE, m_table.Value(m_row, m_field).c_str());
    OnValueChanged();
}

std::string EditFieldDialog::TypedValue() const
{
    CString text;
    GetDlgItemText(IDC_EDIT_VALUE, text);
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}

void EditFieldDialog::OnValueChanged()
{
    const std::string value = TypedValue();
    const vorn::TableResult check = m_table.Check(m_field, value);
    SetDlgItemText(IDC_EDIT_HINT, Hint(check, value.size()).c_str());
    GetDlgItem(IDOK)->EnableWindow(check == vorn::TableResult::Done);
}

std::string EditFieldDialog::Hint(vorn::TableResult check, std::size_t typed) const
{
    const vorn::FieldFacts& field = m_table.Fields()[static_cast<std::size_t>(m_field)];
    std::string hint = std::to_string(typed);
    if (field.type != 'M')
        hint += " of " + std::to_string(field.length);
    hint += field.type == 'N' ? " digits" : " characters";
    return check == vorn::TableResult::Done ? hint : hint + ". " + vorn::Explain(check);
}

void EditFieldDialog::OnOK()
{
    const vorn::TableResult result = m_table.SetValue(m_row, m_field, TypedValue());
    if (result == vorn::TableResult::Done)
        return EndDialog(IDOK);
    AfxMessageBox(vorn::Explain(result), MB_OK | MB_ICONEXCLAMATION);
}
