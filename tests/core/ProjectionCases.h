#pragma once

#include "family/VornChart/core/Projection.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace vorn::test
{
inline constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kEndless = std::numeric_limits<double>::infinity();
inline constexpr double kPi = 3.14159265358979324;
inline constexpr double kRadianOfDegree = kPi / 180;

inline std::unique_ptr<Projection> MakeProjection(int kind)
{
    return std::unique_ptr<Projection>(Projection::CreateProjection(kind));
}

struct XY
{
    double x = kNoNumber;
    double y = kNoNumber;
};

inline XY OnMap(const Projection& projection, double lat, double lon)
{
    XY point;
    EXPECT_TRUE(projection.LLtoXY(lat, lon, point.x, point.y))
        << projection.QueryProjectionName() << ' ' << lat << ' ' << lon;
    return point;
}

inline void ExpectRefused(const Projection& projection, double lat, double lon)
{
    XY point{1, 2};
    EXPECT_FALSE(projection.LLtoXY(lat, lon, point.x, point.y))
        << projection.QueryProjectionName() << ' ' << lat << ' ' << lon;
    EXPECT_EQ(point.x, 1);
    EXPECT_EQ(point.y, 2);
}

inline void ExpectNowhere(const Projection& projection, double x, double y)
{
    XY position{1, 2};
    EXPECT_FALSE(projection.XYtoLL(x, y, position.x, position.y))
        << projection.QueryProjectionName() << ' ' << x << ' ' << y;
    EXPECT_EQ(position.x, 1);
    EXPECT_EQ(position.y, 2);
}

inline std::string StateOf(Projection& projection)
{
    std::array<char, 256> buffer{};
    char* cursor = buffer.data();
    unsigned long remaining = buffer.size();
    EXPECT_TRUE(projection.ReadWrite(cursor, remaining, false));
    return {buffer.data(), cursor};
}
} // namespace vorn::test
