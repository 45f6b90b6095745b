#include "tests/windows/framework_frame/TestFrame.h"

#include "framework/gdi/CPen.h"
#include "tests/support/PumpUntil.h"

#include <memory>

using namespace vorn::test;

using FrameCreation = FrameTest;

namespace
{
CString TextOf(const CWnd& window)
{
    CString text;
    window.GetWindowText(text);
    return text;
}

/// How many keys a table has; 0 for one that is gone.
int KeysOf(HACCEL table)
{
    return ::CopyAcceleratorTable(table, nullptr, 0);
}
} // namespace

TEST_F(FrameCreation, FrameDeletesItselfAfterItsWindow)
{
    TestFrame* frame = ShowFrame();
    EXPECT_STREQ("Frame", TextOf(*frame));
    EXPECT_TRUE(frame->IsFrameWnd());
    EXPECT_EQ(1, LivingWindows());
    frame->DestroyWindow();
    EXPECT_EQ(0, LivingWindows());
}

TEST_F(FrameCreation, MissingMenuFailsAndEndsTheObject)
{
    auto* frame = new TestFrame;
    EXPECT_FALSE(frame->Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, nullptr, "no such menu"));
    EXPECT_EQ("~frame", AllNotes());
}

TEST_F(FrameCreation, RefusedClientFailsAndEndsTheObject)
{
    auto* frame = new TestFrame;
    frame->acceptClient = false;
    EXPECT_FALSE(frame->Create(nullptr, "Frame"));
    EXPECT_EQ(0, LivingWindows());
}

TEST_F(FrameCreation, LoadFrameTakesMenuTitleAndAccelerators)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME));
    EXPECT_STREQ("Chart Desk", frame->GetTitle());
    EXPECT_STREQ("Chart Desk", TextOf(*frame));
    ASSERT_NE(nullptr, frame->GetMenu());
    EXPECT_EQ(2U, frame->GetMenu()->GetMenuItemCount());
    EXPECT_NE(nullptr, frame->GetDefaultAccelerator());
    frame->DestroyWindow();
}

TEST_F(FrameCreation, AcceleratorsEndWithTheFrame)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME));
    HACCEL table = frame->GetDefaultAccelerator();
    EXPECT_EQ(3, KeysOf(table));
    frame->DestroyWindow();
    EXPECT_EQ(0, KeysOf(table));
}

TEST_F(FrameCreation, AcceleratorsEndWithAFrameThatWasNeverCreated)
{
    auto frame = std::make_unique<TestFrame>();
    ASSERT_TRUE(frame->LoadAccelTable(MAKEINTRESOURCE(IDR_TEST_FRAME)));
    HACCEL table = frame->GetDefaultAccelerator();
    EXPECT_EQ(3, KeysOf(table));
    frame.reset();
    EXPECT_EQ(0, KeysOf(table));
}

TEST_F(FrameCreation, LoadingAcceleratorsAgainKeepsOneTable)
{
    TestFrame* frame = ShowFrame();
    const LPCTSTR resource = MAKEINTRESOURCE(IDR_TEST_FRAME);
    ASSERT_TRUE(frame->LoadAccelTable(resource));
    ASSERT_TRUE(frame->LoadAccelTable(resource));
    HACCEL table = frame->GetDefaultAccelerator();
    EXPECT_EQ(3, KeysOf(table));
    EXPECT_FALSE(frame->LoadAccelTable("no such table"));
    EXPECT_EQ(nullptr, frame->GetDefaultAccelerator());
    EXPECT_EQ(0, KeysOf(table));
    frame->DestroyWindow();
}

TEST_F(FrameCreation, LoadFrameWorksWithoutAnyResource)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_BARE_FRAME));
    EXPECT_STREQ("", frame->GetTitle());
    EXPECT_EQ(nullptr, frame->GetMenu());
    EXPECT_EQ(nullptr, frame->GetDefaultAccelerator());
    frame->DestroyWindow();
}

TEST_F(FrameCreation, LoadFrameWithoutContextGivesViewsTheirFirstContent)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME));
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(TestView);
    ASSERT_NE(nullptr, frame->CreateView(&context));
    EXPECT_EQ("", AllNotes());
    frame->InitialUpdateFrame(nullptr, TRUE);
    EXPECT_EQ("initial update0", AllNotes().substr(0, 15));
    frame->DestroyWindow();
}

TEST_F(FrameCreation, ContextsViewFillsTheFrame)
{
    TestFrame* frame = ShowFrameWithView();
    TestView* view = ViewOf(*frame);
    ASSERT_NE(nullptr, view);
    EXPECT_EQ(CRect(0, 0, 300, 200), PlaceOf(*view));
    EXPECT_TRUE(view->GetExStyle() & WS_EX_CLIENTEDGE);
    EXPECT_EQ(frame, view->GetParentFrame());
    frame->DestroyWindow();
    EXPECT_EQ("deactivate ~view ~frame", AllNotes());
}

TEST_F(FrameCreation, CreateViewNeedsAWindowClass)
{
    TestFrame* frame = ShowFrame();
    CCreateContext context;
    EXPECT_EQ(nullptr, frame->CreateView(nullptr));
    EXPECT_EQ(nullptr, frame->CreateView(&context));
    context.m_pNewViewClass = RUNTIME_CLASS(CGdiObject);
    EXPECT_EQ(nullptr, frame->CreateView(&context));
    context.m_pNewViewClass = RUNTIME_CLASS(CPen); // cannot be made dynamically
    EXPECT_EQ(nullptr, frame->CreateView(&context));
    frame->DestroyWindow();
}

TEST_F(FrameCreation, AReplacedMenuIsNotDestroyedWithTheFrame)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME));
    HMENU own = frame->GetMenu()->m_hMenu;
    CMenu other;
    ASSERT_TRUE(other.CreateMenu());
    other.AppendMenu(MF_STRING, 1, "x");
    frame->SetMenu(&other);
    frame->DestroyWindow();
    EXPECT_TRUE(::IsMenu(other.m_hMenu));
    EXPECT_FALSE(::IsMenu(own));
}

TEST_F(FrameCreation, InitialUpdateShowsTheFrameAsTheProgramWasStarted)
{
    auto* frame = new TestFrame;
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(TestView);
    ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr, &context));
    App().m_pMainWnd = frame;
    App().m_nCmdShow = SW_SHOWMAXIMIZED;
    frame->InitialUpdateFrame(nullptr, TRUE);
    EXPECT_TRUE(frame->IsZoomed());
    EXPECT_EQ(-1, App().m_nCmdShow) << "later frames are shown as they like";
    EXPECT_EQ(ViewOf(*frame), frame->GetActiveView());
    App().m_pMainWnd = nullptr;
    frame->DestroyWindow();
}

TEST_F(FrameCreation, ActivateFrameShowsAndRestores)
{
    auto* frame = new TestFrame;
    ASSERT_TRUE(frame->Create(nullptr, "Frame", WS_OVERLAPPEDWINDOW, CRect(10, 10, 210, 160)));
    EXPECT_FALSE(frame->IsWindowVisible());
    frame->ActivateFrame();
    EXPECT_TRUE(frame->IsWindowVisible());
    frame->ShowWindow(SW_MINIMIZE);
    EXPECT_TRUE(frame->IsIconic());
    frame->ActivateFrame();
    EXPECT_FALSE(frame->IsIconic());
    frame->ActivateFrame(SW_HIDE);
    EXPECT_FALSE(frame->IsWindowVisible());
    frame->DestroyWindow();
}

TEST_F(FrameCreation, CloseDestroysTheFrame)
{
    TestFrame* frame = ShowFrame();
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ("~frame", AllNotes());
}

TEST_F(FrameCreation, CloseOfTheMainWindowEndsTheProgramsLoop)
{
    TestFrame* frame = ShowFrame();
    App().m_pMainWnd = frame;
    frame->PostMessage(WM_CLOSE);
    EXPECT_EQ(0, App().Run());
    EXPECT_EQ("~frame", AllNotes());
}

TEST_F(FrameCreation, CloseOfTheMainWindowAsksTheApplication)
{
    TestFrame* frame = ShowFrame();
    App().m_pMainWnd = frame;
    App().mayClose = false;
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ("", AllNotes());
    EXPECT_FALSE(frame->SendMessage(WM_QUERYENDSESSION));
    App().mayClose = true;
    EXPECT_TRUE(frame->SendMessage(WM_QUERYENDSESSION));
    App().m_pMainWnd = nullptr;
    frame->DestroyWindow();
}

TEST_F(FrameCreation, ManyFramesLeaveNothingBehind)
{
    for (int i = 0; i < 100; ++i)
    {
        auto* frame = new TestFrame;
        ASSERT_TRUE(frame->LoadFrame(IDR_TEST_FRAME)) << "round " << i;
        ASSERT_TRUE(frame->statusBar.Create(frame));
        frame->DestroyWindow();
    }
    EXPECT_EQ(0, LivingWindows());
}
