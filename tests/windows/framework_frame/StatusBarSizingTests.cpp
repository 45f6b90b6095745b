#include "tests/windows/framework_frame/TestFrame.h"

#include "tests/support/Canvas.h"
#include "tests/support/PumpUntil.h"

#include <vector>

using namespace vorn::test;

// What of a status bar is painted when the frame is sized: what has changed, and no more.
namespace
{

class SizedStatusBar : public FrameTest
{
protected:
    SizedStatusBar() : frame(ShowFrameWithView()), bar(frame->statusBar)
    {
        bar.Create(frame);
        const UINT panes[] = {ID_SEPARATOR, ID_TEST_PANE, ID_INDICATOR_NUM};
        bar.SetIndicators(panes, 3);
        frame->RecalcLayout();
        PumpWaiting();
    }
    ~SizedStatusBar() override
    {
        frame->DestroyWindow();
    }

    void Size(int dx, int dy = 0)
    {
        CRect outer;
        frame->GetWindowRect(&outer);
        frame->SetWindowPos(nullptr, 0, 0, outer.Width() + dx, outer.Height() + dy,
                            SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    CRect ToPaint() const
    {
        CRect rect(0, 0, 0, 0);
        ::GetUpdateRect(bar.m_hWnd, &rect, FALSE);
        return rect;
    }
    CRect Client() const
    {
        CRect client;
        bar.GetClientRect(&client);
        return client;
    }
    /// The pixels that the bar shows.
    std::vector<COLORREF> Look() const
    {
        const CRect client = Client();
        Canvas canvas(client.Width(), client.Height());
        const HDC dc = ::GetDC(bar.m_hWnd);
        ::BitBlt(canvas.dc.m_hDC, 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
        ::ReleaseDC(bar.m_hWnd, dc);
        ::GdiFlush();
        std::vector<COLORREF> pixels;
        for (int y = 0; y < client.Height(); ++y)
        {
            for (int x = 0; x < client.Width(); ++x)
            {
                pixels.push_back(canvas.At(x, y));
            }
        }
        return pixels;
    }
    /// Whether the bar looks after each of some changes of size as it does when all of it is painted.
    void ExpectAlwaysWhole(const char* what)
    {
        for (const int dx : {1, 40, -1, -7, -30, 25})
        {
            Size(dx);
            bar.UpdateWindow();
            const std::vector<COLORREF> seen = Look();
            bar.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
            EXPECT_TRUE(seen == Look()) << what << ", sized by " << dx;
        }
    }

    TestFrame* frame;
    CStatusBar& bar;
};

} // namespace

TEST_F(SizedStatusBar, ItsMessageIsNotPaintedAgain)
{
    bar.SetPaneText(0, "hello");
    bar.UpdateWindow();
    CRect message;
    bar.GetItemRect(0, &message);
    ASSERT_TRUE(ToPaint().IsRectEmpty());
    Size(1);
    EXPECT_GT(ToPaint().left, message.left + 50);
    EXPECT_LT(ToPaint().left, message.right) << "the old end of the pane";
    EXPECT_EQ(Client().right, ToPaint().right);
    bar.UpdateWindow();
    Size(-20);
    bar.GetItemRect(0, &message);
    EXPECT_GT(ToPaint().left, message.left + 50);
    EXPECT_LT(ToPaint().left, message.right) << "the new end of the pane";
}

TEST_F(SizedStatusBar, ItLooksLikeOnePaintedWhole)
{
    for (const char* text : {"", "hello", "\tin the middle", "\t\tright",
                             "a long message that does not find room in the pane, whatever its width may be here"})
    {
        bar.SetPaneText(0, text);
        ExpectAlwaysWhole(text);
    }
    bar.SetPaneStyle(0, SBPS_STRETCH | SBPS_POPOUT);
    ExpectAlwaysWhole("raised");
    bar.SetPaneStyle(0, SBPS_STRETCH | SBPS_OWNERDRAW);
    ExpectAlwaysWhole("drawn by its owner");
    const HICON icon = ::LoadIconA(nullptr, IDI_ASTERISK);
    bar.SetPaneStyle(0, SBPS_STRETCH);
    bar.SendMessage(SB_SETICON, 0, reinterpret_cast<LPARAM>(icon));
    bar.SetPaneText(0, "with an icon");
    ExpectAlwaysWhole("with an icon");
    bar.SetPaneInfo(0, ID_SEPARATOR, SBPS_NORMAL, 80);
    ExpectAlwaysWhole("no pane that stretches");
    bar.SendMessage(SB_SIMPLE, TRUE);
    bar.SendMessage(SB_SETTEXT, 255, reinterpret_cast<LPARAM>("\tsimple"));
    ExpectAlwaysWhole("simple");
}

TEST_F(SizedStatusBar, APaneWhoseContentGoesByItsWidthIsPaintedWhole)
{
    bar.SetPaneText(0, "\tin the middle");
    bar.UpdateWindow();
    Size(10);
    EXPECT_EQ(0, ToPaint().left);
}

TEST_F(SizedStatusBar, WithoutAPaneThatStretchesItIsPaintedBehindTheLast)
{
    bar.SetPaneInfo(0, ID_SEPARATOR, SBPS_NORMAL, 40);
    bar.UpdateWindow();
    CRect last;
    bar.GetItemRect(2, &last);
    Size(10);
    EXPECT_NEAR(last.right, ToPaint().left, 4);
}

TEST_F(SizedStatusBar, WhatWasToBePaintedAlreadyStaysSo)
{
    bar.UpdateWindow();
    const RECT part = {3, 2, 13, 7};
    bar.InvalidateRect(&part);
    Size(10);
    EXPECT_EQ(3, ToPaint().left);
    bar.Invalidate();
    Size(10);
    EXPECT_EQ(Client(), ToPaint());
}

TEST_F(SizedStatusBar, AnotherHeightPaintsItWhole)
{
    bar.UpdateWindow();
    const CRect client = Client();
    bar.SetWindowPos(nullptr, 0, 0, client.Width(), client.Height() - 5, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Client(), ToPaint());
}
