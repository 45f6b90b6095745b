#pragma once

#include <VornCommon.h>

namespace vorn::planner
{

/// Gives a window the program's icon, as the library's dialogs have it. Nothing changes when the program has none.
void ShowHostIcon(CWnd& window);

} // namespace vorn::planner
