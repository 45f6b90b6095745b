#include "tests/support/GridText.h"
#include "toolkit/textlayout/core/AlignWords.h"
#include "toolkit/textlayout/core/Alignment.h"
#include "toolkit/textlayout/core/Root.h"
#include "toolkit/textlayout/core/Split.h"
#include "toolkit/textlayout/core/SplitShare.h"
#include "toolkit/textlayout/core/Table.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

using TextLayout::Alignment;
using TextLayout::Item;
using TextLayout::Root;
using TextLayout::Split;
using TextLayout::Table;
using vorn::test::GridText;
using vorn::test::NumberIn;
using vorn::test::SizedBox;
using vorn::test::TextIn;

namespace
{
int FirstPart(const char* text, int extent)
{
    const auto share = vorn::ReadSplitShare(text);
    EXPECT_TRUE(share) << text;
    return share ? vorn::FirstPartOf(*share, extent) : -12345;
}

CPoint PlaceOf(const Item& node)
{
    return CPoint(NumberIn(node, "x"), NumberIn(node, "y"));
}

CSize SpaceOf(const Item& node)
{
    return CSize(NumberIn(node, "maxWidth"), NumberIn(node, "maxHeight"));
}

/// Where a box of 40 by 20 comes to lie in 101 by 81.
CPoint Aligned(const char* align)
{
    auto* box = new SizedBox(40, 20);
    Root root(101, 81, new Alignment(align, box));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(NumberIn(*box, "x") + 40, NumberIn(*box, "right"));
    EXPECT_EQ(NumberIn(*box, "y") + 20, NumberIn(*box, "bottom"));
    return PlaceOf(*box);
}
} // namespace

TEST(SplitShare, ADirectionIsNeeded)
{
    EXPECT_FALSE(vorn::ReadSplitShare(""));
    EXPECT_FALSE(vorn::ReadSplitShare("50%"));
    EXPECT_FALSE(vorn::ReadSplitShare("50>10"));
    EXPECT_TRUE(vorn::ReadSplitShare("|50")->sideBySide);
    EXPECT_TRUE(vorn::ReadSplitShare("50|")->sideBySide);
    EXPECT_FALSE(vorn::ReadSplitShare("-50")->sideBySide);
    EXPECT_FALSE(vorn::ReadSplitShare("50-")->sideBySide);
    EXPECT_TRUE(vorn::ReadSplitShare("-50|")->sideBySide) << "side by side goes before";
    EXPECT_TRUE(vorn::ReadSplitShare("30%>100|")->sideBySide);
}

TEST(SplitShare, UnitsAreKeptAsWritten)
{
    EXPECT_EQ(34, FirstPart("-34", 200)) << "the mark is no sign";
    EXPECT_EQ(34, FirstPart("34|", 200));
    EXPECT_EQ(300, FirstPart("-300", 200)) << "more than there is";
    EXPECT_EQ(33, FirstPart("| 33.7 ", 200)) << "the first digits";
    EXPECT_EQ(INT_MAX, FirstPart("|99999999999999999999", 200));
}

TEST(SplitShare, PercentAreRounded)
{
    EXPECT_EQ(51, FirstPart("-50%", 101));
    EXPECT_EQ(50, FirstPart("-50%", 100));
    EXPECT_EQ(33, FirstPart("33%|", 100));
    EXPECT_EQ(1, FirstPart("1%|", 50)) << "half a unit";
    EXPECT_EQ(49, FirstPart("1%|", 49)) << "0 is all";
    EXPECT_EQ(150, FirstPart("150%|", 100));
    EXPECT_EQ(INT_MAX, FirstPart("99999999999%|", INT_MAX));
    EXPECT_EQ(51, FirstPart("%-50", 101)) << "the percent mark may stand before";
}

TEST(SplitShare, NothingIsAll)
{
    EXPECT_EQ(80, FirstPart("-", 80));
    EXPECT_EQ(80, FirstPart("|0", 80));
    EXPECT_EQ(80, FirstPart("0%|", 80));
    EXPECT_EQ(80, FirstPart("|0>0", 80));
}

TEST(SplitShare, ABoundIsTheLeastAndTheExtentTheMost)
{
    EXPECT_EQ(100, FirstPart("|30%>100", 200));
    EXPECT_EQ(100, FirstPart("30%>100|", 200));
    EXPECT_EQ(120, FirstPart("|60%>100", 200));
    EXPECT_EQ(80, FirstPart("|60%>100", 80));
    EXPECT_EQ(80, FirstPart("|500>10", 80)) << "with a bound it is never more than there is";
    EXPECT_EQ(10, FirstPart("|>10", 80));
    EXPECT_EQ(80, FirstPart("|>", 80));
    EXPECT_EQ(50, FirstPart("|50>20%", 80)) << "a percent mark of the bound means nothing";
    EXPECT_EQ(-5, FirstPart("|50>20", -5));
}

TEST(LayoutSplit, TheUpperPartHasItsShareAndTheLowerTheRest)
{
    auto* first = new Item;
    auto* second = new Item;
    Root root(200, 101, new Split("-50%", first, second));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(CSize(200, 51), SpaceOf(*first));
    EXPECT_EQ(0, NumberIn(*first, "y"));
    EXPECT_EQ(CSize(200, 50), SpaceOf(*second));
    EXPECT_EQ(51, NumberIn(*second, "y"));
    EXPECT_FALSE(second->Has("x"));
}

TEST(LayoutSplit, TheLeftPartHasItsShareAndTheRightTheRest)
{
    auto* first = new Item;
    auto* second = new Item;
    Root root(200, 60, new Split("|30%>100", first, second));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(CSize(100, 60), SpaceOf(*first));
    EXPECT_EQ(0, NumberIn(*first, "x"));
    EXPECT_EQ(CSize(100, 60), SpaceOf(*second));
    EXPECT_EQ(100, NumberIn(*second, "x"));
    EXPECT_FALSE(second->Has("y"));
}

TEST(LayoutSplit, TheSecondBeginsWhereTheFirstReallyEnds)
{
    auto* first = new GridText("ab"); // 200 wide and 100 high allow 100; it may only be 30
    auto* second = new GridText("c");
    first->Set("maxFontHeight", 30);
    auto* split = new Split("-60%", first, second);
    Root root(200, 100, split);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(60, NumberIn(*first, "maxHeight"));
    EXPECT_EQ(30, NumberIn(*first, "bottom"));
    EXPECT_EQ(30, NumberIn(*second, "y"));
    EXPECT_EQ(70, NumberIn(*second, "maxHeight"));
    EXPECT_EQ(70, NumberIn(*second, "fontHeight"));
    EXPECT_EQ(100, NumberIn(*second, "bottom"));
    EXPECT_FALSE(split->Has("bottom"));
    EXPECT_FALSE(split->Has("height"));

    auto* left = new GridText("ab");
    auto* right = new GridText("c");
    left->Set("maxFontHeight", 30);
    Root beside(200, 100, new Split("|60%", left, right));
    EXPECT_TRUE(beside.ComputeLayout(nullptr));
    EXPECT_EQ(30, NumberIn(*left, "right"));
    EXPECT_EQ(30, NumberIn(*right, "x"));
    EXPECT_EQ(170, NumberIn(*right, "maxWidth"));
}

TEST(LayoutSplit, MeasuringSharesTheSpaceLikeTheLayout)
{
    auto* first = new GridText("ab");
    auto* second = new GridText("cdef");
    auto* split = new Split("-60%", first, second);
    Root root(50, 100, split);
    CSize size;
    int fontHeight = 0;
    EXPECT_TRUE(root.CalcSize(nullptr, size, fontHeight));
    // Two letters of 25 need a font of 50 or 51; the rest of 49 is narrow: four letters of 12, a font of 25.
    EXPECT_EQ(51, NumberIn(*first, "fontHeight"));
    EXPECT_EQ(49, NumberIn(*second, "maxHeight"));
    EXPECT_EQ(25, NumberIn(*second, "fontHeight"));
    EXPECT_EQ(25, fontHeight);
    EXPECT_EQ(CSize(50, 51 + 25), size) << "the sum along the split, the largest across";
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(51, NumberIn(*second, "y"));
}

TEST(LayoutSplit, SizesAddUpSideBySide)
{
    Split split("|40", new SizedBox(35, 20), new SizedBox(70, 50));
    split.Set("maxWidth", 100);
    CSize size;
    int fontHeight = 0;
    EXPECT_TRUE(split.CalcSize(nullptr, size, fontHeight));
    EXPECT_EQ(CSize(105, 50), size);
}

TEST(LayoutSplit, AShareLargerThanTheSpaceLeavesANegativeRest)
{
    auto* first = new Item;
    auto* second = new GridText("abcdefghijkl");
    Root root(200, 100, new Split("-300", first, second));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(300, NumberIn(*first, "maxHeight"));
    EXPECT_EQ(-200, NumberIn(*second, "maxHeight"));
    EXPECT_EQ(9, NumberIn(*second, "fontHeight")) << "no space at all: the smallest font";
}

TEST(LayoutSplit, ItsOwnSizeGoesBeforeItsSpace)
{
    auto* first = new Item;
    auto* second = new Item;
    first->Set("maxHeight", 7);
    first->Set("maxWidth", 8);
    auto* split = new Split("|50%", first, second);
    Root root(200, 100, split);
    split->Set("width", 60);
    split->Set("height", 30);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(CSize(30, 30), SpaceOf(*first)) << "what the child had is replaced";
    EXPECT_EQ(CSize(30, 30), SpaceOf(*second));
}

TEST(LayoutSplit, FailsWithoutDirectionSpaceOrTwoChildren)
{
    CSize size;
    int fontHeight = 0;
    for (const char* share : {"", "50%", "wide", static_cast<const char*>(nullptr)})
    {
        Split split(share, new Item, new Item);
        split.Set("maxWidth", 10);
        split.Set("maxHeight", 10);
        EXPECT_FALSE(split.ComputeLayout(nullptr));
        EXPECT_FALSE(split.ComputeSize(nullptr));
        EXPECT_FALSE(split.CalcSize(nullptr, size, fontHeight));
    }
    Split one("|", new Item, nullptr);
    one.Set("maxWidth", 10);
    EXPECT_FALSE(one.ComputeLayout(nullptr));
    one.Add(new Item);
    EXPECT_TRUE(one.ComputeLayout(nullptr));
    one.Add(new Item);
    EXPECT_FALSE(one.ComputeLayout(nullptr)) << "three children";
    Split spaceless("|", new Item, new Item);
    spaceless.Set("maxHeight", 10);
    EXPECT_FALSE(spaceless.ComputeLayout(nullptr));
}

TEST(LayoutSplit, AFailingChildFailsIt)
{
    Split split("-", new Item, new GridText("a"));
    split.Set("maxHeight", 10);
    EXPECT_FALSE(split.ComputeLayout(nullptr)) << "a text without a width";
}

TEST(AlignWords, AreParted)
{
    using vorn::AlignedTo;
    EXPECT_EQ(AlignedTo::End, vorn::ReadAlignWords("right bottom").across);
    EXPECT_EQ(AlignedTo::End, vorn::ReadAlignWords("right bottom").down);
    EXPECT_EQ(AlignedTo::End, vorn::ReadAlignWords(" ,bottom,,right").across);
    EXPECT_EQ(AlignedTo::Start, vorn::ReadAlignWords("vcenter").across) << "\"center\" is a part of it";
    EXPECT_EQ(AlignedTo::Middle, vorn::ReadAlignWords("vcenter").down);
    EXPECT_EQ(AlignedTo::Start, vorn::ReadAlignWords("center").down);
    EXPECT_EQ(AlignedTo::Start, vorn::ReadAlignWords("Right").across) << "words are exact";
    EXPECT_EQ(AlignedTo::Start, vorn::ReadAlignWords("rightbottom").across);
    EXPECT_EQ(AlignedTo::Middle, vorn::ReadAlignWords("right center").across) << "the last word holds";
}

TEST(AlignWords, RestsAreShared)
{
    using vorn::AlignedStart;
    using vorn::AlignedTo;
    EXPECT_EQ(0, AlignedStart(AlignedTo::Start, 101, 40));
    EXPECT_EQ(30, AlignedStart(AlignedTo::Middle, 101, 40));
    EXPECT_EQ(61, AlignedStart(AlignedTo::End, 101, 40));
    EXPECT_EQ(-1, AlignedStart(AlignedTo::Middle, 40, 43)) << "cut toward zero";
    EXPECT_EQ(INT_MAX, AlignedStart(AlignedTo::End, INT_MAX, INT_MIN));
    EXPECT_EQ(INT_MIN, AlignedStart(AlignedTo::End, INT_MIN, INT_MAX));
}

TEST(LayoutAlignment, PlacesItsChild)
{
    EXPECT_EQ(CPoint(0, 0), Aligned("left"));
    EXPECT_EQ(CPoint(0, 0), Aligned("top"));
    EXPECT_EQ(CPoint(61, 0), Aligned("right"));
    EXPECT_EQ(CPoint(30, 0), Aligned("center"));
    EXPECT_EQ(CPoint(0, 61), Aligned("bottom"));
    EXPECT_EQ(CPoint(0, 30), Aligned("vcenter"));
    EXPECT_EQ(CPoint(30, 30), Aligned("center vcenter"));
    EXPECT_EQ(CPoint(61, 61), Aligned("bottom,right"));
    EXPECT_EQ(CPoint(0, 0), Aligned("middle")) << "an unknown word";
    EXPECT_EQ(CPoint(0, 0), Aligned(""));
    EXPECT_EQ(CPoint(0, 0), Aligned(nullptr));
}

TEST(LayoutAlignment, TakesAStringToo)
{
    const Alignment alignment(CString("right"), new Item);
    EXPECT_EQ("right", TextIn(alignment, "align"));
}

TEST(LayoutAlignment, ReplacesAnEarlierPlace)
{
    auto* box = new SizedBox(40, 20);
    box->Set("x", 500);
    box->Set("y", 500);
    Root root(100, 100, new Alignment("right", box));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(CPoint(60, 0), PlaceOf(*box));
    EXPECT_EQ(20, NumberIn(*box, "bottom"));
}

TEST(LayoutAlignment, PlacesMeasuredTexts)
{
    auto* text = new GridText("abcd");
    text->Set("maxFontHeight", 10);
    Root root(100, 50, new Alignment("right vcenter", text));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(CPoint(80, 20), PlaceOf(*text));
    EXPECT_EQ(100, NumberIn(*text, "right"));
    EXPECT_EQ(30, NumberIn(*text, "bottom"));
}

TEST(LayoutAlignment, PlacesWhatHasNoSizeOfItsOwnByItsChildren)
{
    auto* split = new Split("|50%", new SizedBox(10, 20), new SizedBox(30, 15));
    Root root(100, 50, new Alignment("right bottom", split));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(CPoint(60, 30), PlaceOf(*split));
    auto* item = new Item;
    item->Add(new SizedBox(10, 20));
    item->Add(new SizedBox(30, 15));
    Root other(100, 50, new Alignment("right bottom", item));
    EXPECT_TRUE(other.ComputeLayout(nullptr));
    EXPECT_EQ(CPoint(70, 30), PlaceOf(*item));
}

TEST(LayoutAlignment, UsesItsOwnSizeBeforeItsSpace)
{
    auto* box = new SizedBox(40, 20);
    auto* alignment = new Alignment("right bottom", box);
    alignment->Set("width", 50);
    Root root(100, 100, alignment);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(CPoint(10, 80), PlaceOf(*box));
}

TEST(LayoutAlignment, WithoutSpaceItsChildBeginsAtZero)
{
    auto* box = new SizedBox(40, 20);
    Alignment alignment("right vcenter", box);
    EXPECT_TRUE(alignment.ComputeLayout(nullptr));
    EXPECT_EQ(CPoint(0, 0), PlaceOf(*box));
}

TEST(LayoutTable, StacksItsChildren)
{
    auto* first = new SizedBox(40, 20);
    auto* second = new SizedBox(70, 15);
    auto* third = new Item;
    auto* table = new Table("rows", first, second);
    table->Add(third);
    table->Set("x", 5);
    table->Set("y", 7);
    Root root(100, 50, table);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ("rows", TextIn(*table, "table"));
    EXPECT_EQ(0, NumberIn(*first, "y"));
    EXPECT_EQ(CSize(100, 50), SpaceOf(*first));
    EXPECT_EQ(20, NumberIn(*second, "y"));
    EXPECT_EQ(CSize(100, 30), SpaceOf(*second));
    EXPECT_EQ(35, NumberIn(*third, "y"));
    EXPECT_EQ(CSize(100, 15), SpaceOf(*third));
    EXPECT_EQ(70, NumberIn(*table, "width"));
    EXPECT_EQ(35, NumberIn(*table, "height"));
    EXPECT_EQ(75, NumberIn(*table, "right"));
    EXPECT_EQ(42, NumberIn(*table, "bottom"));
}

TEST(LayoutTable, TheRestIsNeverBelowNothing)
{
    auto* last = new Item;
    Root root(100, 50, new Table(nullptr, new SizedBox(10, 80), last));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(80, NumberIn(*last, "y"));
    EXPECT_EQ(0, NumberIn(*last, "maxHeight"));
}

TEST(LayoutTable, TextsTakeWhatTheyNeed)
{
    auto* first = new GridText("abcdefgh"); // 8 letters in 80: 20 or 21 high
    auto* second = new GridText("ab");
    auto* table = new Table("", first, second);
    Root root(80, 50, table);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(21, NumberIn(*first, "bottom"));
    EXPECT_EQ(21, NumberIn(*second, "y"));
    EXPECT_EQ(29, NumberIn(*second, "fontHeight"));
    EXPECT_EQ(50, NumberIn(*table, "height"));
}

TEST(LayoutTable, AChildWithItsOwnEndEndsThere)
{
    auto* inner = new Table(nullptr, new SizedBox(10, 20), new SizedBox(20, 5));
    auto* last = new Item;
    auto* table = new Table(nullptr, inner, last);
    Root root(100, 50, table);
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(25, NumberIn(*inner, "bottom"));
    EXPECT_EQ(25, NumberIn(*last, "y"));
}

TEST(LayoutTable, ASplitEndsAfterTheSizeOfItsChildren)
{
    auto* split = new Split("|50%", new SizedBox(10, 20), new SizedBox(30, 15));
    auto* last = new Item;
    Root root(100, 50, new Table(nullptr, split, last));
    EXPECT_TRUE(root.ComputeLayout(nullptr));
    EXPECT_EQ(20, NumberIn(*last, "y"));
}

TEST(LayoutTable, TellsTheLargestWidthAndTheSumOfTheHeights)
{
    Table table(nullptr, new SizedBox(40, 20), new SizedBox(70, 15));
    table.Set("maxWidth", 100);
    CSize size;
    int fontHeight = 0;
    EXPECT_TRUE(table.CalcSize(nullptr, size, fontHeight));
    EXPECT_EQ(CSize(70, 35), size);
    EXPECT_EQ(9999, fontHeight);
    EXPECT_FALSE(table.Has("width")) << "measuring places nothing";
    EXPECT_TRUE(table.ComputeSize(nullptr));
    EXPECT_FALSE(table.Has("width"));
}

TEST(LayoutTable, AnEmptyOneHasNoSize)
{
    Table table(nullptr, nullptr, nullptr);
    EXPECT_TRUE(table.ComputeLayout(nullptr));
    EXPECT_EQ(0, NumberIn(table, "width"));
    EXPECT_EQ(0, NumberIn(table, "bottom"));
    EXPECT_FALSE(table.Has("table"));
}
