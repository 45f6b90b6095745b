#include "apps/planner/WeightDialog.h"

#include "apps/planner/resource.h"

namespace vorn::planner
{

namespace
{

constexpr UINT kControlsAStation = 4;
constexpr UINT kLastStation = IDC_WEIGHT_STATION + kControlsAStation * kStations - 1;
constexpr COLORREF kGood = RGB(0x1B, 0x7A, 0x43);
constexpr COLORREF kBad = RGB(0xB3, 0x26, 0x1E);

constexpr std::array kTips = {
    Tip{IDC_WEIGHT_NAME, 1103},        Tip{IDC_WEIGHT_STATION + 1, 1142},  Tip{IDC_WEIGHT_STATION + 2, 1143},
    Tip{IDC_WEIGHT_STATION + 3, 1144}, Tip{IDC_WEIGHT_STATION + 5, 999},   Tip{IDC_WEIGHT_STATION + 6, 988},
    Tip{IDC_WEIGHT_STATION + 9, 993},  Tip{IDC_WEIGHT_STATION + 10, 988},  Tip{IDC_WEIGHT_STATION + 14, 988},
    Tip{IDC_WEIGHT_STATION + 13, 998}, Tip{IDC_WEIGHT_STATION + 18, 1241}, Tip{IDC_WEIGHT_STATION + 17, 1257},
    Tip{IDC_WEIGHT_ZERO_FUEL, 1004},   Tip{IDC_WEIGHT_TAKEOFF, 1008},      Tip{IDC_WEIGHT_LANDING, 1010},
    Tip{IDC_WEIGHT_GRAPH, 1016},       Tip{IDC_WEIGHT_STATE, 1015},
};

UINT LabelOf(int station)
{
    return IDC_WEIGHT_STATION + kControlsAStation * static_cast<UINT>(station);
}
UINT WeightOf(int station)
{
    return LabelOf(station) + 1;
}
UINT ArmOf(int station)
{
    return LabelOf(station) + 2;
}
UINT MomentOf(int station)
{
    return LabelOf(station) + 3;
}

std::string LoadText(const Load& load)
{
    return NumberText(load.weight, 0) + " lb at " + NumberText(load.Arm(), 1) + " in";
}

} // namespace

BEGIN_MESSAGE_MAP(WeightDialog, PlannerDialog)
ON_CONTROL_RANGE(EN_CHANGE, IDC_WEIGHT_STATION, kLastStation, &WeightDialog::OnNumber)
ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

WeightDialog::WeightDialog(PlannerData& data, CWnd* parent) : PlannerDialog(IDD_WEIGHT, data, parent, "WeightDialog")
{
}

std::span<const Tip> WeightDialog::Tips() const
{
    return kTips;
}

void WeightDialog::Fill()
{
    m_name.SubclassDlgItem(IDC_WEIGHT_NAME, this);
    m_name.SetWindowText(m_data.plan.aircraft.c_str());
    m_graph.SubclassDlgItem(IDC_WEIGHT_GRAPH, this);
    for (int station = kEmpty; station < kStations; ++station)
    {
        const auto index = static_cast<std::size_t>(station);
        TakeNumber(m_weights[index], *this, WeightOf(station), 1, m_data.plan.weights[index], " lb");
        TakeNumber(m_arms[index], *this, ArmOf(station), 2, m_data.plan.arms[index], " in");
    }
    m_filled = true;
    ShowSums();
}

void WeightDialog::Arrange(Form& form)
{
    form.Align({LabelOf(kEmpty), LabelOf(kFrontSeats), LabelOf(kRearSeats), LabelOf(kBaggage), LabelOf(kFuel)});
    form.Align({IDC_WEIGHT_ZERO_FUEL_LABEL, IDC_WEIGHT_TAKEOFF_LABEL, IDC_WEIGHT_LANDING_LABEL});

    CPane loading = form.Group(IDC_WEIGHT_GROUP, Vertical, FixedWidth);
    for (int station = kEmpty; station < kStations; ++station)
    {
        CPane line = form.Line();
        line << form.Fixed(LabelOf(station)) << form.Fixed(WeightOf(station)) << form.Fixed(ArmOf(station))
             << item(MomentOf(station), FixedHeight | AlignVCenter, 0, 0, form.X(52));
        loading << line;
    }
    loading << itemSpace(Vertical);

    CPane result = form.Group(IDC_WEIGHT_RESULT_GROUP, Vertical);
    result << form.Large(IDC_WEIGHT_GRAPH, 110, 70);
    const std::array<std::array<UINT, 2>, 3> sums = {{{IDC_WEIGHT_ZERO_FUEL_LABEL, IDC_WEIGHT_ZERO_FUEL},
                                                      {IDC_WEIGHT_TAKEOFF_LABEL, IDC_WEIGHT_TAKEOFF},
                                                      {IDC_WEIGHT_LANDING_LABEL, IDC_WEIGHT_LANDING}}};
    for (const auto& [label, value] : sums)
        result << form.Field(label, value, 90);

    CPane middle = pane(Horizontal, Greedy, form.X(6));
    middle << loading << result;
    CPane bottom = form.Line();
    bottom << form.Wide(IDC_WEIGHT_STATE, 80) << form.Fixed(IDOK) << form.Fixed(IDCANCEL);
    CreateRoot(Vertical, form.Y(5)) << form.Field(IDC_WEIGHT_NAME_LABEL, IDC_WEIGHT_NAME) << middle << bottom;
}

Plan WeightDialog::Typed() const
{
    Plan plan = m_data.plan;
    for (std::size_t i = 0; i < m_weights.size(); ++i)
    {
        plan.arms[i] = m_arms[i].GetValue();
        if (i != kFuel)
            plan.weights[i] = m_weights[i].GetValue();
    }
    plan.weights[kFuel] = plan.onBoard * kAvgasWeight;
    return plan;
}

bool WeightDialog::Take()
{
    const std::string name = TextAt(IDC_WEIGHT_NAME).GetString();
    m_data.plan = Typed();
    m_data.plan.aircraft = name;
    return true;
}

void WeightDialog::OnNumber(UINT)
{
    if (m_filled)
        ShowSums();
}

void WeightDialog::ShowSums()
{
    const Plan plan = Typed();
    const LoadingSums sums = LoadingOf(plan, FuelFor(plan, m_data.places).trip);
    if (m_weights[kFuel].GetValue() != plan.weights[kFuel])
        m_weights[kFuel].SetValue(plan.weights[kFuel]);
    for (int station = kEmpty; station < kStations; ++station)
    {
        const auto index = static_cast<std::size_t>(station);
        const std::string moment = NumberText(plan.weights[index] * plan.arms[index], 0) + " lb in";
        SetDlgItemText(static_cast<int>(MomentOf(station)), moment.c_str());
    }
    SetDlgItemText(IDC_WEIGHT_ZERO_FUEL, LoadText(sums.zeroFuel).c_str());
    SetDlgItemText(IDC_WEIGHT_TAKEOFF, LoadText(sums.takeoff).c_str());
    SetDlgItemText(IDC_WEIGHT_LANDING, LoadText(sums.landing).c_str());
    m_fault = LoadingFault(sums);
    const std::string state =
        m_fault.empty() ? NumberText(kTakeoffLimit - sums.takeoff.weight, 0) + " lb below the limit." : m_fault;
    SetDlgItemText(IDC_WEIGHT_STATE, state.c_str());
    m_graph.Show(sums);
}

HBRUSH WeightDialog::OnCtlColor(CDC* dc, CWnd* control, UINT type)
{
    const HBRUSH brush = PlannerDialog::OnCtlColor(dc, control, type);
    if (control->GetDlgCtrlID() == IDC_WEIGHT_STATE)
        dc->SetTextColor(m_fault.empty() ? kGood : kBad);
    return brush;
}

} // namespace vorn::planner
