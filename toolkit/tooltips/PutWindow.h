#pragma once

#include "framework/window/CWnd.h"

namespace vorn
{

/// Moves a top-level window's upper left corner to a point of the screen, unless it is there.
inline void PutWindow(CWnd& window, POINT point)
{
    CRect present;
    window.GetWindowRect(&present);
    if (present.TopLeft() != point)
    {
        window.SetWindowPos(nullptr, point.x, point.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

} // namespace vorn
