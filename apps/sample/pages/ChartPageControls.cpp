// The chart page's controls: made, placed and asked.
#include "apps/sample/pages/ChartPage.h"
#include "apps/sample/resource.h"

#include <algorithm>

namespace
{

constexpr UINT kChartWindow = 2300;
constexpr UINT kChartProjection = 2301;

// Pixels at 96 dpi.
constexpr int kMargin = 14;
constexpr int kGap = 6;
constexpr int kRow = 24;
constexpr int kSmallButton = 28;
constexpr int kButton = 66;
constexpr int kNarrowButton = 54;
constexpr int kNarrow = 460; // a row of this width has narrow buttons
constexpr int kCombo = 200;
constexpr int kLeastCombo = 60;
constexpr int kDropped = 220;

constexpr const char* kHint = "Drag to move, wheel to zoom, P: projection, N: night";

struct ButtonText
{
    UINT command;
    const char* text;
    int width;
};

constexpr std::array kButtonTexts = {
    ButtonText{ID_CHART_IN, "+", kSmallButton},         ButtonText{ID_CHART_OUT, "\x96", kSmallButton},
    ButtonText{ID_CHART_REGION, "&Region", kButton},    ButtonText{ID_CHART_NIGHT, "&Night", kButton},
    ButtonText{ID_CHART_EXPORT, "E&xport...", kButton},
};

int WidthOf(const ButtonText& button, const CRect& row, const Theme& theme)
{
    return theme.Px(row.Width() < theme.Px(kNarrow) ? std::min(button.width, kNarrowButton) : button.width);
}

int ButtonsWidth(const CRect& row, const Theme& theme)
{
    int width = 0;
    for (const ButtonText& button : kButtonTexts)
        width += WidthOf(button, row, theme) + theme.Px(kGap);
    return width - theme.Px(kGap);
}

void Move(CWnd& control, const CRect& place)
{
    control.SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace

ChartPage::Places ChartPage::PlacesIn(const CRect& area, const Theme& theme) const
{
    Places places;
    CRect rest(area);
    rest.DeflateRect(theme.Px(kMargin), theme.Px(kGap), theme.Px(kMargin), theme.Px(kMargin));
    const int gap = theme.Px(kGap);
    CRect row(rest.left, rest.top, rest.right, rest.top + theme.Px(kRow));
    int x = std::max<int>(row.left, row.right - ButtonsWidth(row, theme));
    const int combo = std::clamp(static_cast<int>(x - row.left) - gap, theme.Px(kLeastCombo), theme.Px(kCombo));
    places.projection = CRect(x - gap - combo, row.top, x - gap, row.top + theme.Px(kDropped));
    for (std::size_t i = 0; i < kButtons; ++i)
    {
        places.buttons[i] = CRect(x, row.top, x + WidthOf(kButtonTexts[i], row, theme), row.bottom);
        x = places.buttons[i].right + gap;
    }
    places.title = CRect(row.left, row.top, std::max(row.left, places.projection.left - gap), row.bottom);
    places.chart = CRect(rest.left, row.bottom + gap, rest.right, std::max(rest.bottom, row.bottom + gap + 1));
    return places;
}

void ChartPage::Paint(CDC& dc, const CRect& area, const Theme& theme) const
{
    const Places places = PlacesIn(area, theme);
    CFont* const before = dc.SelectObject(const_cast<CFont*>(&theme.heading));
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(m_missing.empty() ? theme.text : theme.bad);
    CRect title(places.title);
    const std::string words = m_missing.empty() ? "Chart" : "Missing: " + m_missing;
    dc.DrawText(words.c_str(), -1, &title, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    title.left += dc.GetTextExtent(words.c_str(), static_cast<int>(words.size())).cx + theme.Px(2 * kGap);
    dc.SelectObject(const_cast<CFont*>(&theme.note));
    dc.SetTextColor(theme.muted);
    if (title.Width() > dc.GetTextExtent(kHint, lstrlen(kHint)).cx)
        dc.DrawText(kHint, -1, &title, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
    dc.SelectObject(before);
    CRect frame(places.chart);
    frame.InflateRect(1, 1);
    dc.FillSolidRect(&frame, theme.border);
}

void ChartPage::CreateControls(CWnd& view)
{
    static_assert(kButtonTexts.size() == kButtons);
    const DWORD style = WS_CHILD | WS_TABSTOP;
    m_projection.Create(style | CBS_DROPDOWNLIST | WS_VSCROLL, CRect(), &view, kChartProjection);
    for (int number = 0; number < ProjectionLib::mpInstance->NumProjections(); ++number)
        m_projection.AddString(ProjectionLib::mpInstance->ProjectionName(number));
    for (std::size_t i = 0; i < kButtons; ++i)
        m_buttons[i].Create(kButtonTexts[i].text,
                            style |
                                (kButtonTexts[i].command == ID_CHART_NIGHT ? BS_CHECKBOX | BS_PUSHLIKE : BS_PUSHBUTTON),
                            CRect(), &view, kButtonTexts[i].command);
    m_window.Create(view, kChartWindow);
    m_view = &view;
}

std::vector<CWnd*> ChartPage::Controls()
{
    std::vector<CWnd*> controls = {&m_projection, &m_window};
    for (CButton& button : m_buttons)
        controls.push_back(&button);
    return controls;
}

void ChartPage::Activate(CWnd& view, bool active)
{
    if (!active)
        KeepView();
    if (m_view == nullptr)
    {
        if (!active)
            return;
        Load();
        CreateControls(view);
    }
    for (CWnd* const control : Controls())
        control->ShowWindow(active ? SW_SHOWNA : SW_HIDE);
    if (!active)
    {
        m_tip.Hide(m_window);
        if (CFrameWnd* const frame = m_view->GetParentFrame())
            frame->SetMessageText(AFX_IDS_IDLEMESSAGE); // no longer of the chart
    }
    ShowState();
}

void ChartPage::PlaceControls(const CRect& area, const Theme& theme)
{
    if (m_view == nullptr)
        return;
    for (CWnd* const control : Controls())
    {
        if (control != &m_window)
            control->SetFont(const_cast<CFont*>(&theme.body), FALSE);
    }
    const Places places = PlacesIn(area, theme);
    Move(m_projection, places.projection);
    for (std::size_t i = 0; i < kButtons; ++i)
        Move(m_buttons[i], places.buttons[i]);
    Move(m_window, places.chart);
    if (!m_placed && places.chart.Width() > 1 && places.chart.Height() > 1)
    {
        m_placed = true;
        ShowStored();
        ShowState();
    }
}

void ChartPage::ShowState()
{
    m_projection.SetCurSel(m_chart.ProjectionNumber());
    for (CButton& button : m_buttons)
    {
        if (button.GetDlgCtrlID() == ID_CHART_NIGHT)
            button.SetCheck(IsNightVision() ? BST_CHECKED : BST_UNCHECKED);
    }
}

bool ChartPage::OnControl(UINT id, UINT code)
{
    if (OwnsCommand(id) && code == BN_CLICKED)
    {
        Run(id);
        m_window.SetFocus();
        return true;
    }
    if (id != kChartProjection || code != CBN_SELCHANGE)
        return false;
    ChooseProjection(m_projection.GetCurSel());
    return true;
}

bool ChartPage::OnKey(UINT key, CWnd* control)
{
    if (control != &m_window || GetKeyState(VK_CONTROL) < 0)
        return false;
    switch (key)
    {
    case 'N':
        Run(ID_CHART_NIGHT);
        return true;
    case 'P':
    {
        const int count = std::max(1, m_projection.GetCount());
        ChooseProjection((m_chart.ProjectionNumber() + 1) % count);
        return true;
    }
    case VK_HOME:
        Run(ID_CHART_REGION);
        return true;
    default:
        return false;
    }
}

CWnd* ChartPage::FirstControl()
{
    return m_view != nullptr ? &m_window : nullptr;
}
