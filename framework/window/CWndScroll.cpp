#include "framework/window/CWnd.h"

#include "framework/gdi/CRgn.h"

namespace
{

/// Which window's scroll bar a call is about: the window's own, or a scroll-bar control standing in.
struct ScrollTarget
{
    HWND window;
    int bar;
};

ScrollTarget TargetOf(const CWnd& window, int bar)
{
    const auto* control = reinterpret_cast<const CWnd*>(window.GetScrollBarCtrl(bar));
    return control ? ScrollTarget{control->m_hWnd, SB_CTL} : ScrollTarget{window.m_hWnd, bar};
}

} // namespace

CScrollBar* CWnd::GetScrollBarCtrl(int) const
{
    return nullptr;
}

int CWnd::GetScrollPos(int nBar) const
{
    const ScrollTarget target = TargetOf(*this, nBar);
    return ::GetScrollPos(target.window, target.bar);
}

void CWnd::GetScrollRange(int nBar, LPINT lpMinPos, LPINT lpMaxPos) const
{
    const ScrollTarget target = TargetOf(*this, nBar);
    ::GetScrollRange(target.window, target.bar, lpMinPos, lpMaxPos);
}

int CWnd::SetScrollPos(int nBar, int nPos, BOOL bRedraw)
{
    const ScrollTarget target = TargetOf(*this, nBar);
    return ::SetScrollPos(target.window, target.bar, nPos, bRedraw);
}

void CWnd::SetScrollRange(int nBar, int nMinPos, int nMaxPos, BOOL bRedraw)
{
    const ScrollTarget target = TargetOf(*this, nBar);
    ::SetScrollRange(target.window, target.bar, nMinPos, nMaxPos, bRedraw);
}

BOOL CWnd::SetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, BOOL bRedraw)
{
    const ScrollTarget target = TargetOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    ::SetScrollInfo(target.window, target.bar, lpScrollInfo, bRedraw);
    return TRUE;
}

BOOL CWnd::GetScrollInfo(int nBar, LPSCROLLINFO lpScrollInfo, UINT nMask)
{
    const ScrollTarget target = TargetOf(*this, nBar);
    lpScrollInfo->cbSize = sizeof(*lpScrollInfo);
    lpScrollInfo->fMask = nMask;
    return ::GetScrollInfo(target.window, target.bar, lpScrollInfo);
}

int CWnd::GetScrollLimit(int nBar)
{
    int first = 0;
    int last = 0;
    GetScrollRange(nBar, &first, &last);
    SCROLLINFO info = {};
    if (GetScrollInfo(nBar, &info, SIF_PAGE) && info.nPage > 1)
    {
        last -= static_cast<int>(info.nPage) - 1;
    }
    return last;
}

void CWnd::ScrollWindow(int xAmount, int yAmount, LPCRECT lpRect, LPCRECT lpClipRect)
{
    ::ScrollWindow(m_hWnd, xAmount, yAmount, lpRect, lpClipRect);
}

int CWnd::ScrollWindowEx(int dx, int dy, LPCRECT lpRectScroll, LPCRECT lpRectClip, CRgn* prgnUpdate,
                         LPRECT lpRectUpdate, UINT flags)
{
    const auto region = prgnUpdate ? static_cast<HRGN>(prgnUpdate->GetSafeHandle()) : nullptr;
    return ::ScrollWindowEx(m_hWnd, dx, dy, lpRectScroll, lpRectClip, region, lpRectUpdate, flags);
}

void CWnd::ShowScrollBar(UINT nBar, BOOL bShow)
{
    const ScrollTarget target = TargetOf(*this, static_cast<int>(nBar));
    if (target.bar == SB_CTL && target.window != m_hWnd)
    {
        ::ShowWindow(target.window, bShow ? SW_SHOW : SW_HIDE);
        return;
    }
    ::ShowScrollBar(m_hWnd, target.bar, bShow);
}

void CWnd::EnableScrollBarCtrl(int nBar, BOOL bEnable)
{
    const ScrollTarget target = TargetOf(*this, nBar);
    if (target.window != m_hWnd)
    {
        ::EnableWindow(target.window, bEnable);
        return;
    }
    ::EnableScrollBar(m_hWnd, static_cast<UINT>(nBar), bEnable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
}

BOOL CWnd::EnableScrollBar(int nSBFlags, UINT nArrowFlags)
{
    return ::EnableScrollBar(m_hWnd, static_cast<UINT>(nSBFlags), nArrowFlags);
}
