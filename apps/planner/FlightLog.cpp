#include "apps/planner/FlightLog.h"

#include "apps/planner/Distances.h"
#include "apps/planner/Form.h"
#include "apps/planner/HostIcon.h"
#include "apps/planner/resource.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace vorn::planner
{

namespace
{

constexpr const char* kPlacements = "WindowPlacement"; // a section of the settings
constexpr const char* kPlacement = "FlightLog";
const CRect kFirstPlace(120, 90, 760, 560);

struct Column
{
    const char* heading;
    int format;
    int share; ///< of the list's width, percent
};
constexpr std::array kColumns = {
    Column{"From", LVCFMT_LEFT, 16}, Column{"To", LVCFMT_LEFT, 16},    Column{"Course", LVCFMT_RIGHT, 17},
    Column{"", LVCFMT_RIGHT, 17},    Column{"Time", LVCFMT_RIGHT, 17}, Column{"Over", LVCFMT_RIGHT, 17},
};

constexpr int kDistanceColumn = 3; // its heading is the user's unit

/// Hours after midnight of a time such as "0930".
double HoursOf(const std::string& hhmm)
{
    int number = 0;
    std::from_chars(hhmm.data(), hhmm.data() + hhmm.size(), number);
    return number / 100 + number % 100 / 60.0;
}

std::string ClockText(double hours)
{
    const double ofDay = hours - 24 * std::floor(hours / 24);
    const std::string text = HoursText(ofDay);
    return (text.size() < 5 ? "0" : "") + text;
}

} // namespace

BEGIN_MESSAGE_MAP(FlightLogView, LayoutManagement::LayoutFormView)
ON_EN_CHANGE(IDC_LOG_TIME, &FlightLogView::OnTimeChanged)
ON_EN_KILLFOCUS(IDC_LOG_TIME, &FlightLogView::OnTimeLeft)
ON_EN_KILLFOCUS(IDC_LOG_NOTES, &FlightLogView::OnNotesLeft)
ON_WM_SIZE()
END_MESSAGE_MAP()

FlightLogView::FlightLogView(PlannerData& data) : LayoutFormView(IDD_LOG, nullptr), m_data(data)
{
}

void FlightLogView::OnInitialUpdate()
{
    LayoutFormView::OnInitialUpdate();
    m_legs.SubclassDlgItem(IDC_LOG_LIST, this);
    m_legs.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    MakeColumns();
    Refresh();
    Arrange();
    UpdateLayout(false);
    SizeColumns();
    m_filled = true;
}

void FlightLogView::MakeColumns()
{
    for (int i = 0; i < static_cast<int>(kColumns.size()); ++i)
    {
        const Column& column = kColumns[static_cast<std::size_t>(i)];
        m_legs.InsertColumn(i, column.heading, column.format, 60);
    }
}

void FlightLogView::Arrange()
{
    Form form(*this, *this);
    CPane top = form.Line();
    top << form.Wide(IDC_LOG_TITLE, 80) << form.Fixed(IDC_LOG_TIME_LABEL) << form.Fixed(IDC_LOG_TIME);
    CPane root = CreateRoot(Vertical, form.Y(4));
    root << top << item(IDC_LOG_LIST, PercentHeight, 0, 65, form.X(200), form.Y(60))
         << item(IDC_LOG_TOTAL, FixedHeight, 0, 0, form.X(100)) << form.Fixed(IDC_LOG_NOTES_LABEL)
         << item(IDC_LOG_NOTES, PercentHeight, 0, 35, form.X(100), form.Y(30));
}

void FlightLogView::Refresh()
{
    const Plan& plan = m_data.plan;
    const std::string title = plan.aircraft + ": " + plan.departure + " to " + plan.destination;
    SetDlgItemText(IDC_LOG_TITLE, title.c_str());
    SetDlgItemText(IDC_LOG_TIME, plan.departureTime.c_str());
    SetDlgItemText(IDC_LOG_NOTES, plan.notes.c_str());
    ShowLegs();
}

/// Over the distances.
void FlightLogView::ShowUnit()
{
    CString unit = GetConversionBoy()->UnitStr(UNITTYPE_DISTANCE);
    LVCOLUMN heading{};
    heading.mask = LVCF_TEXT | LVCF_FMT; // not each system keeps the one when it is given the other
    heading.fmt = kColumns[kDistanceColumn].format;
    heading.pszText = unit.GetBuffer();
    m_legs.SetColumn(kDistanceColumn, &heading);
}

void FlightLogView::ShowLegs()
{
    CString typed;
    GetDlgItemText(IDC_LOG_TIME, typed);
    ValidateTime(typed);
    double over = HoursOf(typed.GetString());
    const std::vector<Leg> legs = m_data.Legs();
    ShowUnit();
    m_legs.DeleteAllItems();
    for (int i = 0; i < static_cast<int>(legs.size()); ++i)
    {
        const Leg& leg = legs[static_cast<std::size_t>(i)];
        over += leg.hours;
        m_legs.InsertItem(i, leg.from.c_str());
        m_legs.SetItemText(i, 1, leg.to.c_str());
        m_legs.SetItemText(i, 2, CourseToString(leg.course, false));
        m_legs.SetItemText(i, kDistanceColumn, DistanceNumber(leg.miles, 1).c_str());
        m_legs.SetItemText(i, 4, HoursText(leg.hours).c_str());
        m_legs.SetItemText(i, 5, ClockText(over).c_str());
    }
    const std::string total = SummaryText(legs) + ", " + NumberText(SumOf(legs).gallons, 1) + " gal";
    SetDlgItemText(IDC_LOG_TOTAL, total.c_str());
}

void FlightLogView::SizeColumns()
{
    if (m_legs.m_hWnd == nullptr)
        return;
    CRect client;
    m_legs.GetClientRect(&client);
    int left = client.Width();
    for (int i = 0; i < static_cast<int>(kColumns.size()); ++i)
    {
        const bool isLast = i + 1 == static_cast<int>(kColumns.size());
        const int share = client.Width() * kColumns[static_cast<std::size_t>(i)].share / 100;
        const int width = isLast ? left : share;
        if (m_legs.GetColumnWidth(i) != width) // setting one paints the list, also when it is the present one
            m_legs.SetColumnWidth(i, width);
        left -= width;
    }
}

void FlightLogView::OnSize(UINT type, int cx, int cy)
{
    LayoutFormView::OnSize(type, cx, cy);
    SizeColumns();
}

void FlightLogView::OnTimeChanged()
{
    if (m_filled)
        ShowLegs();
}

void FlightLogView::OnTimeLeft()
{
    CString typed;
    GetDlgItemText(IDC_LOG_TIME, typed);
    ValidateTime(typed);
    m_data.plan.departureTime = typed.GetString();
    m_data.Store();
}

void FlightLogView::OnNotesLeft()
{
    CString typed;
    GetDlgItemText(IDC_LOG_NOTES, typed);
    m_data.plan.notes = typed.GetString();
    m_data.Store();
}

BEGIN_MESSAGE_MAP(FlightLogFrame, CFrameWnd)
ON_WM_GETMINMAXINFO()
ON_WM_DESTROY()
END_MESSAGE_MAP()

FlightLogFrame::FlightLogFrame(PlannerData& data) : m_data(data)
{
}

bool FlightLogFrame::Open(CWnd& owner)
{
    if (!Create(nullptr, "Flight log", WS_OVERLAPPEDWINDOW, kFirstPlace, &owner))
        return false;
    ShowHostIcon(*this);
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (ReadWindowPlacement(kPlacements, kPlacement, &placement))
    {
        if (placement.showCmd == SW_SHOWMINIMIZED)
            placement.showCmd = SW_SHOWNORMAL;
        SetWindowPlacement(&placement);
    }
    InitialUpdateFrame(nullptr, TRUE);
    return true;
}

FlightLogView& FlightLogFrame::View() const
{
    return *m_view;
}

BOOL FlightLogFrame::OnCreateClient(LPCREATESTRUCT, CCreateContext* context)
{
    auto* const view = new FlightLogView(m_data); // the framework deletes a view with its window
    if (!view->Create(nullptr, nullptr, AFX_WS_DEFAULT_VIEW & ~WS_BORDER, CRect(), this, AFX_IDW_PANE_FIRST, context))
        return FALSE;
    m_view = view;
    SetActiveView(view);
    return TRUE;
}

/// As small as the view allows.
void FlightLogFrame::OnGetMinMaxInfo(MINMAXINFO* info)
{
    CFrameWnd::OnGetMinMaxInfo(info);
    if (m_view == nullptr || m_view->m_hWnd == nullptr || IsIconic())
        return;
    MINMAXINFO ofView = *info;
    m_view->SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&ofView));
    CRect inner(0, 0, ofView.ptMinTrackSize.x, ofView.ptMinTrackSize.y);
    ::AdjustWindowRectEx(&inner, GetStyle(), FALSE, GetExStyle());
    info->ptMinTrackSize.x = std::max<LONG>(info->ptMinTrackSize.x, inner.Width());
    info->ptMinTrackSize.y = std::max<LONG>(info->ptMinTrackSize.y, inner.Height());
}

void FlightLogFrame::OnDestroy()
{
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    if (GetWindowPlacement(&placement))
        WriteWindowPlacement(kPlacements, kPlacement, &placement);
    CFrameWnd::OnDestroy();
}

} // namespace vorn::planner
