#include "files/core/NoThrow.h"
#include "framework/gdi/CDC.h"
#include "framework/window/CWnd.h"
#include "toolkit/layout/LayoutCovers.h"
#include "toolkit/layout/LayoutDescription.h"
#include "toolkit/layout/LayoutMgr.h"
#include "toolkit/layout/core/UncoveredArea.h"

#include <algorithm>
#include <cstring>

// The background of a laid-out window, painted around its controls.
namespace LayoutManagement
{
namespace
{

/// A region that ends with its scope; null when there is no memory for it.
class Region
{
public:
    Region() : m_region(CreateRectRgn(0, 0, 0, 0))
    {
    }
    /// @param rects from the top down
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
    void Offset(const POINT& by) const
    {
        OffsetRgn(m_region, by.x, by.y);
    }
    /// From the top down and from left to right, as few as possible.
    std::vector<RECT> Rects() const
    {
        std::vector<char> data(GetRegionData(m_region, 0, nullptr));
        if (data.size() < sizeof(RGNDATAHEADER) ||
            GetRegionData(m_region, static_cast<DWORD>(data.size()), reinterpret_cast<RGNDATA*>(data.data())) == 0)
        {
            return {};
        }
        RGNDATAHEADER head{};
        std::memcpy(&head, data.data(), sizeof head);
        std::vector<RECT> rects(head.nCount);
        std::memcpy(rects.data(), data.data() + sizeof head, rects.size() * sizeof(RECT));
        return rects;
    }

private:
    HRGN m_region;
};

bool IsSame(const RECT& one, const RECT& other)
{
    return EqualRect(&one, &other) != FALSE;
}

/// Where in a window's client area a context draws, and what of that the system keeps free of the window's controls.
/// That is one question to the system; to go from child to child is one each.
class DrawnPart
{
public:
    DrawnPart(HWND window, HDC dc)
        : m_isKnown(WindowFromDC(dc) == window && GetRandomRgn(dc, m_drawn.Get(), SYSRGN) == 1),
          m_isMirrored((GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0)
    {
        const HDC around = m_isKnown ? GetDCEx(window, nullptr, DCX_CACHE | DCX_CLIPCHILDREN) : nullptr;
        m_isKnown = around != nullptr && GetRandomRgn(around, m_free.Get(), SYSRGN) == 1;
        ReleaseDC(window, around);
        CombineRgn(m_free.Get(), m_free.Get(), m_drawn.Get(), RGN_AND);
        POINT screen{};
        ScreenToClient(window, &screen);
        m_drawn.Offset(screen);
        m_free.Offset(screen);
    }
    const Region& Free() const
    {
        return m_free;
    }
    /// Whether no control stands there, as is common when the size of the window changes.
    bool IsFree() const
    {
        return m_isKnown && EqualRgn(m_free.Get(), m_drawn.Get()) != FALSE;
    }
    /// Whether it is free but for these covers: then they are all that there is.
    bool IsFreeAround(const std::vector<RECT>& covers) const
    {
        RECT drawn{};
        if (!m_isKnown || m_isMirrored || GetRgnBox(m_drawn.Get(), &drawn) != SIMPLEREGION)
        {
            return false;
        }
        const std::vector<RECT> pieces = vorn::UncoveredArea(drawn, covers);
        const std::vector<RECT> rects = m_free.Rects();
        return std::equal(pieces.begin(), pieces.end(), rects.begin(), rects.end(), IsSame);
    }

private:
    Region m_drawn;
    Region m_free;
    bool m_isKnown;
    bool m_isMirrored; ///< its client units count from the right, regions from the left
};

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

RECT ClientOf(HWND window)
{
    RECT client{};
    GetClientRect(window, &client);
    return client;
}

/// Clip regions are in device units: client units, but for the viewport's origin.
bool HoldTo(HDC dc, const Region& client)
{
    POINT origin{};
    GetViewportOrgEx(dc, &origin);
    client.Offset(origin);
    return ExtSelectClipRgn(dc, client.Get(), RGN_AND) != ERROR;
}

/// @param root of the layout, whose controls are most often all that the window has; null for none
/// @return false when there is nothing to paint
bool HoldToBackground(HDC dc, HWND window, const LayoutMgr::PaneBase* root)
{
    const DrawnPart drawn(window, dc);
    if (drawn.IsFree())
    {
        return true;
    }
    if (drawn.IsFreeAround(CoversOf(LayoutDescription::ControlsOf(root), window)))
    {
        return HoldTo(dc, drawn.Free());
    }
    const RECT client = ClientOf(window);
    const std::vector<RECT> pieces = vorn::UncoveredArea(client, CoversOf(ChildrenOf(window), window));
    return !pieces.empty() && HoldTo(dc, Region(client, pieces));
}

void Erase(HDC dc, HWND window, const LayoutMgr::PaneBase* root)
{
    const int saved = SaveDC(dc);
    if (HoldToBackground(dc, window, root))
    {
        const RECT client = ClientOf(window);
        POINT origin{};
        GetViewportOrgEx(dc, &origin);
        SetBrushOrgEx(dc, origin.x, origin.y, nullptr);
        FillRect(dc, &client, BrushOf(window));
    }
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
                      Erase(pDC->m_hDC, m_pWnd->m_hWnd, m_paneRoot.GetPane());
                      return true;
                  });
}

} // namespace LayoutManagement
