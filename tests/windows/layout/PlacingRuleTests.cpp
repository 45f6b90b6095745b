#include "framework/gdi/CClientDC.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/layout/LaidWindow.h"

#include <commctrl.h>

// What the layout does to windows beside giving them their places, and to windows of unusual kinds.
namespace
{

constexpr auto kRow = LayoutMgr::Horizontal;
constexpr auto kColumn = LayoutMgr::Vertical;
constexpr auto kGreedy = LayoutMgr::Greedy;
constexpr auto kFixed = LayoutMgr::FixedBoth;

LRESULT CALLBACK CountMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR which, DWORD_PTR count)
{
    *reinterpret_cast<int*>(count) += message == which ? 1 : 0;
    return ::DefSubclassProc(window, message, wParam, lParam);
}

/// Raises a count with each such message that a window gets from now on.
void Count(HWND window, UINT message, int& count)
{
    ::SetWindowSubclass(window, CountMessage, message, reinterpret_cast<DWORD_PTR>(&count));
}

TEST(LayoutPlacing, AMovedControlIsPaintedAtOnce)
{
    LaidWindow window(300, 200, WS_POPUP | WS_VISIBLE);
    const HWND button = window.AddButton(1);
    const HWND frame = window.Add("Button", 2, WS_VISIBLE | BS_GROUPBOX, {0, 0, 30, 30});
    auto box = window.paneCtrl(2, kColumn, kGreedy, 5, 5, 12, 0);
    box << window.item(1, kGreedy, 0, 0, 0, 0);
    window.CreateRoot(kRow, 5, 0) << box;
    vorn::test::PumpWaiting();
    ::UpdateWindow(window.m_hWnd);
    int ofButton = 0;
    int ofFrame = 0;
    int erased = 0;
    Count(button, WM_PAINT, ofButton);
    Count(frame, WM_PAINT, ofFrame);
    Count(frame, WM_ERASEBKGND, erased);
    window.UpdateLayout(false);
    EXPECT_GE(ofButton, 1) << "before any message is taken from the queue";
    EXPECT_GE(ofFrame, 1);
    EXPECT_GE(erased, 1) << "what was inside the frame is not there any more";
}

TEST(LayoutPlacing, ARedrawErasesTheWholeWindow)
{
    LaidWindow window(300, 200, WS_POPUP | WS_VISIBLE);
    window.AddButton(1);
    window.CreateRoot(kRow, 5, 0) << window.item(1, kGreedy, 0, 0, 0, 0);
    window.UpdateLayout(false);
    vorn::test::PumpWaiting();
    ::UpdateWindow(window.m_hWnd);
    int erased = 0;
    Count(window.m_hWnd, WM_ERASEBKGND, erased);
    window.UpdateLayout(true);
    CRect update;
    ::GetUpdateRect(window.m_hWnd, &update, FALSE);
    EXPECT_EQ(CRect(0, 0, 300, 200), update);
    ::UpdateWindow(window.m_hWnd);
    EXPECT_EQ(1, erased);
}

TEST(LayoutPlacing, OrderAndActivationAreKept)
{
    LaidWindow active(100, 100, WS_POPUP | WS_VISIBLE);
    LaidWindow window(300, 200, WS_POPUP | WS_VISIBLE);
    const HWND first = window.AddButton(1);
    const HWND second = window.AddButton(2);
    ::SetActiveWindow(active.m_hWnd);
    ASSERT_EQ(second, ::GetWindow(first, GW_HWNDNEXT));
    window.CreateRoot(kRow, 5, 0) << window.item(2, kGreedy, 0, 0, 0, 0) << window.item(1, kGreedy, 0, 0, 0, 0);
    window.UpdateLayout(true);
    EXPECT_EQ(second, ::GetWindow(first, GW_HWNDNEXT));
    EXPECT_EQ(active.m_hWnd, ::GetActiveWindow());
}

TEST(LayoutPlacing, AWindowThatHasGoneIsLeftAlone)
{
    LaidWindow window(300, 200);
    window.AddButton(1);
    window.CreateRoot(kRow, 5, 0) << window.item(1, kGreedy, 0, 0, 0, 0);
    window.DestroyWindow();
    window.UpdateLayout(true);
    CRect rect(0, 0, 50, 50);
    window.Layout(rect);
    CClientDC dc(nullptr);
    window.EraseBkgnd(&dc);
    CSize least(7, 8);
    CSize most(9, 10);
    EXPECT_FALSE(window.GetTrackSizes(least, most));
    EXPECT_EQ(CSize(7, 8), least);
    EXPECT_EQ(CRect(0, 0, 0, 0), window.GetRect());
}

TEST(LayoutPlacing, AWindowFromRightToLeftIsLaidOutInItsOwnCoordinates)
{
    LaidWindow window(300, 200);
    window.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    const HWND first = window.AddButton(1);
    const HWND second = window.AddButton(2);
    window.CreateRoot(kRow, 5, 0) << window.item(1, kFixed | LayoutMgr::StretchHeight, 80, 0, 0, 0)
                                  << window.item(2, kGreedy, 0, 0, 0, 0);
    ::MoveWindow(first, 0, 0, 80, 10, FALSE);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{5, 5, 85, 195}), window.PlaceOf(first));
    EXPECT_EQ((Edges{90, 5, 295, 195}), window.PlaceOf(second));
    CRect onScreen[2];
    ::GetWindowRect(first, &onScreen[0]);
    ::GetWindowRect(second, &onScreen[1]);
    EXPECT_LT(onScreen[1].right, onScreen[0].left) << "the first is the right one";
    const int moves = window.MovesOf(second);
    window.UpdateLayout(false);
    EXPECT_EQ(moves, window.MovesOf(second)) << "nothing has changed";
}

TEST(LayoutPlacing, APaneInAControlTakesAWindowToo)
{
    LaidWindow window(200, 100);
    window.Add("Button", 2, WS_VISIBLE | BS_GROUPBOX, {0, 0, 30, 30});
    window.AddButton(1);
    window.SetRootBorders(0, 0);
    auto box = window.paneCtrl(window.GetDlgItem(2), kColumn, kGreedy, 5, 6, 12, 0);
    box << window.item(window.GetDlgItem(1), kGreedy, 0, 0, 0, 0);
    window.CreateRoot(kRow, 0, 0) << box;
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 200, 100}), window.PlaceOf(2));
    EXPECT_EQ((Edges{6, 18, 194, 94}), window.PlaceOf(1));
}

TEST(LayoutPlacing, AComboBoxWithPicturesKeepsItsClosedHeight)
{
    INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_USEREX_CLASSES};
    ASSERT_TRUE(::InitCommonControlsEx(&classes));
    LaidWindow window(200, 160);
    const HWND combo = window.Add(WC_COMBOBOXEXA, 1, WS_VISIBLE | CBS_DROPDOWNLIST, {0, 0, 50, 120});
    const Edges closed = window.PlaceOf(combo);
    window.SetRootBorders(0, 0);
    window.CreateRoot(kColumn, 0, 0) << window.item(1, kGreedy, 0, 0, 0, 0);
    window.UpdateLayout(false);
    EXPECT_EQ(0, window.PlaceOf(combo)[0]);
    EXPECT_EQ(200, window.PlaceOf(combo)[2]);
    EXPECT_EQ(closed[3] - closed[1], window.PlaceOf(combo)[3] - window.PlaceOf(combo)[1]);
}

TEST(LayoutPlacing, AComboBoxOfAnyHeightFillsItsSlot)
{
    LaidWindow window(200, 157);
    const HWND combo = window.Add("ComboBox", 1, WS_VISIBLE | CBS_SIMPLE | CBS_NOINTEGRALHEIGHT, {0, 0, 50, 100});
    window.SetRootBorders(0, 0);
    window.CreateRoot(kColumn, 0, 0) << window.item(1, kGreedy, 0, 0, 0, 0);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 200, 157}), window.PlaceOf(combo));
}

TEST(LayoutPlacing, TheNameOfAClassIsReadInAnyCase)
{
    LaidWindow window(200, 100);
    const HWND combo = window.Add("COMBOBOX", 1, WS_VISIBLE | CBS_DROPDOWN, {0, 0, 50, 120});
    const Edges closed = window.PlaceOf(combo);
    window.SetRootBorders(0, 0);
    window.CreateRoot(kColumn, 0, 0) << window.item(1, kGreedy, 0, 0, 0, 0);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 200, closed[3]}), window.PlaceOf(combo));
}

TEST(LayoutPlacing, ATabPanePlacesAllThatIsShownWhicheverTabIsSelected)
{
    LaidWindow window(200, 100);
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 30, 30), &window, 2));
    tabs.InsertItem(0, "One");
    tabs.InsertItem(1, "Two");
    window.AddButton(1);
    window.AddButton(3);
    window.SetRootBorders(0, 0);
    auto pane = window.paneTab(&tabs, kRow, kGreedy, 0, 0, 0);
    pane << window.item(1, kGreedy, 0, 0, 0, 0) << window.item(3, kGreedy, 0, 0, 0, 0);
    window.CreateRoot(kRow, 0, 0) << pane;
    CRect area(0, 0, 200, 100);
    tabs.AdjustRect(FALSE, &area);
    for (const int selected : {0, 1})
    {
        tabs.SetCurSel(selected);
        window.UpdateLayout(false);
        EXPECT_EQ(area.left, window.PlaceOf(1)[0]);
        EXPECT_EQ(area.left + area.Width() / 2, window.PlaceOf(1)[2]);
        EXPECT_EQ(area.left + area.Width() / 2, window.PlaceOf(3)[0]);
        EXPECT_EQ(area.right, window.PlaceOf(3)[2]);
    }
}

} // namespace
