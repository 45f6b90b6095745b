#pragma once

#include "framework/core/Geometry.h"

/// @file
/// Performance lines: dashed lines whose dashes and gaps are counted in even steps along the line.

namespace vorn
{

/// Lengths in steps, drawn in this order again and again. Negative ones count as 0.
struct PerfPattern
{
    int dash1;
    int gap1;
    int dash2;
    int gap2;
};

/// What draws, as a device context does.
class LinePen
{
public:
    virtual ~LinePen() = default;
    virtual void MoveTo(const CPoint& point) = 0;
    virtual void LineTo(const CPoint& point) = 0;
};

/// A point that parts two runs of one line and belongs to neither.
inline bool IsRunMarker(const CPoint& point)
{
    return point.x == -1 && point.y == -1;
}

/// Draws one run whose `count` points are spaced evenly already. Nothing for a pattern without length.
void DrawPattern(const CPoint* points, int count, const PerfPattern& pattern, LinePen& pen);

/// Spaces each run of the line by `spacing` pixels (as DistributePoints() does) and draws it; the pattern begins anew
/// in each. Runs of fewer than two points draw nothing, nor does a null pointer.
void DrawPerfRuns(CPoint* points, int count, double spacing, const PerfPattern& pattern, LinePen& pen);

} // namespace vorn
