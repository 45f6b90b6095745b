#include "framework/include/afxdlgs.h"
#include "framework/include/afxext.h"
#include "tests/support/PutCursor.h"
#include "tests/windows/tooltips/TipTest.h"
#include "toolkit/tooltips/ToolTipDlgBar.h"
#include "toolkit/tooltips/ToolTipPropertyPage.h"

#include <gtest/gtest.h>

// Bars and pages that explain their controls.
namespace
{

constexpr UINT kPairs[] = {IDC_TEST_NAME, IDS_TEST_PLAIN, 999, 700, IDC_TEST_DELETE, IDS_TEST_TWO_FIELDS};

CRect PlaceOf(CWnd& window, int control)
{
    CRect rect;
    window.GetDlgItem(control)->GetWindowRect(&rect);
    return rect;
}

/// The mouse comes to a place of a host and rests; what the tip says then, empty without a tip.
CString TipAt(CWnd& host, ToolTipCtrlEx& tips, CPoint point)
{
    vorn::test::PutCursor(point);
    MSG move{};
    move.hwnd = host.m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.pt = point;
    CWnd::WalkPreTranslateTree(nullptr, &move);
    tips.SendMessage(WM_TIMER, 1);
    CString text;
    if (tips.IsWindowVisible())
    {
        tips.GetWindowText(text);
    }
    return text;
}

class BarFrame : public testing::Test
{
protected:
    BarFrame()
    {
        m_frame = new CFrameWnd; // deletes itself
        m_frame->Create(nullptr, "frame", WS_OVERLAPPEDWINDOW, CRect(100, 100, 600, 400));
        m_bar.Create(m_frame, IDD_TEST_BAR, CBRS_TOP, 600);
        m_frame->RecalcLayout();
        m_frame->ShowWindow(SW_SHOWNA);
    }
    ~BarFrame() override
    {
        if (m_frame != nullptr)
        {
            m_frame->DestroyWindow();
        }
    }

    CFrameWnd* m_frame;
    ToolTipDlgBar m_bar;
};

class WeightPage : public ToolTipPropertyPage
{
public:
    WeightPage() : ToolTipPropertyPage(IDD_TEST_PAGE)
    {
    }
    BOOL OnInitDialog() override
    {
        const BOOL result = ToolTipPropertyPage::OnInitDialog();
        m_hadTips = GetToolTipCtrl().m_hWnd != nullptr;
        AddTips(kPairs, 3);
        return result;
    }

    bool m_hadTips = false;
};

} // namespace

TEST_F(BarFrame, ExplainsTheControlsOfItsBar)
{
    EXPECT_EQ(nullptr, m_bar.GetToolTipCtrl().m_hWnd);
    m_bar.AddTips(kPairs, 3);
    EXPECT_EQ(2, m_bar.GetToolTipCtrl().GetToolCount());
    EXPECT_EQ(m_frame->m_hWnd, ::GetWindow(m_bar.GetToolTipCtrl().m_hWnd, GW_OWNER));
    EXPECT_STREQ("Enter the weight of the baggage.",
                 TipAt(m_bar, m_bar.GetToolTipCtrl(), PlaceOf(m_bar, IDC_TEST_NAME).CenterPoint()));
}

TEST_F(BarFrame, FindsTheControlsThatHaveMoved)
{
    m_bar.AddTips(kPairs, 3);
    EXPECT_STREQ("", TipAt(m_bar, m_bar.GetToolTipCtrl(), CPoint(3, 3)));
    m_bar.GetDlgItem(IDC_TEST_NAME)->MoveWindow(200, 2, 50, 12);
    m_bar.UpdateToolRects();
    EXPECT_STREQ("Enter the weight of the baggage.",
                 TipAt(m_bar, m_bar.GetToolTipCtrl(), PlaceOf(m_bar, IDC_TEST_NAME).CenterPoint()));
}

TEST_F(BarFrame, ItsTipsGoWithTheBar)
{
    ASSERT_TRUE(m_bar.InitTips());
    const HWND tips = m_bar.GetToolTipCtrl().m_hWnd;
    m_bar.DestroyWindow();
    EXPECT_FALSE(::IsWindow(tips));
    EXPECT_TRUE(::IsWindow(m_frame->m_hWnd));
    m_bar.EnableMultiLineToolTips();
    EXPECT_EQ(300, m_bar.GetToolTipCtrl().GetMaxTipWidth());
}

TEST(ToolTipPropertyPage, ExplainsItsControls)
{
    CPropertySheet sheet("Weights");
    WeightPage page;
    sheet.AddPage(&page);
    ASSERT_TRUE(sheet.Create(nullptr, WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE));
    EXPECT_TRUE(page.m_hadTips);
    ToolTipCtrlEx& tips = page.GetToolTipCtrl();
    EXPECT_EQ(2, tips.GetToolCount());
    EXPECT_EQ(sheet.m_hWnd, ::GetWindow(tips.m_hWnd, GW_OWNER));
    EXPECT_STREQ("Deletes the leg.", TipAt(page, tips, PlaceOf(page, IDC_TEST_DELETE).CenterPoint()));
    sheet.DestroyWindow();
    EXPECT_EQ(nullptr, tips.m_hWnd);
}

TEST(ToolTipPropertyPage, CanBeMadeInEachWay)
{
    ToolTipPropertyPage none;
    ToolTipPropertyPage byNumber(IDD_TEST_PAGE, IDS_TEST_PLAIN);
    ToolTipPropertyPage byName(MAKEINTRESOURCE(IDD_TEST_PAGE));
    EXPECT_FALSE(none.InitTips());
    EXPECT_FALSE(byNumber.InitTips()) << "before it has a window";
    EXPECT_FALSE(byName.InitTips());
}
