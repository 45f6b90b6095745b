#pragma once

#include "apps/chart/core/ChartView.h"

#include <string>
#include <vector>

/// @file
/// Meridians and parallels of a chart.

namespace vorn::chart
{

/// The distance of two meridians or parallels in minutes of arc: a step that charts use, from 1 minute to 30 degrees,
/// the finest whose lines lie at least `leastPixels` apart. 30 degrees where none is fine enough.
/// @param pixelsPerMinute of the direction in which the lines follow one another
int GraticuleStep(double pixelsPerMinute, double leastPixels);

/// "47\xB0N", "47\xB030'N", "120\xB0W", "0\xB0": the minutes when `step` is not whole degrees. The degree sign is byte
/// 176.
std::string ParallelText(int minutes, int step);
std::string MeridianText(int minutes, int step);

/// What of the earth a view shows, in degrees. West and east are counted from the centre's meridian on, so that east
/// may be above 180 and west below -180; all around is 360 apart.
struct Extent
{
    double south = 0;
    double north = 0;
    double west = 0;
    double east = 0;
};

Extent ExtentOf(const ChartView& view);

struct GridLine
{
    bool parallel = false;
    int minutes = 0;               ///< latitude of a parallel, longitude of a meridian within -180 and 180 degrees
    bool whole = false;            ///< a line to stand out: each second to fifth, as the step makes it
    std::vector<PixelLine> pieces; ///< within the view
};

struct Graticule
{
    int latitudeStep = 0; ///< minutes
    int longitudeStep = 0;
    std::vector<GridLine> lines;
};

/// The lines of a view, `leastPixels` apart or more.
Graticule GraticuleOf(const ChartView& view, double leastPixels);

/// Where a line crosses an upright (x fixed) or level (y fixed) line of the drawing, first piece first; nothing where
/// it does not.
std::optional<PixelPoint> CrossingAtX(const GridLine& line, double x);
std::optional<PixelPoint> CrossingAtY(const GridLine& line, double y);

} // namespace vorn::chart
