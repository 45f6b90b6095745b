#pragma once

#include <VornCommon.h>

#include <string>
#include <vector>

namespace vorn::planner
{

/// A sentence for each visible control of a dialog that the user can go to and that has no tip. Push buttons that end
/// or apply a dialog need none. Nothing for windows without tips of their own.
std::vector<std::string> UnexplainedControls(HWND window);

} // namespace vorn::planner
