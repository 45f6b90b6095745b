#pragma once

#include "framework/core/BaseTypes.h"

#include <vector>

namespace vorn
{

/// What of an area no cover lies over, as rectangles that do not overlap, from the top down and from left to right.
/// Right and bottom edges belong to no rectangle; a cover may be empty or reach beyond the area.
std::vector<RECT> UncoveredArea(const RECT& area, const std::vector<RECT>& covers);

} // namespace vorn
