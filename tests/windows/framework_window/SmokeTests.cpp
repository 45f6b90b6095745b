#include "framework/include/afxwin.h"

#include <gtest/gtest.h>

TEST(WindowCreation, BindsTheObjectBeforeTheFirstMessage)
{
    class Recorder : public CWnd
    {
    public:
        std::vector<UINT> messages;
        LRESULT WindowProc(UINT message, WPARAM w, LPARAM l) override
        {
            messages.push_back(message);
            return CWnd::WindowProc(message, w, l);
        }
    };
    Recorder window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), "title", WS_POPUP, 0, 0, 100, 100, nullptr, nullptr));
    ASSERT_GE(window.messages.size(), 3U);
    EXPECT_EQ(window.messages[0], static_cast<UINT>(WM_NCCREATE));
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window);
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.messages.back(), static_cast<UINT>(WM_NCDESTROY));
}
