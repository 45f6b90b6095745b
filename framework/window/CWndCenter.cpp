#include "framework/window/CWnd.h"

#include "framework/window/CWinThread.h"

namespace
{

bool IsVisibleOnScreen(HWND window)
{
    return ::IsWindowVisible(window) && !::IsIconic(window);
}

RECT WorkAreaNear(HWND window)
{
    MONITORINFO info = {};
    info.cbSize = sizeof(info);
    ::GetMonitorInfo(::MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

/// Middle of one extent in another, kept inside limits; the near edge wins when it does not fit.
LONG CenteredStart(LONG first, LONG last, LONG extent, LONG limitFirst, LONG limitLast)
{
    LONG start = first + (last - first - extent) / 2;
    if (start + extent > limitLast)
    {
        start = limitLast - extent;
    }
    return start < limitFirst ? limitFirst : start;
}

void PlaceCentered(HWND window, const RECT& center, const RECT& limits)
{
    RECT rect = {};
    ::GetWindowRect(window, &rect);
    const LONG x = CenteredStart(center.left, center.right, rect.right - rect.left, limits.left, limits.right);
    const LONG y = CenteredStart(center.top, center.bottom, rect.bottom - rect.top, limits.top, limits.bottom);
    ::SetWindowPos(window, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void CenterPopup(HWND window, HWND owner)
{
    const HWND around = owner && IsVisibleOnScreen(owner) ? owner : nullptr;
    const RECT limits = WorkAreaNear(around ? around : window);
    RECT center = limits;
    if (around)
    {
        ::GetWindowRect(around, &center);
    }
    PlaceCentered(window, center, limits);
}

void CenterChild(HWND window, HWND around)
{
    const HWND parent = ::GetParent(window);
    RECT limits = {};
    ::GetClientRect(parent, &limits);
    RECT center = {};
    ::GetClientRect(around ? around : parent, &center);
    ::MapWindowPoints(around ? around : parent, parent, reinterpret_cast<LPPOINT>(&center), 2);
    PlaceCentered(window, center, limits);
}

} // namespace

void CWnd::CenterWindow(CWnd* pAlternateOwner)
{
    const HWND alternate = pAlternateOwner->GetSafeHwnd();
    if (GetStyle() & WS_CHILD)
    {
        CenterChild(m_hWnd, alternate);
        return;
    }
    HWND owner = alternate ? alternate : ::GetWindow(m_hWnd, GW_OWNER);
    if (!owner)
    {
        const HWND main = AfxGetMainWnd()->GetSafeHwnd();
        owner = main == m_hWnd ? nullptr : main;
    }
    CenterPopup(m_hWnd, owner);
}
