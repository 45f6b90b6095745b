#include "tests/windows/framework_bars/BarFrame.h"

#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/UserCount.h"

using namespace vorn::test;

namespace
{
/// A bar docked at the top of a frame that opens all its sides.
class Floating : public BarsTest
{
protected:
    Floating()
    {
        frame->EnableDocking(CBRS_ALIGN_ANY);
        Make(bar, kFirst);
        frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    }

    SizedBar bar{CSize(100, 20), CSize(30, 80)};
};
} // namespace

TEST_F(Floating, ABarStandsWhereItWasAskedTo)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    ASSERT_NE(nullptr, floating);
    EXPECT_EQ(floating, FrameOf(bar));
    EXPECT_TRUE(bar.IsFloating());
    EXPECT_TRUE(bar.IsVisible());
    EXPECT_TRUE(floating->IsWindowVisible());
    EXPECT_EQ(CRect(500, 400, 600, 420), OnScreen(bar));
    EXPECT_EQ(CRect(0, 0, 400, 300), ViewPlace()) << "the dock gives its room up";
    EXPECT_EQ(frame, bar.GetDockingFrame());
    EXPECT_EQ(frame->m_hWnd, ::GetWindow(floating->m_hWnd, GW_OWNER));
}

TEST_F(Floating, TheFrameFitsItsBarAndHasItsTitle)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    CRect client;
    floating->GetClientRect(&client);
    EXPECT_EQ(CRect(0, 0, 100, 20), client);
    CString title;
    floating->GetWindowText(title);
    EXPECT_STREQ("Bar", title);
    EXPECT_TRUE(floating->GetExStyle() & WS_EX_TOOLWINDOW);
    bar.lying = CSize(180, 44);
    floating->RecalcLayout();
    floating->GetClientRect(&client);
    EXPECT_EQ(CRect(0, 0, 180, 44), client);
    EXPECT_EQ(CRect(500, 400, 680, 444), OnScreen(bar));
}

TEST_F(Floating, ABarMayStand)
{
    frame->FloatControlBar(&bar, CPoint(500, 400), CBRS_ALIGN_LEFT);
    EXPECT_EQ(CRect(500, 400, 530, 480), OnScreen(bar));
    EXPECT_EQ(CBRS_ALIGN_LEFT | CBRS_FLOATING, bar.GetBarStyle());
    frame->FloatControlBar(&bar, CPoint(500, 400), CBRS_ALIGN_LEFT | CBRS_ALIGN_BOTTOM);
    EXPECT_EQ(CRect(500, 400, 600, 420), OnScreen(bar)) << "both: it lies";
}

TEST_F(Floating, AFloatingBarIsMovedInItsFrame)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    EXPECT_EQ(floating, frame->FloatControlBar(&bar, CPoint(520, 430)));
    EXPECT_EQ(CRect(520, 430, 620, 450), OnScreen(bar));
    PumpWaiting();
    EXPECT_EQ(1, FloatingFrames());
}

TEST_F(Floating, DockingEndsTheFrame)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    const HWND window = floating->m_hWnd;
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_FALSE(::IsWindowVisible(window)) << "at once";
    PumpWaiting();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(CRect(0, 0, 30, 80), PlaceOf(bar));
    EXPECT_FALSE(bar.IsFloating());
}

TEST_F(Floating, TogglingGoesToTheLastPlacesOfBoth)
{
    SizedBar other(CSize(60, 20));
    Make(other, kSecond);
    CRect beside = OnScreen(bar);
    beside.OffsetRect(150, 0);
    frame->DockControlBar(&other, AFX_IDW_DOCKBAR_TOP, &beside);
    EXPECT_EQ(CRect(150, 0, 210, 20), PlaceOf(other));
    other.ToggleDocking();
    ASSERT_TRUE(other.IsFloating());
    frame->FloatControlBar(&other, CPoint(610, 520));
    other.ToggleDocking();
    EXPECT_FALSE(other.IsFloating());
    EXPECT_EQ(CRect(150, 0, 210, 20), PlaceOf(other)) << "into its row";
    other.ToggleDocking();
    EXPECT_EQ(CPoint(610, 520), OnScreen(other).TopLeft());
}

TEST_F(Floating, ABarThatWasAloneInItsRowComesBackInARowOfItsOwn)
{
    SizedBar other(CSize(60, 30));
    Make(other, kSecond);
    frame->DockControlBar(&other, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(CRect(0, 20, 60, 50), PlaceOf(other));
    bar.ToggleDocking();
    EXPECT_EQ(CRect(0, 0, 60, 30), PlaceOf(other));
    bar.ToggleDocking();
    EXPECT_EQ(CRect(0, 0, 100, 20), PlaceOf(bar));
    EXPECT_EQ(CRect(0, 20, 60, 50), PlaceOf(other));
}

TEST_F(Floating, AFirstToggleStaysNearTheDock)
{
    const CRect docked = OnScreen(bar);
    bar.ToggleDocking();
    const CRect floating = OnScreen(bar);
    EXPECT_GT(floating.left, docked.left);
    EXPECT_GT(floating.top, docked.top);
    EXPECT_LT(floating.left, docked.left + 100);
    EXPECT_LT(floating.top, docked.top + 100);
}

TEST_F(Floating, ABarNeverDockedDocksWhereItMay)
{
    SizedBar other;
    Make(other, kSecond);
    other.EnableDocking(CBRS_ALIGN_RIGHT);
    ASSERT_NE(nullptr, frame->FloatControlBar(&other, CPoint(500, 400)));
    other.ToggleDocking();
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_RIGHT), other.GetDockBar());
}

TEST_F(Floating, HidingTheBarHidesItsFrame)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    frame->ShowControlBar(&bar, FALSE, FALSE);
    EXPECT_FALSE(floating->IsWindowVisible());
    EXPECT_FALSE(bar.IsVisible());
    EXPECT_TRUE(bar.IsFloating());
    frame->ShowControlBar(&bar, TRUE, FALSE);
    EXPECT_TRUE(floating->IsWindowVisible());
    EXPECT_EQ(CRect(500, 400, 600, 420), OnScreen(bar));
}

TEST_F(Floating, HidingAndShowingMayWaitForIdleTime)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    frame->ShowControlBar(&bar, FALSE, TRUE);
    EXPECT_TRUE(floating->IsWindowVisible());
    frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_FALSE(floating->IsWindowVisible());
    EXPECT_FALSE(bar.IsWindowVisible());
    frame->ShowControlBar(&bar, TRUE, TRUE);
    EXPECT_FALSE(floating->IsWindowVisible());
    frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_TRUE(floating->IsWindowVisible());
    EXPECT_TRUE(bar.IsWindowVisible());
}

TEST_F(Floating, TheCloseBoxHidesTheBar)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    floating->SendMessage(WM_SYSCOMMAND, SC_CLOSE);
    PumpWaiting();
    EXPECT_FALSE(bar.IsVisible());
    EXPECT_TRUE(bar.IsFloating());
    EXPECT_EQ(1, FloatingFrames());
}

TEST_F(Floating, BarsStayHiddenWithTheirFrameAndComeBackWithIt)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    frame->ShowWindow(SW_HIDE);
    EXPECT_FALSE(floating->IsWindowVisible());
    EXPECT_TRUE(bar.IsVisible());
    frame->ShowWindow(SW_SHOW);
    EXPECT_TRUE(floating->IsWindowVisible());
    frame->ShowControlBar(&bar, FALSE, FALSE);
    frame->ShowWindow(SW_HIDE);
    frame->ShowWindow(SW_SHOW);
    EXPECT_FALSE(floating->IsWindowVisible()) << "hidden by the user";
}

TEST_F(Floating, ABarFloatedBeforeTheFrameIsShownAppearsWithIt)
{
    frame->ShowWindow(SW_HIDE);
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    EXPECT_FALSE(floating->IsWindowVisible());
    frame->ShowWindow(SW_SHOW);
    EXPECT_TRUE(floating->IsWindowVisible());
    EXPECT_EQ(CRect(500, 400, 600, 420), OnScreen(bar));
}

TEST_F(Floating, ADisabledFrameDisablesItsFloatingFrames)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    frame->EnableWindow(FALSE);
    EXPECT_FALSE(floating->IsWindowEnabled());
    frame->EnableWindow(TRUE);
    EXPECT_TRUE(floating->IsWindowEnabled());
}

TEST_F(Floating, TheCaptionsOfAFamilyLookAlike)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(500, 400));
    frame->captionLooks.clear();
    // The activation goes from the frame to the floating one: the frame's caption stays active.
    frame->SendMessage(WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(floating->m_hWnd));
    ASSERT_FALSE(frame->captionLooks.empty());
    EXPECT_TRUE(frame->captionLooks.back());
    floating->SendMessage(WM_ACTIVATE, WA_INACTIVE, 0);
    EXPECT_FALSE(frame->captionLooks.back()) << "to another program";
    floating->SendMessage(WM_ACTIVATE, WA_ACTIVE, 0);
    EXPECT_TRUE(frame->captionLooks.back());
}

TEST_F(Floating, TheFrameMayEndWhileABarFloats)
{
    auto* own = new SizedBar;
    own->m_bAutoDelete = TRUE;
    own->saysWhenItEnds = true;
    Make(*own, kSecond);
    ASSERT_NE(nullptr, frame->FloatControlBar(own, CPoint(300, 500)));
    ASSERT_NE(nullptr, frame->FloatControlBar(&bar, CPoint(500, 400)));
    frame->DestroyWindow();
    frame = nullptr;
    PumpWaiting();
    EXPECT_EQ(0, FloatingFrames());
    EXPECT_EQ("~bar ~frame ", Notes());
    EXPECT_EQ(nullptr, bar.m_hWnd);
    EXPECT_EQ(nullptr, bar.GetDockBar());
    EXPECT_FALSE(bar.IsFloating());
}

TEST_F(Floating, TheBarMayEndWhileItFloats)
{
    {
        SizedBar other;
        Make(other, kSecond);
        ASSERT_NE(nullptr, frame->FloatControlBar(&other, CPoint(300, 500)));
        EXPECT_EQ(1, FloatingFrames());
    }
    PumpWaiting();
    EXPECT_EQ(0, FloatingFrames());
    EXPECT_EQ(nullptr, frame->GetControlBar(kSecond));
    ASSERT_NE(nullptr, frame->FloatControlBar(&bar, CPoint(500, 400)));
    bar.DestroyWindow();
    PumpWaiting();
    EXPECT_EQ(0, FloatingFrames());
}

TEST_F(Floating, ABarCanBeMadeAgainAfterItsEnd)
{
    frame->FloatControlBar(&bar, CPoint(500, 400));
    bar.DestroyWindow();
    Make(bar, kFirst);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(CRect(0, 0, 100, 20), PlaceOf(bar));
    EXPECT_EQ(&bar, frame->GetControlBar(kFirst));
}

TEST_F(Floating, CommandsAndUpdatesReachTheFrame)
{
    frame->FloatControlBar(&bar, CPoint(500, 400));
    bar.SendMessage(WM_COMMAND, ID_TEST_GO);
    EXPECT_EQ("go ", Notes());
    FrameOf(bar)->SendMessage(WM_COMMAND, ID_TEST_GO);
    EXPECT_EQ("go go ", Notes()) << "those of the floating frame too";
    bar.updatedFor = nullptr;
    AfxGetApp()->OnIdle(0);
    EXPECT_EQ(frame, bar.updatedFor);
}

TEST_F(Floating, NullAndWindowlessBarsAreRefused)
{
    SizedBar none;
    EXPECT_EQ(nullptr, frame->FloatControlBar(nullptr, CPoint(1, 1)));
    EXPECT_EQ(nullptr, frame->FloatControlBar(&none, CPoint(1, 1)));
    EXPECT_EQ(nullptr, frame->FloatControlBar(frame->Dock(AFX_IDW_DOCKBAR_TOP), CPoint(1, 1)));
    frame->DockControlBar(&none);
    frame->RestoreDockedBar(nullptr);
    frame->RestoreDockedBar(&none);
    none.ToggleDocking();
    EXPECT_EQ(0, FloatingFrames());
}

TEST_F(Floating, ComingAndGoingLeavesNothingBehind)
{
    const auto round = [this]()
    {
        frame->FloatControlBar(&bar, CPoint(500, 400));
        frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
        bar.ToggleDocking();
        bar.ToggleDocking();
        PumpWaiting();
        CWnd::DeleteTempMap();
    };
    constexpr int kFirstRounds = 5; // in which the system makes what it keeps
    for (int i = 0; i < kFirstRounds; ++i)
    {
        round();
    }
    const unsigned gdi = vorn::test::CountGdiObjects();
    const unsigned user = vorn::test::CountUserObjects();
    const int windows = WindowsOfThisThread();
    for (int i = 0; i < 50; ++i)
    {
        round();
    }
    EXPECT_EQ(windows, WindowsOfThisThread());
    EXPECT_LE(vorn::test::CountGdiObjects(), gdi + 2);
    EXPECT_LE(vorn::test::CountUserObjects(), user + 2);
}
