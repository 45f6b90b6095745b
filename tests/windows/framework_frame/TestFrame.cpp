#include "tests/windows/framework_frame/TestFrame.h"

#include "framework/gdi/CBrush.h"
#include "tests/support/PumpUntil.h"

namespace vorn::test
{

namespace
{
TestApp theApp;

void Note(const std::string& text)
{
    Notes().push_back(text);
}

/// Notes the way of the test commands; updates and everything else is left out.
void NoteRoute(const char* who, UINT id, int code)
{
    if (theApp.noteRouting && code == CN_COMMAND && id >= ID_TEST_VIEW && id <= ID_TEST_POPUP_ITEM)
    {
        Note(who);
    }
}
} // namespace

std::vector<std::string>& Notes()
{
    static std::vector<std::string> notes;
    return notes;
}

std::string AllNotes()
{
    std::string all;
    for (const std::string& note : Notes())
    {
        all += (all.empty() ? "" : " ") + note;
    }
    return all;
}

int& LivingWindows()
{
    static int count = 0;
    return count;
}

TestApp& App()
{
    return theApp;
}

BEGIN_MESSAGE_MAP(TestApp, CWinApp)
ON_COMMAND(ID_TEST_APP, &TestApp::OnTest)
ON_COMMAND(ID_TEST_ALL, &TestApp::OnTest)
END_MESSAGE_MAP()

TestApp::TestApp() : CWinApp("FrameTests")
{
}

BOOL TestApp::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    NoteRoute("app", id, code);
    return CWinApp::OnCmdMsg(id, code, extra, handlerInfo);
}

BOOL TestApp::SaveAllModified()
{
    return mayClose;
}

void TestApp::OnTest()
{
    Note("app-handler");
}

BOOL TestBar::Create(CWnd* parent, DWORD barStyle, UINT id)
{
    SetBarStyle(barStyle);
    return CWnd::Create(nullptr, "", WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), parent, id);
}

CSize TestBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    CSize size = CControlBar::CalcFixedLayout(stretch, horizontal);
    (horizontal ? size.cy : size.cx) = m_thickness;
    return size;
}

BEGIN_MESSAGE_MAP(TestDocument, CDocument)
ON_COMMAND(ID_TEST_DOCUMENT, &TestDocument::OnTest)
END_MESSAGE_MAP()

TestDocument::TestDocument()
{
    ++LivingWindows();
}

TestDocument::~TestDocument()
{
    --LivingWindows();
    Note("~document");
}

BOOL TestDocument::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    NoteRoute("document", id, code);
    return CDocument::OnCmdMsg(id, code, extra, handlerInfo);
}

BOOL TestDocument::CanCloseFrame(CFrameWnd*)
{
    return mayClose;
}

void TestDocument::OnTest()
{
    Note("document-handler");
}

IMPLEMENT_DYNCREATE(TestView, CView)

BEGIN_MESSAGE_MAP(TestView, CView)
ON_COMMAND(ID_TEST_VIEW, &TestView::OnTest)
ON_COMMAND(ID_TEST_ALL, &TestView::OnTest)
ON_UPDATE_COMMAND_UI(ID_TEST_VIEW, &TestView::OnUpdateTest)
END_MESSAGE_MAP()

TestView::TestView()
{
    ++LivingWindows();
}

TestView::~TestView()
{
    --LivingWindows();
    Note("~view");
}

BOOL TestView::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    NoteRoute("view", id, code);
    return CView::OnCmdMsg(id, code, extra, handlerInfo);
}

void TestView::OnInitialUpdate()
{
    Note("initial");
    CView::OnInitialUpdate();
}

void TestView::OnDraw(CDC* dc)
{
    CRect all;
    GetClientRect(&all);
    dc->FillSolidRect(&all, RGB(255, 0, 0));
    Note("draw");
}

void TestView::OnUpdate(CView* sender, LPARAM hint, CObject* hintObject)
{
    Note("update" + std::to_string(hint));
    CView::OnUpdate(sender, hint, hintObject);
}

void TestView::OnActivateView(BOOL activate, CView* activateView, CView* deactivateView)
{
    Note(activate ? "activate" : "deactivate");
    CView::OnActivateView(activate, activateView, deactivateView);
}

void TestView::OnTest()
{
    Note("view-handler");
}

void TestView::OnUpdateTest(CCmdUI* cmdUI)
{
    cmdUI->SetCheck(1);
}

IMPLEMENT_DYNCREATE(TestFrame, CFrameWnd)

BEGIN_MESSAGE_MAP(TestFrame, CFrameWnd)
ON_COMMAND(ID_TEST_FRAME, &TestFrame::OnTest)
ON_COMMAND(ID_TEST_ALL, &TestFrame::OnTest)
ON_UPDATE_COMMAND_UI(ID_TEST_FRAME, &TestFrame::OnUpdateTest)
ON_UPDATE_COMMAND_UI(ID_TEST_PANE, &TestFrame::OnUpdatePane)
END_MESSAGE_MAP()

TestFrame::TestFrame()
{
    ++LivingWindows();
}

TestFrame::~TestFrame()
{
    --LivingWindows();
    Note("~frame");
}

BOOL TestFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    NoteRoute("frame", id, code);
    return CFrameWnd::OnCmdMsg(id, code, extra, handlerInfo);
}

BOOL TestFrame::OnCreateClient(LPCREATESTRUCT create, CCreateContext* context)
{
    return acceptClient && CFrameWnd::OnCreateClient(create, context);
}

void TestFrame::OnTest()
{
    Note("frame-handler");
}

void TestFrame::OnUpdateTest(CCmdUI* cmdUI)
{
    cmdUI->Enable(FALSE);
}

void TestFrame::OnUpdatePane(CCmdUI* cmdUI)
{
    cmdUI->SetText("from the frame");
}

FrameTest::FrameTest()
{
    Notes().clear();
    theApp.m_pMainWnd = nullptr;
    theApp.mayClose = true;
    theApp.noteRouting = false;
}

FrameTest::~FrameTest()
{
    theApp.m_pMainWnd = nullptr;
    PumpWaiting();
    EXPECT_EQ(0, LivingWindows()) << "every frame, view and document ends with its test";
}

TestFrame* FrameTest::ShowFrame(DWORD style, CCreateContext* context)
{
    CRect rect(40, 40, 340, 240);
    ::AdjustWindowRect(&rect, style, FALSE);
    auto* frame = new TestFrame;
    if (!frame->Create(nullptr, "Frame", style, rect, nullptr, nullptr, 0, context))
    {
        return nullptr;
    }
    frame->ShowWindow(SW_SHOW);
    frame->UpdateWindow();
    return frame;
}

TestFrame* FrameTest::ShowFrameWithView(CDocument* document, DWORD style)
{
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(TestView);
    context.m_pCurrentDoc = document;
    TestFrame* frame = ShowFrame(style, &context);
    frame->SetActiveView(ViewOf(*frame), FALSE);
    Notes().clear();
    return frame;
}

TestView* FrameTest::ViewOf(CFrameWnd& frame)
{
    return DYNAMIC_DOWNCAST(TestView, frame.GetDlgItem(AFX_IDW_PANE_FIRST));
}

CRect FrameTest::PlaceOf(const CWnd& child)
{
    CRect rect;
    child.GetWindowRect(&rect);
    ::MapWindowPoints(nullptr, ::GetParent(child.m_hWnd), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace vorn::test
