#include "apps/sample/preferences/Category.h"

namespace vorn::preferences
{

namespace
{

constexpr UINT kIds = 20;

} // namespace

Category::Category(const char* path, UINT firstId, std::span<const Tip> tips)
    : m_path(path), m_firstId(firstId), m_tips(tips)
{
}

const char* Category::Path() const
{
    return m_path;
}

std::span<const Tip> Category::Tips() const
{
    return m_tips;
}

bool Category::Owns(UINT id) const
{
    return id >= m_firstId && id < m_firstId + kIds;
}

void Category::Attach(CWnd& dialog)
{
    m_dialog = &dialog;
}

std::optional<Fault> Category::Check() const
{
    return std::nullopt;
}

bool Category::OnControl(UINT, UINT code)
{
    return code == BN_CLICKED || code == CBN_SELCHANGE || code == EN_CHANGE;
}

CWnd& Category::Dialog() const
{
    return *m_dialog;
}

CWnd& Category::Control(UINT id) const
{
    return *m_dialog->GetDlgItem(static_cast<int>(id));
}

CComboBox& Category::Box(UINT id) const
{
    return static_cast<CComboBox&>(Control(id));
}

std::string Category::TextAt(UINT id) const
{
    CString text;
    m_dialog->GetDlgItemText(static_cast<int>(id), text);
    return text.GetString();
}

void Category::SetText(UINT id, const std::string& text) const
{
    m_dialog->SetDlgItemText(static_cast<int>(id), text.c_str());
}

bool Category::IsChecked(UINT id) const
{
    return m_dialog->IsDlgButtonChecked(static_cast<int>(id)) == BST_CHECKED;
}

void Category::SetCheck(UINT id, bool checked) const
{
    m_dialog->CheckDlgButton(static_cast<int>(id), checked ? BST_CHECKED : BST_UNCHECKED);
}

std::optional<int> Category::Chosen(UINT id) const
{
    const int item = Box(id).GetCurSel();
    return item < 0 ? std::nullopt : std::optional(static_cast<int>(Box(id).GetItemData(item)));
}

void Category::AddChoice(UINT id, const char* text, int value, int inForce) const
{
    CComboBox& box = Box(id);
    const int item = box.AddString(text);
    box.SetItemData(item, static_cast<DWORD_PTR>(value));
    if (value == inForce)
        box.SetCurSel(item);
}

void Category::Choose(UINT id, int value) const
{
    CComboBox& box = Box(id);
    for (int item = 0; item < box.GetCount(); ++item)
    {
        if (static_cast<int>(box.GetItemData(item)) == value)
            box.SetCurSel(item);
    }
}

} // namespace vorn::preferences
