#include "tests/windows/framework_bars/BarFrame.h"

#include "tests/support/PumpUntil.h"
#include "tests/support/ScratchKey.h"

using namespace vorn::test;

namespace
{

/// The bars of a program, which can be started again.
class SavedBars : public BarsTest
{
protected:
    SavedBars() : m_formerKey(AfxGetApp()->m_pszRegistryKey), m_formerProfile(AfxGetApp()->m_pszProfileName)
    {
        AfxGetApp()->m_pszRegistryKey = "VornTests";
        AfxGetApp()->m_pszProfileName = "SavedBars";
        MakeBars();
    }
    ~SavedBars() override
    {
        AfxGetApp()->m_pszRegistryKey = m_formerKey;
        AfxGetApp()->m_pszProfileName = m_formerProfile;
    }

    /// As a program does it in its frame's OnCreate.
    void MakeBars()
    {
        frame->EnableDocking(CBRS_ALIGN_ANY);
        Make(first, kFirst);
        Make(second, kSecond);
        Make(third, kThird);
        frame->DockControlBar(&first);
        frame->DockControlBar(&second);
        frame->DockControlBar(&third);
    }
    void SaveAndStartAgain()
    {
        frame->SaveBarState("Bars");
        frame->DestroyWindow();
        frame = new BarFrame;
        ASSERT_TRUE(frame->Show());
        MakeBars();
        frame->LoadBarState("Bars");
    }

    ScratchKey key{HKEY_CURRENT_USER, "Software\\VornTests\\SavedBars"};
    SizedBar first{CSize(100, 20), CSize(30, 80)};
    SizedBar second{CSize(60, 22), CSize(30, 80)};
    SizedBar third{CSize(50, 24), CSize(36, 90)};

private:
    LPCTSTR m_formerKey;
    LPCTSTR m_formerProfile;
};

} // namespace

TEST_F(SavedBars, SidesAndRowsComeBack)
{
    frame->DockControlBar(&third, AFX_IDW_DOCKBAR_LEFT);
    CRect beside = OnScreen(second);
    beside.OffsetRect(170, 0);
    frame->DockControlBar(&first, AFX_IDW_DOCKBAR_TOP, &beside);
    const CRect places[] = {PlaceOf(first), PlaceOf(second), PlaceOf(third)};
    EXPECT_EQ(CRect(170, 0, 270, 20), places[0]);
    EXPECT_EQ(CRect(0, 0, 60, 22), places[1]);
    SaveAndStartAgain();
    EXPECT_EQ(places[0], PlaceOf(first));
    EXPECT_EQ(places[1], PlaceOf(second));
    EXPECT_EQ(places[2], PlaceOf(third));
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_LEFT), third.GetDockBar());
}

TEST_F(SavedBars, TheOrderOfRowsComesBack)
{
    // Third, first, second from above.
    CRect above = OnScreen(first);
    above.OffsetRect(0, -40);
    frame->DockControlBar(&third, AFX_IDW_DOCKBAR_TOP, &above);
    EXPECT_EQ(0, PlaceOf(third).top);
    EXPECT_EQ(24, PlaceOf(first).top);
    SaveAndStartAgain();
    EXPECT_EQ(0, PlaceOf(third).top);
    EXPECT_EQ(24, PlaceOf(first).top);
    EXPECT_EQ(44, PlaceOf(second).top);
}

TEST_F(SavedBars, FloatingBarsComeBackWhereTheyWere)
{
    frame->FloatControlBar(&first, CPoint(610, 420));
    frame->FloatControlBar(&second, CPoint(650, 520), CBRS_ALIGN_LEFT);
    SaveAndStartAgain();
    PumpWaiting();
    ASSERT_TRUE(first.IsFloating());
    EXPECT_EQ(CRect(610, 420, 710, 440), OnScreen(first));
    EXPECT_EQ(CRect(650, 520, 680, 600), OnScreen(second));
    EXPECT_TRUE(FrameOf(first)->IsWindowVisible());
    EXPECT_EQ(2, FloatingFrames());
    EXPECT_FALSE(third.IsFloating());
}

TEST_F(SavedBars, HiddenBarsComeBackHidden)
{
    frame->FloatControlBar(&first, CPoint(610, 420));
    frame->ShowControlBar(&first, FALSE, FALSE);
    frame->ShowControlBar(&second, FALSE, FALSE);
    SaveAndStartAgain();
    EXPECT_TRUE(first.IsFloating());
    EXPECT_FALSE(FrameOf(first)->IsWindowVisible());
    EXPECT_FALSE(second.IsWindowVisible());
    EXPECT_EQ(CRect(0, 0, 50, 24), PlaceOf(third));
    frame->ShowControlBar(&first, TRUE, FALSE);
    EXPECT_EQ(CRect(610, 420, 710, 440), OnScreen(first));
}

TEST_F(SavedBars, TheWayBackIsKept)
{
    frame->FloatControlBar(&first, CPoint(610, 420));
    frame->DockControlBar(&first, AFX_IDW_DOCKBAR_RIGHT);
    frame->FloatControlBar(&second, CPoint(650, 520));
    SaveAndStartAgain();
    first.ToggleDocking();
    EXPECT_EQ(CPoint(610, 420), OnScreen(first).TopLeft()) << "a docked bar floats where it did";
    second.ToggleDocking();
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_TOP), second.GetDockBar());
}

TEST_F(SavedBars, WhatFloatedOffTheScreenComesBackOntoIt)
{
    frame->FloatControlBar(&first, CPoint(610, 420));
    frame->SaveBarState("Bars");
    CDockState state;
    state.LoadState("Bars");
    for (CControlBarInfo& info : state.m_bars)
    {
        if (info.m_nBarID == kFirst)
        {
            info.m_rect.MoveToXY(30000, -8000);
        }
    }
    frame->SetDockState(state);
    RECT work{};
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &work, 0);
    const CRect place = OnScreen(*FrameOf(first));
    EXPECT_TRUE(first.IsFloating());
    EXPECT_GE(place.top, work.top - ::GetSystemMetrics(SM_CYSMCAPTION));
    EXPECT_GE(OnScreen(first).top, work.top);
    EXPECT_LE(OnScreen(first).right, work.right);
    EXPECT_EQ(CSize(100, 20), OnScreen(first).Size());
}

TEST_F(SavedBars, ADamagedPlaceDoesNoHarm)
{
    const char* lines[] = {"59440,1,0,8192,0,0,10,10,59419,-7,-2147483648,0,0,0,0",
                           "59441,1,0,8192,0,0,10,10,59419,2147483647,2147483647,1,0,0,0",
                           "59442,1,1,61440,-2147483647,-2147483647,2147483647,2147483647,12345,1,1,1,1,0,0"};
    AfxGetApp()->WriteProfileInt("Bars", "Bars", 3);
    for (int i = 0; i < 3; ++i)
    {
        CString entry;
        entry.Format("Bar%d", i);
        AfxGetApp()->WriteProfileString("Bars", entry, lines[i]);
    }
    static_assert(kFirst == 59440);
    frame->LoadBarState("Bars");
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_TOP), first.GetDockBar());
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_TOP), second.GetDockBar());
    EXPECT_EQ(CRect(0, 0, 100, 20), PlaceOf(first));
    EXPECT_EQ(CRect(340, 20, 400, 42), PlaceOf(second));
    EXPECT_TRUE(third.IsFloating());
}

TEST_F(SavedBars, LinesOfAnOlderProgramShowAndHide)
{
    AfxGetApp()->WriteProfileInt("Bars", "Bars", 1);
    AfxGetApp()->WriteProfileString("Bars", "Bar0", "59440,0,0,8192,0,0,10,10");
    frame->LoadBarState("Bars");
    EXPECT_FALSE(first.IsVisible());
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_TOP), first.GetDockBar());
}

TEST_F(SavedBars, DocksThemselvesAreNotSaved)
{
    CDockState state;
    frame->GetDockState(state);
    EXPECT_EQ(3U, state.m_bars.size());
}

TEST_F(SavedBars, ABarsLineIsReadAsItWasWritten)
{
    CControlBarInfo info;
    info.m_nBarID = 7;
    info.m_bVisible = TRUE;
    info.m_dwAlign = CBRS_ALIGN_LEFT;
    info.m_rect.SetRect(1, -2, 3, 4);
    info.m_dock = {AFX_IDW_DOCKBAR_LEFT, 2, -30, false};
    info.m_bHasFloated = TRUE;
    info.m_ptFloat = CPoint(-5, 600);
    EXPECT_STREQ("7,1,0,4096,1,-2,3,4,59420,2,-30,0,1,-5,600", info.ToText());
    CControlBarInfo read;
    ASSERT_TRUE(read.FromText(info.ToText()));
    EXPECT_STREQ(info.ToText(), read.ToText());
    EXPECT_TRUE(read.FromText("7,1,0,4096,1,2,3,4,59420,2"));
    EXPECT_EQ(0U, read.m_dock.dockBar) << "half a place is none";
    EXPECT_FALSE(read.FromText("7,1,0,4096,1,2,3"));
    EXPECT_FALSE(read.FromText(""));
    EXPECT_FALSE(read.FromText(nullptr));
}
