#pragma once

/// @file
/// Where tips stand. All places are screen pixels; sums beyond 32 bits are not expected of a screen.
#include "framework/core/Geometry.h"

namespace vorn
{

/// Where the tip of a tool begins: 35 pixels below the cursor in a large tool, whose lower and right edges are both 81
/// pixels away or more; else at the nearer of these edges, the right one when both are as near.
CPoint HoverTipPoint(const RECT& tool, POINT cursor);

/// The tip at a point, kept on the screen: shifted left from its right edge but never beyond its left one, and put
/// above the tool when its lower edge would be passed, at the screen's top when there is no room above.
CRect PlaceTip(POINT point, SIZE size, const RECT& tool, const RECT& screen);

/// A box at a point, shifted left and up onto an area; one larger than the area begins at its left and its top.
CRect KeepOnArea(POINT point, SIZE size, const RECT& area);

/// The size of a tip around its text. Nothing to show, or margins that leave nothing: empty.
CSize TipSize(SIZE text, const RECT& margins);

/// A title above a text.
struct InfoBoxPlaces
{
    CRect title; ///< in the box
    CRect text;
    CSize size; ///< of the box
};

InfoBoxPlaces StackInfoBox(SIZE title, SIZE text, const RECT& margins);

} // namespace vorn
