#include "framework/frames/CView.h"
#include "framework/frames/CDocument.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/gdi/CPaintDC.h"
#include "framework/window/ModuleState.h"

IMPLEMENT_DYNAMIC(CView, CWnd)

BEGIN_MESSAGE_MAP(CView, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_MOUSEACTIVATE()
ON_WM_PRINTCLIENT()
ON_MESSAGE(WM_INITIALUPDATE, &CView::OnInitialUpdateMessage)
END_MESSAGE_MAP()

CView::CView() = default;

CView::~CView()
{
    // A view that is deleted with its window alive runs no OnDestroy().
    CFrameWnd* frame = GetParentFrame();
    if (frame && frame->GetActiveView() == this)
        frame->SetActiveView(nullptr, FALSE);
    if (m_pDocument)
        m_pDocument->RemoveView(this);
}

CDocument* CView::GetDocument() const
{
    return m_pDocument;
}

BOOL CView::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_WINDOW + 1)), nullptr);
    // The plain border of the default style stands for the sunken edge.
    if (cs.style & WS_BORDER)
    {
        cs.dwExStyle |= WS_EX_CLIENTEDGE;
        cs.style &= ~static_cast<LONG>(WS_BORDER);
    }
    return CWnd::PreCreateWindow(cs);
}

int CView::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1)
        return -1;
    const auto* context = static_cast<const CCreateContext*>(create->lpCreateParams);
    if (context && context->m_pCurrentDoc)
        context->m_pCurrentDoc->AddView(this);
    return 0;
}

void CView::OnDestroy()
{
    CFrameWnd* frame = GetParentFrame();
    if (frame && frame->GetActiveView() == this)
        frame->SetActiveView(nullptr);
    CWnd::OnDestroy();
}

void CView::PostNcDestroy()
{
    delete this; // a view is made by its frame and ends with its window
}

LRESULT CView::OnInitialUpdateMessage(WPARAM, LPARAM)
{
    OnInitialUpdate();
    return 0;
}

void CView::OnInitialUpdate()
{
    OnUpdate(nullptr, 0, nullptr);
}

void CView::OnUpdate(CView*, LPARAM, CObject*)
{
    Invalidate(TRUE);
}

BOOL CView::IsSelected(const CObject*) const
{
    return FALSE;
}

void CView::OnPaint()
{
    CPaintDC dc(this);
    OnPrepareDC(&dc);
    OnDraw(&dc);
}

LRESULT CView::OnPrintClient(CDC* dc, UINT)
{
    const int saved = dc->SaveDC();
    OnPrepareDC(dc);
    OnDraw(dc);
    dc->RestoreDC(saved);
    return 0;
}

BOOL CView::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    if (CWnd::OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    return m_pDocument && m_pDocument->OnCmdMsg(id, code, extra, handlerInfo);
}

void CView::OnActivateView(BOOL activate, CView* activateView, CView*)
{
    if (activate && activateView == this && IsTopParentActive())
        SetFocus();
}

void CView::OnActivateFrame(UINT, CFrameWnd*)
{
}

int CView::OnMouseActivate(CWnd* desktop, UINT hitTest, UINT message)
{
    const int answer = CWnd::OnMouseActivate(desktop, hitTest, message);
    CFrameWnd* frame = GetParentFrame();
    if (answer == MA_NOACTIVATE || answer == MA_NOACTIVATEANDEAT || !frame)
        return answer;
    if (frame->GetActiveView() == this)
        OnActivateView(TRUE, this, this);
    else
        frame->SetActiveView(this);
    return answer;
}
