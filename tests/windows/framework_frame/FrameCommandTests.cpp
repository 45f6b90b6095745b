#include "tests/windows/framework_frame/TestFrame.h"

#include "tests/support/PumpUntil.h"

#include <functional>
#include <utility>

using namespace vorn::test;

namespace
{
class FrameCommands : public FrameTest
{
protected:
    FrameCommands()
    {
        App().noteRouting = true;
    }

    static TestFrame* LoadedFrame()
    {
        auto* frame = new TestFrame;
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(TestView);
        frame->LoadFrame(IDR_TEST_FRAME, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr, &context);
        frame->SetActiveView(ViewOf(*frame), FALSE);
        frame->statusBar.Create(frame);
        const UINT panes[] = {ID_SEPARATOR, ID_TEST_PANE};
        frame->statusBar.SetIndicators(panes, 2);
        frame->RecalcLayout();
        PumpWaiting();
        Notes().clear();
        return frame;
    }

    /// Opens the first popup as the system does and gives it back up to date.
    static CMenu& Popup(TestFrame& frame)
    {
        CMenu* popup = frame.GetMenu()->GetSubMenu(0);
        frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), 0);
        return *popup;
    }

    static CString MessageLine(TestFrame& frame)
    {
        return frame.statusBar.GetPaneText(0);
    }
};
} // namespace

TEST_F(FrameCommands, GoFirstToTheViewThenToTheFrameThenToTheApplication)
{
    TestFrame* frame = LoadedFrame();
    frame->SendMessage(WM_COMMAND, ID_TEST_VIEW);
    EXPECT_EQ("frame view view-handler", AllNotes());
    Notes().clear();
    frame->SendMessage(WM_COMMAND, ID_TEST_APP);
    EXPECT_EQ("frame view app app-handler", AllNotes());
    Notes().clear();
    frame->OnCmdMsg(ID_TEST_FRAME, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ("frame view frame-handler", AllNotes());
    Notes().clear();
    EXPECT_FALSE(frame->OnCmdMsg(ID_TEST_NOBODY, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ("frame view app", AllNotes());
    frame->DestroyWindow();
}

TEST_F(FrameCommands, OfAllAreTheViewsFirstThenTheFramesThenTheApplications)
{
    App().noteRouting = false;
    TestFrame* frame = LoadedFrame();
    frame->SendMessage(WM_COMMAND, ID_TEST_ALL);
    frame->SetActiveView(nullptr, FALSE);
    frame->SendMessage(WM_COMMAND, ID_TEST_ALL);
    frame->DestroyWindow();
    auto* plain = new CFrameWnd;
    plain->Create(nullptr, "plain");
    plain->SendMessage(WM_COMMAND, ID_TEST_ALL);
    plain->DestroyWindow();
    EXPECT_EQ("view-handler frame-handler ~view ~frame app-handler", AllNotes());
}

TEST_F(FrameCommands, GoToTheDocumentBehindItsView)
{
    auto* document = new TestDocument;
    TestFrame* frame = ShowFrameWithView(document);
    App().noteRouting = true;
    frame->OnCmdMsg(ID_TEST_DOCUMENT, CN_COMMAND, nullptr, nullptr);
    EXPECT_EQ("frame view document document-handler", AllNotes());
    frame->DestroyWindow();
}

TEST_F(FrameCommands, WithoutViewGoToTheFrame)
{
    TestFrame* frame = LoadedFrame();
    frame->SetActiveView(nullptr);
    Notes().clear();
    EXPECT_FALSE(frame->OnCmdMsg(ID_TEST_VIEW, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ("frame app", AllNotes());
    frame->DestroyWindow();
}

TEST_F(FrameCommands, MenuItemsAreBroughtUpToDateWhenTheirPopupOpens)
{
    TestFrame* frame = LoadedFrame();
    CMenu& popup = Popup(*frame);
    EXPECT_TRUE(popup.GetMenuState(ID_TEST_VIEW, MF_BYCOMMAND) & MF_CHECKED) << "checked by the view";
    EXPECT_TRUE(popup.GetMenuState(ID_TEST_FRAME, MF_BYCOMMAND) & MF_GRAYED) << "disabled by the frame";
    EXPECT_TRUE(popup.GetMenuState(ID_TEST_NOBODY, MF_BYCOMMAND) & MF_GRAYED) << "nobody handles it";
    EXPECT_TRUE(popup.GetMenuState(ID_VIEW_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED) << "the bar is visible";
    frame->ShowControlBar(&frame->statusBar, FALSE, FALSE);
    EXPECT_FALSE(Popup(*frame).GetMenuState(ID_VIEW_STATUS_BAR, MF_BYCOMMAND) & MF_CHECKED);
    frame->DestroyWindow();
}

TEST_F(FrameCommands, ItemsWithoutHandlerStayEnabledIfTheFrameSaysSo)
{
    TestFrame* frame = LoadedFrame();
    frame->m_bAutoMenuEnable = FALSE;
    EXPECT_FALSE(Popup(*frame).GetMenuState(ID_TEST_NOBODY, MF_BYCOMMAND) & MF_GRAYED);
    frame->DestroyWindow();
}

TEST_F(FrameCommands, TheSystemMenuIsLeftAlone)
{
    TestFrame* frame = LoadedFrame();
    CMenu* popup = frame->GetMenu()->GetSubMenu(0);
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup->m_hMenu), MAKELPARAM(0, TRUE));
    EXPECT_FALSE(popup->GetMenuState(ID_TEST_NOBODY, MF_BYCOMMAND) & MF_GRAYED);
    frame->DestroyWindow();
}

namespace
{
/// A frame whose handler puts items into the menu that is being updated.
class GrowingFrame : public TestFrame
{
protected:
    afx_msg void OnUpdateView(CCmdUI* cmdUI)
    {
        cmdUI->m_pMenu->InsertMenu(cmdUI->m_nIndex++, MF_BYPOSITION | MF_STRING, 4711, "inserted");
        cmdUI->m_nIndexMax = cmdUI->m_pMenu->GetMenuItemCount();
    }
    afx_msg void OnUpdateFrame(CCmdUI* cmdUI)
    {
        cmdUI->m_pMenu->DeleteMenu(cmdUI->m_nIndex, MF_BYPOSITION);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(GrowingFrame, TestFrame)
ON_UPDATE_COMMAND_UI(ID_TEST_VIEW, &GrowingFrame::OnUpdateView)
ON_UPDATE_COMMAND_UI(ID_TEST_FRAME, &GrowingFrame::OnUpdateFrame)
END_MESSAGE_MAP()
} // namespace

TEST_F(FrameCommands, HandlersMayChangeTheMenuWhileItIsUpdated)
{
    auto* frame = new GrowingFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME));
    CMenu& popup = Popup(*frame);
    EXPECT_EQ(4711U, popup.GetMenuItemID(0)) << "put in";
    EXPECT_EQ(static_cast<UINT>(-1), popup.GetMenuState(ID_TEST_FRAME, MF_BYCOMMAND)) << "taken out";
    EXPECT_TRUE(popup.GetMenuState(ID_TEST_NOBODY, MF_BYCOMMAND) & MF_GRAYED) << "and the rest was still updated";
    frame->DestroyWindow();
}

namespace
{
/// A frame whose handler takes its own item out of the menu.
class ShrinkingFrame : public TestFrame
{
protected:
    afx_msg void OnUpdateView(CCmdUI* cmdUI)
    {
        if (cmdUI->m_pMenu)
            cmdUI->m_pMenu->DeleteMenu(cmdUI->m_nID, MF_BYCOMMAND);
    }
    afx_msg void OnUpdateNobody(CCmdUI* cmdUI)
    {
        cmdUI->Enable(TRUE);
        cmdUI->SetCheck();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ShrinkingFrame, TestFrame)
ON_UPDATE_COMMAND_UI(ID_TEST_VIEW, &ShrinkingFrame::OnUpdateView)
ON_UPDATE_COMMAND_UI(ID_TEST_NOBODY, &ShrinkingFrame::OnUpdateNobody)
END_MESSAGE_MAP()
} // namespace

TEST_F(FrameCommands, FirstItemMayGoWithoutTheNextBeingMissed)
{
    auto* frame = new ShrinkingFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME));
    CMenu popup;
    popup.CreatePopupMenu();
    popup.AppendMenu(MF_STRING, ID_TEST_VIEW, "goes");
    popup.AppendMenu(MF_STRING, ID_TEST_NOBODY, "next");
    popup.AppendMenu(MF_STRING, ID_TEST_NOBODY + 100, "last");
    frame->SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(popup.m_hMenu), 0);
    ASSERT_EQ(2U, popup.GetMenuItemCount());
    EXPECT_TRUE(popup.GetMenuState(0, MF_BYPOSITION) & MF_CHECKED);
    EXPECT_TRUE(popup.GetMenuState(1, MF_BYPOSITION) & MF_GRAYED) << "nobody handles it";
    frame->DestroyWindow();
}

TEST_F(FrameCommands, ItemThatWentLeavesItsNeighbourEnabled)
{
    auto* frame = new ShrinkingFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME));
    CMenu popup;
    popup.CreatePopupMenu();
    popup.AppendMenu(MF_STRING, ID_TEST_VIEW, "goes");
    popup.AppendMenu(MF_STRING, ID_APP_EXIT, "the application's");
    CCmdUI state;
    state.m_pMenu = &popup;
    state.m_nID = ID_TEST_VIEW;
    state.DoUpdate(frame, TRUE);
    EXPECT_FALSE(popup.GetMenuState(ID_APP_EXIT, MF_BYCOMMAND) & MF_GRAYED);
    frame->DestroyWindow();
}

TEST_F(FrameCommands, HelpTextOfAnItemStandsInTheStatusBar)
{
    TestFrame* frame = LoadedFrame();
    EXPECT_STREQ("Ready", MessageLine(*frame));
    frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(ID_TEST_VIEW, MF_MOUSESELECT), 1);
    EXPECT_STREQ("Looks at the view", MessageLine(*frame));
    EXPECT_TRUE(frame->IsTracking());
    frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(0, MF_POPUP), 1);
    EXPECT_STREQ("", MessageLine(*frame)) << "popups have no text";
    frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(SC_CLOSE, MF_SYSMENU), 1);
    EXPECT_STREQ("Close the window", MessageLine(*frame));
    frame->SendMessage(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    EXPECT_STREQ("Ready", MessageLine(*frame));
    EXPECT_FALSE(frame->IsTracking());
    frame->DestroyWindow();
}

TEST_F(FrameCommands, MessageTextIsSetByTextOrById)
{
    TestFrame* frame = LoadedFrame();
    frame->SetMessageText("some text");
    EXPECT_STREQ("some text", MessageLine(*frame));
    frame->SetMessageText(ID_TEST_FRAME);
    EXPECT_STREQ("Works on the frame", MessageLine(*frame));
    EXPECT_EQ(ID_TEST_FRAME, frame->SendMessage(WM_SETMESSAGESTRING, ID_TEST_VIEW)) << "the former id";
    CString text;
    frame->GetMessageString(ID_TEST_NOBODY, text);
    EXPECT_STREQ("", text);
    frame->DestroyWindow();
}

TEST_F(FrameCommands, TooltipIsTheTextsSecondLine)
{
    TestFrame* frame = LoadedFrame();
    NMTTDISPINFO tip{};
    tip.hdr.code = TTN_GETDISPINFO;
    tip.hdr.idFrom = ID_TEST_VIEW;
    EXPECT_TRUE(frame->SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&tip)) == 0);
    EXPECT_STREQ("View tip", tip.szText);
    NMTTDISPINFOW wide{};
    wide.hdr.code = TTN_GETDISPINFOW;
    wide.hdr.idFrom = ID_TEST_VIEW;
    frame->SendMessage(WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&wide));
    EXPECT_STREQ(L"View tip", wide.szText);
    frame->DestroyWindow();
}

TEST_F(FrameCommands, AcceleratorsBecomeCommands)
{
    TestFrame* frame = LoadedFrame();
    frame->ShowWindow(SW_SHOW);
    Notes().clear();
    MSG key{};
    key.hwnd = frame->m_hWnd;
    key.message = WM_KEYDOWN;
    key.wParam = VK_F7;
    EXPECT_FALSE(frame->PreTranslateMessage(&key)) << "no accelerator";
    key.wParam = VK_F8;
    EXPECT_TRUE(frame->PreTranslateMessage(&key));
    EXPECT_EQ("frame view app app-handler", AllNotes());
    key.message = WM_MOUSEMOVE;
    EXPECT_FALSE(frame->PreTranslateMessage(&key));
    frame->DestroyWindow();
}

TEST_F(FrameCommands, AcceleratorOfACommandThatIsDisabledDoesNothing)
{
    TestFrame* frame = LoadedFrame();
    frame->ShowWindow(SW_SHOW);
    Notes().clear();
    MSG key{};
    key.hwnd = frame->m_hWnd;
    key.message = WM_KEYDOWN;
    key.wParam = VK_F5;
    EXPECT_TRUE(frame->PreTranslateMessage(&key));
    EXPECT_EQ(std::string::npos, AllNotes().find("frame-handler"));
    frame->DestroyWindow();
}

namespace
{
/// Ends the program's loop, which closes the frame, once a condition holds; looks at idle time and every 10 ms.
class LoopEnd
{
public:
    LoopEnd(CWnd& frame, std::function<bool()> condition) : m_frame(frame), m_condition(std::move(condition))
    {
        s_current = this;
        m_timer = ::SetTimer(nullptr, 0, 10, OnTimer);
        m_deadline = ::GetTickCount() + 10000;
    }
    ~LoopEnd()
    {
        ::KillTimer(nullptr, m_timer);
        s_current = nullptr;
    }
    LoopEnd(const LoopEnd&) = delete;
    LoopEnd& operator=(const LoopEnd&) = delete;

    bool held = false;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD now)
    {
        if (s_current->held)
            return;
        s_current->held = s_current->m_condition();
        if (s_current->held || static_cast<int>(now - s_current->m_deadline) > 0)
            s_current->m_frame.PostMessage(WM_CLOSE);
    }

    static inline LoopEnd* s_current = nullptr;
    CWnd& m_frame;
    std::function<bool()> m_condition;
    UINT_PTR m_timer;
    DWORD m_deadline;
};
} // namespace

TEST_F(FrameCommands, ProgramsLoopTurnsKeysIntoCommandsAndKeepsBarsUpToDate)
{
    TestFrame* frame = LoadedFrame();
    App().m_pMainWnd = frame;
    frame->ShowWindow(SW_SHOW);
    frame->SetFocus();
    ViewOf(*frame)->PostMessage(WM_KEYDOWN, VK_F8, 1);
    const LoopEnd end(*frame,
                      [frame]
                      {
                          return AllNotes().find("app-handler") != std::string::npos &&
                                 frame->statusBar.GetPaneText(1) == "from the frame";
                      });
    EXPECT_EQ(0, App().Run());
    EXPECT_TRUE(end.held);
}

TEST_F(FrameCommands, ProgramsLoopDoesDelayedLayouts)
{
    TestFrame* frame = LoadedFrame();
    App().m_pMainWnd = frame;
    frame->ShowWindow(SW_SHOW);
    frame->ShowControlBar(&frame->statusBar, FALSE, TRUE);
    const LoopEnd end(*frame,
                      [frame]
                      {
                          return !frame->statusBar.IsWindowVisible();
                      });
    App().Run();
    EXPECT_TRUE(end.held);
}

using FrameTitle = FrameTest;

namespace
{
CString TitleOf(const CWnd& frame)
{
    CString text;
    frame.GetWindowText(text);
    return text;
}
} // namespace

TEST_F(FrameTitle, PutsTheDocumentFirst)
{
    auto* document = new TestDocument;
    document->SetTitle("Route");
    TestFrame* frame = ShowFrameWithView(document, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE);
    frame->OnUpdateFrameTitle(TRUE);
    EXPECT_STREQ("Route - Frame", TitleOf(*frame));
    frame->OnUpdateFrameTitle(FALSE);
    EXPECT_STREQ("Frame", TitleOf(*frame));
    frame->m_nWindow = 2;
    frame->OnUpdateFrameTitle(TRUE);
    EXPECT_STREQ("Route:2 - Frame", TitleOf(*frame));
    frame->ModifyStyle(FWS_PREFIXTITLE, 0);
    frame->OnUpdateFrameTitle(TRUE);
    EXPECT_STREQ("Frame - Route:2", TitleOf(*frame));
    frame->SetTitle("");
    frame->OnUpdateFrameTitle(TRUE);
    EXPECT_STREQ("Route:2", TitleOf(*frame));
    frame->DestroyWindow();
}

TEST_F(FrameTitle, StaysWithoutTheStyle)
{
    auto* document = new TestDocument;
    document->SetTitle("Route");
    TestFrame* frame = ShowFrameWithView(document);
    frame->OnUpdateFrameTitle(TRUE);
    EXPECT_STREQ("Frame", TitleOf(*frame));
    frame->DestroyWindow();
}

TEST_F(FrameTitle, FollowsTheDocumentAtIdleTime)
{
    auto* document = new TestDocument;
    TestFrame* frame = ShowFrameWithView(document, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE);
    document->SetTitle("Plan");
    EXPECT_STREQ("Frame", TitleOf(*frame));
    frame->SendMessage(WM_IDLEUPDATECMDUI, TRUE);
    EXPECT_STREQ("Plan - Frame", TitleOf(*frame));
    frame->DestroyWindow();
}
