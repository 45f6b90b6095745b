#pragma once

/// @file
/// Where a bar that is dragged would go: to one of the docks near the pointer, or into a floating frame.
#include "framework/core/BaseTypes.h"

#include <span>

namespace vorn
{

/// A dock to which the bar may go.
struct DockZone
{
    UINT id = 0;            ///< its number, never 0
    bool horizontal = true; ///< bars lie in it
    RECT place = {};        ///< on the screen; empty across while nothing is docked there
};

/// The bar's size in each of its states, in pixels.
struct DragSizes
{
    SIZE lying = {};    ///< in a horizontal dock
    SIZE standing = {}; ///< in a vertical one
    SIZE floating = {};
};

struct DragTarget
{
    UINT dock = 0;     ///< 0: floating
    RECT outline = {}; ///< on the screen
};

/// Pixels from the edge of a dock within which the pointer chooses it.
inline constexpr int kDockReach = 24;

/// A rectangle of a size that lies about the pointer as the rectangle in which it was pressed did: to the same part.
RECT RectAtPointer(POINT pointer, SIZE size, const RECT& taken, POINT pressed);

/// The first dock in reach of the pointer, else a floating frame.
/// @param taken the bar's rectangle on the screen when the button was pressed, at the point @p pressed
DragTarget FindDragTarget(std::span<const DockZone> zones, const DragSizes& sizes, const RECT& taken, POINT pressed,
                          POINT pointer);

/// A rectangle of that size at a place where it can be reached: where it is when its upper edge, @p grip pixels high,
/// lies with at least that much of its length in the work area, else moved into it.
RECT ReachableRect(const RECT& rect, const RECT& workArea, int grip);

} // namespace vorn
