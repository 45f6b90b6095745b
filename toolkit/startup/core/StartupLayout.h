#pragma once

#include "framework/core/Geometry.h"

#include <vector>

/// @file
/// Where the parts of the startup dialog stand: title and copyright line, the disclaimer, an area with the groups of
/// the data sets and further lines, the check box, and a row of two buttons.
namespace vorn
{

/// A group box around the lines of one data set, in its own coordinates.
struct StartupGroup
{
    CSize size;
    std::vector<CRect> lines;
};

/// Measures of a group, in pixels.
struct StartupGroupUnits
{
    int side = 0;    ///< between a side of the box and the lines
    int caption = 0; ///< height of the caption
    int below = 0;   ///< left free below the caption, half above the lines and half below them
};

/// A box as wide as its widest text (the caption too) and as high as all lines below its caption.
StartupGroup GroupAround(CSize caption, const std::vector<CSize>& lines, const StartupGroupUnits& units);

/// Boxes below each other, in as many columns as their heights ask for.
struct StartupColumns
{
    std::vector<CRect> places; ///< from 0,0
    CSize size;                ///< of all of them
};

/// Starts a new column before a box that would pass `height`; every column has one box at least.
StartupColumns PlaceInColumns(const std::vector<CSize>& boxes, CSize gap, int height);

/// The columns for an area of at most this size: no wider than it where boxes let it be, and higher only when they do
/// not fit otherwise.
StartupColumns FitColumns(const std::vector<CSize>& boxes, CSize gap, CSize most);

/// What is to be placed; sizes are those that texts and controls ask for.
struct StartupParts
{
    CSize margin;
    CSize gap;
    CSize title;
    CSize copyright;
    CSize disclaimer; ///< empty when it is hidden
    std::vector<CSize> groups;
    std::vector<CSize> lines; ///< the host's own, below the groups
    CSize check;
    CSize update;
    CSize ok;
    CSize most; ///< the client area's limit
    int scrollBar = 0;
};

struct StartupPlaces
{
    CSize client;
    CRect title;
    CRect copyright;
    CRect disclaimer;
    CRect area;                ///< holds groups and lines; empty when there are none
    int contentHeight = 0;     ///< of the area, above its height when it scrolls
    std::vector<CRect> groups; ///< in the area's coordinates
    std::vector<CRect> lines;
    CRect check;
    CRect update;
    CRect ok;

    bool Scrolls() const
    {
        return contentHeight > area.Height();
    }
};

StartupPlaces PlaceStartup(const StartupParts& parts);

} // namespace vorn
