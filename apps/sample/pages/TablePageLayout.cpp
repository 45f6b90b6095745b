// Where the table page's parts stand, and what is painted between its controls.
#include "apps/sample/pages/TablePage.h"

#include <algorithm>

namespace
{

// Pixels at 96 dpi.
constexpr int kMargin = 14;
constexpr int kGap = 6;
constexpr int kRow = 24;
constexpr int kButtonWidth = 76;
constexpr int kSideWidth = 254;
constexpr int kTitleHeight = 22;
constexpr int kNoteHeight = 18;
constexpr int kHeadingHeight = 24;
constexpr int kListRow = 16;
constexpr int kDropped = 220;    // of a combo box with its list
constexpr int kWide = 760;       // below it everything stands in one column
constexpr int kLowMemo = 46;     // the memo's height there
constexpr int kLowest = 140;     // a list lower than this gives no room to the memo
constexpr int kFewestFields = 4; // rows of the field list

constexpr std::size_t kTableButtons = 4;

// Cuts a piece off the left of `line`, with a gap behind it.
CRect TakeLeft(CRect& line, int width, int gap)
{
    CRect piece(line.left, line.top, std::min<LONG>(line.right, line.left + width), line.bottom);
    line.left = std::min<LONG>(line.right, piece.right + gap);
    return piece;
}

CRect TakeTop(CRect& rest, int height, int gap)
{
    CRect piece(rest.left, rest.top, rest.right, std::min<LONG>(rest.bottom, rest.top + height));
    rest.top = std::min<LONG>(rest.bottom, piece.bottom + gap);
    return piece;
}

CRect TakeBottom(CRect& rest, int height, int gap)
{
    CRect piece(rest.left, std::max<LONG>(rest.top, rest.bottom - height), rest.right, rest.bottom);
    rest.bottom = std::max<LONG>(rest.top, piece.top - gap);
    return piece;
}

void DrawWords(CDC& dc, CRect area, const std::string& words, const CFont& font, COLORREF color)
{
    if (area.IsRectEmpty())
        return;
    CFont* const before = dc.SelectObject(const_cast<CFont*>(&font));
    dc.SetTextColor(color);
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(words.c_str(), -1, &area, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    dc.SelectObject(before);
}

void Move(CWnd& control, const CRect& place)
{
    control.SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
}

bool IsWide(const CRect& area, const Theme& theme)
{
    return area.Width() >= theme.Px(kWide);
}

} // namespace

int TablePage::HeightFor(int, const Theme&) const
{
    return 0; // as high as the window
}

TablePage::Places TablePage::PlacesIn(const CRect& area, const Theme& theme) const
{
    Places places;
    CRect rest(area);
    const int margin = theme.Px(IsWide(area, theme) ? kMargin : kGap);
    rest.DeflateRect(margin, theme.Px(kGap), margin, theme.Px(kGap));
    places.notice = TakeBottom(rest, theme.Px(kRow), theme.Px(2));
    PlaceHead(places, rest, theme);
    PlaceSearch(places, rest, theme);
    PlaceBody(places, rest, theme);
    return places;
}

void TablePage::PlaceHead(Places& places, CRect& rest, const Theme& theme) const
{
    const int gap = theme.Px(kGap);
    const bool wide = IsWide(rest, theme);
    CRect head = TakeTop(rest, theme.Px(kTitleHeight + kNoteHeight), gap);
    CRect buttons = wide ? head : TakeTop(rest, theme.Px(kRow), gap);
    if (wide)
    {
        buttons.left = buttons.right - static_cast<int>(kTableButtons) * (theme.Px(kButtonWidth) + gap) + gap;
        buttons.top += theme.Px(kGap);
        buttons.bottom = buttons.top + theme.Px(kRow);
        head.right = buttons.left - gap;
    }
    for (std::size_t index = 0; index < kTableButtons; ++index)
        places.buttons[index] = TakeLeft(buttons, theme.Px(kButtonWidth), gap);
    places.title = TakeTop(head, theme.Px(kTitleHeight), 0);
    places.note = head;
}

void TablePage::PlaceSearch(Places& places, CRect& rest, const Theme& theme) const
{
    const int gap = theme.Px(kGap);
    const bool wide = IsWide(rest, theme);
    CRect line = TakeTop(rest, theme.Px(kRow), gap);
    if (wide)
        places.searchLabel = TakeLeft(line, theme.Px(36), gap);
    places.field = TakeLeft(line, theme.Px(118), gap);
    places.value = TakeLeft(line, wide ? theme.Px(150) : line.Width(), gap);
    if (!wide)
        line = TakeTop(rest, theme.Px(kRow), gap);
    places.method = TakeLeft(line, theme.Px(118), gap);
    places.matchCase = TakeLeft(line, theme.Px(100), gap);
    const int button = std::min<int>(theme.Px(kButtonWidth), (line.Width() - gap) / 2);
    for (std::size_t index = kTableButtons; index < kButtons; ++index)
        places.buttons[index] = TakeLeft(line, button, gap);
    rest.top += gap / 2;
}

void TablePage::PlaceBody(Places& places, CRect rest, const Theme& theme) const
{
    const int gap = theme.Px(kGap);
    const bool memo = m_table.MemoField() >= 0;
    if (!IsWide(rest, theme))
    {
        if (memo && rest.Height() >= theme.Px(kLowest))
            places.memo = TakeBottom(rest, theme.Px(kLowMemo), gap);
        places.list = rest;
        return;
    }
    CRect side(rest);
    side.left = side.right - theme.Px(kSideWidth);
    rest.right = side.left - theme.Px(kMargin);
    places.list = rest;
    places.fieldsTitle = TakeTop(side, theme.Px(kHeadingHeight), 0);
    const int rows = std::max(kFewestFields, static_cast<int>(m_table.Fields().size()) + 2);
    const int wanted = theme.Px(kListRow) * rows;
    places.fields = TakeTop(side, memo ? std::min(wanted, side.Height() / 2) : side.Height(), gap);
    if (!memo)
        return;
    places.memoTitle = TakeTop(side, theme.Px(kHeadingHeight), 0);
    places.memo = side;
}

void TablePage::PlaceControls(const CRect& area, const Theme& theme)
{
    if (m_view == nullptr)
        return;
    const bool first = m_theme == nullptr;
    if (first)
        UseTheme(theme);
    const Places places = PlacesIn(area, theme);
    for (std::size_t index = 0; index < kButtons; ++index)
        Move(m_buttons[index], places.buttons[index]);
    for (CComboBox* const box : {&m_field, &m_method})
    {
        CRect dropped(box == &m_field ? places.field : places.method);
        dropped.bottom = dropped.top + theme.Px(kDropped);
        Move(*box, dropped);
    }
    Move(m_value, places.value);
    Move(m_matchCase, places.matchCase);
    Move(m_list, places.list);
    Move(m_fields, places.fields);
    Move(m_memo, places.memo);
    Move(m_notice, places.notice);
    if (first)
        ShowTable();
}

void TablePage::Paint(CDC& dc, const CRect& area, const Theme& theme) const
{
    const Places places = PlacesIn(area, theme);
    const std::string& path = m_table.Path();
    const std::string name = path.substr(path.find_last_of("\\/") + 1);
    DrawWords(dc, places.title, name.empty() ? "Tables" : name, theme.heading, theme.accent);
    DrawWords(dc, places.note, Note(), theme.note, theme.muted);
    DrawWords(dc, places.searchLabel, "Find", theme.body, theme.text);
    DrawWords(dc, places.fieldsTitle, "Fields", theme.bold, theme.text);
    if (m_table.MemoField() < 0 || m_view == nullptr)
        return;
    const std::string& memo = m_table.Fields()[static_cast<std::size_t>(m_table.MemoField())].name;
    const int record = m_table.RecordOf(m_list.SelectedRow());
    DrawWords(dc, places.memoTitle, record < 0 ? memo : memo + " of record " + std::to_string(record), theme.bold,
              theme.text);
}
