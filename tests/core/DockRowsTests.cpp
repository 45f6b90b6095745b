#include "framework/bars/core/DockRows.h"

#include <gtest/gtest.h>

#include <random>

using vorn::ArrangeDockRows;
using vorn::ChooseDockRow;
using vorn::DockBand;
using vorn::DockBox;
using vorn::DockItem;
using vorn::DockRowChoice;

namespace
{
using Rows = std::vector<std::vector<DockItem>>;
}

TEST(DockRows, ABarStandsWhereItWantsTo)
{
    const auto all = ArrangeDockRows({{{40, 100, 20}}}, 300);
    EXPECT_EQ((DockBox{40, 0, 100, 20}), all.boxes[0][0]);
    EXPECT_EQ((DockBand{0, 20}), all.bands[0]);
    EXPECT_EQ(140, all.length);
    EXPECT_EQ(20, all.thickness);
}

TEST(DockRows, PlacesOutsideAreMovedIn)
{
    EXPECT_EQ(0, ArrangeDockRows({{{-70, 100, 20}}}, 300).boxes[0][0].along);
    EXPECT_EQ(200, ArrangeDockRows({{{290, 100, 20}}}, 300).boxes[0][0].along);
    EXPECT_EQ(200, ArrangeDockRows({{{0x7FFFFFFF, 100, 20}}}, 300).boxes[0][0].along);
}

TEST(DockRows, ABarPushesTheNextOneAndMovesBackAtTheEnd)
{
    const auto all = ArrangeDockRows({{{0, 100, 20}, {50, 80, 30}, {250, 100, 10}}}, 300);
    EXPECT_EQ((DockBox{0, 0, 100, 20}), all.boxes[0][0]);
    EXPECT_EQ((DockBox{100, 0, 80, 30}), all.boxes[0][1]);
    EXPECT_EQ((DockBox{200, 0, 100, 10}), all.boxes[0][2]);
    EXPECT_EQ((DockBand{0, 30}), all.bands[0]) << "as thick as the thickest";
}

TEST(DockRows, BarsThatDoNotFitGoOnInANewLineOfTheirRow)
{
    const auto all = ArrangeDockRows({{{0, 150, 20}, {150, 100, 25}, {250, 100, 10}}, {{0, 50, 7}}}, 300);
    EXPECT_EQ((DockBox{150, 0, 100, 25}), all.boxes[0][1]);
    EXPECT_EQ((DockBox{200, 25, 100, 10}), all.boxes[0][2]);
    EXPECT_EQ((DockBand{0, 35}), all.bands[0]);
    EXPECT_EQ((DockBox{0, 35, 50, 7}), all.boxes[1][0]);
    EXPECT_EQ((DockBand{35, 42}), all.bands[1]);
}

TEST(DockRows, ALongBarIsCut)
{
    EXPECT_EQ((DockBox{0, 0, 300, 20}), ArrangeDockRows({{{10, 5000, 20}}}, 300).boxes[0][0]);
    EXPECT_EQ((DockBox{0, 0, 0, 20}), ArrangeDockRows({{{10, 50, 20}}}, -5).boxes[0][0]);
}

TEST(DockRows, EmptyRowsTakeNothing)
{
    const auto all = ArrangeDockRows({{}, {{0, 10, 20}}, {}}, 300);
    EXPECT_EQ((DockBand{0, 0}), all.bands[0]);
    EXPECT_EQ((DockBand{0, 20}), all.bands[1]);
    EXPECT_EQ((DockBand{20, 20}), all.bands[2]);
    EXPECT_EQ(0, ArrangeDockRows({}, 300).thickness);
}

TEST(DockRows, NoBarsOverlapAndNoneLeavesTheDock)
{
    std::mt19937 random(7);
    const auto number = [&random](int low, int high)
    {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    for (int round = 0; round < 2000; ++round)
    {
        const int available = number(0, 400);
        Rows rows(static_cast<std::size_t>(number(0, 4)));
        for (auto& row : rows)
        {
            row.resize(static_cast<std::size_t>(number(0, 5)));
            for (DockItem& item : row)
            {
                item = {number(-100, 500), number(0, 250), number(0, 60)};
            }
        }
        const auto all = ArrangeDockRows(rows, available);
        ASSERT_EQ(rows.size(), all.boxes.size());
        std::vector<DockBox> boxes;
        for (std::size_t r = 0; r < rows.size(); ++r)
        {
            for (std::size_t i = 0; i < rows[r].size(); ++i)
            {
                const DockBox& box = all.boxes[r][i];
                EXPECT_EQ(std::min(rows[r][i].length, available), box.length);
                EXPECT_GE(box.along, 0);
                EXPECT_LE(box.along + box.length, available);
                EXPECT_GE(box.across, all.bands[r].start);
                EXPECT_LE(box.across + box.thickness, all.bands[r].end);
                for (const DockBox& other : boxes)
                {
                    const bool apart =
                        box.along + box.length <= other.along || other.along + other.length <= box.along ||
                        box.across + box.thickness <= other.across || other.across + other.thickness <= box.across;
                    EXPECT_TRUE(apart);
                }
                boxes.push_back(box);
            }
        }
    }
}

TEST(DockRows, TheMiddleOfARowTakesABarInItsEdgesMakeANewRow)
{
    const DockBand bands[] = {{0, 20}, {20, 20}, {20, 60}};
    EXPECT_EQ((DockRowChoice{0, true}), ChooseDockRow(bands, -30));
    EXPECT_EQ((DockRowChoice{0, true}), ChooseDockRow(bands, 4));
    EXPECT_EQ((DockRowChoice{0, false}), ChooseDockRow(bands, 5));
    EXPECT_EQ((DockRowChoice{0, false}), ChooseDockRow(bands, 14));
    EXPECT_EQ((DockRowChoice{1, true}), ChooseDockRow(bands, 15));
    EXPECT_EQ((DockRowChoice{2, true}), ChooseDockRow(bands, 29)) << "the row in which nothing is shown takes none in";
    EXPECT_EQ((DockRowChoice{2, false}), ChooseDockRow(bands, 30));
    EXPECT_EQ((DockRowChoice{3, true}), ChooseDockRow(bands, 50));
    EXPECT_EQ((DockRowChoice{3, true}), ChooseDockRow(bands, 1000));
    EXPECT_EQ((DockRowChoice{0, true}), ChooseDockRow({}, 10));
}
