#include "tests/support/PumpUntil.h"
#include "tests/windows/framework_sheets/TestSheets.h"

#include <gtest/gtest.h>

// Wizards: pages one after the other.
namespace
{
class Wizard : public testing::Test
{
protected:
    Wizard()
    {
        m_sheet.AddPage(&m_one);
        m_sheet.AddPage(&m_two);
        m_sheet.AddPage(&m_three);
        m_sheet.SetWizardMode();
        m_one.m_onSetActive = [&]
        {
            m_sheet.SetWizardButtons(PSWIZB_NEXT);
        };
        m_two.m_onSetActive = [&]
        {
            m_sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT);
        };
        m_three.m_onSetActive = [&]
        {
            m_sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH);
        };
    }
    /// Presses a button as the user does. @return the page shown then
    CPropertyPage* Press(int id)
    {
        vorn::test::PumpWaiting();
        ::SendMessageA(m_sheet.Button(id), BM_CLICK, 0, 0);
        vorn::test::PumpWaiting();
        return m_sheet.m_hWnd ? m_sheet.GetActivePage() : nullptr;
    }
    bool IsEnabled(int id) const
    {
        return ::IsWindowEnabled(m_sheet.Button(id)) != FALSE;
    }

    Journal m_journal;
    NotingPage m_one{IDD_PAGE_ONE, "1", m_journal};
    NotingPage m_two{IDD_PAGE_TWO, "2", m_journal};
    NotingPage m_three{IDD_PAGE_THREE, "3", m_journal};
    NotingSheet m_sheet;
};
} // namespace

TEST_F(Wizard, GoesForwardAndBackAndFinishes)
{
    Journal walk;
    const INT_PTR result = RunWith(m_sheet,
                                   [&]
                                   {
                                       EXPECT_TRUE(m_sheet.IsWizard());
                                       m_journal.clear();
                                       EXPECT_EQ(Press(ID_WIZNEXT), &m_two);
                                       walk = m_journal;
                                       EXPECT_EQ(Press(ID_WIZBACK), &m_one);
                                       EXPECT_EQ(Press(ID_WIZNEXT), &m_two);
                                       EXPECT_EQ(Press(ID_WIZNEXT), &m_three);
                                       Press(ID_WIZFINISH);
                                   });
    EXPECT_EQ(result, ID_WIZFINISH);
    EXPECT_EQ(walk, (Journal{"1: next", "1: leave", "2: init", "2: active"}));
    EXPECT_EQ(m_journal.back(), "3: finish");
}

TEST_F(Wizard, ItsButtonsAreChosenByThePages)
{
    RunWith(m_sheet,
            [&]
            {
                vorn::test::PumpWaiting();
                EXPECT_FALSE(IsEnabled(ID_WIZBACK));
                EXPECT_TRUE(IsEnabled(ID_WIZNEXT));
                EXPECT_TRUE(m_sheet.ShowsButton(ID_WIZNEXT));
                EXPECT_FALSE(m_sheet.ShowsButton(ID_WIZFINISH));
                Press(ID_WIZNEXT);
                EXPECT_TRUE(IsEnabled(ID_WIZBACK));
                Press(ID_WIZNEXT);
                EXPECT_TRUE(m_sheet.ShowsButton(ID_WIZFINISH));
                EXPECT_FALSE(m_sheet.ShowsButton(ID_WIZNEXT));
                m_sheet.EndDialog(1);
            });
}

TEST_F(Wizard, APageMayStayOrNameWhereToGo)
{
    RunWith(m_sheet,
            [&]
            {
                m_one.m_next = -1;
                EXPECT_EQ(Press(ID_WIZNEXT), &m_one);
                m_one.m_next = IDD_PAGE_THREE;
                EXPECT_EQ(Press(ID_WIZNEXT), &m_three);
                m_three.m_back = IDD_PAGE_ONE;
                EXPECT_EQ(Press(ID_WIZBACK), &m_one);
                m_one.m_next = 0;
                m_one.m_releases = false;
                EXPECT_EQ(Press(ID_WIZNEXT), &m_one);
                m_sheet.EndDialog(1);
            });
}

TEST_F(Wizard, FinishMayBeRefusedAndExchangesData)
{
    m_sheet.SetActivePage(2);
    m_three.m_finishes = false;
    const INT_PTR result = RunWith(m_sheet,
                                   [&]
                                   {
                                       m_three.SetDlgItemText(IDC_PAGE_EDIT, "LOWI");
                                       EXPECT_EQ(Press(ID_WIZFINISH), &m_three);
                                       m_three.m_finishes = true;
                                       m_sheet.PressButton(PSBTN_FINISH);
                                   });
    EXPECT_EQ(result, ID_WIZFINISH);
    EXPECT_STREQ(m_three.m_text, "LOWI");
}

TEST_F(Wizard, CancelIsAskedAndEndsIt)
{
    const INT_PTR result = RunWith(m_sheet,
                                   [&]
                                   {
                                       m_one.m_mayBeCancelled = false;
                                       EXPECT_EQ(Press(IDCANCEL), &m_one);
                                       m_one.m_mayBeCancelled = true;
                                       m_sheet.PostMessage(WM_COMMAND, IDCANCEL);
                                   });
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(Wizard, FinishTakesAText)
{
    CString text;
    RunWith(m_sheet,
            [&]
            {
                vorn::test::PumpWaiting();
                m_sheet.SetFinishText("Plan it");
                m_sheet.GetDlgItemText(ID_WIZFINISH, text);
                EXPECT_TRUE(m_sheet.ShowsButton(ID_WIZFINISH));
                EXPECT_TRUE(IsEnabled(ID_WIZFINISH));
                EXPECT_FALSE(m_sheet.ShowsButton(ID_WIZNEXT));
                m_sheet.EndDialog(1);
            });
    EXPECT_STREQ(text, "Plan it");
}

TEST_F(Wizard, ModelessKeepsItsButtons)
{
    ASSERT_TRUE(m_sheet.Create());
    vorn::test::PumpWaiting();
    EXPECT_TRUE(m_sheet.ShowsButton(ID_WIZNEXT));
    EXPECT_TRUE(m_sheet.ShowsButton(IDCANCEL));
    Press(ID_WIZNEXT);
    EXPECT_EQ(m_sheet.GetActivePage(), &m_two);
    Press(IDCANCEL);
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
}
