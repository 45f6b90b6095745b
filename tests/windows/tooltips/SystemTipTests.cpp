#include "config/AppRegMgr.h"
#include "frame/VornCommonApp.h"
#include "framework/include/afxwin.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/PutCursor.h"
#include "tests/support/ScratchKey.h"
#include "tests/windows/tooltips/TipTest.h"
#include "toolkit/tooltips/InfoTip.h"
#include "toolkit/tooltips/TrackingToolTip.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>

// Tips made of the system's tooltips: the one that tells something once, and the one that follows a point.

using namespace vorn::test;

namespace
{

/// A shown window, and a host with settings of its own.
class SystemTips : public testing::Test
{
protected:
    SystemTips()
    {
        VornCommonApp::Inst(&m_app);
        m_host.CreateEx(0, AfxRegisterWndClass(0), "host", WS_POPUP | WS_VISIBLE, 200, 150, 400, 250, nullptr, nullptr);
    }
    ~SystemTips() override
    {
        m_host.DestroyWindow();
        VornCommonApp::FreeInst();
        AppRegMgr::FreeInst();
    }
    static void ShowDialogTips(int value)
    {
        VornCommonApp::Inst()->WriteSettingInt("General", "Show Dialog Tips", value);
    }
    static CRect PlaceOf(const CWnd& window)
    {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }

    ScratchKey m_key{HKEY_CURRENT_USER, "Software\\Vornwald\\windows_tooltips_tests"};
    VornCommonApp m_app;
    CWnd m_host;
};

class InfoTips : public SystemTips
{
protected:
    InfoTips()
    {
        m_tip.Create(&m_host);
    }
    bool IsShown() const
    {
        return m_tip.IsWindowVisible() != FALSE;
    }
    std::string Text()
    {
        char text[600] = "";
        TOOLINFOA info{};
        info.cbSize = TTTOOLINFOA_V1_SIZE;
        info.hwnd = m_host.m_hWnd;
        info.uId = 1;
        info.lpszText = text;
        m_tip.SendMessage(TTM_GETTEXTA, sizeof text, reinterpret_cast<LPARAM>(&info));
        return text;
    }
    void Show(int icon = TTI_INFO, long timeout = 0)
    {
        m_tip.ShowTip(CPoint(300, 200), "Fuel", "The reserve is below 45 minutes.", icon, timeout);
    }

    InfoTip m_tip;
};

/// Notes the titles that it is given.
class TitledTip : public InfoTip
{
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == TTM_SETTITLEA)
        {
            m_icon = static_cast<int>(wParam);
            m_title = reinterpret_cast<const char*>(lParam);
        }
        return InfoTip::WindowProc(message, wParam, lParam);
    }

    int m_icon = -1;
    std::string m_title;
};

class TrackingTips : public SystemTips
{
protected:
    TrackingTips()
    {
        m_tip.Create(&m_host);
    }
    bool IsShown() const
    {
        return m_tip.IsWindowVisible() != FALSE;
    }
    /// The flags of the host's tool.
    UINT Flags() const
    {
        TOOLINFOA info{};
        info.cbSize = TTTOOLINFOA_V1_SIZE;
        info.hwnd = nullptr;
        info.uFlags = TTF_IDISHWND;
        info.uId = reinterpret_cast<UINT_PTR>(m_host.m_hWnd);
        EXPECT_TRUE(m_tip.SendMessage(TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&info)));
        return info.uFlags;
    }

    TrackingToolTip m_tip;
};

CRect WorkArea()
{
    RECT area{};
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

} // namespace

TEST_F(InfoTips, AppearAtTheirPoint)
{
    EXPECT_FALSE(IsShown());
    Show();
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(CPoint(300, 200), PlaceOf(m_tip).TopLeft());
    EXPECT_EQ("The reserve is below 45 minutes.", Text());
    m_tip.HideTip();
    EXPECT_FALSE(IsShown());
}

TEST_F(InfoTips, AreKeptOnTheWorkArea)
{
    const CRect work = WorkArea();
    m_tip.ShowTip(work.BottomRight() - CSize(5, 5), "Fuel", "The reserve is below 45 minutes.", TTI_INFO, 0);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(work.right, PlaceOf(m_tip).right);
    EXPECT_EQ(work.bottom, PlaceOf(m_tip).bottom);
    m_tip.ShowTip(CPoint(-70, -30), "Fuel", "The reserve is below 45 minutes.", TTI_INFO, 0);
    EXPECT_EQ(work.TopLeft(), PlaceOf(m_tip).TopLeft());
}

TEST_F(InfoTips, HaveTheirTitleAboveTheirText)
{
    m_tip.ShowTip(CPoint(300, 200), "", "The reserve.", TTI_NONE, 0);
    const CSize plain = PlaceOf(m_tip).Size();
    m_tip.ShowTip(CPoint(300, 200), "A title wider than the text below it", "The reserve.", TTI_WARNING, 0);
    EXPECT_GT(PlaceOf(m_tip).Width(), plain.cx);
    EXPECT_GT(PlaceOf(m_tip).Height(), plain.cy);
    m_tip.ShowTip(CPoint(300, 200), nullptr, "The reserve.", TTI_NONE, 0);
    EXPECT_EQ(plain, PlaceOf(m_tip).Size());
}

TEST_F(InfoTips, GiveTheSystemTheirTitleAndTheNumberOfTheirIcon)
{
    TitledTip tip;
    ASSERT_TRUE(tip.Create(&m_host));
    for (const int icon : {TTI_INFO, TTI_WARNING, TTI_ERROR, TTI_NONE})
    {
        tip.ShowTip(CPoint(300, 200), "Fuel", "The reserve is below 45 minutes.", icon, 0);
        EXPECT_EQ(icon, tip.m_icon);
        EXPECT_EQ("Fuel", tip.m_title);
    }
    const std::string longest(99, 't');
    tip.ShowTip(CPoint(300, 200), (longest + "u").c_str(), "The reserve is below 45 minutes.", 4711, 0);
    EXPECT_EQ(TTI_NONE, tip.m_icon) << "no such number";
    EXPECT_EQ(longest, tip.m_title);
}

TEST_F(InfoTips, TitlesEndAfter99Characters)
{
    const CString title('t', 99);
    m_tip.ShowTip(CPoint(10, 200), title, "The reserve.", TTI_INFO, 0);
    const CSize size = PlaceOf(m_tip).Size();
    m_tip.ShowTip(CPoint(10, 200), title + "tttt", "The reserve.", TTI_INFO, 0);
    EXPECT_EQ(size, PlaceOf(m_tip).Size());
    EXPECT_GT(size.cx, 300) << "the title is there";
}

TEST_F(InfoTips, TextsAreWrappedAt300Pixels)
{
    EXPECT_EQ(300, m_tip.GetMaxTipWidth());
    m_tip.ShowTip(CPoint(100, 200), "Fuel",
                  "The reserve at the alternate is below 45 minutes, counted with the fuel flow of the cruise "
                  "and the forecast wind at the flight level.",
                  TTI_INFO, 0);
    EXPECT_LT(PlaceOf(m_tip).Width(), 330);
    EXPECT_GT(PlaceOf(m_tip).Height(), 50);
}

TEST_F(InfoTips, ANewOneTakesTheOldOnesPlace)
{
    Show();
    m_tip.ShowTip(CPoint(20, 30), "Wind", "No forecast.", TTI_WARNING, 0);
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(CPoint(20, 30), PlaceOf(m_tip).TopLeft());
    EXPECT_EQ("No forecast.", Text());
}

TEST_F(InfoTips, SwitchedOffBySettingOnlyErrorsAreShown)
{
    ShowDialogTips(0);
    Show(TTI_INFO);
    EXPECT_FALSE(IsShown());
    Show(TTI_WARNING);
    EXPECT_FALSE(IsShown());
    Show(TTI_NONE);
    EXPECT_FALSE(IsShown());
    Show(TTI_ERROR);
    EXPECT_TRUE(IsShown());
    ShowDialogTips(1);
    m_tip.HideTip();
    Show(TTI_INFO);
    EXPECT_TRUE(IsShown()) << "asked each time";
}

TEST_F(InfoTips, WithoutAHostTheyAreShown)
{
    VornCommonApp::FreeInst();
    Show();
    EXPECT_TRUE(IsShown());
}

TEST_F(InfoTips, GoAfterTheirTime)
{
    Show(TTI_INFO, 50);
    EXPECT_TRUE(IsShown());
    EXPECT_TRUE(PumpUntil(
        [this]
        {
            return !IsShown();
        }));
}

TEST_F(InfoTips, StayWithoutATime)
{
    Show(TTI_INFO, 0);
    const DWORD end = ::GetTickCount() + 300;
    EXPECT_FALSE(PumpUntil(
        [this]
        {
            return !IsShown();
        },
        std::chrono::milliseconds(300)));
    EXPECT_GE(::GetTickCount(), end - 20);
}

TEST_F(InfoTips, ANegativeTimeIsTenDoubleClicks)
{
    const UINT before = ::GetDoubleClickTime();
    ::SetDoubleClickTime(30);
    Show(TTI_INFO, -1);
    const DWORD start = ::GetTickCount();
    const bool gone = PumpUntil(
        [this]
        {
            return !IsShown();
        });
    const DWORD time = ::GetTickCount() - start;
    ::SetDoubleClickTime(before);
    EXPECT_TRUE(gone);
    EXPECT_GE(time, 280U);
}

TEST_F(InfoTips, GoAtAClick)
{
    for (const UINT message : {WM_LBUTTONDOWN, WM_RBUTTONDOWN})
    {
        Show();
        m_tip.SendMessage(message);
        EXPECT_FALSE(IsShown()) << message;
    }
}

TEST_F(InfoTips, OtherTimersAreTheSystems)
{
    Show(TTI_INFO, 10000);
    m_tip.SendMessage(WM_TIMER, 4711);
    EXPECT_TRUE(IsShown());
}

TEST_F(InfoTips, UnknownIconsAreNone)
{
    Show(-1);
    EXPECT_TRUE(IsShown());
    Show(0x12345);
    EXPECT_TRUE(IsShown());
    const CSize odd = PlaceOf(m_tip).Size();
    Show(TTI_NONE);
    EXPECT_EQ(odd, PlaceOf(m_tip).Size());
}

TEST_F(InfoTips, WithoutATextNothingIsShown)
{
    Show();
    m_tip.ShowTip(CPoint(300, 200), "Fuel", "", TTI_INFO, 0);
    EXPECT_FALSE(IsShown());
    m_tip.ShowTip(CPoint(300, 200), "Fuel", nullptr, TTI_INFO, 0);
    EXPECT_FALSE(IsShown());
}

TEST_F(InfoTips, WithoutAWindowNothingHappens)
{
    InfoTip none;
    none.ShowTip(CPoint(1, 1), "Fuel", "Text", TTI_ERROR, 100);
    none.HideTip();
    EXPECT_EQ(nullptr, none.m_hWnd);
    EXPECT_FALSE(m_tip.Create(&m_host)) << "it has one";
    EXPECT_TRUE(none.Create(nullptr));
    none.ShowTip(CPoint(1, 1), "Fuel", "Text", TTI_ERROR, 0);
    EXPECT_TRUE(none.IsWindowVisible());
}

TEST_F(InfoTips, AreNotSeenThroughByTheMouse)
{
    Show();
    const CPoint middle = PlaceOf(m_tip).CenterPoint();
    EXPECT_EQ(HTCLIENT, m_tip.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(middle.x, middle.y)));
}

TEST_F(SystemTips, TheSettingIsNotForTheTipsOfControls)
{
    ShowDialogTips(0);
    ToolTipCtrlEx tips;
    ASSERT_TRUE(tips.Create(&m_host));
    tips.AddTool(&m_host, "The route in the chart.");
    MSG move{};
    move.hwnd = m_host.m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.pt = PlaceOf(m_host).CenterPoint();
    PutCursor(PlaceOf(m_host).CenterPoint());
    tips.RelayEvent(&move);
    tips.SendMessage(WM_TIMER, 1);
    EXPECT_TRUE(tips.IsWindowVisible());
}

TEST_F(TrackingTips, StandWhereTheyArePut)
{
    ASSERT_TRUE(m_tip.AddTool(&m_host, true, "N 47 30.2  E 011 05.9"));
    EXPECT_FALSE(m_tip.IsTrackActive());
    m_tip.TrackTip(320, 240);
    m_tip.ActivateTip(&m_host, true);
    EXPECT_TRUE(m_tip.IsTrackActive());
    EXPECT_TRUE(IsShown());
    EXPECT_EQ(CPoint(320, 240), PlaceOf(m_tip).TopLeft());
    m_tip.TrackTip(330, 250);
    EXPECT_EQ(CPoint(330, 250), PlaceOf(m_tip).TopLeft());
    m_tip.ActivateTip(&m_host, false);
    EXPECT_FALSE(m_tip.IsTrackActive());
    EXPECT_FALSE(IsShown());
}

TEST_F(TrackingTips, AreTrackedAndPutExactlyWhereThatIsAskedFor)
{
    ASSERT_TRUE(m_tip.AddTool(&m_host, true, "N 47"));
    EXPECT_EQ(static_cast<UINT>(TTF_TRACK | TTF_ABSOLUTE), Flags() & (TTF_TRACK | TTF_ABSOLUTE));
    ASSERT_TRUE(m_tip.AddTool(&m_host, false, "N 47"));
    EXPECT_EQ(static_cast<UINT>(TTF_TRACK), Flags() & (TTF_TRACK | TTF_ABSOLUTE));
    m_tip.TrackTip(320, 240);
    m_tip.ActivateTip(&m_host, true);
    EXPECT_TRUE(IsShown());
    EXPECT_TRUE(m_tip.IsTrackActive());
}

TEST_F(TrackingTips, NegativePlacesAreLeftOfAndAboveTheScreensOrigin)
{
    m_tip.AddTool(&m_host, true, "N 47");
    m_tip.ActivateTip(&m_host, true);
    m_tip.TrackTip(-20, -7);
    EXPECT_EQ(CPoint(-20, -7), PlaceOf(m_tip).TopLeft());
    m_tip.TrackTip(-1000000, 1000000);
    m_tip.TrackTip(40, 50);
    EXPECT_EQ(CPoint(40, 50), PlaceOf(m_tip).TopLeft());
}

TEST_F(TrackingTips, TextsChange)
{
    m_tip.AddTool(&m_host, true, "N 47");
    m_tip.TrackTip(40, 50);
    m_tip.ActivateTip(&m_host, true);
    const int before = PlaceOf(m_tip).Width();
    m_tip.AddTool(&m_host, true, "N 47 30.2  E 011 05.9");
    m_tip.ActivateTip(&m_host, true);
    CString text;
    m_tip.GetText(text, &m_host);
    EXPECT_STREQ("N 47 30.2  E 011 05.9", text);
    EXPECT_GT(PlaceOf(m_tip).Width(), before);
    EXPECT_EQ(1, m_tip.GetToolCount());
    m_tip.UpdateTipText("S 3", &m_host);
    m_tip.GetText(text, &m_host);
    EXPECT_STREQ("S 3", text);
}

TEST_F(TrackingTips, WindowsThatWereNotAddedAreNotTracked)
{
    CWnd other;
    m_tip.ActivateTip(&m_host, true);
    EXPECT_FALSE(m_tip.IsTrackActive());
    m_tip.ActivateTip(nullptr, true);
    m_tip.ActivateTip(&other, true);
    EXPECT_FALSE(m_tip.IsTrackActive());
    EXPECT_FALSE(m_tip.AddTool(nullptr, true, "x"));
    EXPECT_FALSE(m_tip.AddTool(&other, true, "x"));
    EXPECT_TRUE(m_tip.AddTool(&m_host, true, nullptr));
}

TEST_F(TrackingTips, WithoutAWindowNothingHappens)
{
    TrackingToolTip none;
    EXPECT_FALSE(none.AddTool(&m_host, true, "x"));
    none.ActivateTip(&m_host, true);
    none.TrackTip(1, 2);
    EXPECT_FALSE(none.IsTrackActive());
    m_tip.AddTool(&m_host, true, "x");
    m_tip.ActivateTip(&m_host, true);
    m_tip.DestroyWindow();
    EXPECT_FALSE(m_tip.IsTrackActive());
}
