#pragma once

#include "family/TarnUtil/core/LatLon.h"

#include <vector>

namespace vorn::chart
{

/// A line or, `closed`, an outline with fewer points: none that is left out lies farther than `tolerance` degrees of
/// latitude from the new line (Douglas and Peucker's method). The first point stays, of a line the last one too.
std::vector<LatLon> Thinned(const std::vector<LatLon>& points, double tolerance, bool closed);

/// The same line with points on its straight stretches, half a degree apart or less, so that a stretch along a parallel
/// follows it in every projection.
std::vector<LatLon> Divided(const std::vector<LatLon>& points, bool closed);

} // namespace vorn::chart
