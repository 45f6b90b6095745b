#include "apps/sample/preferences/GeneralCategory.h"

#include "apps/planner/GeneralSettings.h"
#include "apps/sample/preferences/resource.h"

#include <array>

namespace vorn::preferences
{

namespace
{

constexpr const char* kStartup = "Startup";
constexpr const char* kShowDialog = "ShowDialog";
constexpr const char* kNoDisclaimer = "NoDisclaimer";

constexpr std::array kTips = {
    Tip{IDC_OPT_TIPS, 1791},
    Tip{IDC_OPT_START, 1793},
    Tip{IDC_OPT_DISCLAIMER, 1794},
};

// The startup dialog keeps its switch in the application's profile.
bool HidesDisclaimer()
{
    return AfxGetApp()->GetProfileInt(kStartup, kNoDisclaimer, 0) != 0;
}

bool StoreDisclaimer(bool hides)
{
    if (hides == HidesDisclaimer())
        return false;
    AfxGetApp()->WriteProfileInt(kStartup, kNoDisclaimer, hides ? 1 : 0);
    return true;
}

} // namespace

GeneralCategory::GeneralCategory() : Category("General", IDC_OPT_GENERAL_FIRST, kTips)
{
}

void GeneralCategory::Fill()
{
    SetCheck(IDC_OPT_TIPS, planner::ShowsTips());
    SetCheck(IDC_OPT_START, App().GetSettingInt(kStartup, kShowDialog, 1) != 0);
    SetCheck(IDC_OPT_DISCLAIMER, !HidesDisclaimer());
}

void GeneralCategory::Arrange(Form& form, Form::Pane& area)
{
    area << form.Whole(IDC_OPT_TIPS) << form.Whole(IDC_OPT_START) << form.Whole(IDC_OPT_DISCLAIMER);
}

bool GeneralCategory::Store()
{
    bool stored = planner::StoreTips(IsChecked(IDC_OPT_TIPS));
    stored = StoreNumber(kStartup, kShowDialog, 1, IsChecked(IDC_OPT_START) ? 1 : 0) || stored;
    return StoreDisclaimer(!IsChecked(IDC_OPT_DISCLAIMER)) || stored;
}

} // namespace vorn::preferences
