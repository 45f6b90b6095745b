#pragma once

/// @file
/// Place of a bar in one of a frame's docks.
#include <windows.h>

namespace vorn
{

struct DockPlace
{
    UINT dockBar = 0;  ///< id of the dock; 0 when the bar was never in one
    int row = 0;       ///< from the top or from the left
    int position = 0;  ///< where it would like to begin along the row, in pixels
    bool alone = true; ///< whether nothing else is in the row
};

} // namespace vorn
