#pragma once

#include "apps/chart/core/ChartData.h"
#include "apps/chart/core/ChartView.h"

#include <string>
#include <string_view>
#include <vector>

namespace vorn::chart
{

struct Waypoint
{
    std::string ident;
    LatLon position;
};

/// The aids and aerodromes that a text names by their idents, parted by blanks: "KSEA ELN GEG". Of several with one
/// ident the nearest to the waypoint before is taken. Words that nothing is named by are passed over.
std::vector<Waypoint> RouteFrom(const ChartData& data, std::string_view idents);

/// Length along the geodesics, nautical miles.
double LengthOf(const std::vector<Waypoint>& route);

/// A leg as the chart writes it: its true course in the middle and its length, "106\xB0 77 NM".
std::string LegText(const LatLon& from, const LatLon& to);

/// Amid a leg, along its geodesic.
LatLon MiddleOf(const LatLon& from, const LatLon& to);

/// Positions along a route that are `miles` apart or a little more, evenly from its start to its end; none for a route
/// shorter than that.
std::vector<LatLon> MarksAlong(const std::vector<Waypoint>& route, double miles);

/// The distance of marks that suits a scale: 5, 10, 20, 50, 100, 200 or 500 miles, at least 36 pixels.
double MarkSpacing(double pixelsPerMile);

/// A way over the earth as it is drawn: each leg along its geodesic, the corners at the waypoints rounded. Stretches
/// that the map does not show, or that lie beyond a margin around the view, part the line.
std::vector<PixelLine> SmoothedWay(const ChartView& view, const std::vector<Waypoint>& route);

/// The geodesic from the route's start to its end, not smoothed.
std::vector<PixelLine> DirectWay(const ChartView& view, const std::vector<Waypoint>& route);

} // namespace vorn::chart
