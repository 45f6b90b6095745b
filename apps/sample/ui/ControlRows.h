#pragma once

#include "apps/sample/ui/Theme.h"

#include <memory>
#include <string>
#include <vector>

/// A column of labelled controls on a page: edits and check boxes. The labels are painted by the page, the controls are
/// windows that are made when the page first comes to the front and end with the view.
class ControlRows
{
public:
    ControlRows();
    ~ControlRows();
    ControlRows(const ControlRows&) = delete;
    ControlRows& operator=(const ControlRows&) = delete;

    void AddEdit(UINT id, std::string label, std::string text);
    void AddCheck(UINT id, std::string label, bool checked);

    /// Makes the controls as children of `view` when there are none yet, and shows or hides them.
    void Show(CWnd& view, bool visible);

    /// The rows' height together.
    int Height(const Theme& theme) const;

    /// Moves the controls into `area`, one row under the other, and gives them the theme's font.
    void Place(const CRect& area, const Theme& theme);

    /// Paints the labels of the edits into the same area.
    void PaintLabels(CDC& dc, const CRect& area, const Theme& theme) const;

    /// What stands in an edit; its first text before the controls are made.
    std::string Text(UINT id) const;
    void SetText(UINT id, const std::string& text);
    bool IsChecked(UINT id) const;
    void SetChecked(UINT id, bool checked);

private:
    struct Row;

    Row& Find(UINT id) const;
    static void Make(Row& row, CWnd& view);
    CRect RowArea(std::size_t index, const CRect& area, const Theme& theme) const;

    std::vector<std::unique_ptr<Row>> m_rows;
};
