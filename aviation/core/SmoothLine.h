#pragma once

#include "frame/core/Export.h"
#include "framework/core/Geometry.h"

/// Smooths a line of `count` points into cubic Bezier curves of ten points each, which run from the middle of one
/// segment to the middle of the next. `*out` gets a new array that the caller frees with `delete[]`.
///
/// A line whose last point equals its first is closed: `count` - 1 curves all around. An open one has `count` - 2
/// curves, with its first and last points before and behind. One or two points are copied.
///
/// Middles are whole, cut toward zero; so are the curves' points, each the exact value cut once, so that a level line
/// stays level. Any coordinates are legal.
///
/// @return the number of points; 0 for no points, a null pointer, or so many that the result could not be counted,
/// which
///         all leave `*out` alone.
VORNCOMMON_API int BezierSmoothLine(CPoint* points, int count, CPoint** out);
