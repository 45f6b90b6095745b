#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

#include <cstring>

namespace
{

class Tipped : public CWnd
{
public:
    int asked = 0;

protected:
    afx_msg BOOL OnNeedText(UINT id, NMHDR* header, LRESULT*)
    {
        EXPECT_EQ(id, 0U);
        ++asked;
        reinterpret_cast<NMTTDISPINFOA*>(header)->lpszText = const_cast<LPSTR>("the tip");
        return TRUE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Tipped, CWnd)
ON_NOTIFY_EX(TTN_NEEDTEXTA, 0, &Tipped::OnNeedText)
END_MESSAGE_MAP()

BOOL CALLBACK FindToolTip(HWND window, LPARAM found)
{
    char name[32] = {};
    ::GetClassName(window, name, sizeof(name));
    if (std::strcmp(name, TOOLTIPS_CLASSA) != 0)
    {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

/// The thread's tooltip window, if there is one.
HWND ToolTip()
{
    HWND found = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), FindToolTip, reinterpret_cast<LPARAM>(&found));
    return found;
}

LRESULT ToolCount()
{
    const HWND tip = ToolTip();
    return tip ? ::SendMessage(tip, TTM_GETTOOLCOUNT, 0, 0) : 0;
}

class ToolTips : public testing::Test
{
protected:
    ToolTips()
    {
        CreatePopup(window); // at 10, 20
        window.ShowWindow(SW_SHOWNOACTIVATE);
        button = ::CreateWindowEx(0, "BUTTON", "", WS_CHILD | WS_VISIBLE, 50, 30, 40, 20, window.m_hWnd,
                                  reinterpret_cast<HMENU>(static_cast<INT_PTR>(5)), nullptr, nullptr);
    }
    void MoveMouse(HWND over, int x, int y)
    {
        MSG message = {};
        message.hwnd = over;
        message.message = WM_MOUSEMOVE;
        message.pt = {x, y};
        window.PreTranslateMessage(&message);
    }
    Tipped window;
    HWND button = nullptr;
};

} // namespace

TEST_F(ToolTips, FindTheChildAtAPoint)
{
    TOOLINFO tool = {};
    EXPECT_EQ(window.OnToolHitTest(CPoint(55, 35), &tool), 5);
    EXPECT_EQ(tool.hwnd, window.m_hWnd);
    EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(button));
    EXPECT_TRUE(tool.uFlags & TTF_IDISHWND);
    EXPECT_EQ(tool.lpszText, LPSTR_TEXTCALLBACK);
    EXPECT_EQ(window.OnToolHitTest(CPoint(5, 5), nullptr), -1);
}

TEST_F(ToolTips, FollowTheMouseOnlyWhenEnabled)
{
    MoveMouse(button, 65, 55);
    EXPECT_EQ(ToolCount(), 0);
    EXPECT_TRUE(window.EnableToolTips());
    MoveMouse(button, 65, 55);
    EXPECT_EQ(ToolCount(), 1);
    MoveMouse(window.m_hWnd, 12, 22);
    EXPECT_EQ(ToolCount(), 0) << "no tool there";
    MoveMouse(button, 65, 55);
    window.EnableToolTips(FALSE);
    EXPECT_EQ(ToolCount(), 0);
}

TEST_F(ToolTips, AskTheirWindowForTheText)
{
    window.EnableToolTips();
    MoveMouse(button, 65, 55);
    char text[64] = {};
    TOOLINFO tool = {};
    tool.cbSize = offsetof(TOOLINFO, lpszText) + sizeof(LPSTR);
    tool.hwnd = window.m_hWnd;
    tool.uFlags = TTF_IDISHWND;
    tool.uId = reinterpret_cast<UINT_PTR>(button);
    tool.lpszText = text;
    ::SendMessage(ToolTip(), TTM_GETTEXT, sizeof(text), reinterpret_cast<LPARAM>(&tool));
    EXPECT_STREQ(text, "the tip");
    EXPECT_GE(window.asked, 1);
}

TEST_F(ToolTips, GoWithTheirWindow)
{
    window.EnableToolTips();
    MoveMouse(button, 65, 55);
    CWnd other;
    ASSERT_TRUE(CreatePopup(other));
    other.DestroyWindow();
    EXPECT_EQ(ToolCount(), 1) << "another window's end is no reason";
    window.DestroyWindow();
    EXPECT_EQ(ToolCount(), 0);
}
