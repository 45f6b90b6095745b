// Our projections, that of the sample plug-in too, and those of PROJ's programs (package proj-bin).
#include "family/VornChart/core/ExternalProj.h"
#include "family/VornChart/core/Projection.h"
#include "tests/oracle/OutsideTool.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <memory>
#include <optional>
#include <random>
#include <sstream>
#include <vornplugin.h>

namespace
{
constexpr double kEarthRadius = 6378137;

constexpr int kPlugin = -1;

struct Pair
{
    double first;
    double second;
};

/// A projection, set up both ways, and the part of the earth that it is used for.
struct Case
{
    int kind; ///< or kPlugin
    double poleLat;
    double poleLon;
    std::vector<double> parameters;
    std::vector<std::string> words; ///< for PROJ
    double south;
    double north;
    double reach; ///< degrees of longitude to both sides of the map pole
};

std::vector<Case> Cases()
{
    const std::string sphere = "+R=6378137";
    const std::string ellipsoid = "+ellps=WGS84";
    return {
        {0, 0, 0, {}, {"+proj=eqc", sphere}, -90, 90, 179.9},
        {0, 30, 100, {45}, {"+proj=eqc", "+lat_ts=45", "+lat_0=30", "+lon_0=100", sphere}, -90, 90, 179.9},
        {1, 0, 0, {}, {"+proj=merc", ellipsoid}, -85, 85, 179.9},
        {1, 0, -150, {52}, {"+proj=merc", "+lat_ts=52", "+lon_0=-150", ellipsoid}, -85, 85, 179.9},
        {2, 0, 0, {}, {"+proj=lcc", "+lat_1=33", "+lat_2=45", "+lat_0=0", ellipsoid}, -60, 89.9, 179.9},
        {2,
         23,
         -96,
         {33, 45},
         {"+proj=lcc", "+lat_1=33", "+lat_2=45", "+lat_0=23", "+lon_0=-96", ellipsoid},
         -60,
         90,
         179},
        {2, 47, 8, {46, 46}, {"+proj=lcc", "+lat_1=46", "+lat_0=47", "+lon_0=8", ellipsoid}, -30, 85, 120},
        {2,
         -25,
         134,
         {-18, -36},
         {"+proj=lcc", "+lat_1=-18", "+lat_2=-36", "+lat_0=-25", "+lon_0=134", ellipsoid},
         -85,
         50,
         170},
        {3, 90, 0, {}, {"+proj=stere", "+lat_0=90", ellipsoid}, -60, 90, 180},
        {3, 90, 33, {70}, {"+proj=stere", "+lat_0=90", "+lat_ts=70", "+lon_0=33", ellipsoid}, -60, 90, 180},
        {3, -90, -100, {71}, {"+proj=stere", "+lat_0=-90", "+lat_ts=-71", "+lon_0=-100", ellipsoid}, -90, 60, 180},
        {4, 0, 9, {0.9996}, {"+proj=tmerc", "+lon_0=9", "+k_0=0.9996", ellipsoid}, -90, 90, 45},
        {4, 49, -2, {}, {"+proj=tmerc", "+lat_0=49", "+lon_0=-2", ellipsoid}, -90, 90, 45},
        {5, 0, 0, {}, {"+proj=ortho", sphere}, -85, 85, 85},
        {5, 40, -100, {}, {"+proj=ortho", "+lat_0=40", "+lon_0=-100", sphere}, -30, 90, 60},
        {kPlugin, 0, 0, {}, {"+proj=aeqd", sphere}, -90, 90, 178},
        {kPlugin, 47, 8, {}, {"+proj=aeqd", "+lat_0=47", "+lon_0=8", sphere}, -46, 90, 180},
        {kPlugin, -90, 20, {}, {"+proj=aeqd", "+lat_0=-90", "+lon_0=20", sphere}, -90, 88, 180},
        {5, -90, 20, {}, {"+proj=ortho", "+lat_0=-90", "+lon_0=20", sphere}, -90, -1, 180},
    };
}

/// The sample plug-in, linked into this program in place of a module.
std::unique_ptr<Projection> OfPlugin()
{
    auto projection = std::make_unique<ExternalProj>(CreateProjection());
    const auto bind = [&projection](const std::string& name, auto* function)
    {
        for (int i = 0; i < ExternalProj::kEntryPoints; ++i)
        {
            if (name == ExternalProj::EntryPointName(i))
            {
                projection->Bind(i, reinterpret_cast<FARPROC>(reinterpret_cast<void (*)()>(function)));
            }
        }
    };
    bind("DestroyProjection", DestroyProjection);
    bind("QueryProjectionName", QueryProjectionName);
    bind("SetMapPole", SetMapPole);
    bind("LLtoXY", LLtoXY);
    bind("XYtoLL", XYtoLL);
    return projection;
}

std::unique_ptr<Projection> Prepared(const Case& theCase)
{
    std::unique_ptr<Projection> projection =
        theCase.kind == kPlugin ? OfPlugin() : std::unique_ptr<Projection>(Projection::CreateProjection(theCase.kind));
    for (std::size_t i = 0; i < theCase.parameters.size(); ++i)
    {
        EXPECT_TRUE(projection->SetParamValue(static_cast<int>(i), theCase.parameters[i]));
    }
    EXPECT_TRUE(projection->SetMapPole(theCase.poleLat, theCase.poleLon));
    return projection;
}

/// Latitude and longitude: the corners of the case's part of the earth, and 300 positions in it.
std::vector<Pair> Positions(const Case& theCase)
{
    std::mt19937 random(20262);
    std::uniform_real_distribution<double> lats(theCase.south, theCase.north);
    std::uniform_real_distribution<double> lons(theCase.poleLon - theCase.reach, theCase.poleLon + theCase.reach);
    std::vector<Pair> positions = {{theCase.poleLat, theCase.poleLon}};
    for (const double lat : {theCase.south, theCase.north})
    {
        positions.push_back({lat, theCase.poleLon - theCase.reach * 0.999});
        positions.push_back({lat, theCase.poleLon + theCase.reach * 0.999});
    }
    while (positions.size() < 305)
    {
        positions.push_back({lats(random), lons(random)});
    }
    return positions;
}

std::string Written(const std::vector<Pair>& pairs)
{
    std::string text;
    for (const Pair& pair : pairs)
    {
        std::array<char, 80> line{};
        std::snprintf(line.data(), line.size(), "%.17g %.17g\n", pair.first, pair.second);
        text += line.data();
    }
    return text;
}

std::vector<Pair> Asked(std::vector<std::string> words, const std::vector<Pair>& input)
{
    const vorn::test::ScratchFolder folder;
    words.push_back(folder.Write("input.txt", Written(input)));
    std::istringstream lines(vorn::test::RunTool(words));
    std::vector<Pair> answers;
    for (std::string line; std::getline(lines, line);)
    {
        Pair pair{};
        EXPECT_EQ(std::sscanf(line.c_str(), "%lf %lf", &pair.first, &pair.second), 2) << line;
        answers.push_back(pair);
    }
    EXPECT_EQ(answers.size(), input.size());
    return answers;
}

std::vector<std::string> Command(std::vector<std::string> words, const std::vector<std::string>& projection)
{
    words.insert(words.end(), projection.begin(), projection.end());
    return words;
}

std::vector<Pair> Swapped(std::vector<Pair> pairs)
{
    for (Pair& pair : pairs)
    {
        std::swap(pair.first, pair.second);
    }
    return pairs;
}

void ExpectSamePoint(const Projection& projection, const Pair& position, const Pair& expected)
{
    Pair point{};
    ASSERT_TRUE(projection.LLtoXY(position.first, position.second, point.first, point.second))
        << position.first << ' ' << position.second;
    EXPECT_NEAR(point.first * kEarthRadius, expected.first, 0.001) << position.first << ' ' << position.second;
    EXPECT_NEAR(point.second * kEarthRadius, expected.second, 0.001) << position.first << ' ' << position.second;
}
} // namespace

TEST(Projections, AreWithinAMillimetreOfProjs)
{
    for (const Case& theCase : Cases())
    {
        SCOPED_TRACE(theCase.words[0] + ' ' + theCase.words[1]);
        const auto projection = Prepared(theCase);
        const std::vector<Pair> positions = Positions(theCase);
        const auto answers = Asked(Command({"proj", "-f", "%.6f"}, theCase.words), Swapped(positions));
        for (std::size_t i = 0; i < answers.size() && i < positions.size(); ++i)
        {
            ExpectSamePoint(*projection, positions[i], answers[i]);
        }
    }
}

TEST(Projections, InvertAsProjsDo)
{
    for (const Case& theCase : Cases())
    {
        SCOPED_TRACE(theCase.words[0] + ' ' + theCase.words[1]);
        const auto projection = Prepared(theCase);
        std::vector<Pair> metres;
        std::vector<Pair> points;
        for (const Pair& position : Positions(theCase))
        {
            Pair point{};
            if (projection->LLtoXY(position.first, position.second, point.first, point.second) &&
                (!projection->Is3D() || std::hypot(point.first, point.second) < 0.999))
            {
                points.push_back(point);
                metres.push_back({point.first * kEarthRadius, point.second * kEarthRadius});
            }
        }
        ASSERT_GT(points.size(), 200U);
        const auto answers = Asked(Command({"proj", "-I", "-f", "%.12f"}, theCase.words), metres);
        for (std::size_t i = 0; i < answers.size() && i < points.size(); ++i)
        {
            Pair position{};
            ASSERT_TRUE(projection->XYtoLL(points[i].first, points[i].second, position.first, position.second));
            // An arcsine gives PROJ's globe its latitudes, which cannot tell those next to the pole apart.
            const double slack = projection->Is3D() && std::abs(position.first) > 89.99 ? 1e-6 : 2e-9;
            EXPECT_NEAR(position.first, answers[i].second, slack);
            EXPECT_NEAR(std::remainder(position.second - answers[i].first, 360) *
                            std::cos(position.first * 3.14159265358979 / 180),
                        0, slack)
                << position.first << ' ' << position.second;
        }
    }
}

// The other program, which goes through coordinate systems, and takes latitude first for this one.
TEST(Projections, AreThoseOfPublishedCoordinateSystems)
{
    const std::vector<Pair> positions = {{47.5, 8.5}, {35.2, 12}, {60, 3}, {0.5, 9}, {80, 11.9}};
    const auto utm = Asked({"cs2cs", "-f", "%.6f", "EPSG:4326", "EPSG:32632"}, positions);
    const auto projection = Prepared({4, 0, 9, {0.9996}, {}, 0, 0, 0});
    for (std::size_t i = 0; i < utm.size(); ++i)
    {
        ExpectSamePoint(*projection, positions[i], {utm[i].first - 500000, utm[i].second});
    }
}
