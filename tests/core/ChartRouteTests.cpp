#include "apps/chart/core/Route.h"
#include "tests/core/ChartTestPlanes.h"

#include <gtest/gtest.h>

using namespace vorn::chart;

namespace
{

Aid AidAt(const char* ident, double lat, double lon)
{
    Aid aid;
    aid.ident = ident;
    aid.position = LatLon(lat, lon);
    return aid;
}

ChartData Region()
{
    ChartData data;
    data.aids = {AidAt("SEA", 47.4354, -122.31), AidAt("ELN", 47.0243, -120.458), AidAt("XX", 10, 10),
                 AidAt("XX", 47.5, -117), AidAt("GEG", 47.5649, -117.627)};
    data.aerodromes.emplace_back();
    data.aerodromes.back().ident = "KSEA";
    data.aerodromes.back().position = LatLon(47.45, -122.31);
    return data;
}

} // namespace

TEST(ChartRoute, FollowsTheIdentsOfAText)
{
    const std::vector<Waypoint> route = RouteFrom(Region(), " KSEA  ELN nothing GEG ");
    ASSERT_EQ(route.size(), 3u);
    EXPECT_EQ(route[0].ident, "KSEA");
    EXPECT_EQ(route[0].position, LatLon(47.45, -122.31));
    EXPECT_EQ(route[2].ident, "GEG");
    EXPECT_TRUE(RouteFrom(Region(), "").empty());
}

TEST(ChartRoute, TakesTheNearestOfSeveralWithOneIdent)
{
    const std::vector<Waypoint> route = RouteFrom(Region(), "SEA XX");
    ASSERT_EQ(route.size(), 2u);
    EXPECT_EQ(route[1].position, LatLon(47.5, -117));
    EXPECT_EQ(RouteFrom(Region(), "XX")[0].position, LatLon(10, 10));
}

TEST(ChartRoute, SpacesItsMarksEvenly)
{
    const std::vector<Waypoint> route = RouteFrom(Region(), "SEA ELN GEG");
    const std::vector<LatLon> marks = MarksAlong(route, 10);
    const double length = LengthOf(route);
    ASSERT_EQ(marks.size(), static_cast<std::size_t>(length / 10) + 1);
    EXPECT_EQ(marks.front(), route.front().position);
    EXPECT_LT(marks.back().Distance(route.back().position), 1e-6);
    const double step = length / static_cast<double>(marks.size() - 1);
    int bent = 0;
    for (std::size_t i = 1; i < marks.size(); ++i)
    {
        const double apart = marks[i - 1].Distance(marks[i]);
        if (std::abs(apart - step) > 1e-6)
            ++bent; // the step around the corner is shorter as the crow flies
        EXPECT_LE(apart, step + 1e-6);
    }
    EXPECT_LE(bent, 1);
    EXPECT_TRUE(MarksAlong(route, 1000).empty());
    EXPECT_TRUE(MarksAlong({}, 10).empty());
}

TEST(ChartRoute, WritesCourseAndLengthOfALeg)
{
    // Along the equator a degree is 60.1 miles, along a meridian near it 59.7.
    EXPECT_EQ(LegText(LatLon(0, 10), LatLon(0, 11)), "090\xB0 60 NM");
    EXPECT_EQ(LegText(LatLon(0, 10), LatLon(2, 10)), "360\xB0 119 NM");
    EXPECT_EQ(LegText(LatLon(2, 10), LatLon(0, 10)), "180\xB0 119 NM");
    EXPECT_EQ(LegText(LatLon(0, 11), LatLon(0, 10)), "270\xB0 60 NM");
    EXPECT_NEAR(MiddleOf(LatLon(0, 10), LatLon(0, 12)).Lon(), 11, 1e-9);
}

TEST(ChartRoute, ChoosesMarksThatDoNotCrowd)
{
    EXPECT_EQ(MarkSpacing(7.2), 5);
    EXPECT_EQ(MarkSpacing(7.1), 10);
    EXPECT_EQ(MarkSpacing(0.5), 100);
    EXPECT_EQ(MarkSpacing(0), 500);
}

TEST(ChartRoute, DrawsASmoothLineNearItsWaypoints)
{
    vorn::test::MercatorSphere plane;
    ChartView view(plane);
    view.SetSize(1200, 800, 96);
    view.SetCentre(LatLon(47.3, -120));
    view.SetScale(1'500'000);
    const std::vector<Waypoint> route = RouteFrom(Region(), "SEA ELN GEG");
    const auto ways = SmoothedWay(view, route);
    ASSERT_EQ(ways.size(), 1u);
    for (const Waypoint& waypoint : route)
    {
        const PixelPoint pixel = view.ToPixel(waypoint.position).value();
        double nearest = 1e9;
        for (const PixelPoint& point : ways[0])
            nearest = std::min(nearest, std::hypot(point.x - pixel.x, point.y - pixel.y));
        EXPECT_LT(nearest, 8);
    }
    // No step goes back, and none turns by more than 20 degrees.
    for (std::size_t i = 2; i < ways[0].size(); ++i)
    {
        const double x = ways[0][i - 1].x - ways[0][i - 2].x;
        const double y = ways[0][i - 1].y - ways[0][i - 2].y;
        const double nextX = ways[0][i].x - ways[0][i - 1].x;
        const double nextY = ways[0][i].y - ways[0][i - 1].y;
        EXPECT_LT(std::abs(std::atan2(x * nextY - y * nextX, x * nextX + y * nextY)), 20 * vorn::test::kDegree) << i;
    }
    EXPECT_GT(ways[0].size(), 100u);
}

TEST(ChartRoute, StaysNearTheViewHoweverFarItGoes)
{
    vorn::test::MercatorSphere plane;
    ChartView view(plane);
    view.SetSize(1000, 800, 96);
    view.SetCentre(LatLon(47.0243, -120.458));
    view.SetScale(100'000);
    for (const auto& ways :
         {SmoothedWay(view, RouteFrom(Region(), "SEA ELN GEG")), DirectWay(view, RouteFrom(Region(), "SEA GEG"))})
    {
        for (const auto& way : ways)
        {
            for (const PixelPoint& point : way)
                EXPECT_TRUE(point.x >= -65 && point.x <= 1065 && point.y >= -65 && point.y <= 865);
        }
    }
    EXPECT_TRUE(SmoothedWay(view, {}).empty());
    EXPECT_TRUE(DirectWay(view, RouteFrom(Region(), "SEA")).empty());
}
