#include "tests/support/PumpUntil.h"
#include "tests/windows/layout_sheets/LaidSheets.h"

// A wizard that the user can size.
namespace
{

constexpr int kBack = ID_WIZBACK;
constexpr int kNext = ID_WIZNEXT;
constexpr int kFinish = ID_WIZFINISH;
constexpr int kLine = 0x3026;

class LayoutWizard : public SheetOfThree
{
protected:
    LayoutWizard()
    {
        m_sheet.SetWizardMode();
    }
    void ExpectGap(int left, int right, int gap)
    {
        EXPECT_EQ(m_sheet.Place(left).right + gap, m_sheet.Place(right).left) << left << " " << right;
        EXPECT_EQ(m_sheet.Place(left).top, m_sheet.Place(right).top) << left << " " << right;
    }
    /// The area of its pages: what the hidden tabs would leave, 5 pixels lower.
    CRect WizardArea() const
    {
        CRect area = m_sheet.PageArea();
        area.top += 5;
        return area;
    }
};

TEST_F(LayoutWizard, BackTouchesNextAndCancelStandsTwelvePixelsAway)
{
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_TRUE(m_sheet.Shows(kBack));
    EXPECT_TRUE(m_sheet.Shows(kNext));
    EXPECT_TRUE(m_sheet.Shows(IDCANCEL));
    ExpectGap(kBack, kNext, 0);
    ExpectGap(kNext, IDCANCEL, 12);
    EXPECT_EQ(m_sheet.Client().cx - 5, m_sheet.Place(IDCANCEL).right) << "at the right";
    EXPECT_EQ(m_sheet.Client().cy - 5, m_sheet.Place(IDCANCEL).bottom) << "without a border of the row";
}

TEST_F(LayoutWizard, FinishLiesHiddenOnNextAtEverySize)
{
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_FALSE(m_sheet.Shows(kFinish));
    EXPECT_EQ(m_sheet.Place(kNext), m_sheet.Place(kFinish));
    m_sheet.SizeBy(80, 40);
    EXPECT_EQ(m_sheet.Place(kNext), m_sheet.Place(kFinish));
}

TEST_F(LayoutWizard, OnTheLastPageFinishStandsWhereNextStood)
{
    ASSERT_TRUE(m_sheet.Create());
    m_sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
    vorn::test::PumpWaiting();
    ASSERT_TRUE(m_sheet.Shows(kFinish));
    ASSERT_FALSE(m_sheet.Shows(kNext));
    m_sheet.SizeBy(80, 40);
    ExpectGap(kBack, kFinish, 0);
    ExpectGap(kFinish, IDCANCEL, 12);
    EXPECT_TRUE(m_sheet.Shows(kFinish));
    EXPECT_FALSE(m_sheet.Shows(kNext));
}

TEST_F(LayoutWizard, WithItsFlagFinishHasAPlaceOfItsOwn)
{
    m_sheet.m_psh.dwFlags |= PSH_WIZARDHASFINISH;
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_TRUE(m_sheet.Shows(kFinish));
    ExpectGap(kBack, kNext, 0);
    ExpectGap(kNext, kFinish, 12);
    ExpectGap(kFinish, IDCANCEL, 12);
}

TEST_F(LayoutWizard, WithItsFlagHelpIsLast)
{
    m_sheet.m_psh.dwFlags |= PSH_HASHELP;
    m_route.m_psp.dwFlags |= PSP_HASHELP;
    ASSERT_TRUE(m_sheet.Create());
    ASSERT_TRUE(m_sheet.Shows(IDHELP));
    ExpectGap(IDCANCEL, IDHELP, 12);
    EXPECT_EQ(m_sheet.Client().cx - 5, m_sheet.Place(IDHELP).right);
}

TEST_F(LayoutWizard, HiddenTabsKeepTheirPlaceAboveLineAndButtons)
{
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_FALSE(m_sheet.GetTabControl()->GetStyle() & WS_VISIBLE);
    const int lineHeight = m_sheet.Place(kLine).Height();
    m_sheet.SizeBy(60, 50);
    const CSize client = m_sheet.Client();
    const LONG row = m_sheet.Place(IDCANCEL).top;
    EXPECT_EQ(CRect(5, static_cast<int>(row) - 5 - lineHeight, client.cx - 5, static_cast<int>(row) - 5),
              m_sheet.Place(kLine));
    EXPECT_EQ(CRect(5, 5, client.cx - 5, static_cast<int>(row) - 5 - lineHeight - 5), m_sheet.Tabs());
}

TEST_F(LayoutWizard, PagesStandFivePixelsLowerInTheHiddenTabs)
{
    ASSERT_TRUE(m_sheet.Create());
    m_sheet.SizeBy(60, 50);
    EXPECT_EQ(WizardArea(), m_sheet.PlaceOf(m_route));
    CRect inside = m_route.Client();
    inside.DeflateRect(5, 5);
    EXPECT_EQ(inside, m_route.Edit());
}

TEST_F(LayoutWizard, TheNextPagesStandThereToo)
{
    ASSERT_TRUE(m_sheet.Create());
    m_sheet.SizeBy(60, 50);
    m_sheet.SendMessage(WM_COMMAND, kNext);
    ASSERT_EQ(&m_fuel, m_sheet.GetActivePage());
    EXPECT_EQ(WizardArea(), m_sheet.PlaceOf(m_fuel));
    m_sheet.SendMessage(WM_COMMAND, kNext);
    ASSERT_EQ(&m_plain, m_sheet.GetActivePage());
    EXPECT_EQ(WizardArea(), m_sheet.PlaceOf(m_plain));
    m_sheet.SizeBy(20, 20);
    EXPECT_EQ(WizardArea(), m_sheet.PlaceOf(m_plain));
}

TEST_F(LayoutWizard, CannotBecomeSoSmallThatAPageIsCut)
{
    CPropertySheet plain("Planning");
    PlainPage page;
    plain.AddPage(&page);
    plain.SetWizardMode();
    ASSERT_TRUE(plain.Create());
    CRect asTheSystemMadeIt;
    page.GetWindowRect(&asTheSystemMadeIt);
    plain.DestroyWindow();
    ASSERT_TRUE(m_sheet.Create());
    m_sheet.Size({10, 10});
    CRect smallest;
    m_route.GetWindowRect(&smallest);
    EXPECT_GE(smallest.Width(), asTheSystemMadeIt.Width());
    EXPECT_GE(smallest.Height(), asTheSystemMadeIt.Height());
}

TEST_F(LayoutWizard, ThoseOfTheNewerKindAreLaidOutAlike)
{
    m_sheet.m_psh.dwFlags = (m_sheet.m_psh.dwFlags & ~static_cast<DWORD>(PSH_WIZARD)) | PSH_WIZARD97;
    ASSERT_TRUE(m_sheet.Create());
    EXPECT_FALSE(m_sheet.GetTabControl()->GetStyle() & WS_VISIBLE);
    ExpectGap(kBack, kNext, 0);
    ExpectGap(kNext, IDCANCEL, 12);
    m_sheet.SizeBy(30, 30);
    EXPECT_EQ(WizardArea(), m_sheet.PlaceOf(m_route));
}

} // namespace
