#include "apps/sample/ui/TableList.h"

#include <algorithm>
#include <array>

namespace
{

// Pixels at 96 dpi.
constexpr int kNumberWidth = 64;
constexpr int kNarrowest = 44;
constexpr int kWidest = 330;
constexpr int kCellPadding = 16;
constexpr int kRowHeight = 19;

constexpr int kRowsMeasured = 64;

} // namespace

BEGIN_MESSAGE_MAP(TableList, CListCtrl)
ON_NOTIFY_REFLECT_EX(LVN_GETDISPINFOA, &TableList::OnDisplayInfo)
ON_NOTIFY_REFLECT_EX(LVN_ODFINDITEMA, &TableList::OnFindItem)
ON_NOTIFY_REFLECT_EX(LVN_ODFINDITEMW, &TableList::OnFindWideItem)
ON_NOTIFY_REFLECT_EX(NM_CUSTOMDRAW, &TableList::OnCustomDraw)
ON_NOTIFY_REFLECT_EX(NM_CLICK, &TableList::OnClicked)
ON_NOTIFY_REFLECT_EX(NM_DBLCLK, &TableList::OnClicked)
END_MESSAGE_MAP()

TableList::TableList(vorn::DataTable& table) : m_table(table)
{
}

BOOL TableList::Create(CWnd& view, UINT id)
{
    const DWORD style =
        WS_CHILD | WS_TABSTOP | WS_BORDER | LVS_REPORT | LVS_OWNERDATA | LVS_SINGLESEL | LVS_SHOWSELALWAYS;
    if (!CListCtrl::Create(style, CRect(), &view, id))
        return FALSE;
    SetExtendedStyle(LVS_EX_FULLROWSELECT | LVS_EX_DOUBLEBUFFER);
    return TRUE;
}

void TableList::SetTheme(const Theme& theme)
{
    m_theme = &theme;
    SetFont(const_cast<CFont*>(&theme.body), FALSE);
    GetHeaderCtrl()->SetFont(const_cast<CFont*>(&theme.body), FALSE);
    // A list of the system makes its rows as high as its pictures.
    if (m_rowHeight.Create(1, theme.Px(kRowHeight), ILC_COLOR, 1, 1))
        SetImageList(&m_rowHeight, LVSIL_SMALL);
}

void TableList::ShowTable()
{
    SetItemCountEx(0, 0);
    while (DeleteColumn(0))
    {
    }
    m_field = 0;
    if (!m_table.IsOpen())
        return;
    AddColumns();
    SetItemCountEx(m_table.RowCount(), 0);
    Select(0);
}

void TableList::AddColumns()
{
    InsertColumn(0, "Record", LVCFMT_LEFT, m_theme->Px(kNumberWidth));
    const std::vector<vorn::FieldFacts>& fields = m_table.Fields();
    for (std::size_t index = 0; index < fields.size(); ++index)
    {
        const int field = static_cast<int>(index);
        InsertColumn(field + 1, fields[index].name.c_str(), fields[index].type == 'N' ? LVCFMT_RIGHT : LVCFMT_LEFT,
                     WidthFor(field), field + 1);
    }
}

// As wide as its head and its first values need.
int TableList::WidthFor(int field)
{
    const std::size_t place = static_cast<std::size_t>(field);
    CClientDC dc(this);
    CFont* const before = dc.SelectObject(const_cast<CFont*>(&m_theme->body));
    LONG width = dc.GetTextExtent(m_table.Fields()[place].name.c_str()).cx;
    for (int row = 0; row < std::min(kRowsMeasured, m_table.RowCount()); ++row)
    {
        if (const vorn::TableRow* const cells = m_table.Row(row))
            width = std::max(width, dc.GetTextExtent((*cells)[place].c_str()).cx);
    }
    dc.SelectObject(before);
    return std::clamp(static_cast<int>(width) + m_theme->Px(kCellPadding), m_theme->Px(kNarrowest),
                      m_theme->Px(kWidest));
}

void TableList::ShowChanges()
{
    const int row = SelectedRow();
    SetItemCountEx(m_table.RowCount(), LVSICF_NOSCROLL);
    Select(std::min(row, m_table.RowCount() - 1));
    Invalidate(FALSE);
}

int TableList::SelectedRow() const
{
    return GetNextItem(-1, LVNI_SELECTED);
}

void TableList::Select(int row)
{
    if (row < 0 || row >= m_table.RowCount())
        return;
    ScrollTo(row);
    SetItemState(row, LVIS_SELECTED | LVIS_FOCUSED, LVIS_SELECTED | LVIS_FOCUSED);
    SetSelectionMark(row);
}

// A row out of sight comes into the middle.
void TableList::ScrollTo(int row)
{
    const int page = GetCountPerPage();
    const int top = GetTopIndex();
    if (row < top)
        EnsureVisible(std::max(0, row - page / 2), FALSE);
    else if (row >= top + page)
        EnsureVisible(std::min(m_table.RowCount() - 1, row + page / 2), FALSE);
    EnsureVisible(row, FALSE);
}

int TableList::CurrentField() const
{
    return m_field;
}

BOOL TableList::OnDisplayInfo(NMHDR* header, LRESULT* result)
{
    LVITEMA& item = reinterpret_cast<NMLVDISPINFOA*>(header)->item;
    *result = 0;
    if ((item.mask & LVIF_TEXT) == 0 || item.cchTextMax <= 0)
        return TRUE;
    item.pszText[0] = '\0';
    const vorn::TableRow* const cells = m_table.Row(item.iItem);
    const std::size_t field = static_cast<std::size_t>(item.iSubItem) - 1;
    if (item.iSubItem == 0)
        lstrcpyn(item.pszText, std::to_string(m_table.RecordOf(item.iItem)).c_str(), item.cchTextMax);
    else if (cells != nullptr && field < cells->size())
        lstrcpyn(item.pszText, (*cells)[field].c_str(), item.cchTextMax);
    return TRUE;
}

// Letters typed into the list go to the next row whose first field begins with them.
BOOL TableList::OnFindItem(NMHDR* header, LRESULT* result)
{
    const NMLVFINDITEMA& find = *reinterpret_cast<NMLVFINDITEMA*>(header);
    *result = find.lvfi.psz != nullptr ? m_table.FindBeginning(0, find.lvfi.psz, find.iStart).value_or(-1) : -1;
    return TRUE;
}

// Some systems ask in wide characters, whatever the window's own are.
BOOL TableList::OnFindWideItem(NMHDR* header, LRESULT* result)
{
    const NMLVFINDITEMW& find = *reinterpret_cast<NMLVFINDITEMW*>(header);
    std::array<char, 80> text{};
    if (find.lvfi.psz != nullptr)
        WideCharToMultiByte(CP_ACP, 0, find.lvfi.psz, -1, text.data(), static_cast<int>(text.size()) - 1, nullptr,
                            nullptr);
    *result = m_table.FindBeginning(0, text.data(), find.iStart).value_or(-1);
    return TRUE;
}

BOOL TableList::OnCustomDraw(NMHDR* header, LRESULT* result)
{
    NMLVCUSTOMDRAW& draw = *reinterpret_cast<NMLVCUSTOMDRAW*>(header);
    *result = CDRF_DODEFAULT;
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT)
        *result = CDRF_NOTIFYITEMDRAW;
    if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT)
        return TRUE;
    draw.clrText = m_theme->text;
    draw.clrTextBk = draw.nmcd.dwItemSpec % 2 == 0 ? m_theme->stripe : m_theme->card;
    return TRUE;
}

BOOL TableList::OnClicked(NMHDR* header, LRESULT*)
{
    const NMITEMACTIVATE& click = *reinterpret_cast<NMITEMACTIVATE*>(header);
    if (click.iSubItem > 0)
        m_field = click.iSubItem - 1;
    return FALSE; // the page has its own business with it
}
