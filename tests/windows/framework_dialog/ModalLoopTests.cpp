#include "framework/core/Exception.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

namespace
{
bool IsShown(const CWnd& window)
{
    return window.m_hWnd && ::IsWindowVisible(window.m_hWnd);
}

/// Runs the dialog; once it is shown, does `action`, then ends it with `result`.
INT_PTR RunWith(NotingDialog& dialog, const std::function<void()>& action, int result = 42)
{
    DialogDriver driver(
        [&]
        {
            if (!IsShown(dialog))
                return false;
            action();
            dialog.EndDialog(result);
            return true;
        });
    return dialog.DoModal();
}
} // namespace

TEST(ModalDialog, DoModalReturnsWhatEndDialogWasGiven)
{
    NotingDialog dialog;
    EXPECT_EQ(RunWith(
                  dialog, [] {}, 42),
              42);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.m_initCount, 1);
    EXPECT_EQ(dialog.m_postNcDestroyCount, 1);
}

TEST(ModalDialog, RunsAgainAfterItsEnd)
{
    NotingDialog dialog;
    EXPECT_EQ(RunWith(
                  dialog, [] {}, 1),
              1);
    EXPECT_EQ(RunWith(
                  dialog, [] {}, 7),
              7);
    EXPECT_EQ(dialog.m_initCount, 2);
}

TEST(ModalDialog, LastEndDialogCounts)
{
    NotingDialog dialog;
    EXPECT_EQ(RunWith(
                  dialog,
                  [&]
                  {
                      dialog.EndDialog(5);
                  },
                  6),
              6);
}

TEST(ModalDialog, OkButtonEndsWithIdOk)
{
    NotingDialog dialog;
    DialogDriver driver(
        [&]
        {
            return IsShown(dialog) && ::PostMessageA(dialog.m_hWnd, WM_COMMAND, IDOK, 0);
        });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialog, CloseBoxEndsWithIdCancel)
{
    NotingDialog dialog;
    DialogDriver driver(
        [&]
        {
            return IsShown(dialog) && ::PostMessageA(dialog.m_hWnd, WM_SYSCOMMAND, SC_CLOSE, 0);
        });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModalDialog, EscapeKeyCancels)
{
    NotingDialog dialog;
    DialogDriver driver(
        [&]
        {
            if (IsShown(dialog))
                PostKey(dialog.GetDlgItem(kFirstEdit)->m_hWnd, VK_ESCAPE);
            return IsShown(dialog);
        });
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
}

TEST(ModalDialog, ReturnKeyPressesTheDefaultButton)
{
    NotingDialog dialog;
    DialogDriver driver(
        [&]
        {
            if (IsShown(dialog))
                PostKey(dialog.GetDlgItem(kFirstEdit)->m_hWnd, VK_RETURN);
            return IsShown(dialog);
        });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialog, TabKeyMovesTheFocus)
{
    NotingDialog dialog;
    HWND before = nullptr;
    DialogDriver driver(
        [&]
        {
            if (!IsShown(dialog))
                return false;
            if (!before)
            {
                before = ::GetFocus();
                PostKey(before, VK_TAB);
                return false;
            }
            if (::GetFocus() != dialog.GetDlgItem(kSecondEdit)->m_hWnd)
                return false;
            dialog.EndDialog(1);
            return true;
        });
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_NE(before, nullptr);
}

TEST(ModalDialog, PreTranslateMessageSeesMessagesOfItsControlsFirst)
{
    constexpr UINT kProbe = WM_APP + 5;
    NotingDialog dialog;
    HWND seenFor = nullptr;
    dialog.m_onPreTranslate = [&](MSG* message)
    {
        if (message->message != kProbe)
            return FALSE;
        seenFor = message->hwnd;
        dialog.EndDialog(3);
        return TRUE;
    };
    HWND edit = nullptr;
    DialogDriver driver(
        [&]
        {
            if (!IsShown(dialog))
                return false;
            edit = dialog.GetDlgItem(kSecondEdit)->m_hWnd;
            return ::PostMessageA(edit, kProbe, 0, 0) != FALSE;
        });
    EXPECT_EQ(dialog.DoModal(), 3);
    EXPECT_EQ(seenFor, edit);
}

TEST(ModalDialog, SwallowedMessageIsNotDispatched)
{
    NotingDialog dialog;
    dialog.m_onPreTranslate = [&](MSG* message)
    {
        if (message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE)
        {
            ::PostMessageA(dialog.m_hWnd, WM_COMMAND, IDOK, 0);
            return TRUE;
        }
        return FALSE;
    };
    DialogDriver driver(
        [&]
        {
            if (IsShown(dialog))
                PostKey(dialog.m_hWnd, VK_ESCAPE);
            return IsShown(dialog);
        });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

TEST(ModalDialog, EndDialogInOnInitDialogNeverShowsIt)
{
    OwnerWindow owner;
    auto builder = StandardTemplate();
    builder.Style(WS_POPUP | WS_VISIBLE | WS_CAPTION);
    NotingDialog dialog(&owner, builder);
    bool shown = false;
    dialog.m_onInit = [](NotingDialog& self)
    {
        self.EndDialog(9);
        return TRUE;
    };
    dialog.m_onMessage = [&](NotingDialog& self, UINT)
    {
        shown = shown || ::IsWindowVisible(self.m_hWnd);
    };
    EXPECT_EQ(dialog.DoModal(), 9);
    EXPECT_FALSE(shown);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, VisibleTemplateIsShownToo)
{
    auto builder = StandardTemplate();
    builder.Style(WS_POPUP | WS_VISIBLE | WS_CAPTION);
    NotingDialog dialog(nullptr, builder);
    EXPECT_EQ(RunWith(
                  dialog, [] {}, 11),
              11);
}

TEST(ModalDialog, IdleMessageReachesTheDialog)
{
    NotingDialog dialog;
    int kicks = 0;
    dialog.m_onMessage = [&](NotingDialog&, UINT message)
    {
        kicks += message == WM_KICKIDLE;
    };
    RunWith(dialog, [] {});
    EXPECT_GT(kicks, 0);
}

TEST(ModalDialog, QuitMessageEndsTheLoopAndIsHandedOn)
{
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    DialogDriver driver(
        [&]
        {
            if (IsShown(dialog))
                ::PostQuitMessage(77);
            return IsShown(dialog);
        });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_TRUE(owner.IsWindowEnabled());
    MSG message{};
    ASSERT_TRUE(::PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 77u);
    EXPECT_EQ(RunWith(
                  dialog, [] {}, 4),
              4);
}

TEST(ModalDialog, WindowDestroyedInTheLoopEndsIt)
{
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    DialogDriver driver(
        [&]
        {
            return IsShown(dialog) && dialog.DestroyWindow();
        });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_postNcDestroyCount, 1);
    EXPECT_EQ(RunWith(
                  dialog, [] {}, 4),
              4);
}

TEST(ModalDialog, WindowDestroyedAfterEndDialogKeepsTheResult)
{
    NotingDialog dialog;
    DialogDriver driver(
        [&]
        {
            if (!IsShown(dialog))
                return false;
            dialog.EndDialog(21);
            return dialog.DestroyWindow() != FALSE;
        });
    EXPECT_EQ(dialog.DoModal(), 21);
}

TEST(ModalDialog, OwnerDestroyedInTheLoopEndsIt)
{
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    DialogDriver driver(
        [&]
        {
            return IsShown(dialog) && owner.DestroyWindow();
        });
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST(ModalDialog, ObjectDeletedInTheLoopIsNotTouchedAgain)
{
    class SelfDeleting : public NotingDialog
    {
    public:
        using NotingDialog::NotingDialog;
        void PostNcDestroy() override
        {
            delete this; // what some modeless dialogs do
        }
    };
    OwnerWindow owner;
    auto* dialog = new SelfDeleting(&owner); // deletes itself
    DialogDriver driver(
        [&]
        {
            const HWND window = FindDialog("Standard");
            return window && ::DestroyWindow(window);
        });
    EXPECT_EQ(dialog->DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalDialog, SecondDoModalWhileOpenIsRefused)
{
    NotingDialog dialog;
    INT_PTR second = 0;
    RunWith(dialog,
            [&]
            {
                second = dialog.DoModal();
            });
    EXPECT_EQ(second, -1);
}

TEST(ModalDialog, ExceptionInOnInitDialogIsReportedAndEndsIt)
{
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    dialog.m_onInit = [](NotingDialog&) -> BOOL
    {
        AfxThrowResourceException();
    };
    g_app.m_messages.clear();
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(g_app.m_messages.size(), 1u);
}
