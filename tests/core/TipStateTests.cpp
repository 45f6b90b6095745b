#include "toolkit/tooltips/core/TipState.h"

#include "toolkit/tooltips/core/TipDelays.h"

#include <gtest/gtest.h>

#include <limits>

using Phase = vorn::TipState::Phase;

namespace
{

constexpr int kAutoPop = 15000;

class TipStates : public testing::Test
{
protected:
    const void* Tool(int index) const
    {
        return &m_tools[index];
    }
    void ShowTip()
    {
        m_state.MouseMoved(Tool(0));
        ASSERT_TRUE(m_state.Waited(Tool(0)));
    }

    vorn::TipState m_state;

private:
    char m_tools[3] = {};
};

} // namespace

TEST_F(TipStates, TheMouseEntersAToolAndWaits)
{
    EXPECT_EQ(Phase::Idle, m_state.Now());
    EXPECT_TRUE(m_state.MouseMoved(Tool(0)));
    EXPECT_EQ(Phase::Waiting, m_state.Now());
    EXPECT_EQ(Tool(0), m_state.Tool());
}

TEST_F(TipStates, AMoveInTheSameToolDoesNotBeginAnew)
{
    m_state.MouseMoved(Tool(0));
    EXPECT_FALSE(m_state.MouseMoved(Tool(0)));
    EXPECT_EQ(Phase::Waiting, m_state.Now());
}

TEST_F(TipStates, AMoveToAnotherToolBeginsAnew)
{
    m_state.MouseMoved(Tool(0));
    EXPECT_TRUE(m_state.MouseMoved(Tool(1)));
    EXPECT_EQ(Phase::Waiting, m_state.Now());
    EXPECT_EQ(Tool(1), m_state.Tool());
}

TEST_F(TipStates, LeavingTheToolEndsTheWait)
{
    m_state.MouseMoved(Tool(0));
    EXPECT_TRUE(m_state.MouseMoved(nullptr));
    EXPECT_EQ(Phase::Idle, m_state.Now());
    EXPECT_FALSE(m_state.MouseMoved(nullptr));
    EXPECT_FALSE(m_state.Waited(Tool(0)));
}

TEST_F(TipStates, TheTipAppearsWhenTheCursorIsStillThere)
{
    m_state.MouseMoved(Tool(0));
    EXPECT_TRUE(m_state.Waited(Tool(0)));
    EXPECT_EQ(Phase::Shown, m_state.Now());
    EXPECT_EQ(0, m_state.ShownMs());
}

TEST_F(TipStates, AndDoesNotWhenTheCursorHasGone)
{
    m_state.MouseMoved(Tool(0));
    EXPECT_FALSE(m_state.Waited(nullptr));
    EXPECT_EQ(Phase::Idle, m_state.Now());
    m_state.MouseMoved(Tool(0));
    EXPECT_FALSE(m_state.Waited(Tool(1)));
    EXPECT_EQ(Phase::Idle, m_state.Now());
}

TEST_F(TipStates, TimersWithoutAToolDoNothing)
{
    EXPECT_FALSE(m_state.Waited(Tool(0)));
    EXPECT_FALSE(m_state.Looked(Tool(0), false, kAutoPop));
    EXPECT_EQ(Phase::Idle, m_state.Now());
}

TEST_F(TipStates, AMoveAloneDoesNotTakeTheTipAway)
{
    ShowTip();
    EXPECT_FALSE(m_state.MouseMoved(nullptr));
    EXPECT_FALSE(m_state.MouseMoved(Tool(1)));
    EXPECT_EQ(Phase::Shown, m_state.Now());
    EXPECT_EQ(Tool(0), m_state.Tool());
}

TEST_F(TipStates, TheThirtiethLookPops)
{
    ShowTip();
    for (int look = 1; look < 30; ++look)
    {
        ASSERT_TRUE(m_state.Looked(Tool(0), false, kAutoPop)) << look;
        ASSERT_EQ(500 * look, m_state.ShownMs());
    }
    EXPECT_FALSE(m_state.Looked(Tool(0), false, kAutoPop));
    EXPECT_EQ(Phase::Quiet, m_state.Now());
}

TEST_F(TipStates, AfterItsTimeItComesBackOnlyWhenTheMouseHasLeft)
{
    ShowTip();
    ASSERT_FALSE(m_state.Looked(Tool(0), false, 500));
    EXPECT_FALSE(m_state.MouseMoved(Tool(0)));
    EXPECT_FALSE(m_state.Waited(Tool(0)));
    EXPECT_EQ(Phase::Quiet, m_state.Now());
    EXPECT_TRUE(m_state.MouseMoved(nullptr));
    EXPECT_EQ(Phase::Idle, m_state.Now());
    EXPECT_TRUE(m_state.MouseMoved(Tool(0)));
    EXPECT_EQ(Phase::Waiting, m_state.Now());
}

TEST_F(TipStates, OverTheTipItStaysForEver)
{
    ShowTip();
    for (int look = 0; look < 1000; ++look)
    {
        ASSERT_TRUE(m_state.Looked(nullptr, true, kAutoPop));
    }
    EXPECT_EQ(kAutoPop, m_state.ShownMs()) << "longer is not counted";
    EXPECT_FALSE(m_state.Looked(Tool(0), false, kAutoPop)) << "back in the tool its time has passed";
    EXPECT_EQ(Phase::Quiet, m_state.Now());
}

TEST_F(TipStates, OutsideTheToolItPops)
{
    ShowTip();
    EXPECT_FALSE(m_state.Looked(nullptr, false, kAutoPop));
    EXPECT_EQ(Phase::Idle, m_state.Now());
}

TEST_F(TipStates, OverAnotherToolItPopsAndThatOnesTipIsAwaited)
{
    ShowTip();
    m_state.MouseMoved(Tool(1));
    EXPECT_FALSE(m_state.Looked(Tool(1), false, kAutoPop));
    EXPECT_EQ(Phase::Waiting, m_state.Now());
    EXPECT_EQ(Tool(1), m_state.Tool());
}

TEST_F(TipStates, AToolThatCameBelowTheCursorByItselfIsNotAwaited)
{
    ShowTip();
    EXPECT_FALSE(m_state.Looked(Tool(1), false, kAutoPop));
    EXPECT_EQ(Phase::Idle, m_state.Now());
}

TEST_F(TipStates, NoTimeAtAllPopsAtTheFirstLook)
{
    ShowTip();
    EXPECT_FALSE(m_state.Looked(Tool(0), false, 0));
}

TEST_F(TipStates, AClickedTipIsABoxThatTimersLeaveAlone)
{
    EXPECT_FALSE(m_state.OpenInfoBox());
    ShowTip();
    EXPECT_TRUE(m_state.OpenInfoBox());
    EXPECT_EQ(Phase::InfoBox, m_state.Now());
    for (int look = 0; look < 100; ++look)
    {
        ASSERT_TRUE(m_state.Looked(nullptr, false, kAutoPop));
    }
    EXPECT_FALSE(m_state.Waited(Tool(0)));
    EXPECT_FALSE(m_state.MouseMoved(nullptr));
    EXPECT_EQ(Phase::InfoBox, m_state.Now());
    EXPECT_TRUE(m_state.IsVisible());
    m_state.Hush();
    EXPECT_EQ(Phase::Quiet, m_state.Now());
    EXPECT_FALSE(m_state.IsVisible());
}

TEST_F(TipStates, HushedInTheWaitTheTipDoesNotAppear)
{
    m_state.MouseMoved(Tool(0));
    m_state.Hush();
    EXPECT_FALSE(m_state.Waited(Tool(0)));
    EXPECT_FALSE(m_state.MouseMoved(Tool(0)));
    EXPECT_TRUE(m_state.MouseMoved(Tool(1)));
}

TEST_F(TipStates, HushedOutsideToolsNothingIsRemembered)
{
    m_state.Hush();
    EXPECT_EQ(Phase::Idle, m_state.Now());
}

TEST_F(TipStates, AToolThatGoesTakesItsTipAlong)
{
    ShowTip();
    m_state.MouseMoved(Tool(1));
    m_state.Forget(Tool(2));
    EXPECT_EQ(Phase::Shown, m_state.Now());
    m_state.Forget(Tool(1));
    EXPECT_EQ(Phase::Shown, m_state.Now());
    m_state.Forget(Tool(0));
    EXPECT_EQ(Phase::Idle, m_state.Now());
    EXPECT_EQ(nullptr, m_state.Tool());
}

TEST_F(TipStates, AToolThatGoesIsNotAwaitedBehindAnother)
{
    ShowTip();
    m_state.MouseMoved(Tool(1));
    m_state.Forget(Tool(1));
    EXPECT_FALSE(m_state.Looked(Tool(1), false, kAutoPop)) << "another one at the same address";
    EXPECT_EQ(Phase::Idle, m_state.Now());
}

TEST(TipDelays, AreThoseOfTheSystemsOrder)
{
    const vorn::TipDelays delays;
    EXPECT_EQ(0, delays.Get(0)) << "automatic";
    EXPECT_EQ(0, delays.Get(1)) << "reshow";
    EXPECT_EQ(15000, delays.Get(2)) << "auto-pop";
    EXPECT_EQ(500, delays.Get(3)) << "initial";
}

TEST(TipDelays, AreSetOneByOne)
{
    vorn::TipDelays delays;
    delays.Set(1, 7);
    delays.Set(2, 8);
    delays.Set(3, 0);
    EXPECT_EQ(0, delays.Get(0));
    EXPECT_EQ(7, delays.Get(1));
    EXPECT_EQ(8, delays.Get(2));
    EXPECT_EQ(0, delays.Get(3));
}

TEST(TipDelays, TheAutomaticTimeSetsAll)
{
    vorn::TipDelays delays;
    delays.SetAutomatic(302);
    EXPECT_EQ(302, delays.Get(0));
    EXPECT_EQ(60, delays.Get(1));
    EXPECT_EQ(3020, delays.Get(2));
    EXPECT_EQ(302, delays.Get(3));
    delays.Set(0, 100);
    EXPECT_EQ(100, delays.Get(3));
    EXPECT_EQ(1000, delays.Get(2));
}

TEST(TipDelays, WhatAnIntCannotHoldIsItsLargest)
{
    vorn::TipDelays delays;
    delays.SetAutomatic(std::numeric_limits<unsigned>::max());
    EXPECT_EQ(std::numeric_limits<int>::max(), delays.Get(0));
    EXPECT_EQ(std::numeric_limits<int>::max(), delays.Get(2));
    EXPECT_EQ(429496729, delays.Get(1));
}

TEST(TipDelays, NegativeTimesAndUnknownOnesChangeNothing)
{
    vorn::TipDelays delays;
    delays.Set(0, -1);
    delays.Set(2, -1);
    delays.Set(3, -500);
    delays.Set(4, 9);
    delays.Set(0xFFFFFFFF, 9);
    EXPECT_EQ(15000, delays.Get(2));
    EXPECT_EQ(500, delays.Get(3));
    EXPECT_EQ(0, delays.Get(4));
    EXPECT_EQ(0, delays.Get(0xFFFFFFFF));
}
