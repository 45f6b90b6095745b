#include "apps/chart/core/Thinning.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace vorn::chart;

namespace
{

double Away(const LatLon& point, const LatLon& from, const LatLon& to)
{
    const double narrowing = std::cos(from.Lat() * 3.14159265358979 / 180);
    double least = 1e9;
    for (int step = 0; step <= 1000; ++step)
    {
        const double share = step / 1000.0;
        const double lat = from.Lat() + (to.Lat() - from.Lat()) * share;
        const double lon = from.Lon() + (to.Lon() - from.Lon()) * share;
        least = std::min(least, std::hypot(point.Lat() - lat, (point.Lon() - lon) * narrowing));
    }
    return least;
}

} // namespace

TEST(Thinning, LeavesOutPointsOnAStraightLine)
{
    EXPECT_EQ(Thinned({LatLon(0, 0), LatLon(0, 1), LatLon(0, 2), LatLon(1, 2)}, 0.01, false),
              (std::vector<LatLon>{LatLon(0, 0), LatLon(0, 2), LatLon(1, 2)}));
    EXPECT_EQ(Thinned({LatLon(0, 0), LatLon(0, 1), LatLon(0, 2), LatLon(2, 2), LatLon(1, 1)}, 0.01, true),
              (std::vector<LatLon>{LatLon(0, 0), LatLon(0, 2), LatLon(2, 2)}));
}

TEST(Thinning, KeepsWhatIsTooShortToThin)
{
    EXPECT_TRUE(Thinned({}, 1, true).empty());
    EXPECT_EQ(Thinned({LatLon(0, 0), LatLon(1, 1)}, 9, true).size(), 2u);
}

TEST(Thinning, MovesNoPointFartherThanTheTolerance)
{
    std::mt19937 random(4);
    std::vector<LatLon> line;
    for (int i = 0; i < 300; ++i)
        line.emplace_back(50 + static_cast<double>(random() % 1000) / 5000, -120 + i * 0.01);
    const std::vector<LatLon> thin = Thinned(line, 0.05, false);
    EXPECT_LT(thin.size(), line.size());
    EXPECT_EQ(thin.front(), line.front());
    EXPECT_EQ(thin.back(), line.back());
    std::size_t next = 0;
    for (const LatLon& point : line)
    {
        while (next + 2 < thin.size() && thin[next + 1].Lon() <= point.Lon())
            ++next;
        EXPECT_LT(Away(point, thin[next], thin[next + 1]), 0.0505);
    }
}

TEST(Thinning, DividesLongStretches)
{
    EXPECT_EQ(Divided({LatLon(0, 0), LatLon(0, 1)}, false),
              (std::vector<LatLon>{LatLon(0, 0), LatLon(0, 0.5), LatLon(0, 1)}));
    EXPECT_EQ(Divided({LatLon(0, 0), LatLon(0, 0.4), LatLon(0.4, 0.4)}, true).size(), 3u);
    EXPECT_TRUE(Divided({}, true).empty());
}
