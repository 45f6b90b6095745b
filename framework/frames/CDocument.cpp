#include "framework/frames/CDocument.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/frames/CView.h"
#include "framework/frames/FrameResources.h"
#include "framework/window/CWinApp.h"
#include "framework/window/ModuleState.h"
#include <algorithm>
#include <utility>

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

BEGIN_MESSAGE_MAP(CDocument, CCmdTarget)
END_MESSAGE_MAP()

CDocument::CDocument() = default;

CDocument::~CDocument()
{
    for (CView* view : m_views)
        view->m_pDocument = nullptr;
}

const CString& CDocument::GetTitle() const
{
    return m_strTitle;
}

void CDocument::SetTitle(LPCTSTR title)
{
    m_strTitle = title ? title : "";
    OnChangedViewList();
}

BOOL CDocument::IsModified()
{
    return m_bModified;
}

void CDocument::SetModifiedFlag(BOOL modified)
{
    m_bModified = modified;
}

void CDocument::AddView(CView* view)
{
    if (!view || view->m_pDocument == this)
        return;
    if (view->m_pDocument)
        view->m_pDocument->RemoveView(view);
    m_views.push_back(view);
    view->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView* view)
{
    if (std::erase(m_views, view) == 0)
        return;
    view->m_pDocument = nullptr;
    OnChangedViewList();
    if (m_views.empty() && m_bAutoDelete)
        delete this; // its frames, who made it, are gone
}

const std::vector<CView*>& CDocument::GetViews() const
{
    return m_views;
}

void CDocument::UpdateAllViews(CView* sender, LPARAM hint, CObject* hintObject)
{
    const std::vector<CView*> views = m_views;
    for (CView* view : views)
        if (view != sender && std::find(m_views.begin(), m_views.end(), view) != m_views.end())
            view->OnUpdate(sender, hint, hintObject);
}

BOOL CDocument::OnNewDocument()
{
    DeleteContents();
    SetModifiedFlag(FALSE);
    return TRUE;
}

void CDocument::DeleteContents()
{
}

BOOL CDocument::CanCloseFrame(CFrameWnd* frame)
{
    const bool shownElsewhere = std::any_of(m_views.begin(), m_views.end(),
                                            [frame](const CView* view)
                                            {
                                                return view->m_hWnd && view->GetParentFrame() != frame;
                                            });
    return shownElsewhere || SaveModified();
}

BOOL CDocument::SaveModified()
{
    if (!IsModified())
        return TRUE;
    CString question;
    AfxFormatString1(question, IDS_FRAME_LOSE_CHANGES, m_strTitle);
    return AfxMessageBox(question, MB_YESNO | MB_ICONEXCLAMATION | MB_DEFBUTTON2) == IDYES;
}

void CDocument::OnCloseDocument()
{
    // The last view to go must not end the document in the middle.
    const BOOL autoDelete = std::exchange(m_bAutoDelete, FALSE);
    std::vector<HWND> frames;
    for (const CView* view : m_views)
        if (CFrameWnd* frame = view->GetParentFrame())
            frames.push_back(frame->m_hWnd);
    for (HWND window : frames)
        if (CWnd* frame = CWnd::FromHandlePermanent(window))
            frame->DestroyWindow();
    m_bAutoDelete = autoDelete;
    DeleteContents();
    if (autoDelete)
        delete this; // whoever made it left that to the document
}

void CDocument::OnChangedViewList()
{
    for (const CView* view : m_views)
        if (CFrameWnd* frame = view->m_hWnd ? view->GetParentFrame() : nullptr)
            frame->DelayUpdateFrameTitle();
}
