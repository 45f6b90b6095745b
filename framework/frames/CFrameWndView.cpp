#include "framework/frames/CDocument.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/frames/CView.h"
#include "framework/frames/SyncedCaptions.h"
#include "framework/include/afxres.h"
#include "framework/window/CWinApp.h"

// Active view, activation, title and command routing of a frame.

CView* CFrameWnd::GetActiveView() const
{
    return m_pViewActive;
}

void CFrameWnd::SetActiveView(CView* view, BOOL notify)
{
    CView* former = m_pViewActive;
    if (view == former)
        return;
    m_pViewActive = nullptr;
    if (former && notify)
        former->OnActivateView(FALSE, view, former);
    // What the former view did may have made another view active.
    if (m_pViewActive)
        return;
    m_pViewActive = view;
    if (view && notify)
        view->OnActivateView(TRUE, view, former);
}

CDocument* CFrameWnd::GetActiveDocument()
{
    return m_pViewActive ? m_pViewActive->GetDocument() : nullptr;
}

CFrameWnd* CFrameWnd::GetActiveFrame()
{
    return this;
}

void CFrameWnd::InitialUpdateFrame(CDocument* document, BOOL makeVisible)
{
    if (!m_pViewActive)
        if (auto* view = DYNAMIC_DOWNCAST(CView, GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE)))
            SetActiveView(view, FALSE);
    if (makeVisible)
    {
        SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
        if (m_pViewActive)
            m_pViewActive->OnActivateFrame(WA_INACTIVE, this);
        // The program's first frame is shown as its caller asked, later ones as they like.
        int show = -1;
        CWinApp* app = AfxGetApp();
        if (app && app->m_pMainWnd == this)
            std::swap(show, app->m_nCmdShow);
        ActivateFrame(show);
        if (m_pViewActive)
            m_pViewActive->OnActivateView(TRUE, m_pViewActive, m_pViewActive);
    }
    if (document)
        document->OnChangedViewList();
    OnUpdateFrameTitle(TRUE);
}

void CFrameWnd::ActivateFrame(int showCommand)
{
    if (showCommand == -1)
        showCommand = !IsWindowVisible() ? SW_SHOWNORMAL : IsIconic() ? SW_RESTORE : -1;
    const bool minimizing = showCommand == SW_HIDE || showCommand == SW_MINIMIZE || showCommand == SW_SHOWMINNOACTIVE;
    if (!minimizing)
        BringWindowToTop();
    if (showCommand != -1)
        ShowWindow(showCommand);
    if (!minimizing)
        if (CWnd* popup = GetLastActivePopup())
            popup->BringWindowToTop();
}

void CFrameWnd::OnSetFocus(CWnd* former)
{
    if (m_pViewActive)
        m_pViewActive->SetFocus();
    else
        CWnd::OnSetFocus(former);
}

void CFrameWnd::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    CWnd::OnActivate(state, other, minimized);
    vorn::SyncCaptions(m_hWnd, state != WA_INACTIVE, other->GetSafeHwnd());
    CView* view = m_pViewActive;
    if (!view)
        return;
    if (state != WA_INACTIVE && !minimized && GetTopLevelParent() == this)
        view->OnActivateView(TRUE, view, view);
    view->OnActivateFrame(state, this);
}

BOOL CFrameWnd::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    if (m_pViewActive && m_pViewActive->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    if (CWnd::OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    CWinApp* app = AfxGetApp();
    return app && app->OnCmdMsg(id, code, extra, handlerInfo);
}

BOOL CFrameWnd::PreTranslateMessage(MSG* message)
{
    if (CWnd::PreTranslateMessage(message))
        return TRUE;
    if (message->message < WM_KEYFIRST || message->message > WM_KEYLAST)
        return FALSE;
    HACCEL accelerators = GetDefaultAccelerator();
    return accelerators && ::TranslateAccelerator(m_hWnd, accelerators, message);
}

CString CFrameWnd::GetTitle() const
{
    return m_strTitle;
}

void CFrameWnd::SetTitle(LPCTSTR title)
{
    m_strTitle = title ? title : "";
}

void CFrameWnd::DelayUpdateFrameTitle()
{
    m_nIdleFlags |= idleTitle;
}

void CFrameWnd::OnUpdateFrameTitle(BOOL addToTitle)
{
    if (!(GetStyle() & FWS_ADDTOTITLE))
        return;
    CDocument* document = addToTitle ? GetActiveDocument() : nullptr;
    UpdateFrameTitleForDocument(document ? static_cast<LPCTSTR>(document->GetTitle()) : nullptr);
}

CString CFrameWnd::DocumentText(LPCTSTR documentName) const
{
    CString text(documentName);
    if (m_nWindow <= 0)
        return text;
    CString number;
    number.Format(":%d", m_nWindow);
    return text + number;
}

void CFrameWnd::UpdateFrameTitleForDocument(LPCTSTR documentName)
{
    const char* separator = " - ";
    CString text = m_strTitle;
    if (documentName && m_strTitle.IsEmpty())
        text = DocumentText(documentName);
    else if (documentName && GetStyle() & FWS_PREFIXTITLE)
        text = DocumentText(documentName) + separator + m_strTitle;
    else if (documentName)
        text = m_strTitle + separator + DocumentText(documentName);
    CString present;
    GetWindowText(present);
    if (present != text)
        SetWindowText(text);
}
