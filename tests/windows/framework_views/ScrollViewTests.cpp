#include "framework/gdi/CBrush.h"
#include "framework/gdi/CClientDC.h"
#include "tests/windows/framework_views/ViewHost.h"

namespace
{

/// A chart of 1000 by 800 units: a red square at (300, 200), 20 units wide.
class ChartView : public CScrollView
{
    DECLARE_DYNCREATE(ChartView)

public:
    static constexpr int kWidth = 1000;
    static constexpr int kHeight = 800;

protected:
    void OnDraw(CDC* dc) override
    {
        const int sign = dc->GetMapMode() == MM_LOENGLISH ? -1 : 1;
        dc->FillSolidRect(CRect(300, sign * 200, 320, sign * 220), RGB(255, 0, 0));
    }
};

IMPLEMENT_DYNCREATE(ChartView, CScrollView)

/// A chart in a frame of 300 by 200 pixels of client area.
class ScrollView : public testing::Test
{
protected:
    ScrollView()
    {
        m_frame = ShowHostFrame(300, 200);
        m_view = new ChartView;
        m_view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 200), m_frame, AFX_IDW_PANE_FIRST,
                       nullptr);
    }
    ~ScrollView() override
    {
        m_frame->DestroyWindow();
    }

    void Scrollable()
    {
        m_view->SetScrollSizes(MM_TEXT, CSize(ChartView::kWidth, ChartView::kHeight), CSize(100, 80), CSize(10, 8));
    }
    void Bar(UINT message, UINT code, UINT position = 0)
    {
        m_view->SendMessage(message, MAKEWPARAM(code, position));
    }
    CPoint At() const
    {
        return m_view->GetScrollPosition();
    }
    SCROLLINFO Info(int bar) const
    {
        SCROLLINFO info{};
        m_view->GetScrollInfo(bar, &info, SIF_ALL);
        return info;
    }
    COLORREF PixelAt(int x, int y)
    {
        m_view->RedrawWindow();
        CClientDC dc(m_view);
        return dc.GetPixel(x, y);
    }

    CFrameWnd* m_frame;
    ChartView* m_view;
};

const int kVerticalBar = ::GetSystemMetrics(SM_CXVSCROLL);
const int kHorizontalBar = ::GetSystemMetrics(SM_CYHSCROLL);

} // namespace

TEST_F(ScrollView, ItHasNoBarsBeforeItKnowsItsSizes)
{
    BOOL horizontal = TRUE;
    BOOL vertical = TRUE;
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_FALSE(horizontal);
    EXPECT_FALSE(vertical);
    EXPECT_FALSE(m_view->OnScrollBy(CSize(10, 10)));
    EXPECT_EQ(CPoint(0, 0), At());
}

TEST_F(ScrollView, BarsTellRangeAndPage)
{
    Scrollable();
    const CSize client = ClientSize(*m_view);
    EXPECT_EQ(CSize(300 - kVerticalBar, 200 - kHorizontalBar), client);
    EXPECT_EQ(999, Info(SB_HORZ).nMax);
    EXPECT_EQ(static_cast<UINT>(client.cx), Info(SB_HORZ).nPage);
    EXPECT_EQ(799, Info(SB_VERT).nMax);
    EXPECT_EQ(static_cast<UINT>(client.cy), Info(SB_VERT).nPage);
    EXPECT_EQ(CSize(1000, 800), m_view->GetTotalSize());
}

TEST_F(ScrollView, OnlyNeededBarsAreShown)
{
    BOOL horizontal = FALSE;
    BOOL vertical = FALSE;
    m_view->SetScrollSizes(MM_TEXT, CSize(300, 200));
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_FALSE(horizontal || vertical) << "it fits exactly";
    m_view->SetScrollSizes(MM_TEXT, CSize(300 - kVerticalBar, 201));
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_FALSE(horizontal);
    EXPECT_TRUE(vertical);
    m_view->SetScrollSizes(MM_TEXT, CSize(300, 201));
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(horizontal) << "the other bar takes the room that it needs";
    EXPECT_TRUE(vertical);
    m_view->SetScrollSizes(MM_TEXT, CSize(301, 100));
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_TRUE(horizontal);
    EXPECT_FALSE(vertical);
    m_view->SetScrollSizes(MM_TEXT, CSize(10, 10));
    m_view->CheckScrollBars(horizontal, vertical);
    EXPECT_FALSE(horizontal || vertical);
}

TEST_F(ScrollView, ArrowsAndPagesMoveByTheirSizes)
{
    Scrollable();
    Bar(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(CPoint(0, 8), At());
    Bar(WM_VSCROLL, SB_PAGEDOWN);
    EXPECT_EQ(CPoint(0, 88), At());
    Bar(WM_HSCROLL, SB_LINERIGHT);
    Bar(WM_HSCROLL, SB_PAGERIGHT);
    EXPECT_EQ(CPoint(110, 88), At());
    Bar(WM_VSCROLL, SB_LINEUP);
    Bar(WM_HSCROLL, SB_PAGELEFT);
    EXPECT_EQ(CPoint(10, 80), At());
    EXPECT_EQ(80, Info(SB_VERT).nPos);
    EXPECT_EQ(10, Info(SB_HORZ).nPos);
}

TEST_F(ScrollView, EndsAreNotPassed)
{
    Scrollable();
    Bar(WM_VSCROLL, SB_LINEUP);
    EXPECT_EQ(CPoint(0, 0), At());
    Bar(WM_VSCROLL, SB_BOTTOM);
    Bar(WM_HSCROLL, SB_RIGHT);
    const CSize client = ClientSize(*m_view);
    const CPoint last(1000 - static_cast<int>(client.cx), 800 - static_cast<int>(client.cy));
    EXPECT_EQ(last, At());
    Bar(WM_VSCROLL, SB_LINEDOWN);
    EXPECT_EQ(last, At());
    EXPECT_FALSE(m_view->OnScrollBy(CSize(5, 5)));
    Bar(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(CPoint(last.x, 0), At());
}

TEST_F(ScrollView, TheThumbIsFollowed)
{
    Scrollable();
    Bar(WM_VSCROLL, SB_THUMBTRACK, 123);
    EXPECT_EQ(CPoint(0, 123), At());
    Bar(WM_HSCROLL, SB_THUMBPOSITION, 77);
    EXPECT_EQ(CPoint(77, 123), At());
    Bar(WM_VSCROLL, SB_ENDSCROLL);
    EXPECT_EQ(CPoint(77, 123), At());
}

TEST_F(ScrollView, AskingDoesNotScroll)
{
    Scrollable();
    EXPECT_TRUE(m_view->OnScrollBy(CSize(0, 10), FALSE));
    EXPECT_TRUE(m_view->OnScroll(MAKEWORD(0xFF, SB_LINEDOWN), 0, FALSE));
    EXPECT_FALSE(m_view->OnScroll(MAKEWORD(SB_LINELEFT, 0xFF), 0, FALSE));
    EXPECT_EQ(CPoint(0, 0), At());
}

TEST_F(ScrollView, KeysScroll)
{
    Scrollable();
    m_view->SendMessage(WM_KEYDOWN, VK_DOWN, 1);
    m_view->SendMessage(WM_KEYDOWN, VK_RIGHT, 1);
    EXPECT_EQ(CPoint(10, 8), At());
    m_view->SendMessage(WM_KEYDOWN, VK_NEXT, 1);
    EXPECT_EQ(CPoint(10, 88), At());
    m_view->SendMessage(WM_KEYDOWN, VK_PRIOR, 1);
    m_view->SendMessage(WM_KEYDOWN, VK_UP, 1);
    m_view->SendMessage(WM_KEYDOWN, VK_LEFT, 1);
    EXPECT_EQ(CPoint(0, 0), At());
    m_view->SendMessage(WM_KEYDOWN, VK_END, 1);
    EXPECT_EQ(1000 - ClientSize(*m_view).cx, At().x);
    m_view->SendMessage(WM_KEYDOWN, VK_HOME, 1);
    EXPECT_EQ(CPoint(0, 0), At());
}

TEST_F(ScrollView, TheWheelScrollsDownAndInSmallSteps)
{
    Scrollable();
    UINT lines = 0;
    ::SystemParametersInfo(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    m_view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -WHEEL_DELTA));
    EXPECT_EQ(CPoint(0, 8 * static_cast<int>(lines)), At());
    m_view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA / 2));
    EXPECT_EQ(CPoint(0, 8 * static_cast<int>(lines)), At()) << "half a notch";
    m_view->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, WHEEL_DELTA / 2));
    EXPECT_EQ(CPoint(0, 0), At());
}

TEST_F(ScrollView, ItDrawsWhatIsScrolledTo)
{
    Scrollable();
    m_view->ScrollToPosition(CPoint(290, 190));
    EXPECT_EQ(RGB(255, 0, 0), PixelAt(12, 12));
    EXPECT_NE(RGB(255, 0, 0), PixelAt(5, 5));
    m_view->ScrollToPosition(CPoint(5000, -40));
    EXPECT_EQ(CPoint(1000 - static_cast<int>(ClientSize(*m_view).cx), 0), At());
}

TEST_F(ScrollView, ChildrenMoveAlong)
{
    Scrollable();
    const HWND child =
        ::CreateWindowA("Static", "", WS_CHILD | WS_VISIBLE, 50, 60, 20, 20, m_view->m_hWnd, nullptr, nullptr, nullptr);
    m_view->ScrollToPosition(CPoint(30, 40));
    EXPECT_EQ(CRect(20, 20, 40, 40), PlaceInParent(child));
}

TEST_F(ScrollView, AGrowingWindowScrollsBack)
{
    Scrollable();
    Bar(WM_VSCROLL, SB_BOTTOM);
    m_view->MoveWindow(0, 0, 300, 700);
    EXPECT_EQ(800 - ClientSize(*m_view).cy, At().y);
    m_view->MoveWindow(0, 0, 1200, 900);
    EXPECT_EQ(CPoint(0, 0), At());
    EXPECT_EQ(CSize(1200, 900), ClientSize(*m_view));
}

TEST_F(ScrollView, PagesAndLinesAreTenthsUnlessTold)
{
    m_view->SetScrollSizes(MM_TEXT, CSize(1000, 800));
    int mode = 0;
    SIZE total{};
    SIZE page{};
    SIZE line{};
    m_view->GetDeviceScrollSizes(mode, total, page, line);
    EXPECT_EQ(MM_TEXT, mode);
    EXPECT_EQ(CSize(1000, 800), CSize(total));
    EXPECT_EQ(CSize(100, 80), CSize(page));
    EXPECT_EQ(CSize(10, 8), CSize(line));
}

TEST_F(ScrollView, UnitsOfPaperAreMapped)
{
    m_view->SetScrollSizes(MM_LOENGLISH, CSize(1000, 800)); // 10 by 8 inches
    int mode = 0;
    SIZE total{};
    SIZE page{};
    SIZE line{};
    m_view->GetDeviceScrollSizes(mode, total, page, line);
    CDC screen;
    screen.CreateCompatibleDC(nullptr);
    screen.SetMapMode(MM_LOENGLISH);
    POINT corner{1000, -800};
    screen.LPtoDP(&corner);
    EXPECT_EQ(corner.x, total.cx);
    EXPECT_EQ(corner.y, total.cy);
    m_view->ScrollToPosition(CPoint(290, -190));
    EXPECT_NEAR(290, At().x, 1);
    EXPECT_NEAR(-190, At().y, 1) << "the axis points up";
    const CPoint device = m_view->GetDeviceScrollPosition();
    EXPECT_GT(device.y, 0);
    POINT square{310, -210};
    screen.LPtoDP(&square);
    EXPECT_EQ(RGB(255, 0, 0), PixelAt(static_cast<int>(square.x - device.x), static_cast<int>(square.y - device.y)));
}

TEST_F(ScrollView, ScaledToFitItShowsAllWithoutBars)
{
    Scrollable();
    m_view->ScrollToPosition(CPoint(100, 100));
    m_view->SetScaleToFitSize(CSize(1000, 800));
    EXPECT_EQ(CSize(300, 200), ClientSize(*m_view));
    EXPECT_EQ(CPoint(0, 0), At());
    EXPECT_EQ(RGB(255, 0, 0), PixelAt(310 * 300 / 1000, 210 * 200 / 800));
    m_view->MoveWindow(0, 0, 600, 400);
    EXPECT_EQ(RGB(255, 0, 0), PixelAt(310 * 600 / 1000, 210 * 400 / 800));
    EXPECT_FALSE(m_view->OnScrollBy(CSize(1, 1)));
}

TEST_F(ScrollView, WhatLiesBeyondTheDrawingIsFilled)
{
    m_view->SetScrollSizes(MM_TEXT, CSize(100, 50));
    m_view->RedrawWindow();
    CClientDC dc(m_view);
    CBrush green(RGB(0, 255, 0));
    m_view->FillOutsideRect(&dc, &green);
    EXPECT_NE(RGB(0, 255, 0), dc.GetPixel(99, 49));
    EXPECT_EQ(RGB(0, 255, 0), dc.GetPixel(100, 49));
    EXPECT_EQ(RGB(0, 255, 0), dc.GetPixel(99, 50));
    EXPECT_EQ(RGB(0, 255, 0), dc.GetPixel(299, 199));
}

TEST_F(ScrollView, ItsFrameIsMadeToFit)
{
    m_frame->SetActiveView(m_view, FALSE);
    m_view->SetScrollSizes(MM_TEXT, CSize(260, 150));
    m_view->ResizeParentToFit();
    EXPECT_EQ(CSize(260, 150), ClientSize(*m_view));
    m_view->SetScrollSizes(MM_TEXT, CSize(400, 310));
    m_view->ResizeParentToFit(TRUE);
    EXPECT_LT(ClientSize(*m_view).cx, 400) << "it may only shrink";
    m_view->ResizeParentToFit(FALSE);
    EXPECT_EQ(CSize(400, 310), ClientSize(*m_view));
}
