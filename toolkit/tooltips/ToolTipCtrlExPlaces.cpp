#include "toolkit/tooltips/ToolTipCtrlEx.h"
#include "toolkit/tooltips/core/TipLookup.h"

// Which tool is meant.

namespace
{

/// How old the remembered places of the tools may be, in milliseconds. Reading 300 of them takes a hundred times as
/// long as looking one up.
constexpr DWORD kPlacesAge = 500;

bool AreInOneWindow(HWND first, HWND second)
{
    return ::GetAncestor(first, GA_ROOT) == ::GetAncestor(second, GA_ROOT);
}

} // namespace

ToolTipInfoEx* ToolTipCtrlEx::CurrentTool() const
{
    for (const auto& tool : m_tools)
    {
        if (tool.get() == m_state.Tool())
        {
            return tool.get();
        }
    }
    return nullptr;
}

bool ToolTipCtrlEx::ArePlacesOld() const
{
    CRect around(0, 0, 0, 0);
    ::GetWindowRect(m_parent, &around);
    return m_places.stale || m_places.around != around || ::GetTickCount() - m_places.read >= kPlacesAge;
}

void ToolTipCtrlEx::ReadPlaces()
{
    m_places.rects.clear();
    for (const auto& tool : m_tools)
    {
        m_places.rects.push_back(tool->GetScreenRect());
    }
    m_places.around.SetRectEmpty();
    ::GetWindowRect(m_parent, &m_places.around);
    m_places.read = ::GetTickCount();
    m_places.stale = false;
}

/// Whether a tool that was at a point is there still.
bool ToolTipCtrlEx::IsThere(std::size_t tool, POINT point)
{
    if (!m_tools[tool]->IsVisible())
    {
        return false;
    }
    const bool there = vorn::TipRectHolds(m_tools[tool]->GetScreenRect(), point);
    m_places.stale = m_places.stale || !there;
    return there;
}

ToolTipInfoEx* ToolTipCtrlEx::SmallestThere(POINT point)
{
    const auto look = [this, point]
    {
        return vorn::SmallestAround(m_places.rects, point,
                                    [this, point](std::size_t tool)
                                    {
                                        return IsThere(tool, point);
                                    });
    };
    std::size_t found = look();
    if (m_places.stale) // one has moved
    {
        ReadPlaces();
        found = look();
    }
    return found != vorn::kNoTip ? m_tools[found].get() : nullptr;
}

ToolTipInfoEx* ToolTipCtrlEx::FindToolFromPoint(const POINT& point)
{
    ReadPlaces();
    return SmallestThere(point);
}

ToolTipInfoEx* ToolTipCtrlEx::ToolAtCursor()
{
    POINT cursor{};
    return ::GetCursorPos(&cursor) ? FindToolFromPoint(cursor) : nullptr;
}

/// A control that gets a message of the mouse above it has come there since the places were read.
bool ToolTipCtrlEx::IsOverKnownControl(HWND control, POINT point) const
{
    if (control == nullptr || control == m_parent)
    {
        return false;
    }
    for (const auto& tool : m_tools)
    {
        if (tool->GetControl() == control && tool->IsWholeControl())
        {
            return vorn::TipRectHolds(tool->GetScreenRect(), point);
        }
    }
    return false;
}

ToolTipInfoEx* ToolTipCtrlEx::ToolOfMove(const MSG& message)
{
    if (ArePlacesOld())
    {
        ReadPlaces();
    }
    ToolTipInfoEx* tool = SmallestThere(message.pt);
    if (tool == nullptr && IsOverKnownControl(message.hwnd, message.pt))
    {
        tool = FindToolFromPoint(message.pt);
    }
    // Windows in front of the tool's own pass their messages up to their owner, too.
    const bool isNew = tool != nullptr && tool != m_state.Tool() && message.hwnd != nullptr;
    return isNew && !AreInOneWindow(message.hwnd, tool->GetControl()) ? nullptr : tool;
}
