#include "apps/sample/preferences/PositionsCategory.h"

#include "apps/planner/GeneralSettings.h"
#include "apps/sample/preferences/core/Entries.h"
#include "apps/sample/preferences/resource.h"

namespace vorn::preferences
{

using planner::kMostDecimals;

namespace
{

constexpr const char* kGeneral = "General";
constexpr const char* kShowSeconds = "Show seconds";

constexpr std::array kTips = {
    Tip{IDC_OPT_SECONDS, 1328},
    Tip{IDC_OPT_MINUTE_DECIMALS, 1330},
    Tip{IDC_OPT_MINUTE_DECIMALS_SPIN, 1330},
    Tip{IDC_OPT_SECOND_DECIMALS, 1329},
    Tip{IDC_OPT_SECOND_DECIMALS_SPIN, 1329},
    Tip{IDC_OPT_POSITION_EXAMPLE, 1349},
};

/// The decimals of a position's last part.
struct Decimals
{
    UINT label;
    UINT field;
    UINT spin;
    const char* key;
    bool ofSeconds;
};

constexpr std::array kDecimals = {
    Decimals{IDC_OPT_MINUTE_DECIMALS_LABEL, IDC_OPT_MINUTE_DECIMALS, IDC_OPT_MINUTE_DECIMALS_SPIN, "LatLonPrecMinutes",
             false},
    Decimals{IDC_OPT_SECOND_DECIMALS_LABEL, IDC_OPT_SECOND_DECIMALS, IDC_OPT_SECOND_DECIMALS_SPIN, "LatLonPrecSeconds",
             true},
};

int InForce(const Decimals& decimals)
{
    return App().GetSettingInt(kGeneral, decimals.key, 1);
}

} // namespace

PositionsCategory::PositionsCategory(const Context& context)
    : Category("Units|Positions", IDC_OPT_POSITIONS_FIRST, kTips), m_context(context)
{
}

void PositionsCategory::Fill()
{
    SetCheck(IDC_OPT_SECONDS, App().GetSettingInt(kGeneral, kShowSeconds, 0) != 0);
    for (std::size_t i = 0; i < kDecimals.size(); ++i)
    {
        m_spins[i].SubclassDlgItem(kDecimals[i].spin, &Dialog());
        m_spins[i].SetBuddy(&Control(kDecimals[i].field));
        m_spins[i].SetRange32(0, kMostDecimals);
        SetText(kDecimals[i].field, std::to_string(InForce(kDecimals[i])));
    }
    ShowState();
    ShowExample();
}

void PositionsCategory::Arrange(Form& form, Form::Pane& area)
{
    form.Align({IDC_OPT_MINUTE_DECIMALS_LABEL, IDC_OPT_SECOND_DECIMALS_LABEL});
    area << form.Whole(IDC_OPT_SECONDS);
    for (const Decimals& decimals : kDecimals)
        area << (form.Line() << form.Fixed(decimals.label)
                             << (form.Joined() << form.Fixed(decimals.field) << form.Fixed(decimals.spin)));
    area << form.Wide(IDC_OPT_POSITION_EXAMPLE, 120);
}

std::optional<Fault> PositionsCategory::Check() const
{
    for (const Decimals& decimals : kDecimals)
    {
        if (!WholeNumber(TextAt(decimals.field), 0, std::max(kMostDecimals, InForce(decimals))))
            return Fault{decimals.field, "The number of decimals is a whole number from 0 to 4."};
    }
    return std::nullopt;
}

bool PositionsCategory::Store()
{
    bool stored = StoreNumber(kGeneral, kShowSeconds, 0, IsChecked(IDC_OPT_SECONDS) ? 1 : 0);
    for (const Decimals& decimals : kDecimals)
    {
        const std::optional<int> number = WholeNumber(TextAt(decimals.field), 0, INT_MAX);
        stored = (number && StoreNumber(kGeneral, decimals.key, 1, *number)) || stored;
    }
    return stored;
}

bool PositionsCategory::OnControl(UINT id, UINT code)
{
    if (id == IDC_OPT_SECONDS)
        ShowState();
    ShowExample();
    return Category::OnControl(id, code);
}

/// Only the decimals that count can be changed.
void PositionsCategory::ShowState() const
{
    for (const Decimals& decimals : kDecimals)
    {
        const BOOL counts = decimals.ofSeconds == IsChecked(IDC_OPT_SECONDS);
        for (const UINT id : {decimals.label, decimals.field, decimals.spin})
            Control(id).EnableWindow(counts);
    }
}

/// The middle of the chart as it will be written.
void PositionsCategory::ShowExample() const
{
    const LatLon center = m_context.chartCenter ? m_context.chartCenter() : LatLon();
    const bool seconds = IsChecked(IDC_OPT_SECONDS);
    const std::optional<int> decimals = WholeNumber(TextAt(kDecimals[seconds ? 1 : 0].field), 0, kMostDecimals);
    CString text;
    if (decimals)
        text = "For example " + LatLonToString(center.Lat(), true, seconds, *decimals) + "  " +
               LatLonToString(center.Lon(), false, seconds, *decimals);
    SetText(IDC_OPT_POSITION_EXAMPLE, text.GetString());
}

} // namespace vorn::preferences
