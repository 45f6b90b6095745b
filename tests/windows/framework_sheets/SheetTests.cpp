#include "framework/controls/CTabCtrl.h"
#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/framework_sheets/TestSheets.h"

#include <gtest/gtest.h>

#include <memory>

// A sheet's pages and texts, and its modeless life.
namespace
{
class Sheet : public testing::Test
{
protected:
    Sheet()
    {
        m_sheet.AddPage(&m_route);
        m_sheet.AddPage(&m_fuel);
    }
    ~Sheet() override
    {
        if (m_sheet.m_hWnd)
            m_sheet.DestroyWindow();
    }

    Journal m_journal;
    OwnerWindow m_owner;
    NotingPage m_route{"Route", m_journal};
    NotingPage m_fuel{"Fuel", m_journal};
    NotingSheet m_sheet;
};

int HeightOf(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return rect.Height();
}

BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

int WindowsOfThisThread()
{
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&count));
    return count;
}

/// Messages that a sheet's own callback got.
std::vector<UINT>& Callbacks()
{
    static std::vector<UINT> callbacks;
    return callbacks;
}

int CALLBACK NoteCallback(HWND, UINT message, LPARAM)
{
    Callbacks().push_back(message);
    return 0;
}
} // namespace

TEST_F(Sheet, KnowsItsPages)
{
    EXPECT_EQ(m_sheet.GetPageCount(), 2);
    EXPECT_EQ(m_sheet.GetPage(0), &m_route);
    EXPECT_EQ(m_sheet.GetPage(1), &m_fuel);
    EXPECT_EQ(m_sheet.GetPage(-1), nullptr);
    EXPECT_EQ(m_sheet.GetPage(2), nullptr);
    EXPECT_EQ(m_sheet.GetPageIndex(&m_fuel), 1);
    CPropertyPage stranger;
    EXPECT_EQ(m_sheet.GetPageIndex(&stranger), -1);
    EXPECT_EQ(m_sheet.GetActiveIndex(), 0);
    EXPECT_EQ(m_sheet.GetActivePage(), &m_route);
    EXPECT_EQ(m_sheet.GetTabControl(), nullptr);
}

TEST_F(Sheet, IgnoresAPageAddedTwiceAndNone)
{
    m_sheet.AddPage(&m_route);
    m_sheet.AddPage(nullptr);
    EXPECT_EQ(m_sheet.GetPageCount(), 2);
    m_sheet.RemovePage(5);
    m_sheet.RemovePage(static_cast<CPropertyPage*>(nullptr));
    EXPECT_EQ(m_sheet.GetPageCount(), 2);
    m_sheet.RemovePage(&m_route);
    EXPECT_EQ(m_sheet.GetPage(0), &m_fuel);
    EXPECT_EQ(m_route.GetParentSheet(), nullptr);
}

TEST_F(Sheet, OpensOnThePageChosenBefore)
{
    EXPECT_FALSE(m_sheet.SetActivePage(2));
    EXPECT_FALSE(m_sheet.SetActivePage(nullptr));
    EXPECT_TRUE(m_sheet.SetActivePage(&m_fuel));
    EXPECT_EQ(m_sheet.GetActiveIndex(), 1);
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_EQ(m_sheet.GetActivePage(), &m_fuel);
    EXPECT_EQ(m_route.m_hWnd, nullptr);
}

TEST_F(Sheet, AFirstPageThatDoesNotExistIsTheFirst)
{
    m_sheet.m_psh.nStartPage = 9;
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_EQ(m_sheet.GetActivePage(), &m_route);
}

TEST_F(Sheet, TakesAndLosesPagesWhileItIsOpen)
{
    ASSERT_TRUE(m_sheet.Create());
    NotingPage third("Third", m_journal);
    m_sheet.AddPage(&third);
    EXPECT_EQ(m_sheet.GetTabControl()->GetItemCount(), 3);
    EXPECT_STREQ(m_sheet.TabText(2), "Third");
    EXPECT_TRUE(m_sheet.SetActivePage(2));
    EXPECT_EQ(m_sheet.GetActivePage(), &third);
    EXPECT_NE(third.m_hWnd, nullptr);
    m_sheet.RemovePage(1);
    EXPECT_EQ(m_sheet.GetTabControl()->GetItemCount(), 2);
    EXPECT_EQ(m_sheet.GetActivePage(), &third);
    EXPECT_EQ(m_sheet.GetActiveIndex(), 1);
    m_sheet.RemovePage(&third);
    EXPECT_EQ(m_sheet.GetActivePage(), &m_route);
    EXPECT_EQ(third.m_hWnd, nullptr);
    CPropertyPage missing(4711U);
    m_sheet.AddPage(&missing);
    EXPECT_EQ(m_sheet.GetPageCount(), 1) << "its template is missing";
}

TEST_F(Sheet, ShowsItsTitleAndTakesAnother)
{
    NotingSheet sheet("Before");
    sheet.SetTitle("Plan");
    sheet.AddPage(&m_route);
    ASSERT_TRUE(sheet.Create());
    CString title;
    sheet.GetWindowText(title);
    EXPECT_STREQ(title, "Plan");
    sheet.SetTitle("Flight");
    sheet.GetWindowText(title);
    EXPECT_STREQ(title, "Flight");
    sheet.DestroyWindow();
}

TEST_F(Sheet, CanBeConstructedInEachWay)
{
    CPropertySheet byId(IDS_SHEET, &m_owner, 1);
    EXPECT_STREQ(byId.m_psh.pszCaption, "Planning");
    EXPECT_EQ(byId.m_psh.nStartPage, 1u);
    CPropertySheet later;
    later.Construct("Later", &m_owner, 2);
    EXPECT_STREQ(later.m_psh.pszCaption, "Later");
    EXPECT_EQ(later.m_psh.nStartPage, 2u);
    const HBITMAP bitmap = ::CreateBitmap(8, 8, 1, 1, nullptr);
    CPropertySheet decorated("Wizard", &m_owner, 0, bitmap, nullptr, bitmap);
    EXPECT_EQ(decorated.m_psh.hbmWatermark, bitmap);
    EXPECT_EQ(decorated.m_psh.hbmHeader, bitmap);
    const DWORD both = PSH_USEHBMWATERMARK | PSH_USEHBMHEADER;
    EXPECT_EQ(decorated.m_psh.dwFlags & both, both);
    CPropertySheet decoratedById(IDS_SHEET, &m_owner, 0, bitmap);
    EXPECT_EQ(decoratedById.m_psh.dwFlags & both, static_cast<DWORD>(PSH_USEHBMWATERMARK));
    ::DeleteObject(bitmap);
}

TEST_F(Sheet, ItsOwnCallbackIsCalledToo)
{
    Callbacks().clear();
    m_sheet.m_psh.dwFlags |= PSH_USECALLBACK;
    m_sheet.m_psh.pfnCallback = NoteCallback;
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_EQ(Callbacks(), (std::vector<UINT>{PSCB_PRECREATE, PSCB_INITIALIZED}));
}

TEST_F(Sheet, StackedTabsCanBeTurnedOff)
{
    m_sheet.EnableStackedTabs(FALSE);
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_EQ(m_sheet.GetTabControl()->GetStyle() & TCS_MULTILINE, 0u);
}

TEST_F(Sheet, ModelessHasNoButtonsAndIsLower)
{
    int modalHeight = 0;
    RunWith(m_sheet,
            [&]
            {
                modalHeight = HeightOf(m_sheet);
                EXPECT_TRUE(m_sheet.ShowsButton(IDOK));
                EXPECT_FALSE(m_sheet.IsModeless());
                m_sheet.EndDialog(1);
            });
    ASSERT_TRUE(m_sheet.Create(&m_owner));
    EXPECT_TRUE(m_sheet.IsModeless());
    EXPECT_TRUE(IsShown(m_sheet));
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(::GetWindow(m_sheet.m_hWnd, GW_OWNER), m_owner.m_hWnd);
    for (const int id : {IDOK, IDCANCEL, ID_APPLY_NOW, IDHELP})
        EXPECT_FALSE(m_sheet.ShowsButton(id)) << id;
    EXPECT_LT(HeightOf(m_sheet), modalHeight - HeightOf(*m_sheet.GetDlgItem(IDOK)));
    CRect tabs;
    m_sheet.GetTabControl()->GetWindowRect(&tabs);
    m_sheet.ScreenToClient(&tabs);
    CRect client;
    m_sheet.GetClientRect(&client);
    EXPECT_EQ(client.bottom - tabs.bottom, tabs.top);
}

TEST_F(Sheet, ModelessIsDestroyedWhenItIsClosed)
{
    ASSERT_TRUE(m_sheet.Create());
    m_sheet.PostMessage(WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_TRUE(vorn::test::PumpUntil(
        [&]
        {
            return m_sheet.m_hWnd == nullptr;
        }));
    EXPECT_EQ(m_sheet.m_ends, 1);
    ASSERT_TRUE(m_sheet.Create()) << "again";
    m_sheet.DestroyWindow();
    EXPECT_EQ(m_sheet.m_ends, 2);
}

TEST_F(Sheet, EscapeDoesNotCloseAModelessSheetWithoutButtons)
{
    ASSERT_TRUE(m_sheet.Create());
    MSG key{m_route.Edit(), WM_KEYDOWN, VK_ESCAPE, 1, 0, {}};
    m_sheet.PreTranslateMessage(&key);
    vorn::test::PumpWaiting();
    EXPECT_NE(m_sheet.m_hWnd, nullptr);
}

TEST_F(Sheet, ModelessTakesStylesAndStaysHiddenWithoutWsVisible)
{
    ASSERT_TRUE(m_sheet.Create(&m_owner, WS_CHILD | DS_CONTROL, 0));
    EXPECT_FALSE(m_sheet.IsWindowVisible());
    EXPECT_NE(m_sheet.GetStyle() & WS_CHILD, 0u);
    EXPECT_EQ(m_sheet.GetStyle() & WS_CAPTION, 0u);
    EXPECT_EQ(m_sheet.GetParent(), &m_owner);
    m_sheet.DestroyWindow();
    ASSERT_TRUE(m_sheet.Create(&m_owner, WS_CHILD | WS_VISIBLE, WS_EX_CONTROLPARENT));
    EXPECT_TRUE(m_sheet.IsWindowVisible());
    EXPECT_NE(m_sheet.GetExStyle() & WS_EX_CONTROLPARENT, 0u);
}

TEST_F(Sheet, ASecondCreateIsRefused)
{
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_FALSE(m_sheet.Create());
    EXPECT_NE(m_sheet.m_hWnd, nullptr);
}

TEST_F(Sheet, EndedInOnInitDialogIsNotCreated)
{
    m_sheet.m_onInit = [](NotingSheet& sheet)
    {
        sheet.EndDialog(1);
        return TRUE;
    };
    EXPECT_FALSE(m_sheet.Create());
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
    EXPECT_EQ(m_sheet.m_ends, 1);
}

TEST_F(Sheet, RefusedAtItsFirstMessageIsForgotten)
{
    class Refusing : public NotingSheet
    {
    public:
        bool refuses = true;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return refuses && message == WM_NCCREATE ? FALSE : NotingSheet::WindowProc(message, wParam, lParam);
        }
    };
    Refusing sheet;
    sheet.AddPage(&m_route);
    EXPECT_FALSE(sheet.Create());
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_EQ(sheet.m_ends, 1);
    sheet.refuses = false;
    EXPECT_TRUE(sheet.Create());
    sheet.DestroyWindow();
}

TEST_F(Sheet, MayDeleteItselfWhenItsWindowIsGone)
{
    class SelfDeleting : public CPropertySheet
    {
    public:
        using CPropertySheet::CPropertySheet;
        void PostNcDestroy() override
        {
            delete this; // what modeless windows do
        }
    };
    auto* sheet = new SelfDeleting("Planning"); // deletes itself
    sheet->AddPage(&m_route);
    ASSERT_TRUE(sheet->Create());
    sheet->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_route.m_hWnd, nullptr);
    EXPECT_EQ(m_route.GetParentSheet(), nullptr);
}

TEST_F(Sheet, DestructorEndsALivingWindow)
{
    HWND window = nullptr;
    {
        CPropertySheet sheet("Planning");
        sheet.AddPage(&m_route);
        ASSERT_TRUE(sheet.Create());
        window = sheet.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(m_route.m_hWnd, nullptr);
}

TEST_F(Sheet, ManyOpeningsLeaveNothingBehind)
{
    const auto open = [&]
    {
        NotingPage page("Route", m_journal);
        NotingSheet sheet;
        sheet.AddPage(&page);
        sheet.Create();
        sheet.DestroyWindow();
    };
    open();
    const unsigned drawing = vorn::test::CountGdiObjects();
    const int windows = WindowsOfThisThread();
    for (int i = 0; i < 100; ++i)
        open();
    EXPECT_EQ(vorn::test::CountGdiObjects(), drawing);
    EXPECT_EQ(WindowsOfThisThread(), windows);
}
