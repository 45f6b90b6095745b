#include "framework/controls/CTabCtrl.h"
#include "toolkit/layout/Panes.h"

#include <algorithm>

// What a window declares its layout with.
namespace LayoutManagement
{
namespace
{

// The handles own what the factories make: the last of those that share a pane deletes it.

/// What two spacings of 5 add to a gap.
constexpr int kTwoSpacings = 10;

/// The least length of a spacer that grows; it counts as 5.
constexpr int kSpacerLeast = -5;

struct Span
{
    int start = 0;
    int end = 0;
};

Span SpanOf(HWND control, LayoutMgr::Orientation orientation)
{
    RECT rect{};
    GetWindowRect(control, &rect);
    return orientation == LayoutMgr::Horizontal ? Span{rect.left, rect.right} : Span{rect.top, rect.bottom};
}

int LengthOf(HWND control, LayoutMgr::Orientation orientation)
{
    if (!IsWindow(control))
    {
        return 0;
    }
    const Span span = SpanOf(control, orientation);
    return span.end - span.start;
}

int Between(HWND first, HWND second, LayoutMgr::Orientation orientation)
{
    if (!IsWindow(first) || !IsWindow(second))
    {
        return 0;
    }
    const Span before = SpanOf(first, orientation);
    const Span after = SpanOf(second, orientation);
    return before.end > after.start ? after.start - before.start : after.start - before.end - kTwoSpacings;
}

} // namespace

HWND LayoutMgr::Control(UINT nID) const
{
    const HWND window = m_pWnd->GetSafeHwnd();
    return window != nullptr ? GetDlgItem(window, static_cast<int>(nID)) : nullptr;
}

LayoutMgr::CPane LayoutMgr::CreateRoot(Orientation orientation, int sizeBorder, int sizeExtraBorder)
{
    m_paneRoot = pane(orientation, Greedy, sizeBorder, sizeExtraBorder, 0);
    return m_paneRoot;
}

LayoutMgr::CPane LayoutMgr::pane(Orientation orientation, ResizeMode modeResize, int sizeBorder, int sizeExtraBorder,
                                 int sizeSecondary)
{
    return CPane(new Pane(this, orientation, modeResize, sizeBorder, sizeExtraBorder, sizeSecondary));
}

LayoutMgr::CPane LayoutMgr::pane(Orientation orientation, ResizeMode modeResize, int sizeBorder, const CRect& borders,
                                 int sizeSecondary)
{
    CPane made = pane(orientation, modeResize, sizeBorder, 0, sizeSecondary);
    made->setBorders(borders);
    return made;
}

LayoutMgr::CPane LayoutMgr::paneCtrl(UINT nID, Orientation orientation, ResizeMode modeResize, int sizeBorder,
                                     int sizeExtraBorder, int sizeTopExtra, int sizeSecondary)
{
    return CPane(new PaneCtrl(this, Control(nID), orientation, modeResize, sizeBorder, sizeExtraBorder, sizeTopExtra,
                              sizeSecondary));
}

LayoutMgr::CPane LayoutMgr::paneCtrl(CWnd* pWnd, Orientation orientation, ResizeMode modeResize, int sizeBorder,
                                     int sizeExtraBorder, int sizeTopExtra, int sizeSecondary)
{
    return CPane(new PaneCtrl(this, pWnd->GetSafeHwnd(), orientation, modeResize, sizeBorder, sizeExtraBorder,
                              sizeTopExtra, sizeSecondary));
}

LayoutMgr::CPane LayoutMgr::paneTab(CTabCtrl* pTab, Orientation orientation, ResizeMode modeResize, int sizeBorder,
                                    int sizeExtraBorder, int sizeSecondary)
{
    return CPane(new PaneTab(this, pTab, orientation, modeResize, sizeBorder, sizeExtraBorder, sizeSecondary));
}

LayoutMgr::CPaneBase LayoutMgr::itemOf(HWND control, ResizeMode modeResize, int sizeX, int sizeY, int sizeXMin,
                                       int sizeYMin)
{
    return CPaneBase(new PaneItem(this, control, modeResize, sizeX, sizeY, sizeXMin, sizeYMin));
}

LayoutMgr::CPaneBase LayoutMgr::item(UINT nID, ResizeMode modeResize, int sizeX, int sizeY, int sizeXMin, int sizeYMin)
{
    return itemOf(Control(nID), modeResize, sizeX, sizeY, sizeXMin, sizeYMin);
}

LayoutMgr::CPaneBase LayoutMgr::item(CWnd* pWnd, ResizeMode modeResize, int sizeX, int sizeY, int sizeXMin,
                                     int sizeYMin)
{
    return itemOf(pWnd->GetSafeHwnd(), modeResize, sizeX, sizeY, sizeXMin, sizeYMin);
}

LayoutMgr::CPaneBase LayoutMgr::itemSpace(Orientation orientation)
{
    const ResizeMode across = orientation == Horizontal ? FixedHeight : FixedWidth;
    return itemOf(nullptr, across, 0, 0, kSpacerLeast, kSpacerLeast);
}

LayoutMgr::CPaneBase LayoutMgr::itemSpaceFixed(Orientation orientation, int size)
{
    const bool isHorizontal = orientation == Horizontal;
    return itemOf(nullptr, FixedBoth, isHorizontal ? size : 0, isHorizontal ? 0 : size, 0, 0);
}

LayoutMgr::CPaneBase LayoutMgr::itemSpaceLike(Orientation orientation, UINT nID)
{
    return itemSpaceFixed(orientation, LengthOf(Control(nID), orientation));
}

LayoutMgr::CPaneBase LayoutMgr::itemSpaceLike(Orientation orientation, CWnd* pWnd)
{
    return itemSpaceFixed(orientation, LengthOf(pWnd->GetSafeHwnd(), orientation));
}

LayoutMgr::CPaneBase LayoutMgr::itemSpaceBetween(Orientation orientation, UINT nID1, UINT nID2)
{
    return itemSpaceFixed(orientation, Between(Control(nID1), Control(nID2), orientation));
}

LayoutMgr::CPaneBase LayoutMgr::itemSpaceBetween(Orientation orientation, CWnd* pWnd1, CWnd* pWnd2)
{
    return itemSpaceFixed(orientation, Between(pWnd1->GetSafeHwnd(), pWnd2->GetSafeHwnd(), orientation));
}

CSize LayoutMgr::GetMaxControlSize(HWND hWndParent, const UINT* pIds, int count)
{
    CSize largest(0, 0);
    for (int i = 0; pIds != nullptr && i < count; ++i)
    {
        const HWND control = GetDlgItem(hWndParent, static_cast<int>(pIds[i]));
        if (control != nullptr)
        {
            largest.cx = std::max<LONG>(largest.cx, LengthOf(control, Horizontal));
            largest.cy = std::max<LONG>(largest.cy, LengthOf(control, Vertical));
        }
    }
    return largest;
}

} // namespace LayoutManagement
