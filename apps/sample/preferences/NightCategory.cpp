#include "apps/sample/preferences/NightCategory.h"

#include "apps/sample/preferences/core/Entries.h"
#include "apps/sample/preferences/resource.h"

namespace vorn::preferences
{

namespace
{

constexpr const char* kColors = "Colors";
constexpr std::array<const char*, 3> kKeys = {"NVRedScale", "NVGreenScale", "NVBlueScale"};

constexpr std::array kTips = {
    Tip{IDC_OPT_SCALE + 1, 948},
    Tip{IDC_OPT_SCALE + 3, 949},
    Tip{IDC_OPT_SCALE + 5, 950},
    Tip{IDC_OPT_NIGHT_PREVIEW, 953},
};

UINT LabelOf(std::size_t component)
{
    return IDC_OPT_SCALE + 2 * static_cast<UINT>(component);
}

UINT FieldOf(std::size_t component)
{
    return LabelOf(component) + 1;
}

} // namespace

NightCategory::NightCategory() : Category("Chart|Night", IDC_OPT_NIGHT_FIRST, kTips)
{
}

void NightCategory::Fill()
{
    const NightFactors factors = StoredFactors();
    for (std::size_t i = 0; i < kKeys.size(); ++i)
        SetText(FieldOf(i), FactorText(factors[i]));
    m_preview.SubclassDlgItem(IDC_OPT_NIGHT_PREVIEW, &Dialog());
    ShowPreview();
}

void NightCategory::Arrange(Form& form, Form::Pane& area)
{
    form.Align({LabelOf(0), LabelOf(1), LabelOf(2)});
    for (std::size_t i = 0; i < kKeys.size(); ++i)
        area << (form.Line() << form.Fixed(LabelOf(i)) << form.Fixed(FieldOf(i)));
    area << form.Wide(IDC_OPT_NIGHT_PREVIEW, 120);
}

std::optional<Fault> NightCategory::Check() const
{
    for (std::size_t i = 0; i < kKeys.size(); ++i)
    {
        if (!Factor(TextAt(FieldOf(i))))
            return Fault{FieldOf(i), "A factor is a number from 0 to 1, such as 0.4."};
    }
    return std::nullopt;
}

bool NightCategory::Store()
{
    bool stored = false;
    const NightFactors inForce = StoredFactors();
    for (std::size_t i = 0; i < kKeys.size(); ++i)
    {
        const std::optional<double> factor = Factor(TextAt(FieldOf(i)));
        if (!factor || *factor == inForce[i])
            continue;
        App().WriteSettingString(kColors, kKeys[i], FactorText(*factor).c_str());
        stored = true;
    }
    if (stored)
        ForgetNVScales();
    return stored;
}

bool NightCategory::OnControl(UINT id, UINT code)
{
    ShowPreview();
    return Category::OnControl(id, code);
}

void NightCategory::ShowPreview()
{
    NightFactors factors = StoredFactors();
    for (std::size_t i = 0; i < kKeys.size(); ++i)
        factors[i] = Factor(TextAt(FieldOf(i))).value_or(factors[i]);
    m_preview.Show(ColorsOf(COLORSTATE_DAY), factors);
}

} // namespace vorn::preferences
