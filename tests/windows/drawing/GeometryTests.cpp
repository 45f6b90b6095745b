#include "aviation/Drawing.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

// The portable parts as hosts meet them: exported, with arrays made in the library and freed here.

namespace
{

std::vector<CPoint> Taken(int count, CPoint* points)
{
    const std::unique_ptr<CPoint[]> owned(points);
    return {points, points + count};
}

} // namespace

TEST(DrawingGeometry, SmoothedLinesAreTheCallersArrays)
{
    CPoint corner[] = {{0, 0}, {10, 0}, {10, 10}};
    CPoint* out = nullptr;
    const int count = BezierSmoothLine(corner, 3, &out);
    ASSERT_EQ(count, 12);
    const std::vector<CPoint> line = Taken(count, out);
    EXPECT_EQ(line.front(), CPoint(0, 0));
    EXPECT_EQ(line[1], CPoint(5, 0));
    EXPECT_EQ(line.back(), CPoint(10, 10));

    CPoint square[] = {{0, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}};
    const int round = BezierSmoothLine(square, 5, &out);
    EXPECT_EQ(round, 40);
    Taken(round, out);
}

TEST(DrawingGeometry, SpacedPointsAreTheCallersArrays)
{
    CPoint level[] = {{0, 0}, {100, 0}};
    CPoint* out = nullptr;
    const int count = DistributePoints(level, 2, 30, &out);
    EXPECT_EQ(Taken(count, out), (std::vector<CPoint>{{0, 0}, {33, 0}, {66, 0}, {100, 0}}));

    CPoint small[] = {{0, 0}, {10, 0}};
    const int ends = DistributePoints(small, 2, 30, &out);
    EXPECT_EQ(Taken(ends, out), (std::vector<CPoint>{{0, 0}, {10, 0}}));
}

TEST(DrawingGeometry, SpacedPositionsAreTheCallersArrays)
{
    LatLon route[] = {{47, 8}, {47.5, 8}, {48, 8}};
    LatLon* out = nullptr;
    const int count = DistributePoints(route, 3, 20, &out); // a degree of latitude is some 60 miles
    const std::unique_ptr<LatLon[]> owned(out);
    ASSERT_EQ(count, 4);
    EXPECT_EQ(out[0], route[0]);
    EXPECT_EQ(out[3], route[2]);
    EXPECT_NEAR(out[0].Distance(out[1]), out[2].Distance(out[3]), 1e-9);
    EXPECT_GE(out[0].Distance(out[1]), 20);

    LatLon* none = route;
    EXPECT_EQ(DistributePoints(route, 2, 1000, &none), 0);
    EXPECT_EQ(none, nullptr);
}

TEST(DrawingGeometry, WidthsAndColoursAreTexts)
{
    EXPECT_EQ(MorseWidth(2, "SOS"), 60);
    EXPECT_EQ(MorseWidth(2, "VOR1"), -1);
    EXPECT_STREQ(ColorToString(RGB(255, 128, 0)), "255,128,0");
    EXPECT_EQ(StringToColor("  255,128,0 "), 0x020080FFU);
}
