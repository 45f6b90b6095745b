#pragma once

/// @file
/// Document: the data that views show.
#include "framework/core/CString.h"
#include "framework/window/CCmdTarget.h"
#include <vector>

class CFrameWnd;
class CView;

/// A document in its simplest form: a title, whether it was modified, and the views that show it. Files are the
/// derived class's affair.
class HOSTFRAMEWORK_API CDocument : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocument)

public:
    CDocument();
    /// Leaves its views without document.
    ~CDocument() override;

    /// Whether the document deletes itself when its last view goes (TRUE at first).
    BOOL m_bAutoDelete = TRUE;

    const CString& GetTitle() const;
    /// Also puts the title into its frames' captions.
    virtual void SetTitle(LPCTSTR title);
    virtual BOOL IsModified();
    virtual void SetModifiedFlag(BOOL modified = TRUE);

    /// A view shows one document: it leaves its former one.
    void AddView(CView* view);
    /// The document may delete itself.
    void RemoveView(CView* view);
    const std::vector<CView*>& GetViews() const;
    /// Tells all views but @p sender by CView::OnUpdate(). A hint without sender goes to all.
    void UpdateAllViews(CView* sender, LPARAM hint = 0, CObject* hintObject = nullptr);

    virtual BOOL OnNewDocument();
    /// Empties the document; nothing here.
    virtual void DeleteContents();
    /// Asks before a frame is closed. TRUE when other frames show the document too, else SaveModified().
    virtual BOOL CanCloseFrame(CFrameWnd* frame);
    /// Whether the document may be closed; not when it is modified, unless overridden to ask the user.
    virtual BOOL SaveModified();
    /// Closes the frames that show the document.
    virtual void OnCloseDocument();
    virtual void OnChangedViewList();

protected:
    CString m_strTitle;
    BOOL m_bModified = FALSE;
    std::vector<CView*> m_views;

    DECLARE_MESSAGE_MAP()
};
