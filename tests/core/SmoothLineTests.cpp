#include "aviation/core/SmoothLine.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>
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

using Points = std::vector<CPoint>;

Points Smoothed(Points line)
{
    CPoint* out = nullptr;
    const int count = BezierSmoothLine(line.data(), static_cast<int>(line.size()), &out);
    const std::unique_ptr<CPoint[]> owned(out);
    return Points(out, out + count);
}

LONG Half(std::int64_t sum)
{
    return static_cast<LONG>(sum / 2);
}

/// The curve by repeated division of its edges, every step exact: each multiplies by 10.
LONG Divided(LONG before, LONG corner, LONG after, int k)
{
    const LONG start = Half(std::int64_t{before} + corner);
    const LONG end = Half(std::int64_t{corner} + after);
    std::int64_t values[4] = {start, Half(std::int64_t{corner} + start), Half(std::int64_t{corner} + end), end};
    for (int left = 3; left > 0; --left)
    {
        for (int i = 0; i < left; ++i)
        {
            values[i] = values[i] * (10 - k) + values[i + 1] * k;
        }
    }
    return static_cast<LONG>(values[0] / 1000);
}

Points Expected(const Points& line)
{
    const std::size_t last = line.size() - 1;
    const bool closed = line[0] == line[last];
    const std::size_t curves = closed ? last : last - 1;
    Points wanted;
    for (std::size_t i = 0; i < curves; ++i)
    {
        const CPoint& before = line[i];
        const CPoint& corner = line[i + 1];
        const CPoint& after = line[closed ? (i + 2) % last : i + 2];
        for (int k = 0; k < 10; ++k)
        {
            wanted.emplace_back(Divided(before.x, corner.x, after.x, k), Divided(before.y, corner.y, after.y, k));
        }
    }
    if (!closed)
    {
        wanted.insert(wanted.begin(), line.front());
        wanted.push_back(line.back());
    }
    return wanted;
}

} // namespace

TEST(BezierSmoothLine, AnOpenCornerHasTwelvePoints)
{
    // Up to the middle of the turn y is 0.725, 2.8, 6.075, 10.4, 15.625; x mirrors it.
    const Points wanted = {{0, 0},   {50, 0},  {57, 0},  {64, 2},  {71, 6},  {78, 10},
                           {84, 15}, {89, 21}, {93, 28}, {97, 35}, {99, 42}, {100, 100}};
    EXPECT_EQ(Smoothed({{0, 0}, {100, 0}, {100, 100}}), wanted);
}

TEST(BezierSmoothLine, AClosedSquareHasFortyPointsAndTurnsEveryCorner)
{
    const Points square = {{0, 0}, {100, 0}, {100, 100}, {0, 100}, {0, 0}};
    const Points smooth = Smoothed(square);
    ASSERT_EQ(smooth.size(), 40U);
    EXPECT_EQ(smooth[0], CPoint(50, 0));
    EXPECT_EQ(smooth[10], CPoint(100, 50));
    EXPECT_EQ(smooth[20], CPoint(50, 100));
    EXPECT_EQ(smooth[30], CPoint(0, 50));
    EXPECT_EQ(smooth, Expected(square));
}

TEST(BezierSmoothLine, FewPointsAreCopied)
{
    EXPECT_EQ(Smoothed({{7, -3}}), (Points{{7, -3}}));
    EXPECT_EQ(Smoothed({{7, -3}, {1, 2}}), (Points{{7, -3}, {1, 2}}));
    EXPECT_EQ(Smoothed({{5, 5}, {5, 5}}), (Points{{5, 5}, {5, 5}}));
}

TEST(BezierSmoothLine, NothingLeavesTheResultAlone)
{
    CPoint point;
    CPoint* out = &point;
    EXPECT_EQ(BezierSmoothLine(&point, 0, &out), 0);
    EXPECT_EQ(BezierSmoothLine(&point, -5, &out), 0);
    EXPECT_EQ(BezierSmoothLine(nullptr, 5, &out), 0);
    EXPECT_EQ(BezierSmoothLine(&point, INT_MAX, &out), 0); // would be 21 thousand million points
    EXPECT_EQ(out, &point);
    EXPECT_EQ(BezierSmoothLine(&point, 1, nullptr), 0);
}

TEST(BezierSmoothLine, ThereAndBackIsClosed)
{
    const Points smooth = Smoothed({{0, 0}, {100, 40}, {0, 0}});
    ASSERT_EQ(smooth.size(), 20U);
    EXPECT_EQ(smooth[0], CPoint(50, 20));
    EXPECT_EQ(smooth[5], CPoint(68, 27));  // (50 + 3 * 75 + 3 * 75 + 50) / 8 is 68.75, and 27.5
    EXPECT_EQ(smooth[15], CPoint(31, 12)); // 31.25, 12.5
}

TEST(BezierSmoothLine, EqualPointsAreAClosedLine)
{
    EXPECT_EQ(Smoothed({{9, 9}, {9, 9}, {9, 9}}), Points(20, CPoint(9, 9)));
    EXPECT_EQ(Smoothed({{9, 9}, {9, 9}, {9, 9}, {9, 9}}), Points(30, CPoint(9, 9)));
}

TEST(BezierSmoothLine, HalvesAreCutTowardZero)
{
    const Points smooth = Smoothed({{-3, 3}, {0, 0}, {3, -3}});
    ASSERT_EQ(smooth.size(), 12U);
    EXPECT_EQ(smooth[1], CPoint(-1, 1));
    // Middles -1 and 1, controls 0: at 9 tenths (0.729 - 0.001) cut to 0, not rounded down to -1.
    EXPECT_EQ(smooth[2], CPoint(0, 0));
    EXPECT_EQ(smooth[10], CPoint(0, 0));
}

TEST(BezierSmoothLine, ALevelLineStaysLevel)
{
    for (const LONG level : {1, 7, 33, 99, 101, 317, 999, 1001, 54321, -1, -77, -1001})
    {
        for (const CPoint& point : Smoothed({{0, level}, {10, level}, {50, level}, {77, level}, {5000, level}}))
        {
            ASSERT_EQ(point.y, level);
        }
    }
}

TEST(BezierSmoothLine, PointsAreExactForAllCoordinates)
{
    std::mt19937 numbers(7);
    for (const LONG size : {10, 1000, 2147483, 2147484, 2000000000, INT_MAX})
    {
        for (int round = 0; round < 300; ++round)
        {
            Points line;
            for (unsigned i = 0; i < 3 + static_cast<unsigned>(round) % 4; ++i)
            {
                line.emplace_back(static_cast<int>(static_cast<LONG>(numbers()) % size),
                                  static_cast<int>(static_cast<LONG>(numbers()) % size));
            }
            if (round % 2 == 1)
            {
                line.push_back(line.front());
            }
            ASSERT_EQ(Smoothed(line), Expected(line));
        }
    }
}

TEST(BezierSmoothLine, TheLargestCoordinatesDoNotOverflow)
{
    const Points line = {{INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}, {INT_MIN, INT_MIN}, {INT_MAX, INT_MAX}};
    EXPECT_EQ(Smoothed(line), Expected(line));
    EXPECT_EQ(Smoothed({{INT_MIN, 0}, {INT_MIN, 0}, {INT_MIN, 0}}), Points(20, CPoint(INT_MIN, 0)));
}
