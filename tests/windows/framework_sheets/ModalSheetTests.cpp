#include "framework/core/Exception.h"
#include "tests/windows/framework_sheets/TestSheets.h"

#include <gtest/gtest.h>

#include <algorithm>

// The modal life of a sheet: its loop, its owner, its ends.
namespace
{
class ModalSheet : public testing::Test
{
protected:
    ModalSheet()
    {
        m_sheet.AddPage(&m_route);
        m_sheet.AddPage(&m_fuel);
    }
    /// Runs the sheet, posting this to its window when it is shown.
    INT_PTR RunAndPost(UINT message, WPARAM wParam)
    {
        return RunWith(m_sheet,
                       [&]
                       {
                           ::PostMessageA(m_sheet.m_hWnd, message, wParam, 0);
                       });
    }

    Journal m_journal;
    OwnerWindow m_owner;
    NotingPage m_route{"Route", m_journal};
    NotingPage m_fuel{"Fuel", m_journal};
    NotingSheet m_sheet{"Planning", &m_owner};
};

/// The Control key down for a scope, as this thread sees it.
class ControlKey
{
public:
    ControlKey()
    {
        Set(0x80);
    }
    ~ControlKey()
    {
        Set(0);
    }
    ControlKey(const ControlKey&) = delete;
    ControlKey& operator=(const ControlKey&) = delete;

private:
    static void Set(BYTE state)
    {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        keys[VK_CONTROL] = state;
        ::SetKeyboardState(keys);
    }
};
} // namespace

TEST_F(ModalSheet, OkButtonEndsItWithIdOk)
{
    EXPECT_EQ(RunAndPost(WM_COMMAND, IDOK), IDOK);
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
    EXPECT_EQ(m_sheet.m_inits, 1);
    EXPECT_EQ(m_sheet.m_ends, 1);
    EXPECT_EQ(m_route.m_ends, 1);
}

TEST_F(ModalSheet, ARealClickOnOkEndsIt)
{
    const INT_PTR result = RunWith(m_sheet,
                                   [&]
                                   {
                                       ::PostMessageA(m_sheet.Button(IDOK), BM_CLICK, 0, 0);
                                   });
    EXPECT_EQ(result, IDOK);
    EXPECT_EQ(m_sheet.m_commands, std::vector<UINT>{IDOK});
}

TEST_F(ModalSheet, CancelCloseBoxAndEscapeEndItWithIdCancel)
{
    EXPECT_EQ(RunAndPost(WM_COMMAND, IDCANCEL), IDCANCEL);
    EXPECT_EQ(RunAndPost(WM_SYSCOMMAND, SC_CLOSE), IDCANCEL);
    EXPECT_EQ(RunAndPost(WM_CLOSE, 0), IDCANCEL);
    const INT_PTR escaped = RunWith(m_sheet,
                                    [&]
                                    {
                                        PostKey(m_route.Edit(), VK_ESCAPE);
                                    });
    EXPECT_EQ(escaped, IDCANCEL);
    EXPECT_EQ(m_sheet.m_ends, 4);
}

TEST_F(ModalSheet, ReturnKeyPressesOk)
{
    const INT_PTR result = RunWith(m_sheet,
                                   [&]
                                   {
                                       PostKey(m_route.Edit(), VK_RETURN);
                                   });
    EXPECT_EQ(result, IDOK);
}

TEST_F(ModalSheet, PressedButtonsEndItToo)
{
    EXPECT_EQ(RunWith(m_sheet,
                      [&]
                      {
                          EXPECT_TRUE(m_sheet.PressButton(PSBTN_OK));
                      }),
              IDOK);
    EXPECT_EQ(RunWith(m_sheet,
                      [&]
                      {
                          EXPECT_TRUE(m_sheet.PressButton(PSBTN_CANCEL));
                      }),
              IDCANCEL);
    EXPECT_FALSE(m_sheet.PressButton(PSBTN_OK)) << "closed";
}

TEST_F(ModalSheet, ReturnsWhatEndDialogWasGiven)
{
    EXPECT_EQ(RunWith(m_sheet,
                      [&]
                      {
                          m_sheet.EndDialog(77);
                      }),
              77);
    EXPECT_EQ(RunWith(m_sheet,
                      [&]
                      {
                          m_route.EndDialog(78);
                      }),
              78);
}

TEST_F(ModalSheet, OwnerIsDisabledMeanwhile)
{
    BOOL enabled = TRUE;
    HWND owner = nullptr;
    RunWith(m_sheet,
            [&]
            {
                enabled = m_owner.IsWindowEnabled();
                owner = ::GetWindow(m_sheet.m_hWnd, GW_OWNER);
                m_sheet.EndDialog(1);
            });
    EXPECT_FALSE(enabled);
    EXPECT_EQ(owner, m_owner.m_hWnd);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(ModalSheet, PreTranslateMessageOfPageAndSheetSeesWhatControlsGet)
{
    constexpr UINT kProbe = WM_APP + 5;
    Journal seen;
    m_route.m_onPreTranslate = [&](MSG* message)
    {
        if (message->message == kProbe && message->hwnd == m_route.Edit())
            seen.push_back("page");
        return FALSE;
    };
    m_sheet.m_onPreTranslate = [&](MSG* message)
    {
        if (message->message != kProbe)
            return FALSE;
        seen.push_back("sheet");
        m_sheet.EndDialog(3);
        return TRUE;
    };
    EXPECT_EQ(RunWith(m_sheet,
                      [&]
                      {
                          ::PostMessageA(m_route.Edit(), kProbe, 0, 0);
                      }),
              3);
    EXPECT_EQ(seen, (Journal{"page", "sheet"}));
}

TEST_F(ModalSheet, TabKeyLeavesThePageForTheButtons)
{
    HWND focus = nullptr;
    DialogDriver driver(
        [&]
        {
            if (!IsShown(m_sheet))
                return false;
            if (!focus)
            {
                ::SetFocus(m_route.Edit());
                focus = m_route.Edit();
                PostKey(focus, VK_TAB);
                return false;
            }
            if (::GetFocus() != m_sheet.Button(IDOK))
                return false;
            m_sheet.EndDialog(1);
            return true;
        });
    EXPECT_EQ(m_sheet.DoModal(), 1);
}

TEST_F(ModalSheet, ControlTabGoesToTheNextPage)
{
    DialogDriver driver(
        [&, posted = false]() mutable
        {
            if (!IsShown(m_sheet))
                return false;
            if (!posted)
            {
                const ControlKey control;
                MSG key{m_route.Edit(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
                EXPECT_TRUE(m_sheet.PreTranslateMessage(&key));
                posted = true;
            }
            EXPECT_EQ(m_sheet.GetActiveIndex(), 1);
            m_sheet.EndDialog(1);
            return true;
        });
    EXPECT_EQ(m_sheet.DoModal(), 1);
}

TEST_F(ModalSheet, IdleMessageReachesTheShownPage)
{
    DialogDriver driver(
        [&]
        {
            const auto& seen = m_route.m_messages;
            if (std::find(seen.begin(), seen.end(), WM_KICKIDLE) == seen.end())
                return false;
            m_sheet.EndDialog(1);
            return true;
        });
    EXPECT_EQ(m_sheet.DoModal(), 1);
    EXPECT_TRUE(driver.IsDone());
}

TEST_F(ModalSheet, ADialogOpenedByAPageIsModalToTheSheet)
{
    using B = DialogTemplateBuilder;
    B builder;
    const auto bytes = builder.Style(WS_POPUP | WS_CAPTION)
                           .Title("Inner")
                           .At({0, 0, 90, 40})
                           .Add(B::Button, IDOK, WS_TABSTOP, {5, 5, 50, 14}, "OK")
                           .Bytes();
    CDialog inner;
    BOOL sheetEnabled = TRUE;
    INT_PTR innerResult = 0;
    DialogDriver innerDriver(
        [&]
        {
            if (!IsShown(inner))
                return false;
            sheetEnabled = m_sheet.IsWindowEnabled();
            ::PostMessageA(inner.m_hWnd, WM_COMMAND, IDOK, 0);
            return true;
        });
    const INT_PTR result =
        RunWith(m_sheet,
                [&]
                {
                    inner.InitModalIndirect(reinterpret_cast<LPCDLGTEMPLATE>(bytes.data()), &m_route);
                    innerResult = inner.DoModal();
                    EXPECT_TRUE(m_sheet.IsWindowEnabled());
                    EXPECT_TRUE(IsShown(m_sheet));
                    ::PostMessageA(m_sheet.m_hWnd, WM_COMMAND, IDOK, 0);
                });
    EXPECT_EQ(innerResult, IDOK);
    EXPECT_FALSE(sheetEnabled);
    EXPECT_EQ(result, IDOK);
}

TEST_F(ModalSheet, ASheetOpenedByAPageOfAnotherReturnsItsOwnResult)
{
    NotingPage innerPage("Inner page", m_journal);
    NotingSheet inner("Inner", &m_route);
    inner.AddPage(&innerPage);
    INT_PTR innerResult = 0;
    DialogDriver innerDriver(
        [&]
        {
            if (!IsShown(inner))
                return false;
            inner.EndDialog(5);
            return true;
        });
    const INT_PTR result = RunWith(m_sheet,
                                   [&]
                                   {
                                       innerResult = inner.DoModal();
                                       EXPECT_EQ(m_sheet.GetActivePage(), &m_route);
                                       m_sheet.EndDialog(6);
                                   });
    EXPECT_EQ(innerResult, 5);
    EXPECT_EQ(result, 6);
}

TEST_F(ModalSheet, EndDialogInOnInitDialogNeverShowsIt)
{
    bool shown = false;
    m_sheet.m_onInit = [](NotingSheet& sheet)
    {
        sheet.EndDialog(9);
        return TRUE;
    };
    m_sheet.m_onMessage = [&](NotingSheet& sheet, UINT)
    {
        shown = shown || ::IsWindowVisible(sheet.m_hWnd);
    };
    EXPECT_EQ(m_sheet.DoModal(), 9);
    EXPECT_FALSE(shown);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
}

TEST_F(ModalSheet, ExceptionInOnInitDialogIsReportedAndEndsIt)
{
    m_sheet.m_onInit = [](NotingSheet&) -> BOOL
    {
        AfxThrowResourceException();
    };
    g_app.m_messages.clear();
    EXPECT_EQ(m_sheet.DoModal(), -1);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(g_app.m_messages.size(), 1u);
}

TEST_F(ModalSheet, QuitMessageEndsTheLoopAndIsHandedOn)
{
    EXPECT_EQ(RunWith(m_sheet,
                      []
                      {
                          ::PostQuitMessage(77);
                      }),
              -1);
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    MSG message{};
    ASSERT_TRUE(::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 77u);
}

TEST_F(ModalSheet, WindowDestroyedInTheLoopEndsIt)
{
    EXPECT_EQ(RunWith(m_sheet,
                      [&]
                      {
                          m_sheet.DestroyWindow();
                      }),
              -1);
    EXPECT_TRUE(m_owner.IsWindowEnabled());
    EXPECT_EQ(m_sheet.m_ends, 1);
}

TEST_F(ModalSheet, OwnerDestroyedInTheLoopEndsIt)
{
    EXPECT_EQ(RunWith(m_sheet,
                      [&]
                      {
                          m_owner.DestroyWindow();
                      }),
              -1);
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
}

TEST_F(ModalSheet, SecondDoModalWhileOpenIsRefused)
{
    INT_PTR second = 0;
    RunWith(m_sheet,
            [&]
            {
                second = m_sheet.DoModal();
                m_sheet.EndDialog(1);
            });
    EXPECT_EQ(second, -1);
}

TEST_F(ModalSheet, RunsAgainOnThePageChosen)
{
    RunAndPost(WM_COMMAND, IDOK);
    EXPECT_TRUE(m_sheet.SetActivePage(1));
    CPropertyPage* shown = nullptr;
    RunWith(m_sheet,
            [&]
            {
                shown = m_sheet.GetActivePage();
                m_sheet.EndDialog(1);
            });
    EXPECT_EQ(shown, &m_fuel);
}

TEST(ModalSheetWithout, PagesIsRefused)
{
    NotingSheet sheet;
    EXPECT_EQ(sheet.DoModal(), -1);
    EXPECT_EQ(sheet.m_inits, 0);
}

TEST(ModalSheetWithout, APagesTemplateIsRefusedSilently)
{
    OwnerWindow owner;
    CPropertyPage missing(4711U);
    NotingSheet sheet("Planning", &owner);
    sheet.AddPage(&missing);
    g_app.m_messages.clear();
    EXPECT_EQ(sheet.DoModal(), -1);
    EXPECT_FALSE(sheet.Create());
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_TRUE(g_app.m_messages.empty());
    EXPECT_EQ(sheet.m_inits, 0);
}
