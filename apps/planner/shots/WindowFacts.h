#pragma once

#include "apps/planner/core/WindowFaults.h"

#include <VornCommon.h>

namespace vorn::planner
{

/// The visible controls of a window, and those of the dialogs, bars and pages in it, as they stand now. What system
/// controls are made of (the field of a combo box, the header of a list) is their own business.
std::vector<ControlFacts> FactsOf(HWND window);

} // namespace vorn::planner
