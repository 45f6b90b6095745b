#include "apps/chart/core/BoxGrid.h"
#include "apps/chart/core/LabelPlacer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

using namespace vorn::chart;

namespace
{

struct Scatter
{
    std::vector<LabelRequest> requests;
    LabelObstacles obstacles;
};

Scatter ScatterOf(unsigned seed, int count, int extent, double dx = 0)
{
    std::mt19937 random(seed);
    const auto below = [&](int limit)
    {
        return static_cast<int>(random() % static_cast<unsigned>(limit));
    };
    Scatter scatter;
    for (int i = 0; i < count; ++i)
    {
        const PixelPoint anchor{below(extent) + dx, static_cast<double>(below(extent))};
        const int width = 20 + below(60);
        const int height = 10 + below(25);
        scatter.requests.push_back({i, below(3), PlacesAround(anchor, 9, width, height)});
        const int x = static_cast<int>(std::lround(anchor.x));
        const int y = static_cast<int>(anchor.y);
        scatter.obstacles.symbols.push_back({x - 6, y - 6, x + 6, y + 6});
    }
    scatter.obstacles.closed.push_back({0, 0, extent / 4, extent / 8});
    for (int i = 0; i < 20; ++i)
        scatter.obstacles.lines.push_back({i * extent / 20, i * extent / 20, i * extent / 20 + 8, i * extent / 20 + 8});
    return scatter;
}

bool AnyOverlap(const PixelBox& box, const std::vector<PixelBox>& others)
{
    for (const PixelBox& other : others)
    {
        if (Overlap(box, other))
            return true;
    }
    return false;
}

const PlacedLabel* Find(const std::vector<PlacedLabel>& placed, int id)
{
    for (const PlacedLabel& label : placed)
    {
        if (label.id == id)
            return &label;
    }
    return nullptr;
}

} // namespace

TEST(BoxGrid, FindsExactlyTheBoxesThatOverlap)
{
    std::mt19937 random(7);
    BoxGrid grid;
    std::vector<PixelBox> boxes;
    for (int i = 0; i < 300; ++i)
    {
        const int left = static_cast<int>(random() % 1400) - 700;
        const int top = static_cast<int>(random() % 1400) - 700;
        boxes.push_back(
            {left, top, left + 1 + static_cast<int>(random() % 150), top + 1 + static_cast<int>(random() % 150)});
        grid.Add(i, boxes.back());
    }
    for (int i = 0; i < 300; i += 3)
        grid.Remove(i, boxes[static_cast<std::size_t>(i)]);
    for (std::size_t i = 0; i < boxes.size(); ++i)
    {
        std::set<int> found;
        grid.VisitOverlapping(boxes[i],
                              [&](int id)
                              {
                                  found.insert(id);
                              });
        std::set<int> expected;
        for (int other = 0; other < 300; ++other)
        {
            if (other % 3 != 0 && Overlap(boxes[i], boxes[static_cast<std::size_t>(other)]))
                expected.insert(other);
        }
        EXPECT_EQ(found, expected);
    }
}

TEST(BoxGrid, HoldsNothingThatIsEmptyAndTouchesNoNeighbour)
{
    BoxGrid grid;
    grid.Add(1, {10, 10, 10, 20});
    EXPECT_FALSE(grid.HasOverlapping({0, 0, 100, 100}));
    grid.Add(2, {0, 0, 64, 64});
    EXPECT_FALSE(grid.HasOverlapping({64, 0, 70, 10}));
    EXPECT_TRUE(grid.HasOverlapping({63, 63, 65, 65}));
    EXPECT_TRUE(grid.HasOverlapping({-1, -1, 1, 1}));
}

TEST(LabelPlacer, OffersEightPlacesThatKeepOffTheAnchor)
{
    const std::vector<PixelBox> places = PlacesAround({100, 50}, 10, 30, 12);
    ASSERT_EQ(places.size(), 8u);
    EXPECT_EQ(places[0], (PixelBox{110, 44, 140, 56}));
    EXPECT_EQ(places[1], (PixelBox{60, 44, 90, 56}));
    EXPECT_EQ(places[2], (PixelBox{85, 28, 115, 40}));
    EXPECT_EQ(places[3], (PixelBox{85, 60, 115, 72}));
    EXPECT_EQ(places[4], (PixelBox{107, 31, 137, 43}));
    EXPECT_EQ(places[7], (PixelBox{63, 57, 93, 69}));
    for (const PixelBox& place : places)
    {
        EXPECT_EQ(place.Width(), 30);
        EXPECT_EQ(place.Height(), 12);
        EXPECT_FALSE(Overlap(place, {94, 44, 107, 57}));
    }
}

TEST(LabelPlacer, TakesTheBestPlaceThatIsFree)
{
    LabelObstacles obstacles;
    const std::vector<PixelBox> places = PlacesAround({100, 100}, 8, 40, 14);
    EXPECT_EQ(PlaceLabels({{5, 0, places}}, obstacles, {}).at(0).candidate, 0);
    obstacles.symbols.push_back(places[0]);
    EXPECT_EQ(PlaceLabels({{5, 0, places}}, obstacles, {}).at(0).candidate, 1);
    obstacles.closed.push_back(places[1]);
    EXPECT_EQ(PlaceLabels({{5, 0, places}}, obstacles, {}).at(0).candidate, 2);
    obstacles.symbols.push_back({0, 0, 200, 200});
    EXPECT_TRUE(PlaceLabels({{5, 0, places}}, obstacles, {}).empty());
}

TEST(LabelPlacer, AvoidsLinesWhereItCan)
{
    const std::vector<PixelBox> places = PlacesAround({100, 100}, 8, 40, 14);
    LabelObstacles obstacles;
    obstacles.lines = {places[0], places[1]};
    EXPECT_EQ(PlaceLabels({{5, 0, places}}, obstacles, {}).at(0).candidate, 2);
    obstacles.lines.push_back({0, 0, 200, 200});
    EXPECT_EQ(PlaceLabels({{5, 0, places}}, obstacles, {}).at(0).candidate, 2);
    EXPECT_EQ(PlaceLabels({{5, 0, {places[1]}}}, obstacles, {}).at(0).candidate, 0);
}

TEST(LabelPlacer, LetsTheImportantChooseFirst)
{
    const std::vector<PixelBox> only = {{0, 0, 40, 10}};
    const std::vector<PlacedLabel> placed = PlaceLabels({{1, 1, only}, {2, 9, only}, {3, 9, only}}, {}, {});
    ASSERT_EQ(placed.size(), 1u);
    EXPECT_EQ(placed[0].id, 2);
}

TEST(LabelPlacer, MovesALabelAsideForOneThatHasNoOtherPlace)
{
    const PixelBox left{0, 0, 40, 10};
    const PixelBox right{50, 0, 90, 10};
    const std::vector<PlacedLabel> placed = PlaceLabels({{1, 5, {left, right}}, {2, 1, {left}}}, {}, {});
    ASSERT_EQ(placed.size(), 2u);
    EXPECT_EQ(placed[0].box, right);
    EXPECT_EQ(placed[1].box, left);
}

TEST(LabelPlacer, NeverPutsOneLabelOverAnotherNorOverASymbol)
{
    for (unsigned seed = 1; seed <= 40; ++seed)
    {
        const Scatter scatter = ScatterOf(seed, 250, 300 + static_cast<int>(seed) * 25);
        const std::vector<PlacedLabel> placed = PlaceLabels(scatter.requests, scatter.obstacles, {});
        EXPECT_GT(placed.size(), 10u);
        for (std::size_t i = 0; i < placed.size(); ++i)
        {
            for (std::size_t j = 0; j < i; ++j)
                EXPECT_FALSE(Overlap(placed[i].box, placed[j].box)) << seed << ": " << i << " over " << j;
            EXPECT_FALSE(AnyOverlap(placed[i].box, scatter.obstacles.symbols)) << seed;
            EXPECT_FALSE(AnyOverlap(placed[i].box, scatter.obstacles.closed)) << seed;
            EXPECT_EQ(placed[i].box, scatter.requests[static_cast<std::size_t>(placed[i].id)]
                                         .candidates[static_cast<std::size_t>(placed[i].candidate)]);
        }
    }
}

TEST(LabelPlacer, LeavesOutOnlyLabelsThatHaveNoFreePlace)
{
    const Scatter scatter = ScatterOf(3, 200, 700);
    const std::vector<PlacedLabel> placed = PlaceLabels(scatter.requests, scatter.obstacles, {});
    std::vector<PixelBox> taken = scatter.obstacles.symbols;
    taken.insert(taken.end(), scatter.obstacles.closed.begin(), scatter.obstacles.closed.end());
    for (const PlacedLabel& label : placed)
        taken.push_back(label.box);
    int left = 0;
    for (const LabelRequest& request : scatter.requests)
    {
        if (Find(placed, request.id) != nullptr)
            continue;
        ++left;
        for (const PixelBox& candidate : request.candidates)
            EXPECT_TRUE(AnyOverlap(candidate, taken)) << request.id;
    }
    EXPECT_GT(left, 0);
}

TEST(LabelPlacer, AnswersAlikeWhateverTheOrderOfTheRequests)
{
    Scatter scatter = ScatterOf(11, 150, 600);
    const std::vector<PlacedLabel> first = PlaceLabels(scatter.requests, scatter.obstacles, {});
    std::shuffle(scatter.requests.begin(), scatter.requests.end(), std::mt19937(5));
    const std::vector<PlacedLabel> second = PlaceLabels(scatter.requests, scatter.obstacles, {});
    ASSERT_EQ(first.size(), second.size());
    for (std::size_t i = 0; i < first.size(); ++i)
    {
        EXPECT_EQ(first[i].id, second[i].id);
        EXPECT_EQ(first[i].candidate, second[i].candidate);
    }
}

TEST(LabelPlacer, KeepsLabelsInTheirPlacesWhileTheChartIsMoved)
{
    const Scatter before = ScatterOf(2, 60, 900);
    const std::vector<PlacedLabel> first = PlaceLabels(before.requests, before.obstacles, {});
    Scatter after = ScatterOf(2, 60, 900, 3.4);
    after.obstacles.closed = before.obstacles.closed;
    after.obstacles.lines = before.obstacles.lines;
    const std::vector<PlacedLabel> second = PlaceLabels(after.requests, after.obstacles, MemoryOf(first));
    int kept = 0;
    int jumped = 0;
    for (const PlacedLabel& label : second)
    {
        const PlacedLabel* const was = Find(first, label.id);
        if (was != nullptr)
            (was->candidate == label.candidate ? kept : jumped) += 1;
    }
    EXPECT_GE(kept, 40);
    EXPECT_LE(jumped, 2);
}

TEST(LabelPlacer, StaysInASecondBestPlaceWhenTheBestBecomesFree)
{
    const std::vector<PixelBox> places = PlacesAround({100, 100}, 8, 40, 14);
    EXPECT_EQ(PlaceLabels({{5, 0, places}}, {}, {{5, 3}}).at(0).candidate, 3);
    EXPECT_EQ(PlaceLabels({{5, 0, places}}, {}, {{5, 80}}).at(0).candidate, 0);
    EXPECT_EQ(PlaceLabels({{5, 0, places}}, {}, {{5, -1}}).at(0).candidate, 0);
}

TEST(LabelPlacer, PlacesNothingWithoutCandidates)
{
    EXPECT_TRUE(PlaceLabels({}, {}, {}).empty());
    EXPECT_TRUE(PlaceLabels({{1, 1, {}}, {2, 1, {PixelBox{5, 5, 5, 9}}}}, {}, {}).empty());
}
