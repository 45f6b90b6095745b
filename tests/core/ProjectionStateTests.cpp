#include "tests/core/ProjectionCases.h"

#include <cstring>

using namespace vorn::test;

TEST(ProjectionState, ParametersHaveTheirNamesDefaultsAndRanges)
{
    struct Rule
    {
        int kind;
        int index;
        const char* name;
        double initial;
        double least;
        double most;
    };
    const std::array<Rule, 6> rules = {{{PROJECTION_EQUIDISTANT_CYLINDRICAL, 0, "True-scale latitude", 0, -89, 89},
                                        {PROJECTION_MERCATOR, 0, "True-scale latitude", 0, -89, 89},
                                        {PROJECTION_LAMBERT_CONFORMAL, 0, "Standard parallel 1", 33, -89, 89},
                                        {PROJECTION_LAMBERT_CONFORMAL, 1, "Standard parallel 2", 45, -89, 89},
                                        {PROJECTION_POLAR_STEREOGRAPHIC, 0, "True-scale latitude", 90, -90, 90},
                                        {PROJECTION_TRANSVERSE_MERCATOR, 0, "Scale", 1, 0.01, 100}}};
    for (const Rule& rule : rules)
    {
        const auto projection = MakeProjection(rule.kind);
        EXPECT_STREQ(projection->ParamName(rule.index), rule.name);
        EXPECT_EQ(projection->GetParamValue(rule.index), rule.initial);
        for (const double bad : {rule.least - 0.001, rule.most + 0.001, kNoNumber, kEndless})
        {
            EXPECT_FALSE(projection->SetParamValue(rule.index, bad)) << rule.kind;
            EXPECT_EQ(projection->GetParamValue(rule.index), rule.initial);
        }
        for (const double good : {rule.least, rule.most})
        {
            EXPECT_TRUE(projection->SetParamValue(rule.index, good)) << rule.kind;
            EXPECT_EQ(projection->GetParamValue(rule.index), good);
        }
    }
}

TEST(ProjectionState, ThereIsNothingBehindTheLastParameterAndTheLastLimitPoint)
{
    const std::array<int, 6> counts = {1, 1, 2, 1, 1, 0};
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        const int count = counts[static_cast<std::size_t>(kind)];
        EXPECT_EQ(projection->NumParams(), count) << kind;
        for (const int index : {-1, count, count + 1, std::numeric_limits<int>::max()})
        {
            EXPECT_STREQ(projection->ParamName(index), "");
            EXPECT_EQ(projection->GetParamValue(index), 0);
            EXPECT_FALSE(projection->SetParamValue(index, 1));
        }
        for (const int index : {-1, projection->NMapLimitPts(), std::numeric_limits<int>::max()})
        {
            XY point{1, 2};
            EXPECT_FALSE(projection->MapLimitPt(index, point.x, point.y));
            EXPECT_EQ(point.x, 1);
        }
    }
}

TEST(ProjectionState, TheOutlineFillsTheBounds)
{
    for (int kind = 0; kind < 6; ++kind)
    {
        for (const double poleLat : {40.0, -40.0})
        {
            const auto projection = MakeProjection(kind);
            ASSERT_TRUE(projection->SetMapPole(poleLat, 10));
            XY least;
            XY most;
            projection->MinMaxMapXY(least.x, least.y, most.x, most.y);
            ASSERT_GT(projection->NMapLimitPts(), 3);
            XY outlineLeast{1e9, 1e9};
            XY outlineMost{-1e9, -1e9};
            for (int i = 0; i < projection->NMapLimitPts(); ++i)
            {
                XY point;
                ASSERT_TRUE(projection->MapLimitPt(i, point.x, point.y));
                outlineLeast = {std::min(outlineLeast.x, point.x), std::min(outlineLeast.y, point.y)};
                outlineMost = {std::max(outlineMost.x, point.x), std::max(outlineMost.y, point.y)};
                // Just inside there is map.
                const double middleX = kind == PROJECTION_LAMBERT_CONFORMAL ? 0 : (least.x + most.x) / 2;
                const double middleY = kind == PROJECTION_LAMBERT_CONFORMAL ? 0 : (least.y + most.y) / 2;
                XY position;
                EXPECT_TRUE(projection->XYtoLL(point.x + (middleX - point.x) * 1e-6,
                                               point.y + (middleY - point.y) * 1e-6, position.x, position.y))
                    << kind << ' ' << i;
            }
            EXPECT_NEAR(outlineLeast.x, least.x, 0.01);
            EXPECT_NEAR(outlineLeast.y, least.y, 0.01);
            EXPECT_NEAR(outlineMost.x, most.x, 0.01);
            EXPECT_NEAR(outlineMost.y, most.y, 0.01);
            EXPECT_LE(least.x, outlineLeast.x);
            EXPECT_GE(most.x, outlineMost.x);
        }
    }
}

TEST(ProjectionState, BoundsAreThoseOfTheKnownMaps)
{
    XY least;
    XY most;
    const auto flat = MakeProjection(PROJECTION_EQUIDISTANT_CYLINDRICAL);
    flat->MinMaxMapXY(least.x, least.y, most.x, most.y);
    EXPECT_NEAR(least.x, -kPi, 1e-15);
    EXPECT_NEAR(most.y, kPi / 2, 1e-15);
    const auto globe = MakeProjection(PROJECTION_ORTHOGRAPHIC);
    globe->MinMaxMapXY(least.x, least.y, most.x, most.y);
    EXPECT_NEAR(least.x, -1, 1e-15);
    EXPECT_NEAR(least.y, -1, 1e-15);
    EXPECT_NEAR(most.x, 1, 1e-15);
    EXPECT_NEAR(most.y, 1, 1e-15);
    const auto lambert = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
    lambert->MinMaxMapXY(least.x, least.y, most.x, most.y);
    EXPECT_EQ(least.x, -most.x);
    // The widest place of the parallel that bounds the map, 90 degrees of the cone from the middle.
    double widest = 0;
    for (double lon = 0; lon < 180; lon += 0.01)
    {
        widest = std::max(widest, OnMap(*lambert, -30, lon).x);
    }
    EXPECT_NEAR(most.x, widest, 1e-6);
}

TEST(ProjectionState, ClonesAreAlikeAndIndependent)
{
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto projection = MakeProjection(kind);
        ASSERT_TRUE(projection->SetMapPole(47, 8));
        ASSERT_TRUE(projection->PanTo(46, 9));
        projection->SetSkew(12);
        if (projection->NumParams() > 0)
        {
            ASSERT_TRUE(projection->SetParamValue(0, 35));
        }
        const std::unique_ptr<Projection> clone(projection->Clone());
        ASSERT_NE(clone, nullptr);
        EXPECT_STREQ(clone->QueryProjectionName(), projection->QueryProjectionName());
        EXPECT_EQ(StateOf(*clone), StateOf(*projection)) << kind;
        EXPECT_EQ(OnMap(*clone, 40, 20).x, OnMap(*projection, 40, 20).x);
        EXPECT_EQ(OnMap(*clone, 40, 20).y, OnMap(*projection, 40, 20).y);
        ASSERT_TRUE(clone->SetMapPole(10, 10));
        EXPECT_NE(StateOf(*clone), StateOf(*projection)) << kind;
    }
}

TEST(ProjectionState, TheSerialisedFormIsKindPositionsSkewAndParameters)
{
    const auto projection = MakeProjection(PROJECTION_LAMBERT_CONFORMAL);
    ASSERT_TRUE(projection->SetMapPole(23, -96));
    ASSERT_TRUE(projection->PanTo(35, -75));
    projection->SetSkew(-7.5);
    const std::string state = StateOf(*projection);
    ASSERT_EQ(state.size(), 4 + 5 * 8 + 4 + 2 * 8U);
    const double fields[] = {23, -96, 35, -75, -7.5};
    const double parameters[] = {33, 45};
    const int kind = 2;
    const int count = 2;
    EXPECT_EQ(std::memcmp(state.data(), &kind, 4), 0);
    EXPECT_EQ(std::memcmp(state.data() + 4, fields, 40), 0);
    EXPECT_EQ(std::memcmp(state.data() + 44, &count, 4), 0);
    EXPECT_EQ(std::memcmp(state.data() + 48, parameters, 16), 0);
}

TEST(ProjectionState, ReadsBackWhatItWrote)
{
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto written = MakeProjection(kind);
        ASSERT_TRUE(written->SetMapPole(-33, 151));
        ASSERT_TRUE(written->PanTo(-30, 150));
        written->SetSkew(77);
        std::string state = StateOf(*written);
        const auto read = MakeProjection(kind);
        char* cursor = state.data();
        auto remaining = static_cast<unsigned long>(state.size());
        ASSERT_TRUE(read->ReadWrite(cursor, remaining, true)) << kind;
        EXPECT_EQ(cursor, state.data() + state.size());
        EXPECT_EQ(remaining, 0U);
        EXPECT_EQ(StateOf(*read), state) << kind;
        EXPECT_EQ(OnMap(*read, -40, 140).x, OnMap(*written, -40, 140).x);
        EXPECT_EQ(OnMap(*read, -40, 140).y, OnMap(*written, -40, 140).y);
    }
}

TEST(ProjectionState, ShortBuffersAreRefusedAndChangeNothing)
{
    for (int kind = 0; kind < 6; ++kind)
    {
        const auto other = MakeProjection(kind);
        ASSERT_TRUE(other->SetMapPole(12, 34));
        const std::string state = StateOf(*other);
        const auto projection = MakeProjection(kind);
        const std::string before = StateOf(*projection);
        for (std::size_t length = 0; length < state.size(); ++length)
        {
            std::vector<char> cut(state.begin(), state.begin() + static_cast<std::ptrdiff_t>(length));
            char* cursor = cut.data();
            auto remaining = static_cast<unsigned long>(length);
            EXPECT_FALSE(projection->ReadWrite(cursor, remaining, true)) << kind << ' ' << length;
            cursor = cut.data();
            remaining = static_cast<unsigned long>(length);
            EXPECT_FALSE(projection->ReadWrite(cursor, remaining, false)) << kind << ' ' << length;
        }
        char* none = nullptr;
        unsigned long remaining = 1000;
        EXPECT_FALSE(projection->ReadWrite(none, remaining, true));
        EXPECT_EQ(StateOf(*projection), before) << kind;
    }
}

TEST(ProjectionState, ForeignStatesAreRefusedAndChangeNothing)
{
    const auto projection = MakeProjection(PROJECTION_MERCATOR);
    const std::string before = StateOf(*projection);
    const auto refuses = [&](std::size_t at, auto value)
    {
        std::string state = before;
        std::memcpy(state.data() + at, &value, sizeof value);
        char* cursor = state.data();
        auto remaining = static_cast<unsigned long>(state.size());
        return !projection->ReadWrite(cursor, remaining, true) && StateOf(*projection) == before;
    };
    EXPECT_TRUE(refuses(0, 2));  // another kind
    EXPECT_TRUE(refuses(44, 2)); // another number of parameters
    EXPECT_TRUE(refuses(44, -1));
    for (const double bad : {kNoNumber, kEndless, 1000.0, -1000.0})
    {
        for (const std::size_t at : {4U, 12U, 20U, 28U, 36U, 48U})
        {
            EXPECT_TRUE(refuses(at, bad)) << at << ' ' << bad;
        }
    }
    EXPECT_FALSE(refuses(12, -180.0)); // the same meridian as 180
    double lat = 0;
    double lon = 0;
    EXPECT_TRUE(projection->SetMapPole(0, 180));
    projection->GetCenterLatLon(lat, lon);
    EXPECT_EQ(lon, 180);
}
