#include "aviation/core/PerfLine.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

namespace
{

/// Writes what is drawn: "M0" for a move to x 0, "L10" for a line to x 10; the y when it is not 0.
class WritingPen : public vorn::LinePen
{
public:
    void MoveTo(const CPoint& point) override
    {
        Write('M', point);
    }
    void LineTo(const CPoint& point) override
    {
        Write('L', point);
    }
    const std::string& Text() const
    {
        return m_text;
    }

private:
    void Write(char what, const CPoint& point)
    {
        m_text += (m_text.empty() ? "" : " ") + (what + std::to_string(point.x));
        if (point.y != 0)
        {
            m_text += '/' + std::to_string(point.y);
        }
    }

    std::string m_text;
};

std::string Drawn(std::vector<CPoint> line, double spacing, const vorn::PerfPattern& pattern)
{
    WritingPen pen;
    vorn::DrawPerfRuns(line.data(), static_cast<int>(line.size()), spacing, pattern, pen);
    return pen.Text();
}

const std::vector<CPoint> kHundred = {{0, 0}, {100, 0}};

} // namespace

TEST(PerfLine, DashesAndGapsTakeTurns)
{
    EXPECT_EQ(Drawn(kHundred, 10, {3, 1, 1, 1}), "M0 L10 L20 L30 M40 L50 M60 L70 L80 L90");
    EXPECT_EQ(Drawn(kHundred, 20, {1, 1, 1, 1}), "M0 L20 M40 L60 M80 L100");
}

TEST(PerfLine, TheLastDashStopsAtTheLastPoint)
{
    EXPECT_EQ(Drawn(kHundred, 25, {3, 0, 5, 1}), "M0 L25 L50 L75 M75 L100");
    EXPECT_EQ(Drawn(kHundred, 50, {100, 1, 100, 1}), "M0 L50 L100");
    EXPECT_EQ(Drawn(kHundred, 50, {INT_MAX, INT_MAX, INT_MAX, INT_MAX}), "M0 L50 L100");
}

TEST(PerfLine, AGapMayEndTheLine)
{
    EXPECT_EQ(Drawn(kHundred, 25, {1, 2, 1, 1}), "M0 L25 M75 L100");
    EXPECT_EQ(Drawn(kHundred, 25, {1, 9, 1, 1}), "M0 L25");
}

TEST(PerfLine, DashesWithoutLengthDrawNothing)
{
    EXPECT_EQ(Drawn(kHundred, 25, {1, 1, 0, 0}), "M0 L25 M50 L75");
    EXPECT_EQ(Drawn(kHundred, 25, {0, 1, 1, 0}), "M25 L50 M75 L100");
    EXPECT_EQ(Drawn(kHundred, 25, {0, 1, 0, 1}), "");
}

TEST(PerfLine, PatternsWithoutLengthEndAndNegativePartsCountAsNone)
{
    EXPECT_EQ(Drawn(kHundred, 25, {0, 0, 0, 0}), "");
    EXPECT_EQ(Drawn(kHundred, 25, {-1, -1, -1, -1}), "");
    EXPECT_EQ(Drawn(kHundred, 25, {INT_MIN, INT_MIN, INT_MIN, INT_MIN}), "");
    EXPECT_EQ(Drawn(kHundred, 25, {1, 1, -7, -9}), "M0 L25 M50 L75");
    EXPECT_EQ(Drawn(kHundred, 25, {-5, 1, 1, -1}), "M25 L50 M75 L100");
}

TEST(PerfLine, MarkersPartRunsAndThePatternBeginsAnew)
{
    EXPECT_EQ(Drawn({{0, 0}, {50, 0}, {-1, -1}, {200, 0}, {250, 0}}, 25, {1, 1, 1, 1}), "M0 L25 M200 L225");
    EXPECT_EQ(Drawn({{-1, -1}, {0, 0}, {50, 0}, {-1, -1}, {-1, -1}, {9, 0}, {-1, -1}}, 50, {1, 0, 0, 0}), "M0 L50");
    EXPECT_EQ(Drawn({{0, 0}, {-1, -1}, {50, 0}}, 10, {1, 0, 0, 0}), "");
}

TEST(PerfLine, OnlyBothCoordinatesMakeAMarker)
{
    EXPECT_EQ(Drawn({{-1, 0}, {-1, 10}}, 10, {1, 0, 0, 0}), "M-1 L-1/10");
    EXPECT_EQ(Drawn({{0, -1}, {10, -1}}, 10, {1, 0, 0, 0}), "M0/-1 L10/-1");
}

TEST(PerfLine, SpacingsThatCannotBeUsedDrawFromEndToEnd)
{
    EXPECT_EQ(Drawn(kHundred, 0, {1, 1, 1, 1}), "M0 L100");
    EXPECT_EQ(Drawn(kHundred, -5, {1, 1, 1, 1}), "M0 L100");
    EXPECT_EQ(Drawn(kHundred, 500, {1, 1, 1, 1}), "M0 L100");
}

TEST(PerfLine, NothingDrawsNothing)
{
    WritingPen pen;
    CPoint point;
    vorn::DrawPerfRuns(nullptr, 5, 10, {1, 1, 1, 1}, pen);
    vorn::DrawPerfRuns(&point, 1, 10, {1, 1, 1, 1}, pen);
    vorn::DrawPerfRuns(&point, -1, 10, {1, 1, 1, 1}, pen);
    vorn::DrawPattern(nullptr, 0, {1, 1, 1, 1}, pen);
    EXPECT_EQ(pen.Text(), "");
}
