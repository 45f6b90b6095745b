#pragma once

#include "apps/sample/core/ReportTable.h"
#include "apps/sample/ui/Theme.h"

/// Draws a report table as a framed card: title, note, column titles, rows with stripes.
class TableCard
{
public:
    /// Both must outlive the card.
    TableCard(const vorn::ReportTable& table, const Theme& theme);

    /// The card's height in device pixels; it does not depend on the width.
    int Height() const;

    /// Draws the card into `area`. Cells that do not fit end in an ellipsis.
    void Draw(CDC& dc, const CRect& area) const;

private:
    int TitleHeight() const;
    std::vector<int> ColumnWidths(CDC& dc, int available) const;
    int GapBehind(std::size_t column) const;
    void DrawFrame(CDC& dc, const CRect& area) const;
    void DrawTitle(CDC& dc, const CRect& area) const;
    void DrawColumnTitles(CDC& dc, const CRect& line, const std::vector<int>& widths) const;
    void DrawRow(CDC& dc, const CRect& line, const vorn::ReportRow& row, const std::vector<int>& widths) const;
    void DrawCell(CDC& dc, const CRect& cell, const std::string& text, vorn::Align align) const;
    COLORREF ColorOf(const vorn::ReportRow& row, std::size_t column) const;

    const vorn::ReportTable& m_table;
    const Theme& m_theme;
    int m_rowHeight;
    int m_padding;
};
