#include "tests/support/GdiCount.h"
#include "tests/windows/layout_sheets/LaidSheets.h"

// A property sheet that the user can size.
namespace
{

class LayoutSheet : public SheetOfThree
{
protected:
    /// The shown buttons' left edges, in the order of the ids, and that they stand in one row 5 pixels apart.
    void ExpectRow(const std::vector<int>& ids)
    {
        for (std::size_t i = 1; i < ids.size(); ++i)
        {
            EXPECT_EQ(m_sheet.Place(ids[i - 1]).right + 5, m_sheet.Place(ids[i]).left) << ids[i];
            EXPECT_EQ(m_sheet.Place(ids[i - 1]).top, m_sheet.Place(ids[i]).top) << ids[i];
        }
        const CSize client = m_sheet.Client();
        const LONG before = m_sheet.Place(ids.front()).left;
        const LONG behind = client.cx - m_sheet.Place(ids.back()).right;
        EXPECT_LE(before - behind, 1) << "centred";
        EXPECT_LE(behind - before, 1) << "centred";
    }
};

TEST_F(LayoutSheet, HasASizingFrame)
{
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_NE(0U, m_sheet.GetStyle() & WS_THICKFRAME);
    EXPECT_EQ(0U, m_sheet.GetExStyle() & WS_EX_DLGMODALFRAME);
}

TEST_F(LayoutSheet, LaysOutTabsAboveARowOfCentredButtons)
{
    ASSERT_TRUE(m_sheet.Create());
    const CSize client = m_sheet.Client();
    const CRect ok = m_sheet.Place(IDOK);
    EXPECT_EQ(client.cy - 5 - 5, ok.bottom) << "root border and the row's";
    EXPECT_EQ(CRect(5, 5, client.cx - 5, ok.top - 5 - 5), m_sheet.Tabs()) << "the row's border and the spacing";
    ExpectRow({IDOK, IDCANCEL, ID_APPLY_NOW});
}

TEST_F(LayoutSheet, TabsTakeWhatItGrowsAndButtonsFollow)
{
    ASSERT_TRUE(m_sheet.Create());
    const CRect tabs = m_sheet.Tabs();
    const CRect ok = m_sheet.Place(IDOK);
    const CRect apply = m_sheet.Place(ID_APPLY_NOW);
    m_sheet.SizeBy(100, 60);
    EXPECT_EQ(CRect(tabs.left, tabs.top, tabs.right + 100, tabs.bottom + 60), m_sheet.Tabs());
    EXPECT_EQ(ok + CPoint(50, 60), m_sheet.Place(IDOK));
    EXPECT_EQ(apply + CPoint(50, 60), m_sheet.Place(ID_APPLY_NOW));
}

TEST_F(LayoutSheet, PagesFillTheTabsDisplayAreaAndLayThemselvesOut)
{
    ASSERT_TRUE(m_sheet.Create());
    m_sheet.SizeBy(120, 70);
    EXPECT_EQ(m_sheet.PageArea(), m_sheet.PlaceOf(m_route));
    CRect inside = m_route.Client();
    inside.DeflateRect(5, 5);
    EXPECT_EQ(inside, m_route.Edit());
}

TEST_F(LayoutSheet, APageShownLaterIsLaidOutWhenItIsShown)
{
    ASSERT_TRUE(m_sheet.Create());
    m_sheet.SizeBy(120, 70);
    ASSERT_TRUE(m_sheet.SetActivePage(1));
    EXPECT_EQ(m_sheet.PageArea(), m_sheet.PlaceOf(m_fuel));
    CRect inside = m_fuel.Client();
    inside.DeflateRect(5, 5);
    EXPECT_EQ(inside, m_fuel.Edit());
    m_sheet.SizeBy(30, 10);
    ASSERT_TRUE(m_sheet.SetActivePage(0));
    EXPECT_EQ(m_sheet.PageArea(), m_sheet.PlaceOf(m_route)) << "which was elsewhere before";
}

TEST_F(LayoutSheet, APageWithoutLayoutIsMovedThereToo)
{
    ASSERT_TRUE(m_sheet.Create());
    ASSERT_TRUE(m_sheet.SetActivePage(2));
    m_sheet.SizeBy(120, 70);
    EXPECT_EQ(m_sheet.PageArea(), m_sheet.PlaceOf(m_plain));
    ASSERT_TRUE(m_sheet.SetActivePage(0));
    m_sheet.SizeBy(10, 10);
    ASSERT_TRUE(m_sheet.SetActivePage(2));
    EXPECT_EQ(m_sheet.PageArea(), m_sheet.PlaceOf(m_plain));
}

TEST_F(LayoutSheet, APageStaysInItsAreaWhoeverMovesIt)
{
    ASSERT_TRUE(m_sheet.Create());
    m_route.MoveWindow(3, 3, 20, 20);
    EXPECT_EQ(m_sheet.PageArea(), m_sheet.PlaceOf(m_route));
    m_route.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(m_sheet.PageArea(), m_sheet.PlaceOf(m_route));
}

TEST_F(LayoutSheet, HelpTakesPartOnlyWithItsFlag)
{
    ASSERT_TRUE(m_sheet.Create());
    ASSERT_NE(nullptr, m_sheet.Part(IDHELP)) << "it exists all the same";
    ExpectRow({IDOK, IDCANCEL, ID_APPLY_NOW});
    m_sheet.DestroyWindow();
    m_sheet.m_psh.dwFlags |= PSH_HASHELP;
    m_route.m_psp.dwFlags |= PSP_HASHELP;
    ASSERT_TRUE(m_sheet.Create());
    ExpectRow({IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP});
}

TEST_F(LayoutSheet, HelpStaysHiddenWhenOnlyTheSheetHasTheFlag)
{
    m_sheet.m_psh.dwFlags |= PSH_HASHELP;
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_FALSE(::IsWindowEnabled(m_sheet.Part(IDHELP))) << "the shown page has no help";
    EXPECT_LE(m_sheet.Place(ID_APPLY_NOW).right, m_sheet.Client().cx - 5);
}

TEST_F(LayoutSheet, ApplyIsLeftOutWithItsFlag)
{
    m_sheet.m_psh.dwFlags |= PSH_NOAPPLYNOW;
    ASSERT_TRUE(m_sheet.Create());
    ASSERT_NE(nullptr, m_sheet.Part(ID_APPLY_NOW)) << "it exists all the same";
    ExpectRow({IDOK, IDCANCEL});
}

TEST_F(LayoutSheet, ModelessWithoutButtonsHasNoRow)
{
    m_sheet.ModelessWithButtons(false);
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_FALSE(m_sheet.Shows(IDOK));
    const CSize client = m_sheet.Client();
    EXPECT_EQ(CRect(5, 5, client.cx - 5, client.cy - 5), m_sheet.Tabs());
    m_sheet.SizeBy(40, 30);
    EXPECT_EQ(CRect(5, 5, client.cx + 35, client.cy + 25), m_sheet.Tabs());
}

TEST_F(LayoutSheet, ModelessWithButtonsKeepsAndObeysThem)
{
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_TRUE(m_sheet.IsModeless());
    EXPECT_TRUE(m_sheet.Shows(IDOK));
    EXPECT_TRUE(::IsWindowEnabled(m_sheet.Part(IDOK)));
    m_sheet.SendMessage(WM_COMMAND, IDOK);
    EXPECT_EQ(nullptr, m_sheet.m_hWnd);
}

TEST_F(LayoutSheet, CannotBecomeSoSmallThatAPageIsCut)
{
    m_sheet.m_onInit = nullptr;
    ASSERT_TRUE(m_sheet.Create());
    CSize least;
    CSize most;
    ASSERT_TRUE(m_sheet.GetTrackSizes(least, most));
    m_sheet.Size({10, 10});
    EXPECT_EQ(least, m_sheet.Outer());
    EXPECT_EQ(-1, most.cx);
    EXPECT_EQ(-1, most.cy);
    CRect asTheSystemMadeIt;
    OpenSheet<FrameworkSheet, PlainPage>().page.GetWindowRect(&asTheSystemMadeIt);
    CRect smallest;
    m_route.GetWindowRect(&smallest);
    EXPECT_GE(smallest.Width(), asTheSystemMadeIt.Width());
    EXPECT_GE(smallest.Height(), asTheSystemMadeIt.Height());
}

TEST_F(LayoutSheet, FillsTheScreenWhenMaximised)
{
    ASSERT_TRUE(m_sheet.Create());
    m_sheet.ShowWindow(SW_SHOWMAXIMIZED);
    EXPECT_TRUE(m_sheet.IsZoomed());
    EXPECT_GE(m_sheet.Outer().cx, ::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(m_sheet.PageArea(), m_sheet.PlaceOf(m_route));
}

TEST_F(LayoutSheet, MinimisedItKeepsItsLayout)
{
    ASSERT_TRUE(m_sheet.Create());
    m_sheet.SizeBy(50, 50);
    const CRect tabs = m_sheet.Tabs();
    const CRect page = m_sheet.PlaceOf(m_route);
    m_sheet.ShowWindow(SW_SHOWMINIMIZED);
    m_sheet.Resize(0, 0);
    m_sheet.ShowWindow(SW_RESTORE);
    EXPECT_EQ(tabs, m_sheet.Tabs());
    EXPECT_EQ(page, m_sheet.PlaceOf(m_route));
}

TEST_F(LayoutSheet, PagesCanExplainTheirControls)
{
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_TRUE(m_route.IsKindOf(RUNTIME_CLASS(ToolTipPropertyPage)));
    EXPECT_NE(nullptr, m_route.GetToolTipCtrl().m_hWnd);
    m_sheet.DestroyWindow();
    EXPECT_EQ(nullptr, m_route.GetToolTipCtrl().m_hWnd);
}

TEST_F(LayoutSheet, SheetAndPagePaintTheirOwnBackground)
{
    ASSERT_TRUE(m_sheet.Create());
    const HDC dc = ::GetDC(m_sheet.m_hWnd);
    EXPECT_EQ(TRUE, m_sheet.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)));
    EXPECT_EQ(TRUE, m_route.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)));
    ::ReleaseDC(m_sheet.m_hWnd, dc);
}

TEST_F(LayoutSheet, ThatIsPartOfAnotherWindowHasNoFrameOfItsOwn)
{
    CWnd owner;
    ASSERT_TRUE(owner.CreateEx(0, "STATIC", "", WS_POPUP, 0, 0, 600, 400, nullptr, nullptr));
    ASSERT_TRUE(m_sheet.Create(&owner, WS_CHILD | WS_VISIBLE, 0));
    EXPECT_EQ(0U, m_sheet.GetStyle() & WS_THICKFRAME);
    m_sheet.MoveWindow(0, 0, 580, 390);
    EXPECT_EQ(CSize(580, 390), m_sheet.Client());
    EXPECT_EQ(m_sheet.PageArea(), m_sheet.PlaceOf(m_route));
    m_sheet.DestroyWindow();
    owner.DestroyWindow();
}

TEST_F(LayoutSheet, WithoutPagesNothingIsOpened)
{
    PlannerSheet empty;
    EXPECT_FALSE(empty.Create());
    EXPECT_EQ(-1, empty.DoModal());
    empty.Resize(100, 100);
    EXPECT_EQ(CRect(0, 0, 0, 0), empty.GetRect());
}

TEST_F(LayoutSheet, ManyOpeningsLeaveNoHandleBehind)
{
    const auto open = []
    {
        OpenSheet<PlannerSheet>().sheet.SizeBy(10, 10);
    };
    open();
    const unsigned drawing = vorn::test::CountGdiObjects();
    for (int i = 0; i < 50; ++i)
    {
        open();
    }
    EXPECT_EQ(drawing, vorn::test::CountGdiObjects());
}

/// What a derived sheet does with the two places that it may fill.
class OwnPartsSheet : public PlannerSheet
{
public:
    void AddButtons(CPane) override
    {
    }
    void AddMainArea(CPane root) override
    {
        HWND bar = ::CreateWindowExA(0, "STATIC", "Alternates", WS_CHILD | WS_VISIBLE, 0, 0, 60, 17, m_hWnd,
                                     reinterpret_cast<HMENU>(kBelow), nullptr, nullptr);
        root << item(CWnd::FromHandle(bar), FixedHeight, 0, 0, 0, 0);
    }
    static constexpr int kBelow = 2001;
};

TEST_F(LayoutSheet, DerivedOnesFillTheRowOfButtonsAndTheMainArea)
{
    OwnPartsSheet sheet;
    sheet.AddPage(&m_route);
    ASSERT_TRUE(sheet.Create());
    const CSize client = sheet.Client();
    EXPECT_EQ(CRect(5, client.cy - 5 - 17, client.cx - 5, client.cy - 5), sheet.Place(OwnPartsSheet::kBelow));
    EXPECT_EQ(CRect(5, 5, client.cx - 5, client.cy - 5 - 17 - 5), sheet.Tabs()) << "no row of buttons";
    sheet.DestroyWindow();
}

TEST_F(LayoutSheet, PagesLayThemselvesOutInOtherSheetsToo)
{
    OpenSheet<FrameworkSheet> opened;
    PlannerPage& page = opened.page;
    CRect inside = page.Client();
    inside.DeflateRect(5, 5);
    EXPECT_EQ(inside, page.Edit());
    page.MoveWindow(10, 30, 150, 90);
    EXPECT_EQ(CRect(5, 5, 145, 85), page.Edit());
}

TEST_F(LayoutSheet, PagesAreNeverEnlarged)
{
    OpenSheet<FrameworkSheet> opened;
    PlannerPage& page = opened.page;
    page.MoveWindow(10, 30, 30, 12);
    CRect rect;
    page.GetWindowRect(&rect);
    EXPECT_EQ(CSize(30, 12), rect.Size());
}

} // namespace
