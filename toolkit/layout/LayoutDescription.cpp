#include "toolkit/layout/LayoutDescription.h"

#include "toolkit/layout/Panes.h"

#include <commctrl.h>

namespace LayoutManagement
{
namespace
{
constexpr std::size_t kManyNodes = 256; ///< of a large dialog
constexpr UINT kRedrawFrame = 0x105;    ///< RDW_INVALIDATE, RDW_UPDATENOW and RDW_ERASE

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

bool IsStillThere(HWND control, HWND parent)
{
    return control != nullptr && GetParent(control) == parent && (parent != nullptr || IsWindow(control));
}

bool HasVisibleStyle(HWND control)
{
    return (GetWindowLongA(control, GWL_STYLE) & WS_VISIBLE) != 0;
}

LayoutDescription::LayoutDescription(HWND window, LayoutPass pass)
    : m_window(window), m_pass(pass), m_origin{},
      m_isMirrored(window != nullptr && (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0)
{
    MapWindowPoints(window, nullptr, &m_origin, 1);
    m_tree.Reserve(kManyNodes);
    m_targets.reserve(kManyNodes);
}

std::vector<HWND> LayoutDescription::ControlsOf(const LayoutMgr::PaneBase* node)
{
    std::vector<HWND> controls;
    if (node != nullptr)
    {
        controls.reserve(kManyNodes);
        AppendControls(*node, controls);
    }
    return controls;
}

void LayoutDescription::AppendControls(const LayoutMgr::PaneBase& node, std::vector<HWND>& controls)
{
    if (const auto* const item = dynamic_cast<const LayoutMgr::PaneItem*>(&node))
    {
        controls.push_back(item->m_hWnd);
    }
    else if (const auto* const pane = dynamic_cast<const LayoutMgr::Pane*>(&node))
    {
        for (int i = 0; i < pane->count(); ++i)
        {
            AppendControls(*pane->child(i).GetPane(), controls);
        }
    }
}

RECT LayoutDescription::PlaceOf(HWND control) const
{
    RECT rect{};
    if (m_pass == LayoutPass::Measure)
    {
        return rect;
    }
    GetWindowRect(control, &rect);
    if (m_isMirrored)
    {
        MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&rect), 2);
    }
    else
    {
        OffsetRect(&rect, -m_origin.x, -m_origin.y);
    }
    return rect;
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
