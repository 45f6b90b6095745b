#pragma once

#include "family/TarnUtil/core/LatLon.h"
#include "frame/core/Export.h"
#include "framework/core/Geometry.h"

/// @file
/// Points at even distances along a line.
///
/// The line's length is shared out among as many whole steps of at least `spacing` as it holds, so that the steps are
/// equal and the last point is the line's own. Segments without length are passed over. `*out` gets a new array that
/// the caller frees with `delete[]`; it is null when the result is 0, which it is for fewer than two points or a null
/// pointer.

/// In pixels. A line shorter than `spacing` gives its two ends; so does a spacing that is not above 0, or so small that
/// the points could not be counted or held. Coordinates are cut toward zero.
/// @return the number of points in `*out`.
VORNCOMMON_API int DistributePoints(CPoint* points, int count, double spacing, CPoint** out);

/// On the earth: `spacing` in nautical miles along the geodesics between the points. Where the screen form gives two
/// ends this one gives 0, and also for positions that are no numbers.
/// @return the number of points in `*out`.
VORNCOMMON_API int DistributePoints(LatLon* points, int count, double spacing, LatLon** out);
