#include "family/TarnUtil/core/LatLon.h"
#include "tests/oracle/OutsideTool.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <random>
#include <sstream>
#include <vector>

namespace
{

constexpr double kMetresPerMile = 1852;

struct Problem
{
    LatLon from;
    LatLon to;       ///< for the inverse problem
    double azimuth;  ///< for the direct problem
    double distance; ///< for the direct problem, nautical miles
};

/// All over the earth, close together, along meridians and the equator, and nearly opposite each other.
std::vector<Problem> Problems()
{
    std::mt19937 numbers(20261);
    const auto between = [&](double low, double high)
    {
        return low + (high - low) * static_cast<double>(numbers()) / 4294967295.0;
    };
    std::vector<Problem> problems;
    for (int i = 0; i < 1200; ++i)
    {
        const LatLon from(between(-90, 90), between(-180, 180));
        LatLon to(between(-90, 90), between(-180, 180));
        switch (i % 6)
        {
        case 1:
            to = LatLon(from.Lat() + between(-1e-4, 1e-4), from.Lon() + between(-1e-4, 1e-4));
            break;
        case 2:
            to = LatLon(between(-90, 90), from.Lon());
            break;
        case 3:
            to = LatLon(-from.Lat() + between(-0.5, 0.5), from.Lon() + 180 + between(-0.5, 0.5));
            break;
        case 4:
            to = LatLon(from.Lat() + between(-5, 5), from.Lon() + between(-5, 5));
            break;
        default:
            break;
        }
        problems.push_back({from, to, between(0, 360), between(0, i % 2 == 0 ? 5000 : 10800)});
    }
    return problems;
}

std::string Written(std::initializer_list<double> values)
{
    std::string text;
    for (const double value : values)
    {
        char number[40];
        std::snprintf(number, sizeof number, "%.17g ", value);
        text += number;
    }
    return text + '\n';
}

/// The three numbers of each line that the tool answers. With -E it integrates the ellipsoid's exact elliptic
/// integrals, which shares no series with what is tested; 10 more digits than metres.
std::vector<std::array<double, 3>> Solved(const std::string& input, const char* mode)
{
    const vorn::test::ScratchFolder folder;
    const std::string file = folder.Write("problems.txt", input);
    std::vector<std::string> words = {"GeodSolve", "-E", "-p", "10", "--input-file", file};
    if (*mode != '\0')
    {
        words.emplace_back(mode);
    }
    std::istringstream answers(vorn::test::RunTool(words));
    std::vector<std::array<double, 3>> solved;
    for (std::array<double, 3> line{}; answers >> line[0] >> line[1] >> line[2];)
    {
        solved.push_back(line);
    }
    return solved;
}

double DegreesApart(double first, double second)
{
    return std::abs(std::remainder(first - second, 360));
}

} // namespace

TEST(Geodesics, DistancesAndDirectionsAreThoseOfTheExactIntegrals)
{
    const std::vector<Problem> problems = Problems();
    std::string input;
    for (const Problem& problem : problems)
    {
        input += Written({problem.from.Lat(), problem.from.Lon(), problem.to.Lat(), problem.to.Lon()});
    }
    const auto answers = Solved(input, "-i");
    ASSERT_EQ(answers.size(), problems.size());
    for (std::size_t i = 0; i < problems.size(); ++i)
    {
        const auto& [azimuth, arrival, metres] = answers[i];
        const Problem& problem = problems[i];
        ASSERT_NEAR(problem.from.Distance(problem.to) * kMetresPerMile, metres, 1e-6) << i;
        // A nanometre across the way turns a short leg, and more so a leg to the far side, where all ways meet.
        const double metresToOneWay = std::abs(std::sin(metres / 6371000)) * 6371000;
        const double sideways = DegreesApart(problem.from.Direction(problem.to), azimuth) / 57.3 * metresToOneWay;
        ASSERT_LT(sideways, i % 6 == 3 ? 1e-4 : 1e-6) << i;
    }
}

TEST(Geodesics, EndPointsAreThoseOfTheExactIntegrals)
{
    const std::vector<Problem> problems = Problems();
    std::string input;
    for (const Problem& problem : problems)
    {
        input += Written({problem.from.Lat(), problem.from.Lon(), problem.azimuth, problem.distance * kMetresPerMile});
    }
    const auto answers = Solved(input, "");
    ASSERT_EQ(answers.size(), problems.size());
    for (std::size_t i = 0; i < problems.size(); ++i)
    {
        const auto& [lat, lon, arrival] = answers[i];
        const LatLon end = problems[i].from.EndPoint(problems[i].azimuth, problems[i].distance);
        ASSERT_LT(end.Distance(LatLon(lat, lon)) * kMetresPerMile, 1e-6) << i;
    }
}
