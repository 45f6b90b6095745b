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
    explicit Region(const RECT& rect) : m_region(CreateRectRgnIndirect(&rect))
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

private:
    HRGN m_region;
};

bool IsNamed(const char* className, const char* name)
{
    return lstrcmpiA(className, name) == 0;
}

/// Frames around other controls, and what shows the background through itself.
bool IsSeenThrough(HWND control, const char* className, LONG style)
{
    const LONG type = style & SS_TYPEMASK;
    if (IsNamed(className, "Button"))
    {
        return (style & 0xF) == BS_GROUPBOX;
    }
    if (IsNamed(className, "Static") && (type == SS_ETCHEDFRAME || (type >= SS_BLACKFRAME && type <= SS_WHITEFRAME)))
    {
        return true;
    }
    return (GetWindowLongA(control, GWL_EXSTYLE) & WS_EX_TRANSPARENT) != 0;
}

/// Body and tabs of a tab control whose tabs stand at the top in one row; the rest of the row belongs to the
/// background.
/// @return null for any other
HRGN TabRegion(HWND tab, const RECT& bounds, LONG style)
{
    const int count = static_cast<int>(SendMessageA(tab, TCM_GETITEMCOUNT, 0, 0));
    RECT first{};
    RECT last{};
    if (count == 0 || (style & (TCS_BOTTOM | TCS_VERTICAL | TCS_MULTILINE)) != 0 ||
        !SendMessageA(tab, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first)) ||
        !SendMessageA(tab, TCM_GETITEMRECT, static_cast<WPARAM>(count - 1), reinterpret_cast<LPARAM>(&last)))
    {
        return nullptr;
    }
    constexpr LONG kOutstanding = 2; // of the selected tab, on both sides
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

/// The client area without what the visible controls cover.
class Background
{
public:
    explicit Background(HWND window)
        : m_window(window), m_around(ClientOf(window)), m_covered(RECT{}), m_control(RECT{})
    {
        // One call for the whole list; going from window to window asks the system for each.
        EnumChildWindows(window, Cover, reinterpret_cast<LPARAM>(this));
        CombineRgn(m_around.Get(), m_around.Get(), m_covered.Get(), RGN_DIFF);
    }
    HRGN Get() const
    {
        return m_around.Get();
    }
    static RECT ClientOf(HWND window)
    {
        RECT client{};
        GetClientRect(window, &client);
        return client;
    }

private:
    static BOOL CALLBACK Cover(HWND control, LPARAM background)
    {
        reinterpret_cast<Background*>(background)->Cover(control);
        return TRUE;
    }
    void Cover(HWND control)
    {
        const LONG style = GetWindowLongA(control, GWL_STYLE);
        char className[32] = {};
        GetClassNameA(control, className, sizeof className);
        if ((style & WS_VISIBLE) == 0 || GetParent(control) != m_window || IsSeenThrough(control, className, style))
        {
            return;
        }
        RECT bounds{};
        GetWindowRect(control, &bounds);
        MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&bounds), 2);
        const HRGN tabs = IsNamed(className, WC_TABCONTROLA) ? TabRegion(control, bounds, style) : nullptr;
        SetRectRgn(m_control.Get(), bounds.left, bounds.top, bounds.right, bounds.bottom);
        CombineRgn(m_covered.Get(), m_covered.Get(), tabs != nullptr ? tabs : m_control.Get(), RGN_OR);
        if (tabs != nullptr)
        {
            DeleteObject(tabs);
        }
    }

    HWND m_window;
    Region m_around;
    Region m_covered;
    Region m_control; ///< of one control
};

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
    const RECT client = Background::ClientOf(window);
    const Background around(window);
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
