#pragma once

#include <windows.h>

#include <vector>

namespace LayoutManagement
{

/// The children of a window, which are asked for nothing yet: what is asked of a control may change their order.
std::vector<HWND> ChildrenOf(HWND window);

/// What those of the controls that are visible cover of a window's client area. Frames around other controls and what
/// else is seen through cover nothing.
std::vector<RECT> CoversOf(const std::vector<HWND>& controls, HWND window);

} // namespace LayoutManagement
