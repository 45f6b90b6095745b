#include "framework/dialog/CDataExchange.h"
#include "tests/windows/framework_dialog/TestDialogs.h"

#include <gtest/gtest.h>

namespace
{
class ModelessDialog : public testing::Test
{
protected:
    std::vector<std::uint8_t> m_bytes = StandardTemplate().Bytes();
};
} // namespace

TEST_F(ModelessDialog, CreateShowsAVisibleTemplate)
{
    auto builder = StandardTemplate();
    const auto bytes = builder.Style(WS_POPUP | WS_CAPTION | WS_VISIBLE).Bytes();
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(bytes)));
    EXPECT_TRUE(dialog.IsWindowVisible());
    dialog.DestroyWindow();
    EXPECT_EQ(dialog.m_hWnd, nullptr);
}

TEST_F(ModelessDialog, OwnerStaysEnabled)
{
    OwnerWindow owner;
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes), &owner));
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_TRUE(owner.IsWindowEnabled());
    EXPECT_EQ(::GetWindow(dialog.m_hWnd, GW_OWNER), owner.m_hWnd);
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, CancelHidesButDoesNotDestroy)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    dialog.ShowWindow(SW_SHOWNA);
    dialog.SendMessage(WM_COMMAND, IDCANCEL);
    ASSERT_NE(dialog.m_hWnd, nullptr);
    EXPECT_FALSE(dialog.IsWindowVisible());
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, EndedInOnInitDialogIsNotCreated)
{
    NotingDialog dialog;
    dialog.m_onInit = [](NotingDialog& self)
    {
        self.EndDialog(1);
        return TRUE;
    };
    EXPECT_FALSE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.m_postNcDestroyCount, 1);
}

TEST_F(ModelessDialog, RefusedAtItsFirstMessageIsForgotten)
{
    class Refusing : public NotingDialog
    {
    public:
        bool refuses = true;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (refuses && message == WM_NCCREATE)
                return FALSE;
            return NotingDialog::WindowProc(message, wParam, lParam);
        }
    };
    Refusing dialog;
    EXPECT_FALSE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    EXPECT_EQ(dialog.m_hWnd, nullptr);
    EXPECT_EQ(dialog.m_postNcDestroyCount, 1);
    dialog.refuses = false;
    EXPECT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, NotificationsComeAgainAfterAForeignExceptionInTheExchange)
{
    class Clicked : public NotingDialog
    {
    public:
        int clicks = 0;
        BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override
        {
            clicks += id == kButton && code == BN_CLICKED && !handlerInfo;
            return NotingDialog::OnCmdMsg(id, code, extra, handlerInfo);
        }
    };
    Clicked dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    dialog.m_onExchange = [](NotingDialog&, CDataExchange*)
    {
        throw 3;
    };
    EXPECT_THROW(dialog.UpdateData(TRUE), int);
    dialog.SendDlgItemMessage(kButton, BM_CLICK);
    EXPECT_EQ(dialog.clicks, 1);
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, DestroyedOrDeletedInOnInitDialogIsNotCreated)
{
    NotingDialog dialog;
    dialog.m_onInit = [](NotingDialog& self)
    {
        self.DestroyWindow();
        return TRUE;
    };
    EXPECT_FALSE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    EXPECT_EQ(dialog.m_postNcDestroyCount, 1);
    auto* deleted = new NotingDialog;
    deleted->m_onInit = [](NotingDialog& self)
    {
        delete &self;
        return TRUE;
    };
    EXPECT_FALSE(deleted->CreateIndirect(AsTemplate(m_bytes)));
}

TEST_F(ModelessDialog, SecondCreateIsRefused)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    const HWND first = dialog.m_hWnd;
    EXPECT_FALSE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    EXPECT_FALSE(dialog.InitModalIndirect(AsTemplate(m_bytes)));
    EXPECT_EQ(dialog.m_hWnd, first);
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, MayDeleteItselfAtItsEnd)
{
    static int deleted;
    class Own : public CDialog
    {
    public:
        ~Own() override
        {
            ++deleted;
        }
        void OnCancel() override
        {
            DestroyWindow();
        }
        void PostNcDestroy() override
        {
            delete this;
        }
    };
    deleted = 0;
    auto* dialog = new Own; // deletes itself
    ASSERT_TRUE(dialog->CreateIndirect(AsTemplate(m_bytes)));
    dialog->SendMessage(WM_COMMAND, IDCANCEL);
    EXPECT_EQ(deleted, 1);
}

TEST_F(ModelessDialog, DestructorDestroysALivingWindow)
{
    HWND window = nullptr;
    {
        CDialog dialog;
        ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
        window = dialog.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(ModelessDialog, FocusWalksThroughTheControls)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    dialog.ShowWindow(SW_SHOW);
    const HWND first = dialog.GetDlgItem(kFirstEdit)->m_hWnd;
    const HWND second = dialog.GetDlgItem(kSecondEdit)->m_hWnd;
    dialog.GotoDlgCtrl(dialog.GetDlgItem(kFirstEdit));
    EXPECT_EQ(::GetFocus(), first);
    dialog.NextDlgCtrl();
    EXPECT_EQ(::GetFocus(), second);
    dialog.PrevDlgCtrl();
    EXPECT_EQ(::GetFocus(), first);
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, DefaultButtonCanBeChanged)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    EXPECT_EQ(dialog.GetDefID(), static_cast<DWORD>(MAKELONG(IDOK, DC_HASDEFID)));
    dialog.SetDefID(kButton);
    EXPECT_EQ(dialog.GetDefID(), static_cast<DWORD>(MAKELONG(kButton, DC_HASDEFID)));
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, DialogUnitsScaleLinearly)
{
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    RECT one{0, 0, 4, 8};
    RECT ten{0, 0, 40, 80};
    dialog.MapDialogRect(&one);
    dialog.MapDialogRect(&ten);
    EXPECT_GT(one.right, 0);
    EXPECT_EQ(ten.right, one.right * 10);
    EXPECT_EQ(ten.bottom, one.bottom * 10);
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, SharedCommandsGoToOwnerAndApplication)
{
    constexpr UINT kShared = 0x8123;
    OwnerWindow owner;
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes), &owner));
    g_app.m_commands.clear();
    dialog.SendMessage(WM_COMMAND, kShared);
    EXPECT_EQ(owner.m_commands, std::vector<UINT>{kShared});
    EXPECT_EQ(g_app.m_commands, std::vector<UINT>{kShared});
    owner.m_takesCommands = true;
    dialog.SendMessage(WM_COMMAND, kShared);
    EXPECT_EQ(owner.m_commands.size(), 2u);
    EXPECT_EQ(g_app.m_commands.size(), 1u);
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, ControlNotificationsStayInTheDialog)
{
    OwnerWindow owner;
    CDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes), &owner));
    g_app.m_commands.clear();
    dialog.SendDlgItemMessage(kButton, BM_CLICK);
    dialog.SendMessage(WM_COMMAND, 0x7fff);
    EXPECT_TRUE(owner.m_commands.empty());
    EXPECT_TRUE(g_app.m_commands.empty());
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, KeysArriveThroughPreTranslateMessage)
{
    NotingDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    dialog.ShowWindow(SW_SHOW);
    dialog.GotoDlgCtrl(dialog.GetDlgItem(kFirstEdit));
    MSG tab{};
    tab.hwnd = ::GetFocus();
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    tab.lParam = 1;
    EXPECT_TRUE(dialog.PreTranslateMessage(&tab));
    EXPECT_EQ(::GetFocus(), dialog.GetDlgItem(kSecondEdit)->m_hWnd);
    dialog.DestroyWindow();
}

TEST_F(ModelessDialog, OkKeepsTheDialogWhenDataIsWrong)
{
    NotingDialog dialog;
    ASSERT_TRUE(dialog.CreateIndirect(AsTemplate(m_bytes)));
    dialog.ShowWindow(SW_SHOWNA);
    dialog.m_onExchange = [](NotingDialog&, CDataExchange* exchange)
    {
        if (exchange->m_bSaveAndValidate)
            exchange->Fail();
    };
    dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_TRUE(dialog.IsWindowVisible());
    dialog.m_onExchange = nullptr;
    dialog.SendMessage(WM_COMMAND, IDOK);
    EXPECT_FALSE(dialog.IsWindowVisible());
    dialog.DestroyWindow();
}
