#include "tests/windows/framework_frame/TestFrame.h"

#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CClientDC.h"
#include "tests/support/PumpUntil.h"

using namespace vorn::test;

using View = FrameTest;

TEST_F(View, PaintsThroughOnDraw)
{
    TestFrame* frame = ShowFrameWithView();
    TestView* view = ViewOf(*frame);
    view->Invalidate();
    view->UpdateWindow();
    EXPECT_EQ("draw", AllNotes());
    {
        CClientDC dc(view);
        EXPECT_EQ(RGB(255, 0, 0), dc.GetPixel(50, 50));
    }
    EXPECT_FALSE(::GetUpdateRect(view->m_hWnd, nullptr, FALSE));
    frame->DestroyWindow();
}

TEST_F(View, PaintsIntoAForeignContextAndLeavesItAsItWas)
{
    TestFrame* frame = ShowFrameWithView();
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    CBitmap bitmap;
    {
        CClientDC screen(nullptr);
        bitmap.CreateCompatibleBitmap(&screen, 20, 20);
    }
    CBitmap* former = dc.SelectObject(&bitmap);
    dc.SetTextColor(RGB(1, 2, 3));
    ViewOf(*frame)->SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(dc.m_hDC), PRF_CLIENT);
    EXPECT_EQ(RGB(255, 0, 0), dc.GetPixel(10, 10));
    EXPECT_EQ(RGB(1, 2, 3), dc.GetTextColor());
    dc.SelectObject(former);
    frame->DestroyWindow();
}

TEST_F(View, IsToldWhenItBecomesActiveAndWhenNot)
{
    TestFrame* frame = ShowFrameWithView();
    TestView* view = ViewOf(*frame);
    frame->SetActiveView(view);
    EXPECT_EQ("", AllNotes()) << "it is active already";
    frame->SetActiveView(nullptr);
    EXPECT_EQ("deactivate", AllNotes());
    frame->SetActiveView(view);
    EXPECT_EQ("deactivate activate", AllNotes());
    frame->SetActiveView(nullptr, FALSE);
    EXPECT_EQ("deactivate activate", AllNotes());
    frame->DestroyWindow();
}

TEST_F(View, TakesTheFocusInAnActiveFrame)
{
    TestFrame* frame = ShowFrameWithView();
    frame->SetForegroundWindow();
    ::SetFocus(nullptr);
    frame->SetFocus();
    EXPECT_EQ(ViewOf(*frame)->m_hWnd, ::GetFocus());
    frame->DestroyWindow();
}

TEST_F(View, BecomesActiveByTheMouse)
{
    TestFrame* frame = ShowFrameWithView();
    TestView* view = ViewOf(*frame);
    frame->SetActiveView(nullptr);
    Notes().clear();
    const LRESULT answer = view->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(frame->m_hWnd),
                                             MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN));
    EXPECT_EQ(MA_ACTIVATE, answer);
    EXPECT_EQ(view, frame->GetActiveView());
    EXPECT_EQ("activate", AllNotes());
    frame->DestroyWindow();
}

TEST_F(View, ThatGoesIsNoLongerActive)
{
    TestFrame* frame = ShowFrameWithView();
    ViewOf(*frame)->DestroyWindow();
    EXPECT_EQ(nullptr, frame->GetActiveView());
    EXPECT_EQ("deactivate ~view", AllNotes());
    frame->DestroyWindow();
}

TEST_F(View, DeletedWithALivingWindowIsNoLongerActive)
{
    TestFrame* frame = ShowFrameWithView();
    TestView* view = ViewOf(*frame);
    ASSERT_EQ(view, frame->GetActiveView());
    const HWND window = view->m_hWnd;
    delete view;
    EXPECT_EQ(nullptr, frame->GetActiveView());
    EXPECT_FALSE(::IsWindow(window));
    frame->SendMessage(WM_COMMAND, ID_TEST_VIEW);
    frame->DestroyWindow();
}

TEST_F(View, GetsItsFirstContentByInitialUpdate)
{
    TestFrame* frame = ShowFrameWithView();
    ViewOf(*frame)->SendMessage(WM_INITIALUPDATE);
    EXPECT_EQ("initial update0", AllNotes());
    EXPECT_TRUE(::GetUpdateRect(ViewOf(*frame)->m_hWnd, nullptr, FALSE));
    frame->DestroyWindow();
}

TEST_F(View, JoinsItsDocumentAndIsToldOfChanges)
{
    auto* document = new TestDocument;
    TestFrame* frame = ShowFrameWithView(document);
    TestView* view = ViewOf(*frame);
    EXPECT_EQ(document, view->GetDocument());
    EXPECT_EQ(document, frame->GetActiveDocument());
    document->UpdateAllViews(nullptr, 7);
    EXPECT_EQ("update7", AllNotes());
    document->UpdateAllViews(view, 8);
    EXPECT_EQ("update7", AllNotes()) << "the sender knows";
    frame->DestroyWindow();
    EXPECT_EQ("update7 deactivate ~view ~document ~frame", AllNotes());
}

using Document = FrameTest;

TEST_F(Document, LivesAsLongAsAViewShowsIt)
{
    auto* document = new TestDocument;
    TestFrame* first = ShowFrameWithView(document);
    TestFrame* second = ShowFrameWithView(document);
    EXPECT_EQ(2U, document->GetViews().size());
    first->DestroyWindow();
    EXPECT_EQ(1U, document->GetViews().size());
    Notes().clear();
    document->OnCloseDocument();
    EXPECT_EQ("deactivate ~view ~frame ~document", AllNotes());
    (void)second;
}

TEST_F(Document, ClosedWithoutViewsEmptiesAndDeletesItself)
{
    class Emptied : public TestDocument
    {
    public:
        void DeleteContents() override
        {
            Notes().emplace_back("empty");
        }
    };
    (new Emptied)->OnCloseDocument();
    EXPECT_EQ("empty ~document", AllNotes());
    Notes().clear();
    Emptied kept;
    kept.m_bAutoDelete = FALSE;
    TestFrame* frame = ShowFrameWithView(&kept);
    kept.OnCloseDocument();
    EXPECT_EQ("deactivate ~view ~frame empty", AllNotes());
    EXPECT_FALSE(kept.m_bAutoDelete);
    (void)frame;
}

TEST_F(Document, OnTheStackLeavesItsViewsBehind)
{
    TestFrame* frame = nullptr;
    {
        TestDocument document;
        document.m_bAutoDelete = FALSE;
        frame = ShowFrameWithView(&document);
    }
    EXPECT_EQ(nullptr, ViewOf(*frame)->GetDocument());
    frame->DestroyWindow();
}

TEST_F(Document, DecidesWhetherItsFrameMayClose)
{
    auto* document = new TestDocument;
    TestFrame* frame = ShowFrameWithView(document);
    document->mayClose = false;
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ("", AllNotes());
    document->mayClose = true;
    frame->SendMessage(WM_CLOSE);
    EXPECT_EQ("deactivate ~view ~document ~frame", AllNotes());
}

TEST_F(Document, RemembersModification)
{
    CDocument document;
    EXPECT_FALSE(document.IsModified());
    EXPECT_TRUE(document.SaveModified()) << "nothing to lose";
    document.SetModifiedFlag();
    EXPECT_TRUE(document.IsModified());
    EXPECT_TRUE(document.OnNewDocument());
    EXPECT_FALSE(document.IsModified());
}

TEST_F(Document, AddAndRemoveAreHarmlessForStrangers)
{
    CDocument document;
    document.m_bAutoDelete = FALSE;
    document.AddView(nullptr);
    document.RemoveView(nullptr);
    EXPECT_TRUE(document.GetViews().empty());
}
