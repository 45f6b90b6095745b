#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

TEST(Menu, DestroysItsMenuUnlessDetached)
{
    HMENU kept = nullptr;
    HMENU gone = nullptr;
    {
        CMenu first;
        CMenu second;
        ASSERT_TRUE(first.CreatePopupMenu());
        ASSERT_TRUE(second.CreateMenu());
        gone = first.m_hMenu;
        EXPECT_EQ(CMenu::FromHandlePermanent(gone), &first);
        kept = second.Detach();
        EXPECT_EQ(second.m_hMenu, nullptr);
    }
    EXPECT_FALSE(::IsMenu(gone));
    EXPECT_EQ(CMenu::FromHandlePermanent(gone), nullptr);
    EXPECT_TRUE(::IsMenu(kept));
    ::DestroyMenu(kept);
}

TEST(Menu, RefusesASecondMenu)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreateMenu());
    const HMENU other = ::CreateMenu();
    EXPECT_FALSE(menu.Attach(other));
    EXPECT_FALSE(menu.Attach(nullptr));
    ::DestroyMenu(other);
}

TEST(Menu, HasItems)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 10, "ten"));
    EXPECT_TRUE(menu.AppendMenu(MF_SEPARATOR));
    EXPECT_TRUE(menu.InsertMenu(0, MF_BYPOSITION | MF_STRING, 5, "five"));
    EXPECT_EQ(menu.GetMenuItemCount(), 3U);
    EXPECT_EQ(menu.GetMenuItemID(0), 5U);
    CString text;
    EXPECT_EQ(menu.GetMenuString(10, text, MF_BYCOMMAND), 3);
    EXPECT_EQ(text, "ten");
    EXPECT_EQ(menu.GetMenuString(99, text, MF_BYCOMMAND), 0);
    EXPECT_EQ(text, "");
    EXPECT_TRUE(menu.ModifyMenu(10, MF_BYCOMMAND | MF_STRING, 11, "eleven"));
    EXPECT_EQ(menu.GetMenuItemID(1), 11U);
    EXPECT_EQ(menu.CheckMenuItem(11, MF_CHECKED), static_cast<UINT>(MF_UNCHECKED));
    EXPECT_EQ(menu.GetMenuState(11, MF_BYCOMMAND), static_cast<UINT>(MF_CHECKED));
    EXPECT_TRUE(menu.SetDefaultItem(11));
    EXPECT_EQ(menu.GetDefaultItem(0), 11U);
    EXPECT_TRUE(menu.DeleteMenu(0, MF_BYPOSITION));
    EXPECT_EQ(menu.GetMenuItemCount(), 2U);
}

TEST(Menu, GivesItsPopupsAsTemporaryObjects)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreateMenu());
    const HMENU popup = ::CreatePopupMenu();
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup), "sub");
    CMenu* sub = menu.GetSubMenu(0);
    ASSERT_NE(sub, nullptr);
    EXPECT_EQ(sub->m_hMenu, popup);
    EXPECT_EQ(CMenu::FromHandlePermanent(popup), nullptr);
    EXPECT_EQ(menu.GetSubMenu(1), nullptr);
}

TEST(Menu, AnswersForANullPointer)
{
    // Volatile: the compiler must not see that the pointers are null.
    const CMenu* const volatile none = nullptr;
    EXPECT_EQ(none->GetSafeHmenu(), nullptr);
    const CWnd* const volatile window = nullptr;
    EXPECT_EQ(window->GetSafeHwnd(), nullptr);
}

TEST(Menu, IsTheWindowsMenu)
{
    CWnd window;
    ASSERT_TRUE(CreatePopup(window));
    CMenu menu;
    ASSERT_TRUE(menu.CreateMenu());
    EXPECT_EQ(window.GetMenu(), nullptr);
    EXPECT_TRUE(window.SetMenu(&menu));
    EXPECT_EQ(window.GetMenu(), &menu);
    EXPECT_TRUE(window.SetMenu(nullptr));
    EXPECT_EQ(window.GetMenu(), nullptr);
}

namespace
{

class DrawnMenu : public CMenu
{
public:
    Events events;
    void DrawItem(LPDRAWITEMSTRUCT draw) override
    {
        events.push_back(With("draw", draw->itemID));
    }
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override
    {
        events.push_back(With("measure", measure->itemID));
        measure->itemWidth = 55;
    }
};

} // namespace

TEST(Menu, DrawsItsOwnItems)
{
    CWnd window;
    ASSERT_TRUE(CreatePopup(window));
    CMenu bar;
    DrawnMenu popup;
    ASSERT_TRUE(bar.CreateMenu());
    ASSERT_TRUE(popup.CreatePopupMenu());
    popup.AppendMenu(MF_OWNERDRAW, 7, static_cast<LPCTSTR>(nullptr));
    bar.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(popup.m_hMenu), "popup");
    window.SetMenu(&bar);
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_MENU;
    measure.itemID = 7;
    window.SendMessage(WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&measure));
    EXPECT_EQ(measure.itemWidth, 55U);
    DRAWITEMSTRUCT draw = {};
    draw.CtlType = ODT_MENU;
    draw.itemID = 7;
    draw.hwndItem = reinterpret_cast<HWND>(popup.m_hMenu);
    window.SendMessage(WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    EXPECT_EQ(popup.events, (Events{"measure 7", "draw 7"}));
    window.SetMenu(nullptr);
    bar.RemoveMenu(0, MF_BYPOSITION);
}
