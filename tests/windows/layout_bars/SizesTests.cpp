#include "tests/windows/layout_bars/Bars.h"

#include "tests/support/PumpUntil.h"

using namespace vorn::test;

namespace
{

class BarSizes : public LayoutBars
{
protected:
    void Make(AidsBar& bar, UINT style = CBRS_LEFT, BOOL gripper = FALSE)
    {
        ASSERT_TRUE(bar.Create(frame, IDD_LIST_BAR, style, kBarId, gripper, 0));
        bar.EnableDocking(CBRS_ALIGN_ANY);
        frame->DockControlBar(&bar);
    }
};

} // namespace

TEST_F(BarSizes, TheTemplateGivesTheFirstOnes)
{
    AidsBar bar;
    Make(bar);
    EXPECT_EQ(bar.m_sizeDefault, bar.GetDockedSize());
    EXPECT_EQ(bar.m_sizeDefault, bar.GetFloatingSize());
    EXPECT_EQ(bar.m_sizeDefault, PlaceOf(bar).Size());
    frame->FloatControlBar(&bar, CPoint(600, 450));
    EXPECT_EQ(bar.m_sizeDefault, OnScreen(bar).Size());
}

TEST_F(BarSizes, AreWrittenWhenTheBarEnds)
{
    {
        AidsBar bar;
        Make(bar);
        bar.SetDockedSize(CSize(223, 234));
        bar.SetFloatingSize(CSize(180, 150));
        EXPECT_EQ("", Stored("Docked28674"));
        bar.DestroyWindow();
        EXPECT_EQ(1, bar.writes);
    }
    EXPECT_EQ("223,234", Stored("Docked28674"));
    EXPECT_EQ("180,150", Stored("Floating28674"));
}

TEST_F(BarSizes, AreWrittenWhenTheFrameEnds)
{
    AidsBar bar;
    Make(bar);
    frame->FloatControlBar(&bar, CPoint(600, 450));
    bar.SetFloatingSize(CSize(180, 150));
    Restart();
    EXPECT_EQ(nullptr, bar.m_hWnd);
    EXPECT_EQ("180,150", Stored("Floating28674"));
}

TEST_F(BarSizes, StoredOnesComeBack)
{
    Store("Docked28674", "223,234");
    Store("Floating28674", "180,150");
    AidsBar bar;
    Make(bar);
    EXPECT_EQ(CSize(223, 234), bar.GetDockedSize());
    EXPECT_EQ(CSize(223, 234), PlaceOf(bar).Size());
    frame->FloatControlBar(&bar, CPoint(600, 450));
    EXPECT_EQ(CSize(180, 150), OnScreen(bar).Size());
}

TEST_F(BarSizes, DamagedOnesAreLeftOut)
{
    for (const char* text : {"0,-5", "x", "", "100", "40000,100", "100,100,100", "99999999999999999999,1"})
    {
        Store("Docked28674", text);
        AidsBar bar;
        Make(bar);
        EXPECT_EQ(bar.m_sizeDefault, bar.GetDockedSize()) << text;
    }
}

TEST_F(BarSizes, StoredOnesAreKeptWithinTheLimits)
{
    Store("Docked28674", "1,1");
    Store("Floating28674", "32767,1");
    AidsBar bar;
    Make(bar);
    const CSize least = LeastClient(bar);
    EXPECT_EQ(least + CSize(5, 0), bar.GetDockedSize()) << "a sizing edge and what the layout asks for";
    EXPECT_EQ(32767, bar.GetFloatingSize().cx);
    EXPECT_EQ(least + CSize(5, 0), PlaceOf(bar).Size());
    EXPECT_EQ(least.cy + 10, bar.CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH).cy) << "four edges when it floats";
}

TEST_F(BarSizes, WithoutLayoutThirtyTwoPixelsAreTheLeast)
{
    Store("Docked28674", "1,1");
    AidsBar bar;
    bar.declares = false;
    Make(bar);
    EXPECT_EQ(CSize(32, 32), bar.GetDockedSize());
    EXPECT_EQ(CSize(32, 32), PlaceOf(bar).Size());
}

TEST_F(BarSizes, ABoundedLayoutBoundsTheBar)
{
    Store("Docked28674", "300,300");
    AidsBar bar;
    bar.isBounded = true;
    Make(bar);
    // The layout's largest size is one less than the sum on its own axis.
    EXPECT_EQ(CSize(120 + 10 + 5, 80 + 10), bar.GetDockedSize());
}

TEST_F(BarSizes, SettersTakeWhatASizeCanBe)
{
    AidsBar bar;
    Make(bar);
    bar.SetDockedSize(CSize(-5, 100000));
    EXPECT_EQ(CSize(1, 32767), bar.GetDockedSize());
    bar.SetFloatingSize(CSize(0, 40));
    EXPECT_EQ(CSize(1, 40), bar.GetFloatingSize());
    bar.SetDefaultSize();
    EXPECT_EQ(bar.m_sizeDefault, bar.GetDockedSize());
    EXPECT_EQ(bar.m_sizeDefault, bar.GetFloatingSize());
}

TEST_F(BarSizes, AreValidatedAgainstTrackSizes)
{
    AidsBar bar;
    MINMAXINFO limits{};
    limits.ptMinTrackSize = {32, 40};
    limits.ptMaxTrackSize = {300, 200};
    CSize size(10, 500);
    bar.ValidateSize(&size, limits);
    EXPECT_EQ(CSize(32, 200), size);
    bar.ValidateSize(nullptr, limits);
    limits.ptMaxTrackSize = {5, 5};
    bar.ValidateSize(&size, limits);
    EXPECT_EQ(CSize(32, 40), size) << "the smallest counts";
}

TEST_F(BarSizes, FollowAFont)
{
    AidsBar bar;
    {
        CClientDC dc(frame);
        TEXTMETRIC metrics{};
        dc.GetTextMetrics(&metrics);
        // For a font half as high, and of no width that makes sense.
        bar.SetFontSize(&dc, 0, metrics.tmHeight / 2.0);
    }
    Make(bar);
    EXPECT_EQ(CSize(bar.m_sizeDefault.cx, 2 * bar.m_sizeDefault.cy), bar.GetDockedSize());
    AidsBar other;
    other.SetFontSize(nullptr, 3, 3);
    ASSERT_TRUE(other.Create(frame, IDD_LIST_BAR, CBRS_LEFT, kBarId + 1, FALSE, 0));
    EXPECT_EQ(other.m_sizeDefault, other.GetDockedSize());
}

TEST_F(BarSizes, TheModeChoosesTheSize)
{
    AidsBar bar;
    Make(bar);
    bar.SetDockedSize(CSize(150, 200));
    bar.SetFloatingSize(CSize(160, 170));
    EXPECT_EQ(CSize(150, 200), bar.CalcDynamicLayout(-1, LM_VERTDOCK));
    EXPECT_EQ(CSize(150, 200), bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK));
    EXPECT_EQ(CSize(150, 32767), bar.CalcDynamicLayout(-1, LM_STRETCH));
    EXPECT_EQ(CSize(32767, 200), bar.CalcDynamicLayout(-1, LM_STRETCH | LM_HORZ));
    EXPECT_EQ(CSize(160, 170), bar.CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH));
    EXPECT_EQ(CSize(140, 170), bar.CalcDynamicLayout(140, LM_HORZ));
    EXPECT_EQ(CSize(160, 190), bar.CalcDynamicLayout(190, LM_HORZ | LM_LENGTHY));
    EXPECT_EQ(CSize(160, 170), bar.GetFloatingSize()) << "asked only";
    bar.CalcDynamicLayout(140, LM_HORZ | LM_COMMIT);
    EXPECT_EQ(CSize(140, 170), bar.GetFloatingSize());
}

TEST_F(BarSizes, BarsOfFailedCreationsWriteNothing)
{
    {
        AidsBar bar;
        EXPECT_FALSE(bar.Create(frame, 9999U, CBRS_LEFT, kBarId, FALSE, 0));
        EXPECT_FALSE(bar.Create(frame, "NO_SUCH_BAR", CBRS_LEFT, kBarId, FALSE, 0));
        EXPECT_EQ(0, bar.writes);
        ASSERT_TRUE(bar.Create(frame, "AIDS_BAR", CBRS_LEFT, kBarId, FALSE, CBRS_TOOLTIPS));
        EXPECT_EQ(CBRS_LEFT | CBRS_TOOLTIPS, bar.GetBarStyle());
        EXPECT_FALSE(bar.Create(frame, "AIDS_BAR", CBRS_LEFT, kBarId, FALSE, 0)) << "there is one already";
    }
    EXPECT_NE("", Stored("Docked28674"));
}

TEST_F(BarSizes, KnowsWhetherItLies)
{
    AidsBar bar;
    Make(bar);
    EXPECT_FALSE(bar.IsHorz());
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    EXPECT_TRUE(bar.IsHorz());
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_TRUE(bar.IsHorz());
    frame->FloatControlBar(&bar, CPoint(600, 450));
    EXPECT_FALSE(bar.IsHorz());
}
