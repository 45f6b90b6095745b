// The table page's controls: made, filled and asked.
#include "apps/sample/pages/TableControls.h"
#include "apps/sample/pages/TablePage.h"
#include "apps/sample/resource.h"

namespace
{

struct ButtonText
{
    UINT command;
    const char* text;
};

// In the order of PlaceHead and PlaceSearch: the first four are about the table, the others about the search.
constexpr std::array kButtonTexts = {
    ButtonText{ID_TABLE_OPEN, "&Open..."},  ButtonText{ID_TABLE_EDIT, "&Edit..."},
    ButtonText{ID_TABLE_DELETE, "&Delete"}, ButtonText{ID_TABLE_PACK, "&Pack"},
    ButtonText{ID_TABLE_FIND, "&Find"},     ButtonText{ID_TABLE_NEXT, "&Next"},
};

std::string TypeName(const vorn::FieldFacts& field)
{
    switch (field.type)
    {
    case 'C':
        return "text";
    case 'N':
        return "digits";
    case 'M':
        return "memo";
    case 'D':
        return "date";
    case 'L':
        return "yes or no";
    case 'F':
        return "decimal";
    default:
        return std::string("type ") + (field.type >= ' ' ? field.type : '?');
    }
}

} // namespace

void TablePage::CreateControls(CWnd& view)
{
    static_assert(kButtonTexts.size() == kButtons);
    const DWORD style = WS_CHILD | WS_TABSTOP;
    const auto createButton = [&](std::size_t index)
    {
        m_buttons[index].Create(kButtonTexts[index].text, style | BS_PUSHBUTTON, CRect(), &view,
                                kButtonTexts[index].command);
    };
    // In the order of the tab key: from the top left to the bottom right.
    for (std::size_t index = 0; index < 4; ++index)
        createButton(index);
    m_field.Create(style | CBS_DROPDOWNLIST | WS_VSCROLL, CRect(), &view, kTableField);
    m_value.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", style | ES_AUTOHSCROLL, CRect(), &view, kTableValue);
    m_method.Create(style | CBS_DROPDOWNLIST, CRect(), &view, kTableMethod);
    m_method.AddString("Linear search"); // as SearchMethod has them
    m_method.AddString("Binary search");
    m_method.SetCurSel(0);
    m_matchCase.Create("Match &case", style | BS_AUTOCHECKBOX, CRect(), &view, kTableMatchCase);
    for (std::size_t index = 4; index < kButtons; ++index)
        createButton(index);
    m_list.Create(view, kTableList);
    m_fields.Create(style | WS_BORDER | LVS_REPORT | LVS_SINGLESEL | LVS_NOSORTHEADER, CRect(), &view, kTableFields);
    m_fields.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    m_memo.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", style | WS_VSCROLL | ES_MULTILINE | ES_READONLY, CRect(), &view,
                    kTableMemo);
    m_notice.Create(view, kTableNotice);
    m_notice.Say(m_words, m_news);
    m_view = &view;
}

std::vector<CWnd*> TablePage::Controls()
{
    std::vector<CWnd*> controls = {&m_field, &m_value, &m_method, &m_matchCase, &m_list, &m_fields, &m_memo, &m_notice};
    for (CButton& button : m_buttons)
        controls.push_back(&button);
    return controls;
}

void TablePage::UseTheme(const Theme& theme)
{
    m_theme = &theme;
    for (CWnd* const control : Controls())
        control->SetFont(const_cast<CFont*>(&theme.body), FALSE);
    m_list.SetTheme(theme);
    m_notice.SetTheme(theme);
    m_fields.InsertColumn(0, "Name", LVCFMT_LEFT, theme.Px(104));
    m_fields.InsertColumn(1, "Holds", LVCFMT_LEFT, theme.Px(70), 1);
    m_fields.InsertColumn(2, "Bytes", LVCFMT_RIGHT, theme.Px(52), 2);
}

void TablePage::ShowFields()
{
    m_fields.DeleteAllItems();
    m_field.ResetContent();
    int index = 0;
    for (const vorn::FieldFacts& field : m_table.Fields())
    {
        m_fields.InsertItem(index, field.name.c_str());
        m_fields.SetItemText(index, 1, TypeName(field).c_str());
        m_fields.SetItemText(index, 2, std::to_string(field.length).c_str());
        m_field.AddString(field.name.c_str());
        ++index;
    }
    m_field.SetCurSel(m_searched ? m_terms.field : 0);
    if (m_searched)
        m_value.SetWindowText(m_terms.value.c_str());
}

bool TablePage::OnControl(UINT id, UINT code)
{
    if (OwnsCommand(id) && code == BN_CLICKED)
    {
        Run(id);
        return true;
    }
    if ((id == kTableMethod && code == CBN_SELCHANGE) || (id == kTableField && code == CBN_SELCHANGE) ||
        (id == kTableValue && code == EN_CHANGE))
    {
        m_searched = false; // the next F3 begins anew
        ShowState();
    }
    return false;
}

void TablePage::OnNotification(const NMHDR& header)
{
    if (header.idFrom != kTableList)
        return;
    if (header.code == static_cast<UINT>(NM_DBLCLK) && CanRun(ID_TABLE_EDIT))
        return Run(ID_TABLE_EDIT);
    if (header.code != static_cast<UINT>(LVN_ITEMCHANGED))
        return;
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(header);
    if (((change.uNewState ^ change.uOldState) & LVIS_SELECTED) != 0)
    {
        ShowMemo();
        ShowState();
    }
}

bool TablePage::OnKey(UINT key, CWnd* control)
{
    const bool inSearch = control == &m_value || ((control == &m_field || control == &m_method) &&
                                                  !static_cast<CComboBox*>(control)->GetDroppedState());
    if (key == VK_ESCAPE && inSearch)
    {
        m_list.SetFocus();
        return true;
    }
    UINT command = 0;
    if (key == VK_RETURN && inSearch)
        command = ID_TABLE_FIND;
    else if (key == VK_RETURN && control == &m_list)
        command = ID_TABLE_EDIT;
    else if (key == VK_DELETE && control == &m_list)
        command = ID_TABLE_DELETE;
    else if (key == VK_RETURN && control != nullptr && OwnsCommand(static_cast<UINT>(control->GetDlgCtrlID())))
        command = static_cast<UINT>(control->GetDlgCtrlID());
    if (command == 0 || !CanRun(command))
        return false;
    Run(command);
    return true;
}

CWnd* TablePage::FirstControl()
{
    return m_view != nullptr ? &m_list : nullptr;
}
