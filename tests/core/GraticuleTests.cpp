#include "apps/chart/core/Graticule.h"
#include "tests/core/ChartTestPlanes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

using namespace vorn::chart;
using vorn::test::GlobeSphere;
using vorn::test::MercatorSphere;

namespace
{

ChartView View(ChartPlane& plane, double scale, const LatLon& centre)
{
    ChartView view(plane);
    view.SetSize(1000, 800, 96);
    view.SetCentre(centre);
    view.SetScale(scale);
    return view;
}

std::set<int> Parallels(const Graticule& graticule)
{
    std::set<int> minutes;
    for (const GridLine& line : graticule.lines)
    {
        if (line.parallel)
            minutes.insert(line.minutes);
    }
    return minutes;
}

std::set<int> Meridians(const Graticule& graticule)
{
    std::set<int> minutes;
    for (const GridLine& line : graticule.lines)
    {
        if (!line.parallel)
            minutes.insert(line.minutes);
    }
    return minutes;
}

} // namespace

TEST(Graticule, TakesTheFinestStepWhoseLinesKeepTheirDistance)
{
    EXPECT_EQ(GraticuleStep(100, 90), 1);
    EXPECT_EQ(GraticuleStep(45, 90), 2);
    EXPECT_EQ(GraticuleStep(3, 90), 30);
    EXPECT_EQ(GraticuleStep(2.9, 90), 60);
    EXPECT_EQ(GraticuleStep(0.01, 90), 1800);
    EXPECT_EQ(GraticuleStep(0, 90), 1800);
}

TEST(Graticule, WritesDegreesAndMinutes)
{
    EXPECT_EQ(ParallelText(47 * 60, 60), "47\xB0N");
    EXPECT_EQ(ParallelText(47 * 60 + 30, 30), "47\xB0"
                                              "30'N");
    EXPECT_EQ(ParallelText(-47 * 60, 30), "47\xB0"
                                          "00'S");
    EXPECT_EQ(ParallelText(0, 60), "0\xB0");
    EXPECT_EQ(MeridianText(-120 * 60 - 5, 5), "120\xB0"
                                              "05'W");
    EXPECT_EQ(MeridianText(5 * 60, 300), "5\xB0"
                                         "E");
    EXPECT_EQ(MeridianText(180 * 60, 60), "180\xB0");
}

TEST(Graticule, HasAllLinesOfTheViewAndNoOthers)
{
    MercatorSphere plane;
    // A pixel is 529.17 m: 800 pixels are 3.803 degrees of latitude, 1,000 pixels 7.036 degrees of longitude.
    const ChartView view = View(plane, 2'000'000, LatLon(47.5, -120));
    const Graticule graticule = GraticuleOf(view, 90);
    EXPECT_EQ(graticule.latitudeStep, 30);
    EXPECT_EQ(graticule.longitudeStep, 60);
    EXPECT_EQ(Parallels(graticule),
              (std::set<int>{46 * 60, 46 * 60 + 30, 47 * 60, 47 * 60 + 30, 48 * 60, 48 * 60 + 30, 49 * 60}));
    EXPECT_EQ(Meridians(graticule),
              (std::set<int>{-123 * 60, -122 * 60, -121 * 60, -120 * 60, -119 * 60, -118 * 60, -117 * 60}));
    for (const GridLine& line : graticule.lines)
        EXPECT_EQ(line.whole, line.parallel ? line.minutes % 60 == 0 : line.minutes % 300 == 0);
}

TEST(Graticule, KeepsItsLinesWithinTheView)
{
    GlobeSphere plane;
    for (const double scale : {200'000.0, 2'000'000.0, 20'000'000.0, 60'000'000.0})
    {
        const ChartView view = View(plane, scale, LatLon(60, 170));
        const Graticule graticule = GraticuleOf(view, 90);
        EXPECT_GT(graticule.lines.size(), 6u);
        EXPECT_LT(graticule.lines.size(), 80u);
        for (const GridLine& line : graticule.lines)
        {
            for (const PixelLine& piece : line.pieces)
            {
                for (const PixelPoint& point : piece)
                    EXPECT_TRUE(point.x >= -0.01 && point.x <= 1000.01 && point.y >= -0.01 && point.y <= 800.01);
            }
        }
    }
}

TEST(Graticule, ReachesTheEdgeOfTheGlobe)
{
    GlobeSphere plane;
    const ChartView view = View(plane, 60'000'000, LatLon(48, -119));
    const auto fromEdge = [&view](const PixelPoint& point)
    {
        return view.PixelsPerRadius() - std::hypot(point.x - 500, point.y - 400);
    };
    const auto pieceOf = [lines = GraticuleOf(view, 90).lines](bool parallel, int minutes)
    {
        const auto line = std::ranges::find_if(lines,
                                               [&](const GridLine& one)
                                               {
                                                   return one.parallel == parallel && one.minutes == minutes;
                                               });
        return line != lines.end() && line->pieces.size() == 1 ? line->pieces.front() : PixelLine{{0, 0}, {0, 0}};
    };
    const PixelLine equator = pieceOf(true, 0);
    EXPECT_NEAR(fromEdge(equator.front()), 0, 0.05);
    EXPECT_NEAR(fromEdge(equator.back()), 0, 0.05);
    const PixelLine meridian = pieceOf(false, -30 * 60); // from the south on, 89 degrees aside
    EXPECT_NEAR(fromEdge(meridian.front()), 0, 0.05);
    EXPECT_GT(fromEdge(meridian.back()), 50) << "near the pole";
}

TEST(Graticule, GoesOnOverTheDateLine)
{
    MercatorSphere plane;
    const Graticule graticule = GraticuleOf(View(plane, 2'000'000, LatLon(0, 179.5)), 90);
    EXPECT_TRUE(Meridians(graticule).contains(179 * 60));
    EXPECT_TRUE(Meridians(graticule).contains(-179 * 60));
    EXPECT_TRUE(Meridians(graticule).contains(180 * 60) || Meridians(graticule).contains(-180 * 60));
}

TEST(Graticule, ShowsAllMeridiansAroundAPole)
{
    GlobeSphere plane;
    const Extent extent = ExtentOf(View(plane, 10'000'000, LatLon(85, 20)));
    EXPECT_EQ(extent.north, 90);
    EXPECT_EQ(extent.east - extent.west, 360);
}

TEST(Graticule, FindsWhereALineMeetsAnEdge)
{
    GridLine line;
    line.pieces = {{{0, 10}, {50, 20}, {100, 40}}};
    const std::optional<PixelPoint> crossing = CrossingAtX(line, 75);
    ASSERT_TRUE(crossing);
    EXPECT_NEAR(crossing->y, 30, 1e-9);
    EXPECT_NEAR(CrossingAtY(line, 15)->x, 25, 1e-9);
    EXPECT_FALSE(CrossingAtY(line, 50));
    EXPECT_FALSE(CrossingAtX(GridLine(), 0));
}
