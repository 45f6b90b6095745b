#include "tests/core/ProjectionCases.h"

#include <random>

using namespace vorn::test;

TEST(Projection, SixAreBuiltInByNumber)
{
    const std::array<const char*, 6> names = {"Equidistant cylindrical", "Mercator",
                                              "Lambert conformal conic", "Polar stereographic",
                                              "Transverse Mercator",     "Orthographic"};
    ASSERT_EQ(PROJECTION_BUILT_IN_COUNT, 6);
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        ASSERT_NE(projection, nullptr);
        EXPECT_STREQ(projection->QueryProjectionName(), names[static_cast<std::size_t>(kind)]);
        EXPECT_TRUE(projection->Init());
    }
    for (const int kind : {-1, 6, 7, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    {
        EXPECT_EQ(MakeProjection(kind), nullptr);
    }
}

TEST(Projection, SayWhatKindOfMapTheyAre)
{
    struct Facts
    {
        bool cylindrical;
        bool conic;
        bool conformal;
        bool globe;
    };
    const std::array<Facts, 6> kinds = {{{true, false, false, false},
                                         {true, false, true, false},
                                         {false, true, true, false},
                                         {false, false, true, false},
                                         {false, false, true, false},
                                         {false, false, false, true}}};
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        const Facts& facts = kinds[static_cast<std::size_t>(kind)];
        EXPECT_EQ(projection->IsCylindrical(), facts.cylindrical) << kind;
        EXPECT_EQ(projection->IsConic(), facts.conic) << kind;
        EXPECT_EQ(projection->IsConformal(), facts.conformal) << kind;
        EXPECT_EQ(projection->Is3D(), facts.globe) << kind;
        EXPECT_TRUE(projection->IsZoomable()) << kind;
        EXPECT_EQ(projection->BackgroundColor(), 0xFFFFFFU) << kind;
    }
}

TEST(Projection, TheOriginIsTheMapPoleAndYGoesUpThere)
{
    for (int kind = 0; kind < 6; ++kind)
    {
        if (kind == PROJECTION_POLAR_STEREOGRAPHIC)
        {
            continue;
        }
        const auto projection = MakeProjection(kind);
        ASSERT_TRUE(projection->SetMapPole(47, 8));
        const XY origin = OnMap(*projection, 47, 8);
        EXPECT_EQ(origin.x, 0);
        EXPECT_EQ(origin.y, 0);
        const XY north = OnMap(*projection, 48, 8);
        EXPECT_NEAR(north.x, 0, 1e-15);
        EXPECT_GT(north.y, 0.017);
        const XY east = OnMap(*projection, 47, 9);
        EXPECT_GT(east.x, 0.01) << kind;
        EXPECT_NEAR(east.y, 0, 0.001);
    }
}

TEST(Projection, PolarStereographicHasThePoleOfItsHemisphereInTheOrigin)
{
    const auto projection = MakeProjection(PROJECTION_POLAR_STEREOGRAPHIC);
    ASSERT_TRUE(projection->SetMapPole(25, 10));
    for (const double lon : {-170.0, 0.0, 10.0, 123.0})
    {
        EXPECT_EQ(std::abs(OnMap(*projection, 90, lon).x), 0);
        EXPECT_EQ(std::abs(OnMap(*projection, 90, lon).y), 0);
    }
    EXPECT_LT(OnMap(*projection, 80, 10).y, -0.1); // its meridian points down
    EXPECT_GT(OnMap(*projection, 80, 100).x, 0.1);
    ExpectRefused(*projection, -90, 10);

    ASSERT_TRUE(projection->SetMapPole(-25, 10));
    EXPECT_EQ(std::abs(OnMap(*projection, -90, 55).y), 0);
    EXPECT_GT(OnMap(*projection, -80, 10).y, 0.1); // up in the south
    EXPECT_GT(OnMap(*projection, -80, 100).x, 0.1);
    ExpectRefused(*projection, 90, 10);

    ASSERT_TRUE(projection->SetMapPole(0, 10)); // the equator counts as north
    EXPECT_EQ(std::abs(OnMap(*projection, 90, 0).y), 0);
}

TEST(Projection, EquidistantCylindricalIsDegreesTimesTheirLengths)
{
    const auto projection = MakeProjection(PROJECTION_EQUIDISTANT_CYLINDRICAL);
    ASSERT_TRUE(projection->SetParamValue(0, 60));
    ASSERT_TRUE(projection->SetMapPole(10, 20));
    const XY point = OnMap(*projection, 40, 56);
    EXPECT_NEAR(point.x, 36 * kRadianOfDegree / 2, 1e-15);
    EXPECT_NEAR(point.y, 30 * kRadianOfDegree, 1e-15);
    EXPECT_NEAR(projection->ScaleMult(60, 0), 1, 1e-15);
    EXPECT_NEAR(projection->ScaleMult(0, 0), 0.5, 1e-15);
    EXPECT_NEAR(projection->ScaleError(0, 0), -0.5, 1e-15);
    EXPECT_EQ(projection->ScaleMult(90, 0), 0); // a parallel without length
}

TEST(Projection, ScaleIsOneWhereTheParametersSay)
{
    const auto mercator = MakeProjection(PROJECTION_MERCATOR);
    ASSERT_TRUE(mercator->SetParamValue(0, 30));
    EXPECT_NEAR(mercator->ScaleMult(30, 99), 1, 1e-15);
    EXPECT_NEAR(mercator->ScaleMult(-30, 0), 1, 1e-15);

    const auto lambert = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
    EXPECT_NEAR(lambert->ScaleMult(33, 12), 1, 1e-14);
    EXPECT_NEAR(lambert->ScaleMult(45, -120), 1, 1e-14);
    EXPECT_LT(lambert->ScaleMult(39, 0), 1);

    const auto polar = MakeProjection(PROJECTION_POLAR_STEREOGRAPHIC);
    EXPECT_NEAR(polar->ScaleMult(90, 0), 1, 1e-15);
    ASSERT_TRUE(polar->SetParamValue(0, 70));
    EXPECT_NEAR(polar->ScaleMult(70, 50), 1, 1e-15);
    EXPECT_NEAR(polar->ScaleMult(89.9999, 0), polar->ScaleMult(90, 0), 1e-9);

    const auto transverse = MakeProjection(PROJECTION_TRANSVERSE_MERCATOR);
    ASSERT_TRUE(transverse->SetParamValue(0, 0.9996));
    ASSERT_TRUE(transverse->SetMapPole(47, 9));
    EXPECT_NEAR(transverse->ScaleMult(-20, 9), 0.9996, 1e-12);
    EXPECT_NEAR(transverse->ScaleMult(90, 9), 0.9996, 1e-12);

    const auto globe = MakeProjection(PROJECTION_ORTHOGRAPHIC);
    ASSERT_TRUE(globe->SetMapPole(40, 10));
    EXPECT_NEAR(globe->ScaleMult(40, 10), 1, 1e-15);
    EXPECT_EQ(globe->ScaleMult(-50.1, 10), 0); // behind
}

// A cone that touches along one parallel is the limit of cones through two that come together.
TEST(Projection, StandardParallelsMayBeEqualOrVeryClose)
{
    const auto touching = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
    ASSERT_TRUE(touching->SetParamValue(0, 40) && touching->SetParamValue(1, 40));
    const XY expected = OnMap(*touching, 52, 30);
    for (const double step : {1e-13, 1e-10, 1e-8, 1e-6})
    {
        const auto close = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
        ASSERT_TRUE(close->SetParamValue(0, 40 - step) && close->SetParamValue(1, 40 + step));
        const XY point = OnMap(*close, 52, 30);
        EXPECT_NEAR(point.x, expected.x, 1e-14) << step;
        EXPECT_NEAR(point.y, expected.y, 1e-14) << step;
    }
}

TEST(Projection, ASouthernConeMirrorsTheNorthernOne)
{
    const auto north = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
    const auto south = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
    ASSERT_TRUE(south->SetParamValue(0, -33) && south->SetParamValue(1, -45));
    ASSERT_TRUE(north->SetMapPole(20, 5) && south->SetMapPole(-20, 5));
    for (const double lat : {-60.0, 0.0, 20.0, 70.0, 90.0})
    {
        const XY up = OnMap(*north, lat, 80);
        const XY down = OnMap(*south, -lat, 80);
        EXPECT_EQ(up.x, down.x) << lat;
        EXPECT_EQ(up.y, -down.y) << lat;
    }
    ExpectRefused(*north, -90, 5);
    ExpectRefused(*south, 90, 5);
}

TEST(Projection, OppositeStandardParallelsMakeNoMapUntilOneIsChanged)
{
    const auto projection = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
    ASSERT_TRUE(projection->SetParamValue(0, -45)); // 45 is the other one
    EXPECT_FALSE(projection->Init());
    ExpectRefused(*projection, 40, 0);
    ExpectNowhere(*projection, 0, 0);
    EXPECT_EQ(projection->ScaleMult(40, 0), 0);
    EXPECT_EQ(projection->NMapLimitPts(), 0);
    EXPECT_FALSE(projection->SetMapPole(10, 10));
    XY corner;
    XY other;
    projection->MinMaxMapXY(corner.x, corner.y, other.x, other.y);
    EXPECT_EQ(corner.x, 0);
    EXPECT_EQ(other.y, 0);
    ASSERT_TRUE(projection->SetParamValue(1, -33));
    EXPECT_TRUE(projection->Init());
    OnMap(*projection, -40, 0);
}

TEST(Projection, TheSeamHasTwoSides)
{
    for (const int kind : {PROJECTION_EQUIDISTANT_CYLINDRICAL, PROJECTION_MERCATOR, PROJECTION_LAMBERT_CONFORMAL})
    {
        const auto projection = MakeProjection(kind);
        ASSERT_TRUE(projection->SetMapPole(0, 10));
        const XY west = OnMap(*projection, 30, -170);
        const XY east = OnMap(*projection, 30, 190);
        EXPECT_EQ(west.x, -east.x) << kind;
        EXPECT_EQ(west.y, east.y) << kind;
        EXPECT_GT(east.x, 0) << kind;
        EXPECT_GT(OnMap(*projection, 30, -170.1).x, 0) << kind;
        EXPECT_LT(OnMap(*projection, 30, 190.1).x, 0) << kind;
        for (const XY& edge : {west, east})
        {
            XY back;
            ASSERT_TRUE(projection->XYtoLL(edge.x, edge.y, back.x, back.y)) << kind;
            EXPECT_NEAR(back.x, 30, 1e-12);
            EXPECT_NEAR(back.y, -170, 1e-12);
        }
    }
}

TEST(Projection, LongitudesMayBeAnyNumberAndComeBackInOneCircle)
{
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        ASSERT_TRUE(projection->SetMapPole(20, 170 + 720));
        const XY point = OnMap(*projection, 25, -175);
        const XY turned = OnMap(*projection, 25, -175 + 3600);
        EXPECT_NEAR(point.x, turned.x, 1e-14) << kind;
        EXPECT_NEAR(point.y, turned.y, 1e-14) << kind;
        XY back;
        ASSERT_TRUE(projection->XYtoLL(point.x, point.y, back.x, back.y));
        EXPECT_NEAR(back.y, -175, 1e-12) << kind;
        double lat = 0;
        double lon = 0;
        projection->GetCenterLatLon(lat, lon);
        EXPECT_EQ(lat, 20);
        EXPECT_EQ(lon, 170);
    }
}

TEST(Projection, RefuseWhatIsNoPositionAndNoPoint)
{
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        for (const double bad : {kNoNumber, kEndless, -kEndless})
        {
            ExpectRefused(*projection, bad, 0);
            ExpectRefused(*projection, 0, bad);
            ExpectNowhere(*projection, bad, 0);
            ExpectNowhere(*projection, 0, bad);
            EXPECT_FALSE(projection->SetMapPole(bad, 0));
            EXPECT_FALSE(projection->SetMapPole(0, bad));
            EXPECT_FALSE(projection->PanTo(bad, 0));
            EXPECT_FALSE(projection->PanTo(0, bad));
            EXPECT_EQ(projection->ScaleMult(bad, 0), 0);
            EXPECT_EQ(projection->ScaleMult(0, bad), 0);
        }
        for (const double beyond : {90.0001, -90.0001, 1e300, -1e300})
        {
            ExpectRefused(*projection, beyond, 0);
            EXPECT_FALSE(projection->SetMapPole(beyond, 0));
            EXPECT_FALSE(projection->PanTo(beyond, 0));
            EXPECT_EQ(projection->ScaleMult(beyond, 0), 0);
        }
        const std::string before = StateOf(*projection);
        projection->SetSkew(kNoNumber);
        projection->OffsetSkew(kEndless);
        EXPECT_EQ(StateOf(*projection), before) << kind;
    }
}

TEST(Projection, PointsOutsideOfTheMapHaveNoPosition)
{
    for (const int kind : {PROJECTION_EQUIDISTANT_CYLINDRICAL, PROJECTION_MERCATOR})
    {
        ExpectNowhere(*MakeProjection(kind), kPi * 1.0001, 0);
        ExpectNowhere(*MakeProjection(kind), -kPi * 1.0001, 0);
        ExpectNowhere(*MakeProjection(kind), 1e308, 1e308);
    }
    ExpectNowhere(*MakeProjection(PROJECTION_EQUIDISTANT_CYLINDRICAL), 0, kPi / 2 * 1.0001);

    const auto globe = MakeProjection(PROJECTION_ORTHOGRAPHIC);
    ExpectNowhere(*globe, 0.8, 0.8);
    ExpectNowhere(*globe, 1.0000001, 0);
    ExpectRefused(*globe, 0, 90.001);
    ExpectRefused(*globe, 0, 180);

    const auto transverse = MakeProjection(PROJECTION_TRANSVERSE_MERCATOR);
    ExpectRefused(*transverse, 0, 90);
    ExpectRefused(*transverse, 0, 61);
    ExpectNowhere(*transverse, 1.4, 0);
    ExpectNowhere(*transverse, 0, 3.2);
    ExpectNowhere(*transverse, 1e308, 0);

    const auto lambert = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
    ASSERT_TRUE(lambert->SetMapPole(60, 0));
    double top = 0;
    double unused = 0;
    ASSERT_TRUE(lambert->LLtoXY(90, 0, unused, top));
    ExpectNowhere(*lambert, 0, top + 1); // in the gap above the cone's pole
}

TEST(Projection, PolesThatLieInfinitelyFarAreRefused)
{
    const auto mercator = MakeProjection(PROJECTION_MERCATOR);
    ExpectRefused(*mercator, 90, 0);
    ExpectRefused(*mercator, -90, 0);
    EXPECT_EQ(mercator->ScaleMult(90, 0), 0);
    EXPECT_FALSE(mercator->SetMapPole(90, 7));
    double lat = 1;
    double lon = 1;
    mercator->GetCenterLatLon(lat, lon);
    EXPECT_EQ(lat, 0);
    EXPECT_EQ(lon, 0);
    OnMap(*mercator, 89.999999, 0);

    const auto lambert = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
    EXPECT_FALSE(lambert->SetMapPole(-90, 0));
    EXPECT_TRUE(lambert->SetMapPole(90, 0));
    EXPECT_NEAR(OnMap(*lambert, 90, 77).x, 0, 1e-16);
    EXPECT_NEAR(OnMap(*lambert, 90, 77).y, 0, 1e-16);
}

TEST(Projection, TransverseMercatorGoesOnOverThePole)
{
    const auto projection = MakeProjection(PROJECTION_TRANSVERSE_MERCATOR);
    const double quadrant = OnMap(*projection, 90, 0).y;
    EXPECT_NEAR(quadrant * 6378137, 10001965.7293, 1e-4); // the meridian's quarter
    const XY beyond = OnMap(*projection, 80, 180);
    EXPECT_NEAR(beyond.y, 2 * quadrant - OnMap(*projection, 80, 0).y, 1e-15);
    EXPECT_NEAR(beyond.x, 0, 1e-15);
    EXPECT_NEAR(OnMap(*projection, 0, 180).y, 2 * quadrant, 1e-15);
    EXPECT_EQ(OnMap(*projection, 30, 20).x, -OnMap(*projection, 30, -20).x);
    EXPECT_EQ(OnMap(*projection, 30, 20).y, -OnMap(*projection, -30, 20).y);
}

TEST(Projection, PanningMovesTheCentreOverTheSameMap)
{
    for (int kind = 0; kind < 5; ++kind)
    {
        const auto projection = MakeProjection(kind);
        ASSERT_TRUE(projection->SetMapPole(30, 10));
        const XY before = OnMap(*projection, 50, 20);
        ASSERT_TRUE(projection->PanTo(50, 20 + 360)) << kind;
        const XY after = OnMap(*projection, 50, 20);
        EXPECT_EQ(before.x, after.x) << kind;
        EXPECT_EQ(before.y, after.y) << kind;
        double lat = 0;
        double lon = 0;
        projection->GetCenterLatLon(lat, lon);
        EXPECT_EQ(lat, 50);
        EXPECT_EQ(lon, 20);
        XY centre;
        ASSERT_TRUE(projection->CenterMapXY(centre.x, centre.y));
        EXPECT_EQ(centre.x, before.x) << kind;
        EXPECT_EQ(centre.y, before.y) << kind;
        ASSERT_TRUE(projection->SetMapPole(30, 10));
        projection->GetCenterLatLon(lat, lon);
        EXPECT_EQ(lat, 30);
        EXPECT_EQ(lon, 10);
    }
}

TEST(Projection, PanningTurnsTheGlobe)
{
    const auto projection = MakeProjection(PROJECTION_ORTHOGRAPHIC);
    ExpectRefused(*projection, -20, 170);
    ASSERT_TRUE(projection->PanTo(-20, 170));
    EXPECT_NEAR(OnMap(*projection, -20, 170).x, 0, 1e-16);
    EXPECT_NEAR(OnMap(*projection, -20, 170).y, 0, 1e-16);
    XY centre;
    ASSERT_TRUE(projection->CenterMapXY(centre.x, centre.y));
    EXPECT_NEAR(std::hypot(centre.x, centre.y), 0, 1e-16);
}

TEST(Projection, PanningToWhatTheMapDoesNotShowIsRefused)
{
    const auto mercator = MakeProjection(PROJECTION_MERCATOR);
    EXPECT_FALSE(mercator->PanTo(90, 0));
    const auto transverse = MakeProjection(PROJECTION_TRANSVERSE_MERCATOR);
    EXPECT_FALSE(transverse->PanTo(0, 90));
    double lat = 1;
    double lon = 1;
    transverse->GetCenterLatLon(lat, lon);
    EXPECT_EQ(lat, 0);
    EXPECT_EQ(lon, 0);
}

TEST(Projection, SkewTurnsMapCoordinatesClockwise)
{
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        EXPECT_EQ(projection->GetSkew(), 0);
        const XY unskewed = OnMap(*projection, 40, 20);
        projection->SetSkew(90);
        XY point{0, 1};
        projection->Skew(point.x, point.y);
        EXPECT_EQ(point.x, 1); // up became right, exactly
        EXPECT_EQ(point.y, 0);
        projection->UnSkew(point.x, point.y);
        EXPECT_EQ(point.x, 0);
        EXPECT_EQ(point.y, 1);

        projection->OffsetSkew(-120);
        EXPECT_EQ(projection->GetSkew(), -30);
        point = {1, 0};
        projection->Skew(point.x, point.y);
        EXPECT_NEAR(point.x, std::sqrt(0.75), 1e-15);
        EXPECT_NEAR(point.y, 0.5, 1e-15);
        projection->UnSkew(point.x, point.y);
        EXPECT_NEAR(point.x, 1, 1e-15);
        EXPECT_NEAR(point.y, 0, 1e-15);

        EXPECT_EQ(OnMap(*projection, 40, 20).x, unskewed.x); // positions know nothing of it
        projection->SetSkew(-190);
        EXPECT_EQ(projection->GetSkew(), 170);
        projection->OffsetSkew(10);
        EXPECT_EQ(projection->GetSkew(), 180);
        point = {2, 3};
        projection->Skew(point.x, point.y);
        EXPECT_EQ(point.x, -2);
        EXPECT_EQ(point.y, -3);
    }
}

namespace
{
double ParallelRadius(const Projection& projection, double lat)
{
    const bool isSphere = projection.Is3D() || (projection.IsCylindrical() && !projection.IsConformal());
    const double e2 = isSphere ? 0 : (2 - 1 / 298.257223563) / 298.257223563;
    const double sine = std::sin(lat * kRadianOfDegree);
    return std::cos(lat * kRadianOfDegree) / std::sqrt(1 - e2 * sine * sine);
}

double MeridianRadius(double lat)
{
    const double e2 = (2 - 1 / 298.257223563) / 298.257223563;
    const double sine = std::sin(lat * kRadianOfDegree);
    return (1 - e2) / std::pow(1 - e2 * sine * sine, 1.5);
}

/// How the map moves with a small change of the position, for a radian.
XY Slope(const Projection& projection, double lat, double lon, double stepLat, double stepLon)
{
    const XY ahead = OnMap(projection, lat + stepLat, lon + stepLon);
    const XY behind = OnMap(projection, lat - stepLat, lon - stepLon);
    const double angle = 2 * (stepLat + stepLon) * kRadianOfDegree;
    return {(ahead.x - behind.x) / angle, (ahead.y - behind.y) / angle};
}
} // namespace

TEST(Projection, TheScaleIsTheMapsSlopeAlongTheParallel)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> lats(-70, 80);
    std::uniform_real_distribution<double> lons(-50, 70);
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        ASSERT_TRUE(projection->SetMapPole(15, 10));
        for (int i = 0; i < 300; ++i)
        {
            const double lat = lats(random);
            const double lon = lons(random);
            const double scale = projection->ScaleMult(lat, lon);
            if (scale == 0 || projection->ScaleMult(lat, lon + 0.01) == 0 ||
                projection->ScaleMult(lat, lon - 0.01) == 0)
            {
                continue; // not on the map
            }
            const XY east = Slope(*projection, lat, lon, 0, 0.001);
            EXPECT_NEAR(std::hypot(east.x, east.y) / ParallelRadius(*projection, lat), scale, 1e-8 * (1 + scale))
                << kind << ' ' << lat << ' ' << lon;
            EXPECT_EQ(projection->ScaleError(lat, lon), scale - 1);
        }
    }
}

TEST(Projection, ConformalMapsHaveTheSameScaleAlongTheMeridianAndKeepTheRightAngle)
{
    std::mt19937 random(8);
    std::uniform_real_distribution<double> lats(-70, 80);
    std::uniform_real_distribution<double> lons(-40, 60);
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        ASSERT_TRUE(projection->SetMapPole(15, 10));
        for (int i = 0; projection->IsConformal() && i < 300; ++i)
        {
            const double lat = lats(random);
            const double lon = lons(random);
            const double scale = projection->ScaleMult(lat, lon);
            const XY east = Slope(*projection, lat, lon, 0, 0.001);
            const XY north = Slope(*projection, lat, lon, 0.001, 0);
            EXPECT_NEAR(std::hypot(north.x, north.y) / MeridianRadius(lat), scale, 1e-8 * scale * (1 + scale));
            const double cosine =
                (east.x * north.x + east.y * north.y) / (std::hypot(east.x, east.y) * std::hypot(north.x, north.y));
            EXPECT_NEAR(cosine, 0, 1e-7) << kind << ' ' << lat << ' ' << lon;
        }
    }
}

// Within 1e-9 degrees, longitudes by their width on the ground. The globe's rim is seen too slantingly for that.
TEST(Projection, RoundTripsComeBackToTheirPosition)
{
    std::mt19937 random(9);
    std::uniform_real_distribution<double> lats(-90, 90);
    std::uniform_real_distribution<double> lons(-180, 180);
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        int shown = 0;
        for (int i = 0; i < 4000; ++i)
        {
            if (i % 100 == 0)
            {
                ASSERT_TRUE(projection->SetMapPole(lats(random) * 0.9, lons(random)));
            }
            const double lat = lats(random);
            const double lon = lons(random);
            XY point;
            if (!projection->LLtoXY(lat, lon, point.x, point.y) ||
                (projection->Is3D() && std::hypot(point.x, point.y) > 0.9999))
            {
                continue;
            }
            ++shown;
            XY back;
            ASSERT_TRUE(projection->XYtoLL(point.x, point.y, back.x, back.y)) << kind << ' ' << lat << ' ' << lon;
            EXPECT_NEAR(back.x, lat, 1e-9) << kind << ' ' << lon;
            EXPECT_NEAR(std::remainder(back.y - lon, 360) * std::cos(lat * kRadianOfDegree), 0, 1e-9)
                << kind << ' ' << lat << ' ' << lon;
            EXPECT_GT(back.y, -180);
            EXPECT_LE(back.y, 180);
        }
        EXPECT_GT(shown, 1800) << kind;
    }
}
