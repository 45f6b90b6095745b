#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

namespace
{
INT_PTR EndWhenShown(
    NotingDialog& dialog, const std::function<void()>& action = [] {})
{
    DialogDriver driver(
        [&]
        {
            if (!dialog.m_hWnd || !::IsWindowVisible(dialog.m_hWnd))
                return false;
            action();
            dialog.EndDialog(1);
            return true;
        });
    return dialog.DoModal();
}
} // namespace

TEST(ModalOwner, IsDisabledWhileTheDialogRuns)
{
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    BOOL enabledInside = TRUE;
    HWND ownerInside = nullptr;
    EndWhenShown(dialog,
                 [&]
                 {
                     enabledInside = owner.IsWindowEnabled();
                     ownerInside = ::GetWindow(dialog.m_hWnd, GW_OWNER);
                 });
    EXPECT_FALSE(enabledInside);
    EXPECT_EQ(ownerInside, owner.m_hWnd);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalOwner, DisabledBeforeStaysDisabled)
{
    OwnerWindow owner;
    owner.EnableWindow(FALSE);
    NotingDialog dialog(&owner);
    EXPECT_EQ(EndWhenShown(dialog), 1);
    EXPECT_FALSE(owner.IsWindowEnabled());
}

TEST(ModalOwner, ChildAsParentDisablesItsTopWindow)
{
    OwnerWindow owner;
    CWnd child;
    ASSERT_TRUE(child.CreateEx(0, "STATIC", "", WS_CHILD, 0, 0, 10, 10, owner.m_hWnd, nullptr));
    NotingDialog dialog(&child);
    BOOL topEnabled = TRUE;
    BOOL childEnabled = FALSE;
    EndWhenShown(dialog,
                 [&]
                 {
                     topEnabled = owner.IsWindowEnabled();
                     childEnabled = child.IsWindowEnabled();
                 });
    EXPECT_FALSE(topEnabled);
    EXPECT_TRUE(childEnabled);
    EXPECT_TRUE(owner.IsWindowEnabled());
}

TEST(ModalOwner, MainWindowServesWhereNoParentWasGiven)
{
    OwnerWindow main;
    g_app.m_pMainWnd = &main;
    NotingDialog dialog;
    HWND ownerInside = nullptr;
    EndWhenShown(dialog,
                 [&]
                 {
                     ownerInside = ::GetWindow(dialog.m_hWnd, GW_OWNER);
                 });
    g_app.m_pMainWnd = nullptr;
    EXPECT_EQ(ownerInside, main.m_hWnd);
    EXPECT_TRUE(main.IsWindowEnabled());
}

TEST(ModalOwner, NoOwnerAtAllIsAllowed)
{
    NotingDialog dialog;
    HWND ownerInside = ::GetDesktopWindow();
    EXPECT_EQ(EndWhenShown(dialog,
                           [&]
                           {
                               ownerInside = ::GetWindow(dialog.m_hWnd, GW_OWNER);
                           }),
              1);
    EXPECT_EQ(ownerInside, nullptr);
}

TEST(ModalOwner, TopWindowAboveTheOwnerIsDisabledToo)
{
    OwnerWindow main;
    g_app.m_pMainWnd = &main;
    OwnerWindow popup;
    ::SetWindowLongA(popup.m_hWnd, GWL_HWNDPARENT, reinterpret_cast<LONG>(main.m_hWnd));
    NotingDialog dialog(&popup);
    BOOL mainEnabled = TRUE;
    BOOL popupEnabled = TRUE;
    EndWhenShown(dialog,
                 [&]
                 {
                     mainEnabled = main.IsWindowEnabled();
                     popupEnabled = popup.IsWindowEnabled();
                 });
    g_app.m_pMainWnd = nullptr;
    EXPECT_FALSE(mainEnabled);
    EXPECT_FALSE(popupEnabled);
    EXPECT_TRUE(main.IsWindowEnabled());
    EXPECT_TRUE(popup.IsWindowEnabled());
}

TEST(ModalOwner, IsEnabledBeforeTheDialogVanishes)
{
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    BOOL enabledAtDestroy = FALSE;
    BOOL enabledWhenHidden = TRUE;
    dialog.m_onMessage = [&](NotingDialog& self, UINT message)
    {
        if (message == WM_DESTROY)
            enabledAtDestroy = owner.IsWindowEnabled();
        if (message == WM_WINDOWPOSCHANGED && dialog.m_initCount && !::IsWindowVisible(self.m_hWnd) &&
            !self.ContinueModal())
            enabledWhenHidden = owner.IsWindowEnabled();
    };
    EndWhenShown(dialog);
    EXPECT_TRUE(enabledAtDestroy);
    EXPECT_TRUE(enabledWhenHidden);
}

TEST(ModalOwner, IsEnabledBeforeADestroyedDialogVanishes)
{
    OwnerWindow owner;
    NotingDialog dialog(&owner);
    BOOL enabledAtTheEnd = FALSE;
    dialog.m_onMessage = [&](NotingDialog&, UINT message)
    {
        if (message == WM_NCDESTROY)
            enabledAtTheEnd = owner.IsWindowEnabled();
    };
    DialogDriver driver(
        [&]
        {
            return dialog.m_hWnd && dialog.IsWindowVisible() && dialog.DestroyWindow();
        });
    dialog.DoModal();
    EXPECT_TRUE(enabledAtTheEnd);
}

TEST(ModalOwner, GetsActivationBack)
{
    OwnerWindow owner;
    ::SetActiveWindow(owner.m_hWnd);
    NotingDialog dialog(&owner);
    HWND activeInside = nullptr;
    EndWhenShown(dialog,
                 [&]
                 {
                     activeInside = ::GetActiveWindow();
                 });
    EXPECT_NE(activeInside, owner.m_hWnd);
    EXPECT_EQ(::GetActiveWindow(), owner.m_hWnd);
}

TEST(ModalOwner, FocusReturnsToTheControlOfADialog)
{
    NotingDialog outer;
    NotingDialog inner(&outer);
    HWND focusAfter = nullptr;
    HWND second = nullptr;
    DialogDriver driver(
        [&]
        {
            if (!outer.m_hWnd || !outer.IsWindowVisible())
                return false;
            second = outer.GetDlgItem(kSecondEdit)->m_hWnd;
            ::SetFocus(second);
            EndWhenShown(inner);
            focusAfter = ::GetFocus();
            outer.EndDialog(1);
            return true;
        });
    outer.DoModal();
    EXPECT_NE(second, nullptr);
    EXPECT_EQ(focusAfter, second);
}
