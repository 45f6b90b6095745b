#include "tests/support/PumpUntil.h"
#include "tests/windows/tooltips/TipTest.h"

#include <vector>

// The box that a click on a tip opens.

using namespace vorn::test;

namespace
{

constexpr char kBoth[] =
    "Deletes the leg.\nThe legs before and behind it are joined, and distances and times are computed anew.";

class TipInfoBox : public TipTest
{
protected:
    void ClickTip()
    {
        m_tips.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
    }
    void OpenBox()
    {
        MouseOut();
        Hover(2);
        ClickTip();
        ASSERT_TRUE(IsShown());
        ASSERT_EQ(kBoth, TipText());
    }
};

std::vector<COLORREF> PixelsOf(CDC& dc, const CRect& area)
{
    std::vector<COLORREF> pixels;
    for (int y = area.top; y < area.bottom; ++y)
    {
        for (int x = area.left; x < area.right; ++x)
        {
            pixels.push_back(dc.GetPixel(x, y));
        }
    }
    return pixels;
}

} // namespace

TEST_F(TipInfoBox, OpensByAClickAtTheSamePlace)
{
    Hover(2);
    EXPECT_EQ("Deletes the leg.", TipText());
    const CRect before = TipPlace();
    ClickTip();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(kBoth, TipText());
    EXPECT_EQ(before.TopLeft(), TipPlace().TopLeft());
    EXPECT_GT(TipPlace().Height(), before.Height());
    EXPECT_LE(TipPlace().Width(), 305) << "wrapped at 300";
}

TEST_F(TipInfoBox, IsAsWideAsItsTitleWhichKeepsTheLinesOfTheTip)
{
    const char* const title = "A title of one line that is wider than three hundred pixels are";
    const std::string text =
        std::string(title) +
        "\rAnd a text below it that is longer than the title in spite of its lighter letters, but not twice as long.";
    m_tips.AddTool(Control(2), text.c_str()); // in place of what it has
    Hover(2);
    const CRect tip = TipPlace();
    ASSERT_GT(tip.Width(), 305);
    ClickTip();
    EXPECT_GE(TipPlace().Width(), tip.Width()) << "bold";
    const int lines = 3; // the title, and two of the text
    EXPECT_EQ(TipPlace().Height(), lines * (tip.Height() - 5) + 5);
}

TEST_F(TipInfoBox, IsWrappedAtTheWidthThatIsSet)
{
    m_tips.SetMaxTipWidth(150);
    OpenBox();
    EXPECT_LE(TipPlace().Width(), 155);
}

TEST_F(TipInfoBox, IsKeptOnTheScreen)
{
    MoveHost(::GetSystemMetrics(SM_CXSCREEN) - 220, ::GetSystemMetrics(SM_CYSCREEN) - 34);
    OpenBox();
    EXPECT_EQ(::GetSystemMetrics(SM_CXSCREEN), TipPlace().right);
    EXPECT_EQ(PlaceOf(2).top, TipPlace().bottom);
}

TEST_F(TipInfoBox, ATipWithoutASecondFieldPops)
{
    Hover(1);
    ClickTip();
    EXPECT_FALSE(IsShown());
}

TEST_F(TipInfoBox, TimersLeaveItAlone)
{
    OpenBox();
    PutCursor({5, 5});
    for (int look = 0; look < 40; ++look)
    {
        Tick(kWaitTimer);
        Tick(kLookTimer);
    }
    MouseOut();
    EXPECT_TRUE(IsShown());
    EXPECT_FALSE(m_tips.KillTimer(kLookTimer)) << "none runs";
}

TEST_F(TipInfoBox, ClosesAtTheNextClickOnIt)
{
    OpenBox();
    ClickTip();
    EXPECT_FALSE(IsShown());
    for (const UINT message : {WM_RBUTTONDOWN, WM_MBUTTONDOWN})
    {
        OpenBox();
        m_tips.SendMessage(message);
        EXPECT_FALSE(IsShown()) << message;
    }
}

TEST_F(TipInfoBox, ClosesAtAClickOrAKeyThatIsRelayed)
{
    for (const UINT message : {WM_LBUTTONDOWN, WM_RBUTTONDOWN, WM_NCLBUTTONDOWN, WM_KEYDOWN, WM_SYSKEYDOWN})
    {
        OpenBox();
        Relay(WM_LBUTTONUP); // the end of the click that opened it
        EXPECT_TRUE(IsShown());
        Relay(message);
        EXPECT_FALSE(IsShown()) << message;
    }
}

TEST_F(TipInfoBox, ClosesAtAClickInAnyWindowOfTheProgram)
{
    CWnd other;
    other.CreateEx(0, AfxRegisterWndClass(0), "other", WS_POPUP | WS_VISIBLE, 20, 500, 100, 80, nullptr, nullptr);
    OpenBox();
    PutCursor({60, 540});
    INPUT press{};
    press.type = INPUT_MOUSE;
    press.mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
    INPUT release = press;
    release.mi.dwFlags = MOUSEEVENTF_LEFTUP;
    ::SendInput(1, &press, sizeof press);
    ::SendInput(1, &release, sizeof release);
    EXPECT_TRUE(PumpUntil(
        [this]
        {
            return !IsShown();
        }));
    other.DestroyWindow();
}

TEST_F(TipInfoBox, ClosesWhenTheFocusChanges)
{
    m_host.SetForegroundWindow();
    ::SetFocus(Control(1)->m_hWnd);
    OpenBox();
    EXPECT_EQ(Control(1)->m_hWnd, ::GetFocus());
    ::SetFocus(Control(2)->m_hWnd);
    EXPECT_FALSE(IsShown());
    OpenBox();
    m_tips.SendMessage(WM_KILLFOCUS);
    EXPECT_FALSE(IsShown());
    OpenBox();
    m_tips.SendMessage(WM_ACTIVATEAPP, FALSE);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipInfoBox, ClosesByPop)
{
    OpenBox();
    m_tips.Pop();
    EXPECT_FALSE(IsShown());
    OpenBox();
    m_tips.Activate(false);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipInfoBox, ClosedItsTipComesBackWhenTheMouseHasLeft)
{
    OpenBox();
    m_tips.Pop();
    MouseTo(MiddleOf(2) + CSize(1, 0));
    Tick(kWaitTimer);
    EXPECT_FALSE(IsShown());
    MouseOut();
    Hover(2);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ("Deletes the leg.", TipText());
}

TEST_F(TipInfoBox, AnotherBoxEndsTheFirst)
{
    OpenBox();
    WatchedTips others;
    ASSERT_TRUE(others.Create(&m_host));
    others.AddTool(Control(3), "a\rb");
    MSG move{};
    move.hwnd = m_host.m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.pt = MiddleOf(3);
    PutCursor(move.pt);
    others.RelayEvent(&move);
    others.SendMessage(WM_TIMER, kWaitTimer);
    others.SendMessage(WM_LBUTTONDOWN);
    EXPECT_TRUE(others.IsWindowVisible());
    EXPECT_FALSE(IsShown());
}

TEST_F(TipInfoBox, ItsToolMayGo)
{
    OpenBox();
    m_tips.DelTool(Control(2));
    EXPECT_FALSE(IsShown());
}

TEST_F(TipInfoBox, ItsToolMayGoWhileItIsPlaced)
{
    Hover(2);
    m_tips.m_whenPlaced = [this]
    {
        m_tips.DelTool(Control(2));
    };
    ClickTip();
    EXPECT_FALSE(IsShown());
}

TEST_F(TipInfoBox, ItsTitleIsBold)
{
    OpenBox();
    LOGFONT font{};
    ToolTipCtrlEx::GetSystemToolTipFont(font);
    font.lfWeight = FW_BOLD;
    CFont bold;
    bold.CreateFontIndirect(&font);
    CRect title(0, 0, 300, 60);
    CWindowDC tip(&m_tips);
    CDC drawn;
    drawn.CreateCompatibleDC(&tip);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&tip, title.right, title.bottom);
    CBitmap* const formerBitmap = drawn.SelectObject(&bitmap);
    CFont* const formerFont = drawn.SelectObject(&bold);
    drawn.FillSolidRect(&title, ::GetSysColor(COLOR_INFOBK));
    drawn.SetTextColor(::GetSysColor(COLOR_INFOTEXT));
    drawn.DrawText("Deletes the leg.", -1, &title, DT_CALCRECT | DT_WORDBREAK);
    drawn.DrawText("Deletes the leg.", -1, &title, DT_WORDBREAK | DT_NOPREFIX);
    EXPECT_EQ(PixelsOf(drawn, title), PixelsOf(tip, title + CPoint(2, 2)));
    drawn.SelectObject(formerFont);
    drawn.SelectObject(formerBitmap);
}
