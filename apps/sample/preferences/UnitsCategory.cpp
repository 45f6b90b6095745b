#include "apps/sample/preferences/UnitsCategory.h"

#include "apps/planner/UnitChoices.h"
#include "apps/sample/preferences/resource.h"

#include <array>

namespace vorn::preferences
{

using planner::StoreUnit;
using planner::UnitChoice;
using planner::UnitChoices;
using planner::UnitInForce;
using planner::UnitName;

namespace
{

constexpr std::array kTips = {
    Tip{IDC_OPT_UNIT + 1, 1303},     Tip{IDC_OPT_UNIT + 3, 1305}, Tip{IDC_OPT_UNIT + 5, 1304},
    Tip{IDC_OPT_UNIT + 7, 1311},     Tip{IDC_OPT_UNIT + 9, 1310}, Tip{IDC_OPT_UNIT + 11, 1313},
    Tip{IDC_OPT_UNIT + 13, 1314},    Tip{IDC_OPT_METRIC, 1323},   Tip{IDC_OPT_STANDARD, 1324},
    Tip{IDC_OPT_UNIT_EXAMPLE, 1325},
};

/// A part of the example's flight, in the order of the kinds.
struct ExampleValue
{
    const char* before;
    double value;
    UNIT unit;
};

constexpr std::array kExample = {
    ExampleValue{"", 150, UNIT_NM},       ExampleValue{" at ", 120, UNIT_KTS}, ExampleValue{", ", 6500, UNIT_FT},
    ExampleValue{", ", 30, UNIT_GAL},     ExampleValue{", ", 2300, UNIT_LBS},  ExampleValue{", ", 59, UNIT_F},
    ExampleValue{", ", 29.92, UNIT_INHG},
};

UINT LabelOf(std::size_t kind)
{
    return IDC_OPT_UNIT + 2 * static_cast<UINT>(kind);
}

UINT BoxOf(std::size_t kind)
{
    return LabelOf(kind) + 1;
}

CString ExampleText(const ExampleValue& example, int unit)
{
    const UNIT shown = unit == UNIT_AUTO ? example.unit : static_cast<UNIT>(unit);
    double value = example.value;
    ConvertValue(&value, example.unit, shown);
    CString text;
    text.Format("%s%.*f %s", example.before, shown == UNIT_INHG ? 2 : 0, value, gUnitInfo[shown][1]);
    return text;
}

} // namespace

UnitsCategory::UnitsCategory() : Category("Units", IDC_OPT_UNITS_FIRST, kTips)
{
}

void UnitsCategory::Fill()
{
    const std::span<const UnitChoice> kinds = UnitChoices();
    for (std::size_t kind = 0; kind < kinds.size(); ++kind)
    {
        for (const int unit : kinds[kind].units)
            AddChoice(BoxOf(kind), UnitName(unit), unit, UnitInForce(kinds[kind]));
    }
    ShowExample();
}

void UnitsCategory::Arrange(Form& form, Form::Pane& area)
{
    form.Align({LabelOf(0), LabelOf(1), LabelOf(2), LabelOf(3), LabelOf(4), LabelOf(5), LabelOf(6)});
    for (std::size_t kind = 0; kind < UnitChoices().size(); ++kind)
        area << form.Field(LabelOf(kind), BoxOf(kind), 80);
    area << (form.Line() << form.Fixed(IDC_OPT_METRIC) << form.Fixed(IDC_OPT_STANDARD))
         << form.Whole(IDC_OPT_UNIT_EXAMPLE);
}

bool UnitsCategory::Store()
{
    bool stored = false;
    const std::span<const UnitChoice> kinds = UnitChoices();
    for (std::size_t kind = 0; kind < kinds.size(); ++kind)
    {
        if (const std::optional<int> unit = Chosen(BoxOf(kind)))
            stored = StoreUnit(kinds[kind], *unit) || stored;
    }
    return stored;
}

bool UnitsCategory::OnControl(UINT id, UINT code)
{
    const std::span<const UnitChoice> kinds = UnitChoices();
    for (std::size_t kind = 0; code == BN_CLICKED && kind < kinds.size(); ++kind)
    {
        if (id == IDC_OPT_METRIC || id == IDC_OPT_STANDARD)
            Choose(BoxOf(kind), id == IDC_OPT_METRIC ? kinds[kind].metricUnit : kinds[kind].defaultUnit);
    }
    ShowExample();
    return Category::OnControl(id, code);
}

void UnitsCategory::ShowExample() const
{
    CString text = "For example ";
    for (std::size_t kind = 0; kind < kExample.size(); ++kind)
        text += ExampleText(kExample[kind], Chosen(BoxOf(kind)).value_or(UNIT_AUTO));
    SetText(IDC_OPT_UNIT_EXAMPLE, text.GetString());
}

} // namespace vorn::preferences
