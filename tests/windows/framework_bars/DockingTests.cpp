#include "tests/windows/framework_bars/BarFrame.h"

#include "tests/support/PumpUntil.h"

using namespace vorn::test;

using Docking = BarsTest;

namespace
{

/// Two bars for a frame with docks at all sides, the first one at the top.
class DockingOfTwo : public BarsTest
{
protected:
    DockingOfTwo()
    {
        frame->EnableDocking(CBRS_ALIGN_ANY);
        Make(first, kFirst);
        Make(second, kSecond);
        frame->DockControlBar(&first, AFX_IDW_DOCKBAR_TOP);
    }
    CDockBar& Top()
    {
        return *frame->Dock(AFX_IDW_DOCKBAR_TOP);
    }
    /// Where the first bar is on the screen, so much further right and down.
    CRect FromFirst(int right, int down) const
    {
        CRect place = OnScreen(first);
        place.OffsetRect(right, down);
        return place;
    }

    SizedBar first{CSize(100, 20)};
    SizedBar second{CSize(150, 20)};
};

} // namespace

TEST_F(Docking, DocksAreMadeForTheSidesThatAreEnabled)
{
    EXPECT_EQ(nullptr, frame->Dock(AFX_IDW_DOCKBAR_TOP));
    frame->EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_LEFT);
    CDockBar* top = frame->Dock(AFX_IDW_DOCKBAR_TOP);
    ASSERT_NE(nullptr, top);
    EXPECT_TRUE(top->IsDockBar());
    EXPECT_FALSE(top->IsFloating());
    EXPECT_NE(nullptr, frame->Dock(AFX_IDW_DOCKBAR_LEFT));
    EXPECT_EQ(nullptr, frame->Dock(AFX_IDW_DOCKBAR_RIGHT));
    EXPECT_EQ(nullptr, frame->Dock(AFX_IDW_DOCKBAR_BOTTOM));
    frame->EnableDocking(CBRS_ALIGN_ANY);
    EXPECT_EQ(top, frame->Dock(AFX_IDW_DOCKBAR_TOP)) << "no second one";
    EXPECT_NE(nullptr, frame->Dock(AFX_IDW_DOCKBAR_BOTTOM));
}

TEST_F(Docking, EmptyDocksTakeNoRoom)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    frame->RecalcLayout();
    EXPECT_EQ(CRect(0, 0, 400, 300), ViewPlace());
}

TEST_F(Docking, ABarLiesAtEachSide)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    SizedBar bar(CSize(100, 20), CSize(30, 80));
    Make(bar, kFirst);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(CRect(0, 0, 100, 20), PlaceOf(bar));
    EXPECT_EQ(CRect(0, 20, 400, 300), ViewPlace());
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_EQ(CRect(0, 280, 100, 300), PlaceOf(bar));
    EXPECT_EQ(CRect(0, 0, 400, 280), ViewPlace());
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(CRect(0, 0, 30, 80), PlaceOf(bar));
    EXPECT_EQ(CRect(30, 0, 400, 300), ViewPlace());
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(CRect(370, 0, 400, 80), PlaceOf(bar));
    EXPECT_EQ(CRect(0, 0, 370, 300), ViewPlace());
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_RIGHT), bar.GetDockBar());
    EXPECT_EQ(frame, bar.GetDockingFrame());
    EXPECT_FALSE(bar.IsFloating());
}

TEST_F(Docking, TheStyleNamesSideAndBorder)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    SizedBar bordered;
    SizedBar plain;
    Make(bordered, kFirst, CBRS_TOP | CBRS_TOOLTIPS);
    Make(plain, kSecond, CBRS_ALIGN_TOP);
    frame->DockControlBar(&bordered, AFX_IDW_DOCKBAR_LEFT);
    frame->DockControlBar(&plain, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(CBRS_LEFT | CBRS_TOOLTIPS, bordered.GetBarStyle());
    EXPECT_EQ(CBRS_ALIGN_LEFT, plain.GetBarStyle());
    frame->FloatControlBar(&bordered, CPoint(300, 300));
    EXPECT_EQ(CBRS_ALIGN_TOP | CBRS_FLOATING | CBRS_TOOLTIPS, bordered.GetBarStyle());
    frame->DockControlBar(&bordered, AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_EQ(CBRS_BOTTOM | CBRS_TOOLTIPS, bordered.GetBarStyle());
}

TEST_F(Docking, NeedsASideThatBothAllow)
{
    frame->EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_LEFT);
    SizedBar bar;
    Make(bar, kFirst);
    bar.EnableDocking(CBRS_ALIGN_LEFT | CBRS_ALIGN_RIGHT);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(nullptr, bar.GetDockBar()) << "the bar does not want to";
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_RIGHT);
    EXPECT_EQ(nullptr, bar.GetDockBar()) << "the frame does not want to";
    frame->DockControlBar(&bar);
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_LEFT), bar.GetDockBar());
    SizedBar fixed;
    Make(fixed, kSecond);
    fixed.EnableDocking(0);
    frame->DockControlBar(&fixed);
    EXPECT_EQ(nullptr, fixed.GetDockBar());
    frame->RecalcLayout();
    EXPECT_EQ(CRect(30, 0, 400, 20), PlaceOf(fixed)) << "it stays at its fixed place, as long as the docks leave it";
    frame->DockControlBar(nullptr);
    frame->DockControlBar(&bar, 12345);
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_LEFT), bar.GetDockBar());
}

TEST_F(Docking, WithoutASideItGoesWhereItsStyleSays)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    SizedBar bar;
    Make(bar, kFirst, CBRS_RIGHT);
    frame->DockControlBar(&bar);
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_RIGHT), bar.GetDockBar());
}

TEST_F(DockingOfTwo, BarsComeInRowsOneBehindTheOther)
{
    second.lying = CSize(150, 25);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(CRect(0, 0, 100, 20), PlaceOf(first));
    EXPECT_EQ(CRect(0, 20, 150, 45), PlaceOf(second));
    EXPECT_EQ(2, Top().GetRowCount());
    EXPECT_EQ(CRect(0, 45, 400, 300), ViewPlace());
}

TEST_F(DockingOfTwo, ARectangleOnARowPutsABarIntoIt)
{
    SizedBar third(CSize(50, 20));
    Make(third, kThird);
    // The usual way to put a bar beside another one: its rectangle, a pixel further on.
    const CRect beside = FromFirst(1, 0);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &beside);
    EXPECT_EQ(CRect(100, 0, 250, 20), PlaceOf(second));
    const CRect further = FromFirst(301, 0);
    frame->DockControlBar(&third, AFX_IDW_DOCKBAR_TOP, &further);
    EXPECT_EQ(CRect(301, 0, 351, 20), PlaceOf(third)) << "where it was asked to be";
    EXPECT_EQ(1, Top().GetRowCount());
    EXPECT_EQ(&second, Top().GetDockedControlBar(1));
    EXPECT_EQ(nullptr, Top().GetDockedControlBar(3));
    EXPECT_EQ(nullptr, Top().GetDockedControlBar(-1));
}

TEST_F(DockingOfTwo, ARectangleBeforeTheRowsMakesANewOne)
{
    const CRect above = FromFirst(40, -15);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &above);
    EXPECT_EQ(CRect(40, 0, 190, 20), PlaceOf(second));
    EXPECT_EQ(CRect(0, 20, 100, 40), PlaceOf(first));
}

TEST_F(Docking, BarsOfALeftDockAreStackedInColumns)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    SizedBar first;
    SizedBar second(CSize(100, 20), CSize(40, 60));
    Make(first, kFirst);
    Make(second, kSecond);
    frame->DockControlBar(&first, AFX_IDW_DOCKBAR_LEFT);
    CRect below = OnScreen(first);
    below.OffsetRect(0, 100);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_LEFT, &below);
    EXPECT_EQ(CRect(0, 100, 40, 160), PlaceOf(second));
    EXPECT_EQ(CRect(40, 0, 400, 300), ViewPlace());
}

TEST_F(DockingOfTwo, BarsAreMovedWithinTheirDock)
{
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP);
    // The second one into the first one's row.
    CRect place = FromFirst(200, 0);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &place);
    EXPECT_EQ(CRect(200, 0, 350, 20), PlaceOf(second));
    EXPECT_EQ(1, Top().GetRowCount());
    // And, alone in its row, onto its own row.
    frame->DockControlBar(&first, AFX_IDW_DOCKBAR_LEFT);
    place = OnScreen(second);
    place.OffsetRect(-60, 0);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &place);
    EXPECT_EQ(CRect(140, 0, 290, 20), PlaceOf(second));
    EXPECT_EQ(1, Top().GetRowCount());
}

TEST_F(DockingOfTwo, ANarrowFrameBreaksARow)
{
    second.lying = CSize(150, 30);
    const CRect beside = FromFirst(200, 0);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP, &beside);
    const CRect outer = OnScreen(*frame);
    const auto narrowBy = [&](int less)
    {
        frame->SetWindowPos(nullptr, 0, 0, outer.Width() - less, outer.Height(), SWP_NOMOVE | SWP_NOZORDER);
    };
    narrowBy(100);
    EXPECT_EQ(CRect(150, 0, 300, 30), PlaceOf(second)) << "moved in";
    narrowBy(200);
    EXPECT_EQ(CRect(50, 20, 200, 50), PlaceOf(second)) << "on a line of its own";
    EXPECT_EQ(CRect(0, 50, 200, 300), ViewPlace());
    narrowBy(0);
    EXPECT_EQ(CRect(200, 0, 350, 30), PlaceOf(second)) << "back where it was";
}

TEST_F(DockingOfTwo, HiddenBarsKeepTheirPlace)
{
    second.lying = CSize(150, 25);
    frame->DockControlBar(&second, AFX_IDW_DOCKBAR_TOP);
    frame->ShowControlBar(&first, FALSE, FALSE);
    EXPECT_FALSE(first.IsWindowVisible());
    EXPECT_EQ(CRect(0, 0, 150, 25), PlaceOf(second));
    EXPECT_EQ(1, Top().GetDockedVisibleCount());
    EXPECT_EQ(2, Top().GetDockedCount());
    frame->ShowControlBar(&first, TRUE, FALSE);
    EXPECT_EQ(CRect(0, 0, 100, 20), PlaceOf(first));
    EXPECT_EQ(CRect(0, 20, 150, 45), PlaceOf(second));
    frame->ShowControlBar(&first, FALSE, TRUE);
    EXPECT_TRUE(first.IsWindowVisible()) << "at the next layout";
    frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_FALSE(first.IsWindowVisible());
    EXPECT_EQ(CRect(0, 0, 150, 25), PlaceOf(second));
}

TEST_F(Docking, BarsAreAskedForTheirSizeByMode)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    SizedBar bar;
    Make(bar, kFirst);
    frame->RecalcLayout();
    EXPECT_EQ(LM_STRETCH | LM_HORZ, bar.modes.back()) << "a bar that is not in a dock is as long as the frame";
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(LM_HORZ | LM_HORZDOCK, bar.modes.back());
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(LM_VERTDOCK, bar.modes.back());
    frame->FloatControlBar(&bar, CPoint(300, 300));
    EXPECT_EQ(LM_HORZ | LM_MRUWIDTH | LM_COMMIT, bar.modes.back());
    frame->FloatControlBar(&bar, CPoint(300, 300), CBRS_ALIGN_LEFT);
    EXPECT_EQ(LM_MRUWIDTH | LM_COMMIT, bar.modes.back());
}

TEST_F(Docking, AStatusBarMadeBeforeStaysBelow)
{
    CStatusBar status;
    ASSERT_TRUE(status.Create(frame));
    frame->EnableDocking(CBRS_ALIGN_ANY);
    SizedBar bar;
    Make(bar, kFirst);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_EQ(300, PlaceOf(status).bottom);
    EXPECT_EQ(PlaceOf(status).top, PlaceOf(bar).bottom);
}

TEST_F(Docking, BarsEndWithTheirFrameOrBefore)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    auto* own = new SizedBar;
    own->saysWhenItEnds = true;
    own->m_bAutoDelete = TRUE;
    Make(*own, kFirst);
    frame->DockControlBar(own, AFX_IDW_DOCKBAR_TOP);
    SizedBar outlives;
    Make(outlives, kSecond);
    frame->DockControlBar(&outlives, AFX_IDW_DOCKBAR_TOP);
    {
        SizedBar before;
        Make(before, kThird);
        frame->DockControlBar(&before, AFX_IDW_DOCKBAR_TOP);
        EXPECT_EQ(3, frame->Dock(AFX_IDW_DOCKBAR_TOP)->GetDockedCount());
    }
    EXPECT_EQ(2, frame->Dock(AFX_IDW_DOCKBAR_TOP)->GetDockedCount());
    EXPECT_EQ(nullptr, frame->GetControlBar(kThird));
    frame->DestroyWindow();
    frame = nullptr;
    EXPECT_EQ("~bar ~frame ", Notes());
    EXPECT_EQ(nullptr, outlives.m_hWnd);
    EXPECT_EQ(nullptr, outlives.GetDockBar());
}

TEST_F(Docking, BarsOfADockAreBroughtUpToDateForTheFrame)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    SizedBar bar;
    Make(bar, kFirst);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    CWnd::SendMessageToDescendants(frame->m_hWnd, WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    EXPECT_EQ(frame, bar.updatedFor);
    EXPECT_EQ(&bar, frame->GetControlBar(kFirst));
}

TEST_F(Docking, CommandsFromADockReachTheFrame)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    SizedBar bar;
    Make(bar, kFirst);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    bar.SendMessage(WM_COMMAND, ID_TEST_GO);
    EXPECT_EQ("go ", Notes());
}

TEST_F(Docking, ABarOfAnotherFrameIsTaken)
{
    frame->EnableDocking(CBRS_ALIGN_ANY);
    auto* other = new BarFrame;
    ASSERT_TRUE(other->Show());
    other->EnableDocking(CBRS_ALIGN_ANY);
    SizedBar bar;
    Make(bar, kFirst);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    other->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_EQ(other, bar.GetDockingFrame());
    EXPECT_EQ(nullptr, frame->GetControlBar(kFirst));
    EXPECT_EQ(&bar, other->GetControlBar(kFirst));
    EXPECT_EQ(0, frame->Dock(AFX_IDW_DOCKBAR_TOP)->GetDockedCount());
    other->DestroyWindow();
    EXPECT_EQ(nullptr, bar.m_hWnd);
}
