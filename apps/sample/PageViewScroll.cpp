// How the view is scrolled when its page is higher than the window.
#include "apps/sample/PageView.h"

#include <algorithm>

namespace
{

constexpr int kLineScroll = 40; // pixels at 96 dpi

} // namespace

void PageView::ShowScrollPosition(int height)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_DISABLENOSCROLL;
    info.nMax = std::max(0, m_pageHeight - 1);
    info.nPage = static_cast<UINT>(std::max(0, height));
    info.nPos = m_scroll;
    SetScrollInfo(SB_VERT, &info);
}

void PageView::ScrollTo(int position)
{
    const int before = m_scroll;
    m_scroll = position;
    Layout();
    if (m_scroll != before)
        Invalidate(FALSE);
}

void PageView::OnVScroll(UINT code, UINT, CScrollBar*)
{
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_ALL;
    GetScrollInfo(SB_VERT, &info);
    switch (code)
    {
    case SB_LINEUP:
        return ScrollTo(m_scroll - m_theme->Px(kLineScroll));
    case SB_LINEDOWN:
        return ScrollTo(m_scroll + m_theme->Px(kLineScroll));
    case SB_PAGEUP:
        return ScrollTo(m_scroll - static_cast<int>(info.nPage));
    case SB_PAGEDOWN:
        return ScrollTo(m_scroll + static_cast<int>(info.nPage));
    case SB_TOP:
        return ScrollTo(0);
    case SB_BOTTOM:
        return ScrollTo(m_pageHeight);
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return ScrollTo(info.nTrackPos);
    default:
        break;
    }
}

BOOL PageView::OnMouseWheel(UINT, short delta, CPoint)
{
    ScrollTo(m_scroll - MulDiv(delta, 3 * m_theme->Px(kLineScroll), WHEEL_DELTA));
    return TRUE;
}

void PageView::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    ScrollByKey(key);
    CView::OnKeyDown(key, repeats, flags);
}

void PageView::ScrollByKey(UINT key)
{
    switch (key)
    {
    case VK_UP:
        return OnVScroll(SB_LINEUP, 0, nullptr);
    case VK_DOWN:
        return OnVScroll(SB_LINEDOWN, 0, nullptr);
    case VK_PRIOR:
        return OnVScroll(SB_PAGEUP, 0, nullptr);
    case VK_NEXT:
        return OnVScroll(SB_PAGEDOWN, 0, nullptr);
    case VK_HOME:
        return OnVScroll(SB_TOP, 0, nullptr);
    case VK_END:
        return OnVScroll(SB_BOTTOM, 0, nullptr);
    default:
        break;
    }
}
