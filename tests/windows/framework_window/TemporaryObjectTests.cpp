#include "framework/window/MenuMap.h"
#include "framework/window/WindowMap.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

class TemporaryObjects : public testing::Test
{
protected:
    TemporaryObjects() : m_class("PlainTemporary", ::DefWindowProc), window(m_class.Create())
    {
        CWnd::DeleteTempMap();
        CMenu::DeleteTempMap();
    }
    ~TemporaryObjects() override
    {
        ::DestroyWindow(window);
    }
    static std::size_t Windows()
    {
        return vorn::WindowMap().TemporaryCount();
    }
    PlainClass m_class;
    HWND window;
};

} // namespace

TEST_F(TemporaryObjects, StandForWindowsThatNobodyWraps)
{
    CWnd* temporary = CWnd::FromHandle(window);
    ASSERT_NE(temporary, nullptr);
    EXPECT_EQ(temporary->m_hWnd, window);
    EXPECT_EQ(CWnd::FromHandle(window), temporary);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(nullptr), nullptr);
}

TEST_F(TemporaryObjects, GiveWayToAPermanentObject)
{
    CWnd* temporary = CWnd::FromHandle(window);
    CWnd mine;
    ASSERT_TRUE(mine.Attach(window));
    EXPECT_EQ(CWnd::FromHandle(window), &mine);
    mine.Detach();
    EXPECT_EQ(CWnd::FromHandle(window), temporary);
}

TEST_F(TemporaryObjects, AreFreedWithoutDestroyingTheirWindows)
{
    CWnd::FromHandle(window);
    EXPECT_EQ(Windows(), 1U);
    CWnd::DeleteTempMap();
    EXPECT_EQ(Windows(), 0U);
    EXPECT_TRUE(::IsWindow(window));
}

TEST_F(TemporaryObjects, AreFreedByTheSecondIdleStep)
{
    CWinThread thread;
    CWnd::FromHandle(window);
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    const HMENU other = ::CreatePopupMenu();
    CMenu::FromHandle(other);
    EXPECT_TRUE(thread.OnIdle(0)) << "more is to do";
    EXPECT_EQ(Windows(), 1U);
    EXPECT_FALSE(thread.OnIdle(1));
    EXPECT_EQ(Windows(), 0U);
    EXPECT_EQ(vorn::MenuMap().TemporaryCount(), 0U);
    EXPECT_EQ(CMenu::FromHandlePermanent(menu.m_hMenu), &menu);
    EXPECT_TRUE(::IsMenu(other));
    ::DestroyMenu(other);
}

TEST_F(TemporaryObjects, OfAHandlerOutliveAModalLoopInsideIt)
{
    class Modal : public CWnd
    {
    public:
        HWND other = nullptr;
        std::size_t freedAtIdle = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_KICKIDLE)
            {
                CWnd::FromHandle(other);
                PostMessage(WM_APP);
            }
            if (message == WM_APP)
            {
                freedAtIdle = vorn::WindowMap().LookupTemporary(other) ? 0 : 1;
                EndModalLoop(IDOK);
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CWnd* held = CWnd::FromHandle(window);
    const HWND second = m_class.Create();
    Modal modal;
    modal.other = second;
    ASSERT_TRUE(CreatePopup(modal));
    EXPECT_EQ(modal.RunModalLoop(MLF_NOIDLEMSG), IDOK);
    EXPECT_EQ(modal.freedAtIdle, 1U) << "the inner loop's own object goes when the inner loop is idle";
    EXPECT_EQ(vorn::WindowMap().LookupTemporary(window), held);
    EXPECT_EQ(held->m_hWnd, window);
    modal.DestroyWindow();
    ::DestroyWindow(second);
}

TEST_F(TemporaryObjects, BelongToOneThread)
{
    CWnd* mine = CWnd::FromHandle(window);
    CWnd permanent;
    const HWND second = m_class.Create();
    ASSERT_TRUE(permanent.Attach(second));
    CWnd* theirs = nullptr;
    CWnd* theirPermanent = nullptr;
    CWnd* seen = &permanent;
    std::thread other(
        [&]
        {
            theirs = CWnd::FromHandle(window);
            theirPermanent = CWnd::FromHandlePermanent(second);
            seen = CWnd::FromHandle(second);
        });
    other.join();
    EXPECT_NE(theirs, nullptr);
    EXPECT_NE(theirs, mine);
    EXPECT_EQ(theirPermanent, nullptr);
    EXPECT_NE(seen, &permanent);
    permanent.DestroyWindow();
}

TEST_F(TemporaryObjects, AreReturnedByWindowFunctions)
{
    CWnd object;
    ASSERT_TRUE(object.Attach(window));
    const HWND child = m_class.Create(window, 3);
    CWnd* item = object.GetDlgItem(3);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->m_hWnd, child);
    EXPECT_EQ(item->GetParent(), &object);
    EXPECT_EQ(object.GetDlgItem(4), nullptr);
    object.Detach();
}
