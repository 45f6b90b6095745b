#include "apps/planner/GeneralSettings.h"

#include "apps/planner/StoredValue.h"

namespace vorn::planner
{

namespace
{

constexpr const char* kGeneral = "General";
constexpr const char* kTips = "Show Dialog Tips";

} // namespace

bool ShowsTips()
{
    return App().GetSettingInt(kGeneral, kTips, 1) != 0;
}

bool StoreTips(bool shows)
{
    const bool stored = StoreNumber(kGeneral, kTips, 1, shows ? 1 : 0);
    if (stored)
        ApplyTips();
    return stored;
}

void ApplyTips()
{
    ToolTipCtrlEx::GlobalEnableTips(ShowsTips());
}

bool StoreColorState(int state)
{
    const bool isNew = ColorContext::Instance()->GetCurrentState() != state;
    ColorContext::Instance()->SetCurrentState(state);
    return StoreNumber("Chart", "Night", COLORSTATE_DAY, state) || isNew;
}

} // namespace vorn::planner
