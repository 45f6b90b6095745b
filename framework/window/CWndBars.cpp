#include "framework/window/CWnd.h"
#include "framework/window/WindowMap.h"

#include <algorithm>
#include <vector>

namespace
{

bool IsSameRect(HWND window, const RECT& rect)
{
    RECT now = {};
    ::GetWindowRect(window, &now);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<LPPOINT>(&now), 2);
    return ::EqualRect(&now, &rect) != FALSE;
}

} // namespace

void AfxRepositionWindow(AFX_SIZEPARENTPARAMS* lpLayout, HWND hWnd, LPCRECT lpRect)
{
    if (lpLayout && !lpLayout->hDWP)
    {
        return; // only asked how it would be
    }
    if (IsSameRect(hWnd, *lpRect))
    {
        return;
    }
    constexpr UINT kFlags = SWP_NOACTIVATE | SWP_NOZORDER;
    const int width = lpRect->right - lpRect->left;
    const int height = lpRect->bottom - lpRect->top;
    if (lpLayout)
    {
        lpLayout->hDWP =
            ::DeferWindowPos(lpLayout->hDWP, hWnd, nullptr, lpRect->left, lpRect->top, width, height, kFlags);
    }
    else
    {
        ::SetWindowPos(hWnd, nullptr, lpRect->left, lpRect->top, width, height, kFlags);
    }
}

namespace
{

void LayOutBar(HWND bar, AFX_SIZEPARENTPARAMS& layout)
{
    ::SendMessage(bar, WM_SIZEPARENT, 0, reinterpret_cast<LPARAM>(&layout));
}

/// The bars among a window's children, in no order.
std::vector<HWND> BarsOf(HWND parent, UINT first, UINT last)
{
    std::vector<HWND> bars;
    vorn::WindowMap().VisitPermanent(
        [&](HWND window, CWnd*)
        {
            const UINT id = LOWORD(::GetDlgCtrlID(window));
            if (id >= first && id <= last && ::GetAncestor(window, GA_PARENT) == parent)
            {
                bars.push_back(window);
            }
        });
    return bars;
}

/// Lets each bar take its part, in the order of the windows. @return the window that gets the rest, or null
HWND LayOutBars(HWND parent, UINT first, UINT last, UINT leftOver, AFX_SIZEPARENTPARAMS& layout)
{
    // To go from child to child is a question to the system each: a dialog of many controls has one bar or none.
    if (const UINT least = std::max(first, 1U); leftOver == 0)
    {
        const std::vector<HWND> bars = BarsOf(parent, least, last);
        if (bars.size() <= 1)
        {
            for (HWND bar : bars)
            {
                LayOutBar(bar, layout);
            }
            return nullptr;
        }
    }
    HWND rest = nullptr;
    for (HWND child = ::GetTopWindow(parent); child; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        const UINT id = LOWORD(::GetDlgCtrlID(child));
        if (id == leftOver)
        {
            rest = child;
        }
        else if (id >= first && id <= last && CWnd::FromHandlePermanent(child))
        {
            LayOutBar(child, layout);
        }
    }
    return rest;
}

void GiveRest(HWND window, AFX_SIZEPARENTPARAMS& layout)
{
    if (CWnd* object = CWnd::FromHandlePermanent(window))
    {
        object->CalcWindowRect(&layout.rect);
    }
    const RECT rest = layout.rect;
    AfxRepositionWindow(&layout, window, &rest);
}

RECT Shrunk(const RECT& rect, const RECT& by)
{
    return {rect.left + by.left, rect.top + by.top, rect.right - by.right, rect.bottom - by.bottom};
}

} // namespace

void CWnd::RepositionBars(UINT nIDFirst, UINT nIDLast, UINT nIDLeftOver, UINT nFlag, LPRECT lpRectParam,
                          LPCRECT lpRectClient, BOOL bStretch)
{
    AFX_SIZEPARENTPARAMS layout = {};
    layout.bStretch = bStretch;
    lpRectClient ? static_cast<void>(layout.rect = *lpRectClient) : GetClientRect(&layout.rect);
    layout.hDWP = nFlag == reposQuery ? nullptr : ::BeginDeferWindowPos(8);
    const HWND rest = LayOutBars(m_hWnd, nIDFirst, nIDLast, nIDLeftOver, layout);
    if (nFlag == reposQuery)
    {
        if (lpRectParam)
        {
            *lpRectParam = bStretch ? layout.rect : RECT{0, 0, layout.sizeTotal.cx, layout.sizeTotal.cy};
        }
        return;
    }
    if (nIDLeftOver != 0 && rest)
    {
        if (nFlag == reposExtra && lpRectParam)
        {
            layout.rect = Shrunk(layout.rect, *lpRectParam);
        }
        GiveRest(rest, layout);
    }
    if (layout.hDWP)
    {
        ::EndDeferWindowPos(layout.hDWP);
    }
}
