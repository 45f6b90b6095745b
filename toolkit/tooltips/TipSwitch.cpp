#include "toolkit/tooltips/TipSwitch.h"

namespace vorn
{

bool TipSwitch::s_on = true;
std::vector<ToolTipCtrlEx*> TipSwitch::s_all;

void TipSwitch::Join(ToolTipCtrlEx& tips)
{
    s_all.push_back(&tips);
}

void TipSwitch::Leave(ToolTipCtrlEx& tips)
{
    std::erase(s_all, &tips);
}

void TipSwitch::Turn(bool on)
{
    s_on = on;
}

bool TipSwitch::IsOn()
{
    return s_on;
}

} // namespace vorn
