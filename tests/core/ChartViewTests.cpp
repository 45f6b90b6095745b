#include "apps/chart/core/ChartView.h"
#include "tests/core/ChartTestPlanes.h"

#include <gtest/gtest.h>

#include <limits>

using vorn::chart::ChartView;
using vorn::chart::PixelPoint;
using vorn::test::GlobeSphere;
using vorn::test::MercatorSphere;

namespace
{

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// A metre on the earth at 1:1,000,000 and 96 dots an inch.
constexpr double kPixelsPerMetre = 96 / 0.0254 / 1e6;

ChartView Seattle(vorn::chart::ChartPlane& plane)
{
    ChartView view(plane);
    view.SetSize(1000, 800, 96);
    view.SetCentre(LatLon(47.5, -122.25));
    view.SetScale(1'000'000);
    return view;
}

double Apart(const ChartView& view, const LatLon& position, PixelPoint pixel)
{
    const std::optional<PixelPoint> now = view.ToPixel(position);
    return now ? std::hypot(now->x - pixel.x, now->y - pixel.y) : 1e9;
}

} // namespace

TEST(ChartView, HasItsCentreInTheMiddleOfTheDrawing)
{
    MercatorSphere plane;
    const ChartView view = Seattle(plane);
    EXPECT_LT(Apart(view, LatLon(47.5, -122.25), {500, 400}), 1e-9);
}

TEST(ChartView, HoldsItsScaleAtTheCentreInAnyProjection)
{
    MercatorSphere mercator;
    GlobeSphere globe;
    for (vorn::chart::ChartPlane* plane :
         {static_cast<vorn::chart::ChartPlane*>(&mercator), static_cast<vorn::chart::ChartPlane*>(&globe)})
    {
        const ChartView view = Seattle(*plane);
        // A minute of a great circle of 6,378,137 m radius is 1855.3248 m.
        const std::optional<PixelPoint> north = view.ToPixel(LatLon(47.5 + 1 / 60.0, -122.25));
        ASSERT_TRUE(north);
        EXPECT_NEAR(400 - north->y, 1855.3248 * kPixelsPerMetre, 0.002);
        EXPECT_NEAR(north->x, 500, 1e-9);
    }
}

TEST(ChartView, CountsPixelsForANauticalMile)
{
    MercatorSphere plane;
    ChartView view = Seattle(plane);
    EXPECT_NEAR(view.PixelsPerMile(), 1852 * kPixelsPerMetre, 1e-9);
    view.SetSize(1000, 800, 192);
    EXPECT_NEAR(view.PixelsPerMile(), 2 * 1852 * kPixelsPerMetre, 1e-9);
}

TEST(ChartView, FindsThePositionOfAPixelAgain)
{
    MercatorSphere plane;
    const ChartView view = Seattle(plane);
    for (const PixelPoint pixel : {PixelPoint{0, 0}, PixelPoint{999, 0}, PixelPoint{123, 789}, PixelPoint{500, 400}})
    {
        const std::optional<LatLon> position = view.ToPosition(pixel);
        ASSERT_TRUE(position);
        EXPECT_LT(Apart(view, *position, pixel), 1e-6);
    }
}

TEST(ChartView, TakesTheGrabbedPlaceAlongWhenItIsPanned)
{
    MercatorSphere mercator;
    GlobeSphere globe;
    for (vorn::chart::ChartPlane* plane :
         {static_cast<vorn::chart::ChartPlane*>(&mercator), static_cast<vorn::chart::ChartPlane*>(&globe)})
    {
        ChartView view = Seattle(*plane);
        const PixelPoint grabbed{800, 100};
        const LatLon place = *view.ToPosition(grabbed);
        view.Bring(place, {500, 300});
        EXPECT_LT(Apart(view, place, {500, 300}), 0.02);
    }
}

TEST(ChartView, PansWhatIsAtTheCentreAndNearlyBack)
{
    GlobeSphere plane;
    ChartView view = Seattle(plane);
    view.Pan(120, -75);
    EXPECT_LT(Apart(view, LatLon(47.5, -122.25), {620, 325}), 0.02);
    view.Pan(-120, 75);
    // Another place is at the centre by then, and north has turned a little.
    EXPECT_LT(Apart(view, LatLon(47.5, -122.25), {500, 400}), 1);
}

TEST(ChartView, ZoomsAboutTheCursor)
{
    MercatorSphere plane;
    ChartView view = Seattle(plane);
    const PixelPoint cursor{160, 650};
    const LatLon place = *view.ToPosition(cursor);
    for (int turn = 0; turn < 6; ++turn)
        view.ZoomAt(cursor, 1.25);
    EXPECT_NEAR(view.Scale(), 1'000'000 / std::pow(1.25, 6), 1e-3);
    EXPECT_LT(Apart(view, place, cursor), 0.02);
    for (int turn = 0; turn < 6; ++turn)
        view.ZoomAt(cursor, 0.8);
    EXPECT_NEAR(view.Scale(), 1'000'000, 1e-3);
    EXPECT_LT(Apart(view, place, cursor), 0.02);
}

TEST(ChartView, StaysWithinItsLimits)
{
    MercatorSphere plane;
    ChartView view = Seattle(plane);
    view.SetScale(1);
    EXPECT_EQ(view.Scale(), ChartView::kLargestScale);
    view.SetScale(1e12);
    EXPECT_EQ(view.Scale(), ChartView::kSmallestScale);
    view.SetCentre(LatLon(89.9, 0));
    EXPECT_EQ(view.Centre().Lat(), ChartView::kFarthestLatitude);
    view.SetCentre(LatLon(-89.9, 0));
    EXPECT_EQ(view.Centre().Lat(), -ChartView::kFarthestLatitude);
    view.SetSize(-3, 0, 0);
    EXPECT_EQ(view.Width(), 1);
    EXPECT_EQ(view.Height(), 1);
    EXPECT_EQ(view.DotsPerInch(), 96);
}

TEST(ChartView, KeepsWhatItHasForWhatIsNoNumber)
{
    MercatorSphere plane;
    ChartView view = Seattle(plane);
    view.SetScale(kNan);
    view.SetCentre(LatLon(kNan, 0));
    view.SetCentre(LatLon(0, kNan));
    view.ZoomAt({500, 400}, 0);
    view.ZoomAt({500, 400}, -2);
    view.ZoomAt({500, 400}, kNan);
    EXPECT_EQ(view.Scale(), 1'000'000);
    EXPECT_EQ(view.Centre(), LatLon(47.5, -122.25));
}

TEST(ChartView, ZoomsAboutTheMiddleWhereTheCursorIsOffTheEarth)
{
    GlobeSphere plane;
    ChartView view = Seattle(plane);
    view.SetScale(60'000'000);
    ASSERT_FALSE(view.ToPosition({0, 0}));
    view.ZoomAt({0, 0}, 2);
    EXPECT_EQ(view.Centre(), LatLon(47.5, -122.25));
    EXPECT_EQ(view.Scale(), 30'000'000);
}

TEST(ChartView, ShowsAllOfItsPositionsWithTheMargin)
{
    MercatorSphere plane;
    ChartView view = Seattle(plane);
    const std::vector<LatLon> places = {LatLon(42, -124), LatLon(54, -113), LatLon(49, 131 - 360.0 + 100)};
    ASSERT_TRUE(view.ShowAll(places.data(), 3, 30));
    double nearest = 1e9;
    for (const LatLon& place : places)
    {
        const PixelPoint pixel = view.ToPixel(place).value();
        nearest = std::min({nearest, pixel.x, 1000 - pixel.x, pixel.y, 800 - pixel.y});
    }
    EXPECT_GE(nearest, 30 - 0.5);
    EXPECT_LE(nearest, 31);
    EXPECT_FALSE(view.ShowAll(nullptr, 3, 30));
    EXPECT_FALSE(view.ShowAll(places.data(), 0, 30));
}

TEST(ChartView, ShowsPositionsOnBothSidesOfTheDateLine)
{
    MercatorSphere plane;
    ChartView view = Seattle(plane);
    const std::vector<LatLon> places = {LatLon(10, 179), LatLon(-10, -179)};
    ASSERT_TRUE(view.ShowAll(places.data(), 2, 0));
    EXPECT_NEAR(std::abs(view.Centre().Lon()), 180, 1e-9);
    EXPECT_NEAR(view.Centre().Lat(), 0, 1e-9);
}
