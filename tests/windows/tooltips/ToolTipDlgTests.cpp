#include "tests/support/DialogDriver.h"
#include "tests/support/DialogTemplateBuilder.h"
#include "tests/support/GdiCount.h"
#include "tests/support/PutCursor.h"
#include "tests/support/UserCount.h"
#include "tests/windows/tooltips/TipTest.h"
#include "toolkit/tooltips/ToolTipDlg.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

// Dialogs that explain their controls.
namespace
{

constexpr UINT kName = 101;
constexpr UINT kDelete = 102;
constexpr const char* kTitle = "Legs of the route";

class LegsDialog : public ToolTipDlg
{
public:
    LegsDialog()
    {
        DialogTemplateBuilder builder;
        m_template = builder.Style(WS_POPUP | WS_CAPTION | WS_SYSMENU)
                         .Title(kTitle)
                         .At({40, 40, 200, 100})
                         .Add(DialogTemplateBuilder::Edit, kName, WS_CHILD | WS_VISIBLE | WS_BORDER, {10, 10, 80, 14})
                         .Add(DialogTemplateBuilder::Button, kDelete, WS_CHILD | WS_VISIBLE, {10, 40, 80, 14}, "Delete")
                         .Bytes();
    }
    BOOL Create(CWnd* parent = nullptr)
    {
        return CreateIndirect(Template(), parent);
    }
    INT_PTR Run()
    {
        InitModalIndirect(Template());
        return DoModal();
    }
    BOOL OnInitDialog() override
    {
        const BOOL result = ToolTipDlg::OnInitDialog();
        m_hadTips = GetToolTipCtrl().m_hWnd != nullptr;
        if (m_addsTips)
        {
            const UINT pairs[] = {kName, IDS_TEST_PLAIN, 999, 700, kDelete, IDS_TEST_TWO_FIELDS};
            AddTips(pairs, 3);
        }
        return result;
    }
    CString TipOf(UINT control)
    {
        CString text;
        GetToolTipCtrl().GetText(text, GetDlgItem(static_cast<int>(control)), control);
        return text;
    }

    bool m_addsTips = false;
    bool m_hadTips = false;

private:
    LPCDLGTEMPLATE Template() const
    {
        return reinterpret_cast<LPCDLGTEMPLATE>(m_template.data());
    }

    std::vector<std::uint8_t> m_template;
};

CPoint MiddleOf(CWnd& dialog, UINT control)
{
    CRect rect;
    dialog.GetDlgItem(static_cast<int>(control))->GetWindowRect(&rect);
    return rect.CenterPoint();
}

/// Moves the mouse as a hand does: by the system's input.
void MoveMouse(CPoint point)
{
    ::SetCursorPos(point.x - 2, point.y);
    ::SetCursorPos(point.x - 1, point.y);
    INPUT move{};
    move.type = INPUT_MOUSE;
    move.mi.dx = 1;
    move.mi.dwFlags = MOUSEEVENTF_MOVE;
    ::SendInput(1, &move, sizeof move);
}

} // namespace

TEST(ToolTipDlg, HasATooltipControlWhenItBegins)
{
    LegsDialog dialog;
    ASSERT_TRUE(dialog.Create());
    EXPECT_TRUE(dialog.m_hadTips);
    EXPECT_EQ(0, dialog.GetToolTipCtrl().GetToolCount());
    EXPECT_EQ(dialog.m_hWnd, ::GetWindow(dialog.GetToolTipCtrl().m_hWnd, GW_OWNER));
    dialog.DestroyWindow();
    EXPECT_EQ(nullptr, dialog.GetToolTipCtrl().m_hWnd);
}

TEST(ToolTipDlg, GivesEachControlThatExistsItsTip)
{
    LegsDialog dialog;
    dialog.m_addsTips = true;
    ASSERT_TRUE(dialog.Create());
    EXPECT_EQ(2, dialog.GetToolTipCtrl().GetToolCount());
    EXPECT_STREQ("Enter the weight of the baggage.", dialog.TipOf(kName));
    EXPECT_EQ('D', dialog.TipOf(kDelete)[0]);
    dialog.DestroyWindow();
}

TEST(ToolTipDlg, TakesTwoListsToo)
{
    LegsDialog dialog;
    ASSERT_TRUE(dialog.Create());
    const UINT controls[] = {kDelete, 555, kName};
    const UINT texts[] = {700, 701, 999};
    dialog.AddTips(controls, texts, 3);
    EXPECT_EQ(2, dialog.GetToolTipCtrl().GetToolCount());
    EXPECT_STREQ("The display name for this view.", dialog.TipOf(kDelete));
    EXPECT_STREQ("Enter the weight.", dialog.TipOf(kName));
    dialog.DestroyWindow();
}

TEST(ToolTipDlg, BadListsAddNothing)
{
    LegsDialog dialog;
    ASSERT_TRUE(dialog.Create());
    const UINT ids[] = {kName, 700};
    dialog.AddTips(nullptr, 1);
    dialog.AddTips(ids, 0);
    dialog.AddTips(ids, -1);
    dialog.AddTips(nullptr, ids, 1);
    dialog.AddTips(ids, nullptr, 1);
    dialog.AddTips(ids, ids, -1);
    EXPECT_EQ(0, dialog.GetToolTipCtrl().GetToolCount());
    dialog.DestroyWindow();
    dialog.AddTips(ids, 1);
    EXPECT_FALSE(dialog.InitTips()) << "without a window";
}

TEST(ToolTipDlg, MakesItsTooltipControlOnceAndAgainWhenItHasGone)
{
    LegsDialog dialog;
    dialog.m_addsTips = true;
    ASSERT_TRUE(dialog.Create());
    const HWND first = dialog.GetToolTipCtrl().m_hWnd;
    EXPECT_TRUE(dialog.InitTips());
    EXPECT_EQ(first, dialog.GetToolTipCtrl().m_hWnd);
    dialog.GetToolTipCtrl().DestroyWindow();
    EXPECT_TRUE(dialog.InitTips());
    EXPECT_NE(nullptr, dialog.GetToolTipCtrl().m_hWnd);
    dialog.DestroyWindow();
    ASSERT_TRUE(dialog.Create()) << "a second time";
    EXPECT_EQ(2, dialog.GetToolTipCtrl().GetToolCount());
    dialog.DestroyWindow();
}

TEST(ToolTipDlg, AddTipsMakesTheTooltipControlItself)
{
    LegsDialog dialog;
    ASSERT_TRUE(dialog.Create());
    dialog.GetToolTipCtrl().DestroyWindow();
    const UINT ids[] = {kName, 700};
    dialog.AddTips(ids, 1);
    EXPECT_EQ(1, dialog.GetToolTipCtrl().GetToolCount());
    EXPECT_NE(nullptr, dialog.GetToolTipCtrl().m_hWnd);
    dialog.DestroyWindow();
}

TEST(ToolTipDlg, LongLinesAreWrappedOnDemand)
{
    LegsDialog dialog;
    ASSERT_TRUE(dialog.Create());
    EXPECT_EQ(0, dialog.GetToolTipCtrl().GetMaxTipWidth());
    dialog.EnableMultiLineToolTips();
    EXPECT_EQ(300, dialog.GetToolTipCtrl().GetMaxTipWidth());
    dialog.EnableMultiLineToolTips(FALSE);
    EXPECT_EQ(0, dialog.GetToolTipCtrl().GetMaxTipWidth());
    dialog.DestroyWindow();
}

TEST(ToolTipDlg, RelaysTheMessagesOfItsControls)
{
    LegsDialog dialog;
    dialog.m_addsTips = true;
    ASSERT_TRUE(dialog.Create());
    dialog.ShowWindow(SW_SHOWNA);
    const CPoint middle = MiddleOf(dialog, kName);
    vorn::test::PutCursor(middle);
    MSG move{};
    move.hwnd = dialog.GetDlgItem(kName)->m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.pt = middle;
    CWnd::WalkPreTranslateTree(nullptr, &move);
    dialog.GetToolTipCtrl().SendMessage(WM_TIMER, 1);
    EXPECT_TRUE(dialog.GetToolTipCtrl().IsWindowVisible());
    move.message = WM_KEYDOWN;
    move.wParam = VK_F9;
    CWnd::WalkPreTranslateTree(nullptr, &move);
    EXPECT_FALSE(dialog.GetToolTipCtrl().IsWindowVisible());
    dialog.DestroyWindow();
}

TEST(ToolTipDlg, ModalItShowsItsTipsToARealMouse)
{
    LegsDialog dialog;
    dialog.m_addsTips = true;
    int step = 0;
    DWORD moved = 0;
    DialogDriver driver(
        [&]
        {
            const HWND window = FindDialog(kTitle);
            const HWND tip = dialog.GetToolTipCtrl().m_hWnd;
            if (window == nullptr || tip == nullptr)
            {
                return false;
            }
            switch (step)
            {
            case 0:
                dialog.GetToolTipCtrl().SetDelayTime(TTDT_INITIAL, 50);
                ++step;
                return false;
            case 1:
                if (::IsWindowVisible(tip))
                {
                    ++step;
                }
                else if (::GetTickCount() - moved >= 300)
                {
                    moved = ::GetTickCount();
                    MoveMouse(MiddleOf(dialog, kDelete) + CSize(static_cast<int>(moved % 10), 0));
                }
                return false;
            default:
                if (::IsWindowVisible(tip))
                {
                    MoveMouse({3 + static_cast<int>(::GetTickCount() % 20), 3});
                    return false;
                }
                ::PostMessage(window, WM_COMMAND, IDCANCEL, 0);
                return true;
            }
        });
    EXPECT_EQ(IDCANCEL, dialog.Run());
    EXPECT_EQ(2, step);
}

TEST(ToolTipDlg, ManyOpeningsLeaveNothingBehind)
{
    const auto open = []
    {
        LegsDialog dialog;
        dialog.m_addsTips = true;
        dialog.Create();
        dialog.GetToolTipCtrl().SendMessage(WM_GETFONT);
        dialog.DestroyWindow();
    };
    open();
    const unsigned drawing = vorn::test::CountGdiObjects();
    const unsigned users = vorn::test::CountUserObjects();
    for (int i = 0; i < 200; ++i)
    {
        open();
    }
    EXPECT_EQ(drawing, vorn::test::CountGdiObjects());
    EXPECT_EQ(users, vorn::test::CountUserObjects());
}

TEST(ToolTipDlg, AnObjectThatEndsWithItsWindowEndsItsTips)
{
    HWND tips = nullptr;
    {
        LegsDialog dialog;
        dialog.m_addsTips = true;
        dialog.Create();
        tips = dialog.GetToolTipCtrl().m_hWnd;
        ASSERT_TRUE(::IsWindow(tips));
    }
    EXPECT_FALSE(::IsWindow(tips));
}
