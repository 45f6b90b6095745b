#include "apps/sample/ui/TableCard.h"

#include <algorithm>
#include <numeric>

namespace
{

constexpr int kCellGap = 18;   // pixels at 96 dpi between two columns
constexpr int kMinColumn = 40; // a column gives way to this before the card would overflow

int TextWidth(CDC& dc, const std::string& text)
{
    return dc.GetTextExtent(text.data(), static_cast<int>(text.size())).cx;
}

} // namespace

TableCard::TableCard(const vorn::ReportTable& table, const Theme& theme)
    : m_table(table), m_theme(theme), m_rowHeight(theme.Px(20)), m_padding(theme.Px(14))
{
}

int TableCard::TitleHeight() const
{
    return m_theme.Px(m_table.note.empty() ? 26 : 44);
}

int TableCard::Height() const
{
    const int rows = static_cast<int>(m_table.rows.size()) + 1;
    return 2 * m_padding + TitleHeight() + rows * m_rowHeight;
}

std::vector<int> TableCard::ColumnWidths(CDC& dc, int available) const
{
    std::vector<int> widths;
    for (std::size_t column = 0; column < m_table.columns.size(); ++column)
    {
        int width = TextWidth(dc, m_table.columns[column].title);
        for (const vorn::ReportRow& row : m_table.rows)
        {
            if (!row.heading && column < row.cells.size())
                width = std::max(width, TextWidth(dc, row.cells[column]));
        }
        const bool isLeft = m_table.columns[column].align == vorn::Align::Left;
        widths.push_back(width + (isLeft ? GapBehind(column) : m_theme.Px(kCellGap)));
    }
    if (widths.empty())
        return widths;

    // What is left over goes behind a last column of words, or before columns of figures; what is missing comes from
    // the widest.
    int spare = available - std::accumulate(widths.begin(), widths.end(), 0);
    if (spare > 0)
        (m_table.columns.back().align == vorn::Align::Left ? widths.back() : widths.front()) += spare;
    for (std::size_t turn = 0; spare < 0 && turn < widths.size(); ++turn)
    {
        const auto widest = std::max_element(widths.begin(), widths.end());
        const int cut = std::min(-spare, std::max(0, *widest - m_theme.Px(kMinColumn)));
        *widest -= cut;
        spare += cut;
    }
    return widths;
}

/// Words keep a distance from the next column, but none from the card's edge; figures stand before it anyway.
int TableCard::GapBehind(std::size_t column) const
{
    const bool isLast = column + 1 == m_table.columns.size();
    return m_table.columns[column].align == vorn::Align::Left && !isLast ? m_theme.Px(kCellGap) : 0;
}

void TableCard::Draw(CDC& dc, const CRect& area) const
{
    DrawFrame(dc, area);
    CRect inside(area);
    inside.DeflateRect(m_padding, m_padding);
    dc.SetBkMode(TRANSPARENT);
    DrawTitle(dc, inside);

    CFont* const before = dc.SelectObject(const_cast<CFont*>(&m_theme.bold));
    const std::vector<int> widths = ColumnWidths(dc, inside.Width());
    CRect line(inside.left, inside.top + TitleHeight(), inside.right, 0);
    line.bottom = line.top + m_rowHeight;
    DrawColumnTitles(dc, line, widths);
    bool striped = false;
    for (const vorn::ReportRow& row : m_table.rows)
    {
        line.OffsetRect(0, m_rowHeight);
        striped = !row.heading && !striped;
        if (striped)
            dc.FillSolidRect(CRect(line.left - m_theme.Px(4), line.top, line.right + m_theme.Px(4), line.bottom),
                             m_theme.stripe);
        dc.SetBkMode(TRANSPARENT);
        DrawRow(dc, line, row, widths);
    }
    dc.SelectObject(before);
}

void TableCard::DrawFrame(CDC& dc, const CRect& area) const
{
    dc.FillSolidRect(area, m_theme.border);
    CRect inside(area);
    const int line = std::max(1, m_theme.Px(1));
    inside.DeflateRect(line, line);
    dc.FillSolidRect(inside, m_theme.card);
}

void TableCard::DrawTitle(CDC& dc, const CRect& area) const
{
    CFont* const before = dc.SelectObject(const_cast<CFont*>(&m_theme.heading));
    dc.SetTextColor(m_theme.accent);
    CRect line(area.left, area.top, area.right, area.top + m_theme.Px(22));
    DrawCell(dc, line, m_table.title, vorn::Align::Left);
    if (!m_table.note.empty())
    {
        dc.SelectObject(const_cast<CFont*>(&m_theme.note));
        dc.SetTextColor(m_theme.muted);
        line.OffsetRect(0, m_theme.Px(20));
        line.bottom = line.top + m_theme.Px(18);
        DrawCell(dc, line, m_table.note, vorn::Align::Left);
    }
    dc.SelectObject(before);
}

void TableCard::DrawColumnTitles(CDC& dc, const CRect& line, const std::vector<int>& widths) const
{
    dc.SetTextColor(m_theme.muted);
    int left = line.left;
    for (std::size_t column = 0; column < widths.size(); ++column)
    {
        const vorn::ReportColumn& title = m_table.columns[column];
        const int right = left + widths[column] - GapBehind(column);
        DrawCell(dc, CRect(left, line.top, right, line.bottom), title.title, title.align);
        left += widths[column];
    }
    dc.FillSolidRect(CRect(line.left, line.bottom - m_theme.Px(1), line.right, line.bottom), m_theme.border);
}

void TableCard::DrawRow(CDC& dc, const CRect& line, const vorn::ReportRow& row, const std::vector<int>& widths) const
{
    dc.SelectObject(const_cast<CFont*>(row.heading ? &m_theme.bold : &m_theme.body));
    if (row.heading)
    {
        dc.SetTextColor(m_theme.text);
        DrawCell(dc, line, row.cells.front(), vorn::Align::Left);
        return;
    }
    int left = line.left;
    for (std::size_t column = 0; column < widths.size() && column < row.cells.size(); ++column)
    {
        const vorn::Align align = m_table.columns[column].align;
        const int right = left + widths[column] - GapBehind(column);
        dc.SetTextColor(ColorOf(row, column));
        DrawCell(dc, CRect(left, line.top, right, line.bottom), row.cells[column], align);
        left += widths[column];
    }
}

COLORREF TableCard::ColorOf(const vorn::ReportRow& row, std::size_t column) const
{
    if (column == 0)
        return m_theme.text;
    if (row.color)
        return *row.color;
    switch (row.tone)
    {
    case vorn::Tone::Good:
        return m_theme.good;
    case vorn::Tone::Muted:
        return m_theme.muted;
    case vorn::Tone::Accent:
        return m_theme.accent;
    case vorn::Tone::Plain:
        break;
    }
    return m_theme.text;
}

void TableCard::DrawCell(CDC& dc, const CRect& cell, const std::string& text, vorn::Align align) const
{
    CRect area(cell);
    const UINT side = align == vorn::Align::Left ? DT_LEFT : DT_RIGHT;
    const UINT cut = text.find('\\') == std::string::npos ? DT_END_ELLIPSIS : DT_PATH_ELLIPSIS;
    dc.DrawText(text.c_str(), static_cast<int>(text.size()), &area,
                side | cut | DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}
