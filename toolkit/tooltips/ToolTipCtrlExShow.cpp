#include "toolkit/tooltips/InfoBoxWatch.h"
#include "toolkit/tooltips/ToolTipCtrlEx.h"
#include "toolkit/tooltips/core/TipPlacing.h"
#include "toolkit/tooltips/core/TipText.h"

// The tip and the box that it becomes.

namespace
{

CRect ScreenOf(const CRect& tool)
{
    if (::GetSystemMetrics(SM_CMONITORS) > 1)
    {
        MONITORINFO info = {sizeof(info), {}, {}, 0};
        if (::GetMonitorInfo(::MonitorFromRect(&tool, MONITOR_DEFAULTTONEAREST), &info))
        {
            return info.rcMonitor;
        }
    }
    return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

} // namespace

/// Derived classes may end tool or window in the operations that are theirs: then nothing is shown any more.
bool ToolTipCtrlEx::IsShowing(const ToolTipInfoEx* tool) const
{
    return m_hWnd != nullptr && m_state.IsVisible() && m_state.Tool() == tool;
}

void ToolTipCtrlEx::Display()
{
    ToolTipInfoEx* const tool = CurrentTool();
    const CString text = tool->GetText();
    m_tip = vorn::TipField(text, 0, vorn::kTipSeparator);
    m_info = vorn::TipField(text, 1, vorn::kTipSeparator);
    POINT cursor{};
    ::GetCursorPos(&cursor);
    m_point = vorn::HoverTipPoint(tool->GetScreenRect(), cursor);
    CRect bounds = GetBoundsRect(m_tip, 0);
    m_tipPlace = CRect(m_margins.TopLeft(), bounds.Size());
    if (IsShowing(tool) && PlaceBox(tool, bounds))
    {
        SetTimer(vorn::kTipLookTimer, vorn::kTipPollMs);
        SetWindowText(m_tip); // for who cannot see it
        ShowAt(bounds);
    }
}

/// @return whether there is still something to show
bool ToolTipCtrlEx::PlaceBox(ToolTipInfoEx* tool, CRect& bounds)
{
    if (bounds.IsRectEmpty())
    {
        Hush();
        return false;
    }
    bounds = CalculateInfoBoxRect(m_point, tool, bounds);
    return IsShowing(tool);
}

void ToolTipCtrlEx::OpenInfoBox()
{
    const vorn::TipState::Phase before = m_state.Now();
    if (!m_state.OpenInfoBox())
    {
        return;
    }
    Follow(before);
    const CSize title = TextSize(m_tip, true);
    m_tipPlace = CRect(m_margins.TopLeft(), title); // first: the text below it may be as wide
    const vorn::InfoBoxPlaces places = vorn::StackInfoBox(title, TextSize(m_info, false), m_margins);
    m_infoPlace = places.text;
    CRect bounds(CPoint(0, 0), places.size);
    if (PlaceBox(CurrentTool(), bounds))
    {
        SetWindowText(m_tip + "\n" + m_info);
        ShowAt(bounds);
        vorn::InfoBoxWatch::Start(m_hWnd);
    }
}

void ToolTipCtrlEx::ShowAt(const CRect& place)
{
    SetWindowPos(&wndTopMost, place.left, place.top, place.Width(), place.Height(), SWP_NOACTIVATE | SWP_NOOWNERZORDER);
    ShowWindow(SW_SHOWNOACTIVATE);
    Invalidate(FALSE);
    UpdateWindow();
}

CRect ToolTipCtrlEx::CalculateInfoBoxRect(CPoint& point, ToolTipInfoEx* info, CRect& bounds)
{
    const CRect tool = info != nullptr ? info->GetScreenRect() : CRect(point, CSize(0, 0));
    bounds = vorn::PlaceTip(point, bounds.Size(), tool, ScreenOf(tool));
    return bounds;
}
