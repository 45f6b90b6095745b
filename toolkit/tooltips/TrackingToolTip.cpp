#include "toolkit/tooltips/TrackingToolTip.h"

#include "toolkit/tooltips/PutWindow.h"

#include <algorithm>
#include <limits>

IMPLEMENT_DYNAMIC(TrackingToolTip, CToolTipCtrl)

namespace
{

/// The key by which the base class knows a whole window, too.
TOOLINFOA ToolOf(HWND window)
{
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE; // every version of the common controls takes it
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = ::GetParent(window);
    tool.uId = reinterpret_cast<UINT_PTR>(window);
    return tool;
}

WORD Packed(int coordinate)
{
    using Limits = std::numeric_limits<short>;
    return static_cast<WORD>(static_cast<short>(std::clamp<int>(coordinate, Limits::min(), Limits::max())));
}

LRESULT Send(const CWnd& tip, UINT message, WPARAM wParam, TOOLINFOA& tool)
{
    return tip.SendMessage(message, wParam, reinterpret_cast<LPARAM>(&tool));
}

} // namespace

TrackingToolTip::TrackingToolTip() : m_tracked(nullptr), m_absolute(false)
{
}

TrackingToolTip::~TrackingToolTip() = default;

BOOL TrackingToolTip::AddTool(CWnd* window, bool absolute, LPCSTR text)
{
    const HWND handle = window->GetSafeHwnd();
    if (m_hWnd == nullptr || handle == nullptr)
    {
        return FALSE;
    }
    TOOLINFOA tool = ToolOf(handle);
    const bool known = Send(*this, TTM_GETTOOLINFOA, 0, tool) != 0;
    tool = ToolOf(handle);
    tool.uFlags |= TTF_TRACK | (absolute ? TTF_ABSOLUTE : 0U);
    tool.lpszText = const_cast<LPSTR>(text != nullptr ? text : ""); // only read
    if (known)
    {
        Send(*this, TTM_SETTOOLINFOA, 0, tool);
        return TRUE;
    }
    return static_cast<BOOL>(Send(*this, TTM_ADDTOOLA, 0, tool));
}

void TrackingToolTip::ActivateTip(CWnd* window, bool activate)
{
    const HWND handle = window->GetSafeHwnd();
    if (m_hWnd == nullptr || handle == nullptr)
    {
        return;
    }
    TOOLINFOA tool = ToolOf(handle);
    if (Send(*this, TTM_GETTOOLINFOA, 0, tool) == 0)
    {
        return;
    }
    m_absolute = (tool.uFlags & TTF_ABSOLUTE) != 0;
    m_tracked = activate ? handle : nullptr;
    tool = ToolOf(handle);
    Send(*this, TTM_TRACKACTIVATE, activate ? TRUE : FALSE, tool);
    PutExactly();
}

void TrackingToolTip::TrackTip(int x, int y)
{
    if (m_hWnd != nullptr)
    {
        m_point = CPoint(static_cast<short>(Packed(x)), static_cast<short>(Packed(y)));
        SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(Packed(x), Packed(y)));
        PutExactly();
    }
}

/// Some systems leave room for the border, or take negative coordinates for large ones.
void TrackingToolTip::PutExactly()
{
    if (IsTrackActive() && m_absolute)
    {
        vorn::PutWindow(*this, m_point);
    }
}

bool TrackingToolTip::IsTrackActive() const
{
    return m_hWnd != nullptr && m_tracked != nullptr && ::IsWindow(m_tracked);
}
