#include "aviation/Drawing.h"
#include "tests/support/Canvas.h"
#include "tests/support/GdiCount.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <string>
#include <vector>

using namespace vorn::test;

namespace
{

struct Pattern
{
    int dash1;
    int gap1;
    int dash2;
    int gap2;
};

std::string Drawn(CSize size, std::vector<CPoint> line, double spacing, const Pattern& pattern)
{
    Canvas canvas(size.cx, size.cy);
    DrawPerfLine(&canvas.dc, line.data(), static_cast<int>(line.size()), spacing, pattern.dash1, pattern.gap1,
                 pattern.dash2, pattern.gap2);
    return canvas.Picture();
}

std::string EmptyPicture(CSize size)
{
    return Canvas(size.cx, size.cy).Picture();
}

const std::vector<CPoint> kLevel = {{0, 0}, {20, 0}};

} // namespace

TEST(DrawPerfLine, DashesAndGapsAreCountedInSteps)
{
    // Steps of 2: from 0 to 4, gap to 6, to 8, gap to 10, and again. A line's last pixel is its end's neighbour.
    EXPECT_EQ(Drawn({22, 1}, kLevel, 2, {2, 1, 1, 1}), "####..##..####..##....\n");
    EXPECT_EQ(Drawn({22, 1}, kLevel, 5, {1, 1, 1, 1}), "#####.....#####.......\n");
    EXPECT_EQ(Drawn({22, 1}, kLevel, 1, {3, 1, 1, 2}), "###.#..###.#..###.#...\n");
}

TEST(DrawPerfLine, TheLastDashStopsAtTheLinesEnd)
{
    EXPECT_EQ(Drawn({22, 1}, kLevel, 5, {9, 1, 1, 1}), "####################..\n");
    EXPECT_EQ(Drawn({22, 1}, kLevel, 5, {2, 1, 7, 1}), "##########.....#####..\n");
}

TEST(DrawPerfLine, ASpacingThatDoesNotDivideIsStretched)
{
    // 20 pixels hold 2 steps of at least 7: they are 10 long.
    EXPECT_EQ(Drawn({22, 1}, kLevel, 7, {1, 1, 0, 0}), "##########............\n");
}

TEST(DrawPerfLine, ThePatternRunsOnOverCorners)
{
    const std::vector<CPoint> corner = {{0, 0}, {5, 0}, {5, 5}};
    EXPECT_EQ(Drawn({7, 6}, corner, 2, {2, 1, 0, 0}), "####...\n" // steps at 0, 2, 4, then 1, 3 and 5 down
                                                      ".....#.\n"
                                                      ".....#.\n"
                                                      ".....#.\n"
                                                      ".....#.\n"
                                                      ".......\n");
}

TEST(DrawPerfLine, MarkersPartRunsInWhichThePatternBeginsAnew)
{
    const std::vector<CPoint> runs = {{0, 0}, {6, 0}, {-1, -1}, {10, 0}, {16, 0}};
    EXPECT_EQ(Drawn({18, 1}, runs, 2, {2, 9, 0, 0}), "####......####....\n");
    const std::vector<CPoint> ends = {{-1, -1}, {0, 0}, {6, 0}, {-1, -1}, {-1, -1}, {12, 0}, {-1, -1}};
    EXPECT_EQ(Drawn({18, 1}, ends, 2, {2, 9, 0, 0}), "####..............\n") << "a run of one point draws nothing";
}

TEST(DrawPerfLine, OneCoordinateAloneIsNoMarker)
{
    const std::vector<CPoint> line = {{-1, 0}, {5, 0}};
    EXPECT_EQ(Drawn({7, 1}, line, 1, {1, 0, 1, 0}), "#####..\n");
}

TEST(DrawPerfLine, PatternsWithoutLengthDrawNothing)
{
    EXPECT_EQ(Drawn({22, 1}, kLevel, 2, {0, 0, 0, 0}), EmptyPicture({22, 1}));
    EXPECT_EQ(Drawn({22, 1}, kLevel, 2, {-1, -1, -1, -1}), EmptyPicture({22, 1}));
    EXPECT_EQ(Drawn({22, 1}, kLevel, 2, {0, 1, 0, 1}), EmptyPicture({22, 1}));
    EXPECT_EQ(Drawn({22, 1}, kLevel, 2, {INT_MIN, INT_MIN, INT_MIN, INT_MIN}), EmptyPicture({22, 1}));
}

TEST(DrawPerfLine, HugePartsAreOneDash)
{
    EXPECT_EQ(Drawn({22, 1}, kLevel, 2, {INT_MAX, INT_MAX, INT_MAX, INT_MAX}), "####################..\n");
    EXPECT_EQ(Drawn({22, 1}, kLevel, 2, {0, 1, INT_MAX, INT_MAX}), "..##################..\n");
}

TEST(DrawPerfLine, SpacingsThatCannotBeUsedDrawFromEndToEnd)
{
    for (const double spacing : {0.0, -3.0, 1e-12, 1e9, std::nan("")})
    {
        EXPECT_EQ(Drawn({22, 1}, kLevel, spacing, {1, 1, 1, 1}), "####################..\n") << spacing;
    }
}

TEST(DrawPerfLine, TheContextsPenDraws)
{
    Canvas canvas(12, 3);
    CPen pen(PS_SOLID, 1, kRed);
    CPen* const former = canvas.dc.SelectObject(&pen);
    CPoint line[] = {{0, 1}, {10, 1}};
    DrawPerfLine(&canvas.dc, line, 2, 5, 1, 1, 0, 0);
    EXPECT_EQ(canvas.Picture(), "............\nRRRRR.......\n............\n");
    EXPECT_EQ(canvas.dc.SelectObject(former), &pen);
}

TEST(DrawPerfLine, NothingDrawsNothing)
{
    Canvas canvas(4, 1);
    CPoint point(1, 0);
    DrawPerfLine(&canvas.dc, nullptr, 5, 1, 1, 0, 0, 0);
    DrawPerfLine(&canvas.dc, &point, 1, 1, 1, 0, 0, 0);
    DrawPerfLine(&canvas.dc, &point, 0, 1, 1, 0, 0, 0);
    DrawPerfLine(&canvas.dc, &point, -7, 1, 1, 0, 0, 0);
    EXPECT_EQ(canvas.Picture(), "....\n");
    CPoint line[] = {{0, 0}, {3, 0}};
    DrawPerfLine(nullptr, line, 2, 1, 1, 0, 0, 0);
    CDC none;
    DrawPerfLine(&none, line, 2, 1, 1, 0, 0, 0);
}

TEST(DrawPerfLine, LeavesNoObjectsBehind)
{
    Canvas canvas(40, 4);
    CPoint line[] = {{0, 0}, {30, 3}, {-1, -1}, {4, 0}, {4, 3}};
    const unsigned before = CountGdiObjects();
    DrawPerfLine(&canvas.dc, line, 5, 2, 1, 1, 1, 1);
    EXPECT_EQ(CountGdiObjects(), before);
}

TEST(SelectObjectByHandle, ReturnsTheFormerObject)
{
    Canvas canvas(4, 1);
    const HGDIOBJ former = ::GetCurrentObject(canvas.dc, OBJ_PEN);
    const HPEN pen = ::CreatePen(PS_SOLID, 1, kBlue);
    EXPECT_EQ(SelectObject(&canvas.dc, pen), former);
    EXPECT_EQ(::GetCurrentObject(canvas.dc, OBJ_PEN), pen);
    EXPECT_EQ(SelectObject(&canvas.dc, former), pen);
    EXPECT_TRUE(::DeleteObject(pen));
}

TEST(SelectObjectByHandle, IsNullWithoutContextOrObject)
{
    EXPECT_EQ(SelectObject(static_cast<CDC*>(nullptr), ::GetStockObject(BLACK_PEN)), nullptr);
    CDC none;
    EXPECT_EQ(SelectObject(&none, ::GetStockObject(BLACK_PEN)), nullptr);
    Canvas canvas(4, 1);
    EXPECT_EQ(SelectObject(&canvas.dc, nullptr), nullptr);
}

TEST(SelectObjectByHandle, TheOutputContextGetsIt)
{
    Canvas canvas(4, 1);
    const HDC other = ::CreateCompatibleDC(nullptr);
    canvas.dc.SetAttribDC(other);
    const HGDIOBJ former = SelectObject(&canvas.dc, ::GetStockObject(WHITE_PEN));
    EXPECT_EQ(::GetCurrentObject(other, OBJ_PEN), ::GetStockObject(BLACK_PEN));
    EXPECT_EQ(::GetCurrentObject(canvas.dc.GetSafeHdc(), OBJ_PEN), ::GetStockObject(WHITE_PEN));
    SelectObject(&canvas.dc, former);
    canvas.dc.SetAttribDC(canvas.dc.GetSafeHdc());
    ::DeleteDC(other);
}
