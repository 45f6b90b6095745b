#pragma once

#include <algorithm>
#include <vector>

class ToolTipCtrlEx;

namespace vorn
{

/// Whether tips are shown at all, and who must know when not. For the user-interface thread.
class TipSwitch
{
public:
    static void Join(ToolTipCtrlEx& tips);
    static void Leave(ToolTipCtrlEx& tips);
    static void Turn(bool on);
    static bool IsOn();

    template <class Action>
    static void ForAll(Action action)
    {
        const std::vector<ToolTipCtrlEx*> all = s_all; // an action may end a control
        for (ToolTipCtrlEx* const tips : all)
        {
            if (std::find(s_all.begin(), s_all.end(), tips) != s_all.end())
            {
                action(*tips);
            }
        }
    }

private:
    static bool s_on;
    static std::vector<ToolTipCtrlEx*> s_all;
};

} // namespace vorn
