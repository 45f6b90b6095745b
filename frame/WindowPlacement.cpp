#include "frame/WindowPlacement.h"

#include "frame/VornCommonApp.h"
#include "frame/core/PlacementText.h"

namespace
{
WINDOWPLACEMENT ToSystem(const vorn::Placement& placement)
{
    const vorn::PlacedRect& rect = placement.normal;
    WINDOWPLACEMENT result{};
    result.length = sizeof result;
    result.flags = placement.flags;
    result.showCmd = placement.showCommand;
    result.ptMinPosition = {placement.minX, placement.minY};
    result.ptMaxPosition = {placement.maxX, placement.maxY};
    result.rcNormalPosition = {rect.left, rect.top, rect.right, rect.bottom};
    return result;
}

vorn::Placement FromSystem(const WINDOWPLACEMENT& placement)
{
    const RECT& rect = placement.rcNormalPosition;
    return {placement.flags,
            placement.showCmd,
            placement.ptMinPosition.x,
            placement.ptMinPosition.y,
            placement.ptMaxPosition.x,
            placement.ptMaxPosition.y,
            {rect.left, rect.top, rect.right, rect.bottom}};
}
} // namespace

bool ReadWindowPlacement(const char* section, const char* key, WINDOWPLACEMENT* placement)
{
    VornCommonApp* app = VornCommonApp::Inst();
    if (!app || !placement)
    {
        return false;
    }
    const CString text = app->GetSettingString(section, key, "");
    auto stored = vorn::ParsePlacement(text.GetString());
    if (!stored)
    {
        return false;
    }
    stored->normal = vorn::KeptOnScreen(stored->normal, GetSystemMetrics(SM_CYSCREEN));
    *placement = ToSystem(*stored);
    return true;
}

void WriteWindowPlacement(const char* section, const char* key, WINDOWPLACEMENT* placement)
{
    VornCommonApp* app = VornCommonApp::Inst();
    if (app && placement)
    {
        app->WriteSettingString(section, key, vorn::PlacementText(FromSystem(*placement)).c_str());
    }
}
