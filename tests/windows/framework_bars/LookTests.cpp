#include "tests/windows/framework_bars/BarFrame.h"

#include "framework/gdi/CWindowDC.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/WindowPicture.h"

#include <cstdlib>

using namespace vorn::test;

namespace
{

class BarLook : public BarsTest
{
protected:
    BarLook()
    {
        frame->EnableDocking(CBRS_ALIGN_ANY);
    }

    void MakeToolBar(CToolBar& bar, UINT id, DWORD barStyle)
    {
        ASSERT_TRUE(bar.CreateEx(frame, TBSTYLE_FLAT, WS_CHILD | WS_VISIBLE | barStyle, CRect(0, 0, 0, 0), id));
        const UINT ids[] = {ID_TEST_GO, ID_TEST_NOBODY, ID_SEPARATOR, ID_TEST_ACCEL};
        ASSERT_TRUE(bar.SetButtons(ids, 4));
        bar.EnableDocking(CBRS_ALIGN_ANY);
    }
};

} // namespace

TEST_F(BarLook, AGripperIsARaisedLineAtTheBeginningOfTheBar)
{
    SizedBar bar(CSize(100, 30), CSize(30, 90));
    Make(bar, kFirst, CBRS_ALIGN_TOP | CBRS_GRIPPER);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(CRect(0, 0, 109, 30), PlaceOf(bar));
    PumpWaiting();
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = ::GetSysColor(COLOR_BTNSHADOW);
    {
        CWindowDC dc(&bar);
        EXPECT_EQ(face, dc.GetPixel(2, 15));
        EXPECT_EQ(light, dc.GetPixel(3, 15));
        EXPECT_EQ(face, dc.GetPixel(4, 15));
        EXPECT_EQ(dark, dc.GetPixel(5, 15));
        EXPECT_EQ(face, dc.GetPixel(6, 15));
        EXPECT_EQ(face, dc.GetPixel(3, 1)) << "the line ends before the edge";
    }
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(CRect(0, 0, 30, 99), PlaceOf(bar));
    PumpWaiting();
    {
        CWindowDC dc(&bar);
        EXPECT_EQ(light, dc.GetPixel(15, 3));
        EXPECT_EQ(dark, dc.GetPixel(15, 5));
    }
    frame->FloatControlBar(&bar, CPoint(500, 500));
    EXPECT_EQ(CSize(100, 30), OnScreen(bar).Size()) << "a floating bar has a caption instead";
}

TEST_F(BarLook, TheGripperCountsAsFreeArea)
{
    SizedBar bar(CSize(100, 30));
    Make(bar, kFirst, CBRS_ALIGN_TOP | CBRS_GRIPPER);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    const CRect place = OnScreen(bar);
    EXPECT_EQ(HTCLIENT, bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(place.left + 4, place.top + 10)));
    EXPECT_EQ(HTCLIENT, bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(place.left + 40, place.top + 10)));
}

TEST_F(BarLook, AToolBarStandsAtTheSides)
{
    CToolBar bar;
    MakeToolBar(bar, kFirst, CBRS_ALIGN_TOP);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    const CRect lying = PlaceOf(bar);
    CRect first;
    CRect last;
    bar.GetItemRect(0, &first);
    bar.GetItemRect(3, &last);
    EXPECT_EQ(last.right, lying.Width());
    EXPECT_EQ(first.top, last.top);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    const CRect standing = PlaceOf(bar);
    bar.GetItemRect(0, &first);
    bar.GetItemRect(3, &last);
    EXPECT_EQ(first.left, last.left);
    EXPECT_GE(last.top, 2 * first.Height());
    EXPECT_GE(standing.Height(), last.bottom);
    EXPECT_EQ(standing.Width(), last.right);
    EXPECT_LT(standing.Width(), lying.Width());
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_EQ(lying.Size(), PlaceOf(bar).Size());
    EXPECT_EQ(UINT(ID_TEST_ACCEL), bar.GetItemID(3));
}

TEST_F(BarLook, AToolBarIsDraggedBetweenItsButtonsOnly)
{
    CToolBar bar;
    MakeToolBar(bar, kFirst, CBRS_ALIGN_TOP | CBRS_GRIPPER);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    CRect button;
    bar.GetItemRect(0, &button);
    bar.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(button.left + 3, button.top + 3));
    bar.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(button.left + 3, button.top + 3));
    EXPECT_FALSE(bar.IsFloating());
    bar.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(-4, 5));
    EXPECT_TRUE(bar.IsFloating());
}

TEST_F(BarLook, AToolBarsButtonsReachTheFrameWhereverItIs)
{
    CToolBar bar;
    MakeToolBar(bar, kFirst, CBRS_ALIGN_TOP);
    for (int place = 0; place < 3; ++place)
    {
        Notes().clear();
        if (place == 1)
        {
            frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_RIGHT);
        }
        if (place == 2)
        {
            frame->FloatControlBar(&bar, CPoint(500, 500));
        }
        AfxGetApp()->OnIdle(0);
        EXPECT_TRUE(bar.SendMessage(TB_ISBUTTONENABLED, ID_TEST_GO)) << place;
        EXPECT_FALSE(bar.SendMessage(TB_ISBUTTONENABLED, ID_TEST_NOBODY)) << place;
        CRect button;
        bar.GetItemRect(0, &button);
        const LPARAM where = MAKELPARAM(button.left + 2, button.top + 2);
        bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, where);
        bar.SendMessage(WM_LBUTTONUP, 0, where);
        EXPECT_EQ("go ", Notes()) << place;
    }
}

TEST_F(BarLook, NothingIsPaintedAnewWhenNothingMoves)
{
    SizedBar bar;
    Make(bar, kFirst);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    PumpWaiting();
    frame->RecalcLayout();
    EXPECT_FALSE(::GetUpdateRect(bar.m_hWnd, nullptr, FALSE));
    EXPECT_FALSE(::GetUpdateRect(frame->Dock(AFX_IDW_DOCKBAR_TOP)->m_hWnd, nullptr, FALSE));
}

/// For the eye: with VORN_PICTURES naming a folder, the frame and a floating bar as files.
TEST_F(BarLook, IsWholeOnPictures)
{
    CToolBar tools;
    MakeToolBar(tools, kFirst, CBRS_TOP | CBRS_GRIPPER);
    CToolBar side;
    MakeToolBar(side, kSecond, CBRS_LEFT | CBRS_GRIPPER);
    CDialogBar right;
    ASSERT_TRUE(right.Create(frame, IDD_CAPTION_BAR, CBRS_RIGHT | CBRS_GRIPPER, kThird));
    right.EnableDocking(CBRS_ALIGN_ANY);
    CDialogBar plan;
    ASSERT_TRUE(plan.Create(frame, IDD_PLAN_BAR, CBRS_BOTTOM | CBRS_GRIPPER, kThird + 1));
    plan.EnableDocking(CBRS_ALIGN_ANY);
    CDialogBar floating;
    ASSERT_TRUE(floating.Create(frame, IDD_PLAN_BAR, CBRS_TOP | CBRS_GRIPPER, kThird + 2));
    floating.EnableDocking(CBRS_ALIGN_ANY);
    floating.SetWindowText("Plan");
    frame->DockControlBar(&tools);
    frame->DockControlBar(&side);
    frame->DockControlBar(&right);
    frame->DockControlBar(&plan);
    frame->FloatControlBar(&floating, CPoint(600, 500));
    AfxGetApp()->OnIdle(0);
    PumpWaiting();
    for (const CWnd* bar :
         {static_cast<CWnd*>(&tools), static_cast<CWnd*>(&side), static_cast<CWnd*>(&right), static_cast<CWnd*>(&plan)})
    {
        EXPECT_FALSE(CRect(PlaceOf(*bar) & ViewPlace()).Width() > 0 && CRect(PlaceOf(*bar) & ViewPlace()).Height() > 0);
    }
    if (const char* folder = std::getenv("VORN_PICTURES"))
    {
        EXPECT_TRUE(SaveWindowPicture(frame->m_hWnd, std::string(folder) + "/bars_docked.bmp"));
        EXPECT_TRUE(SaveWindowPicture(FrameOf(floating)->m_hWnd, std::string(folder) + "/bars_floating.bmp"));
        frame->SetWindowPos(nullptr, 0, 0, 260, 240, SWP_NOMOVE | SWP_NOZORDER);
        PumpWaiting();
        EXPECT_TRUE(SaveWindowPicture(frame->m_hWnd, std::string(folder) + "/bars_small.bmp"));
    }
}
