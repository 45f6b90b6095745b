#include "tests/windows/framework_bars/BarFrame.h"

#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"

using namespace vorn::test;

namespace
{

/// A bar docked at the top, dragged by real mouse messages: those that follow the press wait in the queue for it.
class Dragging : public BarsTest
{
protected:
    Dragging()
    {
        frame->EnableDocking(CBRS_ALIGN_ANY);
        Make(bar, kFirst);
        frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
        PumpWaiting();
    }

    LPARAM At(CPoint screen) const
    {
        bar.ScreenToClient(&screen);
        return MAKELPARAM(screen.x, screen.y);
    }
    void Move(CPoint screen) const
    {
        bar.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, At(screen));
    }
    void Up(CPoint screen) const
    {
        bar.PostMessage(WM_LBUTTONUP, 0, At(screen));
    }
    /// Presses the button in the middle of the bar; the waiting messages are handled before this returns.
    void Press() const
    {
        bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, At(Middle()));
        EXPECT_NE(bar.m_hWnd, ::GetCapture());
    }
    CPoint Middle() const
    {
        return OnScreen(bar).CenterPoint();
    }
    void DragTo(CPoint screen) const
    {
        Move(CPoint((Middle().x + screen.x) / 2, (Middle().y + screen.y) / 2));
        Move(screen);
        Up(screen);
        Press();
    }

    SizedBar bar{CSize(100, 20), CSize(30, 80)};
};

} // namespace

TEST_F(Dragging, IntoTheOpenTheBarFloats)
{
    DragTo(CPoint(800, 500));
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(CRect(750, 490, 850, 510), OnScreen(bar)) << "about the pointer as it was";
}

TEST_F(Dragging, ToAnEdgeTheBarIsDockedThere)
{
    const CRect client = frame->ClientOnScreen();
    DragTo(CPoint(client.left + 5, client.top + 150));
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_LEFT), bar.GetDockBar());
    EXPECT_EQ(CRect(0, 110, 30, 190), PlaceOf(bar));
    DragTo(CPoint(client.right - 5, client.top + 100));
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_RIGHT), bar.GetDockBar());
    DragTo(CPoint(client.left + 200, client.bottom - 5));
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_BOTTOM), bar.GetDockBar());
    EXPECT_EQ(CRect(150, 280, 250, 300), PlaceOf(bar));
    DragTo(CPoint(client.left + 200, client.top + 5));
    EXPECT_EQ(frame->Dock(AFX_IDW_DOCKBAR_TOP), bar.GetDockBar());
}

TEST_F(Dragging, AlongItsDockTheBarMovesInItsRow)
{
    SizedBar other(CSize(60, 20));
    Make(other, kSecond);
    CRect beside = OnScreen(bar);
    beside.OffsetRect(120, 0);
    frame->DockControlBar(&other, AFX_IDW_DOCKBAR_TOP, &beside);
    PumpWaiting();
    DragTo(Middle() + CSize(200, 0));
    EXPECT_EQ(CRect(200, 0, 300, 20), PlaceOf(bar));
    EXPECT_EQ(CRect(120, 0, 180, 20), PlaceOf(other));
    EXPECT_EQ(1, frame->Dock(AFX_IDW_DOCKBAR_TOP)->GetRowCount());
}

TEST_F(Dragging, OntoASideThatIsNotAllowedTheBarFloats)
{
    bar.EnableDocking(CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM);
    const CRect client = frame->ClientOnScreen();
    DragTo(CPoint(client.left + 5, client.top + 150));
    EXPECT_TRUE(bar.IsFloating());
}

TEST_F(Dragging, APressWithoutMovementDoesNothing)
{
    const CRect before = OnScreen(bar);
    Up(Middle() + CSize(1, 1));
    Press();
    EXPECT_EQ(before, OnScreen(bar));
    EXPECT_FALSE(bar.IsFloating());
}

TEST_F(Dragging, EscapeLeavesAllAsItWas)
{
    Move(CPoint(800, 500));
    bar.PostMessage(WM_KEYDOWN, VK_ESCAPE);
    Press();
    EXPECT_FALSE(bar.IsFloating());
    EXPECT_EQ(CRect(0, 0, 100, 20), PlaceOf(bar));
    EXPECT_EQ(0, FloatingFrames());
}

TEST_F(Dragging, TheOtherButtonLeavesAllAsItWas)
{
    Move(CPoint(800, 500));
    bar.PostMessage(WM_RBUTTONDOWN, MK_RBUTTON, At(CPoint(800, 500)));
    Press();
    EXPECT_FALSE(bar.IsFloating());
}

namespace
{
/// Gives the capture away when it is told to.
class CaptureThief : public SizedBar
{
protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_APP)
        {
            ::ReleaseCapture();
        }
        if (message == WM_APP + 1)
        {
            DestroyWindow();
            return 0;
        }
        return SizedBar::WindowProc(message, wParam, lParam);
    }
};
} // namespace

TEST_F(Dragging, ALostCaptureLeavesAllAsItWas)
{
    CaptureThief other;
    Make(other, kSecond);
    frame->DockControlBar(&other, AFX_IDW_DOCKBAR_BOTTOM);
    PumpWaiting();
    other.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(300, -100));
    other.PostMessage(WM_APP);
    other.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
    EXPECT_FALSE(other.IsFloating());
}

TEST_F(Dragging, ABarThatEndsEndsTheDrag)
{
    CaptureThief other;
    Make(other, kSecond);
    frame->DockControlBar(&other, AFX_IDW_DOCKBAR_BOTTOM);
    PumpWaiting();
    other.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(300, -100));
    other.PostMessage(WM_APP + 1);
    other.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10));
    EXPECT_EQ(nullptr, other.m_hWnd);
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(Dragging, AFixedBarIsNotDragged)
{
    bar.EnableDocking(0);
    bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, 10)); // would wait for ever
    bar.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
    EXPECT_FALSE(bar.IsFloating());
}

TEST_F(Dragging, ADoubleClickOnFreeAreaTogglesDocking)
{
    bar.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
    EXPECT_TRUE(bar.IsFloating());
    bar.SendMessage(WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(10, 10));
    EXPECT_FALSE(bar.IsFloating());
    EXPECT_EQ(CRect(0, 0, 100, 20), PlaceOf(bar));
}

TEST_F(Dragging, TheClassOfABarHearsDoubleClicks)
{
    EXPECT_TRUE(::GetClassLongPtr(bar.m_hWnd, GCL_STYLE) & CS_DBLCLKS);
}

TEST_F(Dragging, AFloatingFrameIsDraggedByItsCaption)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(600, 500));
    PumpWaiting();
    const CPoint caption(620, 495);
    Move(CPoint(700, 600));
    Up(CPoint(720, 615));
    floating->SendMessage(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(caption.x, caption.y));
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(FrameOf(bar), floating);
    // The caption lies above the bar: what counts up to the bar's edge is the press itself.
    EXPECT_EQ(CPoint(700, 615), OnScreen(bar).TopLeft());
}

TEST_F(Dragging, ADoubleClickOnTheCaptionDocks)
{
    CFrameWnd* floating = frame->FloatControlBar(&bar, CPoint(600, 500));
    floating->SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, MAKELPARAM(620, 495));
    EXPECT_FALSE(bar.IsFloating());
    PumpWaiting();
    EXPECT_EQ(0, FloatingFrames());
}

TEST_F(Dragging, ALongDragLeavesNothingBehind)
{
    const unsigned gdi = vorn::test::CountGdiObjects();
    for (int i = 0; i < 200; ++i)
    {
        Move(CPoint(200 + 3 * i, 200 + 2 * i));
    }
    bar.PostMessage(WM_KEYDOWN, VK_ESCAPE);
    Press();
    EXPECT_LE(vorn::test::CountGdiObjects(), gdi + 3);
}
