#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

namespace
{

enum : UINT
{
    kOff = 200,
    kChecked,
    kRadio,
    kRenamed,
    kOnward,
    kHandled,
    kNobody
};

class Updater : public CWnd
{
public:
    int asked = 0;

protected:
    afx_msg void OnOff(CCmdUI* cmdUI)
    {
        cmdUI->Enable(FALSE);
    }
    afx_msg void OnChecked(CCmdUI* cmdUI)
    {
        cmdUI->SetCheck();
    }
    afx_msg void OnRadio(CCmdUI* cmdUI)
    {
        cmdUI->SetRadio();
    }
    afx_msg void OnRenamed(CCmdUI* cmdUI)
    {
        cmdUI->SetText("new &name");
    }
    afx_msg void OnOnward(CCmdUI* cmdUI)
    {
        ++asked;
        cmdUI->ContinueRouting();
    }
    afx_msg void OnHandled()
    {
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Updater, CWnd)
ON_UPDATE_COMMAND_UI(kOff, &Updater::OnOff)
ON_UPDATE_COMMAND_UI(kChecked, &Updater::OnChecked)
ON_UPDATE_COMMAND_UI(kRadio, &Updater::OnRadio)
ON_UPDATE_COMMAND_UI(kRenamed, &Updater::OnRenamed)
ON_UPDATE_COMMAND_UI(kOnward, &Updater::OnOnward)
ON_COMMAND(kHandled, &Updater::OnHandled)
END_MESSAGE_MAP()

class MenuUpdates : public testing::Test
{
protected:
    MenuUpdates()
    {
        menu.CreatePopupMenu();
        for (UINT id = kOff; id <= kNobody; ++id)
        {
            menu.AppendMenu(MF_STRING, id, "item");
        }
    }
    BOOL Update(UINT id, BOOL disable = TRUE)
    {
        CCmdUI state;
        state.m_pMenu = &menu;
        state.m_nID = id;
        state.m_nIndex = id - kOff;
        state.m_nIndexMax = menu.GetMenuItemCount();
        return state.DoUpdate(&target, disable);
    }
    UINT State(UINT id) const
    {
        return menu.GetMenuState(id, MF_BYCOMMAND);
    }
    CMenu menu;
    Updater target;
};

} // namespace

TEST_F(MenuUpdates, DisableAndEnable)
{
    EXPECT_TRUE(Update(kOff));
    EXPECT_TRUE(State(kOff) & MF_GRAYED);
    menu.EnableMenuItem(kHandled, MF_BYCOMMAND | MF_GRAYED);
    EXPECT_FALSE(Update(kHandled)) << "nobody answered the update";
    EXPECT_FALSE(State(kHandled) & MF_GRAYED) << "but the command has a handler";
}

TEST_F(MenuUpdates, DisableWhatNobodyHandlesOnlyWhenAsked)
{
    Update(kNobody, FALSE);
    EXPECT_FALSE(State(kNobody) & MF_GRAYED);
    Update(kNobody, TRUE);
    EXPECT_TRUE(State(kNobody) & MF_GRAYED);
}

TEST_F(MenuUpdates, Check)
{
    Update(kChecked);
    EXPECT_TRUE(State(kChecked) & MF_CHECKED);
    MENUITEMINFO info = {};
    info.fMask = MIIM_FTYPE;
    ASSERT_TRUE(menu.GetMenuItemInfo(kChecked, &info));
    EXPECT_FALSE(info.fType & MFT_RADIOCHECK);
}

TEST_F(MenuUpdates, CheckWithADot)
{
    Update(kRadio);
    EXPECT_TRUE(State(kRadio) & MF_CHECKED);
    MENUITEMINFO info = {};
    info.fMask = MIIM_FTYPE;
    ASSERT_TRUE(menu.GetMenuItemInfo(kRadio, &info));
    EXPECT_TRUE(info.fType & MFT_RADIOCHECK);
}

TEST_F(MenuUpdates, Rename)
{
    menu.CheckMenuItem(kRenamed, MF_CHECKED);
    Update(kRenamed);
    CString text;
    menu.GetMenuString(kRenamed, text, MF_BYCOMMAND);
    EXPECT_EQ(text, "new &name");
    EXPECT_TRUE(State(kRenamed) & MF_CHECKED) << "the item's state stays";
}

TEST_F(MenuUpdates, GoOnWhenAHandlerAsksForIt)
{
    EXPECT_FALSE(Update(kOnward));
    EXPECT_EQ(target.asked, 1);
}

TEST_F(MenuUpdates, LeaveSeparatorsAlone)
{
    CCmdUI state;
    state.m_pMenu = &menu;
    state.m_nID = 0;
    EXPECT_TRUE(state.DoUpdate(&target, TRUE));
    EXPECT_FALSE(State(kOff) & MF_GRAYED);
}

TEST_F(MenuUpdates, LeaveThePopupItemOfASubmenuAlone)
{
    CCmdUI state;
    state.m_pMenu = &menu;
    state.m_pSubMenu = &menu;
    state.m_nID = kOff;
    state.m_nIndex = 0;
    state.DoUpdate(&target, FALSE);
    EXPECT_FALSE(State(kOff) & MF_GRAYED);
}

namespace
{

class UpdatedButton : public CWnd
{
public:
    int asked = 0;

protected:
    afx_msg void OnUpdateSelf(CCmdUI* cmdUI)
    {
        ++asked;
        cmdUI->Enable(FALSE);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(UpdatedButton, CWnd)
ON_UPDATE_COMMAND_UI_REFLECT(&UpdatedButton::OnUpdateSelf)
END_MESSAGE_MAP()

} // namespace

TEST(ControlUpdates, ReachEachControlOfAWindow)
{
    Updater parent;
    ASSERT_TRUE(CreatePopup(parent));
    const auto control = [&](LPCTSTR name, DWORD style, UINT id)
    {
        return ::CreateWindowEx(0, name, "text", WS_CHILD | WS_VISIBLE | style, 0, 0, 50, 20, parent.m_hWnd,
                                reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
    };
    const HWND off = control("BUTTON", BS_PUSHBUTTON, kOff);
    const HWND box = control("BUTTON", BS_CHECKBOX, kChecked);
    const HWND nobody = control("BUTTON", BS_PUSHBUTTON, kNobody);
    const HWND nobodysBox = control("BUTTON", BS_AUTOCHECKBOX, kNobody + 1);
    const HWND edit = control("EDIT", 0, kNobody + 2);
    const HWND renamed = control("STATIC", 0, kRenamed);
    UpdatedButton self;
    ASSERT_TRUE(self.SubclassWindow(control("BUTTON", BS_PUSHBUTTON, kHandled)));
    parent.UpdateDialogControls(&parent, TRUE);
    EXPECT_FALSE(::IsWindowEnabled(off));
    EXPECT_EQ(::SendMessage(box, BM_GETCHECK, 0, 0), BST_CHECKED);
    EXPECT_TRUE(::IsWindowEnabled(box));
    EXPECT_FALSE(::IsWindowEnabled(nobody));
    EXPECT_TRUE(::IsWindowEnabled(nobodysBox)) << "only push buttons are disabled for want of a handler";
    EXPECT_TRUE(::IsWindowEnabled(edit));
    char text[20] = {};
    ::GetWindowText(renamed, text, sizeof(text));
    EXPECT_STREQ(text, "new &name");
    EXPECT_EQ(self.asked, 1);
    EXPECT_FALSE(self.IsWindowEnabled());
}
