#include "toolkit/startup/StartupArea.h"

#include <algorithm>

namespace vorn
{

namespace
{

constexpr int kLinesForWheel = 3;

/// Where a scroll bar's code leads from `range`'s position.
int Target(UINT code, const SCROLLINFO& range, int line)
{
    const int page = static_cast<int>(range.nPage);
    switch (code)
    {
    case SB_LINEUP:
        return range.nPos - line;
    case SB_LINEDOWN:
        return range.nPos + line;
    case SB_PAGEUP:
        return range.nPos - page;
    case SB_PAGEDOWN:
        return range.nPos + page;
    case SB_TOP:
        return range.nMin;
    case SB_BOTTOM:
        return range.nMax;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return range.nTrackPos;
    default:
        return range.nPos;
    }
}

/// The scroll bar's code for a key; SB_ENDSCROLL for a key that does not scroll.
UINT CodeOf(UINT key)
{
    switch (key)
    {
    case VK_UP:
        return SB_LINEUP;
    case VK_DOWN:
        return SB_LINEDOWN;
    case VK_PRIOR:
        return SB_PAGEUP;
    case VK_NEXT:
        return SB_PAGEDOWN;
    case VK_HOME:
        return SB_TOP;
    case VK_END:
        return SB_BOTTOM;
    default:
        return SB_ENDSCROLL;
    }
}

} // namespace

BEGIN_MESSAGE_MAP(StartupArea, CWnd)
ON_WM_VSCROLL()
ON_WM_MOUSEWHEEL()
ON_WM_KEYDOWN()
ON_WM_LBUTTONDOWN()
ON_WM_GETDLGCODE()
END_MESSAGE_MAP()

bool StartupArea::CreateIn(CWnd& dialog, UINT id, const CRect& place, int contentHeight, HWND after)
{
    m_contentHeight = contentHeight;
    m_page = place.Height();
    const LPCTSTR windowClass =
        AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1));
    const DWORD scrolling = Scrolls() ? WS_VSCROLL | WS_TABSTOP : 0;
    if (!Create(windowClass, "", WS_CHILD | WS_VISIBLE | scrolling, place, &dialog, id))
    {
        return false;
    }
    ::SetWindowPos(m_hWnd, after, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    if (Scrolls())
    {
        SCROLLINFO range = {
            sizeof(range), SIF_RANGE | SIF_PAGE, 0, m_contentHeight - 1, static_cast<UINT>(m_page), 0, 0};
        SetScrollInfo(SB_VERT, &range);
    }
    return true;
}

HWND StartupArea::Add(LPCSTR windowClass, LPCSTR text, DWORD style, const CRect& place, HFONT font)
{
    const HWND control =
        ::CreateWindowExA(0, windowClass, text, WS_CHILD | WS_VISIBLE | style, place.left, place.top, place.Width(),
                          place.Height(), m_hWnd, nullptr, AfxGetInstanceHandle(), nullptr);
    if (control != nullptr)
    {
        ::SendMessage(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    }
    return control;
}

bool StartupArea::Turn(int delta)
{
    if (!Scrolls())
    {
        return false;
    }
    ScrollTo(Range().nPos - delta * kLinesForWheel * LineHeight() / WHEEL_DELTA);
    return true;
}

/// The dialog answers for the colours.
LRESULT StartupArea::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WM_CTLCOLORSTATIC || message == WM_CTLCOLORBTN ? GetParent()->SendMessage(message, wParam, lParam)
                                                                     : CWnd::WindowProc(message, wParam, lParam);
}

void StartupArea::OnVScroll(UINT code, UINT, CScrollBar*)
{
    ScrollTo(Target(code, Range(), LineHeight()));
}

BOOL StartupArea::OnMouseWheel(UINT, short delta, CPoint)
{
    return Turn(delta);
}

void StartupArea::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    if (const UINT code = CodeOf(key); Scrolls() && code != SB_ENDSCROLL)
    {
        ScrollTo(Target(code, Range(), LineHeight()));
        return;
    }
    CWnd::OnKeyDown(key, repeats, flags);
}

void StartupArea::OnLButtonDown(UINT flags, CPoint point)
{
    if (Scrolls())
    {
        SetFocus();
    }
    CWnd::OnLButtonDown(flags, point);
}

UINT StartupArea::OnGetDlgCode()
{
    return Scrolls() ? DLGC_WANTARROWS : DLGC_STATIC;
}

bool StartupArea::Scrolls() const
{
    return m_contentHeight > m_page;
}

int StartupArea::LineHeight() const
{
    return std::max(m_page / 10, 1);
}

void StartupArea::ScrollTo(int position)
{
    const int before = Range().nPos;
    const int now = std::clamp(position, 0, std::max(m_contentHeight - m_page, 0));
    if (now == before)
    {
        return;
    }
    SCROLLINFO place = {sizeof(place), SIF_POS, 0, 0, 0, now, 0};
    SetScrollInfo(SB_VERT, &place);
    ScrollWindow(0, before - now);
    UpdateWindow();
}

SCROLLINFO StartupArea::Range() const
{
    SCROLLINFO range = {sizeof(range), SIF_ALL, 0, 0, 0, 0, 0};
    ::GetScrollInfo(m_hWnd, SB_VERT, &range);
    return range;
}

} // namespace vorn
