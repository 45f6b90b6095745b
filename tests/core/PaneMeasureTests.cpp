#include "tests/core/PaneTreeCases.h"

#include <gtest/gtest.h>

#include <climits>

// What nodes ask for, each figure worked out by hand.
namespace
{

using namespace vorn;
using namespace vorn::panemode;
using namespace vorn::test;

constexpr PaneAxis kWidth = PaneAxis::Width;
constexpr PaneAxis kHeight = PaneAxis::Height;

PaneTree Measured(const PaneSpec& pane, const std::vector<PaneItemSpec>& items)
{
    PaneTree tree;
    tree.OpenPane(pane);
    for (const PaneItemSpec& item : items)
    {
        tree.Add(item);
    }
    tree.ClosePane();
    tree.Measure();
    return tree;
}

PaneTree Measured(const PaneItemSpec& item)
{
    PaneTree tree;
    tree.Add(item);
    tree.Measure();
    return tree;
}

PaneSpec With(PaneSpec pane, unsigned mode, int ownSize)
{
    pane.mode = mode;
    pane.ownSize = ownSize;
    return pane;
}

TEST(PaneMeasure, AFixedItemIsItsStoredSize)
{
    const PaneTree tree = Measured(Control(kFixedWidth | kFixedHeight, 70, 3, 90, 90));
    EXPECT_EQ(70, tree.Wanted(0, kWidth, 500));
    EXPECT_EQ(3, tree.Wanted(0, kHeight, 500));
    EXPECT_EQ(70, tree.Least(0, kWidth));
    EXPECT_EQ(3, tree.Least(0, kHeight));
    EXPECT_EQ(70, tree.Most(0, kWidth));
    EXPECT_EQ(3, tree.Most(0, kHeight));
}

TEST(PaneMeasure, APercentItemIsAPartOfItsParentTruncated)
{
    const PaneTree tree = Measured(Control(kPercentWidth | kPercentHeight, 50, 33, 12, 2));
    EXPECT_EQ(50, tree.Wanted(0, kWidth, 101));
    EXPECT_EQ(33, tree.Wanted(0, kHeight, 101));
    EXPECT_EQ(-50, tree.Wanted(0, kWidth, -101));
    EXPECT_EQ(1073741823, tree.Wanted(0, kWidth, INT_MAX));
    EXPECT_EQ(12, tree.Least(0, kWidth));
    EXPECT_EQ(5, tree.Least(0, kHeight));
    EXPECT_EQ(-1, tree.Most(0, kWidth));
}

TEST(PaneMeasure, AGreedyItemAnswersMinusOneAndNeedsFivePixelsAtLeast)
{
    const PaneTree tree = Measured(Control(0, 70, 30, 4, 6));
    EXPECT_EQ(-1, tree.Wanted(0, kWidth, 500));
    EXPECT_EQ(-1, tree.Wanted(0, kHeight, 500));
    EXPECT_EQ(5, tree.Least(0, kWidth));
    EXPECT_EQ(6, tree.Least(0, kHeight));
    EXPECT_EQ(-1, tree.Most(0, kWidth));
    EXPECT_EQ(-1, tree.Most(0, kHeight));
}

TEST(PaneMeasure, AnItemWithBothBitsOfAnAxisIsFixed)
{
    const PaneTree tree = Measured(Control(kFixedWidth | kPercentWidth, 70));
    EXPECT_EQ(70, tree.Wanted(0, kWidth, 500));
    EXPECT_EQ(70, tree.Least(0, kWidth));
}

TEST(PaneMeasure, ASpacerNeedsFivePixelsAlongAndNoneAcross)
{
    const PaneTree tree = Measured(Spacer(false));
    EXPECT_EQ(5, tree.Least(0, kWidth));
    EXPECT_EQ(-1, tree.Most(0, kWidth));
    EXPECT_EQ(0, tree.Least(0, kHeight));
    EXPECT_EQ(0, tree.Most(0, kHeight));
    EXPECT_TRUE(tree.IsShown(0));
}

TEST(PaneMeasure, WhatIsHiddenMeasuresNothing)
{
    const PaneTree tree =
        Measured(Row(5, 7), {Hidden(Control(kFixedWidth, 70)), Hidden(Control(kPercentHeight, 9, 50))});
    for (std::size_t node = 0; node < 3; ++node)
    {
        for (const PaneAxis axis : {kWidth, kHeight})
        {
            EXPECT_EQ(0, tree.Least(node, axis)) << node;
            EXPECT_EQ(0, tree.Most(node, axis)) << node;
            EXPECT_EQ(0, tree.Wanted(node, axis, 500)) << node;
        }
        EXPECT_FALSE(tree.IsShown(node)) << node;
    }
}

TEST(PaneMeasure, APaneAddsSpacingAndBordersToItsChildrenMinima)
{
    PaneSpec row = Row(5);
    row.borders = Rect(1, 2, 4, 8);
    const PaneTree tree =
        Measured(row, {Control(kFixedWidth, 70, 0, 0, 11), Control(kFixedWidth, 3, 0, 0, 40), Control(0, 0, 0, 9)});
    EXPECT_EQ(70 + 5 + 9 + 2 * 5 + 1 + 4, tree.Least(0, kWidth)); // the 3 counts as 5
    EXPECT_EQ(40 + 2 + 8, tree.Least(0, kHeight));
    EXPECT_EQ(-1, tree.Most(0, kWidth));
}

TEST(PaneMeasure, ChildrenWithoutAMinimumBringNoSpacing)
{
    const PaneTree tree = Measured(Row(5), {Control(kFixedWidth, 70), Control(kFixedWidth, 0), Control(kFixedWidth, -9),
                                            Hidden(Control(kFixedWidth, 50)), Control(kFixedWidth, 20)});
    EXPECT_EQ(70 + 20 + 5, tree.Least(0, kWidth));
}

TEST(PaneMeasure, APaneWhoseChildrenHaveNoMinimumAddsNoBorders)
{
    const PaneTree tree = Measured(Row(5, 7), {Control(kFixedWidth | kFixedHeight, 0, 0)});
    EXPECT_EQ(0, tree.Least(0, kWidth));
    EXPECT_EQ(0, tree.Least(0, kHeight));
}

TEST(PaneMeasure, AFixedPaneIsItsOwnSizeAcrossAndItsChildrenAlong)
{
    const PaneTree tree =
        Measured(With(Row(0, 3), kFixedWidth | kFixedHeight, 44), {Control(kFixedWidth | kFixedHeight, 70, 99)});
    EXPECT_EQ(76, tree.Least(0, kWidth));
    EXPECT_EQ(44, tree.Least(0, kHeight));
    EXPECT_EQ(44, tree.Most(0, kHeight));
    EXPECT_EQ(44, tree.Wanted(0, kWidth, 500));
    EXPECT_EQ(44, tree.Wanted(0, kHeight, 500));
}

TEST(PaneMeasure, AnOwnSizeBelowNothingIsAMinimumButNoMaximum)
{
    const PaneTree tree = Measured(With(Row(0, 3), kFixedHeight, -7), {Control(kFixedHeight, 0, 20)});
    EXPECT_EQ(-7, tree.Least(0, kHeight));
    EXPECT_EQ(20, tree.Most(0, kHeight));
}

TEST(PaneMeasure, ASpacerIsAlwaysShown)
{
    EXPECT_TRUE(Measured(Hidden(Spacer(false))).IsShown(0));
}

TEST(PaneMeasure, AFixedPaneWithoutAnOwnSizeIsAsLargeAsItsChildren)
{
    const PaneTree tree = Measured(With(Row(0, 3), kFixedHeight, 0), {Control(kFixedHeight, 0, 20)});
    EXPECT_EQ(26, tree.Least(0, kHeight));
    EXPECT_EQ(20, tree.Most(0, kHeight)); // the limit is counted without borders
}

TEST(PaneMeasure, APaneWithNeitherBitAnswersNothing)
{
    const PaneTree tree = Measured(With(Row(), 0, 44), {Control(0)});
    EXPECT_EQ(0, tree.Wanted(0, kWidth, 500));
}

TEST(PaneMeasure, APercentPaneIsAPartOfItsParentEvenWhereItIsFixedToo)
{
    const PaneTree tree = Measured(With(Row(), kPercentWidth | kFixedWidth, 30), {Control(0)});
    EXPECT_EQ(60, tree.Wanted(0, kWidth, 201));
}

TEST(PaneMeasure, AMaximumIsOneLessThanTheSum)
{
    const PaneTree tree = Measured(Row(5), {Control(kFixedWidth, 100), Control(kFixedWidth, 50)});
    EXPECT_EQ(154, tree.Most(0, kWidth));
    EXPECT_EQ(155, tree.Least(0, kWidth));
}

TEST(PaneMeasure, AMaximumCountsTheSpacingOfChildrenThatHaveOne)
{
    const PaneTree tree =
        Measured(Row(5, 3), {Control(kFixedWidth, 100), Control(kFixedWidth, 0), Control(kFixedWidth, 50)});
    EXPECT_EQ(100 + 50 - 1 + 5 + 6, tree.Most(0, kWidth));
}

TEST(PaneMeasure, AMaximumIsNothingWhenTheSumIsNegative)
{
    EXPECT_EQ(0, Measured(Row(5, 3), {Control(kFixedWidth, 0)}).Most(0, kWidth));
    EXPECT_EQ(0, Measured(Row(5, 3), {Control(kFixedWidth, -20)}).Most(0, kWidth));
}

TEST(PaneMeasure, OneChildWithoutALimitMakesThePaneUnlimited)
{
    const PaneTree tree = Measured(Column(5), {Control(kFixedWidth | kFixedHeight, 100, 30), Control(0)});
    EXPECT_EQ(-1, tree.Most(0, kWidth));
    EXPECT_EQ(-1, tree.Most(0, kHeight));
}

TEST(PaneMeasure, AMaximumAcrossIsThatOfTheLargestChild)
{
    const PaneTree tree = Measured(Column(5, 9), {Control(kFixedWidth, 100), Control(kFixedWidth, 120)});
    EXPECT_EQ(120, tree.Most(0, kWidth));
    EXPECT_EQ(138, tree.Least(0, kWidth));
}

TEST(PaneMeasure, AColumnMirrorsARow)
{
    PaneSpec column = Column(5);
    column.borders = Rect(1, 2, 4, 8);
    const PaneTree tree =
        Measured(column, {Control(kFixedHeight | kFixedWidth, 11, 70), Control(kFixedHeight, 0, 30, 40)});
    EXPECT_EQ(70 + 30 + 5 + 10, tree.Least(0, kHeight));
    EXPECT_EQ(70 + 30 - 1 + 5 + 10, tree.Most(0, kHeight));
    EXPECT_EQ(40 + 5, tree.Least(0, kWidth));
}

TEST(PaneMeasure, ABoxAddsItsCaptionToEverySumOfTopAndBottom)
{
    PaneSpec box = Column(5, 2);
    box.frame = PaneFrame::Box;
    box.insets = Rect(0, 13, 0, 0);
    const std::vector<PaneItemSpec> items{Control(kFixedHeight | kFixedWidth, 40, 20)};
    const PaneTree column = Measured(box, items);
    EXPECT_EQ(20 + 4 + 13, column.Least(0, kHeight));
    EXPECT_EQ(20 - 1 + 4 + 13, column.Most(0, kHeight));
    EXPECT_EQ(40 + 4, column.Least(0, kWidth));
    box.isVertical = false;
    const PaneTree row = Measured(box, items);
    EXPECT_EQ(20 + 4 + 13, row.Least(0, kHeight));
    EXPECT_EQ(20, row.Most(0, kHeight));
    EXPECT_EQ(44, row.Least(0, kWidth));
    EXPECT_EQ(60, Measured(With(box, kFixedHeight, 60), items).Least(0, kHeight)); // an own size is the whole
}

TEST(PaneMeasure, ATabAddsWhatItKeepsOnEverySide)
{
    PaneSpec tab = Row(0, 1);
    tab.frame = PaneFrame::Tab;
    tab.hasControl = true;
    tab.insets = Rect(4, 25, 4, 4);
    const PaneTree tree = Measured(tab, {Control(kFixedHeight | kFixedWidth, 40, 20)});
    EXPECT_EQ(40 + 2 + 8, tree.Least(0, kWidth));
    EXPECT_EQ(20 + 2 + 29, tree.Least(0, kHeight));
    EXPECT_EQ(40 - 1 + 2 + 8, tree.Most(0, kWidth));
    EXPECT_EQ(20, tree.Most(0, kHeight));
}

TEST(PaneMeasure, APaneOfSpacersAloneIsShown)
{
    EXPECT_TRUE(Measured(Row(), {Spacer(false)}).IsShown(0));
    EXPECT_FALSE(Measured(Row(), {}).IsShown(0));
}

TEST(PaneMeasure, APaneIsShownByItsControlsNotBySpacersBetweenThem)
{
    EXPECT_FALSE(Measured(Row(), {Hidden(Control(0)), Spacer(false)}).IsShown(0));
    EXPECT_TRUE(Measured(Row(), {Hidden(Control(0)), Spacer(false), Control(0)}).IsShown(0));
}

TEST(PaneMeasure, ANestedPaneOfSpacersDoesNotShowAPaneOfHiddenControls)
{
    PaneTree tree;
    tree.OpenPane(Row());
    tree.OpenPane(Row());
    tree.Add(Spacer(false));
    tree.ClosePane();
    tree.Add(Hidden(Control(0)));
    tree.ClosePane();
    tree.Measure();
    EXPECT_FALSE(tree.IsShown(0));
    EXPECT_TRUE(tree.IsShown(1));
}

TEST(PaneMeasure, AVisibleTabIsShownWithoutChildrenAndShowsWhatHoldsIt)
{
    PaneTree tree;
    tree.OpenPane(Row());
    PaneSpec tab = Row();
    tab.frame = PaneFrame::Tab;
    tab.hasControl = tab.isShownAlone = true;
    tree.OpenPane(tab);
    tree.ClosePane();
    tree.Add(Hidden(Control(0)));
    tree.ClosePane();
    tree.Measure();
    EXPECT_TRUE(tree.IsShown(0));
    EXPECT_TRUE(tree.IsShown(1));
}

TEST(PaneMeasure, AnItemShownLaterIsMeasuredAnew)
{
    PaneTree tree = Measured(Row(), {Hidden(Control(kFixedWidth, 70))});
    tree.Show(1, true);
    tree.Measure();
    EXPECT_EQ(70, tree.Least(0, kWidth));
}

TEST(PaneMeasure, ANodeThatMeasuresItselfIsTakenAtItsWord)
{
    PaneTree tree;
    tree.OpenPane(Row(5));
    PaneForeignSpec foreign;
    foreign.least[0] = 31;
    foreign.most[0] = 80;
    tree.Add(foreign);
    tree.Add(Control(kFixedWidth, 9));
    tree.Measure(); // closes what is open
    EXPECT_EQ(45, tree.Least(0, kWidth));
    EXPECT_EQ(93, tree.Most(0, kWidth));
}

TEST(PaneMeasure, SumsBeyondAnIntStayAtItsLimit)
{
    const PaneTree tree = Measured(Row(5), {Control(kFixedWidth, INT_MAX), Control(kFixedWidth, INT_MAX)});
    EXPECT_EQ(INT_MAX, tree.Least(0, kWidth));
    EXPECT_EQ(INT_MAX, tree.Most(0, kWidth));
}

TEST(PaneMeasure, AThousandLevelsAreMeasured)
{
    PaneTree tree;
    for (int i = 0; i < 1000; ++i)
    {
        tree.OpenPane(Row(0, 1));
    }
    tree.Add(Control(kFixedWidth | kFixedHeight, 30, 20));
    tree.Measure();
    EXPECT_EQ(2030, tree.Least(0, kWidth));
    EXPECT_EQ(2020, tree.Least(0, kHeight));
    EXPECT_EQ(1030, tree.Most(0, kWidth)); // each level takes one and adds two
    EXPECT_EQ(20, tree.Most(0, kHeight));
}

} // namespace
