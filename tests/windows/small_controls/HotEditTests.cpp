#include "tests/support/PumpUntil.h"
#include "tests/windows/small_controls/ControlDialog.h"
#include "toolkit/HotEdit.h"

#include <gtest/gtest.h>

using namespace vorn::test;

namespace
{
/// The colour of the border's corner pixel.
COLORREF BorderColor(CWnd& edit)
{
    CWindowDC dc(&edit);
    return dc.GetPixel(0, 0);
}

class LitField : public testing::Test
{
protected:
    void Make(HotEdit& edit)
    {
        edit.CreateEx(WS_EX_CLIENTEDGE, "EDIT", "", WS_CHILD | WS_VISIBLE, 10, 10, 100, 24, m_dialog.m_hWnd,
                      reinterpret_cast<HMENU>(7));
        edit.UpdateWindow();
        ::SetCursorPos(900, 700);
        PumpWaiting();
    }

    ControlDialog m_dialog;
};
} // namespace

TEST_F(LitField, LightsUpBelowTheMouseUntilItHasGone)
{
    HotEdit edit;
    Make(edit);
    EXPECT_EQ(::GetSysColor(COLOR_BTNSHADOW), BorderColor(edit));
    ::SetCursorPos(100, 70);
    edit.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_TRUE(edit.IsHot());
    EXPECT_EQ(::GetSysColor(COLOR_HIGHLIGHT), BorderColor(edit));
    ::SetCursorPos(900, 700);
    EXPECT_TRUE(PumpUntil(
        [&edit]
        {
            return !edit.IsHot();
        }));
    EXPECT_EQ(::GetSysColor(COLOR_BTNSHADOW), BorderColor(edit));
}

TEST_F(LitField, HiddenItIsDarkWhereverTheMouseIs)
{
    HotEdit edit;
    Make(edit);
    ::SetCursorPos(100, 70);
    edit.HotActivate(true);
    edit.ShowWindow(SW_HIDE);
    EXPECT_TRUE(PumpUntil(
        [&edit]
        {
            return !edit.IsHot();
        }));
    ::SetCursorPos(900, 700);
}

TEST_F(LitField, ItsBorderIsAPartOfIt)
{
    HotEdit edit;
    Make(edit);
    edit.SendMessage(WM_NCMOUSEMOVE, HTBORDER, 0);
    EXPECT_TRUE(edit.IsHot());
    edit.HotActivate(false);
    EXPECT_FALSE(edit.IsHot());
    EXPECT_EQ(::GetSysColor(COLOR_BTNSHADOW), BorderColor(edit));
}

TEST_F(LitField, OneThatDoesNotReactStaysDark)
{
    HotEdit edit(false);
    Make(edit);
    edit.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
    EXPECT_FALSE(edit.IsHot());
    edit.HotActivate(true);
    EXPECT_FALSE(edit.IsHot());
    EXPECT_EQ(::GetSysColor(COLOR_BTNSHADOW), BorderColor(edit));
}

TEST_F(LitField, FollowsTheSystemsColours)
{
    HotEdit edit;
    Make(edit);
    const int element = COLOR_HIGHLIGHT;
    const COLORREF former = ::GetSysColor(element);
    const COLORREF changed = RGB(10, 200, 30);
    edit.HotActivate(true);
    ::SetSysColors(1, &element, &changed);
    edit.SendMessage(WM_SYSCOLORCHANGE);
    const COLORREF seen = BorderColor(edit);
    ::SetSysColors(1, &element, &former);
    EXPECT_EQ(changed, seen);
}

TEST_F(LitField, CanBeDestroyedWhileItIsLit)
{
    HotEdit edit;
    Make(edit);
    edit.HotActivate(true);
    EXPECT_TRUE(edit.DestroyWindow());
    EXPECT_FALSE(edit.IsHot());
    edit.HotActivate(true);
    edit.UpdateColors();
}
