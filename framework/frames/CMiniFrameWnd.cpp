#include "framework/frames/CMiniFrameWnd.h"
#include "framework/frames/SyncedCaptions.h"
#include "framework/window/ModuleState.h"

IMPLEMENT_DYNCREATE(CMiniFrameWnd, CFrameWnd)

BEGIN_MESSAGE_MAP(CMiniFrameWnd, CFrameWnd)
ON_WM_NCHITTEST()
ON_WM_GETMINMAXINFO()
ON_WM_ACTIVATE()
END_MESSAGE_MAP()

CMiniFrameWnd::CMiniFrameWnd() = default;

CMiniFrameWnd::~CMiniFrameWnd() = default;

BOOL CMiniFrameWnd::Create(LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CreateEx(0, className, windowName, style, rect, parent, id);
}

BOOL CMiniFrameWnd::CreateEx(DWORD exStyle, LPCTSTR className, LPCTSTR windowName, DWORD style, const RECT& rect,
                             CWnd* parent, UINT id)
{
    m_strTitle = windowName ? windowName : "";
    const CString ownClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW),
                                                 reinterpret_cast<HBRUSH>(static_cast<INT_PTR>(COLOR_BTNFACE + 1)));
    return CWnd::CreateEx(exStyle | WS_EX_TOOLWINDOW, className ? className : static_cast<LPCTSTR>(ownClass),
                          windowName, style, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top,
                          parent->GetSafeHwnd(), reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)));
}

LRESULT CMiniFrameWnd::OnNcHitTest(CPoint point)
{
    const LRESULT hit = CFrameWnd::OnNcHitTest(point);
    const DWORD style = GetStyle();
    const bool isEdge = hit == HTBORDER || (hit >= HTLEFT && hit <= HTBOTTOMRIGHT);
    if (isEdge && (style & MFS_MOVEFRAME))
        return HTCAPTION;
    if (isEdge && (style & MFS_4THICKFRAME))
        return HTBORDER;
    if (hit == HTSYSMENU && (style & MFS_BLOCKSYSMENU))
        return HTCAPTION;
    return hit;
}

void CMiniFrameWnd::OnGetMinMaxInfo(MINMAXINFO* info)
{
    CFrameWnd::OnGetMinMaxInfo(info);
    if (!(GetStyle() & MFS_THICKFRAME))
        return;
    CRect frame(0, 0, 0, 0);
    CalcWindowRect(&frame);
    info->ptMinTrackSize.x = frame.Width();
    info->ptMinTrackSize.y = frame.Height();
}

void CMiniFrameWnd::OnActivate(UINT state, CWnd* other, BOOL minimized)
{
    CFrameWnd::OnActivate(state, other, minimized);
    if (GetStyle() & MFS_SYNCACTIVE)
        vorn::SyncCaptions(::GetWindow(m_hWnd, GW_OWNER), state != WA_INACTIVE, other->GetSafeHwnd());
}
