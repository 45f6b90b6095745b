#include "tests/support/PumpUntil.h"
#include "tests/windows/tooltips/TipTest.h"

// When a tip appears and when it goes.

using namespace vorn::test;

namespace
{
class TipHover : public TipTest
{
};
} // namespace

TEST_F(TipHover, AppearsWhenTheMouseHasRestedInATool)
{
    MouseTo(MiddleOf(1));
    EXPECT_FALSE(IsShown());
    Tick(kWaitTimer);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ("one", TipText());
}

TEST_F(TipHover, ComesAndGoesByItsOwnTimers)
{
    m_tips.SetDelayTime(TTDT_INITIAL, 20);
    m_tips.SetDelayTime(TTDT_AUTOPOP, 1000);
    MouseTo(MiddleOf(1));
    const DWORD start = ::GetTickCount();
    EXPECT_TRUE(PumpUntil(
        [this]
        {
            return IsShown();
        }));
    EXPECT_TRUE(PumpUntil(
        [this]
        {
            return !IsShown();
        }));
    EXPECT_GE(::GetTickCount() - start, 900U) << "two looks of half a second";
}

TEST_F(TipHover, MovesInTheSameToolDoNotPutItOff)
{
    m_tips.SetDelayTime(TTDT_INITIAL, 200);
    const CPoint middle = MiddleOf(1);
    int step = 0;
    DWORD moved = ::GetTickCount();
    MouseTo(middle);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            if (::GetTickCount() - moved >= 40)
            {
                ++step;
                MouseTo(CPoint(middle.x + step % 5, middle.y));
                moved = ::GetTickCount();
            }
            return IsShown();
        }));
    EXPECT_GT(step, 1);
}

TEST_F(TipHover, DoesNotAppearWhenTheCursorHasGone)
{
    MouseTo(MiddleOf(1));
    PutCursor({5, 5});
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, LeavingTheToolBeforeItsTimeEndsTheWait)
{
    MouseTo(MiddleOf(1));
    MouseOut();
    PutCursor(MiddleOf(1));
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, TimersWithoutAToolDoNothing)
{
    Tick(kWaitTimer);
    Tick(kLookTimer);
    EXPECT_FALSE(IsShown());
    Hover(1);
    Tick(kWaitTimer);
    EXPECT_TRUE(IsShown());
}

TEST_F(TipHover, LeavingTheToolIsSeenAtTheNextLook)
{
    Hover(1);
    MouseOut();
    EXPECT_TRUE(IsShown());
    Tick(kLookTimer);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, PopsAfter15SecondsInTheTool)
{
    Hover(1);
    for (int look = 1; look < 30; ++look)
    {
        Tick(kLookTimer);
        ASSERT_TRUE(IsShown()) << look;
    }
    Tick(kLookTimer);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, AfterItsTimeItDoesNotComeBackBeforeTheMouseHasLeft)
{
    m_tips.SetDelayTime(TTDT_AUTOPOP, 500);
    Hover(1);
    Tick(kLookTimer);
    ASSERT_FALSE(IsShown());
    MouseTo(MiddleOf(1) + CSize(3, 0));
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
    MouseOut();
    Hover(1);
    EXPECT_TRUE(IsShown());
}

TEST_F(TipHover, StaysWhileTheCursorIsOverTheTipItself)
{
    m_tips.SetDelayTime(TTDT_AUTOPOP, 500);
    Hover(1);
    const CPoint over = TipPlace().CenterPoint();
    ASSERT_FALSE(PlaceOf(1).PtInRect(over));
    PutCursor(over);
    for (int look = 0; look < 50; ++look)
    {
        Tick(kLookTimer);
    }
    EXPECT_TRUE(IsShown());
}

TEST_F(TipHover, MessagesOfTheTipItselfAreNoMovesInTools)
{
    Hover(1);
    MSG move{};
    move.hwnd = m_tips.m_hWnd;
    move.message = WM_LBUTTONDOWN;
    m_tips.RelayEvent(&move);
    EXPECT_TRUE(IsShown());
}

TEST_F(TipHover, GoesFromToolToTool)
{
    Hover(1);
    MouseTo(MiddleOf(2));
    Tick(kLookTimer);
    EXPECT_FALSE(IsShown());
    Tick(kWaitTimer);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ("Deletes the leg.", TipText());
}

TEST_F(TipHover, AButtonOrAKeyTakesItAwayUntilTheMouseHasLeft)
{
    for (const UINT message : {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_MBUTTONUP, WM_XBUTTONDOWN, WM_NCLBUTTONDOWN,
                               WM_LBUTTONDBLCLK, WM_KEYDOWN, WM_SYSKEYDOWN})
    {
        MouseOut();
        Hover(1);
        ASSERT_TRUE(IsShown()) << message;
        Relay(message);
        EXPECT_FALSE(IsShown()) << message;
        MouseTo(MiddleOf(1) + CSize(1, 0));
        Tick(kWaitTimer);
        EXPECT_FALSE(IsShown()) << message;
    }
}

TEST_F(TipHover, AClickEndsTheWaitToo)
{
    MouseTo(MiddleOf(1));
    Relay(WM_LBUTTONDOWN);
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, TheMouseThatDragsIsNotHeeded)
{
    MouseTo(MiddleOf(1), WM_MOUSEMOVE, MK_LBUTTON);
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, MovesOnAFrameCountToo)
{
    MouseTo(MiddleOf(3), WM_NCMOUSEMOVE);
    Tick(kWaitTimer);
    EXPECT_EQ("three", TipText());
    EXPECT_TRUE(IsShown());
}

TEST_F(TipHover, OtherMessagesAreNotHeeded)
{
    Hover(1);
    for (const UINT message : {WM_PAINT, WM_TIMER, WM_MOUSEWHEEL, WM_KEYUP, WM_CHAR, WM_USER})
    {
        Relay(message);
    }
    EXPECT_TRUE(IsShown());
}

TEST_F(TipHover, WithoutWindowOrMessageNothingHappens)
{
    ToolTipCtrlEx none;
    MSG move{};
    move.message = WM_MOUSEMOVE;
    none.RelayEvent(&move);
    none.Pop();
    none.Activate(false);
    m_tips.RelayEvent(nullptr);
    m_tips.DestroyWindow();
    MouseTo(MiddleOf(1));
    m_tips.Pop();
    EXPECT_EQ(nullptr, m_tips.m_hWnd);
}

TEST_F(TipHover, InnerWindowsBelongToTheirControl)
{
    const HWND combo = Add("ComboBox", 7, CBS_DROPDOWN, {230, 10, 330, 100});
    m_tips.AddTool(Control(7), "choose");
    const HWND edit = ::GetWindow(combo, GW_CHILD);
    ASSERT_NE(nullptr, edit);
    CRect inner;
    ::GetWindowRect(edit, &inner);
    PutCursor(inner.CenterPoint());
    MSG move{};
    move.hwnd = edit;
    move.message = WM_MOUSEMOVE;
    move.pt = inner.CenterPoint();
    m_tips.RelayEvent(&move);
    Tick(kWaitTimer);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ("choose", TipText());
}

TEST_F(TipHover, AControlThatHasMovedIsFoundWhereItIs)
{
    MouseTo({5, 5}); // the places are known now
    Control(1)->MoveWindow(240, 10, 100, 24);
    MSG move{};
    move.hwnd = Control(1)->m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.pt = MiddleOf(1);
    PutCursor(move.pt);
    m_tips.RelayEvent(&move);
    Tick(kWaitTimer);
    EXPECT_EQ("one", TipText());
    EXPECT_TRUE(IsShown());
}

TEST_F(TipHover, NothingIsFoundWhereAControlWas)
{
    const CPoint before = MiddleOf(1);
    MouseTo({5, 5});
    Control(1)->MoveWindow(240, 10, 100, 24);
    MouseTo(before);
    PutCursor(MiddleOf(1));
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, AfterUpdateTipRectsEveryMoveIsKnown)
{
    MouseTo({5, 5});
    Control(1)->MoveWindow(240, 10, 100, 24);
    m_tips.UpdateTipRects();
    Hover(1);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ("one", TipText());
}

TEST_F(TipHover, ControlsMoveAlongWithTheirWindow)
{
    MouseTo({5, 5});
    MoveHost(500, 400);
    Hover(2);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ("Deletes the leg.", TipText());
}

TEST_F(TipHover, AWindowInFrontHidesTheToolsBelowIt)
{
    CWnd front;
    front.CreateEx(0, AfxRegisterWndClass(0), "front", WS_POPUP | WS_VISIBLE, 200, 150, 400, 250, m_host.m_hWnd,
                   nullptr);
    MSG move{};
    move.hwnd = front.m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.pt = MiddleOf(1);
    PutCursor(move.pt);
    m_tips.RelayEvent(&move);
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
    front.DestroyWindow();
}

TEST_F(TipHover, ATipWithoutTextIsNotShown)
{
    m_tips.AddTool(Control(1), "");
    Hover(1);
    EXPECT_FALSE(IsShown());
    m_tips.AddTool(Control(1), static_cast<LPCSTR>(nullptr));
    MouseOut();
    Hover(1);
    EXPECT_FALSE(IsShown());
    m_tips.AddTool(Control(1), 50000U);
    MouseOut();
    Hover(1);
    EXPECT_FALSE(IsShown()) << "no such string resource";
}

TEST_F(TipHover, SwitchedOffItPopsAtOnceAndStaysAway)
{
    Hover(1);
    m_tips.Activate(false);
    EXPECT_FALSE(IsShown());
    MouseOut();
    Hover(1);
    EXPECT_FALSE(IsShown());
    m_tips.Activate(true);
    MouseOut();
    Hover(1);
    EXPECT_TRUE(IsShown());
}

TEST_F(TipHover, OneSwitchTurnsAllTipsOff)
{
    ToolTipCtrlEx others;
    ASSERT_TRUE(others.Create(&m_host));
    Hover(1);
    ToolTipCtrlEx::GlobalEnableTips(false);
    EXPECT_FALSE(IsShown());
    MouseOut();
    Hover(1);
    EXPECT_FALSE(IsShown());
    ToolTipCtrlEx::GlobalEnableTips(true);
    MouseOut();
    Hover(1);
    EXPECT_TRUE(IsShown());
}

TEST_F(TipHover, PopTakesItAwayAndStopsItsTimers)
{
    Hover(1);
    m_tips.Pop();
    EXPECT_FALSE(IsShown());
    EXPECT_FALSE(m_tips.KillTimer(kLookTimer)) << "none runs";
    MouseTo(MiddleOf(2));
    m_tips.Pop();
    EXPECT_FALSE(m_tips.KillTimer(kWaitTimer));
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, ItTakesNoActivationAndNoFocus)
{
    m_host.SetForegroundWindow();
    ::SetFocus(Control(1)->m_hWnd);
    Hover(2);
    ASSERT_TRUE(IsShown());
    EXPECT_EQ(m_host.m_hWnd, ::GetActiveWindow());
    EXPECT_EQ(Control(1)->m_hWnd, ::GetFocus());
    EXPECT_EQ(MA_NOACTIVATE,
              m_tips.SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(m_host.m_hWnd), MAKELPARAM(HTCLIENT, 0)));
    EXPECT_EQ(HTCLIENT, m_tips.SendMessage(WM_NCHITTEST));
}

TEST_F(TipHover, TheProgramThatIsLeftTakesItsTipAlong)
{
    Hover(1);
    m_tips.SendMessage(WM_ACTIVATEAPP, FALSE);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, AToolWhoseWindowHasGonePops)
{
    Hover(1);
    Control(1)->DestroyWindow();
    EXPECT_TRUE(IsShown());
    Tick(kLookTimer);
    EXPECT_FALSE(IsShown());
    MouseTo({250, 170});
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipHover, AToolThatIsDeletedPops)
{
    Hover(1);
    m_tips.DelTool(Control(1));
    EXPECT_FALSE(IsShown());
    Tick(kLookTimer);
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(2, m_tips.GetToolCount());
}

TEST_F(TipHover, AToolMayBeDeletedWhileItsTipIsMeasuredOrPlaced)
{
    m_tips.m_whenMeasured = [this]
    {
        m_tips.DelTool(Control(1));
    };
    Hover(1);
    EXPECT_FALSE(IsShown());
    m_tips.m_whenMeasured = nullptr;
    m_tips.m_whenPlaced = [this]
    {
        m_tips.DelTool(Control(2));
    };
    Hover(2);
    EXPECT_FALSE(IsShown());
    EXPECT_EQ(1, m_tips.GetToolCount());
}

TEST_F(TipHover, TheWindowMayBeDestroyedWhileItsTipIsMeasured)
{
    m_tips.m_whenMeasured = [this]
    {
        m_tips.DestroyWindow();
    };
    Hover(1);
    EXPECT_EQ(nullptr, m_tips.m_hWnd);
    EXPECT_EQ(0, m_tips.GetToolCount());
}

TEST_F(TipHover, ItIsPaintedOnceForEachShowing)
{
    PumpWaiting();
    m_tips.m_paints = 0;
    Hover(1);
    PumpWaiting();
    EXPECT_EQ(1, m_tips.m_paints);
    Tick(kLookTimer);
    PumpWaiting();
    EXPECT_EQ(1, m_tips.m_paints);
}
