#include "tests/windows/layout/LaidWindow.h"

#include "tests/support/PumpUntil.h"

// Real windows, moved by their layout.
namespace
{

constexpr auto kPlacedRow = LayoutMgr::Horizontal;
constexpr auto kPlacedColumn = LayoutMgr::Vertical;
constexpr auto kGreedyMode = LayoutMgr::Greedy;
constexpr auto kFixedMode = LayoutMgr::FixedBoth;

TEST(LayoutPlacing, ControlsStandInTheClientAreaLessTheRootBorders)
{
    LaidWindow window(300, 200);
    window.AddButton(1);
    window.AddButton(2);
    window.CreateRoot(kPlacedRow, 5, 0) << window.item(1, kFixedMode, 80, 0, 0, 0)
                                        << window.item(2, kGreedyMode, 0, 0, 0, 0);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{5, 5, 25, 15}), window.PlaceOf(1)); // its slot is 80 wide, the control keeps its size
    EXPECT_EQ((Edges{90, 5, 295, 195}), window.PlaceOf(2));
    window.SetRootBorders(10, 20);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{95, 20, 290, 180}), window.PlaceOf(2));
}

TEST(LayoutPlacing, ASizeOfZeroIsThePresentOne)
{
    LaidWindow window(300, 200);
    window.AddButton(1, {0, 0, 70, 25});
    window.AddButton(2);
    window.SetRootBorders(0, 0);
    window.CreateRoot(kPlacedRow, 0, 0) << window.item(1, kFixedMode, 0, 0, 0, 0)
                                        << window.item(2, kGreedyMode, 0, 0, 0, 0);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 70, 25}), window.PlaceOf(1));
    EXPECT_EQ((Edges{70, 0, 300, 200}), window.PlaceOf(2));
}

TEST(LayoutPlacing, ANegativeMinimumIsThePresentSize)
{
    LaidWindow window(300, 200);
    const HWND button = window.AddButton(1, {0, 0, 70, 25});
    const auto item = window.item(1, kGreedyMode, 0, 0, -1, -1);
    ::MoveWindow(button, 0, 0, 10, 10, FALSE);
    EXPECT_EQ(70, item->getMinWidth());
    EXPECT_EQ(25, item->getMinHeight());
    EXPECT_EQ(-1, item->getMaxWidth());
    EXPECT_EQ(-1, item->getWidth(1000));
}

TEST(LayoutPlacing, HiddenControlsLeaveNoGapAndComeBack)
{
    LaidWindow window(210, 100);
    const HWND first = window.AddButton(1);
    window.AddButton(2);
    window.SetRootBorders(0, 0);
    window.CreateRoot(kPlacedRow, 10, 0) << window.item(1, kGreedyMode, 0, 0, 0, 0)
                                         << window.item(2, kGreedyMode, 0, 0, 0, 0);
    ::ShowWindow(first, SW_HIDE);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 210, 100}), window.PlaceOf(2));
    ::ShowWindow(first, SW_SHOW);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 100, 100}), window.PlaceOf(1));
    EXPECT_EQ((Edges{110, 0, 210, 100}), window.PlaceOf(2));
}

TEST(LayoutPlacing, ControlsOfAWindowThatIsNotShownYetCountAsShown)
{
    LaidWindow window(100, 100);
    window.AddButton(1);
    ASSERT_FALSE(window.IsWindowVisible());
    EXPECT_TRUE(window.item(1, kGreedyMode, 0, 0, 0, 0)->isShown(true));
}

TEST(LayoutPlacing, ControlsThatHaveGoneOrMovedAwayAreLeftOut)
{
    LaidWindow window(200, 100);
    LaidWindow other(200, 100);
    const HWND gone = window.AddButton(1);
    const HWND away = window.AddButton(2);
    window.AddButton(3);
    window.SetRootBorders(0, 0);
    window.CreateRoot(kPlacedRow, 10, 0) << window.item(1, kGreedyMode, 0, 0, 0, 0)
                                         << window.item(2, kGreedyMode, 0, 0, 0, 0)
                                         << window.item(3, kGreedyMode, 0, 0, 0, 0);
    ::DestroyWindow(gone);
    ::SetParent(away, other.m_hWnd);
    const int moves = window.MovesOf(away);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 200, 100}), window.PlaceOf(3));
    EXPECT_EQ(moves, window.MovesOf(away));
}

TEST(LayoutPlacing, AnIdWithoutControlMeasuresLikeASpacer)
{
    LaidWindow window(200, 100);
    const auto item = window.item(99, kGreedyMode, 0, 0, -1, 40);
    EXPECT_EQ(5, item->getMinWidth());
    EXPECT_EQ(40, item->getMinHeight());
    EXPECT_TRUE(item->isShown(true));
    EXPECT_FALSE(item->isShown(false));
    CRect rect(0, 0, 10, 10);
    EXPECT_TRUE(item->placeAt(rect));
}

TEST(LayoutPlacing, AControlIsAlignedByItsPresentSize)
{
    LaidWindow window(200, 100);
    const HWND button = window.AddButton(1, {0, 0, 50, 20});
    window.SetRootBorders(0, 0);
    window.CreateRoot(kPlacedRow, 0, 0) << window.item(1, kFixedMode | LayoutMgr::AlignRight | LayoutMgr::AlignVCenter,
                                                       120, 0, 0, 0);
    ::MoveWindow(button, 0, 0, 40, 30, FALSE);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{80, 35, 120, 65}), window.PlaceOf(1));
}

TEST(LayoutPlacing, ADropDownComboBoxKeepsItsClosedHeight)
{
    LaidWindow window(200, 100);
    const HWND combo = window.Add("ComboBox", 1, WS_VISIBLE | CBS_DROPDOWNLIST, {0, 0, 50, 120});
    const Edges closed = window.PlaceOf(combo);
    ASSERT_LT(closed[3], 60);
    window.SetRootBorders(0, 0);
    window.CreateRoot(kPlacedColumn, 0, 0) << window.item(1, kGreedyMode, 0, 0, 0, 0);
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 200, closed[3]}), window.PlaceOf(combo));
}

TEST(LayoutPlacing, AComboBoxWithAnOpenListTakesTheHeightOfItsFirstPart)
{
    LaidWindow window(200, 160);
    const HWND combo = window.Add("ComboBox", 1, WS_VISIBLE | CBS_SIMPLE, {0, 0, 50, 100});
    const HWND part = ::GetDlgItem(combo, 1000);
    ASSERT_NE(nullptr, part);
    window.SetRootBorders(0, 0);
    window.CreateRoot(kPlacedColumn, 0, 0) << window.item(1, kGreedyMode, 0, 0, 0, 0);

    ::MoveWindow(combo, 0, 0, 200, 160, FALSE);
    RECT bounds{};
    ::GetWindowRect(part, &bounds);
    const int height = static_cast<int>(bounds.bottom - bounds.top);
    ASSERT_LT(height, 160);
    ::MoveWindow(combo, 0, 0, 50, 100, FALSE);

    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 200, height}), window.PlaceOf(combo));
    const int moves = window.MovesOf(combo);
    window.UpdateLayout(false);
    EXPECT_EQ(moves, window.MovesOf(combo));
    EXPECT_EQ((Edges{0, 0, 200, height}), window.PlaceOf(combo));
}

TEST(LayoutPlacing, NothingIsMovedOrPaintedWhenNothingChanges)
{
    LaidWindow window(300, 200, WS_POPUP | WS_VISIBLE);
    const HWND button = window.AddButton(1);
    const HWND frame = window.Add("Button", 2, WS_VISIBLE | BS_GROUPBOX, {0, 0, 30, 30});
    const HWND tab = window.Add(WC_TABCONTROLA, 3, WS_VISIBLE, {0, 0, 30, 30});
    CTabCtrl tabs;
    tabs.Attach(tab);
    auto box = window.paneCtrl(2, kPlacedColumn, kGreedyMode, 5, 5, 12, 0);
    box << window.item(1, kGreedyMode, 0, 0, 0, 0);
    window.CreateRoot(kPlacedRow, 5, 0) << box << window.paneTab(&tabs, kPlacedColumn, kGreedyMode, 0, 0, 0);
    tabs.Detach();
    window.UpdateLayout(false);
    vorn::test::PumpWaiting();
    ::UpdateWindow(window.m_hWnd);
    const int moves[] = {window.MovesOf(button), window.MovesOf(frame), window.MovesOf(tab)};
    for (int i = 0; i < 3; ++i)
    {
        window.UpdateLayout(false);
    }
    EXPECT_EQ(moves[0], window.MovesOf(button));
    EXPECT_EQ(moves[1], window.MovesOf(frame));
    EXPECT_EQ(moves[2], window.MovesOf(tab));
    for (const HWND control : {window.m_hWnd, button, frame, tab})
    {
        EXPECT_FALSE(::GetUpdateRect(control, nullptr, FALSE));
    }
    window.UpdateLayout(true);
    EXPECT_TRUE(::GetUpdateRect(window.m_hWnd, nullptr, FALSE));
}

TEST(LayoutPlacing, OneControlIsMovedOnce)
{
    LaidWindow window(300, 200);
    const HWND button = window.AddButton(1);
    window.CreateRoot(kPlacedRow, 5, 0) << window.item(1, kGreedyMode, 0, 0, 0, 0);
    window.UpdateLayout(false);
    EXPECT_EQ(1, window.MovesOf(button));
    window.Resize(310, 200);
    window.UpdateLayout(false);
    EXPECT_EQ(2, window.MovesOf(button));
}

TEST(LayoutPlacing, AGroupBoxIsMovedWithItsPane)
{
    LaidWindow window(200, 100);
    window.Add("Button", 2, WS_VISIBLE | BS_GROUPBOX, {0, 0, 30, 30});
    window.AddButton(1);
    window.SetRootBorders(0, 0);
    auto box = window.paneCtrl(2, kPlacedColumn, kGreedyMode, 5, 6, 12, 0);
    box << window.item(1, kGreedyMode, 0, 0, 0, 0);
    window.CreateRoot(kPlacedRow, 0, 0) << box;
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 200, 100}), window.PlaceOf(2));
    EXPECT_EQ((Edges{6, 18, 194, 94}), window.PlaceOf(1));
    EXPECT_EQ(5 + 12 + 12, box->getMinHeight());
}

TEST(LayoutPlacing, ATabControlGivesItsDisplayArea)
{
    LaidWindow window(200, 100);
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 30, 30), &window, 2));
    tabs.InsertItem(0, "One");
    window.AddButton(1);
    window.SetRootBorders(0, 0);
    auto pane = window.paneTab(&tabs, kPlacedColumn, kGreedyMode, 0, 0, 0);
    pane << window.item(1, kGreedyMode, 0, 0, 0, 0);
    window.CreateRoot(kPlacedRow, 0, 0) << pane;
    window.UpdateLayout(false);
    CRect area(0, 0, 200, 100);
    tabs.AdjustRect(FALSE, &area);
    EXPECT_EQ((Edges{0, 0, 200, 100}), window.PlaceOf(2));
    EXPECT_EQ(EdgesOf(area), window.PlaceOf(1));
    EXPECT_LT(area.Width(), 200);
    CRect border(0, 0, 0, 0);
    tabs.AdjustRect(FALSE, &border);
    EXPECT_EQ(5 + border.left - border.right, pane->getMinWidth());
    EXPECT_EQ(5 + border.top - border.bottom, pane->getMinHeight());
}

TEST(LayoutPlacing, ATabPaneWithoutTabControlIsAPlainOne)
{
    LaidWindow window(200, 100);
    window.AddButton(1);
    window.SetRootBorders(0, 0);
    auto pane = window.paneTab(nullptr, kPlacedColumn, kGreedyMode, 0, 0, 0);
    pane << window.item(1, kGreedyMode, 0, 0, 0, 0);
    window.CreateRoot(kPlacedRow, 0, 0) << pane;
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{0, 0, 200, 100}), window.PlaceOf(1));
}

TEST(LayoutPlacing, AControlInAnotherParentGoesToTheSamePlaceOfTheWindow)
{
    LaidWindow window(200, 100);
    const HWND holder = window.Add("Static", 7, WS_VISIBLE, {30, 20, 180, 90});
    const HWND inner = window.AddButton(1);
    ::SetParent(inner, holder);
    window.SetRootBorders(0, 0);
    CWnd control;
    control.Attach(inner);
    window.CreateRoot(kPlacedRow, 0, 30) << window.item(&control, kGreedyMode, 0, 0, 0, 0);
    control.Detach();
    window.UpdateLayout(false);
    EXPECT_EQ((Edges{30, 30, 170, 70}), window.PlaceOf(inner));
    const int moves = window.MovesOf(inner);
    window.UpdateLayout(false);
    EXPECT_EQ(moves, window.MovesOf(inner));
}

TEST(LayoutPlacing, SpacersGrowAlongTheirOrientationOnly)
{
    LaidWindow window(100, 100);
    const auto space = window.itemSpace(kPlacedRow);
    EXPECT_EQ(5, space->getMinWidth());
    EXPECT_EQ(-1, space->getMaxWidth());
    EXPECT_EQ(0, space->getMaxHeight());
    const auto vertical = window.itemSpace(kPlacedColumn);
    EXPECT_EQ(0, vertical->getMaxWidth());
    EXPECT_EQ(-1, vertical->getMaxHeight());
    const auto fixed = window.itemSpaceFixed(kPlacedColumn, 12);
    EXPECT_EQ(0, fixed->getMinWidth());
    EXPECT_EQ(12, fixed->getMinHeight());
    EXPECT_EQ(12, fixed->getMaxHeight());
}

TEST(LayoutPlacing, ASpacerIsAsLongAsAControl)
{
    LaidWindow window(200, 200);
    const HWND button = window.AddButton(1, {10, 10, 73, 34});
    CWnd* const same = CWnd::FromHandle(button);
    EXPECT_EQ(63, window.itemSpaceLike(kPlacedRow, 1)->getMinWidth());
    EXPECT_EQ(24, window.itemSpaceLike(kPlacedColumn, same)->getMinHeight());
    EXPECT_EQ(0, window.itemSpaceLike(kPlacedRow, 99)->getMinWidth());
}

TEST(LayoutPlacing, ASpacerIsAsLongAsTheGapBetweenControlsLessTen)
{
    LaidWindow window(300, 300);
    window.AddButton(1, {10, 10, 60, 30});
    window.AddButton(2, {80, 45, 120, 65});
    window.AddButton(3, {40, 20, 90, 60});
    window.AddButton(4, {64, 10, 90, 60});
    EXPECT_EQ(10, window.itemSpaceBetween(kPlacedRow, 1, 2)->getMinWidth());
    EXPECT_EQ(5, window.itemSpaceBetween(kPlacedColumn, 1, 2)->getMinHeight());
    EXPECT_EQ(30, window.itemSpaceBetween(kPlacedRow, 1, 3)->getMinWidth()); // they overlap: near edge to near edge
    EXPECT_EQ(10, window.itemSpaceBetween(kPlacedColumn, 1, 3)->getMinHeight());
    EXPECT_EQ(-6, window.itemSpaceBetween(kPlacedRow, 1, 4)->getMinWidth());
    window.AddButton(5, {60, 30, 90, 60});
    EXPECT_EQ(-10, window.itemSpaceBetween(kPlacedRow, 1, 5)->getMinWidth()) << "they touch";
    EXPECT_EQ(-10, window.itemSpaceBetween(kPlacedColumn, 1, 5)->getMinHeight());
    EXPECT_EQ(0, window.itemSpaceBetween(kPlacedRow, 1, 99)->getMinWidth());
    CWnd* const first = window.GetDlgItem(1);
    CWnd* const second = window.GetDlgItem(2);
    EXPECT_EQ(10, window.itemSpaceBetween(kPlacedRow, first, second)->getMinWidth());
}

TEST(LayoutPlacing, TheLargestOfSeveralControlsIsFound)
{
    LaidWindow window(300, 300);
    window.AddButton(1, {10, 10, 60, 30});
    window.AddButton(2, {0, 0, 20, 70});
    const UINT ids[] = {1, 99, 2};
    EXPECT_EQ(CSize(50, 70), window.GetMaxControlSize(window.m_hWnd, ids, 3));
    EXPECT_EQ(CSize(50, 20), window.GetMaxControlSize(window.m_hWnd, ids, 2));
    EXPECT_EQ(CSize(0, 0), window.GetMaxControlSize(window.m_hWnd, ids, 0));
    EXPECT_EQ(CSize(0, 0), window.GetMaxControlSize(window.m_hWnd, nullptr, 3));
}

} // namespace
