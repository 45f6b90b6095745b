#include "tests/windows/layout_bars/Bars.h"

#include "tests/support/PumpUntil.h"

using namespace vorn::test;
using LayoutManagement::LayoutDialogBar;

namespace
{

using PlainBar = ListBar<LayoutDialogBar>;

class LayoutBar : public LayoutBars
{
protected:
    void Make(PlainBar& bar, UINT style = CBRS_TOP)
    {
        ASSERT_TRUE(bar.Create(frame, IDD_LIST_BAR, style, kBarId));
        bar.EnableDocking(CBRS_ALIGN_ANY);
    }
    static CRect ControlOf(const CWnd& bar, int id)
    {
        CRect rect = OnScreen(*bar.GetDlgItem(id));
        bar.ScreenToClient(&rect);
        return rect;
    }
};

} // namespace

TEST_F(LayoutBar, DeclaresItsPanesWhenItsControlsExist)
{
    PlainBar bar;
    Make(bar);
    EXPECT_EQ(1, bar.initialised);
    EXPECT_EQ(LeastClient(bar), bar.LayoutMinimum());
    PlainBar none;
    none.declares = false;
    ASSERT_TRUE(none.Create(frame, IDD_LIST_BAR, CBRS_BOTTOM, kBarId + 1));
    EXPECT_EQ(CSize(0, 0), none.LayoutMinimum());
}

TEST_F(LayoutBar, TheControlsFollowItsSize)
{
    PlainBar bar;
    Make(bar, CBRS_ALIGN_TOP);
    frame->RecalcLayout();
    CRect client;
    bar.GetClientRect(&client);
    EXPECT_EQ(400, client.Width());
    const int field = static_cast<int>(SizeOf(bar, IDC_FIND).cy);
    const CSize button = SizeOf(bar, IDC_SHOW);
    const int top = static_cast<int>(client.bottom - 5 - button.cy);
    EXPECT_EQ(CRect(5, 5, 395, 5 + field), ControlOf(bar, IDC_FIND));
    EXPECT_EQ(CRect(395 - button.cx, top, 395, client.bottom - 5), ControlOf(bar, IDC_SHOW));
    EXPECT_EQ(CRect(5, 10 + field, 395, top - 5), ControlOf(bar, IDC_AIDS));
    CRect outer = OnScreen(*frame);
    frame->SetWindowPos(nullptr, 0, 0, outer.Width() + 60, outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(CRect(455 - button.cx, top, 455, client.bottom - 5), ControlOf(bar, IDC_SHOW));
}

TEST_F(LayoutBar, AnswersTheFrameWithItsSizeOrTheLayoutsLeast)
{
    PlainBar bar;
    Make(bar, CBRS_ALIGN_TOP);
    const CSize size = bar.m_sizeDefault;
    EXPECT_EQ(size, bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK));
    EXPECT_EQ(CSize(32767, size.cy), bar.CalcDynamicLayout(-1, LM_HORZ | LM_STRETCH));
    EXPECT_EQ(CSize(size.cx, 32767), bar.CalcDynamicLayout(-1, LM_STRETCH));
    bar.m_sizeDefault = CSize(10, 12);
    const CSize least = LeastClient(bar);
    EXPECT_EQ(least, bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK));
    EXPECT_EQ(least, bar.CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH));
    EXPECT_EQ(CSize(32767, least.cy), bar.CalcDynamicLayout(-1, LM_HORZ | LM_STRETCH));
    bar.SetRootBorders(20, 30);
    EXPECT_EQ(least + CSize(30, 50), bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK));
}

TEST_F(LayoutBar, CountsItsGripperWhereItLies)
{
    PlainBar bar;
    Make(bar, CBRS_ALIGN_TOP | CBRS_GRIPPER);
    bar.m_sizeDefault = CSize(10, 12);
    const CSize least = LeastClient(bar);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(least + CSize(9, 0), PlaceOf(bar).Size());
    EXPECT_EQ(least + CSize(0, 9), bar.CalcDynamicLayout(-1, LM_VERTDOCK));
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(least + CSize(0, 9), PlaceOf(bar).Size());
    frame->FloatControlBar(&bar, CPoint(600, 500));
    EXPECT_EQ(least, OnScreen(bar).Size());
}

TEST_F(LayoutBar, ExplainsItsControls)
{
    PlainBar bar;
    Make(bar, CBRS_ALIGN_TOP);
    const UINT tips[] = {IDC_SHOW, 700, IDC_FIND, 701, 999, 702};
    bar.AddTips(tips, 3);
    EXPECT_EQ(2, bar.GetToolTipCtrl().GetToolCount()) << "one of the controls does not exist";
    frame->RecalcLayout();
    const CPoint before = OnScreen(*bar.GetDlgItem(IDC_SHOW)).CenterPoint();
    EXPECT_NE(nullptr, bar.GetToolTipCtrl().FindToolFromPoint(before));
    CRect outer = OnScreen(*frame);
    frame->SetWindowPos(nullptr, 0, 0, outer.Width() + 200, outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(nullptr, bar.GetToolTipCtrl().FindToolFromPoint(before)) << "the button has moved";
    EXPECT_NE(nullptr, bar.GetToolTipCtrl().FindToolFromPoint(before + CSize(200, 0)));
    bar.DestroyWindow();
    EXPECT_EQ(nullptr, bar.GetToolTipCtrl().m_hWnd);
}

TEST_F(LayoutBar, FillsItsBackgroundBesideTheControls)
{
    PlainBar bar;
    Make(bar, CBRS_ALIGN_TOP);
    frame->RecalcLayout();
    PumpWaiting();
    CClientDC dc(&bar);
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), dc.GetPixel(2, 2));
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), dc.GetPixel(200, ControlOf(bar, IDC_SHOW).top + 5));
    EXPECT_EQ(1, bar.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC)));
}

TEST_F(LayoutBar, LocksAndNullSectionsAreHarmless)
{
    PlainBar bar(nullptr);
    Make(bar);
    bar.LockLayout();
    frame->RecalcLayout();
    const CRect before = ControlOf(bar, IDC_SHOW);
    CRect outer = OnScreen(*frame);
    frame->SetWindowPos(nullptr, 0, 0, outer.Width() + 60, outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(before, ControlOf(bar, IDC_SHOW));
    EXPECT_TRUE(bar.m_strSection.IsEmpty());
}

TEST_F(LayoutBar, ReleasesItsRootWithItsWindow)
{
    PlainBar bar;
    Make(bar);
    bar.DestroyWindow();
    CSize least;
    CSize most;
    EXPECT_FALSE(bar.GetTrackSizes(least, most));
    Make(bar);
    EXPECT_EQ(2, bar.initialised) << "it can be made again";
    EXPECT_EQ(LeastClient(bar), bar.LayoutMinimum());
}

TEST_F(LayoutBar, KeepsControlBarsOfItsOwnAtItsEdges)
{
    PlainBar bar;
    Make(bar, CBRS_ALIGN_TOP);
    frame->RecalcLayout();
    CStatusBar inner;
    ASSERT_TRUE(inner.Create(&bar));
    CRect outer = OnScreen(*frame);
    frame->SetWindowPos(nullptr, 0, 0, outer.Width() + 60, outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
    CRect client;
    bar.GetClientRect(&client);
    CRect place = OnScreen(inner);
    bar.ScreenToClient(&place);
    EXPECT_EQ(client.BottomRight(), place.BottomRight());
    EXPECT_EQ(460, place.Width());
}

TEST_F(LayoutBar, TellsWhatItsPanesNeed)
{
    PlainBar bar;
    Make(bar, CBRS_ALIGN_TOP);
    MINMAXINFO info{};
    info.ptMaxTrackSize = {2001, 2002};
    bar.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    EXPECT_EQ(LeastClient(bar), CSize(info.ptMinTrackSize.x, info.ptMinTrackSize.y)) << "the bar has no frame";
    EXPECT_EQ(CPoint(2001, 2002), CPoint(info.ptMaxTrackSize));
}

TEST_F(LayoutBar, WithoutItsTemplateItIsNotMade)
{
    PlainBar bar;
    EXPECT_FALSE(bar.Create(frame, 4711U, CBRS_TOP, kBarId));
    EXPECT_EQ(nullptr, bar.m_hWnd);
    EXPECT_EQ(0, bar.initialised);
}
