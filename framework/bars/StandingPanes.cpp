#include "framework/bars/StandingPanes.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

namespace vorn
{
namespace
{

std::vector<int> EdgesOf(HWND bar)
{
    std::vector<int> edges(static_cast<std::size_t>(::SendMessage(bar, SB_GETPARTS, 0, 0)));
    ::SendMessage(bar, SB_GETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
    return edges;
}

int WidthOf(HWND bar, const std::string& text)
{
    SIZE size{};
    const HDC dc = ::GetDC(bar);
    const HGDIOBJ former = ::SelectObject(dc, reinterpret_cast<HFONT>(::SendMessage(bar, WM_GETFONT, 0, 0)));
    ::GetTextExtentPoint32(dc, text.data(), static_cast<int>(text.size()), &size);
    ::SelectObject(dc, former);
    ::ReleaseDC(bar, dc);
    return static_cast<int>(size.cx);
}

/// The room that a pane's content takes at its left end. @return -1 where the content goes by the pane's width
int TakenAtLeft(HWND bar, std::size_t pane)
{
    const LRESULT lengthAndKind = ::SendMessage(bar, SB_GETTEXTLENGTH, pane, 0);
    if ((HIWORD(lengthAndKind) & (SBT_OWNERDRAW | SBT_RTLREADING)) != 0)
    {
        return -1;
    }
    std::string text(LOWORD(lengthAndKind) + 1U, '\0');
    ::SendMessage(bar, SB_GETTEXT, pane, reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    if (text.find('\t') != std::string::npos) // centred or at the right
    {
        return -1;
    }
    const int icon = ::GetSystemMetrics(SM_CXSMICON);
    return icon + (text.empty() ? 0 : WidthOf(bar, text));
}

/// Whether the system paints the whole bar anew when its height changes, and counts from the left.
bool IsOfPanesSideBySide(HWND bar)
{
    return (::GetClassLong(bar, GCL_STYLE) & CS_VREDRAW) != 0 && ::SendMessage(bar, SB_ISSIMPLE, 0, 0) == 0 &&
           (::GetWindowLong(bar, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) == 0;
}

} // namespace

StandingPanes::StandingPanes(HWND bar) : m_bar(bar), m_edges(EdgesOf(bar)), m_invalid(::CreateRectRgn(0, 0, 0, 0))
{
    ::GetUpdateRgn(bar, m_invalid, FALSE);
}

StandingPanes::~StandingPanes()
{
    ::DeleteObject(m_invalid);
}

int StandingPanes::StandsUpTo() const
{
    const std::vector<int> edges = EdgesOf(m_bar);
    const auto [before, now] = std::mismatch(m_edges.begin(), m_edges.end(), edges.begin(), edges.end());
    const int left = now == edges.begin() ? 0 : *(now - 1);
    if (before == m_edges.end() || now == edges.end())
    {
        return left;
    }
    const int taken = TakenAtLeft(m_bar, static_cast<std::size_t>(now - edges.begin()));
    const int end = std::min(*before, *now) - 4 * ::GetSystemMetrics(SM_CXEDGE);
    return taken >= 0 && left + taken <= end ? end : left;
}

void StandingPanes::PaintRest() const
{
    RECT standing{};
    ::GetClientRect(m_bar, &standing);
    standing.right = IsOfPanesSideBySide(m_bar) ? StandsUpTo() : 0;
    ::InvalidateRect(m_bar, nullptr, FALSE); // not each control does it, and leaves its old grip where it was
    const HRGN spared = ::CreateRectRgnIndirect(&standing);
    if (::CombineRgn(spared, spared, m_invalid, RGN_DIFF) > NULLREGION)
    {
        ::ValidateRgn(m_bar, spared);
    }
    ::DeleteObject(spared);
}

} // namespace vorn
