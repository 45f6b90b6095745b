#include "tests/windows/framework_bars/BarFrame.h"

#include "tests/support/PumpUntil.h"

using namespace vorn::test;

namespace
{

class MiniFrame : public BarsTest
{
protected:
    static CMiniFrameWnd* Make(DWORD style, CWnd* owner = nullptr)
    {
        auto* mini = new CMiniFrameWnd;
        EXPECT_TRUE(mini->Create(nullptr, "Small", style, CRect(600, 300, 760, 400), owner));
        return mini;
    }
    static LRESULT Hit(const CMiniFrameWnd& mini, int x, int y)
    {
        return mini.SendMessage(WM_NCHITTEST, 0, MAKELPARAM(x, y));
    }
};

constexpr DWORD kPlain = WS_POPUP | WS_CAPTION | WS_SYSMENU;

} // namespace

TEST_F(MiniFrame, HasALowCaptionAndItsOwner)
{
    CMiniFrameWnd* mini = Make(kPlain, frame);
    EXPECT_TRUE(mini->GetExStyle() & WS_EX_TOOLWINDOW);
    EXPECT_EQ(frame->m_hWnd, ::GetWindow(mini->m_hWnd, GW_OWNER));
    EXPECT_EQ(CRect(600, 300, 760, 400), OnScreen(*mini));
    CString title;
    mini->GetWindowText(title);
    EXPECT_STREQ("Small", title);
    EXPECT_STREQ("Small", mini->GetTitle());
    mini->DestroyWindow();
}

TEST_F(MiniFrame, EndsWithItsOwner)
{
    const HWND window = Make(kPlain, frame)->m_hWnd;
    frame->DestroyWindow();
    frame = nullptr;
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(MiniFrame, IsMovedByItsEdgesOnRequest)
{
    CMiniFrameWnd* mini = Make(kPlain | WS_THICKFRAME | MFS_MOVEFRAME);
    mini->ShowWindow(SW_SHOWNA);
    EXPECT_EQ(HTCAPTION, Hit(*mini, 601, 350));
    EXPECT_EQ(HTCAPTION, Hit(*mini, 680, 398));
    EXPECT_EQ(HTCLIENT, Hit(*mini, 680, 360));
    mini->DestroyWindow();
}

TEST_F(MiniFrame, AThickFrameOfTheFourthKindDoesNotSize)
{
    CMiniFrameWnd* sizes = Make(kPlain | WS_THICKFRAME);
    sizes->ShowWindow(SW_SHOWNA);
    EXPECT_EQ(HTLEFT, Hit(*sizes, 601, 350));
    sizes->DestroyWindow();
    CMiniFrameWnd* fixed = Make(kPlain | WS_THICKFRAME | MFS_4THICKFRAME);
    fixed->ShowWindow(SW_SHOWNA);
    EXPECT_EQ(HTBORDER, Hit(*fixed, 601, 350));
    fixed->DestroyWindow();
}

TEST_F(MiniFrame, CanBeMadeAsSmallAsItsFrame)
{
    CMiniFrameWnd* mini = Make(kPlain | WS_THICKFRAME | MFS_THICKFRAME);
    mini->ShowWindow(SW_SHOWNA);
    mini->SetWindowPos(nullptr, 0, 0, 1, 1, SWP_NOMOVE | SWP_NOZORDER);
    CRect client;
    mini->GetClientRect(&client);
    EXPECT_EQ(0, client.Height());
    EXPECT_EQ(0, client.Width());
    mini->DestroyWindow();
}

TEST_F(MiniFrame, FollowsItsOwnersCaption)
{
    CMiniFrameWnd* synced = Make(kPlain | MFS_SYNCACTIVE, frame);
    CMiniFrameWnd* alone = Make(kPlain, frame);
    frame->captionLooks.clear();
    alone->SendMessage(WM_ACTIVATE, WA_ACTIVE, 0);
    EXPECT_TRUE(frame->captionLooks.empty() || !frame->captionLooks.back()) << "one that does not follow is a stranger";
    synced->SendMessage(WM_ACTIVATE, WA_ACTIVE, 0);
    ASSERT_FALSE(frame->captionLooks.empty());
    EXPECT_TRUE(frame->captionLooks.back());
    frame->SendMessage(WM_ACTIVATE, WA_INACTIVE, reinterpret_cast<LPARAM>(alone->m_hWnd));
    EXPECT_FALSE(frame->captionLooks.back()) << "the other one does not belong to the family";
    synced->DestroyWindow();
    alone->DestroyWindow();
}

TEST_F(MiniFrame, IsMadeByNameOfItsClass)
{
    CObject* made = RUNTIME_CLASS(CMiniFrameWnd)->CreateObject();
    ASSERT_NE(nullptr, made);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CFrameWnd)));
    delete made;
}
