#pragma once

#include "framework/frames/CDocument.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/frames/CView.h"
#include "framework/include/afxext.h"
#include "tests/windows/framework_frame/resource.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vorn::test
{

/// What the test classes note down, in order; emptied before each test.
std::vector<std::string>& Notes();
/// The notes in one text, separated by blanks.
std::string AllNotes();
/// Frames and views that live.
int& LivingWindows();

/// The program's application object: notes commands that reach it.
class TestApp : public CWinApp
{
public:
    TestApp();
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    BOOL SaveAllModified() override;

    bool mayClose = true;
    bool noteRouting = false;

protected:
    afx_msg void OnTest();
    DECLARE_MESSAGE_MAP()
};
TestApp& App();

/// A bar of a fixed thickness.
class TestBar : public CControlBar
{
public:
    explicit TestBar(int thickness = 10) : m_thickness(thickness)
    {
    }
    ~TestBar() override
    {
        DestroyWindow();
    }
    BOOL Create(CWnd* parent, DWORD barStyle, UINT id);
    CSize CalcFixedLayout(BOOL stretch, BOOL horizontal) override;
    void OnUpdateCmdUI(CFrameWnd*, BOOL) override
    {
        ++updates;
    }

    int updates = 0;

private:
    int m_thickness;
};

class TestDocument : public CDocument
{
public:
    TestDocument();
    ~TestDocument() override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    BOOL CanCloseFrame(CFrameWnd* frame) override;

    bool mayClose = true;

protected:
    afx_msg void OnTest();
    DECLARE_MESSAGE_MAP()
};

/// A view that fills itself red and notes what it is told.
class TestView : public CView
{
    DECLARE_DYNCREATE(TestView)

public:
    TestView();
    ~TestView() override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    void OnInitialUpdate() override;

protected:
    void OnDraw(CDC* dc) override;
    void OnUpdate(CView* sender, LPARAM hint, CObject* hintObject) override;
    void OnActivateView(BOOL activate, CView* activateView, CView* deactivateView) override;
    afx_msg void OnTest();
    afx_msg void OnUpdateTest(CCmdUI* cmdUI);
    DECLARE_MESSAGE_MAP()
};

/// A frame that notes commands that reach it. Made with new; it deletes itself.
class TestFrame : public CFrameWnd
{
    DECLARE_DYNCREATE(TestFrame)

public:
    TestFrame();
    ~TestFrame() override;
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;
    BOOL OnCreateClient(LPCREATESTRUCT create, CCreateContext* context) override;

    using CFrameWnd::m_nWindow;

    bool acceptClient = true;
    CStatusBar statusBar;
    CToolBar toolBar;

protected:
    afx_msg void OnTest();
    afx_msg void OnUpdateTest(CCmdUI* cmdUI);
    afx_msg void OnUpdatePane(CCmdUI* cmdUI);
    DECLARE_MESSAGE_MAP()
};

/// Fresh notes before each test; no window may be left behind.
class FrameTest : public testing::Test
{
protected:
    FrameTest();
    ~FrameTest() override;

    /// A shown frame of 300 x 200 pixels of client area, without menu.
    TestFrame* ShowFrame(DWORD style = WS_OVERLAPPEDWINDOW, CCreateContext* context = nullptr);
    /// The same with a view (and a document).
    TestFrame* ShowFrameWithView(CDocument* document = nullptr, DWORD style = WS_OVERLAPPEDWINDOW);

    static TestView* ViewOf(CFrameWnd& frame);
    /// Place of a child in its parent's client area.
    static CRect PlaceOf(const CWnd& child);
};

} // namespace vorn::test
