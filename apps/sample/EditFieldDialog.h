#pragma once

#include "apps/sample/core/DataTable.h"

#include <VornCommon.h>

/// Changes one field of a record: the user chooses the field, types its value and sees whether it fits. The value is
/// written when the dialog ends with IDOK; when that fails, the user is told and the dialog stays.
class EditFieldDialog : public ToolTipDlg
{
public:
    /// @param table must outlive the dialog
    EditFieldDialog(CWnd* parent, vorn::DataTable& table, int row, int field);

    /// The field that was changed.
    int Field() const;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;

    afx_msg void OnFieldChosen();
    afx_msg void OnValueChanged();
    DECLARE_MESSAGE_MAP()

private:
    std::string TypedValue() const;
    std::string Hint(vorn::TableResult check, std::size_t typed) const;

    vorn::DataTable& m_table;
    int m_row;
    int m_field;
};
