#include "apps/sample/preferences/AltitudesCategory.h"

#include "apps/sample/preferences/core/Entries.h"
#include "apps/sample/preferences/resource.h"

#include <array>

namespace vorn::preferences
{

namespace
{

constexpr const char* kAltitude = "Altitude";
constexpr const char* kFlightLevel = "Flight Level";
constexpr int kUsualFeet = 18000;
constexpr int kMostFeet = 100000;
constexpr int kStep = 100; // from one flight level to the next

constexpr std::array kTips = {
    Tip{IDC_OPT_LEVEL, 1308},
    Tip{IDC_OPT_LEVEL_EXAMPLE, 1308},
};

int InForce()
{
    return App().GetSettingInt(kAltitude, kFlightLevel, kUsualFeet);
}

} // namespace

AltitudesCategory::AltitudesCategory() : Category("Units|Altitudes", IDC_OPT_ALTITUDES_FIRST, kTips)
{
}

void AltitudesCategory::Fill()
{
    SetText(IDC_OPT_LEVEL, std::to_string(InForce()));
    ShowExample();
}

void AltitudesCategory::Arrange(Form& form, Form::Pane& area)
{
    area << (form.Line() << form.Fixed(IDC_OPT_LEVEL_LABEL) << form.Fixed(IDC_OPT_LEVEL))
         << form.Wide(IDC_OPT_LEVEL_EXAMPLE, 120);
}

std::optional<int> AltitudesCategory::Level() const
{
    return WholeNumber(TextAt(IDC_OPT_LEVEL), 0, kMostFeet);
}

std::optional<Fault> AltitudesCategory::Check() const
{
    if (Level() || TextAt(IDC_OPT_LEVEL) == std::to_string(InForce()))
        return std::nullopt;
    return Fault{IDC_OPT_LEVEL, "Flight levels begin at a whole number of feet from 0 to 100,000."};
}

bool AltitudesCategory::Store()
{
    const std::optional<int> feet = Level();
    return feet && StoreNumber(kAltitude, kFlightLevel, kUsualFeet, *feet);
}

bool AltitudesCategory::OnControl(UINT id, UINT code)
{
    ShowExample();
    return Category::OnControl(id, code);
}

/// The last altitude before the first level, and that level.
void AltitudesCategory::ShowExample() const
{
    CString text;
    if (const std::optional<int> feet = Level())
    {
        const int first = (*feet + kStep - 1) / kStep;
        text.Format("For example %s, then FL%03d", AltToString((first - 1) * kStep).GetString(), first);
    }
    SetText(IDC_OPT_LEVEL_EXAMPLE, text.GetString());
}

} // namespace vorn::preferences
