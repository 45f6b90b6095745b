#pragma once

/// @file
/// View: the child window of a frame that shows something and prints it.
#include "framework/frames/CCreateContext.h"
#include "framework/frames/CPrintInfo.h"
#include "framework/window/CWnd.h"

namespace vorn
{
class PrintJob;
}

/// Base of the views. A view draws itself in OnDraw(), on the screen as well as on paper. It is made with dynamic
/// creation by its frame, and deletes itself after its window has gone.
class HOSTFRAMEWORK_API CView : public CWnd
{
    DECLARE_DYNAMIC(CView)

public:
    ~CView() override;

    CDocument* GetDocument() const;

    /// Whether @p item is selected; FALSE here.
    virtual BOOL IsSelected(const CObject* item) const;
    /// Called once after creation, when frame and document are ready: asks for a first OnUpdate().
    virtual void OnInitialUpdate();
    /// Called before every OnDraw() and for each page before it is printed. For paper @p info is not null; the
    /// version here then stops after the first page of a document of unknown length.
    virtual void OnPrepareDC(CDC* dc, CPrintInfo* info = nullptr);

    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo) override;

    /// Runs a print job: handler for ID_FILE_PRINT and ID_FILE_PRINT_DIRECT (which prints at once on the default
    /// printer). Derived classes connect it in their message maps.
    afx_msg void OnFilePrint();

    /// Prepares @p info for a job: shows the system's print dialog or, for a direct job, takes the default printer, and
    /// so gets a printer context. Failures (but not a cancellation) are shown to the user.
    /// @return whether to print; FALSE for null
    BOOL DoPreparePrinting(CPrintInfo* info);

protected:
    CView();

    /// Draws the view. @param dc prepared by OnPrepareDC()
    virtual void OnDraw(CDC* dc) = 0;
    /// The document changed; redraws everything here.
    virtual void OnUpdate(CView* sender, LPARAM hint, CObject* hintObject);
    /// The view becomes active or stops to be. Sets the focus when it becomes active in an active frame.
    virtual void OnActivateView(BOOL activate, CView* activateView, CView* deactivateView);
    /// The frame becomes active or stops to be; does nothing here.
    virtual void OnActivateFrame(UINT state, CFrameWnd* frame);

    /// @name Printing
    /// @{
    /// Called first; most views set the number of pages and return DoPreparePrinting(). TRUE here.
    virtual BOOL OnPreparePrinting(CPrintInfo* info);
    virtual void OnBeginPrinting(CDC* dc, CPrintInfo* info);
    /// Prints one page; calls OnDraw() here.
    virtual void OnPrint(CDC* dc, CPrintInfo* info);
    virtual void OnEndPrinting(CDC* dc, CPrintInfo* info);
    /// @}

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message);
    afx_msg LRESULT OnInitialUpdateMessage(WPARAM, LPARAM);
    afx_msg LRESULT OnPrintClient(CDC* dc, UINT flags);

    CDocument* m_pDocument = nullptr;

    friend class CDocument;
    friend class CFrameWnd;
    friend class vorn::PrintJob;

    DECLARE_MESSAGE_MAP()
};
