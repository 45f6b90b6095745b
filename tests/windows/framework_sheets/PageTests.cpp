#include "tests/windows/framework_sheets/TestSheets.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

// What a sheet tells its pages, what they answer, and how they come into being.
namespace
{
class SheetPages : public testing::Test
{
protected:
    SheetPages()
    {
        m_sheet.AddPage(&m_route);
        m_sheet.AddPage(&m_fuel);
    }
    ~SheetPages() override
    {
        if (m_sheet.m_hWnd)
            m_sheet.DestroyWindow();
    }
    void Open()
    {
        m_sheet.m_onInit = nullptr;
        ASSERT_TRUE(m_sheet.Create());
    }
    /// What is noted while the sheet, open, gets this command.
    Journal AfterCommand(int id)
    {
        m_journal.clear();
        m_sheet.SendMessage(WM_COMMAND, static_cast<WPARAM>(id));
        return m_journal;
    }

    Journal m_journal;
    NotingPage m_route{"Route", m_journal};
    NotingPage m_fuel{"Fuel", m_journal};
    NotingSheet m_sheet;
};
} // namespace

TEST_F(SheetPages, AreMadeWhenTheyAreFirstShown)
{
    Open();
    EXPECT_EQ(m_journal, (Journal{"Route: init", "Route: active"}));
    EXPECT_EQ(m_fuel.m_hWnd, nullptr);
    m_journal.clear();
    EXPECT_TRUE(m_sheet.SetActivePage(&m_fuel));
    EXPECT_EQ(m_journal, (Journal{"Route: leave", "Fuel: init", "Fuel: active"}));
    EXPECT_NE(m_fuel.m_hWnd, nullptr);
    m_journal.clear();
    EXPECT_TRUE(m_sheet.SetActivePage(0));
    EXPECT_EQ(m_journal, (Journal{"Fuel: leave", "Route: active"}));
}

TEST_F(SheetPages, AreBoundBeforeTheirFirstMessage)
{
    Open();
    const auto& seen = m_route.m_messages;
    const auto at = [&](UINT message)
    {
        return std::find(seen.begin(), seen.end(), message) - seen.begin();
    };
    const auto end = seen.end() - seen.begin();
    EXPECT_LT(at(WM_NCCREATE), at(WM_CREATE));
    EXPECT_LT(at(WM_CREATE), at(WM_INITDIALOG));
    EXPECT_LT(at(WM_INITDIALOG), end);
    EXPECT_EQ(CWnd::FromHandlePermanent(m_route.m_hWnd), &m_route);
    EXPECT_EQ(m_route.GetParent(), &m_sheet);
    EXPECT_EQ(m_route.GetParentSheet(), &m_sheet);
}

TEST_F(SheetPages, AWindowMadeAfterAPageIsNotBoundToIt)
{
    Open();
    CWnd plain;
    ASSERT_TRUE(plain.CreateEx(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr));
    EXPECT_EQ(CWnd::FromHandlePermanent(plain.m_hWnd), &plain);
    const HWND foreign = ::CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(foreign), nullptr);
    ::DestroyWindow(foreign);
    plain.DestroyWindow();
    EXPECT_FALSE(AfxUnhookWindowCreate()) << "no creation is under way";
}

TEST_F(SheetPages, AcceptingLeavesTheShownPageAndAppliesThoseThatWereShown)
{
    Open();
    m_sheet.SetActivePage(1);
    m_sheet.SetActivePage(0);
    EXPECT_EQ(AfterCommand(IDOK), (Journal{"Route: leave", "Route: apply", "Route: ok", "Fuel: apply", "Fuel: ok"}));
}

TEST_F(SheetPages, APageThatWasNeverShownIsNotApplied)
{
    Open();
    EXPECT_EQ(AfterCommand(IDOK), (Journal{"Route: leave", "Route: apply", "Route: ok"}));
}

TEST_F(SheetPages, APageThatIsNotLeftKeepsTheSheetOpen)
{
    Open();
    m_route.m_releases = false;
    EXPECT_EQ(AfterCommand(IDOK), (Journal{"Route: leave"}));
    ASSERT_NE(m_sheet.m_hWnd, nullptr);
    m_sheet.SetActivePage(1);
    EXPECT_EQ(m_sheet.GetActivePage(), &m_route);
}

TEST_F(SheetPages, APageThatDoesNotApplyKeepsTheSheetOpen)
{
    Open();
    m_route.m_applies = false;
    m_journal.clear();
    AfterCommand(IDOK);
    EXPECT_EQ(m_journal[0], "Route: leave");
    EXPECT_EQ(m_journal[1], "Route: apply");
    EXPECT_NE(m_sheet.m_hWnd, nullptr);
    m_route.m_applies = true;
    AfterCommand(IDOK);
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
}

TEST_F(SheetPages, CancellingAsksTheShownPageAndResetsThem)
{
    Open();
    m_route.m_mayBeCancelled = false;
    EXPECT_EQ(AfterCommand(IDCANCEL), (Journal{"Route: may cancel"}));
    ASSERT_NE(m_sheet.m_hWnd, nullptr);
    m_route.m_mayBeCancelled = true;
    EXPECT_EQ(AfterCommand(IDCANCEL), (Journal{"Route: may cancel", "Route: reset", "Route: cancel"}));
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
}

TEST_F(SheetPages, TheCloseBoxAsksOnce)
{
    Open();
    m_route.m_mayBeCancelled = false;
    m_journal.clear();
    m_sheet.SendMessage(WM_SYSCOMMAND, SC_CLOSE);
    EXPECT_EQ(m_journal, (Journal{"Route: may cancel"}));
}

TEST_F(SheetPages, APageThatDoesNotAcceptToBeShownIsPassedOver)
{
    m_route.m_accepts = false;
    Open();
    EXPECT_EQ(m_sheet.GetActivePage(), &m_fuel);
}

TEST_F(SheetPages, ChangesEnableApplyAndApplyingDisablesItAgain)
{
    BOOL first = TRUE;
    BOOL changed = FALSE;
    BOOL unchanged = TRUE;
    BOOL applied = TRUE;
    RunWith(m_sheet,
            [&]
            {
                const HWND apply = m_sheet.Button(ID_APPLY_NOW);
                first = ::IsWindowEnabled(apply);
                m_route.SetModified();
                changed = ::IsWindowEnabled(apply);
                m_route.SetModified(FALSE);
                unchanged = ::IsWindowEnabled(apply);
                m_route.SetModified(TRUE);
                AfterCommand(ID_APPLY_NOW);
                applied = ::IsWindowEnabled(apply);
                EXPECT_NE(m_sheet.m_hWnd, nullptr);
                m_sheet.EndDialog(1);
            });
    EXPECT_FALSE(first);
    EXPECT_TRUE(changed);
    EXPECT_FALSE(unchanged);
    EXPECT_FALSE(applied);
    ASSERT_GE(m_journal.size(), 3u);
    EXPECT_EQ(m_journal[0], "Route: leave");
    EXPECT_EQ(m_journal[1], "Route: apply");
    EXPECT_EQ(m_journal[2], "Route: ok");
}

TEST_F(SheetPages, AnIrrevocableChangeTurnsOkIntoClose)
{
    BOOL cancel = TRUE;
    CString before;
    CString after;
    RunWith(m_sheet,
            [&]
            {
                m_sheet.GetDlgItemText(IDOK, before);
                m_route.CancelToClose();
                cancel = ::IsWindowEnabled(m_sheet.Button(IDCANCEL));
                m_sheet.GetDlgItemText(IDOK, after);
                m_sheet.EndDialog(1);
            });
    EXPECT_FALSE(cancel);
    EXPECT_STRNE(after, before);
}

TEST_F(SheetPages, DataIsExchangedWhenAPageIsMadeAndWhenItIsLeft)
{
    m_route.m_text = "EDDF";
    Open();
    CString shown;
    m_route.GetDlgItemText(IDC_PAGE_EDIT, shown);
    EXPECT_STREQ(shown, "EDDF");
    m_route.SetDlgItemText(IDC_PAGE_EDIT, "LOWI");
    m_sheet.SetActivePage(1);
    EXPECT_STREQ(m_route.m_text, "LOWI");
}

TEST_F(SheetPages, AQueryGoesToTheOthersUntilOneAnswers)
{
    Open();
    m_sheet.SetActivePage(1);
    EXPECT_EQ(m_route.QuerySiblings(20, 3), 0);
    m_fuel.m_sibling = 100;
    EXPECT_EQ(m_route.QuerySiblings(20, 3), 123);
}

TEST_F(SheetPages, WithoutAWindowNothingCanBeAsked)
{
    EXPECT_EQ(m_route.QuerySiblings(1, 2), 0);
    m_route.SetModified();
    m_route.CancelToClose();
    CPropertyPage alone;
    alone.EndDialog(1);
    EXPECT_EQ(alone.GetParentSheet(), nullptr);
}

TEST_F(SheetPages, AreForgottenBySheetsWhenTheyEnd)
{
    {
        NotingPage third("Third", m_journal);
        m_sheet.AddPage(&third);
        EXPECT_EQ(m_sheet.GetPageCount(), 3);
    }
    EXPECT_EQ(m_sheet.GetPageCount(), 2);
    Open();
    auto fourth = std::make_unique<NotingPage>("Fourth", m_journal);
    m_sheet.AddPage(fourth.get());
    EXPECT_TRUE(m_sheet.SetActivePage(2));
    fourth.reset();
    EXPECT_EQ(m_sheet.GetPageCount(), 2);
    EXPECT_NE(m_sheet.GetActivePage(), nullptr);
}

TEST_F(SheetPages, OutliveTheirSheet)
{
    {
        NotingSheet other;
        other.AddPage(&m_route);
        EXPECT_EQ(m_route.GetParentSheet(), &other);
        EXPECT_EQ(m_sheet.GetPageCount(), 1) << "a page is in one sheet";
        ASSERT_TRUE(other.Create());
        EXPECT_NE(m_route.m_hWnd, nullptr);
    }
    EXPECT_EQ(m_route.m_hWnd, nullptr);
    EXPECT_EQ(m_route.GetParentSheet(), nullptr);
    EXPECT_EQ(m_route.m_ends, 1);
}

TEST(SheetPageTemplates, ComeFromTheResourceChain)
{
    CPropertyPage byId(IDD_PAGE_ONE);
    CPropertyPage byName("NAMED_PAGE");
    CPropertyPage constructed;
    constructed.Construct(IDD_PAGE_TWO);
    NotingSheet sheet;
    sheet.AddPage(&byId);
    sheet.AddPage(&byName);
    sheet.AddPage(&constructed);
    ASSERT_TRUE(sheet.Create());
    EXPECT_STREQ(sheet.TabText(0), "One");
    EXPECT_STREQ(sheet.TabText(1), "Named");
    EXPECT_STREQ(sheet.TabText(2), "Two");
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_TRUE(sheet.SetActivePage(i));
        EXPECT_NE(::GetDlgItem(sheet.GetPage(i)->m_hWnd, IDC_PAGE_EDIT), nullptr) << i;
    }
    sheet.DestroyWindow();
}

TEST(SheetPageTemplates, ACaptionOverridesTheirTitle)
{
    CPropertyPage byId(IDD_PAGE_ONE, IDS_CAPTION);
    CPropertyPage byText(IDD_PAGE_TWO);
    byText.m_psp.dwFlags |= PSP_USETITLE;
    byText.m_psp.pszTitle = "Weights";
    CPropertyPage missing(IDD_PAGE_THREE, 4711);
    CPropertyPage named("NAMED_PAGE", IDS_CAPTION);
    NotingSheet sheet;
    sheet.AddPage(&byId);
    sheet.AddPage(&byText);
    sheet.AddPage(&missing);
    sheet.AddPage(&named);
    ASSERT_TRUE(sheet.Create());
    EXPECT_STREQ(sheet.TabText(0), "Fuel");
    EXPECT_STREQ(sheet.TabText(1), "Weights");
    EXPECT_STREQ(sheet.TabText(2), "Three");
    EXPECT_STREQ(sheet.TabText(3), "Fuel");
    sheet.DestroyWindow();
}

TEST(SheetPageTemplates, HeaderTextsAreForNewerWizards)
{
    const UINT header = IDS_HEADER;
    CPropertyPage page(IDD_PAGE_ONE, IDS_CAPTION, header, header);
    EXPECT_STREQ(page.m_psp.pszHeaderTitle, "Where to");
    EXPECT_STREQ(page.m_psp.pszHeaderSubTitle, "Where to");
    const DWORD both = PSP_USEHEADERTITLE | PSP_USEHEADERSUBTITLE;
    EXPECT_EQ(page.m_psp.dwFlags & both, both);
    CPropertyPage plain(IDD_PAGE_ONE);
    EXPECT_EQ(plain.m_psp.dwFlags & both, 0u);
}
