#pragma once

#include <VornCommon.h>

namespace vorn::planner
{

/// Says what the planner is not for. The user may tell it to be silent from now on.
void ShowWarning(CWnd* parent);

/// The same, unless the user has heard enough of it.
void ShowWarningOnce(CWnd* parent);

} // namespace vorn::planner
