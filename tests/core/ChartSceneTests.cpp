#include "apps/chart/core/ChartScene.h"
#include "apps/chart/core/ElevationBands.h"
#include "tests/core/ChartTestPlanes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace vorn::chart;
using vorn::test::MercatorSphere;

namespace
{

/// Six pixels a letter, twelve a line.
class PlainMeter : public LabelMeter
{
public:
    PixelSize Measure(const LabelText& label) override
    {
        PixelSize size;
        for (const TextLine& line : label)
            size.width = std::max(size.width, static_cast<int>(line.text.size()) * 6);
        size.height = static_cast<int>(label.size()) * 12;
        return size;
    }
};

/// In the region, by chance.
LatLon SomePlace(std::mt19937& random)
{
    const double lat = static_cast<double>(random() % 12000) / 1000;
    const double lon = static_cast<double>(random() % 12000) / 1000;
    return LatLon(42 + lat, -124 + lon);
}

ChartData Region()
{
    ChartData data;
    std::mt19937 random(3);
    for (int i = 0; i < 160; ++i)
    {
        Aid aid;
        aid.ident = std::string(1, static_cast<char>('A' + i % 26)) + static_cast<char>('A' + i / 26) + 'X';
        aid.name = "Station " + aid.ident;
        aid.kind = static_cast<AidKind>(i % 7);
        aid.kilohertz = 112300;
        aid.variation = 17;
        aid.elevation = i * 30;
        aid.position = SomePlace(random);
        data.aids.push_back(aid);
    }
    for (int i = 0; i < 60; ++i)
    {
        Aerodrome field;
        field.ident = "K" + std::to_string(100 + i);
        field.name = "Field";
        field.position = SomePlace(random);
        const LatLon& at = field.position;
        field.runways.push_back({"16/34", 6000 + 100 * i, i % 5 != 0, true, LatLon(at.Lat() + 0.01, at.Lon()),
                                 LatLon(at.Lat() - 0.01, at.Lon())});
        data.aerodromes.push_back(field);
    }
    Shore land;
    land.points = {LatLon(41, -124), LatLon(41, -110), LatLon(55, -110), LatLon(55, -124)};
    data.shores.push_back(land);
    FinishShores(data.shores);
    return data;
}

ChartView View(ChartPlane& plane, double scale)
{
    ChartView view(plane);
    view.SetSize(1000, 750, 96);
    view.SetCentre(LatLon(47.5, -119));
    view.SetScale(scale);
    return view;
}

double AreaOf(const std::vector<LatLon>& outline)
{
    double area = 0;
    for (std::size_t i = 0; i < outline.size(); ++i)
    {
        const LatLon& next = outline[(i + 1) % outline.size()];
        area += (outline[i].Lon() * next.Lat() - next.Lon() * outline[i].Lat()) / 2;
    }
    return std::abs(area);
}

} // namespace

TEST(ChartScene, HasNoLabelOverAnotherOverASymbolOrUnderAPanelAtAnyScale)
{
    MercatorSphere plane;
    PlainMeter meter;
    const ChartModel model = ModelOf(Region(), "AAX BBX CCX");
    const PixelBox panel{10, 10, 260, 140};
    for (const double scale : {150'000.0, 500'000.0, 1'000'000.0, 2'000'000.0, 4'000'000.0, 8'000'000.0, 30'000'000.0})
    {
        const ChartScene scene = SceneOf(model, View(plane, scale), meter, {panel}, {});
        EXPECT_FALSE(scene.labels.empty()) << scale;
        for (std::size_t i = 0; i < scene.labels.size(); ++i)
        {
            const PixelBox& box = scene.labels[i].box;
            EXPECT_FALSE(Overlap(box, panel)) << scale;
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(Overlap(box, scene.labels[j].box)) << scale << ": " << i << " over " << j;
            for (const SceneSymbol& symbol : scene.symbols)
                EXPECT_FALSE(box.Contains(symbol.at)) << scale;
        }
    }
}

TEST(ChartScene, ShowsLabelsWholeOrNotAtAll)
{
    MercatorSphere plane;
    PlainMeter meter;
    const ChartModel model = ModelOf(Region(), "AAX BBX CCX");
    ChartView view = View(plane, 1'000'000);
    LabelMemory memory;
    for (int step = 0; step < 60; ++step) // many symbols pass the edges
    {
        view.Pan(11, -5);
        const ChartScene scene = SceneOf(model, view, meter, {}, memory);
        memory = scene.memory;
        for (const SceneLabel& label : scene.labels)
            ASSERT_TRUE(label.box.left >= 0 && label.box.top >= 0 && label.box.right <= view.Width() &&
                        label.box.bottom <= view.Height())
                << step << ": " << label.text.front().text;
    }
}

TEST(ChartScene, NamesThePlacesOfTheRouteEvenWhereItIsCrowded)
{
    ChartData data;
    const auto add = [&data](const char* ident, AidKind kind, const LatLon& at)
    {
        Aid aid;
        aid.ident = ident;
        aid.kind = kind;
        aid.kilohertz = 350;
        aid.position = at;
        data.aids.push_back(aid);
    };
    const LatLon middle(47.5, -119);
    add("AAX", AidKind::Vor, middle);
    add("BBX", AidKind::Vor, LatLon(46.5, -117));
    add("CCX", AidKind::Vor, LatLon(48.5, -117));
    for (int i = 0; i < 8; ++i) // 12 pixels away, all around
        add("ZZX", AidKind::Ndb, middle.EndPoint(i * 45, 3.43));
    MercatorSphere plane;
    PlainMeter meter;
    const auto isNamed = [&](const char* route)
    {
        const ChartScene scene = SceneOf(ModelOf(data, route), View(plane, 2'000'000), meter, {}, {});
        return std::any_of(scene.labels.begin(), scene.labels.end(),
                           [](const SceneLabel& label)
                           {
                               return label.text.front().text == "AAX";
                           });
    };
    EXPECT_FALSE(isNamed("BBX CCX")) << "there is no room beside it";
    EXPECT_TRUE(isNamed("AAX BBX"));
}

TEST(ChartScene, HasNoSymbolOverAnotherOnTheSmallestCharts)
{
    MercatorSphere plane;
    PlainMeter meter;
    const ChartModel model = ModelOf(Region(), "");
    const auto aids = [&](double scale)
    {
        return SceneOf(model, View(plane, scale), meter, {}, {});
    };
    const ChartScene scene = aids(40'000'000);
    EXPECT_GT(scene.symbols.size(), 10u);
    EXPECT_LT(scene.symbols.size(), aids(14'000'000).symbols.size());
    for (std::size_t i = 0; i < scene.symbols.size(); ++i)
    {
        for (std::size_t j = 0; j < i; ++j)
        {
            const SceneSymbol& one = scene.symbols[i];
            const SceneSymbol& other = scene.symbols[j];
            EXPECT_GE(std::hypot(one.at.x - other.at.x, one.at.y - other.at.y),
                      (one.shape.reach + other.shape.reach) * scene.symbolUnit * 0.8);
        }
    }
}

TEST(ChartScene, DoesNotNameWhatAPanelHides)
{
    ChartData data;
    Aid aid;
    aid.ident = "AAX";
    aid.kilohertz = 112300;
    aid.position = LatLon(47.5, -119);
    data.aids.push_back(aid);
    MercatorSphere plane;
    PlainMeter meter;
    const ChartModel model = ModelOf(data, "");
    const ChartView view = View(plane, 2'000'000); // the aid is at 500, 375
    const auto isNamed = [&](const PixelBox& panel)
    {
        const ChartScene scene = SceneOf(model, view, meter, {panel}, {});
        return std::any_of(scene.labels.begin(), scene.labels.end(),
                           [](const SceneLabel& label)
                           {
                               return label.text.front().text == "AAX";
                           });
    };
    EXPECT_FALSE(isNamed({400, 370, 520, 480})) << "its middle is below the panel";
    EXPECT_TRUE(isNamed({400, 380, 520, 480}));
}

TEST(ChartScene, IsTheSameForTheSameView)
{
    MercatorSphere plane;
    PlainMeter meter;
    const ChartModel model = ModelOf(Region(), "AAX BBX");
    const ChartScene first = SceneOf(model, View(plane, 2'000'000), meter, {}, {});
    const ChartScene second = SceneOf(model, View(plane, 2'000'000), meter, {}, {});
    EXPECT_EQ(first.memory, second.memory);
    ASSERT_EQ(first.labels.size(), second.labels.size());
    for (std::size_t i = 0; i < first.labels.size(); ++i)
        EXPECT_EQ(first.labels[i].box, second.labels[i].box);
}

TEST(ChartScene, LeavesLabelsWhereTheyAreWhileItIsPanned)
{
    MercatorSphere plane;
    PlainMeter meter;
    const ChartModel model = ModelOf(Region(), "");
    ChartView view = View(plane, 2'500'000);
    LabelMemory before = SceneOf(model, view, meter, {}, {}).memory;
    int kept = 0;
    int jumped = 0;
    for (int step = 0; step < 20; ++step)
    {
        view.Pan(7, 3);
        const LabelMemory after = SceneOf(model, view, meter, {}, before).memory;
        for (const auto& [id, candidate] : after)
        {
            const auto was = before.find(id);
            if (was != before.end())
                (was->second == candidate ? kept : jumped) += 1;
        }
        before = after;
    }
    EXPECT_GT(kept, 500);
    EXPECT_LT(jumped, kept / 50);
}

TEST(ChartScene, DrawsRunwaysToScaleOnLargeCharts)
{
    MercatorSphere plane;
    PlainMeter meter;
    const ChartModel model = ModelOf(Region(), "");
    EXPECT_TRUE(SceneOf(model, View(plane, 2'000'000), meter, {}, {}).runways.empty());
    ChartView view = View(plane, 200'000);
    view.SetCentre(model.data.aerodromes[7].position);
    const ChartScene scene = SceneOf(model, view, meter, {}, {});
    ASSERT_FALSE(scene.runways.empty());
    // From 0.01 degrees north to 0.01 south on a sphere: 0.02 x 111,319.5 m at 1:200,000.
    const PixelLine& bar = scene.runways.front();
    EXPECT_NEAR(std::abs(bar[0].y - bar[1].y), 0.02 * 111319.49 / 200'000 / 0.0254 * 96, 0.5);
}

TEST(ChartScene, ShowsNorthWhereItIs)
{
    MercatorSphere mercator;
    EXPECT_NEAR(NorthAt(View(mercator, 2'000'000), LatLon(49, -110)), 0, 1e-9);
    vorn::test::GlobeSphere globe;
    const ChartView view = View(globe, 20'000'000);
    EXPECT_NEAR(NorthAt(view, LatLon(47.5, -119)), 0, 1e-6);
    EXPECT_LT(NorthAt(view, LatLon(47.5, -100)), -5); // to the east, north leans to the left
    EXPECT_GT(NorthAt(view, LatLon(47.5, -140)), 5);
}

TEST(ChartScene, IsEmptyWithoutData)
{
    MercatorSphere plane;
    PlainMeter meter;
    const ChartModel model = ModelOf({}, "SEA GEG");
    const ChartScene scene = SceneOf(model, View(plane, 2'000'000), meter, {}, {});
    EXPECT_TRUE(scene.symbols.empty());
    EXPECT_TRUE(scene.way.empty());
    EXPECT_TRUE(scene.bands.empty());
    EXPECT_FALSE(scene.graticule.lines.empty());
}

TEST(ElevationBands, OutlineASinglePeakByItsNeighbours)
{
    HeightGrid grid({40, 42, -120, -118}, 5, 5);
    grid.Set(2, 2, 100);
    const std::vector<std::vector<LatLon>> outlines = grid.OutlinesOf(50);
    ASSERT_EQ(outlines.size(), 1u);
    // A square on its corner, half a step to each side of the peak: 2 x 0.25 x 0.25 square degrees.
    ASSERT_EQ(outlines[0].size(), 4u);
    EXPECT_NEAR(AreaOf(outlines[0]), 0.125, 1e-12);
    for (const LatLon& point : outlines[0])
        EXPECT_NEAR(std::abs(point.Lat() - 41) + std::abs(point.Lon() + 119), 0.25, 1e-12);
}

TEST(ElevationBands, CloseAtTheRimOfTheGrid)
{
    HeightGrid grid({40, 41, -120, -118.5}, 3, 4);
    for (int row = 0; row < 3; ++row)
    {
        for (int column = 0; column < 4; ++column)
            grid.Set(row, column, 900);
    }
    const std::vector<std::vector<LatLon>> outlines = grid.OutlinesOf(500);
    ASSERT_EQ(outlines.size(), 1u);
    EXPECT_NEAR(AreaOf(outlines[0]), 1.0 * 1.5, 1e-9);
    EXPECT_TRUE(grid.OutlinesOf(901).empty());
}

TEST(ElevationBands, HoldAllPlacesThatAreHighAndNoOthers)
{
    std::mt19937 random(9);
    for (int turn = 0; turn < 30; ++turn)
    {
        HeightGrid grid({0, 11, 0, 14}, 12, 15);
        for (int row = 0; row < 12; ++row)
        {
            for (int column = 0; column < 15; ++column)
                grid.Set(row, column, static_cast<double>(random() % 100));
        }
        const std::vector<std::vector<LatLon>> outlines = grid.OutlinesOf(50.5);
        for (int row = 0; row < 12; ++row)
        {
            for (int column = 0; column < 15; ++column)
            {
                // A ray to the east from just inside of the rim crosses the outlines an odd number of times.
                const double lat = std::clamp(row + 1e-7, 1e-7, 11 - 1e-7);
                const double lon = std::clamp(column + 1e-7, 1e-7, 14 - 1e-7);
                int crossings = 0;
                for (const std::vector<LatLon>& outline : outlines)
                {
                    for (std::size_t i = 0; i < outline.size(); ++i)
                    {
                        const LatLon& a = outline[i];
                        const LatLon& b = outline[(i + 1) % outline.size()];
                        if ((a.Lat() > lat) != (b.Lat() > lat) &&
                            a.Lon() + (lat - a.Lat()) / (b.Lat() - a.Lat()) * (b.Lon() - a.Lon()) > lon)
                            ++crossings;
                    }
                }
                EXPECT_EQ(crossings % 2 == 1, grid.At(row, column) > 50.5) << turn << ": " << row << ' ' << column;
            }
        }
    }
}

TEST(ElevationBands, BlendKnownHeights)
{
    HeightGrid grid({45, 47, -120, -116}, 3, 5);
    grid.Blend({{LatLon(46, -120), 0}, {LatLon(46, -116), 4000}});
    EXPECT_LT(grid.At(1, 0), 20);
    EXPECT_GT(grid.At(1, 4), 3980);
    EXPECT_NEAR(grid.At(1, 2), 2000, 1e-9);
    grid.Blend({});
    EXPECT_EQ(grid.At(1, 2), 0);
}
