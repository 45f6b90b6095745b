#include "tests/windows/layout_bars/Bars.h"

#include "framework/gdi/CWindowDC.h"
#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/UserCount.h"
#include "tests/support/WindowPicture.h"

#include <cstdlib>

using namespace vorn::test;

namespace
{

/// A bar docked at the left, sized by real mouse messages.
class BarTracking : public LayoutBars
{
protected:
    BarTracking()
    {
        Make(CBRS_LEFT, TRUE);
    }
    void Make(UINT style, BOOL gripper)
    {
        ASSERT_TRUE(bar.Create(frame, IDD_LIST_BAR, style, kBarId, gripper, 0));
        bar.EnableDocking(CBRS_ALIGN_ANY);
        bar.SetDockedSize(CSize(150, 180));
        bar.SetFloatingSize(CSize(160, 170));
        frame->DockControlBar(&bar);
        PumpWaiting();
    }
    LRESULT HitAt(CPoint screen) const
    {
        return bar.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y));
    }
    /// Presses the button where the hit test says what it means.
    void Press(CPoint screen)
    {
        bar.SendMessage(WM_NCLBUTTONDOWN, static_cast<WPARAM>(HitAt(screen)), MAKELPARAM(screen.x, screen.y));
    }
    LPARAM InBar(CPoint screen) const
    {
        bar.ScreenToClient(&screen);
        return MAKELPARAM(screen.x, screen.y);
    }
    void Move(CPoint screen)
    {
        bar.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, InBar(screen));
    }
    void Up(CPoint screen)
    {
        bar.SendMessage(WM_LBUTTONUP, 0, InBar(screen));
    }
    void Drag(CPoint from, CSize by)
    {
        Press(from);
        Move(from + CSize(static_cast<int>(by.cx / 2), static_cast<int>(by.cy / 2)));
        Move(from + by);
        Up(from + by);
    }
    /// Every line that was drawn was taken away again.
    void ExpectTrackerGone() const
    {
        EXPECT_FALSE(bar.tracks.empty());
        for (const auto& [rect, count] : bar.inverted)
        {
            EXPECT_EQ(0, count % 2);
        }
        EXPECT_FALSE(bar.IsTracking());
        EXPECT_NE(bar.m_hWnd, ::GetCapture());
    }
    CPoint Middle(const CRect& rect) const
    {
        return rect.CenterPoint();
    }

    AidsBar bar;
};

} // namespace

TEST_F(BarTracking, TheEdgeAwayFromTheDockSizes)
{
    CRect place = OnScreen(bar);
    EXPECT_EQ(HTRIGHT, HitAt(CPoint(place.right - 1, place.top + 90)));
    EXPECT_EQ(HTRIGHT, HitAt(CPoint(place.right - 5, place.top + 90)));
    EXPECT_EQ(HTCLIENT, HitAt(CPoint(place.right - 6, place.top + 90)));
    EXPECT_EQ(HTCLIENT, HitAt(CPoint(place.left, place.top + 90)));
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_RIGHT);
    place = OnScreen(bar);
    EXPECT_EQ(HTLEFT, HitAt(CPoint(place.left + 4, place.top + 90)));
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    place = OnScreen(bar);
    EXPECT_EQ(HTBOTTOM, HitAt(CPoint(place.left + 90, place.bottom - 1)));
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    place = OnScreen(bar);
    EXPECT_EQ(HTTOP, HitAt(CPoint(place.left + 90, place.top)));
}

TEST_F(BarTracking, AFloatingBarIsSizedByEverySide)
{
    frame->FloatControlBar(&bar, CPoint(600, 450));
    const CRect place = OnScreen(bar);
    EXPECT_EQ(HTLEFT, HitAt(CPoint(place.left, place.top + 90)));
    EXPECT_EQ(HTRIGHT, HitAt(CPoint(place.right - 1, place.top + 90)));
    EXPECT_EQ(HTTOP, HitAt(CPoint(place.left + 90, place.top)));
    EXPECT_EQ(HTBOTTOM, HitAt(CPoint(place.left + 90, place.bottom - 1)));
    EXPECT_EQ(HTCLIENT, HitAt(CPoint(place.left + 90, place.top + 6))) << "no gripper";
}

TEST_F(BarTracking, TheClientAreaIsWhatTheFrameLeaves)
{
    CRect client;
    bar.GetClientRect(&client);
    EXPECT_EQ(CSize(150 - 5, 180 - 7), client.Size());
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    bar.GetClientRect(&client);
    EXPECT_EQ(CSize(150 - 7, 180 - 5), client.Size());
    frame->FloatControlBar(&bar, CPoint(600, 450));
    bar.GetClientRect(&client);
    EXPECT_EQ(CSize(160 - 10, 170 - 10), client.Size());
}

TEST_F(BarTracking, TheCursorShowsTheDirection)
{
    const auto cursorFor = [this](UINT hit)
    {
        ::SetCursor(nullptr);
        EXPECT_TRUE(bar.SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(bar.m_hWnd), MAKELPARAM(hit, WM_MOUSEMOVE)));
        return ::GetCursor();
    };
    EXPECT_EQ(::LoadCursor(nullptr, IDC_SIZEWE), cursorFor(HTRIGHT));
    EXPECT_EQ(::LoadCursor(nullptr, IDC_SIZEWE), cursorFor(HTLEFT));
    EXPECT_EQ(::LoadCursor(nullptr, IDC_SIZENS), cursorFor(HTTOP));
    EXPECT_EQ(::LoadCursor(nullptr, IDC_SIZENS), cursorFor(HTBOTTOM));
}

TEST_F(BarTracking, ADragGivesTheBarItsSize)
{
    const CRect place = OnScreen(bar);
    Drag(CPoint(place.right - 2, place.top + 90), CSize(40, 13));
    EXPECT_EQ(CSize(190, 180), bar.GetDockedSize());
    EXPECT_EQ(CRect(0, 0, 190, 180), PlaceOf(bar));
    EXPECT_EQ(CSize(160, 170), bar.GetFloatingSize());
    EXPECT_EQ("190,180", Stored("Docked28674")) << "at once";
    EXPECT_EQ(1, bar.writes);
    ExpectTrackerGone();
}

TEST_F(BarTracking, TheTrackerIsALineOfFourPixelsAtTheEdge)
{
    const CRect place = OnScreen(bar);
    const CPoint pressed(place.right - 2, place.top + 90);
    Press(pressed);
    EXPECT_TRUE(bar.IsTracking());
    EXPECT_EQ(bar.m_hWnd, ::GetCapture());
    ASSERT_EQ(1U, bar.tracks.size());
    EXPECT_EQ(CRect(place.right - 4, place.top, place.right, place.bottom), bar.tracks.back());
    Move(pressed + CSize(30, 0));
    EXPECT_EQ(CRect(place.right + 26, place.top, place.right + 30, place.bottom), bar.tracks.back());
    EXPECT_EQ(place, OnScreen(bar)) << "the bar itself waits";
    const std::size_t drawn = bar.tracks.size();
    Move(pressed + CSize(30, 25));
    EXPECT_EQ(drawn, bar.tracks.size()) << "nothing new to draw";
    Up(pressed + CSize(30, 25));
    ExpectTrackerGone();
}

TEST_F(BarTracking, TheTrackerInvertsWhatIsThere)
{
    const CRect place = OnScreen(bar);
    const CPoint pressed(place.right - 2, place.top + 90);
    frame->UpdateWindow();
    const auto pixel = [this]()
    {
        CClientDC dc(frame);
        return dc.GetPixel(200, 90);
    };
    const COLORREF before = pixel();
    Press(pressed);
    Move(pressed + CSize(52, 0));
    EXPECT_EQ(before ^ 0xFFFFFF, pixel());
    bar.StopTracking(FALSE);
    EXPECT_EQ(before, pixel());
}

TEST_F(BarTracking, EachSideSizesTheBarFromItsDock)
{
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_RIGHT);
    CRect place = OnScreen(bar);
    Drag(CPoint(place.left + 2, place.top + 90), CSize(-20, 0));
    EXPECT_EQ(CRect(230, 0, 400, 180), PlaceOf(bar));
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    place = OnScreen(bar);
    Drag(CPoint(place.left + 90, place.top + 2), CSize(0, 30));
    EXPECT_EQ(CSize(170, 150), PlaceOf(bar).Size());
    EXPECT_EQ(300, PlaceOf(bar).bottom);
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    place = OnScreen(bar);
    Drag(CPoint(place.left + 90, place.bottom - 1), CSize(0, 30));
    EXPECT_EQ(CSize(170, 180), PlaceOf(bar).Size());
    EXPECT_EQ(0, PlaceOf(bar).top);
}

TEST_F(BarTracking, AFloatingBarKeepsItsOtherEdges)
{
    frame->FloatControlBar(&bar, CPoint(600, 450));
    Drag(CPoint(758, 520), CSize(25, 0));
    EXPECT_EQ(CRect(600, 450, 785, 620), OnScreen(bar));
    Drag(CPoint(601, 520), CSize(-30, 0));
    EXPECT_EQ(CRect(570, 450, 785, 620), OnScreen(bar));
    Drag(CPoint(650, 451), CSize(0, 15));
    EXPECT_EQ(CRect(570, 465, 785, 620), OnScreen(bar));
    Drag(CPoint(650, 618), CSize(0, 40));
    EXPECT_EQ(CRect(570, 465, 785, 660), OnScreen(bar));
    EXPECT_EQ(CSize(150, 180), bar.GetDockedSize());
    EXPECT_EQ("215,195", Stored("Floating28674"));
    CRect client;
    bar.GetParentFrame()->GetClientRect(&client);
    EXPECT_EQ(CSize(215, 195), client.Size());
    ExpectTrackerGone();
}

TEST_F(BarTracking, ADragIsLimitedByTheLayoutAndTheFrame)
{
    CRect place = OnScreen(bar);
    Drag(CPoint(place.right - 2, place.top + 90), CSize(-140, 0));
    EXPECT_EQ(CSize(LeastClient(bar).cx + 5, 180), PlaceOf(bar).Size()) << "what the layout asks for, and the edge";
    place = OnScreen(bar);
    Drag(CPoint(place.right - 2, place.top + 90), CSize(900, 0));
    EXPECT_EQ(CSize(400, 180), PlaceOf(bar).Size()) << "no further than the frame";
}

TEST_F(BarTracking, EscapeTheOtherButtonAndALostCaptureCancel)
{
    const CRect place = OnScreen(bar);
    const CPoint pressed(place.right - 2, place.top + 90);
    for (int way = 0; way < 5; ++way)
    {
        Press(pressed);
        Move(pressed + CSize(40, 0));
        ASSERT_TRUE(bar.IsTracking()) << way;
        MSG escape{};
        escape.hwnd = bar.m_hWnd;
        escape.message = WM_KEYDOWN;
        escape.wParam = VK_ESCAPE;
        switch (way)
        {
        case 0:
            EXPECT_EQ(bar.m_hWnd, ::GetFocus()) << "the key comes to the bar";
            EXPECT_TRUE(CWnd::WalkPreTranslateTree(frame->m_hWnd, &escape));
            break;
        case 1:
            bar.SendMessage(WM_KEYDOWN, VK_ESCAPE);
            break;
        case 2:
            bar.SendMessage(WM_RBUTTONDOWN, MK_RBUTTON, InBar(pressed));
            break;
        case 3:
            ::ReleaseCapture();
            break;
        default:
            bar.SendMessage(WM_CANCELMODE);
            break;
        }
        ExpectTrackerGone();
        Up(pressed + CSize(40, 0));
        EXPECT_EQ(place, OnScreen(bar)) << way;
        EXPECT_EQ(CSize(150, 180), bar.GetDockedSize()) << way;
    }
    EXPECT_EQ(0, bar.writes);
}

TEST_F(BarTracking, TheFocusComesBack)
{
    ::SetFocus(*bar.GetDlgItem(IDC_FIND));
    const CRect place = OnScreen(bar);
    Drag(CPoint(place.right - 2, place.top + 90), CSize(40, 0));
    EXPECT_EQ(bar.GetDlgItem(IDC_FIND)->m_hWnd, ::GetFocus());
    ::SetFocus(frame->m_hWnd);
    Press(CPoint(OnScreen(bar).right - 2, place.top + 90));
    EXPECT_EQ(bar.m_hWnd, ::GetFocus());
    bar.StopTracking(FALSE);
    EXPECT_EQ(frame->m_hWnd, ::GetFocus());
}

TEST_F(BarTracking, APressWithoutMovementChangesNothing)
{
    const CRect place = OnScreen(bar);
    Drag(CPoint(place.right - 2, place.top + 90), CSize(0, 0));
    EXPECT_EQ(place, OnScreen(bar));
    EXPECT_EQ(0, bar.writes);
}

TEST_F(BarTracking, TheBarMayEndDuringADrag)
{
    const CRect place = OnScreen(bar);
    Press(CPoint(place.right - 2, place.top + 90));
    bar.DestroyWindow();
    EXPECT_FALSE(bar.IsTracking());
    EXPECT_EQ(nullptr, ::GetCapture());
    bar.StartTracking();
    bar.StopTracking(TRUE);
    EXPECT_FALSE(bar.IsTracking()) << "without a window there is nothing to size";
}

TEST_F(BarTracking, ByItselfItTakesTheEdgeAwayFromTheDock)
{
    bar.StartTracking();
    EXPECT_TRUE(bar.IsTracking());
    const CRect place = OnScreen(bar);
    ASSERT_FALSE(bar.tracks.empty());
    EXPECT_EQ(CRect(place.right - 4, place.top, place.right, place.bottom), bar.tracks.back());
    bar.StopTracking(TRUE);
    ExpectTrackerGone();
    EXPECT_EQ(place, OnScreen(bar));
}

TEST_F(BarTracking, ADoubleClickOnTheEdgeBringsTheFirstSizeBack)
{
    const CRect place = OnScreen(bar);
    bar.SendMessage(WM_NCLBUTTONDBLCLK, HTRIGHT, MAKELPARAM(place.right - 2, place.top + 90));
    EXPECT_EQ(bar.m_sizeDefault, bar.GetDockedSize());
    EXPECT_EQ(CSize(160, 170), bar.GetFloatingSize()) << "of the two that in force";
    EXPECT_EQ(bar.m_sizeDefault, PlaceOf(bar).Size());
    EXPECT_EQ(1, bar.writes);
    frame->FloatControlBar(&bar, CPoint(600, 450));
    bar.SetDockedSize(CSize(150, 180));
    bar.SendMessage(WM_NCLBUTTONDBLCLK, HTBOTTOM, MAKELPARAM(650, 618));
    EXPECT_EQ(bar.m_sizeDefault, OnScreen(bar).Size());
    EXPECT_EQ(CSize(150, 180), bar.GetDockedSize());
}

TEST_F(BarTracking, TheGripperIsABandOfSevenPixels)
{
    CRect place = OnScreen(bar);
    EXPECT_EQ(HTCAPTION, HitAt(CPoint(place.left + 60, place.top)));
    EXPECT_EQ(HTCAPTION, HitAt(CPoint(place.left + 60, place.top + 6)));
    EXPECT_EQ(HTCLIENT, HitAt(CPoint(place.left + 60, place.top + 7)));
    PumpWaiting();
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const COLORREF light = ::GetSysColor(COLOR_BTNHIGHLIGHT);
    const COLORREF dark = ::GetSysColor(COLOR_BTNSHADOW);
    CWindowDC dc(&bar);
    EXPECT_EQ(light, dc.GetPixel(60, 0));
    EXPECT_EQ(face, dc.GetPixel(60, 1));
    EXPECT_EQ(dark, dc.GetPixel(60, 2));
    EXPECT_EQ(face, dc.GetPixel(60, 3));
    EXPECT_EQ(light, dc.GetPixel(60, 4));
    EXPECT_EQ(dark, dc.GetPixel(60, 6));
    EXPECT_EQ(face, dc.GetPixel(1, 0)) << "two pixels before its ends";
    EXPECT_EQ(light, dc.GetPixel(2, 1));
    EXPECT_EQ(face, dc.GetPixel(144, 1));
    EXPECT_EQ(dark, dc.GetPixel(142, 1));
}

TEST_F(BarTracking, WithoutGripperThereIsNone)
{
    bar.DestroyWindow();
    Make(CBRS_LEFT, FALSE);
    const CRect place = OnScreen(bar);
    EXPECT_EQ(HTCLIENT, HitAt(CPoint(place.left + 60, place.top)));
    CRect client;
    bar.GetClientRect(&client);
    EXPECT_EQ(180, client.Height());
}

TEST_F(BarTracking, ADoubleClickOnTheGripperTogglesDocking)
{
    const CRect place = OnScreen(bar);
    bar.SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, MAKELPARAM(place.left + 60, place.top + 3));
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(CSize(160, 170), OnScreen(bar).Size());
    bar.GetParentFrame()->SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, 0);
    EXPECT_FALSE(bar.IsFloating());
    EXPECT_EQ(CRect(0, 0, 150, 180), PlaceOf(bar));
}

TEST_F(BarTracking, TheGripperDragsTheBar)
{
    const CRect place = OnScreen(bar);
    const CPoint pressed(place.left + 60, place.top + 3);
    bar.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, InBar(CPoint(700, 500)));
    bar.PostMessage(WM_LBUTTONUP, 0, InBar(CPoint(700, 500)));
    Press(pressed);
    ASSERT_TRUE(bar.IsFloating());
    EXPECT_EQ(CSize(160, 170), OnScreen(bar).Size());
    EXPECT_EQ(700 - 60 * 160 / 150, OnScreen(bar).left);
}

TEST_F(BarTracking, ABarThatMayNotDockStaysWhereItIs)
{
    bar.EnableDocking(0);
    const CRect place = OnScreen(bar);
    bar.SendMessage(WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(place.left + 60, place.top + 3)); // would wait for ever
    bar.SendMessage(WM_NCLBUTTONDBLCLK, HTCAPTION, MAKELPARAM(place.left + 60, place.top + 3));
    EXPECT_EQ(place, OnScreen(bar));
    EXPECT_FALSE(bar.IsFloating());
}

TEST_F(BarTracking, APlainBarOfAFrameIsSizedAcrossIt)
{
    AidsBar plain;
    ASSERT_TRUE(plain.Create(frame, IDD_LIST_BAR, CBRS_BOTTOM, kBarId + 1, TRUE, 0));
    plain.SetDockedSize(CSize(150, 120));
    frame->RecalcLayout();
    EXPECT_EQ(120, PlaceOf(plain).Height());
    const CRect place = OnScreen(plain);
    const LPARAM edge = MAKELPARAM(place.left + 90, place.top + 2);
    EXPECT_EQ(HTTOP, plain.SendMessage(WM_NCHITTEST, 0, edge));
    plain.SendMessage(WM_NCLBUTTONDOWN, HTTOP, edge);
    CPoint up(place.left + 90, place.top - 18);
    plain.ScreenToClient(&up);
    plain.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(up.x, up.y));
    EXPECT_EQ(140, PlaceOf(plain).Height());
    EXPECT_EQ(CSize(150, 140), plain.GetDockedSize()) << "its length is not the frame's";
}

TEST_F(BarTracking, ManyDragsLeaveNothingBehind)
{
    const auto round = [this](int by)
    {
        const CRect place = OnScreen(bar);
        Drag(CPoint(place.right - 2, place.top + 90), CSize(by, 0));
    };
    round(10);
    round(-10);
    const unsigned gdi = vorn::test::CountGdiObjects();
    const unsigned user = vorn::test::CountUserObjects();
    for (int i = 0; i < 100; ++i)
    {
        round(i % 2 ? -10 : 10);
    }
    EXPECT_LE(vorn::test::CountGdiObjects(), gdi + 2);
    EXPECT_LE(vorn::test::CountUserObjects(), user + 2);
}

/// For the eye: with VORN_PICTURES naming a folder, the bar docked and floating as files.
TEST_F(BarTracking, IsWholeOnPictures)
{
    AidsBar below;
    ASSERT_TRUE(below.Create(frame, IDD_LIST_BAR, CBRS_BOTTOM, kBarId + 1, TRUE, 0));
    below.EnableDocking(CBRS_ALIGN_ANY);
    below.SetDockedSize(CSize(300, 110));
    frame->DockControlBar(&below);
    PumpWaiting();
    const char* folder = std::getenv("VORN_PICTURES");
    if (folder)
    {
        EXPECT_TRUE(SaveWindowPicture(frame->m_hWnd, std::string(folder) + "/resizable_docked.bmp"));
    }
    frame->FloatControlBar(&bar, CPoint(600, 450));
    PumpWaiting();
    CRect shared;
    EXPECT_FALSE(shared.IntersectRect(OnScreen(*bar.GetDlgItem(IDC_AIDS)), OnScreen(*bar.GetDlgItem(IDC_SHOW))));
    EXPECT_TRUE(shared.IntersectRect(OnScreen(bar), OnScreen(*bar.GetDlgItem(IDC_SHOW))));
    EXPECT_EQ(OnScreen(*bar.GetDlgItem(IDC_SHOW)), shared) << "no control is cut";
    if (folder)
    {
        EXPECT_TRUE(SaveWindowPicture(bar.GetParentFrame()->m_hWnd, std::string(folder) + "/resizable_floating.bmp"));
    }
}
