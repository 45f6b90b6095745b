#include "tests/windows/tooltips/TipTest.h"

// Size, place and colours of tips.

using namespace vorn::test;

namespace
{

class TipLook : public TipTest
{
protected:
    /// The size of a text in the tips' font, by the system.
    CSize SizeOf(const char* text, UINT flags = 0, int width = 0)
    {
        CWindowDC dc(&m_host);
        const HGDIOBJ font = reinterpret_cast<HGDIOBJ>(m_tips.SendMessage(WM_GETFONT));
        const HGDIOBJ former = ::SelectObject(dc.m_hDC, font);
        RECT rect = {0, 0, width, 0};
        ::DrawTextA(dc.m_hDC, text, -1, &rect, DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS | flags);
        ::SelectObject(dc.m_hDC, former);
        return {static_cast<int>(rect.right), static_cast<int>(rect.bottom)};
    }
    COLORREF Pixel(int x, int y)
    {
        CWindowDC dc(&m_tips);
        return dc.GetPixel(x, y);
    }
    LOGFONT Font()
    {
        LOGFONT font{};
        ::GetObject(reinterpret_cast<HGDIOBJ>(m_tips.SendMessage(WM_GETFONT)), sizeof font, &font);
        return font;
    }
};

int ScreenWidth()
{
    return ::GetSystemMetrics(SM_CXSCREEN);
}

int ScreenHeight()
{
    return ::GetSystemMetrics(SM_CYSCREEN);
}

} // namespace

TEST_F(TipLook, IsAsLargeAsItsTextAndItsMargins)
{
    const CSize text = SizeOf("one");
    EXPECT_EQ(CRect(0, 0, text.cx + 5, text.cy + 5), m_tips.GetBoundsRect("one", 0));
    EXPECT_EQ(CRect(0, 0, text.cx + 12, text.cy + 5), m_tips.GetBoundsRect("one", 7));
    Hover(1);
    EXPECT_EQ(text + CSize(5, 5), TipPlace().Size());
    EXPECT_EQ(CRect(0, 0, 0, 0), m_tips.GetBoundsRect("", 7));
}

TEST_F(TipLook, MarginsCanBeChosen)
{
    CRect margins;
    m_tips.GetMargin(&margins);
    EXPECT_EQ(CRect(2, 2, 3, 3), margins);
    const CRect wide(10, 20, 30, 40);
    m_tips.SetMargin(wide);
    m_tips.SetMargin(nullptr);
    m_tips.GetMargin(nullptr);
    m_tips.GetMargin(&margins);
    EXPECT_EQ(wide, margins);
    const CSize text = SizeOf("one");
    EXPECT_EQ(CRect(0, 0, text.cx + 40, text.cy + 60), m_tips.GetBoundsRect("one", 0));
}

TEST_F(TipLook, MarginsThatLeaveNothingShowNothing)
{
    const CRect inverting(-500, 2, -500, 3);
    m_tips.SetMargin(inverting);
    EXPECT_EQ(CRect(0, 0, 0, 0), m_tips.GetBoundsRect("one", 0));
    Hover(1);
    EXPECT_FALSE(IsShown());
}

TEST_F(TipLook, LineFeedsBreakLines)
{
    const CSize one = SizeOf("and a second one");
    EXPECT_EQ(2 * one.cy + 5, m_tips.GetBoundsRect("A first line\nand a second one", 0).Height());
    EXPECT_EQ(one.cx + 5, m_tips.GetBoundsRect("A first line\nand a second one", 0).Width());
}

TEST_F(TipLook, AmpersandsAreShown)
{
    EXPECT_EQ(SizeOf("a&b").cx + 5, m_tips.GetBoundsRect("a&b", 0).Width());
    EXPECT_GT(m_tips.GetBoundsRect("a&b", 0).Width(), m_tips.GetBoundsRect("ab", 0).Width());
}

TEST_F(TipLook, TabsAreExpanded)
{
    EXPECT_GT(m_tips.GetBoundsRect("a\tb", 0).Width(), m_tips.GetBoundsRect("a    b", 0).Width());
}

TEST_F(TipLook, TextsAreWrappedWhereAWidthIsSet)
{
    const char* text = "Some words that are wrapped at a width";
    EXPECT_EQ(0, m_tips.SetMaxTipWidth(100));
    EXPECT_EQ(100, m_tips.GetMaxTipWidth());
    const CRect bounds = m_tips.GetBoundsRect(text, 0);
    EXPECT_LE(bounds.Width(), 105) << "margins are not counted";
    EXPECT_EQ(SizeOf(text, DT_WORDBREAK, 100) + CSize(5, 5), bounds.Size());
    EXPECT_GE(bounds.Height(), 2 * SizeOf("S").cy + 5);
    EXPECT_EQ(100, m_tips.SetMaxTipWidth(-7));
    EXPECT_EQ(0, m_tips.GetMaxTipWidth());
    EXPECT_EQ(SizeOf(text) + CSize(5, 5), m_tips.GetBoundsRect(text, 0).Size());
}

TEST_F(TipLook, ItGrowsToAWordThatIsWiderThanItsWidth)
{
    m_tips.SetMaxTipWidth(30);
    const CRect bounds = m_tips.GetBoundsRect("a Donaudampfschifffahrt b", 0);
    EXPECT_EQ(SizeOf("Donaudampfschifffahrt").cx + 5, bounds.Width());
    EXPECT_EQ(3 * SizeOf("a").cy + 5, bounds.Height());
}

TEST_F(TipLook, HasAFrameInItsTextColorAroundItsBackground)
{
    EXPECT_EQ(CLR_DEFAULT, m_tips.GetTipBkColor());
    EXPECT_EQ(CLR_DEFAULT, m_tips.GetTipTextColor());
    const CRect margins(6, 6, 6, 6);
    m_tips.SetMargin(margins);
    Hover(1);
    const CSize size = TipPlace().Size();
    EXPECT_EQ(::GetSysColor(COLOR_INFOTEXT), Pixel(0, 0));
    EXPECT_EQ(::GetSysColor(COLOR_INFOTEXT), Pixel(size.cx - 1, size.cy - 1));
    EXPECT_EQ(::GetSysColor(COLOR_INFOTEXT), Pixel(size.cx / 2, 0));
    EXPECT_EQ(::GetSysColor(COLOR_INFOBK), Pixel(2, 2));
    EXPECT_EQ(::GetSysColor(COLOR_INFOBK), Pixel(size.cx - 2, size.cy - 2));
}

TEST_F(TipLook, ColorsCanBeChosenAlsoWhileItIsShown)
{
    const CRect margins(6, 6, 6, 6);
    m_tips.SetMargin(margins);
    Hover(1);
    m_tips.SetTipBkColor(RGB(1, 200, 30));
    m_tips.SetTipTextColor(RGB(200, 0, 90));
    m_tips.UpdateWindow();
    EXPECT_EQ(RGB(1, 200, 30), Pixel(2, 2));
    EXPECT_EQ(RGB(200, 0, 90), Pixel(0, 0));
    EXPECT_EQ(RGB(1, 200, 30), m_tips.GetTipBkColor());
    EXPECT_EQ(RGB(200, 0, 90), m_tips.GetTipTextColor());
}

TEST_F(TipLook, HasTheSystemsFontUntilItIsGivenAnother)
{
    LOGFONT systems{};
    ASSERT_TRUE(ToolTipCtrlEx::GetSystemToolTipFont(systems));
    EXPECT_EQ(systems.lfHeight, Font().lfHeight);
    EXPECT_STREQ(systems.lfFaceName, Font().lfFaceName);
    LOGFONT large = systems;
    large.lfHeight = -31;
    EXPECT_TRUE(m_tips.SetLogFont(&large));
    EXPECT_FALSE(m_tips.SetLogFont(nullptr));
    EXPECT_EQ(-31, Font().lfHeight);
    EXPECT_EQ(SizeOf("one") + CSize(5, 5), m_tips.GetBoundsRect("one", 0).Size());
    EXPECT_GT(SizeOf("one").cy, 30);
    CFont small;
    small.CreatePointFont(60, "Arial");
    m_tips.SetFont(&small);
    LOGFONT described{};
    small.GetLogFont(&described);
    EXPECT_EQ(described.lfHeight, Font().lfHeight);
    m_tips.SetFont(nullptr);
    EXPECT_EQ(systems.lfHeight, Font().lfHeight);
}

TEST_F(TipLook, StandsBelowANearLowerEdgeOfItsTool)
{
    MouseTo(PlaceOf(1).TopLeft() + CSize(10, 12));
    Tick(kWaitTimer);
    EXPECT_EQ(CPoint(PlaceOf(1).left + 10, PlaceOf(1).bottom), TipPlace().TopLeft());
}

TEST_F(TipLook, StandsBesideANearRightEdgeOfItsTool)
{
    MouseTo(CPoint(PlaceOf(1).right - 5, PlaceOf(1).top + 3));
    Tick(kWaitTimer);
    EXPECT_EQ(CPoint(PlaceOf(1).right, PlaceOf(1).top + 3), TipPlace().TopLeft());
}

TEST_F(TipLook, StandsBelowTheCursorInALargeTool)
{
    const CPoint cursor = PlaceOf(3).TopLeft() + CSize(50, 40);
    MouseTo(cursor);
    Tick(kWaitTimer);
    EXPECT_EQ(cursor + CSize(0, 35), TipPlace().TopLeft());
}

TEST_F(TipLook, IsShiftedOntoTheScreenAtItsRightEdge)
{
    MoveHost(ScreenWidth() - 110, 150); // the first button ends where the screen does
    ASSERT_EQ(ScreenWidth(), PlaceOf(1).right);
    m_tips.AddTool(Control(1), "a tip that is wider than what is left of the screen");
    Hover(1);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(ScreenWidth(), TipPlace().right);
}

TEST_F(TipLook, StandsAboveItsToolAtTheScreensLowerEdge)
{
    MoveHost(200, ScreenHeight() - 34);
    ASSERT_EQ(ScreenHeight(), PlaceOf(1).bottom);
    Hover(1);
    EXPECT_EQ(PlaceOf(1).top, TipPlace().bottom);
}

TEST_F(TipLook, WiderThanTheScreenItBeginsAtTheLeft)
{
    m_tips.AddTool(Control(1), static_cast<LPCSTR>(CString('w', 2000)));
    Hover(1);
    EXPECT_EQ(0, TipPlace().left);
    EXPECT_GT(TipPlace().right, ScreenWidth());
}

TEST_F(TipLook, APlaceCanBeAskedWithoutATool)
{
    CPoint point(100, 100);
    CRect bounds(0, 0, 50, 20);
    EXPECT_EQ(CRect(100, 100, 150, 120), m_tips.CalculateInfoBoxRect(point, nullptr, bounds));
    EXPECT_EQ(CRect(100, 100, 150, 120), bounds);
}
