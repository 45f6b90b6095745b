// The picture page's controls: made, placed and asked.
#include "apps/sample/pages/PicturePage.h"
#include "apps/sample/resource.h"
#include "apps/sample/ui/TableCard.h"

#include <algorithm>

namespace
{

constexpr UINT kPicturePane = 2400;
constexpr UINT kPictureNotice = 2401;

// Pixels at 96 dpi.
constexpr int kMargin = 14;
constexpr int kGap = 6;
constexpr int kGroupGap = 16;
constexpr int kRow = 24;
constexpr int kTitleHeight = 22;
constexpr int kNoteHeight = 18;
constexpr int kSideWidth = 290;
constexpr int kWide = 620; // below it there is no room for the facts
constexpr int kSmall = 28;
constexpr int kUsual = 72;
constexpr int kTurn = 80;

struct ButtonText
{
    UINT command;
    const char* text;
    int width;
    bool beginsGroup;
};

constexpr std::array kButtonTexts = {
    ButtonText{ID_PICTURE_OPEN, "&Open...", kUsual, false},
    ButtonText{ID_PICTURE_SAVE, "Sa&ve as...", kUsual, false},
    ButtonText{ID_PICTURE_PREVIOUS, "<", kSmall, true},
    ButtonText{ID_PICTURE_NEXT, ">", kSmall, false},
    ButtonText{ID_PICTURE_FIT, "&Fit", 44, true},
    ButtonText{ID_PICTURE_ACTUAL, "&1:1", 44, false},
    ButtonText{ID_PICTURE_IN, "+", kSmall, false},
    ButtonText{ID_PICTURE_OUT, "\x96", kSmall, false},
    ButtonText{ID_PICTURE_LEFT, "Turn &left", kTurn, true},
    ButtonText{ID_PICTURE_RIGHT, "Turn &right", kTurn, false},
    ButtonText{ID_PICTURE_RESIZE, "Re&size...", kUsual, false},
};

CRect TakeTop(CRect& rest, int height, int gap)
{
    CRect piece(rest.left, rest.top, rest.right, std::min<LONG>(rest.bottom, rest.top + height));
    rest.top = std::min<LONG>(rest.bottom, piece.bottom + gap);
    return piece;
}

void DrawWords(CDC& dc, CRect area, const std::string& words, const CFont& font, COLORREF color, UINT ellipsis)
{
    CFont* const before = dc.SelectObject(const_cast<CFont*>(&font));
    dc.SetTextColor(color);
    dc.SetBkMode(TRANSPARENT);
    dc.DrawText(words.c_str(), -1, &area, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | ellipsis);
    dc.SelectObject(before);
}

void Move(CWnd& control, const CRect& place)
{
    control.SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

int PicturePage::HeightFor(int, const Theme&) const
{
    return 0; // as high as the window
}

// The buttons go on in a new line where one is full.
void PicturePage::PlaceButtons(Places& places, CRect& rest, const Theme& theme) const
{
    CRect line = TakeTop(rest, theme.Px(kRow), theme.Px(kGap));
    int x = line.left;
    for (std::size_t index = 0; index < kButtons; ++index)
    {
        const ButtonText& button = kButtonTexts[index];
        if (button.beginsGroup)
            x += theme.Px(kGroupGap - kGap);
        if (x + theme.Px(button.width) > line.right && x > line.left)
        {
            line = TakeTop(rest, theme.Px(kRow), theme.Px(kGap));
            x = line.left;
        }
        places.buttons[index].SetRect(x, line.top, x + theme.Px(button.width), line.bottom);
        x += theme.Px(button.width + kGap);
    }
}

PicturePage::Places PicturePage::PlacesIn(const CRect& area, const Theme& theme) const
{
    Places places;
    CRect rest(area);
    rest.DeflateRect(theme.Px(kMargin), theme.Px(kGap), theme.Px(kMargin), theme.Px(kGap));
    places.notice.SetRect(rest.left, std::max<LONG>(rest.top, rest.bottom - theme.Px(kRow)), rest.right, rest.bottom);
    rest.bottom = std::max<LONG>(rest.top, places.notice.top - theme.Px(2));
    places.title = TakeTop(rest, theme.Px(kTitleHeight), 0);
    places.note = TakeTop(rest, theme.Px(kNoteHeight), theme.Px(kGap));
    PlaceButtons(places, rest, theme);
    places.pane = rest;
    if (rest.Width() < theme.Px(kWide))
        return places;
    places.pane.right -= theme.Px(kSideWidth + kMargin);
    places.facts.SetRect(places.pane.right + theme.Px(kMargin), rest.top, rest.right, rest.bottom);
    return places;
}

void PicturePage::Paint(CDC& dc, const CRect& area, const Theme& theme) const
{
    const Places places = PlacesIn(area, theme);
    DrawWords(dc, places.title, m_picture.Name(), theme.heading, theme.accent, DT_END_ELLIPSIS);
    DrawWords(dc, places.note, Note(), theme.note, theme.muted,
              m_picture.Path().empty() ? DT_END_ELLIPSIS : DT_PATH_ELLIPSIS);
    CRect frame(places.pane);
    frame.InflateRect(1, 1);
    dc.FillSolidRect(&frame, theme.border);
    if (places.facts.IsRectEmpty())
        return;
    const vorn::ReportTable facts = Facts();
    const TableCard card(facts, theme);
    CRect side(places.facts);
    side.bottom = side.top + card.Height();
    card.Draw(dc, side);
}

void PicturePage::CreateControls(CWnd& view)
{
    static_assert(kButtonTexts.size() == kButtons);
    for (std::size_t index = 0; index < kButtons; ++index)
        m_buttons[index].Create(kButtonTexts[index].text, WS_CHILD | WS_TABSTOP | BS_PUSHBUTTON, CRect(), &view,
                                kButtonTexts[index].command);
    m_pane.Create(view, kPicturePane);
    m_notice.Create(view, kPictureNotice);
    m_notice.Say(m_words, m_news);
    m_view = &view;
}

std::vector<CWnd*> PicturePage::Controls()
{
    std::vector<CWnd*> controls = {&m_pane, &m_notice};
    for (CButton& button : m_buttons)
        controls.push_back(&button);
    return controls;
}

void PicturePage::Activate(CWnd& view, bool active)
{
    const bool isFirst = m_view == nullptr;
    if (isFirst && !active)
        return;
    if (isFirst)
        CreateControls(view);
    if (isFirst && m_picture.IsEmpty())
        m_picture.TakeSample();
    for (CWnd* const control : Controls())
        control->ShowWindow(active ? SW_SHOWNA : SW_HIDE);
    if (isFirst)
        ShowPicture();
}

void PicturePage::PlaceControls(const CRect& area, const Theme& theme)
{
    if (m_view == nullptr)
        return;
    if (!m_hasTheme)
    {
        m_hasTheme = true;
        for (CButton& button : m_buttons)
            button.SetFont(const_cast<CFont*>(&theme.body), FALSE);
        m_notice.SetTheme(theme);
    }
    const Places places = PlacesIn(area, theme);
    for (std::size_t index = 0; index < kButtons; ++index)
        Move(m_buttons[index], places.buttons[index]);
    Move(m_pane, places.pane);
    Move(m_notice, places.notice);
}

bool PicturePage::OnControl(UINT id, UINT code)
{
    if (id == kPicturePane && code == PicturePane::kDropped)
    {
        Open(m_pane.DroppedFile());
        return true;
    }
    if (id == kPicturePane)
        return code == PicturePane::kMoved;
    if (!OwnsCommand(id) || code != BN_CLICKED)
        return false;
    if (CanRun(id))
        Run(id);
    return true;
}

bool PicturePage::OnKey(UINT key, CWnd* control)
{
    if (control != &m_pane)
        return false;
    const UINT command = key == VK_PRIOR ? ID_PICTURE_PREVIOUS : key == VK_NEXT ? ID_PICTURE_NEXT : 0;
    if (command != 0 && CanRun(command))
        Run(command);
    return command != 0 || m_pane.TakeKey(key);
}

CWnd* PicturePage::FirstControl()
{
    return m_view != nullptr ? &m_pane : nullptr;
}
