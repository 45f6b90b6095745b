#include "framework/bars/CControlBar.h"
#include "framework/bars/CDockBar.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/gdi/CPaintDC.h"
#include "framework/window/ModuleState.h"

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_WM_NCCALCSIZE()
ON_WM_NCHITTEST()
ON_WM_NCPAINT()
ON_WM_CTLCOLOR()
ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
ON_MESSAGE(WM_INITIALUPDATE, &CControlBar::OnInitialUpdate)
END_MESSAGE_MAP()

CControlBar::CControlBar() = default;

CControlBar::~CControlBar()
{
    m_bAutoDelete = FALSE; // the end of the window must not end the object once more
    CControlBar::DestroyWindow();
    if (m_pDockBar)
        m_pDockBar->RemoveControlBar(this);
    if (m_pDockSite)
        m_pDockSite->RemoveControlBar(this);
}

int CControlBar::GetCount() const
{
    return m_nCount;
}

DWORD CControlBar::GetBarStyle() const
{
    return m_dwStyle;
}

void CControlBar::SetBarStyle(DWORD style)
{
    style &= CBRS_ALL;
    const DWORD former = m_dwStyle;
    if (former == style)
        return;
    m_dwStyle = style;
    OnBarStyleChange(former, style);
}

CRect CControlBar::GetBorders() const
{
    return CRect(m_cxLeftBorder, m_cyTopBorder, m_cxRightBorder, m_cyBottomBorder);
}

void CControlBar::SetBorders(int left, int top, int right, int bottom)
{
    m_cxLeftBorder = left;
    m_cyTopBorder = top;
    m_cxRightBorder = right;
    m_cyBottomBorder = bottom;
}

void CControlBar::SetBorders(LPCRECT borders)
{
    if (borders)
        SetBorders(borders->left, borders->top, borders->right, borders->bottom);
}

void CControlBar::OnBarStyleChange(DWORD, DWORD)
{
}

BOOL CControlBar::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                           reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1)));
    if (!CWnd::PreCreateWindow(cs))
        return FALSE;
    // Bars lie over the frame's client area side by side: none may paint over another.
    cs.style |= WS_CLIPSIBLINGS;
    return TRUE;
}

int CControlBar::OnCreate(LPCREATESTRUCT create)
{
    if (CWnd::OnCreate(create) == -1)
        return -1;
    CWnd* parent = GetParent();
    if (parent && parent->IsFrameWnd())
    {
        m_pDockSite = static_cast<CFrameWnd*>(parent);
        m_pDockSite->AddControlBar(this);
    }
    // Commands and notifications go there still when a dock has become the parent.
    if (!m_hWndOwner)
        SetOwner(parent);
    return 0;
}

void CControlBar::OnDestroy()
{
    if (m_pDockBar)
        m_pDockBar->RemoveControlBar(this);
    if (m_pDockSite)
        m_pDockSite->RemoveControlBar(this);
    m_pDockSite = nullptr;
    CWnd::OnDestroy();
}

BOOL CControlBar::DestroyWindow()
{
    return m_hWnd ? CWnd::DestroyWindow() : FALSE;
}

void CControlBar::PostNcDestroy()
{
    if (m_bAutoDelete)
        delete this; // made with new by a frame that left it to end with its window
}

LRESULT CControlBar::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_NOTIFY:
    case WM_COMMAND:
    case WM_DRAWITEM:
    case WM_MEASUREITEM:
    case WM_DELETEITEM:
    case WM_COMPAREITEM:
    case WM_VKEYTOITEM:
    case WM_CHARTOITEM:
        break;
    default:
        return CWnd::WindowProc(message, wParam, lParam);
    }
    LRESULT result = 0;
    if (OnWndMsg(message, wParam, lParam, &result))
        return result;
    CWnd* owner = GetOwner();
    return owner && owner != this ? owner->SendMessage(message, wParam, lParam) : 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM)
{
    // A change of visibility that the layout did not take along is done now.
    if (m_pending != Pending::None)
    {
        const UINT flags = RecalcDelayShow(nullptr);
        ::SetWindowPos(m_hWnd, nullptr, 0, 0, 0, 0, flags | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (!(GetStyle() & WS_VISIBLE))
        return 0;
    CWnd* owner = GetOwner();
    auto* target = owner && owner->IsFrameWnd() ? static_cast<CFrameWnd*>(owner) : GetDockingFrame();
    if (target)
        OnUpdateCmdUI(target, static_cast<BOOL>(wParam));
    return 0;
}

LRESULT CControlBar::OnInitialUpdate(WPARAM, LPARAM)
{
    return OnIdleUpdateCmdUI(TRUE, 0);
}
