#include "tests/core/PaneTreeCases.h"

#include <gtest/gtest.h>

#include <climits>

// Where nodes go, each rectangle worked out by hand.
namespace
{

using namespace vorn;
using namespace vorn::panemode;
using namespace vorn::test;
using Moved = RecordedMoves::Moved;

Edges PlaceOf(const PaneTree& tree, std::size_t node)
{
    return EdgesOf(tree.PlaceOf(node));
}

/// One item alone in a row of 100 by 60 at (10, 20).
Edges PlacedAlone(const PaneItemSpec& item)
{
    PaneTree tree;
    tree.OpenPane(Row());
    tree.Add(item);
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(10, 20, 110, 80), moves));
    return PlaceOf(tree, 1);
}

/// A fixed slot of 100 by 60 around an item of 20 by 10.
Edges PlacedInSlot(unsigned alignment)
{
    return PlacedAlone(Control(kFixedWidth | kFixedHeight | alignment, 100, 60));
}

TEST(PanePlace, ThreeGreedyChildrenOfARowStandSideBySide)
{
    PaneTree tree;
    tree.OpenPane(Row(5, 3));
    tree.Add(Control(0));
    tree.Add(Control(0));
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 117, 50), moves)); // 101: 33, then half of 68
    EXPECT_EQ((std::vector<Moved>{{1, {3, 3, 36, 47}}, {2, {41, 3, 75, 47}}, {3, {80, 3, 114, 47}}}), moves.moved);
    EXPECT_EQ((Edges{0, 0, 117, 50}), PlaceOf(tree, 0));
}

TEST(PanePlace, AColumnPlacesFromTopToBottom)
{
    PaneTree tree;
    PaneSpec column = Column(4);
    column.borders = Rect(1, 2, 3, 5);
    tree.OpenPane(column);
    tree.Add(Control(kFixedHeight | kStretchHeight, 20, 30));
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(10, 10, 110, 110), moves));
    EXPECT_EQ((Edges{11, 12, 107, 42}), PlaceOf(tree, 1));
    EXPECT_EQ((Edges{11, 46, 107, 105}), PlaceOf(tree, 2));
}

TEST(PanePlace, HiddenChildrenTakeNeitherRoomNorSpacing)
{
    PaneTree tree;
    tree.OpenPane(Row(10));
    tree.Add(Control(0));
    tree.Add(Hidden(Control(kFixedWidth, 40)));
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 110, 20), moves));
    EXPECT_EQ((std::vector<Moved>{{1, {0, 0, 50, 20}}, {3, {60, 0, 110, 20}}}), moves.moved);
    EXPECT_EQ((Edges{0, 0, 0, 0}), PlaceOf(tree, 2));
}

TEST(PanePlace, AShownChildOfNoSizeTakesItsSpacing)
{
    PaneTree tree;
    tree.OpenPane(Row(10));
    tree.Add(Control(0));
    PaneItemSpec gap;
    gap.mode = kFixedWidth | kFixedHeight;
    tree.Add(gap);
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 110, 20), moves));
    EXPECT_EQ((std::vector<Moved>{{1, {0, 0, 45, 20}}, {3, {65, 0, 110, 20}}}), moves.moved);
}

TEST(PanePlace, AFixedItemKeepsItsPresentSizeAtTheNearEdge)
{
    EXPECT_EQ((Edges{10, 20, 30, 30}), PlacedInSlot(0));
}

TEST(PanePlace, AFixedItemStandsWhereItIsAligned)
{
    EXPECT_EQ((Edges{90, 20, 110, 30}), PlacedInSlot(kAlignRight));
    EXPECT_EQ((Edges{50, 20, 70, 30}), PlacedInSlot(kAlignHCenter));
    EXPECT_EQ((Edges{10, 70, 30, 80}), PlacedInSlot(kAlignBottom));
    EXPECT_EQ((Edges{10, 45, 30, 55}), PlacedInSlot(kAlignVCenter));
    EXPECT_EQ((Edges{50, 70, 70, 80}), PlacedInSlot(kAlignHCenter | kAlignBottom));
    EXPECT_EQ((Edges{10, 20, 30, 30}), PlacedInSlot(0x10 | 0x40)); // one bit of the two says nothing
}

TEST(PanePlace, HalfOfAnOddRoomIsTruncated)
{
    PaneItemSpec item = Control(kFixedWidth | kAlignHCenter | kFixedHeight | kAlignVCenter, 100, 60);
    item.present = Rect(0, 0, 21, 65);
    EXPECT_EQ((Edges{49, 18, 70, 83}), PlacedAlone(item)); // 79/2 = 39 and -5/2 = -2
}

TEST(PanePlace, AControlLargerThanItsSlotSticksOut)
{
    PaneItemSpec item = Control(kFixedWidth | kFixedHeight, 100, 60);
    item.present = Rect(0, 0, 130, 61);
    EXPECT_EQ((Edges{10, 20, 140, 81}), PlacedAlone(item));
    item.mode |= kAlignRight | kAlignBottom;
    EXPECT_EQ((Edges{-20, 19, 110, 80}), PlacedAlone(item));
}

TEST(PanePlace, AFixedItemThatStretchesFillsItsSlot)
{
    EXPECT_EQ((Edges{10, 20, 110, 30}), PlacedInSlot(kStretchWidth));
    EXPECT_EQ((Edges{10, 20, 30, 80}), PlacedInSlot(kStretchHeight));
}

TEST(PanePlace, AComboBoxKeepsItsHeight)
{
    PaneItemSpec item = Control(0);
    item.keepsHeight = true;
    EXPECT_EQ((Edges{10, 20, 110, 30}), PlacedAlone(item));
}

TEST(PanePlace, PercentAcrossThePaneFillsIt)
{
    EXPECT_EQ((Edges{10, 20, 110, 80}), PlacedAlone(Control(kPercentHeight, 20, 30)));
}

TEST(PanePlace, OnlyWhatChangesIsMoved)
{
    PaneTree tree;
    tree.OpenPane(Row());
    PaneItemSpec still = Control(kFixedWidth | kStretchHeight, 50);
    still.present = Rect(0, 0, 50, 40);
    tree.Add(still);
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 100, 40), moves));
    EXPECT_EQ((std::vector<Moved>{{2, {50, 0, 100, 40}}}), moves.moved);
    EXPECT_TRUE(tree.Place(Rect(0, 0, 100, 40), moves));
    EXPECT_EQ(1U, moves.moved.size());
    EXPECT_TRUE(tree.Place(Rect(0, 0, 101, 40), moves));
    EXPECT_EQ((Moved{2, {50, 0, 101, 40}}), moves.moved.back());
}

TEST(PanePlace, SpacersAreNotMoved)
{
    PaneTree tree;
    tree.OpenPane(Row());
    tree.Add(Spacer(false));
    tree.Add(Control(kFixedWidth, 20));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 100, 40), moves));
    EXPECT_EQ((std::vector<Moved>{{2, {80, 0, 100, 40}}}), moves.moved);
}

TEST(PanePlace, ASpacerAcrossAColumnGrowsNothing)
{
    PaneTree tree;
    tree.OpenPane(Column());
    tree.Add(Spacer(true));
    tree.Add(Control(kFixedHeight | kFixedWidth, 20, 10));
    tree.Add(Spacer(true));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 100, 41), moves));
    EXPECT_EQ((Edges{0, 15, 20, 25}), PlaceOf(tree, 2));
}

TEST(PanePlace, APaneInAPaneFillsItsSlot)
{
    PaneTree tree;
    tree.OpenPane(Column(5));
    tree.Add(Control(0));
    PaneSpec buttons = Row(2, 1);
    buttons.mode = kFixedHeight;
    buttons.ownSize = 24;
    tree.OpenPane(buttons);
    tree.Add(Spacer(false));
    tree.Add(Control(kFixedWidth | kFixedHeight, 20, 10));
    tree.ClosePane();
    tree.ClosePane();
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 100, 100), moves));
    EXPECT_EQ((Edges{0, 0, 100, 71}), PlaceOf(tree, 1));
    EXPECT_EQ((Edges{0, 76, 100, 100}), PlaceOf(tree, 2));
    EXPECT_EQ((Edges{1, 77, 77, 99}), PlaceOf(tree, 3));
    EXPECT_EQ((Edges{79, 77, 99, 87}), PlaceOf(tree, 4));
}

TEST(PanePlace, AFixedPaneWithoutAnOwnSizeTakesItsMinimum)
{
    PaneTree tree;
    tree.OpenPane(Column());
    tree.Add(Control(0));
    PaneSpec buttons = Row(0, 3);
    buttons.mode = kFixedHeight;
    tree.OpenPane(buttons);
    tree.Add(Control(kFixedHeight, 20, 10));
    tree.ClosePane();
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 100, 100), moves));
    EXPECT_EQ((Edges{0, 84, 100, 100}), PlaceOf(tree, 2));
}

TEST(PanePlace, OnlyAPaneOfNoOwnSizeTakesItsMinimum)
{
    PaneTree tree;
    tree.OpenPane(Row());
    PaneForeignSpec foreign;
    foreign.mode = kFixedWidth;
    foreign.least[0] = 30;
    tree.Add(foreign);
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 90, 20), moves));
    EXPECT_EQ((Edges{0, 0, 0, 20}), PlaceOf(tree, 1));
    EXPECT_EQ((Edges{0, 0, 90, 20}), PlaceOf(tree, 2));
}

TEST(PanePlace, ABoxMovesItsControlAndPlacesBelowItsCaption)
{
    PaneTree tree;
    PaneSpec box = Column(0, 4);
    box.frame = PaneFrame::Box;
    box.hasControl = true;
    box.insets = Rect(0, 13, 0, 0);
    tree.OpenPane(box);
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(10, 10, 110, 110), moves));
    EXPECT_EQ((std::vector<Moved>{{0, {10, 10, 110, 110}}, {1, {14, 27, 106, 106}}}), moves.moved);
    EXPECT_TRUE(tree.Place(Rect(10, 10, 110, 110), moves));
    EXPECT_EQ(2U, moves.moved.size());
}

TEST(PanePlace, ABoxFixedAlongItsOrientationHasItsOwnSize)
{
    PaneTree tree;
    tree.OpenPane(Row());
    PaneSpec box = Column(0, 4);
    box.mode = kFixedHeight;
    box.ownSize = 50;
    box.frame = PaneFrame::Box;
    box.hasControl = true;
    tree.OpenPane(box);
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 100, 80), moves));
    EXPECT_EQ((Edges{0, 0, 100, 50}), PlaceOf(tree, 1));
    EXPECT_EQ((Edges{4, 4, 96, 46}), PlaceOf(tree, 2));
}

TEST(PanePlace, ABoxWithoutItsControlPlacesAllTheSame)
{
    PaneTree tree;
    PaneSpec box = Column();
    box.frame = PaneFrame::Box;
    box.insets = Rect(0, 13, 0, 0);
    tree.OpenPane(box);
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 100, 80), moves));
    EXPECT_EQ((std::vector<Moved>{{1, {0, 13, 100, 80}}}), moves.moved);
}

TEST(PanePlace, ATabPlacesIntoItsDisplayArea)
{
    PaneTree tree;
    PaneSpec tab = Row(0, 1);
    tab.frame = PaneFrame::Tab;
    tab.hasControl = true;
    tree.OpenPane(tab);
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 100, 80), moves));
    EXPECT_EQ((std::vector<Moved>{{0, {0, 0, 100, 80}}, {1, {5, 26, 95, 75}}}), moves.moved);
}

TEST(PanePlace, AMoveThatFailsEndsThePlacing)
{
    PaneTree tree;
    tree.OpenPane(Row());
    tree.Add(Control(0));
    tree.Add(Control(0));
    tree.Add(Control(0));
    RecordedMoves moves;
    moves.failsAt = 2;
    EXPECT_FALSE(tree.Place(Rect(0, 0, 90, 20), moves));
    EXPECT_EQ((std::vector<Moved>{{1, {0, 0, 30, 20}}}), moves.moved);
    moves.failsAt = 99;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 90, 20), moves)); // what failed is tried again
    EXPECT_EQ(3U, moves.moved.size());
}

TEST(PanePlace, ANodeThatPlacesItselfGetsItsSlotEveryTime)
{
    PaneTree tree;
    tree.OpenPane(Row());
    PaneForeignSpec foreign;
    foreign.mode = kFixedWidth;
    foreign.width = 30;
    tree.Add(foreign);
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 90, 20), moves));
    EXPECT_TRUE(tree.Place(Rect(0, 0, 90, 20), moves));
    EXPECT_EQ((std::vector<Moved>{{1, {0, 0, 30, 20}}, {1, {0, 0, 30, 20}}}), moves.foreign);
    moves.failsAt = 1;
    EXPECT_FALSE(tree.Place(Rect(0, 0, 90, 20), moves));
}

TEST(PanePlace, AnAreaTurnedInsideOutLeavesMinimaAndNoControlInsideOut)
{
    PaneTree tree;
    tree.OpenPane(Row(5, 10));
    tree.Add(Control(0, 0, 0, 30));
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(100, 100, 40, 60), moves));
    EXPECT_EQ((std::vector<Moved>{{1, {110, 110, 140, 110}}, {2, {145, 110, 150, 110}}}), moves.moved);
}

TEST(PanePlace, ATreeWithoutShownNodesMovesNothing)
{
    PaneTree tree;
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 90, 20), moves));
    tree.OpenPane(Row());
    tree.Add(Hidden(Control(0)));
    tree.ClosePane();
    tree.ClosePane(); // one too many
    EXPECT_TRUE(tree.Place(Rect(0, 0, 90, 20), moves));
    EXPECT_TRUE(moves.moved.empty());
}

TEST(PanePlace, AnItemCanBeTheRoot)
{
    PaneTree tree;
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(1, 2, 90, 20), moves));
    EXPECT_EQ((std::vector<Moved>{{0, {1, 2, 90, 20}}}), moves.moved);
}

TEST(PanePlace, AClearedTreeIsBuiltAnew)
{
    PaneTree tree;
    tree.OpenPane(Row());
    tree.Add(Control(0));
    tree.Clear();
    EXPECT_EQ(0U, tree.Count());
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(1, 2, 90, 20), moves));
    EXPECT_EQ(1U, moves.moved.size());
}

TEST(PanePlace, TheLargestNumbersStayInTheirRange)
{
    PaneTree tree;
    tree.OpenPane(Row(INT_MAX, INT_MIN));
    tree.Add(Control(kFixedWidth, INT_MAX, 0));
    tree.Add(Control(kPercentWidth, INT_MIN, 0));
    tree.Add(Control(0, 0, 0, INT_MAX));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(INT_MIN, INT_MIN, INT_MAX, INT_MAX), moves));
    EXPECT_EQ(3U, moves.moved.size());
}

TEST(PanePlace, AThousandLevelsArePlaced)
{
    PaneTree tree;
    for (int i = 0; i < 1000; ++i)
    {
        tree.OpenPane(i % 2 == 0 ? Row(0, 1) : Column(0, 1));
    }
    tree.Add(Control(0));
    RecordedMoves moves;
    EXPECT_TRUE(tree.Place(Rect(0, 0, 3000, 2500), moves));
    EXPECT_EQ((std::vector<Moved>{{1000, {1000, 1000, 2000, 1500}}}), moves.moved);
}

} // namespace
