#include "apps/sample/ui/ControlRows.h"

#include <algorithm>

namespace
{

// Pixels at 96 dpi.
constexpr int kRowHeight = 30;
constexpr int kControlHeight = 22;
constexpr int kLabelWidth = 150;
constexpr int kEditWidth = 170;

} // namespace

struct ControlRows::Row
{
    UINT id;
    std::string label;
    std::string text;
    bool isCheck;
    bool checked;
    std::unique_ptr<CWnd> control;
};

ControlRows::ControlRows() = default;
ControlRows::~ControlRows() = default;

void ControlRows::AddEdit(UINT id, std::string label, std::string text)
{
    m_rows.push_back(std::make_unique<Row>(Row{id, std::move(label), std::move(text), false, false, nullptr}));
}

void ControlRows::AddCheck(UINT id, std::string label, bool checked)
{
    m_rows.push_back(std::make_unique<Row>(Row{id, std::move(label), {}, true, checked, nullptr}));
}

void ControlRows::Make(Row& row, CWnd& view)
{
    const DWORD style = WS_CHILD | WS_TABSTOP;
    if (row.isCheck)
    {
        auto button = std::make_unique<CButton>();
        button->Create(row.label.c_str(), style | BS_AUTOCHECKBOX, CRect(), &view, row.id);
        button->SetCheck(row.checked ? BST_CHECKED : BST_UNCHECKED);
        row.control = std::move(button);
        return;
    }
    auto edit = std::make_unique<CEdit>();
    edit->CreateEx(WS_EX_CLIENTEDGE, "EDIT", row.text.c_str(), style | ES_AUTOHSCROLL, CRect(), &view, row.id);
    row.control = std::move(edit);
}

void ControlRows::Show(CWnd& view, bool visible)
{
    for (const std::unique_ptr<Row>& row : m_rows)
    {
        if (row->control == nullptr)
            Make(*row, view);
        row->control->ShowWindow(visible ? SW_SHOWNA : SW_HIDE);
    }
}

int ControlRows::Height(const Theme& theme) const
{
    return static_cast<int>(m_rows.size()) * theme.Px(kRowHeight);
}

CRect ControlRows::RowArea(std::size_t index, const CRect& area, const Theme& theme) const
{
    const int top = area.top + static_cast<int>(index) * theme.Px(kRowHeight);
    return {area.left, top, area.right, top + theme.Px(kControlHeight)};
}

void ControlRows::Place(const CRect& area, const Theme& theme)
{
    for (std::size_t index = 0; index < m_rows.size(); ++index)
    {
        Row& row = *m_rows[index];
        if (row.control == nullptr)
            continue;
        CRect place = RowArea(index, area, theme);
        if (!row.isCheck)
        {
            place.left = std::min<LONG>(place.right, place.left + theme.Px(kLabelWidth));
            place.right = std::min<LONG>(place.right, place.left + theme.Px(kEditWidth));
        }
        row.control->SetFont(const_cast<CFont*>(&theme.body), FALSE);
        row.control->SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(),
                                  SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

void ControlRows::PaintLabels(CDC& dc, const CRect& area, const Theme& theme) const
{
    CFont* const before = dc.SelectObject(const_cast<CFont*>(&theme.body));
    dc.SetTextColor(theme.text);
    dc.SetBkMode(TRANSPARENT);
    for (std::size_t index = 0; index < m_rows.size(); ++index)
    {
        if (m_rows[index]->isCheck)
            continue;
        CRect place = RowArea(index, area, theme);
        dc.DrawText(m_rows[index]->label.c_str(), -1, &place, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    }
    dc.SelectObject(before);
}

ControlRows::Row& ControlRows::Find(UINT id) const
{
    return **std::find_if(m_rows.begin(), m_rows.end(),
                          [id](const std::unique_ptr<Row>& row)
                          {
                              return row->id == id;
                          });
}

std::string ControlRows::Text(UINT id) const
{
    const Row& row = Find(id);
    if (row.control == nullptr)
        return row.text;
    CString text;
    row.control->GetWindowText(text);
    return text.GetString();
}

void ControlRows::SetText(UINT id, const std::string& text)
{
    Row& row = Find(id);
    row.text = text;
    if (row.control != nullptr && Text(id) != text)
        row.control->SetWindowText(text.c_str());
}

bool ControlRows::IsChecked(UINT id) const
{
    const Row& row = Find(id);
    return row.control == nullptr ? row.checked : static_cast<const CButton&>(*row.control).GetCheck() == BST_CHECKED;
}

void ControlRows::SetChecked(UINT id, bool checked)
{
    Row& row = Find(id);
    row.checked = checked;
    if (row.control != nullptr)
        static_cast<CButton&>(*row.control).SetCheck(checked ? BST_CHECKED : BST_UNCHECKED);
}
