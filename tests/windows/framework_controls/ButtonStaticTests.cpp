#include "framework/controls/CButton.h"
#include "framework/controls/CStatic.h"
#include "tests/windows/framework_controls/ControlHost.h"

namespace
{
class ButtonTest : public ControlTest
{
};
class StaticTest : public ControlTest
{
};

class ReflectingButton : public CButton
{
public:
    afx_msg void OnClicked()
    {
        ++m_clicks;
    }
    void DrawItem(LPDRAWITEMSTRUCT item) override
    {
        m_drawn = *item;
    }
    int m_clicks = 0;
    DRAWITEMSTRUCT m_drawn{};

    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ReflectingButton, CButton)
ON_CONTROL_REFLECT(BN_CLICKED, &ReflectingButton::OnClicked)
END_MESSAGE_MAP()
} // namespace

TEST_F(ButtonTest, CheckStateIsSetAndRead)
{
    CButton button;
    ASSERT_TRUE(button.Create("check", WS_CHILD | WS_VISIBLE | BS_AUTO3STATE, m_rect, &m_host, kId));
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_AUTO3STATE));
    EXPECT_EQ(button.GetCheck(), BST_UNCHECKED);
    button.SetCheck(BST_INDETERMINATE);
    EXPECT_EQ(button.GetCheck(), BST_INDETERMINATE);
    button.SetState(TRUE);
    EXPECT_TRUE(button.GetState() & BST_PUSHED);
}

TEST_F(ButtonTest, StyleCanChange)
{
    CButton button;
    ASSERT_TRUE(button.Create("push", WS_CHILD | BS_PUSHBUTTON, m_rect, &m_host, kId));
    button.SetButtonStyle(BS_DEFPUSHBUTTON);
    EXPECT_EQ(button.GetButtonStyle(), static_cast<UINT>(BS_DEFPUSHBUTTON));
}

TEST_F(ButtonTest, PicturesAreReturnedWhenReplaced)
{
    CButton button;
    ASSERT_TRUE(button.Create("", WS_CHILD | BS_ICON, m_rect, &m_host, kId));
    const HICON first = ::LoadIconA(nullptr, MAKEINTRESOURCEA(32512));
    const HICON second = ::LoadIconA(nullptr, MAKEINTRESOURCEA(32513));
    EXPECT_EQ(button.SetIcon(first), nullptr);
    EXPECT_EQ(button.SetIcon(second), first);
    EXPECT_EQ(button.GetIcon(), second);
}

TEST_F(ButtonTest, ClickIsReflected)
{
    ReflectingButton button;
    ASSERT_TRUE(button.Create("push", WS_CHILD | WS_VISIBLE, m_rect, &m_host, kId));
    button.SendMessage(BM_CLICK);
    EXPECT_EQ(button.m_clicks, 1);
}

TEST_F(ButtonTest, OwnerDrawingReachesTheControl)
{
    ReflectingButton button;
    ASSERT_TRUE(button.Create("drawn", WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, m_rect, &m_host, kId));
    button.RedrawWindow();
    EXPECT_EQ(button.m_drawn.hwndItem, button.m_hWnd);
    EXPECT_EQ(button.m_drawn.CtlID, kId);
    EXPECT_EQ(button.m_drawn.CtlType, static_cast<UINT>(ODT_BUTTON));
}

TEST_F(ButtonTest, WithoutWindowAnswersNothing)
{
    CButton button;
    EXPECT_EQ(button.GetCheck(), 0);
    EXPECT_EQ(button.GetIcon(), nullptr);
    button.SetCheck(1);
}

TEST_F(StaticTest, IconIsShownAndReplaced)
{
    CStatic label;
    ASSERT_TRUE(label.Create("", WS_CHILD | WS_VISIBLE | SS_ICON, m_rect, &m_host));
    const HICON icon = ::LoadIconA(nullptr, MAKEINTRESOURCEA(32512));
    EXPECT_EQ(label.SetIcon(icon), nullptr);
    EXPECT_EQ(label.GetIcon(), icon);
}

TEST_F(StaticTest, DefaultIdMeansNone)
{
    CStatic label;
    ASSERT_TRUE(label.Create("text", WS_CHILD, m_rect, &m_host));
    EXPECT_EQ(label.GetDlgCtrlID() & 0xffff, 0xffff);
    CString text;
    label.GetWindowText(text);
    EXPECT_EQ(text, "text");
}

TEST_F(StaticTest, OwnerDrawingReachesTheControl)
{
    class Drawn : public CStatic
    {
    public:
        void DrawItem(LPDRAWITEMSTRUCT item) override
        {
            m_window = item->hwndItem;
        }
        HWND m_window = nullptr;
    };
    Drawn label;
    ASSERT_TRUE(label.Create("", WS_CHILD | WS_VISIBLE | SS_OWNERDRAW, m_rect, &m_host, kId));
    label.RedrawWindow();
    EXPECT_EQ(label.m_window, label.m_hWnd);
}

TEST_F(StaticTest, ColourOfTheControlIsReflected)
{
    class Coloured : public CStatic
    {
    public:
        BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override
        {
            m_asked = m_asked || message == WM_CTLCOLORSTATIC;
            return CStatic::OnChildNotify(message, wParam, lParam, result);
        }
        bool m_asked = false;
    };
    Coloured label;
    ASSERT_TRUE(label.Create("text", WS_CHILD | WS_VISIBLE, m_rect, &m_host));
    label.RedrawWindow();
    EXPECT_TRUE(label.m_asked);
}
