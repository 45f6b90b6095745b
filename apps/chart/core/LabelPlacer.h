#pragma once

#include "apps/chart/core/PixelGeometry.h"

#include <map>
#include <vector>

/// @file
/// Placing labels beside what they name, so that none lies over another.

namespace vorn::chart
{

/// A text that wants a place.
struct LabelRequest
{
    int id = 0;                       ///< of its own; ties are settled by it, and it is known by it in the next drawing
    int priority = 0;                 ///< larger ones choose first
    std::vector<PixelBox> candidates; ///< where it may stand, the best place first; an empty one is none
};

struct PlacedLabel
{
    int id = 0;
    int candidate = 0;
    PixelBox box;
};

/// What labels should keep away from.
struct LabelObstacles
{
    std::vector<PixelBox> closed;  ///< no label stands there
    std::vector<PixelBox> symbols; ///< a label with no other place is left out rather than put there
    std::vector<PixelBox> lines;   ///< only where there is no better place
};

/// The candidate that each label had in the drawing before, by id: a label stays there as long as it can, so that
/// labels do not jump about when the chart moves. For a chart of another scale it is better forgotten.
using LabelMemory = std::map<int, int>;

/// The eight places around `anchor` for a label of `width` by `height`: to the right, the left, above, below, then the
/// corners. `clearance` is kept free between the anchor and the label.
std::vector<PixelBox> PlacesAround(PixelPoint anchor, double clearance, int width, int height);

/// Places labels one after the other by priority. A label that finds no free place may move one that is in its way to
/// another free place; one that finds none even so is left out. No two placed labels overlap, whatever was asked. The
/// same requests give the same places.
/// @return in the order of the ids
std::vector<PlacedLabel> PlaceLabels(const std::vector<LabelRequest>& requests, const LabelObstacles& obstacles,
                                     const LabelMemory& before);

LabelMemory MemoryOf(const std::vector<PlacedLabel>& placed);

} // namespace vorn::chart
