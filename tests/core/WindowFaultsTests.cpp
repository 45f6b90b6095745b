#include "apps/planner/core/WindowFaults.h"

#include <gtest/gtest.h>

using vorn::planner::ControlFacts;
using vorn::planner::ControlKind;
using vorn::planner::FaultsOf;

namespace
{

using Faults = std::vector<std::string>;

/// A control of a window of 200 by 100.
ControlFacts Control(const char* name, const CRect& place)
{
    ControlFacts control;
    control.name = name;
    control.place = place;
    control.parentArea = CRect(0, 0, 200, 100);
    return control;
}

ControlFacts Frame(const char* name, const CRect& place)
{
    ControlFacts control = Control(name, place);
    control.kind = ControlKind::Frame;
    return control;
}

} // namespace

TEST(WindowFaults, ControlsThatTouchTheirParentAndEachOtherAreFine)
{
    EXPECT_EQ(FaultsOf({Control("a", {0, 0, 100, 100}), Control("b", {100, 0, 200, 100})}), Faults());
}

TEST(WindowFaults, AControlIsCutOnePixelBeyondEachEdge)
{
    EXPECT_EQ(FaultsOf({Control("a", {-1, 0, 10, 10})}), Faults{"a is cut by its parent"});
    EXPECT_EQ(FaultsOf({Control("a", {0, -1, 10, 10})}), Faults{"a is cut by its parent"});
    EXPECT_EQ(FaultsOf({Control("a", {0, 0, 201, 10})}), Faults{"a is cut by its parent"});
    EXPECT_EQ(FaultsOf({Control("a", {0, 0, 10, 101})}), Faults{"a is cut by its parent"});
}

TEST(WindowFaults, SiblingsThatShareAPixelOverlap)
{
    EXPECT_EQ(FaultsOf({Control("a", {0, 0, 51, 20}), Control("b", {50, 19, 90, 40})}), Faults{"a and b overlap"});
}

TEST(WindowFaults, AChildLiesInItsParentNotBesideIt)
{
    ControlFacts page = Control("page", {10, 10, 100, 90});
    ControlFacts child = Control("child", {20, 20, 50, 50});
    child.parent = 0;
    child.parentArea = page.place;
    EXPECT_EQ(FaultsOf({page, child}), Faults());
    child.place = CRect(20, 20, 101, 50);
    EXPECT_EQ(FaultsOf({page, child}), Faults{"child is cut by its parent"});
}

TEST(WindowFaults, AFrameHoldsASiblingWholeOrNotAtAll)
{
    EXPECT_EQ(FaultsOf({Frame("frame", {0, 0, 100, 90}), Control("in", {5, 5, 100, 90})}), Faults());
    EXPECT_EQ(FaultsOf({Frame("frame", {0, 0, 100, 90}), Control("across", {90, 5, 110, 20})}),
              Faults{"frame and across overlap"});
    EXPECT_EQ(FaultsOf({Control("plain", {0, 0, 100, 90}), Frame("frame", {5, 5, 50, 50})}),
              Faults{"plain and frame overlap"});
}

TEST(WindowFaults, ATextNeedsItsRoomBothWays)
{
    ControlFacts label = Control("label", {0, 0, 50, 13});
    label.needed = CSize(50, 13);
    EXPECT_EQ(FaultsOf({label}), Faults());
    label.needed = CSize(51, 13);
    EXPECT_EQ(FaultsOf({label}), Faults{"label is 50 x 13, its text needs 51 x 13"});
    label.needed = CSize(50, 26);
    EXPECT_EQ(FaultsOf({label}), Faults{"label is 50 x 13, its text needs 50 x 26"});
}
