#include "apps/sample/preferences/ChartCategory.h"

#include "apps/planner/GeneralSettings.h"
#include "apps/sample/preferences/resource.h"

namespace vorn::preferences
{

namespace
{

constexpr std::array kTips = {
    Tip{IDC_OPT_COLOR_SET, 932},
    Tip{IDC_OPT_COLOR_PREVIEW, 953},
};

struct ColorSet
{
    ColorState state;
    const char* text;
};

constexpr std::array kColorSets = {
    ColorSet{COLORSTATE_DAY, "Day"},
    ColorSet{COLORSTATE_DUSK, "Dusk"},
    ColorSet{COLORSTATE_NIGHT, "Night"},
};

} // namespace

ChartCategory::ChartCategory() : Category("Chart", IDC_OPT_CHART_FIRST, kTips)
{
}

void ChartCategory::Fill()
{
    for (const ColorSet& set : kColorSets)
        AddChoice(IDC_OPT_COLOR_SET, set.text, set.state, ColorContext::Instance()->GetCurrentState());
    m_preview.SubclassDlgItem(IDC_OPT_COLOR_PREVIEW, &Dialog());
    ShowPreview();
}

void ChartCategory::Arrange(Form& form, Form::Pane& area)
{
    area << form.Field(IDC_OPT_COLOR_SET_LABEL, IDC_OPT_COLOR_SET, 80) << form.Wide(IDC_OPT_COLOR_PREVIEW, 120);
}

bool ChartCategory::Store()
{
    const int inForce = ColorContext::Instance()->GetCurrentState();
    return planner::StoreColorState(Chosen(IDC_OPT_COLOR_SET).value_or(inForce));
}

bool ChartCategory::OnControl(UINT id, UINT code)
{
    ShowPreview();
    return Category::OnControl(id, code);
}

void ChartCategory::ShowPreview()
{
    m_preview.Show(ColorsOf(Chosen(IDC_OPT_COLOR_SET).value_or(COLORSTATE_DAY)), StoredFactors());
}

} // namespace vorn::preferences
