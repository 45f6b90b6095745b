#include "files/core/NoThrow.h"
#include "framework/gdi/CDC.h"
#include "framework/window/CWnd.h"
#include "toolkit/layout/LayoutMgr.h"
#include "toolkit/layout/core/UncoveredArea.h"

#include <commctrl.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

// The background of a laid-out window, painted around its controls.
namespace LayoutManagement
{
namespace
{

/// A region of rectangles from the top down that ends with its scope; null when there is no memory for it.
class Region
{
public:
    Region(const RECT& bounds, const std::vector<RECT>& rects)
    {
        RGNDATAHEADER head{};
        head.rcBound = bounds;
        head.dwSize = sizeof head;
        head.iType = RDH_RECTANGLES;
        head.nCount = static_cast<DWORD>(rects.size());
        head.nRgnSize = head.nCount * DWORD{sizeof(RECT)};
        std::vector<char> data(sizeof head + head.nRgnSize);
        std::memcpy(data.data(), &head, sizeof head);
        std::copy(rects.begin(), rects.end(), reinterpret_cast<RECT*>(data.data() + sizeof head));
        m_region =
            ExtCreateRegion(nullptr, static_cast<DWORD>(data.size()), reinterpret_cast<const RGNDATA*>(data.data()));
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

/// Where on the screen a context draws.
class DrawnPart
{
public:
    explicit DrawnPart(HDC dc) : m_region(CreateRectRgn(0, 0, 0, 0)), m_isKnown(GetRandomRgn(dc, m_region, SYSRGN) == 1)
    {
    }
    ~DrawnPart()
    {
        DeleteObject(m_region);
    }
    DrawnPart(const DrawnPart&) = delete;
    DrawnPart& operator=(const DrawnPart&) = delete;

    /// False also when nobody knows.
    bool IsWithin(const DrawnPart& other)
    {
        return m_isKnown && other.m_isKnown && CombineRgn(m_region, m_region, other.m_region, RGN_DIFF) == NULLREGION;
    }

private:
    HRGN m_region;
    bool m_isKnown;
};

/// Whether no control stands where the window's context draws, as is common when its size changes. That is one question
/// to the system; to go from child to child is one each.
bool IsBesideControls(HWND window, HDC dc)
{
    if (WindowFromDC(dc) != window)
    {
        return false;
    }
    const HDC around = GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPCHILDREN);
    const bool isBeside = around != nullptr && DrawnPart(dc).IsWithin(DrawnPart(around));
    ReleaseDC(window, around);
    return isBeside;
}

/// What the background depends on in a control's class.
enum class ControlClass
{
    Button,
    Static,
    Tab,
    Other
};

/// The classes of many controls: each one's name is looked at once.
class ControlClasses
{
public:
    ControlClass Of(HWND control, ATOM atom)
    {
        for (const auto& [known, kind] : m_known)
        {
            if (known == atom)
            {
                return kind;
            }
        }
        m_known.emplace_back(atom, ByName(control));
        return m_known.back().second;
    }

private:
    static ControlClass ByName(HWND control)
    {
        char name[32] = {};
        GetClassNameA(control, name, sizeof name);
        const auto is = [&name](const char* other)
        {
            return lstrcmpiA(name, other) == 0;
        };
        return is("Button")         ? ControlClass::Button
               : is("Static")       ? ControlClass::Static
               : is(WC_TABCONTROLA) ? ControlClass::Tab
                                    : ControlClass::Other;
    }

    std::vector<std::pair<ATOM, ControlClass>> m_known;
};

/// Frames around other controls, and what shows the background through itself.
bool IsSeenThrough(HWND control, ControlClass kind, LONG style)
{
    const LONG type = style & SS_TYPEMASK;
    if (kind == ControlClass::Button && (style & BS_TYPEMASK) == BS_GROUPBOX)
    {
        return true;
    }
    if (kind == ControlClass::Static && (type == SS_ETCHEDFRAME || (type >= SS_BLACKFRAME && type <= SS_WHITEFRAME)))
    {
        return true;
    }
    return (GetWindowLongA(control, GWL_EXSTYLE) & WS_EX_TRANSPARENT) != 0;
}

/// A tab control: its body and, where its tabs stand at the top in one row, those; the rest of the row belongs to the
/// background.
void AppendTab(HWND tab, const RECT& bounds, LONG style, std::vector<RECT>& covers)
{
    const int count = static_cast<int>(SendMessageA(tab, TCM_GETITEMCOUNT, 0, 0));
    RECT first{};
    RECT last{};
    if (count == 0 || (style & (TCS_BOTTOM | TCS_VERTICAL | TCS_MULTILINE)) != 0 ||
        !SendMessageA(tab, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first)) ||
        !SendMessageA(tab, TCM_GETITEMRECT, static_cast<WPARAM>(count - 1), reinterpret_cast<LPARAM>(&last)))
    {
        covers.push_back(bounds);
        return;
    }
    constexpr LONG kOutstanding = 2; // of the selected tab, on both sides
    const LONG body = bounds.top + first.bottom;
    covers.push_back({std::max(bounds.left, bounds.left + first.left - kOutstanding), bounds.top,
                      std::min(bounds.right, bounds.left + last.right + kOutstanding), body});
    covers.push_back({bounds.left, body, bounds.right, bounds.bottom});
}

/// Turns rectangles on the screen into such of a client area.
class ClientMapping
{
public:
    explicit ClientMapping(HWND window)
        : m_window(window), m_isMirrored((GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0)
    {
        ClientToScreen(window, &m_origin);
    }
    RECT Of(RECT rect) const
    {
        if (m_isMirrored)
        {
            MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&rect), 2);
            return rect;
        }
        return {rect.left - m_origin.x, rect.top - m_origin.y, rect.right - m_origin.x, rect.bottom - m_origin.y};
    }

private:
    HWND m_window;
    bool m_isMirrored;
    POINT m_origin{};
};

/// The children, which are asked for nothing yet: what is asked of a control may change their order.
std::vector<HWND> ChildrenOf(HWND window)
{
    constexpr std::size_t kMost = 65536;
    std::vector<HWND> children;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr && children.size() < kMost;
         child = GetWindow(child, GW_HWNDNEXT))
    {
        children.push_back(child);
    }
    return children;
}

/// What the visible controls cover of a client area.
std::vector<RECT> Covered(HWND window)
{
    std::vector<RECT> covers;
    ControlClasses classes;
    const ClientMapping mapping(window);
    for (const HWND control : ChildrenOf(window))
    {
        const LONG style = GetWindowLongA(control, GWL_STYLE);
        RECT bounds{};
        if ((style & WS_VISIBLE) == 0 || !GetWindowRect(control, &bounds))
        {
            continue;
        }
        const ControlClass kind = classes.Of(control, static_cast<ATOM>(GetClassLongA(control, GCW_ATOM)));
        if (IsSeenThrough(control, kind, style))
        {
            continue;
        }
        bounds = mapping.Of(bounds);
        if (kind == ControlClass::Tab)
        {
            AppendTab(control, bounds, style, covers);
        }
        else
        {
            covers.push_back(bounds);
        }
    }
    return covers;
}

RECT ClientOf(HWND window)
{
    RECT client{};
    GetClientRect(window, &client);
    return client;
}

/// The class's own brush; small numbers stand for the system's colours.
HBRUSH BrushOf(HWND window)
{
    const ULONG_PTR brush = GetClassLongPtrA(window, GCLP_HBRBACKGROUND);
    constexpr ULONG_PTR kLastColor = 31;
    if (brush == 0)
    {
        return GetSysColorBrush(COLOR_3DFACE);
    }
    return brush <= kLastColor ? GetSysColorBrush(static_cast<int>(brush) - 1) : reinterpret_cast<HBRUSH>(brush);
}

/// The client area without its controls, in device units as clip regions are.
std::vector<RECT> AroundControls(HWND window, const RECT& client, const POINT& origin)
{
    std::vector<RECT> pieces = vorn::UncoveredArea(client, Covered(window));
    for (RECT& piece : pieces)
    {
        OffsetRect(&piece, origin.x, origin.y);
    }
    return pieces;
}

void Erase(HWND window, HDC dc)
{
    const RECT client = ClientOf(window);
    POINT origin{};
    GetViewportOrgEx(dc, &origin);
    const bool isBeside = IsBesideControls(window, dc);
    const std::vector<RECT> pieces = isBeside ? std::vector<RECT>() : AroundControls(window, client, origin);
    if (!isBeside && pieces.empty())
    {
        return;
    }
    const int saved = SaveDC(dc);
    if (!isBeside)
    {
        const Region around({origin.x, origin.y, client.right + origin.x, client.bottom + origin.y}, pieces);
        ExtSelectClipRgn(dc, around.Get(), RGN_AND);
    }
    SetBrushOrgEx(dc, origin.x, origin.y, nullptr);
    FillRect(dc, &client, BrushOf(window));
    RestoreDC(dc, saved);
}

} // namespace

void LayoutMgr::EraseBkgnd(CDC* pDC)
{
    if (pDC == nullptr || pDC->m_hDC == nullptr || !HasWindow())
    {
        return;
    }
    vorn::NoThrow(false,
                  [this, pDC]
                  {
                      Erase(m_pWnd->m_hWnd, pDC->m_hDC);
                      return true;
                  });
}

} // namespace LayoutManagement
