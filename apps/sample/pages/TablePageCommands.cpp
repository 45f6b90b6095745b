// What the user can do with a table.
#include "apps/sample/EditFieldDialog.h"
#include "apps/sample/model/Usage.h"
#include "apps/sample/pages/TablePage.h"
#include "apps/sample/resource.h"

namespace
{

class StopWatch
{
public:
    double Milliseconds() const
    {
        LARGE_INTEGER now;
        LARGE_INTEGER frequency;
        QueryPerformanceCounter(&now);
        QueryPerformanceFrequency(&frequency);
        return 1000.0 * static_cast<double>(now.QuadPart - m_start.QuadPart) / static_cast<double>(frequency.QuadPart);
    }

    StopWatch()
    {
        QueryPerformanceCounter(&m_start);
    }

private:
    LARGE_INTEGER m_start;
};

std::string RecordText(int record)
{
    return "record " + std::to_string(record);
}

} // namespace

bool TablePage::OwnsCommand(UINT command) const
{
    return command >= ID_TABLE_FIRST && command <= ID_TABLE_LAST;
}

// Commands that a table for reading alone cannot obey stay offered: choosing them says why.
bool TablePage::CanRun(UINT command) const
{
    switch (command)
    {
    case ID_TABLE_OPEN:
        return true;
    case ID_TABLE_SEARCH:
    case ID_TABLE_FIND:
    case ID_TABLE_NEXT:
    case ID_TABLE_PACK:
        return m_table.IsOpen();
    default:
        return m_table.IsOpen() && m_view != nullptr && m_list.SelectedRow() >= 0;
    }
}

void TablePage::Run(UINT command)
{
    switch (command)
    {
    case ID_TABLE_OPEN:
        return AskForTable();
    case ID_TABLE_SEARCH:
        m_value.SetFocus();
        return m_value.SetSel(0, -1);
    case ID_TABLE_FIND:
        return FindAsTyped();
    case ID_TABLE_NEXT:
        return m_searched ? FindNext() : FindAsTyped();
    case ID_TABLE_EDIT:
        return EditField();
    case ID_TABLE_DELETE:
        return DeleteRecord();
    case ID_TABLE_PACK:
        return PackTable();
    default:
        break;
    }
}

void TablePage::AskForTable()
{
    CFileDialog dialog(TRUE, "dbf", nullptr, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY,
                       "dBASE tables (*.dbf)|*.dbf|All files (*.*)|*.*||", m_view);
    const std::string folder = m_table.Path().substr(0, m_table.Path().find_last_of("\\/") + 1);
    dialog.m_ofn.lpstrInitialDir = folder.c_str();
    if (dialog.DoModal() != IDOK)
        return;
    const CString path = dialog.GetPathName();
    const vorn::TableResult result = OpenTable(path.GetString());
    if (result != vorn::TableResult::Done)
        Refuse("Cannot open " + std::string(path) + '.', result);
}

void TablePage::FindAsTyped()
{
    CString value;
    m_value.GetWindowText(value);
    m_terms.field = m_field.GetCurSel();
    m_terms.value = value.GetString();
    m_terms.method = static_cast<vorn::SearchMethod>(m_method.GetCurSel());
    m_terms.matchCase = m_matchCase.GetCheck() == BST_CHECKED;
    Find();
}

void TablePage::Find()
{
    m_searched = true;
    CountUse(UsageEvent::Search);
    const StopWatch watch;
    const std::optional<int> row = m_table.FindFirst(m_terms);
    if (!ShowFound(row, watch.Milliseconds()))
        Say(NotFound(), Notice::News::Bad);
}

void TablePage::FindNext()
{
    CountUse(UsageEvent::Search);
    const StopWatch watch;
    const std::optional<int> row = m_table.FindNext(m_list.SelectedRow());
    if (!ShowFound(row, watch.Milliseconds()))
        Say("No other record behind this one has " + m_terms.value + '.', Notice::News::Bad);
}

bool TablePage::ShowFound(std::optional<int> row, double milliseconds)
{
    m_firstRow = row.value_or(-1);
    if (!row)
        return false;
    if (m_view != nullptr)
        m_list.Select(*row);
    const bool binary = m_terms.method == vorn::SearchMethod::Binary;
    CString words;
    words.Format("Found in record %d by %s search in %.2f ms.", m_table.RecordOf(*row), binary ? "binary" : "linear",
                 milliseconds);
    if (binary && !m_table.IsSortedBy(m_terms.field))
        words += " The table is not sorted by this field, so others may have been missed.";
    Say(words.GetString(), Notice::News::Good);
    return true;
}

std::string TablePage::NotFound() const
{
    const std::string words = "No record has " + (m_terms.value.empty() ? "an empty field" : m_terms.value) + " there.";
    if (m_terms.method == vorn::SearchMethod::Linear || m_table.IsSortedBy(m_terms.field))
        return words;
    return "The binary search found nothing, but the table is not sorted by this field. Try the linear one.";
}

void TablePage::EditField()
{
    const int row = m_list.SelectedRow();
    const vorn::TableResult check = m_table.Check(m_list.CurrentField(), {});
    if (check != vorn::TableResult::Done)
        return Refuse("The field cannot be changed.", check);
    EditFieldDialog dialog(m_view, m_table, row, m_list.CurrentField());
    if (dialog.DoModal() != IDOK)
        return;
    CountUse(UsageEvent::Edit);
    ShowChanges();
    const std::string& field = m_table.Fields()[static_cast<std::size_t>(dialog.Field())].name;
    Say("Written: " + field + " of " + RecordText(m_table.RecordOf(row)) + '.', Notice::News::Good);
}

void TablePage::DeleteRecord()
{
    const int row = m_list.SelectedRow();
    const std::string record = RecordText(m_table.RecordOf(row));
    if (m_table.IsReadOnly())
        return Refuse("Nothing can be deleted.", vorn::TableResult::ReadOnly);
    const std::string question =
        "Delete " + record + ", " + m_table.Value(row, 0) + "?\n\nIt stays in the file until the table is packed.";
    if (AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) != IDYES)
        return;
    const vorn::TableResult result = m_table.Delete(row);
    if (result != vorn::TableResult::Done)
        return Refuse("Nothing was deleted.", result);
    CountUse(UsageEvent::Deletion);
    ShowChanges();
    Say("Deleted: " + record + '.', Notice::News::Good);
}

void TablePage::PackTable()
{
    const int deleted = m_table.DeletedCount();
    if (m_table.IsReadOnly())
        return Refuse("The table cannot be packed.", vorn::TableResult::ReadOnly);
    if (deleted == 0)
        return Say("There is nothing to pack: no record is deleted.", Notice::News::Plain);
    const std::string words = std::to_string(deleted) + (deleted == 1 ? " deleted record" : " deleted records");
    const std::string question = "Rewrite the table without its " + words + "?\n\nThey cannot be brought back.";
    if (AfxMessageBox(question.c_str(), MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) != IDYES)
        return;
    const CWaitCursor wait;
    const vorn::TableResult result = m_table.Pack();
    ShowChanges();
    if (result != vorn::TableResult::Done)
        return Refuse("The table was not packed.", result);
    CountUse(UsageEvent::Pack);
    Say("Packed: " + words + " are gone.", Notice::News::Good);
}
