#include "aviation/core/DistributePoints.h"
#include "aviation/core/EvenSteps.h"
#include "tests/support/SpecialNumbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>
#include <ostream>
#include <random>
#include <vector>

static void PrintTo(const CPoint& point, std::ostream* out)
{
    *out << '(' << point.x << ", " << point.y << ')';
}

namespace
{

using vorn::test::kInfinite;
using vorn::test::kNaN;

using Points = std::vector<CPoint>;

template <typename Point>
std::vector<Point> Distributed(std::vector<Point> line, double spacing)
{
    Point* out = line.data();
    const int count = DistributePoints(line.data(), static_cast<int>(line.size()), spacing, &out);
    const std::unique_ptr<Point[]> owned(out);
    EXPECT_EQ(out == nullptr, count == 0);
    return std::vector<Point>(out, out + count);
}

struct Place
{
    long double x;
    long double y;
};

/// The place on a line at a length from its start, walked plainly.
Place PlaceAt(const Points& line, long double length)
{
    for (std::size_t i = 1; i < line.size(); ++i)
    {
        const long double x = static_cast<long double>(line[i].x) - line[i - 1].x;
        const long double y = static_cast<long double>(line[i].y) - line[i - 1].y;
        const long double segment = std::hypot(x, y);
        if (length <= segment && segment > 0)
        {
            return {line[i - 1].x + x * length / segment, line[i - 1].y + y * length / segment};
        }
        length -= segment;
    }
    return {static_cast<long double>(line.back().x), static_cast<long double>(line.back().y)};
}

long double LengthOf(const Points& line)
{
    long double length = 0;
    for (std::size_t i = 1; i < line.size(); ++i)
    {
        length += std::hypot(static_cast<long double>(line[i].x) - line[i - 1].x,
                             static_cast<long double>(line[i].y) - line[i - 1].y);
    }
    return length;
}

} // namespace

TEST(DistributePoints, AHundredPixelsAtThirtyAreThreeEqualSteps)
{
    EXPECT_EQ(Distributed<CPoint>({{0, 0}, {100, 0}}, 30), (Points{{0, 0}, {33, 0}, {66, 0}, {100, 0}}));
    EXPECT_EQ(Distributed<CPoint>({{5, 200}, {5, 100}}, 30), (Points{{5, 200}, {5, 166}, {5, 133}, {5, 100}}));
}

TEST(DistributePoints, AShortLineGivesItsTwoEnds)
{
    EXPECT_EQ(Distributed<CPoint>({{0, 0}, {10, 0}}, 30), (Points{{0, 0}, {10, 0}}));
    EXPECT_EQ(Distributed<CPoint>({{3, 4}, {8, 4}, {9, 9}}, 30), (Points{{3, 4}, {9, 9}}));
    EXPECT_EQ(Distributed<CPoint>({{3, 4}, {3, 4}}, 30), (Points{{3, 4}, {3, 4}}));
}

TEST(DistributePoints, WholePlacesStayWhole)
{
    for (const int length : {30, 70, 490, 1210, 99990})
    {
        const Points points = Distributed<CPoint>({{0, 0}, {length, 0}}, 10);
        ASSERT_EQ(points.size(), static_cast<std::size_t>(length / 10 + 1));
        for (std::size_t i = 0; i < points.size(); ++i)
        {
            ASSERT_EQ(points[i], CPoint(static_cast<int>(i) * 10, 0));
        }
    }
    EXPECT_EQ(Distributed<CPoint>({{0, 0}, {30, 40}}, 10),
              (Points{{0, 0}, {6, 8}, {12, 16}, {18, 24}, {24, 32}, {30, 40}}));
}

TEST(DistributePoints, StepsRunOnOverCorners)
{
    EXPECT_EQ(Distributed<CPoint>({{0, 0}, {25, 0}, {25, 25}}, 10),
              (Points{{0, 0}, {10, 0}, {20, 0}, {25, 5}, {25, 15}, {25, 25}}));
    EXPECT_EQ(Distributed<CPoint>({{0, 0}, {3, 0}, {3, 3}, {6, 3}, {6, 11}}, 10), (Points{{0, 0}, {6, 11}}));
    EXPECT_EQ(Distributed<CPoint>({{0, 0}, {3, 0}, {3, 3}, {6, 3}, {6, 14}}, 10), (Points{{0, 0}, {6, 4}, {6, 14}}));
}

TEST(DistributePoints, TheSumIsCutTowardZeroNotTheStep)
{
    // Steps of 3.5 from -10: -6.5, -3, 0.5, 4.
    EXPECT_EQ(Distributed<CPoint>({{-10, 0}, {4, 0}}, 3.5), (Points{{-10, 0}, {-6, 0}, {-3, 0}, {0, 0}, {4, 0}}));
}

TEST(DistributePoints, SegmentsWithoutLengthArePassedOver)
{
    const Points once = Distributed<CPoint>({{0, 0}, {153, 0}}, 11.5);
    EXPECT_EQ(Distributed<CPoint>({{0, 0}, {153, 0}, {153, 0}}, 11.5), once);
    EXPECT_EQ(Distributed<CPoint>({{0, 0}, {0, 0}, {153, 0}}, 11.5), once);
    const Points plain = Distributed<CPoint>({{0, 0}, {1, 2}, {5, 2}}, 1.3);
    EXPECT_EQ(Distributed<CPoint>({{0, 0}, {1, 2}, {1, 2}, {5, 2}, {5, 2}}, 1.3), plain);
}

TEST(DistributePoints, SpacingsThatCannotBeCountedGiveTheTwoEnds)
{
    const Points ends = {{0, 0}, {100, 0}};
    for (const double spacing :
         {0.0, -0.0, -30.0, -1000.0, kNaN, kInfinite, -kInfinite, 1e-300, 100.0 / INT_MAX, 100.5})
    {
        EXPECT_EQ(Distributed<CPoint>(ends, spacing), ends) << spacing;
    }
}

TEST(DistributePoints, NothingGivesNothing)
{
    CPoint point;
    CPoint* out = &point;
    EXPECT_EQ(DistributePoints(&point, 1, 10, &out), 0);
    EXPECT_EQ(out, nullptr);
    for (const int count : {0, -1, INT_MIN})
    {
        out = &point;
        EXPECT_EQ(DistributePoints(&point, count, 10, &out), 0);
        EXPECT_EQ(out, nullptr);
    }
    out = &point;
    EXPECT_EQ(DistributePoints(static_cast<CPoint*>(nullptr), 5, 10, &out), 0);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(DistributePoints(&point, 1, 10, static_cast<CPoint**>(nullptr)), 0);
}

TEST(DistributePoints, TheLargestCoordinatesDoNotOverflow)
{
    const Points points = Distributed<CPoint>({{INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}}, 1e9);
    ASSERT_EQ(points.size(), 7U); // 6.07e9 pixels
    EXPECT_EQ(points[3], CPoint(0, 0));
    EXPECT_EQ(points.back(), CPoint(INT_MAX, INT_MIN));
}

TEST(DistributePoints, AnyLineIsSpacedEvenlyFromEndToEnd)
{
    std::mt19937 numbers(11);
    for (int round = 0; round < 2000; ++round)
    {
        Points line;
        const int size = round % 3 == 0 ? 20 : 3000;
        for (int i = 0; i < 2 + round % 7; ++i)
        {
            line.emplace_back(static_cast<int>(numbers()) % size, static_cast<int>(numbers()) % size);
        }
        const double spacing = 0.3 + static_cast<double>(numbers() % 1000) / 25;
        const long double length = LengthOf(line);
        const Points points = Distributed<CPoint>(line, spacing);
        const long double steps = std::trunc(length / static_cast<long double>(spacing));
        if (steps < 1)
        {
            ASSERT_EQ(points, (Points{line.front(), line.back()}));
            continue;
        }
        ASSERT_NEAR(static_cast<double>(points.size()), static_cast<double>(steps) + 1, steps > 1e4L ? 1 : 0);
        ASSERT_EQ(points.front(), line.front());
        ASSERT_EQ(points.back(), line.back());
        for (std::size_t i = 0; i < points.size(); ++i)
        {
            const Place place =
                PlaceAt(line, length * static_cast<long double>(i) / static_cast<long double>(points.size() - 1));
            ASSERT_LT(std::abs(static_cast<long double>(points[i].x) - place.x), 1.000001L) << round << ' ' << i;
            ASSERT_LT(std::abs(static_cast<long double>(points[i].y) - place.y), 1.000001L) << round << ' ' << i;
            ASSERT_LE(std::abs(points[i].x), std::abs(place.x) + 0.000001L);
            ASSERT_LE(std::abs(points[i].y), std::abs(place.y) + 0.000001L);
        }
    }
}

TEST(DistributePoints, StepsNeverPassTheirCount)
{
    const vorn::EvenSteps steps(100, 30, 8);
    EXPECT_EQ(steps.Points(), 4);
    vorn::StepWalk walk(steps);
    EXPECT_EQ(walk.PointsOn(1e6), 3);
    walk.Pass(1e6, 3);
    EXPECT_EQ(walk.PointsOn(1e6), 0);
}

TEST(DistributePoints, AnArrayIsNeverLargerThanTheAddressSpace)
{
    EXPECT_EQ(vorn::EvenSteps(1e9, 1, sizeof(CPoint)).Points(), sizeof(void*) == 4 ? 0 : 1000000001);
    EXPECT_EQ(vorn::EvenSteps(static_cast<double>(INT_MAX), 1, 1).Points(), 0);
    EXPECT_EQ(vorn::EvenSteps(static_cast<double>(INT_MAX) - 2, 1, 1).Points(), INT_MAX - 1);
    EXPECT_EQ(vorn::EvenSteps(0, 1, 1).Points(), 0);
}

TEST(DistributePositions, StepsAlongTheEquatorAreEqual)
{
    const std::vector<LatLon> points = Distributed<LatLon>({{0, 10}, {0, 12}}, 35);
    ASSERT_EQ(points.size(), 4U); // 120.2 NM
    EXPECT_EQ(points[0], LatLon(0, 10));
    EXPECT_NEAR(points[1].Lon(), 10 + 2.0 / 3, 1e-9);
    EXPECT_NEAR(points[2].Lon(), 10 + 4.0 / 3, 1e-9);
    EXPECT_NEAR(points[1].Lat(), 0, 1e-12);
    EXPECT_EQ(points[3], LatLon(0, 12));
}

TEST(DistributePositions, StepsRunOnOverTurns)
{
    const std::vector<LatLon> route = {{50, 0}, {51, 0.5}, {51, 0.5}, {50.5, 3}, {48, 4}};
    const std::vector<LatLon> points = Distributed<LatLon>(route, 25);
    const double first = route[0].Distance(route[1]);
    const double second = route[2].Distance(route[3]);
    const double length = first + second + route[3].Distance(route[4]);
    const int steps = static_cast<int>(length / 25);
    ASSERT_EQ(points.size(), static_cast<std::size_t>(steps) + 1);
    EXPECT_EQ(points.front(), route.front());
    EXPECT_EQ(points.back(), route.back());
    const double step = length / steps;
    for (int i = 1; i < steps; ++i)
    {
        const double place = i * step;
        const std::size_t leg = place < first ? 0 : place < first + second ? 2 : 3;
        const double onLeg = place - (leg == 0 ? 0 : leg == 2 ? first : first + second);
        const LatLon wanted = route[leg].EndPoint(route[leg].Direction(route[leg + 1]), onLeg);
        EXPECT_LT(points[static_cast<std::size_t>(i)].Distance(wanted), 1e-7) << i;
    }
}

TEST(DistributePositions, AcrossTheDateLine)
{
    const std::vector<LatLon> points = Distributed<LatLon>({{0, 179}, {0, -179}}, 30);
    ASSERT_EQ(points.size(), 5U);
    EXPECT_NEAR(points[1].Lon(), 179.5, 1e-9);
    EXPECT_NEAR(std::abs(points[2].Lon()), 180, 1e-9);
    EXPECT_NEAR(points[3].Lon(), -179.5, 1e-9);
}

TEST(DistributePositions, WhatGivesTwoEndsOnTheScreenGivesNothing)
{
    const std::vector<LatLon> line = {{0, 0}, {0, 1}};
    for (const double spacing : {61.0, 0.0, -30.0, kNaN, kInfinite, 1e-300})
    {
        EXPECT_TRUE(Distributed(line, spacing).empty()) << spacing;
    }
    EXPECT_TRUE(Distributed<LatLon>({{5, 5}, {5, 5}}, 10).empty());
    EXPECT_TRUE(Distributed<LatLon>({{5, 5}}, 10).empty());
    EXPECT_TRUE(Distributed<LatLon>({{0, 0}, {kNaN, 5}, {0, 50}}, 10).empty());
    EXPECT_EQ(Distributed(line, 60).size(), 2U);
}

TEST(DistributePositions, NothingGivesNothing)
{
    LatLon place;
    for (const int count : {1, 0, -1})
    {
        LatLon* out = &place;
        EXPECT_EQ(DistributePoints(&place, count, 10, &out), 0);
        EXPECT_EQ(out, nullptr);
    }
    LatLon* out = &place;
    EXPECT_EQ(DistributePoints(static_cast<LatLon*>(nullptr), 5, 10, &out), 0);
    EXPECT_EQ(out, nullptr);
    EXPECT_EQ(DistributePoints(&place, 2, 10, static_cast<LatLon**>(nullptr)), 0);
}
