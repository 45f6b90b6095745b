#include "framework/gdi/CDC.h"
#include "framework/window/CWnd.h"
#include "toolkit/layout/LayoutMgr.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

// The background of a laid-out window, painted around its controls.
namespace LayoutManagement
{
namespace
{

/// A region that ends with its scope.
class Region
{
public:
    explicit Region(HRGN region) : m_region(region)
    {
    }
    ~Region()
    {
        DeleteObject(m_region);
    }
    Region(const Region&) = delete;
    Region& operator=(const Region&) = delete;

    HRGN Get() const
    {
        return m_region;
    }
    void Without(HRGN other)
    {
        CombineRgn(m_region, m_region, other, RGN_DIFF);
    }

private:
    HRGN m_region;
};

bool IsClass(HWND control, const char* name)
{
    char own[32] = {};
    GetClassNameA(control, own, sizeof own);
    return lstrcmpiA(own, name) == 0;
}

/// Frames around other controls, and what shows the background through itself.
bool IsSeenThrough(HWND control)
{
    const LONG style = GetWindowLongA(control, GWL_STYLE);
    if ((GetWindowLongA(control, GWL_EXSTYLE) & WS_EX_TRANSPARENT) != 0)
    {
        return true;
    }
    if (IsClass(control, "Button"))
    {
        return (style & 0xF) == BS_GROUPBOX;
    }
    const LONG type = style & SS_TYPEMASK;
    return IsClass(control, "Static") && (type == SS_ETCHEDFRAME || (type >= SS_BLACKFRAME && type <= SS_WHITEFRAME));
}

/// Body and tabs of a tab control; the rest of the row of tabs belongs to the background. Its tabs stand at the top.
HRGN TabRegion(HWND tab, const RECT& bounds)
{
    const int count = static_cast<int>(SendMessageA(tab, TCM_GETITEMCOUNT, 0, 0));
    const LONG otherSides = GetWindowLongA(tab, GWL_STYLE) & (TCS_BOTTOM | TCS_VERTICAL | TCS_MULTILINE);
    RECT first{};
    RECT last{};
    if (count == 0 || otherSides != 0 || !SendMessageA(tab, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first)) ||
        !SendMessageA(tab, TCM_GETITEMRECT, static_cast<WPARAM>(count - 1), reinterpret_cast<LPARAM>(&last)))
    {
        return CreateRectRgnIndirect(&bounds);
    }
    // The selected tab stands out by two pixels on both sides.
    constexpr LONG kOutstanding = 2;
    const LONG body = bounds.top + first.bottom;
    const LONG left = std::max(bounds.left, bounds.left + first.left - kOutstanding);
    const LONG right = std::min(bounds.right, bounds.left + last.right + kOutstanding);
    const POINT corners[] = {{left, bounds.top},
                             {right, bounds.top},
                             {right, body},
                             {bounds.right, body},
                             {bounds.right, bounds.bottom},
                             {bounds.left, bounds.bottom},
                             {bounds.left, body},
                             {left, body}};
    return CreatePolygonRgn(corners, static_cast<int>(std::size(corners)), WINDING);
}

void CutOut(Region& region, HWND window, HWND control)
{
    if ((GetWindowLongA(control, GWL_STYLE) & WS_VISIBLE) == 0 || IsSeenThrough(control))
    {
        return;
    }
    RECT bounds{};
    GetWindowRect(control, &bounds);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&bounds), 2);
    const Region part(IsClass(control, WC_TABCONTROLA) ? TabRegion(control, bounds) : CreateRectRgnIndirect(&bounds));
    region.Without(part.Get());
}

/// The class's own brush; small numbers stand for the system's colours.
HBRUSH BackgroundOf(HWND window)
{
    const ULONG_PTR brush = GetClassLongPtrA(window, GCLP_HBRBACKGROUND);
    constexpr ULONG_PTR kLastColor = 31;
    if (brush == 0)
    {
        return GetSysColorBrush(COLOR_3DFACE);
    }
    return brush <= kLastColor ? GetSysColorBrush(static_cast<int>(brush) - 1) : reinterpret_cast<HBRUSH>(brush);
}

} // namespace

void LayoutMgr::EraseBkgnd(CDC* pDC)
{
    if (pDC == nullptr || pDC->m_hDC == nullptr || !HasWindow())
    {
        return;
    }
    const HWND window = m_pWnd->m_hWnd;
    RECT client{};
    GetClientRect(window, &client);
    Region around(CreateRectRgnIndirect(&client));
    for (HWND child = ::GetWindow(window, GW_CHILD); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT))
    {
        CutOut(around, window, child);
    }
    const int saved = SaveDC(pDC->m_hDC);
    POINT origin{};
    GetViewportOrgEx(pDC->m_hDC, &origin);
    OffsetRgn(around.Get(), origin.x, origin.y); // clip regions are in device units
    ExtSelectClipRgn(pDC->m_hDC, around.Get(), RGN_AND);
    SetBrushOrgEx(pDC->m_hDC, origin.x, origin.y, nullptr);
    FillRect(pDC->m_hDC, &client, BackgroundOf(window));
    RestoreDC(pDC->m_hDC, saved);
}

} // namespace LayoutManagement
