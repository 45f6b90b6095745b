#include "apps/planner/resource.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/gallery/GalleryTest.h"

#include <map>

// The planner's windows at every size that a user can give them.
namespace vorn::test
{
namespace
{

using SizedWindow = GalleryWindowTest;

using Places = std::map<HWND, std::string>;

std::string RectText(const CRect& rect)
{
    return std::to_string(rect.left) + ' ' + std::to_string(rect.top) + ' ' + std::to_string(rect.right) + ' ' +
           std::to_string(rect.bottom);
}

Places PlacesOf(HWND window)
{
    Places places;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        CRect rect = WindowRect(child);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&rect), 2);
        places[child] = RectText(rect);
    }
    return places;
}

MINMAXINFO Limits(HWND window)
{
    MINMAXINFO limits{};
    limits.ptMaxTrackSize = {GetSystemMetrics(SM_CXMAXTRACK), GetSystemMetrics(SM_CYMAXTRACK)};
    SendMessage(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    return limits;
}

TEST_P(SizedWindow, HasNoFaultAtAnySize)
{
    const POINT least = Limits(Window()).ptMinTrackSize;
    const int stride = m_open->Pages() > 1 ? 200 : 100;
    for (int page = 0; page < m_open->Pages(); ++page)
    {
        m_open->ShowPage(page);
        EXPECT_EQ(FaultsText(Window()), "") << page;
        for (int step = 0; step <= 400; step += stride)
        {
            SizeTo(Window(), least.x + step, least.y + step * 3 / 4);
            EXPECT_EQ(FaultsText(Window()), "") << page << " by " << step;
            SizeTo(Window(), least.x + step, least.y);
            EXPECT_EQ(FaultsText(Window()), "") << page << " wider by " << step;
            SizeTo(Window(), least.x, least.y + step);
            EXPECT_EQ(FaultsText(Window()), "") << page << " higher by " << step;
        }
    }
}

TEST_P(SizedWindow, StopsAtItsLimits)
{
    const MINMAXINFO limits = Limits(Window());
    SizeTo(Window(), 1, 1);
    EXPECT_EQ(WindowRect(Window()).Size(), CSize(limits.ptMinTrackSize.x, limits.ptMinTrackSize.y));
    SizeTo(Window(), 20000, 20000);
    const CSize largest = WindowRect(Window()).Size();
    EXPECT_EQ(largest.cx, std::max(limits.ptMaxTrackSize.x, limits.ptMinTrackSize.x));
    EXPECT_EQ(largest.cy, std::max(limits.ptMaxTrackSize.y, limits.ptMinTrackSize.y));
    EXPECT_EQ(FaultsText(Window()), "");
}

TEST_P(SizedWindow, ComesBackFromMaximisedAsItWas)
{
    const CRect before = WindowRect(Window());
    const Places places = PlacesOf(Window());
    Window().SendMessage(WM_SYSCOMMAND, SC_MAXIMIZE);
    EXPECT_TRUE(Window().IsZoomed());
    EXPECT_EQ(FaultsText(Window()), "");
    Window().SendMessage(WM_SYSCOMMAND, SC_RESTORE);
    EXPECT_FALSE(Window().IsZoomed());
    EXPECT_EQ(RectText(WindowRect(Window())), RectText(before));
    EXPECT_EQ(PlacesOf(Window()), places);
}

TEST_P(SizedWindow, OpensWhereItWasLeft)
{
    Window().SetWindowPos(nullptr, 60, 70, 700, 560, SWP_NOZORDER);
    const std::string left = RectText(WindowRect(Window()));
    Reopen();
    EXPECT_EQ(RectText(WindowRect(Window())), left);
    EXPECT_EQ(FaultsText(Window()), "");
}

TEST_P(SizedWindow, OpensOnTheScreenAfterItWasLeftBeyondIt)
{
    Window().SetWindowPos(nullptr, 9000, 9000, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    Reopen();
    EXPECT_NE(MonitorFromWindow(Window(), MONITOR_DEFAULTTONULL), nullptr) << RectText(WindowRect(Window()));
}

TEST_P(SizedWindow, OpensNormalAfterItWasClosedMinimised)
{
    Window().SetWindowPos(nullptr, 60, 70, 700, 560, SWP_NOZORDER);
    const std::string normal = RectText(WindowRect(Window()));
    Window().ShowWindow(SW_MINIMIZE);
    ASSERT_TRUE(Window().IsIconic());
    Reopen();
    EXPECT_FALSE(Window().IsIconic());
    EXPECT_EQ(RectText(WindowRect(Window())), normal);
}

TEST_P(SizedWindow, AnotherPageComesUpAtTheSizeThatTheFirstWasGiven)
{
    SizeTo(Window(), 800, 600);
    for (int page = 0; page < m_open->Pages(); ++page)
    {
        m_open->ShowPage(page);
        EXPECT_EQ(WindowRect(Window()).Size(), CSize(800, 600));
        EXPECT_EQ(FaultsText(Window()), "") << page;
    }
}

TEST_P(SizedWindow, OpensMaximisedAfterItWasClosedSo)
{
    Window().ShowWindow(SW_MAXIMIZE);
    Reopen();
    EXPECT_TRUE(Window().IsZoomed());
    EXPECT_EQ(FaultsText(Window()), "");
}

using SizedGoto = GalleryTest;

TEST_F(SizedGoto, KeepsTheChosenPlaceInSightWhenItBecomesLower)
{
    for (int i = 0; i < 40; ++i)
        m_data.places.push_back({"A" + std::to_string(10 + i), "", {47, -120}});
    m_data.plan.departure = "KYKM"; // the last of the list
    const std::unique_ptr<OpenWindow> open = Open(GalleryWindowNamed("Goto"));
    ASSERT_NE(open, nullptr);
    CWnd& box = *open->Window().GetDlgItem(IDC_GOTO_PLACE);
    for (const int height : {700, 500, 1})
    {
        SizeTo(open->Window(), 400, height);
        const auto chosen = box.SendMessage(CB_GETCURSEL);
        ASSERT_EQ(chosen, 45);
        const HWND list = ::FindWindowEx(box, nullptr, "ComboLBox", nullptr);
        RECT place{};
        ::SendMessage(list, LB_GETITEMRECT, static_cast<WPARAM>(chosen), reinterpret_cast<LPARAM>(&place));
        RECT client{};
        ::GetClientRect(list, &client);
        EXPECT_GE(place.top, 0) << height;
        EXPECT_LE(place.bottom, client.bottom) << height;
    }
}

INSTANTIATE_TEST_SUITE_P(Gallery, SizedWindow, testing::ValuesIn(GalleryWindows()), NameOfWindow);

} // namespace
} // namespace vorn::test
