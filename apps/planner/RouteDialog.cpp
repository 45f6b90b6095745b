#include "apps/planner/RouteDialog.h"

#include "apps/planner/Distances.h"
#include "apps/planner/resource.h"

#include <algorithm>
#include <array>

namespace vorn::planner
{

namespace
{

constexpr std::array<UINT, 5> kRoutingPage = {IDC_ROUTE_DIRECT, IDC_ROUTE_LOW, IDC_ROUTE_HIGH, IDC_ROUTE_LONGEST_LABEL,
                                              IDC_ROUTE_LONGEST};
constexpr std::array<UINT, 4> kAvoidPage = {IDC_ROUTE_PROHIBITED, IDC_ROUTE_RESTRICTED, IDC_ROUTE_CLASS_B,
                                            IDC_ROUTE_CLASS_C};

constexpr std::array kTips = {
    Tip{IDC_ROUTE_FROM, 1585},    Tip{IDC_ROUTE_TO, 1601},        Tip{IDC_ROUTE_SWAP, 1594},
    Tip{IDC_ROUTE_VIA, 1571},     Tip{IDC_ROUTE_PLACE, 1573},     Tip{IDC_ROUTE_TAB, 1607},
    Tip{IDC_ROUTE_ADD, 1573},     Tip{IDC_ROUTE_REMOVE, 1574},    Tip{IDC_ROUTE_UP, 1575},
    Tip{IDC_ROUTE_DOWN, 1576},    Tip{IDC_ROUTE_DIRECT, 1608},    Tip{IDC_ROUTE_LOW, 1610},
    Tip{IDC_ROUTE_HIGH, 1611},    Tip{IDC_ROUTE_PROHIBITED, 801}, Tip{IDC_ROUTE_RESTRICTED, 1618},
    Tip{IDC_ROUTE_CLASS_B, 1616}, Tip{IDC_ROUTE_CLASS_C, 1617},   Tip{IDC_ROUTE_LONGEST, 1275},
    Tip{IDC_ROUTE_REMARKS, 1580}, Tip{IDC_ROUTE_TOTAL, 1581},
};

} // namespace

BEGIN_MESSAGE_MAP(RouteDialog, PlannerDialog)
ON_BN_CLICKED(IDC_ROUTE_SWAP, &RouteDialog::OnSwap)
ON_BN_CLICKED(IDC_ROUTE_ADD, &RouteDialog::OnAdd)
ON_BN_CLICKED(IDC_ROUTE_REMOVE, &RouteDialog::OnRemove)
ON_BN_CLICKED(IDC_ROUTE_UP, &RouteDialog::OnUp)
ON_BN_CLICKED(IDC_ROUTE_DOWN, &RouteDialog::OnDown)
ON_LBN_SELCHANGE(IDC_ROUTE_VIA, &RouteDialog::OnPlacesChanged)
ON_CBN_SELCHANGE(IDC_ROUTE_FROM, &RouteDialog::OnEndChosen)
ON_CBN_SELCHANGE(IDC_ROUTE_TO, &RouteDialog::OnEndChosen)
ON_CBN_EDITCHANGE(IDC_ROUTE_FROM, &RouteDialog::OnPlacesChanged)
ON_CBN_EDITCHANGE(IDC_ROUTE_TO, &RouteDialog::OnPlacesChanged)
ON_NOTIFY(TCN_SELCHANGE, IDC_ROUTE_TAB, &RouteDialog::OnTab)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

RouteDialog::RouteDialog(PlannerData& data, CWnd* parent) : PlannerDialog(IDD_ROUTE, data, parent, "RouteDialog")
{
}

std::span<const Tip> RouteDialog::Tips() const
{
    return kTips;
}

void RouteDialog::Fill()
{
    const Plan& plan = m_data.plan;
    m_from.SubclassDlgItem(IDC_ROUTE_FROM, this);
    m_to.SubclassDlgItem(IDC_ROUTE_TO, this);
    m_place.SubclassDlgItem(IDC_ROUTE_PLACE, this);
    m_via.SubclassDlgItem(IDC_ROUTE_VIA, this);
    m_tab.SubclassDlgItem(IDC_ROUTE_TAB, this);
    FillWithPlaces(m_from, plan.departure);
    FillWithPlaces(m_to, plan.destination);
    FillWithPlaces(m_place, "");
    for (const std::string& ident : WordsOf(plan.via))
        m_via.AddString(ident.c_str());
    m_tab.InsertItem(0, "Routing");
    m_tab.InsertItem(1, "Keep away from");
    CheckRadioButton(IDC_ROUTE_DIRECT, IDC_ROUTE_HIGH, IDC_ROUTE_DIRECT + plan.routing);
    TakeNumber(m_longest, *this, IDC_ROUTE_LONGEST, 0, plan.longestLeg, " NM");
    Check(IDC_ROUTE_PROHIBITED, plan.avoidsProhibited);
    Check(IDC_ROUTE_RESTRICTED, plan.avoidsRestricted);
    Check(IDC_ROUTE_CLASS_B, plan.avoidsClassB);
    Check(IDC_ROUTE_CLASS_C, plan.avoidsClassC);
    SetDlgItemText(IDC_ROUTE_REMARKS, plan.remarks.c_str());
    ShowTab();
    ShowTotal(plan);
    OnPlacesChanged();
}

void RouteDialog::Arrange(Form& form)
{
    form.Align({IDC_ROUTE_ADD, IDC_ROUTE_REMOVE, IDC_ROUTE_UP, IDC_ROUTE_DOWN, IDC_ROUTE_PLACE});

    CPane ends = form.Line();
    ends << form.Fixed(IDC_ROUTE_FROM_LABEL) << form.Share(IDC_ROUTE_FROM, 50, 40) << form.Fixed(IDC_ROUTE_TO_LABEL)
         << form.Share(IDC_ROUTE_TO, 50, 40) << form.Fixed(IDC_ROUTE_SWAP);

    CPane commands = form.Column();
    commands << form.Fixed(IDC_ROUTE_PLACE) << form.Fixed(IDC_ROUTE_ADD) << form.Fixed(IDC_ROUTE_REMOVE)
             << itemSpaceFixed(Vertical, form.Y(4)) << form.Fixed(IDC_ROUTE_UP) << form.Fixed(IDC_ROUTE_DOWN)
             << itemSpace(Vertical);
    CPane via = form.Group(IDC_ROUTE_VIA_GROUP, Horizontal, PercentWidth, 56);
    via << form.Large(IDC_ROUTE_VIA, 50, 60) << commands;

    CPane page = paneTab(&m_tab, Vertical, PercentWidth, form.Y(4), form.X(5), 44);
    for (const UINT id : {IDC_ROUTE_DIRECT, IDC_ROUTE_LOW, IDC_ROUTE_HIGH})
        page << form.Whole(id);
    page << form.Field(IDC_ROUTE_LONGEST_LABEL, IDC_ROUTE_LONGEST);
    for (const UINT id : kAvoidPage)
        page << form.Whole(id);
    page << itemSpace(Vertical);

    CPane middle = pane(Horizontal, PercentHeight, form.X(6), 0, 70);
    middle << via << page;
    CPane remarks = pane(Vertical, PercentHeight, form.Y(3), 0, 30);
    remarks << form.Fixed(IDC_ROUTE_REMARKS_LABEL) << form.Large(IDC_ROUTE_REMARKS, 80, 22);

    // Nothing is greedy here: the total takes what is left.
    CPane bottom = form.Line();
    bottom << item(IDC_ROUTE_TOTAL, FixedBoth | StretchWidth | AlignVCenter) << form.Fixed(IDOK)
           << form.Fixed(IDCANCEL);
    CreateRoot(Vertical, form.Y(5)) << ends << middle << remarks << bottom;
}

std::string RouteDialog::Via() const
{
    std::string via;
    for (int i = 0; i < m_via.GetCount(); ++i)
    {
        CString ident;
        m_via.GetText(i, ident);
        via += (via.empty() ? "" : " ") + std::string(ident.GetString());
    }
    return via;
}

Plan RouteDialog::Typed() const
{
    Plan plan = m_data.plan;
    plan.departure = TextAt(IDC_ROUTE_FROM);
    plan.destination = TextAt(IDC_ROUTE_TO);
    plan.via = Via();
    return plan;
}

bool RouteDialog::Take()
{
    Plan plan = Typed();
    for (const UINT id : {IDC_ROUTE_FROM, IDC_ROUTE_TO})
    {
        const CString ident = TextAt(id);
        if (FindPlace(m_data.places, ident.GetString()) != nullptr)
            continue;
        AfxMessageBox("There is no navaid or airport \"" + ident + "\".", MB_OK | MB_ICONEXCLAMATION);
        GotoDlgCtrl(GetDlgItem(static_cast<int>(id)));
        return false;
    }
    plan.routing = GetCheckedRadioButton(IDC_ROUTE_DIRECT, IDC_ROUTE_HIGH) - IDC_ROUTE_DIRECT;
    plan.longestLeg = m_longest.GetValue();
    plan.avoidsProhibited = IsChecked(IDC_ROUTE_PROHIBITED);
    plan.avoidsRestricted = IsChecked(IDC_ROUTE_RESTRICTED);
    plan.avoidsClassB = IsChecked(IDC_ROUTE_CLASS_B);
    plan.avoidsClassC = IsChecked(IDC_ROUTE_CLASS_C);
    plan.remarks = TextAt(IDC_ROUTE_REMARKS);
    m_data.plan = plan;
    return true;
}

void RouteDialog::ShowTotal(const Plan& plan)
{
    SetDlgItemText(IDC_ROUTE_TOTAL, SummaryText(LegsOf(RouteOf(plan, m_data.places), plan.speed, plan.flow)).c_str());
}

void RouteDialog::OnPlacesChanged()
{
    const int selected = m_via.GetCurSel();
    GetDlgItem(IDC_ROUTE_REMOVE)->EnableWindow(selected >= 0);
    GetDlgItem(IDC_ROUTE_UP)->EnableWindow(selected > 0);
    GetDlgItem(IDC_ROUTE_DOWN)->EnableWindow(selected >= 0 && selected + 1 < m_via.GetCount());
    ShowTotal(Typed());
}

/// The chosen text stands in the field only after the notification.
void RouteDialog::OnEndChosen()
{
    for (CComboBox* const box : {&m_from, &m_to})
    {
        CString chosen;
        if (const int index = box->GetCurSel(); index >= 0)
        {
            box->GetLBText(index, chosen);
            box->SetWindowText(chosen);
        }
    }
    OnPlacesChanged();
}

void RouteDialog::OnSwap()
{
    const CString from = TextAt(IDC_ROUTE_FROM);
    m_from.SetWindowText(TextAt(IDC_ROUTE_TO));
    m_to.SetWindowText(from);
    CStringArray back;
    for (int i = m_via.GetCount() - 1; i >= 0; --i)
    {
        CString ident;
        m_via.GetText(i, ident);
        back.Add(ident);
    }
    m_via.ResetContent();
    for (int i = 0; i < static_cast<int>(back.GetSize()); ++i)
        m_via.AddString(back[i]);
    OnPlacesChanged();
}

void RouteDialog::OnAdd()
{
    CString ident;
    m_place.GetWindowText(ident);
    if (const int chosen = m_place.GetCurSel(); chosen >= 0)
        m_place.GetLBText(chosen, ident);
    if (FindPlace(m_data.places, ident.GetString()) == nullptr)
        return;
    const int selected = m_via.GetCurSel();
    m_via.SetCurSel(m_via.InsertString(selected >= 0 ? selected + 1 : -1, ident));
    OnPlacesChanged();
}

void RouteDialog::OnRemove()
{
    const int selected = m_via.GetCurSel();
    if (selected < 0)
        return;
    m_via.DeleteString(static_cast<UINT>(selected));
    m_via.SetCurSel(std::min(selected, m_via.GetCount() - 1));
    OnPlacesChanged();
}

void RouteDialog::MoveSelected(int by)
{
    const int selected = m_via.GetCurSel();
    const int target = selected + by;
    if (selected < 0 || target < 0 || target >= m_via.GetCount())
        return;
    CString ident;
    m_via.GetText(selected, ident);
    m_via.DeleteString(static_cast<UINT>(selected));
    m_via.SetCurSel(m_via.InsertString(target, ident));
    OnPlacesChanged();
}

void RouteDialog::OnUp()
{
    MoveSelected(-1);
}

void RouteDialog::OnDown()
{
    MoveSelected(1);
}

void RouteDialog::ShowTab()
{
    const bool isRouting = m_tab.GetCurSel() != 1;
    for (const UINT id : kRoutingPage)
        GetDlgItem(static_cast<int>(id))->ShowWindow(isRouting ? SW_SHOW : SW_HIDE);
    for (const UINT id : kAvoidPage)
        GetDlgItem(static_cast<int>(id))->ShowWindow(isRouting ? SW_HIDE : SW_SHOW);
}

bool RouteDialog::IsOnTab(int id) const
{
    const auto is = [id](UINT one)
    {
        return static_cast<int>(one) == id;
    };
    return std::any_of(kRoutingPage.begin(), kRoutingPage.end(), is) ||
           std::any_of(kAvoidPage.begin(), kAvoidPage.end(), is);
}

/// No call names the color of a tab control's body, which depends on the theme: it is painted and looked at.
void RouteDialog::TakeTabColor()
{
    CRect body;
    m_tab.GetClientRect(&body);
    CClientDC screen(&m_tab);
    CDC memory;
    CBitmap bitmap;
    memory.CreateCompatibleDC(&screen);
    bitmap.CreateCompatibleBitmap(&screen, body.Width(), body.Height());
    CBitmap* const former = memory.SelectObject(&bitmap);
    memory.FillSolidRect(&body, GetSysColor(COLOR_3DFACE));
    m_tab.SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory.m_hDC), PRF_CLIENT);
    m_tab.AdjustRect(FALSE, &body);
    m_tabColor = memory.GetPixel(body.left + 2, body.top + 2);
    memory.SelectObject(former);
    m_tabBrush.CreateSolidBrush(m_tabColor);
}

HBRUSH RouteDialog::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const HBRUSH brush = PlannerDialog::OnCtlColor(dc, control, type);
    if (type != CTLCOLOR_STATIC || m_tab.m_hWnd == nullptr || !IsOnTab(control->GetDlgCtrlID()))
        return brush;
    if (m_tabColor == CLR_INVALID)
        TakeTabColor();
    dc->SetBkColor(m_tabColor);
    return m_tabBrush;
}

void RouteDialog::OnTab(NMHDR*, LRESULT* result)
{
    ShowTab();
    UpdateLayout(false);
    *result = 0;
}

} // namespace vorn::planner
