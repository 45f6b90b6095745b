#include "framework/controls/CScrollBar.h"

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

CScrollBar::CScrollBar() = default;

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("SCROLLBAR", nullptr, style, rect, parent, id);
}

int CScrollBar::GetScrollPos() const
{
    return ::GetScrollPos(m_hWnd, SB_CTL);
}

int CScrollBar::SetScrollPos(int position, BOOL redraw)
{
    return ::SetScrollPos(m_hWnd, SB_CTL, position, redraw);
}

void CScrollBar::GetScrollRange(LPINT lowest, LPINT highest) const
{
    ::GetScrollRange(m_hWnd, SB_CTL, lowest, highest);
}

void CScrollBar::SetScrollRange(int lowest, int highest, BOOL redraw)
{
    ::SetScrollRange(m_hWnd, SB_CTL, lowest, highest, redraw);
}

void CScrollBar::ShowScrollBar(BOOL show)
{
    ::ShowScrollBar(m_hWnd, SB_CTL, show);
}

BOOL CScrollBar::EnableScrollBar(UINT arrows)
{
    return ::EnableScrollBar(m_hWnd, SB_CTL, arrows);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO info, BOOL redraw)
{
    info->cbSize = sizeof(SCROLLINFO);
    ::SetScrollInfo(m_hWnd, SB_CTL, info, redraw);
    return TRUE;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO info, UINT mask)
{
    info->cbSize = sizeof(SCROLLINFO);
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, info);
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info{};
    int lowest = 0;
    int highest = 0;
    GetScrollRange(&lowest, &highest);
    if (GetScrollInfo(&info, SIF_PAGE) && info.nPage > 1)
        highest -= static_cast<int>(info.nPage) - 1;
    return highest;
}
