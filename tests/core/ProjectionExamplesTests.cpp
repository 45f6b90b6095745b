// Worked examples of J. P. Snyder, Map Projections: A Working Manual, USGS Professional Paper 1395 (1987), appendix A,
// with the ellipsoids that he uses.
#include "family/VornChart/core/LambertConformal.h"
#include "family/VornChart/core/Mercator.h"
#include "family/VornChart/core/Orthographic.h"
#include "family/VornChart/core/PolarStereographic.h"
#include "family/VornChart/core/TransverseMercator.h"

#include <gtest/gtest.h>

using namespace vorn::projections;

namespace
{
constexpr double kClarke = 6378206.4; // metres
constexpr double kClarkeEccentricity = 0.00676866;

/// Forward and back, the map coordinates times `radius` within half of the last digit that is printed.
void ExpectExample(const Projection& projection, double lat, double lon, double radius, double x, double y,
                   double digit)
{
    double foundX = 0;
    double foundY = 0;
    ASSERT_TRUE(projection.LLtoXY(lat, lon, foundX, foundY));
    EXPECT_NEAR(foundX * radius, x, digit * 0.51);
    EXPECT_NEAR(foundY * radius, y, digit * 0.51);
    double foundLat = 0;
    double foundLon = 0;
    ASSERT_TRUE(projection.XYtoLL(foundX, foundY, foundLat, foundLon));
    EXPECT_NEAR(foundLat, lat, 1e-12);
    EXPECT_NEAR(foundLon, lon, 1e-12);
}
} // namespace

TEST(ProjectionExamples, MercatorOfTheEllipsoid)
{
    Mercator projection(kClarkeEccentricity);
    ASSERT_TRUE(projection.SetMapPole(0, 180));
    ExpectExample(projection, 35, -75, kClarke, 11688673.7, 4139145.7, 0.1);
    EXPECT_NEAR(projection.ScaleMult(35, -75), 1.2194146, 0.6e-7);
    EXPECT_NEAR(projection.ScaleError(35, -75), 0.2194146, 0.6e-7);
}

TEST(ProjectionExamples, MercatorOfTheSphere)
{
    Mercator projection(0);
    ASSERT_TRUE(projection.SetMapPole(0, 180));
    ExpectExample(projection, 35, -75, 1, 1.8325957, 0.6528366, 1e-7);
    EXPECT_NEAR(projection.ScaleMult(35, -75), 1.2207746, 0.6e-7);
}

TEST(ProjectionExamples, LambertConformalOfTheEllipsoid)
{
    LambertConformal projection(kClarkeEccentricity);
    ASSERT_TRUE(projection.SetMapPole(23, -96));
    ExpectExample(projection, 35, -75, kClarke, 1894410.9, 1564649.5, 0.1);
}

TEST(ProjectionExamples, LambertConformalOfTheSphere)
{
    LambertConformal projection(0);
    ASSERT_TRUE(projection.SetMapPole(23, -96));
    ExpectExample(projection, 35, -75, 1, 0.2966785, 0.2462112, 1e-7);
}

TEST(ProjectionExamples, PolarStereographicOfTheInternationalEllipsoid)
{
    PolarStereographic projection(0.00672267);
    ASSERT_TRUE(projection.SetParamValue(0, -71));
    ASSERT_TRUE(projection.SetMapPole(-90, -100));
    ExpectExample(projection, -75, 150, 6378388, -1540033.6, -560526.4, 0.1);
    EXPECT_NEAR(projection.ScaleMult(-75, 150), 0.9896255, 1.1e-7);
}

TEST(ProjectionExamples, TransverseMercatorOfTheEllipsoid)
{
    TransverseMercator projection(kClarkeEccentricity);
    ASSERT_TRUE(projection.SetParamValue(0, 0.9996));
    ASSERT_TRUE(projection.SetMapPole(0, -75));
    ExpectExample(projection, 40.5, -73.5, kClarke, 127106.5, 4484124.4, 0.1);
    EXPECT_NEAR(projection.ScaleMult(40.5, -73.5), 0.9997989, 0.6e-7);
}

TEST(ProjectionExamples, OrthographicOfTheSphere)
{
    Orthographic projection;
    ASSERT_TRUE(projection.SetMapPole(40, -100));
    ExpectExample(projection, 30, -110, 1, -0.1503837, -0.1651911, 1e-7);
}
