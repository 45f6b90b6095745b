#include "toolkit/layout/core/ShareExtent.h"

#include <gtest/gtest.h>

#include <climits>
#include <numeric>
#include <vector>

// Lengths shared out among children, each figure worked out by hand.
namespace
{

using vorn::ExtentShare;
using Role = ExtentShare::Role;
using Sizes = std::vector<int>;

ExtentShare Fixed(int size, bool stretches = false)
{
    ExtentShare child;
    child.role = Role::Fixed;
    child.size = child.least = child.most = size;
    child.stretches = stretches;
    return child;
}

ExtentShare Percent(int percent, int least = 5, int most = -1)
{
    ExtentShare child;
    child.role = Role::Percent;
    child.percent = percent;
    child.least = least;
    child.most = most;
    return child;
}

ExtentShare Greedy(int least = 5, int most = -1)
{
    ExtentShare child;
    child.least = least;
    child.most = most;
    return child;
}

Sizes Shared(std::vector<ExtentShare> children, long long extent)
{
    vorn::ShareExtent(children, extent);
    Sizes sizes;
    for (const ExtentShare& child : children)
    {
        sizes.push_back(child.size);
    }
    return sizes;
}

TEST(ShareExtent, GreedyChildrenShareEquallyAndTheLastTakesTheRest)
{
    EXPECT_EQ((Sizes{33, 33, 34}), Shared({Greedy(), Greedy(), Greedy()}, 100));
    EXPECT_EQ((Sizes{100}), Shared({Greedy()}, 100));
    EXPECT_EQ((Sizes{25, 25, 25, 26}), Shared({Greedy(), Greedy(), Greedy(), Greedy()}, 101));
}

TEST(ShareExtent, APercentChildGetsItsShareTruncated)
{
    EXPECT_EQ((Sizes{50}), Shared({Percent(50)}, 101));
    EXPECT_EQ((Sizes{33, 66}), Shared({Percent(33), Percent(66)}, 101)); // 33.33 and 66.66
    EXPECT_EQ((Sizes{150}), Shared({Percent(150)}, 100));
}

TEST(ShareExtent, PercentagesAreOfWhatFixedChildrenLeave)
{
    EXPECT_EQ((Sizes{100, 50, 25, 25}), Shared({Fixed(100), Percent(50), Percent(25), Greedy()}, 200));
}

TEST(ShareExtent, FixedChildrenHaveTheirSizesWhateverIsLeft)
{
    EXPECT_EQ((Sizes{80, 90}), Shared({Fixed(80), Fixed(90)}, 100));
    EXPECT_EQ((Sizes{80, 5, 5}), Shared({Fixed(80), Greedy(), Percent(50)}, 60));
    EXPECT_EQ((Sizes{-4, 104}), Shared({Fixed(-4), Greedy()}, 100)); // a gap that pulls the next child back
}

TEST(ShareExtent, FixedChildrenWithoutOthersLeaveAGap)
{
    EXPECT_EQ((Sizes{10, 20}), Shared({Fixed(10), Fixed(20)}, 100));
}

TEST(ShareExtent, FixedChildrenThatStretchShareWhatNobodyTakes)
{
    EXPECT_EQ((Sizes{43, 20, 54}), Shared({Fixed(10, true), Fixed(20), Fixed(20, true)}, 117)); // 67: 33 and 34
    EXPECT_EQ((Sizes{10, 90}), Shared({Fixed(10, true), Greedy()}, 100));
    EXPECT_EQ((Sizes{60, 50}), Shared({Fixed(10, true), Percent(50)}, 110));
    EXPECT_EQ((Sizes{10, 20}), Shared({Fixed(10, true), Fixed(20, true)}, 25));
}

TEST(ShareExtent, AGreedyMinimumIsTakenFromTheOthersInProportion)
{
    // Thirds of 120 are 40; the first needs 70, so 30 come from 40 + 40: 15 each.
    EXPECT_EQ((Sizes{70, 25, 25}), Shared({Greedy(70), Greedy(), Greedy()}, 120));
}

TEST(ShareExtent, AGreedyCorrectionOfFiveOrLessIsGivenWholeToTheFirst)
{
    EXPECT_EQ((Sizes{45, 35, 40}), Shared({Greedy(45), Greedy(), Greedy()}, 120));
    // Six is divided: 3 each.
    EXPECT_EQ((Sizes{46, 37, 37}), Shared({Greedy(46), Greedy(), Greedy()}, 120));
}

TEST(ShareExtent, AGreedyCorrectionPassesOverOneThatCannotGive)
{
    // The second stands at its minimum already and would be pushed below: it is clamped and gives nothing.
    EXPECT_EQ((Sizes{44, 40, 36}), Shared({Greedy(44), Greedy(40), Greedy()}, 120));
}

TEST(ShareExtent, AGreedyMaximumLeavesRoomToTheOthers)
{
    // Thirds of 120 are 40; the first wants 10 only, 30 go to the others: 15 each.
    EXPECT_EQ((Sizes{10, 55, 55}), Shared({Greedy(5, 10), Greedy(), Greedy()}, 120));
    EXPECT_EQ((Sizes{10, 20}), Shared({Greedy(5, 10), Greedy(5, 20)}, 100)); // nobody left: a gap
}

TEST(ShareExtent, WhatMaximaLeaveGoesToThoseAtTheirMinimum)
{
    // Halves of 60 are 30. The first is raised to 50 (20 too much), the second held at 4 (26 too little): 6 are left.
    EXPECT_EQ((Sizes{56, 4}), Shared({Greedy(50), Greedy(0, 4)}, 60));
    EXPECT_EQ((Sizes{52, 4}), Shared({Greedy(50, 52), Greedy(0, 4)}, 60)); // no more than its maximum
}

TEST(ShareExtent, MinimaHoldWhenThereIsNotEnough)
{
    EXPECT_EQ((Sizes{40, 30, 20}), Shared({Greedy(40), Greedy(30), Greedy(20)}, 30));
    EXPECT_EQ((Sizes{5, 5}), Shared({Greedy(), Greedy()}, -50));
    EXPECT_EQ((Sizes{40, 30}), Shared({Percent(50, 40), Percent(50, 30)}, 20));
}

TEST(ShareExtent, APercentMinimumIsTakenFromTheOthersInProportion)
{
    // Of 200: 20 wanted, 50 needed; 30 come from 80 + 100: 30*80/180 = 13 and 30*100/180 = 16. The last 1 is whole.
    EXPECT_EQ((Sizes{50, 66, 84}), Shared({Percent(10, 50), Percent(40), Percent(50)}, 200));
}

TEST(ShareExtent, APercentCorrectionOfFiveOrLessIsGivenWholeToTheFirst)
{
    EXPECT_EQ((Sizes{25, 75, 100}), Shared({Percent(10, 25), Percent(40), Percent(50)}, 200));
}

TEST(ShareExtent, APercentMaximumLeavesRoomToTheOthers)
{
    // Of 200: 100 wanted, 40 allowed; 60 go to 40 + 60: 24 and 36.
    EXPECT_EQ((Sizes{40, 64, 96}), Shared({Percent(50, 5, 40), Percent(20), Percent(30)}, 200));
}

TEST(ShareExtent, WhatIsLeftGivesBeforeThePercentChildrenDo)
{
    // Of 100: 10 wanted, 60 needed (50 too much); the other can give 20 - 5 = 15. The rest of 70 pays the 35, the
    // other 15.
    EXPECT_EQ((Sizes{60, 5, 35}), Shared({Percent(10, 60), Percent(20), Greedy()}, 100));
}

TEST(ShareExtent, APercentChildAtItsMinimumMakesTheOthersGiveLess)
{
    // Of 300: 30 wanted, 90 needed: 60 too much, from 30 (at least 28), 120 and 120, 270 in total. First round:
    // 60*30/270 = 6 is more than the 2 it has, so it gives 2; the total grows to 298; 60*120/298 = 24 from each. Left
    // 10: 10*96/298 = 3 each, left 4: whole from the first that is free.
    EXPECT_EQ((Sizes{90, 28, 89, 93}), Shared({Percent(10, 90), Percent(10, 28), Percent(40), Percent(40)}, 300));
}

TEST(ShareExtent, AProportionThatComesToNothingIsTakenWholeFromAGreedyChild)
{
    // Ninths of 90: 10 each, the first needs 16. 10*6/80 is 0, so the next gives all it has above 5, the one after the
    // rest.
    std::vector<ExtentShare> children(9, Greedy());
    children[0].least = 16;
    EXPECT_EQ((Sizes{16, 5, 9, 10, 10, 10, 10, 10, 10}), Shared(children, 90));
}

TEST(ShareExtent, AProportionThatComesToNothingIsNotTakenFromPercentChildren)
{
    // Of 100: 9 each, the first needs 15. Of the 6, each of the others would give 9*6/81, which is 0.
    std::vector<ExtentShare> children(10, Percent(9));
    children[0].least = 15;
    EXPECT_EQ((Sizes{15, 9, 9, 9, 9, 9, 9, 9, 9, 9}), Shared(children, 100));
}

TEST(ShareExtent, WhatIsLeftPaysItsPartEvenWhenTheRestFindsNoTaker)
{
    // Of 1200: ten times 12 wanted, 11 needed; 600 wanted and needed; 12 wanted, 200 needed. Those can give 10
    // together, so the 468 that are left pay 178 of the 188. Of the 10 a small one would give 12*10/720, which is 0,
    // and the large one has nothing to give: nobody does.
    std::vector<ExtentShare> children(10, Percent(1, 11));
    children.push_back(Percent(50, 600));
    children.push_back(Percent(1, 200));
    children.push_back(Greedy());
    EXPECT_EQ((Sizes{12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 600, 200, 290}), Shared(children, 1200));
}

TEST(ShareExtent, AGreedyChildOfNoSizeDoesNotTakeWhatAMaximumLeaves)
{
    // Of 1: nothing, and the 1 that the last may not have.
    EXPECT_EQ((Sizes{0, 0}), Shared({Greedy(0), Greedy(0, 0)}, 1));
}

TEST(ShareExtent, OnlyFixedChildrenStretch)
{
    std::vector<ExtentShare> children{Percent(10), Fixed(20, true), Fixed(30)};
    children[0].stretches = true;
    EXPECT_EQ((Sizes{5, 65, 30}), Shared(children, 100));
}

TEST(ShareExtent, NothingIsSharedAmongNobody)
{
    EXPECT_EQ((Sizes{}), Shared({}, 100));
}

TEST(ShareExtent, SumsAreExactForEveryExtentAboveTheMinima)
{
    for (int extent = 60; extent < 700; ++extent)
    {
        const Sizes sizes = Shared({Greedy(10), Fixed(7), Greedy(31), Greedy(5, 20), Greedy()}, extent);
        EXPECT_EQ(extent, std::accumulate(sizes.begin(), sizes.end(), 0)) << extent;
    }
}

TEST(ShareExtent, TheLargestNumbersDoNotOverflow)
{
    const Sizes sizes =
        Shared({Greedy(INT_MAX), Greedy(INT_MAX), Percent(INT_MAX, INT_MAX), Fixed(INT_MIN), Greedy()}, 4LL * INT_MAX);
    EXPECT_EQ((Sizes{INT_MAX, INT_MAX, INT_MAX, INT_MIN, INT_MAX}), sizes);
}

} // namespace
