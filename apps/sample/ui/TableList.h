#pragma once

#include "apps/sample/core/DataTable.h"
#include "apps/sample/ui/Theme.h"

/// The records of a table as a list that asks for what it shows: the first column is the record's number, the others
/// are the table's fields.
class TableList : public CListCtrl
{
public:
    /// The table must outlive the list.
    explicit TableList(vorn::DataTable& table);

    BOOL Create(CWnd& view, UINT id);

    /// Font, colours and distances, before a table is shown. The theme must outlive the list.
    void SetTheme(const Theme& theme);

    /// Another table is there: makes the columns anew and selects the first row.
    void ShowTable();

    /// Rows have changed or gone: shows the table as it is now, near the row that was selected.
    void ShowChanges();

    /// -1 when there is none.
    int SelectedRow() const;
    void Select(int row);

    /// The field that the user last clicked on; 0 before.
    int CurrentField() const;

protected:
    afx_msg BOOL OnDisplayInfo(NMHDR* header, LRESULT* result);
    afx_msg BOOL OnFindItem(NMHDR* header, LRESULT* result);
    afx_msg BOOL OnFindWideItem(NMHDR* header, LRESULT* result);
    afx_msg BOOL OnCustomDraw(NMHDR* header, LRESULT* result);
    afx_msg BOOL OnClicked(NMHDR* header, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    void AddColumns();
    void ScrollTo(int row);
    int WidthFor(int field);

    vorn::DataTable& m_table;
    const Theme* m_theme = nullptr;
    CImageList m_rowHeight;
    int m_field = 0;
};
