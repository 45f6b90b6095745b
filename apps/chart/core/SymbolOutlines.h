#pragma once

#include "apps/chart/core/SymbolShapes.h"

#include <vector>

namespace vorn::chart
{

/// Outlines to be filled together by their winding number, so that many symbols are drawn at once and in even strokes
/// of any width: solid parts turn one way, the hollows in them the other.
struct Outlines
{
    std::vector<PixelLine> ink;
    std::vector<PixelLine> windows; ///< to be filled with the ground's colour afterwards
};

/// Adds a symbol. `unit` pixels stand for one of its own, lines are `stroke` pixels wide.
void AddOutlines(const SymbolShape& shape, PixelPoint at, double unit, double stroke, Outlines& outlines);

/// A line of `width` pixels as one outline; empty for fewer than two different points.
PixelLine Stroked(const PixelLine& line, double width);

} // namespace vorn::chart
