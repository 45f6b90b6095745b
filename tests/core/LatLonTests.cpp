#include "family/TarnUtil/core/LatLon.h"
#include "tests/support/SpecialNumbers.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <type_traits>

namespace
{

using vorn::test::kInfinite;
using vorn::test::kNaN;
/// A tenth of a millimetre, in nautical miles and in degrees of latitude.
constexpr double kTenthMillimetre = 0.0001 / 1852;
constexpr double kTenthMillimetreOfArc = 1e-9;

} // namespace

TEST(LatLon, BeginsAtNullAndKeepsWhatItIsGiven)
{
    EXPECT_EQ(LatLon(), LatLon(0, 0));
    LatLon place(47.5, -122.25);
    EXPECT_EQ(place.Lat(), 47.5);
    EXPECT_EQ(place.Lon(), -122.25);
    place.SetLat(-33.875);
    place.SetLon(151.125);
    EXPECT_EQ(place, LatLon(-33.875, 151.125));
    EXPECT_FALSE(place == LatLon(-33.875, 151.126));
    EXPECT_FALSE(place == LatLon(-33.876, 151.125));
    static_assert(std::is_trivially_destructible_v<LatLon> && std::is_trivially_copyable_v<LatLon>);
}

TEST(LatLon, LongitudesAreTurnedIntoOneCircle)
{
    const std::array<std::array<double, 2>, 8> cases = {
        {{180, 180}, {-180, 180}, {181, -179}, {-181, 179}, {360, 0}, {540, 180}, {-540, 180}, {725, 5}}};
    for (const auto& [given, held] : cases)
    {
        EXPECT_EQ(LatLon(10, given).Lon(), held) << given;
    }
    LatLon place;
    place.SetLon(200);
    EXPECT_EQ(place.Lon(), -160);
}

TEST(LatLon, LatitudesAreCutAtThePoles)
{
    EXPECT_EQ(LatLon(90, 0).Lat(), 90);
    EXPECT_EQ(LatLon(90.001, 0).Lat(), 90);
    EXPECT_EQ(LatLon(-1000, 0).Lat(), -90);
    LatLon place;
    place.SetLat(kInfinite);
    EXPECT_EQ(place.Lat(), 90);
}

TEST(LatLon, EqualPointsHaveNoDistanceAndNoDirection)
{
    for (const LatLon& place : {LatLon(), LatLon(47.5, 8.5), LatLon(-33, 151), LatLon(90, 0), LatLon(-90, 77)})
    {
        EXPECT_EQ(place.Distance(place), 0);
        EXPECT_EQ(place.Direction(place), 0);
        EXPECT_FALSE(std::signbit(place.Direction(place)));
    }
    EXPECT_EQ(LatLon(50, 180).Distance(LatLon(50, -180)), 0);
    EXPECT_EQ(LatLon(90, 20).Distance(LatLon(90, -130)), 0);
    EXPECT_EQ(LatLon(90, 20).Direction(LatLon(90, -130)), 0);
}

// WGS-84 by its definition: a = 6378137 m, and a meridian quadrant of 10001965.7293 m.
TEST(LatLon, EquatorAndMeridianHaveTheEllipsoidsLengths)
{
    const double degreeOfEquator = 6378137 * 3.14159265358979324 / 180 / 1852;
    EXPECT_NEAR(LatLon(0, 10).Distance(LatLon(0, 11)), degreeOfEquator, kTenthMillimetre);
    EXPECT_NEAR(LatLon(0, 5).Distance(LatLon(90, 5)), 10001965.7293 / 1852, kTenthMillimetre);
    EXPECT_NEAR(LatLon(-90, 5).Distance(LatLon(90, 5)), 2 * 10001965.7293 / 1852, 2 * kTenthMillimetre);
}

TEST(LatLon, DirectionsCountClockwiseFromNorth)
{
    const LatLon from(0, 0);
    EXPECT_EQ(from.Direction(LatLon(1, 0)), 0);
    EXPECT_EQ(from.Direction(LatLon(0, 1)), 90);
    EXPECT_EQ(from.Direction(LatLon(-1, 0)), 180);
    EXPECT_EQ(from.Direction(LatLon(0, -1)), 270);
    EXPECT_EQ(LatLon(0, 179.5).Direction(LatLon(0, -179.5)), 90);
    EXPECT_EQ(LatLon(0, -179.5).Direction(LatLon(0, 179.5)), 270);
}

TEST(LatLon, DirectionsNeverReachTheFullCircle)
{
    const double direction = LatLon(0, 0).Direction(LatLon(80, -1e-20));
    EXPECT_GE(direction, 0);
    EXPECT_LT(direction, 360);
    EXPECT_FALSE(std::signbit(LatLon(0, 0).Direction(LatLon(80, -0.0))));
}

TEST(LatLon, EndPointLiesInTheDirectionAtTheDistance)
{
    const LatLon from(47.5, 8.5);
    for (const double direction : {0.0, 33.0, 90.0, 179.0, 180.0, 270.0, 359.0})
    {
        const LatLon to = from.EndPoint(direction, 1234.5);
        EXPECT_NEAR(from.Distance(to), 1234.5, kTenthMillimetre);
        EXPECT_NEAR(std::remainder(from.Direction(to) - direction, 360), 0, 1e-9) << direction;
    }
    EXPECT_EQ(from.EndPoint(77, 0).Distance(from), 0);
}

TEST(LatLon, EndPointAcrossTheDateLineAndThePole)
{
    const LatLon east = LatLon(0, 179).EndPoint(90, 120);
    EXPECT_LT(east.Lon(), -178.9);
    EXPECT_GT(east.Lon(), -179.1);
    EXPECT_EQ(LatLon(0, 179).EndPoint(90, LatLon(0, 179).Distance(LatLon(0, 180))).Lon(), 180);

    const double quadrant = LatLon(0, 0).Distance(LatLon(90, 0));
    const LatLon beyond = LatLon(0, 20).EndPoint(0, quadrant * 3 / 2);
    EXPECT_NEAR(std::abs(std::remainder(beyond.Lon() - 200, 360)), 0, 1e-9);
    EXPECT_GT(beyond.Lat(), 44);
    EXPECT_LT(beyond.Lat(), 46);
}

TEST(LatLon, NegativeDistancesGoBackwardAndDirectionsTurnByWholeCircles)
{
    const LatLon from(30, 40);
    const LatLon ahead = from.EndPoint(70, 500);
    const LatLon back = from.EndPoint(250, -500);
    const LatLon turned = from.EndPoint(70 - 720, 500);
    EXPECT_NEAR(back.Lat(), ahead.Lat(), kTenthMillimetreOfArc);
    EXPECT_NEAR(back.Lon(), ahead.Lon(), kTenthMillimetreOfArc);
    EXPECT_NEAR(turned.Lat(), ahead.Lat(), kTenthMillimetreOfArc);
    EXPECT_NEAR(turned.Lon(), ahead.Lon(), kTenthMillimetreOfArc);
}

TEST(LatLon, OppositePlacesHaveAWayOfHalfTheEarth)
{
    const double half = LatLon(-90, 0).Distance(LatLon(90, 0));
    EXPECT_NEAR(LatLon(0, 0).Distance(LatLon(0, 180)), half, kTenthMillimetre);
    EXPECT_NEAR(LatLon(30, 0).Distance(LatLon(-30, 180)), half, kTenthMillimetre);
    EXPECT_LT(LatLon(30, 0).Distance(LatLon(-29.9, 179.8)), half);
}

TEST(LatLon, WhatIsNoNumberGivesNoNumber)
{
    const LatLon from(10, 20);
    EXPECT_TRUE(std::isnan(LatLon(kNaN, 0).Lat()));
    EXPECT_TRUE(std::isnan(LatLon(0, kInfinite).Lon()));
    EXPECT_TRUE(std::isnan(from.Distance(LatLon(kNaN, 0))));
    EXPECT_TRUE(std::isnan(from.Distance(LatLon(0, kNaN))));
    EXPECT_TRUE(std::isnan(from.Direction(LatLon(kNaN, kNaN))));
    for (const LatLon& place : {from.EndPoint(kNaN, 5), from.EndPoint(30, kNaN), from.EndPoint(30, kInfinite),
                                from.EndPoint(kInfinite, 5), LatLon(kNaN, 5).EndPoint(30, 5)})
    {
        EXPECT_TRUE(std::isnan(place.Lat()));
        EXPECT_TRUE(std::isnan(place.Lon()));
    }
}

TEST(LatLon, PointsAlongAreTheEndPointsAtEvenDistances)
{
    const LatLon from(52.25, 13.5);
    std::array<LatLon, 4> points;
    vorn::PointsAlong(from, 285, 100, 40, 3, points.data());
    for (int j = 1; j <= 3; ++j)
    {
        const LatLon wanted = from.EndPoint(285, j * 100 - 40);
        EXPECT_NEAR(points[static_cast<std::size_t>(j - 1)].Lat(), wanted.Lat(), 1e-12) << j;
        EXPECT_NEAR(points[static_cast<std::size_t>(j - 1)].Lon(), wanted.Lon(), 1e-12) << j;
    }
    EXPECT_EQ(points[3], LatLon());
}

TEST(LatLon, ALegIsDistanceAndDirection)
{
    const LatLon from(40.64, -73.78);
    const LatLon to(1.36, 103.99);
    const vorn::GeodesicLeg leg = vorn::LegBetween(from, to);
    EXPECT_EQ(leg.distance, from.Distance(to));
    EXPECT_EQ(leg.direction, from.Direction(to));
}
