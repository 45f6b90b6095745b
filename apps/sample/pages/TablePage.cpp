#include "apps/sample/pages/TablePage.h"

#include "apps/chart/Chart.h"
#include "apps/sample/model/Messages.h"
#include "apps/sample/model/Usage.h"
#include "apps/sample/pages/TableControls.h"
#include "apps/sample/resource.h"
#include "apps/sample/ui/TableCard.h"

#include <algorithm>

namespace
{

constexpr const char* kOwnTable = "navaids.dbf";
constexpr int kSummaryRows = 20;

std::string OwnTable()
{
    return vorn::chart::Chart::OwnFolder() + kOwnTable;
}

std::string FileNameOf(const std::string& path)
{
    return path.substr(path.find_last_of("\\/") + 1);
}

// 200000 as 200,000.
std::string Grouped(int count)
{
    std::string text = std::to_string(count);
    for (std::size_t place = text.size(); place > 3;)
        text.insert(place -= 3, 1, ',');
    return text;
}

} // namespace

TablePage::TablePage() : m_list(m_table)
{
}

const char* TablePage::Name() const
{
    return "Tables";
}

bool TablePage::FillsWindow() const
{
    return true;
}

// A table that another program held may be free by now.
void TablePage::Refresh()
{
    if (!m_table.IsReadOnly())
        return;
    const bool searched = m_searched;
    const int row = m_view != nullptr ? m_list.SelectedRow() : m_firstRow;
    OpenTable(std::string(m_table.Path()));
    m_searched = searched;
    m_firstRow = row;
    if (m_view != nullptr)
        m_list.Select(row);
}

std::string TablePage::TakeOptions(const StartOptions& options)
{
    if (options.table.empty() && options.find.empty())
        return {};
    const std::string path = options.table.empty() ? OwnTable() : options.table;
    const vorn::TableResult result = OpenTable(path);
    if (result != vorn::TableResult::Done)
        return "cannot open " + path + ": " + vorn::Explain(result);
    return options.find.empty() ? std::string() : SelectByOption(options.find);
}

std::string TablePage::SelectByOption(const std::string& find)
{
    const std::size_t equal = find.find('=');
    const std::string name = find.substr(0, equal);
    const auto& fields = m_table.Fields();
    const auto field = std::find_if(fields.begin(), fields.end(),
                                    [&name](const vorn::FieldFacts& candidate)
                                    {
                                        return lstrcmpi(candidate.name.c_str(), name.c_str()) == 0;
                                    });
    if (field == fields.end())
        return "the table has no field " + name;
    m_terms.field = static_cast<int>(field - fields.begin());
    m_terms.value = find.substr(equal + 1);
    m_searched = true;
    Find();
    return m_firstRow < 0 ? "no record has " + find : std::string();
}

vorn::TableResult TablePage::OpenTable(const std::string& path)
{
    const std::string before = m_table.Path();
    const vorn::TableResult result = m_table.Open(path);
    if (result != vorn::TableResult::Done)
    {
        const std::string words = "Cannot open " + path + ". " + vorn::Explain(result) + '.';
        Say(words, Notice::News::Bad);
        LogNote(LOG_WARNING, words);
        if (!before.empty())
            m_table.Open(before);
    }
    else
    {
        CountUse(UsageEvent::TableOpened);
        LogNote(LOG_INFO, "Opened the table " + path);
        const bool readOnly = m_table.IsReadOnly();
        Say(readOnly ? std::string("For reading alone. ") + vorn::Explain(m_table.WhyReadOnly()) + '.'
                     : "Opened " + FileNameOf(path) + '.',
            readOnly ? Notice::News::Bad : Notice::News::Plain);
    }
    m_firstRow = 0;
    m_searched = false;
    ShowTable();
    return result;
}

std::string TablePage::Note() const
{
    if (!m_table.IsOpen())
        return "No table is open";
    CString note;
    note.Format("%s records with %d fields, %d bytes each", Grouped(m_table.RowCount()).c_str(),
                static_cast<int>(m_table.Fields().size()), m_table.RecordLength());
    if (m_table.DeletedCount() > 0)
        note.AppendFormat("; %s deleted", Grouped(m_table.DeletedCount()).c_str());
    if (m_table.IsReadOnly())
        note += "; for reading alone";
    return note.GetString();
}

// The rows from the selected one on.
vorn::ReportTable TablePage::Report(int rows) const
{
    vorn::ReportTable report{FileNameOf(m_table.Path()), Note(), {{"Record", vorn::Align::Right}}, {}};
    for (const vorn::FieldFacts& field : m_table.Fields())
        report.columns.push_back({field.name, field.type == 'N' ? vorn::Align::Right : vorn::Align::Left});
    const int first = std::max(0, m_view != nullptr ? m_list.SelectedRow() : m_firstRow);
    for (int row = first; row < std::min(first + rows, m_table.RowCount()); ++row)
    {
        std::vector<std::string> cells = {std::to_string(m_table.RecordOf(row))};
        if (const vorn::TableRow* const values = m_table.Row(row))
            cells.insert(cells.end(), values->begin(), values->end());
        report.AddRow(std::move(cells));
    }
    return report;
}

std::string TablePage::Summary() const
{
    return vorn::ToText(Report(kSummaryRows)) + m_words + '\n';
}

// As many rows as the sheet takes.
void TablePage::Print(CDC& dc, const CRect& area, const Theme& theme) const
{
    const int one = TableCard(Report(1), theme).Height() - TableCard(Report(0), theme).Height();
    const int room = area.Height() - TableCard(Report(0), theme).Height();
    const vorn::ReportTable report = Report(m_table.RowCount() > 0 ? std::max(0, room / std::max(1, one)) : 0);
    TableCard(report, theme).Draw(dc, area);
}

void TablePage::Activate(CWnd& view, bool active)
{
    if (active && !m_table.IsOpen() && m_words.empty())
        OpenTable(OwnTable());
    if (m_view == nullptr)
    {
        if (!active)
            return;
        CreateControls(view);
    }
    for (CWnd* const control : Controls())
        control->ShowWindow(active ? SW_SHOWNA : SW_HIDE);
    if (m_table.MemoField() < 0)
        m_memo.ShowWindow(SW_HIDE);
}

void TablePage::ShowTable()
{
    if (m_view == nullptr || m_theme == nullptr)
        return;
    m_list.ShowTable();
    m_list.Select(m_firstRow);
    ShowFields();
    ShowMemo();
    ShowState();
    m_memo.ShowWindow(m_table.MemoField() >= 0 && m_list.IsWindowVisible() ? SW_SHOWNA : SW_HIDE);
    m_view->SendMessage(WM_SIZE); // the page's parts have other sizes now
}

void TablePage::ShowChanges()
{
    m_list.ShowChanges();
    ShowMemo();
    ShowState();
    m_view->Invalidate(FALSE);
}

void TablePage::ShowMemo()
{
    const int field = m_table.MemoField();
    const int row = m_list.SelectedRow();
    const std::string text = field >= 0 && row >= 0 ? m_table.Value(row, field) : std::string();
    CString before;
    m_memo.GetWindowText(before);
    if (before != text.c_str())
        m_memo.SetWindowText(text.c_str());
    if (m_theme != nullptr && m_view != nullptr)
        m_view->Invalidate(FALSE);
}

void TablePage::ShowState()
{
    for (CButton& button : m_buttons)
        button.EnableWindow(CanRun(static_cast<UINT>(button.GetDlgCtrlID())));
    m_matchCase.EnableWindow(m_method.GetCurSel() == static_cast<int>(vorn::SearchMethod::Linear));
}

void TablePage::Say(const std::string& words, Notice::News news)
{
    m_words = words;
    m_news = news;
    if (m_view != nullptr)
        m_notice.Say(words, news);
}

void TablePage::Refuse(const std::string& words, vorn::TableResult result)
{
    const vorn::TableResult why = result == vorn::TableResult::ReadOnly ? m_table.WhyReadOnly() : result;
    const std::string text = words + ' ' + vorn::Explain(result) + '.' +
                             (why == result ? std::string() : std::string(" ") + vorn::Explain(why) + '.');
    Say(text, Notice::News::Bad);
    AfxMessageBox(text.c_str(), MB_OK | MB_ICONEXCLAMATION);
}
