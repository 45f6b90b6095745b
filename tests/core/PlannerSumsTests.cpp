#include "apps/planner/core/PlanSums.h"

#include <gtest/gtest.h>

using namespace vorn::planner;

namespace
{

/// Places on the equator: a degree of longitude is 60.1077 NM there.
const std::vector<Place> kPlaces = {
    {"AAA", "West", {0, 10}}, {"BBB", "Middle", {0, 11}}, {"CCC", "East", {0, 12}}, {"DDD", "North", {1, 12}}};
constexpr double kDegreeOnEquator = 6378.137 * 3.14159265358979323846 / 180 / 1.852; // WGS-84

Plan EastwardPlan()
{
    Plan plan;
    plan.departure = "AAA";
    plan.via = "BBB";
    plan.destination = "CCC";
    plan.alternate = "AAA";
    plan.secondAlternate = "BBB";
    plan.speed = 120;
    plan.flow = 10;
    plan.taxi = 1;
    plan.contingency = 10;
    plan.reserve = 45;
    plan.onBoard = 40;
    return plan;
}

double Parsed(const char* text, bool isLatitude)
{
    double degrees = 999;
    return ParseCoordinate(text, isLatitude, degrees) ? degrees : 999;
}

} // namespace

TEST(PlannerSums, ARouteHoldsItsKnownPlacesInOrder)
{
    Plan plan = EastwardPlan();
    plan.via = " bbb  XXX\tDDD ";
    const std::vector<Place> route = RouteOf(plan, kPlaces);
    ASSERT_EQ(route.size(), 4u);
    EXPECT_EQ(route[1].ident, "BBB");
    EXPECT_EQ(route[2].ident, "DDD");
    EXPECT_EQ(FindPlace(kPlaces, "XXX"), nullptr);
}

TEST(PlannerSums, LegsHaveCourseLengthTimeAndFuel)
{
    const std::vector<Leg> legs = LegsOf(RouteOf(EastwardPlan(), kPlaces), 120, 10);
    ASSERT_EQ(legs.size(), 2u);
    EXPECT_EQ(legs[0].from + legs[0].to + legs[1].from + legs[1].to, "AAABBBBBBCCC");
    EXPECT_NEAR(legs[0].course, 90, 1e-9);
    EXPECT_NEAR(legs[0].miles, kDegreeOnEquator, 1e-6);
    EXPECT_NEAR(legs[0].hours, kDegreeOnEquator / 120, 1e-8);
    EXPECT_NEAR(legs[0].gallons, kDegreeOnEquator / 12, 1e-7);
    const Leg sum = SumOf(legs);
    EXPECT_EQ(sum.from + sum.to, "AAACCC");
    EXPECT_NEAR(sum.miles, 2 * kDegreeOnEquator, 1e-6);
    EXPECT_EQ(SummaryOf(legs, "120 NM"), "2 legs, 120 NM, 1:00");
    EXPECT_EQ(SummaryOf({}, "0 KM"), "0 legs, 0 KM, 0:00");
}

TEST(PlannerSums, WithoutSpeedThereIsNoTimeAndNoFuel)
{
    const std::vector<Leg> legs = LegsOf(RouteOf(EastwardPlan(), kPlaces), 0, 10);
    EXPECT_EQ(legs[0].hours, 0);
    EXPECT_EQ(legs[0].gallons, 0);
}

TEST(PlannerSums, FuelAddsUpAndGoesToTheFartherAlternate)
{
    const FuelSums sums = FuelFor(EastwardPlan(), kPlaces);
    const double hour = kDegreeOnEquator * 2 / 120; // of the way there, and of the way back
    EXPECT_NEAR(sums.trip, 10 * hour, 1e-6);
    EXPECT_NEAR(sums.contingency, hour, 1e-6);
    EXPECT_NEAR(sums.alternate, 10 * hour, 1e-6);
    EXPECT_DOUBLE_EQ(sums.reserve, 7.5);
    EXPECT_NEAR(sums.required, 1 + 21 * hour + 7.5, 1e-6);
    EXPECT_NEAR(sums.extra, 40 - sums.required, 1e-9);
    EXPECT_DOUBLE_EQ(sums.enduranceHours, 3.9);
}

TEST(PlannerSums, LoadingCountsFuelAfterTaxiAndAfterTheTrip)
{
    Plan plan = EastwardPlan();
    plan.weights = {1600, 300, 0, 100, 0};
    plan.arms = {40, 37, 73, 95, 48};
    const LoadingSums sums = LoadingOf(plan, 9);
    EXPECT_DOUBLE_EQ(sums.zeroFuel.weight, 2000);
    EXPECT_DOUBLE_EQ(sums.zeroFuel.moment, 1600 * 40 + 300 * 37 + 100 * 95);
    EXPECT_DOUBLE_EQ(sums.takeoff.weight, 2000 + 39 * 6);
    EXPECT_DOUBLE_EQ(sums.landing.weight, 2000 + 30 * 6);
    EXPECT_DOUBLE_EQ(sums.landing.moment, sums.zeroFuel.moment + 180 * 48);
    EXPECT_DOUBLE_EQ(sums.zeroFuel.Arm(), 84600.0 / 2000);
}

TEST(PlannerSums, TheEnvelopeHoldsItsEdge)
{
    const auto load = [](double arm, double weight)
    {
        return Load{weight, weight * arm};
    };
    EXPECT_TRUE(IsInEnvelope(load(40, 2000)));
    EXPECT_TRUE(IsInEnvelope(load(35, 1500)));
    EXPECT_TRUE(IsInEnvelope(load(45, 2550)));
    EXPECT_FALSE(IsInEnvelope(load(45, 2551)));
    EXPECT_FALSE(IsInEnvelope(load(34.9, 1700)));
    EXPECT_FALSE(IsInEnvelope(load(47.4, 1700)));
    EXPECT_FALSE(IsInEnvelope(load(40, 1499)));
    EXPECT_FALSE(IsInEnvelope(load(36, 2400))); // ahead of the sloping edge
    EXPECT_FALSE(IsInEnvelope(Load{}));
}

TEST(PlannerSums, ALoadingFaultSaysWhatIsWrong)
{
    const auto loading = [](double arm, double weight, double landingArm)
    {
        return LoadingSums{{}, {weight, weight * arm}, {weight - 100, (weight - 100) * landingArm}};
    };
    EXPECT_EQ(LoadingFault(loading(42, 2400, 42)), "");
    EXPECT_EQ(LoadingFault(loading(42, 2600, 42)), "50 lb over the takeoff limit.");
    EXPECT_EQ(LoadingFault(loading(48, 2400, 42)), "The takeoff center of gravity is outside its limits.");
    EXPECT_EQ(LoadingFault(loading(42, 2400, 48)), "The landing center of gravity is outside its limits.");
}

TEST(PlannerSums, HoursAreRoundedToMinutesBeforeTheyAreSplit)
{
    EXPECT_EQ(HoursText(0), "0:00");
    EXPECT_EQ(HoursText(1.999), "2:00");
    EXPECT_EQ(HoursText(1.5), "1:30");
    EXPECT_EQ(HoursText(12 + 5 / 60.0), "12:05");
    EXPECT_EQ(HoursText(-1), "0:00");
    EXPECT_EQ(HoursText(std::numeric_limits<double>::quiet_NaN()), "0:00");
}

TEST(PlannerSums, CoordinatesAreReadInTheFormsThatPilotsWrite)
{
    EXPECT_DOUBLE_EQ(Parsed("47.449", true), 47.449);
    EXPECT_DOUBLE_EQ(Parsed("N 47\xB0 30.0'", true), 47.5);
    EXPECT_DOUBLE_EQ(Parsed("47 30 S", true), -47.5);
    EXPECT_DOUBLE_EQ(Parsed("s47:30:36", true), -47.51);
    EXPECT_DOUBLE_EQ(Parsed("W122 18.6", false), -122.31);
    EXPECT_DOUBLE_EQ(Parsed("-122.31", false), -122.31);
    EXPECT_DOUBLE_EQ(Parsed("180", false), 180);
    EXPECT_DOUBLE_EQ(Parsed("90 0 0 N", true), 90);
}

TEST(PlannerSums, WhatIsNoCoordinateIsRefused)
{
    for (const char* const text : {"", "N", "47 60", "91", "47.5 30", "1 2 3 4", "E 47", "N 47 S", "-47 S", "--4", "4x",
                                   "47,5", ".", "1e1", "90.1", "4-7"})
        EXPECT_EQ(Parsed(text, true), 999) << text;
    EXPECT_EQ(Parsed("N 10", false), 999);
    EXPECT_EQ(Parsed("180.1", false), 999);
}
