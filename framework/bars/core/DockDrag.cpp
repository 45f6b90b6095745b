#include "framework/bars/core/DockDrag.h"

#include <algorithm>
#include <cstdint>

namespace vorn
{
namespace
{

/// How far from its start a rectangle of another length begins before the pointer.
LONG Before(LONG length, LONG takenStart, LONG takenEnd, LONG pressed)
{
    const std::int64_t whole = std::int64_t{takenEnd} - takenStart;
    if (whole <= 0)
    {
        return 0;
    }
    const std::int64_t part = std::clamp<std::int64_t>(std::int64_t{pressed} - takenStart, 0, whole);
    return static_cast<LONG>(part * std::max<LONG>(length, 0) / whole);
}

bool IsInReach(const DockZone& zone, POINT pointer)
{
    const LONG acrossX = zone.horizontal ? 0 : kDockReach;
    const LONG acrossY = zone.horizontal ? kDockReach : 0;
    return pointer.x >= zone.place.left - acrossX && pointer.x < zone.place.right + acrossX &&
           pointer.y >= zone.place.top - acrossY && pointer.y < zone.place.bottom + acrossY;
}

/// A start so that [start, start + length) lies in [low, high), or begins at low.
LONG Inside(LONG start, LONG length, LONG low, LONG high)
{
    return std::max(std::min(start, high - length), low);
}

} // namespace

RECT RectAtPointer(POINT pointer, SIZE size, const RECT& taken, POINT pressed)
{
    const LONG left = pointer.x - Before(size.cx, taken.left, taken.right, pressed.x);
    const LONG top = pointer.y - Before(size.cy, taken.top, taken.bottom, pressed.y);
    return {left, top, left + size.cx, top + size.cy};
}

DragTarget FindDragTarget(std::span<const DockZone> zones, const DragSizes& sizes, const RECT& taken, POINT pressed,
                          POINT pointer)
{
    for (const DockZone& zone : zones)
    {
        if (IsInReach(zone, pointer))
        {
            return {zone.id, RectAtPointer(pointer, zone.horizontal ? sizes.lying : sizes.standing, taken, pressed)};
        }
    }
    return {0, RectAtPointer(pointer, sizes.floating, taken, pressed)};
}

RECT ReachableRect(const RECT& rect, const RECT& workArea, int grip)
{
    const LONG width = rect.right - rect.left;
    const LONG height = rect.bottom - rect.top;
    const LONG seen = std::min(rect.right, workArea.right) - std::max(rect.left, workArea.left);
    if (seen >= std::min<LONG>(grip, width) && rect.top >= workArea.top && rect.top + grip <= workArea.bottom)
    {
        return rect;
    }
    const LONG left = Inside(rect.left, width, workArea.left, workArea.right);
    const LONG top = Inside(rect.top, height, workArea.top, workArea.bottom);
    return {left, top, left + width, top + height};
}

} // namespace vorn
