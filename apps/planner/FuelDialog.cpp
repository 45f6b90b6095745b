#include "apps/planner/FuelDialog.h"

#include "apps/planner/resource.h"

namespace vorn::planner
{

namespace
{

constexpr COLORREF kGood = RGB(0x1B, 0x7A, 0x43);
constexpr COLORREF kBad = RGB(0xB3, 0x26, 0x1E);

struct Field
{
    UINT label;
    UINT id;
    double Plan::*value;
    short decimals;
    const char* suffix;
};

constexpr std::array kFieldTable = {
    Field{IDC_FUEL_SPEED_LABEL, IDC_FUEL_SPEED, &Plan::speed, 0, " kt"},
    Field{IDC_FUEL_FLOW_LABEL, IDC_FUEL_FLOW, &Plan::flow, 1, " gal/h"},
    Field{IDC_FUEL_TAXI_LABEL, IDC_FUEL_TAXI, &Plan::taxi, 1, " gal"},
    Field{IDC_FUEL_CONTINGENCY_LABEL, IDC_FUEL_CONTINGENCY, &Plan::contingency, 1, " %"},
    Field{IDC_FUEL_RESERVE_LABEL, IDC_FUEL_RESERVE, &Plan::reserve, 0, " min"},
    Field{IDC_FUEL_ON_BOARD_LABEL, IDC_FUEL_ON_BOARD, &Plan::onBoard, 1, " gal"},
};
constexpr std::size_t kOnBoard = 5;

constexpr std::array kTips = {
    Tip{IDC_FUEL_SPEED, 1190},       Tip{IDC_FUEL_FLOW, 1254},      Tip{IDC_FUEL_TAXI, 1250},
    Tip{IDC_FUEL_CONTINGENCY, 1263}, Tip{IDC_FUEL_RESERVE, 1253},   Tip{IDC_FUEL_ON_BOARD, 1257},
    Tip{IDC_FUEL_FULL, 1258},        Tip{IDC_FUEL_ALTERNATE, 1602}, Tip{IDC_FUEL_SECOND, 1603},
    Tip{IDC_FUEL_LIST, 1261},        Tip{IDC_FUEL_STATE, 1270},
};

} // namespace

BEGIN_MESSAGE_MAP(FuelDialog, PlannerDialog)
ON_CONTROL_RANGE(EN_CHANGE, IDC_FUEL_SPEED, IDC_FUEL_ON_BOARD, &FuelDialog::OnNumber)
ON_CBN_EDITCHANGE(IDC_FUEL_ALTERNATE, &FuelDialog::OnChanged)
ON_CBN_EDITCHANGE(IDC_FUEL_SECOND, &FuelDialog::OnChanged)
ON_CBN_SELCHANGE(IDC_FUEL_ALTERNATE, &FuelDialog::OnPlaceChosen)
ON_CBN_SELCHANGE(IDC_FUEL_SECOND, &FuelDialog::OnPlaceChosen)
ON_BN_CLICKED(IDC_FUEL_FULL, &FuelDialog::OnFull)
ON_WM_SIZE()
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

FuelDialog::FuelDialog(PlannerData& data, CWnd* parent) : PlannerDialog(IDD_FUEL, data, parent, "FuelDialog")
{
}

std::span<const Tip> FuelDialog::Tips() const
{
    return kTips;
}

BOOL FuelDialog::OnInitDialog()
{
    const BOOL result = PlannerDialog::OnInitDialog();
    SizeColumns();
    return result;
}

void FuelDialog::Fill()
{
    static_assert(kFieldTable.size() == kFields);
    for (std::size_t i = 0; i < kFields; ++i)
    {
        const Field& field = kFieldTable[i];
        TakeNumber(m_fields[i], *this, field.id, field.decimals, m_data.plan.*field.value, field.suffix);
    }
    m_alternate.SubclassDlgItem(IDC_FUEL_ALTERNATE, this);
    m_second.SubclassDlgItem(IDC_FUEL_SECOND, this);
    FillWithPlaces(m_alternate, m_data.plan.alternate);
    FillWithPlaces(m_second, m_data.plan.secondAlternate);
    m_list.SubclassDlgItem(IDC_FUEL_LIST, this);
    m_list.SetExtendedStyle(LVS_EX_FULLROWSELECT);
    m_list.InsertColumn(0, "Fuel", LVCFMT_LEFT, 60);
    m_list.InsertColumn(1, "Gallons", LVCFMT_RIGHT, 60);
    m_filled = true;
    ShowSums();
}

void FuelDialog::Arrange(Form& form)
{
    form.Align({IDC_FUEL_SPEED_LABEL, IDC_FUEL_FLOW_LABEL, IDC_FUEL_TAXI_LABEL, IDC_FUEL_CONTINGENCY_LABEL,
                IDC_FUEL_RESERVE_LABEL, IDC_FUEL_ON_BOARD_LABEL, IDC_FUEL_ALTERNATE_LABEL, IDC_FUEL_SECOND_LABEL});
    CPane fields = form.Stack(PercentWidth, 45);
    for (const Field& field : kFieldTable)
        fields << form.Field(field.label, field.id, 46);
    // The button ends where the fields do.
    fields << form.Buttons({IDC_FUEL_FULL}) << form.Field(IDC_FUEL_ALTERNATE_LABEL, IDC_FUEL_ALTERNATE, 46)
           << form.Field(IDC_FUEL_SECOND_LABEL, IDC_FUEL_SECOND, 46) << itemSpace(Vertical);
    CPane middle = pane(Horizontal, Greedy, form.X(6));
    middle << fields << item(IDC_FUEL_LIST, PercentWidth, 55, 0, form.X(110), form.Y(80));
    CPane bottom = form.Line();
    bottom << form.Wide(IDC_FUEL_STATE, 90) << form.Fixed(IDOK) << form.Fixed(IDCANCEL);
    CreateRoot(Vertical, form.Y(5)) << middle << bottom;
}

Plan FuelDialog::Typed() const
{
    Plan plan = m_data.plan;
    for (std::size_t i = 0; i < kFields; ++i)
        plan.*kFieldTable[i].value = m_fields[i].GetValue();
    plan.alternate = TextAt(IDC_FUEL_ALTERNATE);
    plan.secondAlternate = TextAt(IDC_FUEL_SECOND);
    return plan;
}

bool FuelDialog::Take()
{
    m_data.plan = Typed();
    m_data.plan.weights[kFuel] = m_data.plan.onBoard * kAvgasWeight;
    return true;
}

void FuelDialog::OnChanged()
{
    if (m_filled)
        ShowSums();
}

void FuelDialog::OnNumber(UINT)
{
    OnChanged();
}

void FuelDialog::OnFull()
{
    m_fields[kOnBoard].SetValue(kTankCapacity);
    ShowSums();
}

void FuelDialog::OnPlaceChosen()
{
    for (CComboBox* const box : {&m_alternate, &m_second})
    {
        CString chosen;
        if (const int index = box->GetCurSel(); index >= 0)
        {
            box->GetLBText(index, chosen);
            box->SetWindowText(chosen);
        }
    }
    ShowSums();
}

void FuelDialog::FillList(const FuelSums& sums)
{
    struct Line
    {
        const char* name;
        double gallons;
    };
    const std::array lines = {
        Line{"Taxi", sums.taxi},
        Line{"Trip", sums.trip},
        Line{"Contingency", sums.contingency},
        Line{"Alternate", sums.alternate},
        Line{"Final reserve", sums.reserve},
        Line{"Required", sums.required},
        Line{"On board", sums.onBoard},
        Line{sums.extra < 0 ? "Missing" : "Extra", std::abs(sums.extra)},
    };
    for (int i = 0; i < static_cast<int>(lines.size()); ++i)
    {
        const Line& line = lines[static_cast<std::size_t>(i)];
        if (i >= m_list.GetItemCount())
            m_list.InsertItem(i, line.name);
        m_list.SetItemText(i, 0, line.name);
        m_list.SetItemText(i, 1, NumberText(line.gallons, 1).c_str());
    }
}

void FuelDialog::ShowSums()
{
    const FuelSums sums = FuelFor(Typed(), m_data.places);
    FillList(sums);
    m_lacks = sums.extra < 0;
    const std::string state = m_lacks ? NumberText(-sums.extra, 1) + " gal are missing."
                                      : "Endurance " + HoursText(sums.enduranceHours) + ".";
    SetDlgItemText(IDC_FUEL_STATE, state.c_str());
    GetDlgItem(IDC_FUEL_STATE)->Invalidate();
}

void FuelDialog::SizeColumns()
{
    if (m_list.m_hWnd == nullptr)
        return;
    CRect client;
    m_list.GetClientRect(&client);
    const int names = client.Width() * 3 / 5;
    if (m_list.GetColumnWidth(0) == names)
        return; // setting a width paints the list, also when it is the present one
    m_list.SetColumnWidth(0, names);
    m_list.SetColumnWidth(1, client.Width() - names);
}

void FuelDialog::OnSize(UINT type, int cx, int cy)
{
    PlannerDialog::OnSize(type, cx, cy);
    SizeColumns();
}

HBRUSH FuelDialog::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const HBRUSH brush = PlannerDialog::OnCtlColor(dc, control, type);
    if (control->GetDlgCtrlID() == IDC_FUEL_STATE)
        dc->SetTextColor(m_lacks ? kBad : kGood);
    return brush;
}

} // namespace vorn::planner
