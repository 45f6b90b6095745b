#include "apps/planner/PreferencesSheet.h"

#include "apps/planner/GeneralSettings.h"
#include "apps/planner/StoredValue.h"
#include "apps/planner/UnitChoices.h"
#include "apps/planner/resource.h"

#include <utility>

namespace vorn::planner
{

namespace
{

constexpr const char* kGeneral = "General";
constexpr UINT kApplyNow = 0x3021;

/// The kinds of quantity on the page: fuel has its own dialog.
constexpr std::array<std::size_t, 6> kKinds = {0, 1, 2, 4, 5, 6};

const UnitChoice& Kind(std::size_t row)
{
    return UnitChoices()[kKinds[row]];
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
    Check(IDC_PREF_TIPS, ShowsTips());
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
    const double decimals = m_decimals.GetValue();
    if (decimals < 0 || decimals > kMostDecimals)
    {
        m_refusal.Show(*this, IDC_PREF_DECIMALS, "Not possible",
                       "The number of decimals is a whole number from 0 to 4.");
        return FALSE;
    }
    StoreTips(IsChecked(IDC_PREF_TIPS));
    WriteSwitch(kWarns, IsChecked(IDC_PREF_WARNING));
    StoreNumber(kGeneral, "Show seconds", 0, IsChecked(IDC_PREF_SECONDS) ? 1 : 0);
    StoreNumber(kGeneral, "LatLonPrecMinutes", 1, static_cast<int>(decimals));
    return PlannerPage::OnApply();
}

UnitsPage::UnitsPage() : PlannerPage(IDD_PREF_UNITS)
{
}

void UnitsPage::Fill()
{
    for (std::size_t i = 0; i < kKinds.size(); ++i)
    {
        auto& box = static_cast<CComboBox&>(*GetDlgItem(static_cast<int>(BoxOf(i))));
        for (const int unit : Kind(i).units)
        {
            const int at = box.AddString(UnitName(unit));
            if (unit == UnitInForce(Kind(i)))
                box.SetCurSel(at);
        }
    }
    ShowExample();
}

void UnitsPage::Arrange(Form& form)
{
    form.Align({LabelOf(0), LabelOf(1), LabelOf(2), LabelOf(3), LabelOf(4), LabelOf(5)});
    CPane root = CreateRoot(Vertical, form.Y(4));
    for (std::size_t i = 0; i < kKinds.size(); ++i)
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
        const int unit = Kind(i).units[static_cast<std::size_t>(chosen)];
        double value = examples[i];
        ConvertValue(&value, static_cast<UNIT>(Kind(i).defaultUnit), static_cast<UNIT>(unit));
        text.AppendFormat("%s %.1f %s", i == 0 ? "" : " at", value, gUnitInfo[unit][1]);
    }
    SetDlgItemText(IDC_PREF_EXAMPLE, text);
}

BOOL UnitsPage::OnApply()
{
    for (std::size_t i = 0; i < kKinds.size(); ++i)
    {
        const auto& box = static_cast<CComboBox&>(*GetDlgItem(static_cast<int>(BoxOf(i))));
        if (const int chosen = box.GetCurSel(); chosen >= 0)
            StoreUnit(Kind(i), Kind(i).units[static_cast<std::size_t>(chosen)]);
    }
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
    if (IsChecked(IDC_PREF_NIGHT) != IsNightVision()) // dusk stays dusk
        StoreColorState(IsChecked(IDC_PREF_NIGHT) ? COLORSTATE_NIGHT : COLORSTATE_DAY);
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
