#include "apps/planner/LegBar.h"

#include "apps/planner/Distances.h"
#include "apps/planner/Form.h"
#include "apps/planner/resource.h"

namespace vorn::planner
{

namespace
{

std::string LegText(const Leg& leg)
{
    return leg.from + " - " + leg.to + "  " + CourseToString(leg.course, false).GetString() + "  " +
           DistanceText(leg.miles);
}

} // namespace

BEGIN_MESSAGE_MAP(LegBar, ResizableDialogBar)
ON_BN_CLICKED(IDC_LEGS_SHOW, &LegBar::OnShow)
ON_BN_CLICKED(IDC_LEGS_ROUTE, &LegBar::OnRoute)
ON_LBN_DBLCLK(IDC_LEGS_LIST, &LegBar::OnShow)
ON_UPDATE_COMMAND_UI(IDC_LEGS_SHOW, &LegBar::OnUpdateShow)
ON_UPDATE_COMMAND_UI(IDC_LEGS_ROUTE, &LegBar::OnUpdateRoute)
END_MESSAGE_MAP()

LegBar::LegBar(PlannerData& data) : m_data(data)
{
}

bool LegBar::Open(CFrameWnd& frame, UINT id)
{
    if (!Create(&frame, static_cast<UINT>(IDD_LEG_BAR), CBRS_RIGHT, id, TRUE, 0U))
        return false;
    SetWindowText("Legs");
    EnableDocking(CBRS_ALIGN_ANY);
    return true;
}

BOOL LegBar::OnInitDialog()
{
    ResizableDialogBar::OnInitDialog();
    m_legs.SubclassDlgItem(IDC_LEGS_LIST, this);
    Form form(*this, *this);
    CPane root = CreateRoot(Vertical, form.Y(4));
    root << form.Large(IDC_LEGS_LIST, 90, 40)
         << (form.Line() << form.Fixed(IDC_LEGS_SHOW) << form.Fixed(IDC_LEGS_ROUTE) << itemSpace(Horizontal));
    UpdateLayout(false); // in a dock the bar may keep the size that it has
    Refresh();
    return TRUE;
}

void LegBar::Refresh()
{
    if (m_legs.m_hWnd == nullptr)
        return;
    const int selected = m_legs.GetCurSel();
    m_legs.ResetContent();
    for (const Leg& leg : m_data.Legs())
        m_legs.AddString(LegText(leg).c_str());
    m_legs.SetCurSel(selected);
}

/// Where the leg ends.
void LegBar::OnShow()
{
    const int selected = m_legs.GetCurSel();
    const std::vector<Place> route = RouteOf(m_data.plan, m_data.places);
    const std::size_t end = static_cast<std::size_t>(selected) + 1;
    if (selected >= 0 && end < route.size() && m_data.showOnChart)
        m_data.showOnChart(route[end].position);
}

void LegBar::OnUpdateShow(CCmdUI* item)
{
    item->Enable(m_legs.GetCurSel() >= 0);
}

void LegBar::OnUpdateRoute(CCmdUI* item)
{
    item->Enable();
}

void LegBar::OnRoute()
{
    GetParentFrame()->SendMessage(WM_COMMAND, ID_PLANNER_ROUTE);
}

} // namespace vorn::planner
