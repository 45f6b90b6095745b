#include "framework/frames/CFloatingBarFrame.h"
#include "framework/bars/BarDragging.h"
#include "framework/include/afxres.h"

IMPLEMENT_DYNAMIC(CFloatingBarFrame, CMiniFrameWnd)

BEGIN_MESSAGE_MAP(CFloatingBarFrame, CMiniFrameWnd)
ON_WM_CLOSE()
ON_WM_NCLBUTTONDOWN()
ON_WM_NCLBUTTONDBLCLK()
END_MESSAGE_MAP()

CFloatingBarFrame::CFloatingBarFrame() = default;

CFloatingBarFrame::~CFloatingBarFrame() = default;

BOOL CFloatingBarFrame::CreateFor(CFrameWnd* frame)
{
    constexpr DWORD kStyle =
        WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | MFS_SYNCACTIVE | MFS_BLOCKSYSMENU | FWS_SNAPTOBARS;
    if (!CreateEx(0, nullptr, "", kStyle, CRect(0, 0, 0, 0), frame))
        return FALSE;
    if (m_dock.Create(this, WS_CHILD | WS_VISIBLE | CBRS_ALIGN_TOP, AFX_IDW_DOCKBAR_FLOAT))
        return TRUE;
    DestroyWindow();
    return FALSE;
}

CDockBar& CFloatingBarFrame::GetDock()
{
    return m_dock;
}

CFrameWnd* CFloatingBarFrame::GetDockingFrame() const
{
    return DYNAMIC_DOWNCAST(CFrameWnd, FromHandlePermanent(::GetWindow(m_hWnd, GW_OWNER)));
}

void CFloatingBarFrame::TakeBar(CControlBar& bar, DWORD align)
{
    m_dock.m_floatAlign = align;
    m_dock.DockControlBar(&bar);
    CString title;
    bar.GetWindowText(title);
    SetTitle(title);
    SetWindowText(title);
}

void CFloatingBarFrame::PutBarAt(POINT corner)
{
    CRect frame(corner, SIZE{0, 0});
    CalcWindowRect(&frame);
    SetWindowPos(nullptr, frame.left, frame.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CFloatingBarFrame::FitBar()
{
    const bool visible = m_dock.GetDockedVisibleCount() > 0 && ::IsWindowVisible(::GetWindow(m_hWnd, GW_OWNER));
    RecalcLayout(FALSE);
    if (visible == (IsWindowVisible() != FALSE))
        return;
    ShowWindow(visible ? SW_SHOWNA : SW_HIDE);
    if (visible && ::GetActiveWindow() == ::GetWindow(m_hWnd, GW_OWNER))
        SendMessage(WM_NCACTIVATE, TRUE);
}

BOOL CFloatingBarFrame::OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* handlerInfo)
{
    // The frame first: this one would ask the application before it.
    CFrameWnd* frame = GetDockingFrame();
    if (frame && frame->OnCmdMsg(id, code, extra, handlerInfo))
        return TRUE;
    return CMiniFrameWnd::OnCmdMsg(id, code, extra, handlerInfo);
}

void CFloatingBarFrame::OnClose()
{
    CFrameWnd* frame = GetDockingFrame();
    if (m_dock.GetDockedCount() == 0 || !frame)
    {
        DestroyWindow();
        return;
    }
    for (int i = 0; i < m_dock.GetDockedCount(); ++i)
        frame->ShowControlBar(m_dock.GetDockedControlBar(i), FALSE, FALSE);
}

/// The bar that a press at a place of the frame means; null when the system is to answer.
CControlBar* CFloatingBarFrame::CaptionBar(UINT hit) const
{
    return hit == HTCAPTION ? m_dock.GetDockedControlBar(0) : nullptr;
}

void CFloatingBarFrame::OnNcLButtonDown(UINT hit, CPoint point)
{
    CControlBar* bar = CaptionBar(hit);
    if (!bar)
    {
        CMiniFrameWnd::OnNcLButtonDown(hit, point);
        return;
    }
    SetActiveWindow();
    vorn::BarDragging(*bar, point).Run();
}

void CFloatingBarFrame::OnNcLButtonDblClk(UINT hit, CPoint point)
{
    if (CControlBar* bar = CaptionBar(hit))
        bar->ToggleDocking();
    else
        CMiniFrameWnd::OnNcLButtonDblClk(hit, point);
}
