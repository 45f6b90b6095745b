// Exceptions, other threads, many messages: what must not leave the owner disabled.
#include "framework/core/Exception.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{
bool IsShown(const CWnd& window)
{
    return window.m_hWnd && ::IsWindowVisible(window.m_hWnd);
}
} // namespace

TEST(ModalTrouble, ExceptionOutOfTheLoopGivesTheOwnerBack)
{
    constexpr UINT kProbe = WM_APP + 6;
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    dialog.m_onPreTranslate = [&](MSG* message) -> BOOL
    {
        if (message->message == kProbe)
            throw 7;
        return FALSE;
    };
    DialogDriver driver(
        [&]
        {
            return IsShown(dialog) && ::PostMessageA(dialog.m_hWnd, kProbe, 0, 0);
        });
    EXPECT_THROW(dialog.DoModal(), int);
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    dialog.m_onPreTranslate = nullptr;
    DialogDriver again(
        [&]
        {
            if (!IsShown(dialog))
                return false;
            dialog.EndDialog(8);
            return true;
        });
    EXPECT_EQ(dialog.DoModal(), 8);
}

TEST(ModalTrouble, ExceptionOfAHandlerIsReportedAndTheDialogGoesOn)
{
    constexpr UINT kProbe = WM_APP + 7;
    NotingDialog dialog;
    dialog.m_onMessage = [](NotingDialog&, UINT message)
    {
        if (message == kProbe)
            AfxThrowNotSupportedException();
    };
    g_app.m_messages.clear();
    DialogDriver driver(
        [&]
        {
            if (!IsShown(dialog))
                return false;
            dialog.SendMessage(kProbe);
            EXPECT_TRUE(IsShown(dialog));
            dialog.EndDialog(3);
            return true;
        });
    EXPECT_EQ(dialog.DoModal(), 3);
    EXPECT_EQ(g_app.m_messages.size(), 1u);
}

TEST(ModalTrouble, DestroyedInOnInitDialogGivesTheOwnerBack)
{
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    dialog.m_onInit = [](NotingDialog& self)
    {
        self.DestroyWindow();
        return FALSE;
    };
    EXPECT_EQ(dialog.DoModal(), -1);
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.m_postNcDestroyCount, 1);
    EXPECT_TRUE(owner.IsWindowEnabled());
    dialog.m_onInit = [](NotingDialog& self)
    {
        self.EndDialog(7);
        self.DestroyWindow();
        return FALSE;
    };
    EXPECT_EQ(dialog.DoModal(), 7) << "it had its result before";
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalTrouble, DeletedInOnInitDialogGivesTheOwnerBack)
{
    OwnerWindow owner;
    auto* dialog = new NotingDialog(&owner);
    dialog->m_onInit = [](NotingDialog& self)
    {
        delete &self;
        return FALSE;
    };
    EXPECT_EQ(dialog->DoModal(), -1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalTrouble, RunsInAThreadOfAnotherMaking)
{
    INT_PTR result = 0;
    std::thread other(
        [&]
        {
            NotingDialog dialog;
            DialogDriver driver(
                [&]
                {
                    if (!IsShown(dialog))
                        return false;
                    dialog.EndDialog(12);
                    return true;
                });
            result = dialog.DoModal();
        });
    other.join();
    EXPECT_EQ(result, 12);
}

TEST(ModalTrouble, IsShownAlthoughMessagesKeepComing)
{
    NotingDialog dialog;
    int posted = 0;
    dialog.m_onMessage = [&](NotingDialog& self, UINT message)
    {
        if (message != WM_APP || ::IsWindowVisible(self.m_hWnd) || ++posted > 5000)
            return;
        ::PostMessageA(self.m_hWnd, WM_APP, 0, 0); // the queue is never empty
    };
    dialog.m_onInit = [](NotingDialog& self)
    {
        return ::PostMessageA(self.m_hWnd, WM_APP, 0, 0);
    };
    DialogDriver driver(
        [&]
        {
            if (!IsShown(dialog))
                return false;
            dialog.EndDialog(2);
            return true;
        });
    EXPECT_EQ(dialog.DoModal(), 2);
}

TEST(ModalTrouble, OwnerEnabledEarlyByOthersStaysEnabled)
{
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    DialogDriver driver(
        [&]
        {
            if (!IsShown(dialog))
                return false;
            owner.EnableWindow(TRUE); // somebody else gave it back early
            dialog.EndDialog(1);
            return true;
        });
    EXPECT_EQ(dialog.DoModal(), 1);
    EXPECT_TRUE(owner.IsWindowEnabled());
}
