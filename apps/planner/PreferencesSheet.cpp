#include "apps/planner/PreferencesSheet.h"

#include "apps/planner/resource.h"

#include <span>
#include <utility>

namespace vorn::planner
{

namespace
{

constexpr const char* kGeneral = "General";
constexpr int kMostDecimals = 4;
constexpr UINT kApplyNow = 0x3021;

struct UnitChoice
{
    const char* key; // in section "Units"
    int defaultUnit;
    std::span<const int> units;
};

constexpr std::array<int, 3> kDistances = {UNIT_NM, UNIT_SM, UNIT_KM};
constexpr std::array<int, 4> kSpeeds = {UNIT_KTS, UNIT_MPH, UNIT_KPH, UNIT_MPS};
constexpr std::array<int, 3> kShortDistances = {UNIT_FT, UNIT_M, UNIT_YD};
constexpr std::array<int, 2> kMasses = {UNIT_LBS, UNIT_KG};
constexpr std::array<int, 2> kTemperatures = {UNIT_F, UNIT_C};
constexpr std::array<int, 3> kPressures = {UNIT_INHG, UNIT_HPA, UNIT_MMHG};

constexpr std::array kUnits = {
    UnitChoice{"Distance", UNIT_NM, kDistances},       UnitChoice{"Speed", UNIT_KTS, kSpeeds},
    UnitChoice{"ShortDist", UNIT_FT, kShortDistances}, UnitChoice{"Mass", UNIT_LBS, kMasses},
    UnitChoice{"Temp", UNIT_F, kTemperatures},         UnitChoice{"Pressure", UNIT_INHG, kPressures},
};

VornCommonApp& App()
{
    return *VornCommonApp::Inst();
}

UINT LabelOf(std::size_t unit)
{
    return IDC_PREF_UNIT + 2 * static_cast<UINT>(unit);
}

UINT BoxOf(std::size_t unit)
{
    return LabelOf(unit) + 1;
}

} // namespace

GeneralPage::GeneralPage() : PlannerPage(IDD_PREF_GENERAL)
{
}

void GeneralPage::Fill()
{
    Check(IDC_PREF_TIPS, App().GetSettingInt(kGeneral, "Show Dialog Tips", 1) != 0);
    Check(IDC_PREF_WARNING, ReadSwitch(kWarns, true));
    Check(IDC_PREF_SECONDS, App().GetSettingInt(kGeneral, "Show seconds", 0) != 0);
    m_decimals.SubclassDlgItem(IDC_PREF_DECIMALS, this);
    m_decimals.SetAttributes(0, false);
    m_decimals.SetValue(App().GetSettingInt(kGeneral, "LatLonPrecMinutes", 1));
}

void GeneralPage::Arrange(Form& form)
{
    CreateRoot(Vertical, form.Y(5)) << form.Fixed(IDC_PREF_TIPS) << form.Fixed(IDC_PREF_WARNING)
                                    << form.Fixed(IDC_PREF_SECONDS)
                                    << (form.Line()
                                        << form.Fixed(IDC_PREF_DECIMALS_LABEL) << form.Fixed(IDC_PREF_DECIMALS))
                                    << itemSpace(Vertical);
}

BOOL GeneralPage::OnApply()
{
    App().WriteSettingInt(kGeneral, "Show Dialog Tips", IsChecked(IDC_PREF_TIPS) ? 1 : 0);
    WriteSwitch(kWarns, IsChecked(IDC_PREF_WARNING));
    App().WriteSettingInt(kGeneral, "Show seconds", IsChecked(IDC_PREF_SECONDS) ? 1 : 0);
    const int decimals = std::clamp(static_cast<int>(m_decimals.GetValue()), 0, kMostDecimals);
    App().WriteSettingInt(kGeneral, "LatLonPrecMinutes", decimals);
    return PlannerPage::OnApply();
}

UnitsPage::UnitsPage() : PlannerPage(IDD_PREF_UNITS)
{
}

void UnitsPage::Fill()
{
    for (std::size_t i = 0; i < kUnits.size(); ++i)
    {
        const UnitChoice& choice = kUnits[i];
        auto& box = static_cast<CComboBox&>(*GetDlgItem(static_cast<int>(BoxOf(i))));
        const int inForce = App().GetSettingInt("Units", choice.key, choice.defaultUnit);
        for (const int unit : choice.units)
        {
            const int at = box.AddString(gUnitInfo[unit][0]);
            if (unit == inForce)
                box.SetCurSel(at);
        }
    }
    ShowExample();
}

void UnitsPage::Arrange(Form& form)
{
    form.Align({LabelOf(0), LabelOf(1), LabelOf(2), LabelOf(3), LabelOf(4), LabelOf(5)});
    CPane root = CreateRoot(Vertical, form.Y(4));
    for (std::size_t i = 0; i < kUnits.size(); ++i)
        root << form.Field(LabelOf(i), BoxOf(i), 80);
    root << itemSpace(Vertical) << item(IDC_PREF_EXAMPLE, FixedHeight, 0, 0, form.X(120));
}

BOOL UnitsPage::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const BOOL done = PlannerPage::OnCommand(wParam, lParam);
    if (lParam != 0 && HIWORD(wParam) == CBN_SELCHANGE)
        ShowExample();
    return done;
}

/// A hundred miles at a hundred knots, in the units chosen.
void UnitsPage::ShowExample()
{
    CString text = "For example";
    const std::array<double, 2> examples = {100, 100};
    for (std::size_t i = 0; i < examples.size(); ++i)
    {
        const auto& box = static_cast<CComboBox&>(*GetDlgItem(static_cast<int>(BoxOf(i))));
        const int chosen = std::max(box.GetCurSel(), 0);
        const int unit = kUnits[i].units[static_cast<std::size_t>(chosen)];
        double value = examples[i];
        ConvertValue(&value, static_cast<UNIT>(kUnits[i].defaultUnit), static_cast<UNIT>(unit));
        text.AppendFormat("%s %.1f %s", i == 0 ? "" : " at", value, gUnitInfo[unit][1]);
    }
    SetDlgItemText(IDC_PREF_EXAMPLE, text);
}

BOOL UnitsPage::OnApply()
{
    for (std::size_t i = 0; i < kUnits.size(); ++i)
    {
        const auto& box = static_cast<CComboBox&>(*GetDlgItem(static_cast<int>(BoxOf(i))));
        if (const int chosen = box.GetCurSel(); chosen >= 0)
            App().WriteSettingInt("Units", kUnits[i].key, kUnits[i].units[static_cast<std::size_t>(chosen)]);
    }
    GetConversionBoy()->ReadUnits();
    return PlannerPage::OnApply();
}

ChartPrefPage::ChartPrefPage() : PlannerPage(IDD_PREF_CHART)
{
}

void ChartPrefPage::Fill()
{
    Check(IDC_PREF_NIGHT, IsNightVision());
    Check(IDC_PREF_POSITION_TIP, ReadSwitch(kPositionTip, true));
}

void ChartPrefPage::Arrange(Form& form)
{
    CreateRoot(Vertical, form.Y(5)) << form.Fixed(IDC_PREF_NIGHT) << form.Fixed(IDC_PREF_POSITION_TIP)
                                    << item(IDC_PREF_TIP_NOTE, FixedHeight, 0, 0, -1) << itemSpace(Vertical);
}

BOOL ChartPrefPage::OnApply()
{
    ColorContext::Instance()->SetCurrentState(IsChecked(IDC_PREF_NIGHT) ? COLORSTATE_NIGHT : COLORSTATE_DAY);
    WriteSwitch(kPositionTip, IsChecked(IDC_PREF_POSITION_TIP));
    return PlannerPage::OnApply();
}

PreferencesSheet::PreferencesSheet(CWnd* parent, std::function<void()> changed)
    : LayoutPropertySheet(IDS_PREFERENCES, parent, 0, "Preferences", false), m_changed(std::move(changed))
{
    AddPage(&m_general);
    AddPage(&m_units);
    AddPage(&m_chart);
}

BOOL PreferencesSheet::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const BOOL done = LayoutPropertySheet::OnCommand(wParam, lParam);
    const UINT id = LOWORD(wParam);
    if ((id == IDOK || id == kApplyNow) && m_changed)
        m_changed();
    return done;
}

} // namespace vorn::planner
