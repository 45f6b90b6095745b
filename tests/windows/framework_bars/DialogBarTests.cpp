#include "tests/windows/framework_bars/BarFrame.h"

#include "tests/support/PumpUntil.h"

using namespace vorn::test;

namespace
{

/// Counts what a dialog's bar has of its own.
class PlanBar : public CDialogBar
{
public:
    int initialised = 0;
    CString name;
    bool hadControls = false;
    bool answersForNobody = false;

protected:
    afx_msg void OnUpdateNobody(CCmdUI* item)
    {
        if (answersForNobody)
            item->Enable();
        else
            item->ContinueRouting();
    }
    void DoDataExchange(CDataExchange* exchange) override
    {
        CDialogBar::DoDataExchange(exchange);
        DDX_Text(exchange, ID_TEST_NAME, name);
    }
    afx_msg LRESULT OnInit(WPARAM wParam, LPARAM lParam)
    {
        ++initialised;
        const LRESULT result = HandleInitDialog(wParam, lParam);
        hadControls = GetDlgItem(ID_TEST_GO) != nullptr;
        return result;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(PlanBar, CDialogBar)
ON_MESSAGE(WM_INITDIALOG, &PlanBar::OnInit)
ON_UPDATE_COMMAND_UI(ID_TEST_NOBODY, &PlanBar::OnUpdateNobody)
END_MESSAGE_MAP()

class DialogBars : public BarsTest
{
protected:
    DialogBars()
    {
        frame->EnableDocking(CBRS_ALIGN_ANY);
        CRect units(0, 0, 160, 50);
        bar.name = "KDEN";
        EXPECT_TRUE(bar.Create(frame, IDD_PLAN_BAR, CBRS_TOP, kFirst));
        ::MapDialogRect(bar.m_hWnd, &units);
        templateSize = units.Size();
        bar.EnableDocking(CBRS_ALIGN_ANY);
    }

    PlanBar bar;
    CSize templateSize;
};

} // namespace

TEST_F(DialogBars, HaveTheSizeOfTheirTemplate)
{
    EXPECT_EQ(templateSize, bar.m_sizeDefault);
    EXPECT_EQ(templateSize, bar.CalcFixedLayout(FALSE, TRUE));
    EXPECT_EQ(templateSize, bar.CalcFixedLayout(FALSE, FALSE));
    EXPECT_EQ(CSize(32767, templateSize.cy), bar.CalcFixedLayout(TRUE, TRUE));
    EXPECT_EQ(CSize(templateSize.cx, 32767), bar.CalcFixedLayout(TRUE, FALSE));
    EXPECT_EQ(templateSize, bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK));
}

TEST_F(DialogBars, AreVisibleChildrenOfTheirFrame)
{
    frame->RecalcLayout();
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_EQ(int(kFirst), bar.GetDlgCtrlID());
    EXPECT_EQ(frame->m_hWnd, ::GetParent(bar.m_hWnd));
    EXPECT_EQ(&bar, frame->GetControlBar(kFirst));
    EXPECT_EQ(CRect(0, 0, 400, templateSize.cy), PlaceOf(bar));
    EXPECT_EQ(CBRS_TOP, bar.GetBarStyle());
}

TEST_F(DialogBars, AreInitialisedLikeDialogs)
{
    EXPECT_EQ(1, bar.initialised);
    EXPECT_TRUE(bar.hadControls);
    CString text;
    bar.GetDlgItemText(ID_TEST_NAME, text);
    EXPECT_STREQ("KDEN", text) << "data exchange";
    EXPECT_EQ(2, bar.SendDlgItemMessage(ID_TEST_LIST, CB_GETCOUNT)) << "first contents from the resources";
}

TEST_F(DialogBars, LeaveTheFocusWhereItIs)
{
    ::SetFocus(frame->m_hWnd);
    CDialogBar other;
    ASSERT_TRUE(other.Create(frame, IDD_PLAN_BAR, CBRS_TOP, kSecond));
    EXPECT_EQ(frame->m_hWnd, ::GetFocus());
    ::SetFocus(*bar.GetDlgItem(ID_TEST_NAME));
    frame->FloatControlBar(&bar, CPoint(400, 420));
    EXPECT_EQ(frame->m_hWnd, ::GetFocus()) << "not in a window that is not the active one";
}

TEST_F(DialogBars, DockAndFloatInTheirSize)
{
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_BOTTOM);
    EXPECT_EQ(templateSize, PlaceOf(bar).Size());
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
    EXPECT_EQ(templateSize, PlaceOf(bar).Size());
    frame->FloatControlBar(&bar, CPoint(400, 420));
    CRect client;
    bar.GetClientRect(&client);
    EXPECT_EQ(templateSize, client.Size());
    EXPECT_EQ(CPoint(400, 420), OnScreen(bar).TopLeft());
}

TEST_F(DialogBars, TheGripperComesOnTopOfTheTemplate)
{
    CDialogBar gripped;
    ASSERT_TRUE(gripped.Create(frame, IDD_PLAN_BAR, CBRS_TOP | CBRS_GRIPPER, kSecond));
    gripped.EnableDocking(CBRS_ALIGN_ANY);
    EXPECT_EQ(templateSize, gripped.m_sizeDefault);
    frame->DockControlBar(&gripped, AFX_IDW_DOCKBAR_TOP);
    CRect client;
    gripped.GetClientRect(&client);
    EXPECT_EQ(templateSize, client.Size());
    EXPECT_EQ(templateSize + CSize(9, 0), PlaceOf(gripped).Size());
    frame->DockControlBar(&gripped, AFX_IDW_DOCKBAR_LEFT);
    gripped.GetClientRect(&client);
    EXPECT_EQ(templateSize, client.Size());
    EXPECT_EQ(templateSize + CSize(0, 9), PlaceOf(gripped).Size());
    frame->FloatControlBar(&gripped, CPoint(400, 420));
    EXPECT_EQ(templateSize, OnScreen(gripped).Size());
    gripped.GetClientRect(&client);
    EXPECT_EQ(templateSize, client.Size());
}

TEST_F(DialogBars, ControlsReachTheFrameWhereverTheBarIs)
{
    for (int place = 0; place < 3; ++place)
    {
        Notes().clear();
        if (place == 1)
        {
            frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
        }
        if (place == 2)
        {
            frame->FloatControlBar(&bar, CPoint(400, 420));
        }
        bar.SendDlgItemMessage(ID_TEST_GO, BM_CLICK);
        PumpWaiting();
        EXPECT_EQ("go ", Notes()) << place;
        Notes().clear();
        bar.SetDlgItemText(ID_TEST_NAME, place == 1 ? "KSEA" : "KBOS");
        EXPECT_EQ("name ", Notes()) << place;
    }
}

TEST_F(DialogBars, ButtonsWithoutHandlerAreDisabledAtIdleTime)
{
    frame->FloatControlBar(&bar, CPoint(400, 420));
    AfxGetApp()->OnIdle(0);
    EXPECT_TRUE(bar.GetDlgItem(ID_TEST_GO)->IsWindowEnabled());
    EXPECT_FALSE(bar.GetDlgItem(ID_TEST_NOBODY)->IsWindowEnabled());
    EXPECT_TRUE(bar.GetDlgItem(ID_TEST_NAME)->IsWindowEnabled()) << "fields keep their state";
}

TEST_F(DialogBars, AnswerForTheirControlsBeforeTheFrameIsAsked)
{
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    bar.answersForNobody = true;
    AfxGetApp()->OnIdle(0);
    EXPECT_TRUE(bar.GetDlgItem(ID_TEST_NOBODY)->IsWindowEnabled());
    bar.answersForNobody = false;
    AfxGetApp()->OnIdle(0);
    EXPECT_FALSE(bar.GetDlgItem(ID_TEST_NOBODY)->IsWindowEnabled());
}

TEST_F(DialogBars, TabMovesAmongTheControls)
{
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    ::SetFocus(*bar.GetDlgItem(ID_TEST_NAME));
    MSG message{};
    message.hwnd = *bar.GetDlgItem(ID_TEST_NAME);
    message.message = WM_KEYDOWN;
    message.wParam = VK_TAB;
    EXPECT_TRUE(CWnd::WalkPreTranslateTree(frame->m_hWnd, &message));
    EXPECT_EQ(bar.GetDlgItem(ID_TEST_GO)->m_hWnd, ::GetFocus());
}

TEST_F(DialogBars, TheFramesAcceleratorsComeBeforeTheDialogsKeys)
{
    ASSERT_TRUE(frame->LoadAccelTable(MAKEINTRESOURCE(IDR_TEST_FRAME)));
    MSG message{};
    message.message = WM_KEYDOWN;
    message.wParam = VK_F7;
    for (int place = 0; place < 2; ++place)
    {
        Notes().clear();
        if (place == 1)
        {
            frame->FloatControlBar(&bar, CPoint(400, 420));
        }
        message.hwnd = *bar.GetDlgItem(ID_TEST_NAME);
        EXPECT_TRUE(CWnd::WalkPreTranslateTree(nullptr, &message));
        EXPECT_EQ("accelerator ", Notes()) << place;
    }
}

TEST_F(DialogBars, ComeFromATemplateByNameToo)
{
    CDialogBar named;
    ASSERT_TRUE(named.Create(frame, "NAMED_BAR", CBRS_LEFT, kSecond));
    EXPECT_EQ(&named, frame->GetControlBar(kSecond));
    EXPECT_EQ(named.m_sizeDefault.cx, PlaceOf(named).Width());
}

TEST_F(DialogBars, ACaptionAndEarlyVisibilityOfTheTemplateAreLeftOut)
{
    CDialogBar captioned;
    ASSERT_TRUE(captioned.Create(frame, IDD_CAPTION_BAR, CBRS_TOP, kSecond));
    EXPECT_NE(static_cast<DWORD>(WS_CAPTION), captioned.GetStyle() & WS_CAPTION);
    EXPECT_TRUE(captioned.IsWindowVisible());
    CString title;
    captioned.GetWindowText(title);
    EXPECT_STREQ("Route", title) << "for the floating frame";
    captioned.EnableDocking(CBRS_ALIGN_ANY);
    CFrameWnd* floating = frame->FloatControlBar(&captioned, CPoint(400, 420));
    floating->GetWindowText(title);
    EXPECT_STREQ("Route", title);
}

TEST_F(DialogBars, MissingOrUnusableTemplatesMakeNoBar)
{
    CDialogBar none;
    EXPECT_FALSE(none.Create(frame, 9999U, CBRS_TOP, kSecond));
    EXPECT_FALSE(none.Create(frame, "NO_SUCH_BAR", CBRS_TOP, kSecond));
    EXPECT_FALSE(none.Create(frame, IDD_CUSTOM_BAR, CBRS_TOP, kSecond));
    EXPECT_EQ(nullptr, none.m_hWnd);
    EXPECT_EQ(nullptr, frame->GetControlBar(kSecond));
    EXPECT_FALSE(bar.Create(frame, IDD_PLAN_BAR, CBRS_TOP, kSecond)) << "there is one already";
    EXPECT_TRUE(none.Create(frame, IDD_PLAN_BAR, CBRS_TOP, kSecond));
}

TEST_F(DialogBars, AFreeAreaDragsTheBar)
{
    frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_TOP);
    PumpWaiting();
    const CPoint free(3, templateSize.cy - 3);
    bar.PostMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(free.x + 300, free.y + 200));
    bar.PostMessage(WM_LBUTTONUP, 0, MAKELPARAM(free.x + 300, free.y + 250));
    bar.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(free.x, free.y));
    EXPECT_TRUE(bar.IsFloating());
    EXPECT_EQ(CPoint(400, 350), OnScreen(bar).TopLeft());
    // A text in the bar hands the mouse to the bar.
    CWnd* label = bar.GetDlgItem(ID_TEST_NOTE);
    EXPECT_EQ(HTTRANSPARENT, label->SendMessage(WM_NCHITTEST, 0, 0));
}
