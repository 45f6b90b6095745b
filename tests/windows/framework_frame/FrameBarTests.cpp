#include "tests/windows/framework_frame/TestFrame.h"

#include "framework/gdi/CClientDC.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchKey.h"

using namespace vorn::test;

using FrameBars = FrameTest;

TEST_F(FrameBars, StandAtTheirSidesInTheOrderOfTheirCreation)
{
    TestFrame* frame = ShowFrameWithView();
    TestBar top(20);
    TestBar left(30);
    TestBar bottom(15);
    TestBar right(25);
    ASSERT_TRUE(top.Create(frame, CBRS_TOP, 0xE820));
    ASSERT_TRUE(left.Create(frame, CBRS_LEFT, 0xE821));
    ASSERT_TRUE(bottom.Create(frame, CBRS_BOTTOM, 0xE822));
    ASSERT_TRUE(right.Create(frame, CBRS_RIGHT, 0xE823));
    frame->RecalcLayout();
    EXPECT_EQ(CRect(0, 0, 300, 20), PlaceOf(top));
    EXPECT_EQ(CRect(0, 20, 30, 200), PlaceOf(left));
    EXPECT_EQ(CRect(30, 185, 300, 200), PlaceOf(bottom));
    EXPECT_EQ(CRect(275, 20, 300, 185), PlaceOf(right));
    EXPECT_EQ(CRect(30, 20, 275, 185), PlaceOf(*ViewOf(*frame)));
    frame->DestroyWindow();
}

TEST_F(FrameBars, FollowTheFramesSize)
{
    TestFrame* frame = ShowFrameWithView();
    TestBar bottom(15);
    bottom.Create(frame, CBRS_BOTTOM, 0xE822);
    CRect outer;
    frame->GetWindowRect(&outer);
    frame->SetWindowPos(nullptr, 0, 0, outer.Width() + 50, outer.Height() + 20, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(CRect(0, 205, 350, 220), PlaceOf(bottom));
    EXPECT_EQ(CRect(0, 0, 350, 205), PlaceOf(*ViewOf(*frame)));
    frame->DestroyWindow();
}

TEST_F(FrameBars, GiveTheirRoomUpWhenHidden)
{
    TestFrame* frame = ShowFrameWithView();
    TestBar top(20);
    top.Create(frame, CBRS_TOP, 0xE820);
    frame->RecalcLayout();
    frame->ShowControlBar(&top, FALSE, FALSE);
    EXPECT_FALSE(top.IsWindowVisible());
    EXPECT_FALSE(top.IsVisible());
    EXPECT_EQ(CRect(0, 0, 300, 200), PlaceOf(*ViewOf(*frame)));
    frame->ShowControlBar(&top, TRUE, FALSE);
    EXPECT_TRUE(top.IsWindowVisible());
    EXPECT_EQ(CRect(0, 20, 300, 200), PlaceOf(*ViewOf(*frame)));
    frame->DestroyWindow();
}

TEST_F(FrameBars, ChangeAtIdleTimeWhenDelayed)
{
    TestFrame* frame = ShowFrameWithView();
    TestBar top(20);
    top.Create(frame, CBRS_TOP, 0xE820);
    frame->RecalcLayout();
    frame->ShowControlBar(&top, FALSE, TRUE);
    EXPECT_TRUE(top.IsWindowVisible());
    EXPECT_FALSE(top.IsVisible()) << "what it will be";
    frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_FALSE(top.IsWindowVisible());
    EXPECT_EQ(CRect(0, 0, 300, 200), PlaceOf(*ViewOf(*frame)));
    frame->DestroyWindow();
}

TEST_F(FrameBars, ShownAndHiddenAgainBeforeTheLayoutStayHidden)
{
    TestFrame* frame = ShowFrame();
    TestBar top(20);
    top.Create(frame, CBRS_TOP, 0xE820);
    frame->ShowControlBar(&top, FALSE, FALSE);
    top.DelayShow(TRUE);
    EXPECT_TRUE(top.IsVisible());
    top.DelayShow(FALSE);
    EXPECT_FALSE(top.IsVisible());
    frame->RecalcLayout();
    EXPECT_FALSE(top.IsWindowVisible());
    frame->DestroyWindow();
}

TEST_F(FrameBars, LargerThanTheFrameTakeAllThereIs)
{
    TestFrame* frame = ShowFrameWithView();
    TestBar top(5000);
    TestBar bottom(50);
    top.Create(frame, CBRS_TOP, 0xE820);
    bottom.Create(frame, CBRS_BOTTOM, 0xE821);
    frame->RecalcLayout();
    EXPECT_EQ(CRect(0, 0, 300, 200), PlaceOf(top));
    EXPECT_EQ(0, PlaceOf(bottom).Height());
    EXPECT_EQ(0, PlaceOf(*ViewOf(*frame)).Height());
    frame->DestroyWindow();
}

TEST_F(FrameBars, MoveToAnotherSideWithTheirStyle)
{
    TestFrame* frame = ShowFrameWithView();
    TestBar bar(20);
    bar.Create(frame, CBRS_TOP, 0xE820);
    bar.SetBarStyle(CBRS_RIGHT);
    frame->RecalcLayout();
    EXPECT_EQ(CRect(280, 0, 300, 200), PlaceOf(bar));
    EXPECT_EQ(CBRS_RIGHT, bar.GetBarStyle());
    bar.SetBarStyle(CBRS_NOALIGN);
    frame->RecalcLayout();
    EXPECT_EQ(CRect(0, 0, 300, 200), PlaceOf(*ViewOf(*frame))) << "a bar without side takes no room";
    frame->DestroyWindow();
}

TEST_F(FrameBars, AreFoundByIdAndLeaveWithTheirWindow)
{
    TestFrame* frame = ShowFrame();
    TestBar bar(20);
    bar.Create(frame, CBRS_TOP, 0xE820);
    EXPECT_EQ(&bar, frame->GetControlBar(0xE820));
    EXPECT_EQ(nullptr, frame->GetControlBar(0xE821));
    EXPECT_EQ(frame, bar.GetDockingFrame());
    EXPECT_FALSE(bar.IsFloating());
    bar.DestroyWindow();
    EXPECT_EQ(nullptr, frame->GetControlBar(0xE820));
    frame->DestroyWindow();
}

TEST_F(FrameBars, MadeWithNewEndWithTheirWindowWhenAsked)
{
    class OwnEndBar : public TestBar
    {
    public:
        ~OwnEndBar() override
        {
            Notes().emplace_back("~bar");
        }
    };
    TestFrame* frame = ShowFrame();
    auto* bar = new OwnEndBar;
    bar->m_bAutoDelete = TRUE;
    ASSERT_TRUE(bar->Create(frame, CBRS_TOP, 0xE820));
    frame->DestroyWindow();
    EXPECT_EQ("~bar ~frame", AllNotes());
}

TEST_F(FrameBars, MadeToEndWithTheirWindowMayBeDeletedBefore)
{
    TestFrame* frame = ShowFrame();
    auto* bar = new CStatusBar;
    bar->m_bAutoDelete = TRUE;
    ASSERT_TRUE(bar->Create(frame));
    const HWND window = bar->m_hWnd;
    delete bar;
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(nullptr, frame->GetControlBar(AFX_IDW_STATUS_BAR));
    frame->DestroyWindow();
}

TEST_F(FrameBars, OutliveTheirFrame)
{
    TestBar bar(20);
    TestFrame* frame = ShowFrame();
    bar.Create(frame, CBRS_TOP, 0xE820);
    frame->DestroyWindow();
    EXPECT_EQ(nullptr, bar.m_hWnd);
    EXPECT_EQ("~frame", AllNotes());
}

TEST_F(FrameBars, AreUpdatedAtIdleTimeWhileVisible)
{
    TestFrame* frame = ShowFrame();
    TestBar bar(20);
    bar.Create(frame, CBRS_TOP, 0xE820);
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(1, bar.updates);
    frame->ShowControlBar(&bar, FALSE, FALSE);
    bar.SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_EQ(1, bar.updates);
    frame->DestroyWindow();
}

TEST_F(FrameBars, PassCommandsOnToTheFrame)
{
    TestFrame* frame = ShowFrame();
    TestBar bar(20);
    bar.Create(frame, CBRS_TOP, 0xE820);
    frame->EnableWindow(TRUE);
    bar.SendMessage(WM_COMMAND, ID_TEST_FRAME);
    // The frame disables its command by the update; a message without control is a menu's and is tested there.
    bar.SendMessage(WM_COMMAND, ID_TEST_APP);
    EXPECT_NE(std::string::npos, AllNotes().find("app-handler"));
    frame->DestroyWindow();
}

TEST_F(FrameBars, AreOfTheColourOfButtonFaces)
{
    TestFrame* frame = ShowFrameWithView();
    TestBar bar(20);
    bar.Create(frame, CBRS_ALIGN_LEFT, 0xE820);
    frame->toolBar.Create(frame);
    const UINT id = ID_TEST_VIEW;
    frame->toolBar.SetButtons(&id, 1);
    frame->RecalcLayout();
    PumpWaiting();
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), CClientDC(&bar).GetPixel(10, 50));
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), CClientDC(&frame->toolBar).GetPixel(200, 10));
    frame->DestroyWindow();
}

TEST_F(FrameBars, DrawTheirBorders)
{
    TestFrame* frame = ShowFrame();
    TestBar bar(20);
    bar.Create(frame, CBRS_TOP, 0xE820);
    frame->RecalcLayout();
    PumpWaiting();
    // The sunken edge of one pixel along the bar's lower side.
    EXPECT_EQ(::GetSysColor(COLOR_BTNHIGHLIGHT), CClientDC(&bar).GetPixel(10, 19));
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), CClientDC(&bar).GetPixel(10, 18));
    frame->DestroyWindow();
}

TEST_F(FrameBars, KeepTheirBorders)
{
    TestBar bar;
    bar.SetBorders(1, 2, 3, 4);
    EXPECT_EQ(CRect(1, 2, 3, 4), bar.GetBorders());
    bar.SetBorders(CRect(5, 6, 7, 8));
    EXPECT_EQ(CRect(5, 6, 7, 8), bar.GetBorders());
    bar.SetBorders(static_cast<LPCRECT>(nullptr));
    EXPECT_EQ(CRect(5, 6, 7, 8), bar.GetBorders());
}

TEST_F(FrameBars, ViewMenuCommandTogglesItsBar)
{
    TestFrame* frame = ShowFrame();
    ASSERT_TRUE(frame->statusBar.Create(frame));
    EXPECT_TRUE(frame->statusBar.IsWindowVisible());
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_FALSE(frame->statusBar.IsWindowVisible());
    frame->SendMessage(WM_COMMAND, ID_VIEW_STATUS_BAR);
    EXPECT_TRUE(frame->statusBar.IsWindowVisible());
    EXPECT_FALSE(frame->OnBarCheck(ID_VIEW_TOOLBAR)) << "there is no such bar";
    frame->DestroyWindow();
}

namespace
{
/// Bar states in a registry key of their own.
class BarState : public FrameTest
{
protected:
    BarState() : m_formerKey(App().m_pszRegistryKey), m_formerProfile(App().m_pszProfileName)
    {
        App().m_pszRegistryKey = "VornTests";
        App().m_pszProfileName = "BarState";
    }
    ~BarState() override
    {
        App().m_pszRegistryKey = m_formerKey;
        App().m_pszProfileName = m_formerProfile;
    }

    ScratchKey key{HKEY_CURRENT_USER, "Software\\VornTests\\BarState"};

private:
    LPCTSTR m_formerKey;
    LPCTSTR m_formerProfile;
};
} // namespace

TEST_F(BarState, IsSavedAndLoaded)
{
    TestFrame* frame = ShowFrame();
    TestBar first(20);
    TestBar second(20);
    first.Create(frame, CBRS_TOP, 0xE820);
    second.Create(frame, CBRS_BOTTOM, 0xE821);
    second.EnableDocking(CBRS_ALIGN_ANY);
    frame->ShowControlBar(&first, FALSE, FALSE);
    frame->SaveBarState("Bars");
    EXPECT_EQ(2U, App().GetProfileInt("Bars", "Bars", 0));
    EXPECT_TRUE(App().GetProfileString("Bars", "Bar0").Left(10) == "59424,0,0,");

    frame->ShowControlBar(&first, TRUE, FALSE);
    frame->ShowControlBar(&second, FALSE, FALSE);
    second.SetBarStyle(CBRS_LEFT);
    frame->LoadBarState("Bars");
    EXPECT_FALSE(first.IsWindowVisible());
    EXPECT_TRUE(second.IsWindowVisible());
    EXPECT_EQ(CBRS_ALIGN_BOTTOM, second.GetBarStyle() & CBRS_ALIGN_ANY);
    frame->DestroyWindow();
}

TEST_F(BarState, DoesNotMoveABarThatMayNotDock)
{
    TestFrame* frame = ShowFrame();
    TestBar bar(20);
    bar.Create(frame, CBRS_TOP, 0xE820);
    frame->SaveBarState("Bars");
    bar.SetBarStyle(CBRS_BOTTOM);
    frame->LoadBarState("Bars");
    EXPECT_EQ(CBRS_BOTTOM, bar.GetBarStyle());
    frame->DestroyWindow();
}

TEST_F(BarState, MissingSectionChangesNothing)
{
    TestFrame* frame = ShowFrame();
    TestBar bar(20);
    bar.Create(frame, CBRS_TOP, 0xE820);
    frame->LoadBarState("Nothing here");
    frame->LoadBarState("");
    frame->LoadBarState(nullptr);
    frame->SaveBarState(nullptr);
    EXPECT_TRUE(bar.IsWindowVisible());
    frame->DestroyWindow();
}

TEST_F(BarState, DamagedOrUnknownBarsAreLeftOut)
{
    App().WriteProfileInt("Bars", "Bars", 4);
    App().WriteProfileString("Bars", "Bar0", "59424,0");
    App().WriteProfileString("Bars", "Bar1", "some words");
    App().WriteProfileString("Bars", "Bar2", "7,0,0,4096,0,0,1,1");
    App().WriteProfileString("Bars", "Bar3", "59425,0,0,4096,0,0,1,1");
    TestFrame* frame = ShowFrame();
    TestBar first(20);
    TestBar second(20);
    first.Create(frame, CBRS_TOP, 0xE820);
    second.Create(frame, CBRS_TOP, 0xE821);
    frame->LoadBarState("Bars");
    EXPECT_TRUE(first.IsWindowVisible());
    EXPECT_FALSE(second.IsWindowVisible());
    frame->DestroyWindow();
}

TEST_F(BarState, CountsOutsideReasonAreHarmless)
{
    App().WriteProfileInt("Bars", "Bars", -5);
    CDockState state;
    state.LoadState("Bars");
    EXPECT_TRUE(state.m_bars.empty());
    App().WriteProfileInt("Bars", "Bars", 0x7FFFFFFF);
    state.LoadState("Bars");
    EXPECT_TRUE(state.m_bars.empty());
}

TEST_F(BarState, SavingFewerBarsTakesTheOthersLinesAway)
{
    CDockState state;
    state.m_bars.resize(3);
    state.SaveState("Bars");
    state.m_bars.resize(1);
    state.SaveState("Bars");
    EXPECT_STREQ("none", App().GetProfileString("Bars", "Bar2", "none"));
    EXPECT_STRNE("none", App().GetProfileString("Bars", "Bar0", "none"));
}

TEST_F(BarState, KeepsTheScreensSize)
{
    CDockState state;
    state.SetScreenSize(CSize(1024, 768));
    state.SaveState("Bars");
    CDockState other;
    other.LoadState("Bars");
    EXPECT_EQ(CSize(1024, 768), other.GetScreenSize());
    other.Clear();
    EXPECT_EQ(CSize(0, 0), other.GetScreenSize());
}

TEST_F(BarState, WorksOnAFrameObjectThatIsOnlyAttached)
{
    HWND window = ::CreateWindow("STATIC", "host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 10, 10, 300, 200, nullptr, nullptr,
                                 nullptr, nullptr);
    TestBar bar(20);
    {
        CFrameWnd host;
        ASSERT_TRUE(host.Attach(window));
        ASSERT_TRUE(bar.Create(&host, CBRS_TOP, 0xE820));
        host.ShowControlBar(&bar, FALSE, FALSE);
        host.SaveBarState("Bars");
        host.ShowControlBar(&bar, TRUE, FALSE);
        host.Detach();
    }
    EXPECT_TRUE(::IsWindow(window)) << "a detached window outlives the object";
    EXPECT_TRUE(bar.IsWindowVisible());
    {
        CFrameWnd host;
        ASSERT_TRUE(host.Attach(window));
        EXPECT_EQ(&bar, host.GetControlBar(0xE820)) << "found among the window's children";
        host.LoadBarState("Bars");
        host.Detach();
    }
    EXPECT_FALSE(bar.IsWindowVisible());
    ::DestroyWindow(window);
    EXPECT_EQ(nullptr, bar.m_hWnd);
}

TEST_F(BarState, OfAnAttachedWindowWithoutBarsIsHarmless)
{
    HWND window =
        ::CreateWindow("STATIC", "host", WS_OVERLAPPEDWINDOW, 10, 10, 300, 200, nullptr, nullptr, nullptr, nullptr);
    CFrameWnd host;
    host.Attach(window);
    host.LoadBarState("Bars");
    host.SaveBarState("Bars");
    EXPECT_EQ(0U, App().GetProfileInt("Bars", "Bars", 9));
    host.Detach();
    ::DestroyWindow(window);
}
