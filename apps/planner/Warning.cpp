#include "apps/planner/Warning.h"

#include "apps/planner/PlannerData.h"

namespace vorn::planner
{

void ShowWarning(CWnd* parent)
{
    WarningDlgWithCheck dialog("This planner is a sample. Its tables end at the borders of one region, its aircraft is "
                               "an example, and nobody keeps its data current.\n\nDo not fly with what it computes.",
                               "Not for navigation", "&Do not show this again", !ReadSwitch(kWarns, true), parent);
    if (dialog.DoModal() == IDOK)
        WriteSwitch(kWarns, !dialog.WasCheckChecked());
}

void ShowWarningOnce(CWnd* parent)
{
    if (ReadSwitch(kWarns, true))
        ShowWarning(parent);
}

} // namespace vorn::planner
