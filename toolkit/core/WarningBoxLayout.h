#pragma once

#include "framework/core/Geometry.h"

/// @file
/// Where the parts of a warning box with a check box stand: the icon at the left, the text beside it, the check box
/// below the text, the button below all in the middle.
namespace vorn
{

struct WarningBoxParts
{
    CSize icon;
    CSize text;  ///< as it is shown, wrapped or scrolled
    CSize check; ///< with its box; empty for none
    CSize button;
    CSize margin; ///< around everything
    CSize gap;    ///< between neighbours
};

struct WarningBoxPlaces
{
    CRect icon;
    CRect text;
    CRect check;
    CRect button;
    CSize client; ///< size of the box within its frame
};

/// The places, in the units of the sizes. A text lower than the icon stands at the icon's middle.
WarningBoxPlaces PlaceWarningBox(const WarningBoxParts& parts);

/// How wide a text may be before it is wrapped: so many dialog units in pixels, but no more than 60 percent of the work
/// area.
int WarningTextWidth(int widthInPixels, int workAreaWidth);

/// How high before it scrolls.
int WarningTextHeight(int workAreaHeight);

} // namespace vorn
