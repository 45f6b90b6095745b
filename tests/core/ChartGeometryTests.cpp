#include "apps/chart/core/LabelText.h"
#include "apps/chart/core/PixelGeometry.h"
#include "apps/chart/core/ScaleBar.h"
#include "apps/chart/core/SymbolShapes.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vorn::chart;

namespace
{

constexpr PixelBox kBox{0, 0, 100, 50};

std::size_t CountOf(const SymbolShape& shape, ShapePart::Form form)
{
    std::size_t count = 0;
    for (const ShapePart& part : shape.parts)
        count += part.form == form ? 1 : 0;
    return count;
}

Aerodrome Field(int length, bool hard, const LatLon& low, const LatLon& high)
{
    Aerodrome field;
    field.ident = "KXXX";
    field.position = LatLon((low.Lat() + high.Lat()) / 2, (low.Lon() + high.Lon()) / 2);
    field.runways.push_back({"09/27", length, hard, true, low, high});
    return field;
}

double Reach(const SymbolShape& shape)
{
    double reach = 0;
    for (const ShapePart& part : shape.parts)
    {
        for (const PixelPoint& point : part.points)
            reach = std::max({reach, std::abs(point.x) + part.radius, std::abs(point.y) + part.radius});
    }
    return reach;
}

} // namespace

TEST(PixelGeometry, BoxesOverlapOnlyWithACommonPixel)
{
    EXPECT_TRUE(Overlap({0, 0, 10, 10}, {9, 9, 20, 20}));
    EXPECT_FALSE(Overlap({0, 0, 10, 10}, {10, 0, 20, 10}));
    EXPECT_FALSE(Overlap({0, 0, 10, 10}, {0, 10, 10, 20}));
}

TEST(PixelGeometry, CutsALineWhereItLeavesTheBoxAndComesBack)
{
    const std::vector<PixelLine> pieces = ClippedLine({{-50, 25}, {50, 25}, {150, 25}, {150, 10}, {90, 10}}, kBox);
    ASSERT_EQ(pieces.size(), 2u);
    EXPECT_EQ(pieces[0], (PixelLine{{0, 25}, {50, 25}, {100, 25}}));
    EXPECT_EQ(pieces[1], (PixelLine{{100, 10}, {90, 10}}));
}

TEST(PixelGeometry, KeepsALineThatIsInsideWhole)
{
    const PixelLine line{{1, 1}, {50, 2}, {99, 49}};
    EXPECT_EQ(ClippedLine(line, kBox), std::vector<PixelLine>{line});
    EXPECT_TRUE(ClippedLine({{-5, -5}, {-5, 80}, {120, 80}}, kBox).empty());
    EXPECT_TRUE(ClippedLine({}, kBox).empty());
    EXPECT_TRUE(ClippedLine({{5, 5}}, kBox).empty());
}

TEST(PixelGeometry, CutsAnAreaAlongTheEdges)
{
    const PixelLine whole = ClippedArea({{-1000, -1000}, {1000, -1000}, {1000, 1000}, {-1000, 1000}}, kBox);
    double area = 0;
    for (std::size_t i = 0; i < whole.size(); ++i)
    {
        const PixelPoint& next = whole[(i + 1) % whole.size()];
        area += (whole[i].x * next.y - next.x * whole[i].y) / 2;
    }
    EXPECT_NEAR(std::abs(area), 5000, 1e-6);
    EXPECT_TRUE(ClippedArea({{200, 0}, {300, 0}, {300, 50}}, kBox).empty());
    EXPECT_TRUE(ClippedArea({}, kBox).empty());
    EXPECT_EQ(ClippedArea({{1, 1}, {9, 1}, {9, 9}}, kBox), (PixelLine{{1, 1}, {9, 1}, {9, 9}}));
}

TEST(ScaleBar, IsTheLongestRoundLengthThatFits)
{
    const ScaleBar bar = ScaleBarFor(3.5, 180);
    EXPECT_EQ(bar.miles, 50);
    EXPECT_EQ(bar.pixels, 175);
    EXPECT_EQ(bar.parts, 5);
    EXPECT_EQ(ScaleBarFor(3.4, 68).miles, 20);
    EXPECT_EQ(ScaleBarFor(3.4, 68).parts, 4);
    EXPECT_EQ(ScaleBarFor(3.4, 67.9).miles, 10);
    EXPECT_EQ(ScaleBarFor(1e9, 1).miles, 0.1);
    EXPECT_EQ(ScaleBarFor(1e-9, 100).miles, 5000);
}

TEST(ScaleBar, WritesLengthsAndScales)
{
    EXPECT_EQ(LengthText(0.5), "0.5 NM");
    EXPECT_EQ(LengthText(100), "100 NM");
    EXPECT_EQ(LengthText(5000), "5,000 NM");
    EXPECT_EQ(ScaleText(2'000'000), "1 : 2,000,000");
    EXPECT_EQ(ScaleText(1'234'567), "1 : 1,230,000");
    EXPECT_EQ(ScaleText(999'700), "1 : 1,000,000");
    EXPECT_EQ(ScaleText(950), "1 : 950");
}

TEST(SymbolShapes, TellTheKindsOfAidsApart)
{
    using Form = ShapePart::Form;
    const auto sides = [](AidKind kind, std::size_t part)
    {
        return ShapeOf(kind).parts.at(part).points.size();
    };
    EXPECT_EQ(sides(AidKind::Vor, 0), 6u); // a hexagon with a dot
    EXPECT_EQ(CountOf(ShapeOf(AidKind::Vor), Form::Disc), 1u);
    EXPECT_EQ(sides(AidKind::VorDme, 0), 4u); // within a square
    EXPECT_EQ(sides(AidKind::VorDme, 1), 6u);
    EXPECT_EQ(CountOf(ShapeOf(AidKind::Vortac), Form::Area), 3u); // three tabs
    EXPECT_EQ(CountOf(ShapeOf(AidKind::Tacan), Form::Area), 3u);
    EXPECT_EQ(sides(AidKind::Dme, 0), 4u);
    EXPECT_EQ(CountOf(ShapeOf(AidKind::Ndb), Form::Dots), 3u); // rings of dots
    EXPECT_EQ(CountOf(ShapeOf(AidKind::NdbDme), Form::Outline), 1u);
}

TEST(SymbolShapes, StayWithinTheirReachAndSmall)
{
    for (const AidKind kind :
         {AidKind::Vor, AidKind::VorDme, AidKind::Vortac, AidKind::Dme, AidKind::Tacan, AidKind::Ndb, AidKind::NdbDme})
    {
        const SymbolShape& shape = ShapeOf(kind);
        EXPECT_NEAR(shape.reach, Reach(shape) + 0.75, 1e-9);
        EXPECT_LE(shape.reach, 12);
        EXPECT_GE(shape.reach, 6);
    }
}

TEST(SymbolShapes, TurnARunwayIntoItsCourse)
{
    // From west to east, 1.5 miles at the equator.
    const Aerodrome field = Field(9000, true, LatLon(0, 10), LatLon(0, 10.025));
    EXPECT_NEAR(CourseOf(field.Longest()), 90, 1e-6);
    const SymbolShape shape = ShapeOf(field, 0);
    ASSERT_EQ(shape.parts.size(), 1u);
    ASSERT_EQ(shape.parts[0].points.size(), 4u);
    EXPECT_NEAR(shape.parts[0].points[0].x, -9, 1e-6);
    EXPECT_NEAR(shape.parts[0].points[1].x, 9, 1e-6);
    EXPECT_NEAR(std::abs(shape.parts[0].points[0].y), 1.25, 1e-6);
    const SymbolShape turned = ShapeOf(field, 90); // east is down
    EXPECT_NEAR(turned.parts[0].points[1].y, 9, 1e-6);
}

TEST(SymbolShapes, ShowFieldsByTheirLongestRunway)
{
    using Form = ShapePart::Form;
    const LatLon low(45, -120);
    const LatLon high(45.02, -120);
    EXPECT_EQ(ShapeOf(Field(8000, true, low, high), 0).parts[0].form, Form::Disc);
    EXPECT_EQ(ShapeOf(Field(8001, true, low, high), 0).parts[0].form, Form::Area);
    EXPECT_EQ(ShapeOf(Field(9000, false, low, high), 0).parts[0].form, Form::Ring);
    const ShapePart window = ShapeOf(Field(6000, true, low, high), 0).parts.at(1);
    EXPECT_EQ(window.form, Form::Window);
    EXPECT_LT(window.points[0].y, -4); // the runway points north
}

TEST(SymbolShapes, PointCompassRosesToMagneticNorth)
{
    const SymbolShape rose = CompassRose(50, 90);
    EXPECT_EQ(CountOf(rose, ShapePart::Form::Line), 36u);
    EXPECT_EQ(rose.parts[0].form, ShapePart::Form::Ring);
    EXPECT_EQ(rose.parts[0].radius, 50);
    const PixelPoint head = rose.parts.back().points[0];
    EXPECT_NEAR(head.x, 59, 1e-9);
    EXPECT_NEAR(head.y, 0, 1e-9);
}

TEST(LabelText, SaysMoreTheLargerTheChart)
{
    EXPECT_EQ(DetailAt(500'000), Detail::Full);
    EXPECT_EQ(DetailAt(1'200'001), Detail::Frequency);
    EXPECT_EQ(DetailAt(3'000'000), Detail::Idents);
    EXPECT_EQ(DetailAt(8'000'000), Detail::Radials);
    EXPECT_EQ(DetailAt(20'000'000), Detail::Marks);
    Aid aid;
    aid.ident = "SEA";
    aid.name = "Seattle";
    aid.kilohertz = 116800;
    EXPECT_TRUE(LabelOf(aid, Detail::Marks).empty());
    EXPECT_EQ(LabelOf(aid, Detail::Radials)[0].text, "SEA");
    ASSERT_EQ(LabelOf(aid, Detail::Idents).size(), 1u);
    EXPECT_EQ(LabelOf(aid, Detail::Idents)[0].text, "SEA");
    EXPECT_EQ(LabelOf(aid, Detail::Frequency)[1].text, "116.8");
    ASSERT_EQ(LabelOf(aid, Detail::Full).size(), 3u);
    EXPECT_EQ(LabelOf(aid, Detail::Full)[0].text, "Seattle");
    EXPECT_EQ(LabelOf(aid, Detail::Full)[2].morse, "SEA");
}

TEST(LabelText, HasNoMorseCodeForIdentsWithDigits)
{
    Aid aid;
    aid.ident = "2J";
    EXPECT_EQ(LabelOf(aid, Detail::Full)[2].morse, "");
}

TEST(LabelText, WritesTheFactsOfAField)
{
    Aerodrome field = Field(11901, true, LatLon(45, -120), LatLon(45.02, -120));
    field.elevation = 432;
    EXPECT_EQ(LabelOf(field, Detail::Full)[2].text, "432 L 119");
    field.elevation.reset();
    field.runways[0].lighted = false;
    EXPECT_EQ(LabelOf(field, Detail::Full)[2].text, "- - 119");
}

TEST(LabelText, LeavesOutTheSmallOnSmallCharts)
{
    Aid aid;
    aid.kind = AidKind::Ndb;
    EXPECT_FALSE(IsShown(aid, Detail::Radials));
    EXPECT_TRUE(IsShown(aid, Detail::Idents));
    aid.kind = AidKind::Vortac;
    EXPECT_TRUE(IsShown(aid, Detail::Radials));
    const LatLon place(45, -120);
    EXPECT_FALSE(IsShown(Field(6000, true, place, place), Detail::Idents));
    EXPECT_TRUE(IsShown(Field(8000, true, place, place), Detail::Idents));
    EXPECT_GT(PriorityOf(aid), PriorityOf(Field(11000, true, place, place)));
}
