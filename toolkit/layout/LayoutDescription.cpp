#include "toolkit/layout/LayoutDescription.h"

#include "toolkit/layout/Panes.h"

#include <commctrl.h>

namespace LayoutManagement
{
namespace
{
constexpr UINT kRedrawFrame = 0x105; ///< RDW_INVALIDATE, RDW_UPDATENOW and RDW_ERASE

bool MoveFrame(HWND control, const RECT& rect)
{
    if (!MoveWindow(control, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, TRUE))
    {
        return false;
    }
    RedrawWindow(control, nullptr, nullptr, kRedrawFrame);
    return true;
}
} // namespace

LaidControl::LaidControl(HWND window, HWND parent) : m_window(window), m_parent(parent)
{
}

bool LaidControl::Exists() const
{
    return m_window != nullptr && IsWindow(m_window) && GetParent(m_window) == m_parent;
}

bool LaidControl::HasVisibleStyle() const
{
    return Exists() && (GetWindowLongA(m_window, GWL_STYLE) & WS_VISIBLE) != 0;
}

RECT LaidControl::PlaceIn(HWND window) const
{
    RECT rect{};
    if (Exists())
    {
        GetWindowRect(m_window, &rect);
        MapWindowPoints(nullptr, window != nullptr ? window : m_parent, reinterpret_cast<POINT*>(&rect), 2);
    }
    return rect;
}

LayoutDescription::LayoutDescription(HWND window) : m_window(window)
{
}

void LayoutDescription::AddItem(LayoutMgr::PaneItem& pane, const vorn::PaneItemSpec& item, HWND control)
{
    m_tree.Add(item);
    m_targets.push_back({&pane, &pane, control});
}

void LayoutDescription::AddForeign(LayoutMgr::PaneBase& pane, const vorn::PaneForeignSpec& foreign)
{
    m_tree.Add(foreign);
    m_targets.push_back({&pane, nullptr, nullptr});
}

void LayoutDescription::OpenPane(LayoutMgr::Pane& pane, const vorn::PaneSpec& shape, HWND control)
{
    m_tree.OpenPane(shape);
    m_targets.push_back({&pane, nullptr, control});
}

void LayoutDescription::ClosePane()
{
    m_tree.ClosePane();
}

bool LayoutDescription::Place(const RECT& area)
{
    return m_tree.Place(area, *this);
}

RECT LayoutDescription::InParentOf(HWND control, const RECT& rect) const
{
    RECT mapped = rect;
    const HWND parent = GetParent(control);
    if (m_window != nullptr && parent != m_window)
    {
        MapWindowPoints(m_window, parent, reinterpret_cast<POINT*>(&mapped), 2);
    }
    return mapped;
}

bool LayoutDescription::Move(std::size_t node, const RECT& rect)
{
    const Target& target = m_targets[node];
    if (!IsWindow(target.control))
    {
        return true; // it went while others were moved
    }
    const RECT place = InParentOf(target.control, rect);
    return target.item != nullptr ? target.item->move(place) : MoveFrame(target.control, place);
}

RECT LayoutDescription::DisplayArea(std::size_t node, const RECT& rect)
{
    RECT area = rect;
    SendMessageA(m_targets[node].control, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&area));
    return area;
}

bool LayoutDescription::PlaceForeign(std::size_t node, const RECT& slot)
{
    CRect rect(slot);
    return m_targets[node].pane->placeAt(rect);
}

int MeasuredOf(vorn::PaneTree& tree, int parentExtent, bool isHeight, int what)
{
    const vorn::PaneAxis axis = isHeight ? vorn::PaneAxis::Height : vorn::PaneAxis::Width;
    tree.Measure();
    return what == kWanted  ? tree.Wanted(0, axis, parentExtent)
           : what == kLeast ? tree.Least(0, axis)
                            : tree.Most(0, axis);
}

} // namespace LayoutManagement
