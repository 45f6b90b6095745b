#include "framework/bars/CStatusBar.h"
#include "framework/bars/StandingPanes.h"
#include "framework/gdi/CClientDC.h"
#include "framework/gdi/CFont.h"
#include "framework/include/afxres.h"
#include <algorithm>
#include <cstring>
#include <numeric>

namespace
{
/// Style bits of a pane that the system's control knows.
constexpr UINT kControlStyles = SBPS_NOBORDERS | SBPS_POPOUT | SBPS_OWNERDRAW;

/// The control's borders in pixels: beside the panes, above and below them, between them.
struct ControlBorders
{
    int horizontal = 0;
    int vertical = 0;
    int between = 0;
};

ControlBorders BordersOf(HWND bar)
{
    ControlBorders borders;
    ::SendMessage(bar, SB_GETBORDERS, 0, reinterpret_cast<LPARAM>(&borders));
    return borders;
}

/// Room of a pane around its text: the sunken edge and a space of the same width on each side.
int PaneMargins()
{
    return 4 * ::GetSystemMetrics(SM_CXEDGE);
}

HFONT FontOf(HWND window)
{
    auto* font = reinterpret_cast<HFONT>(::SendMessage(window, WM_GETFONT, 0, 0));
    return font ? font : static_cast<HFONT>(::GetStockObject(SYSTEM_FONT));
}
} // namespace

int CStatusBar::TextWidth(const CString& text) const
{
    CClientDC dc(nullptr);
    CFont* former = dc.SelectObject(CFont::FromHandle(FontOf(m_hWnd)));
    const CSize size = dc.GetTextExtent(text);
    dc.SelectObject(former);
    return size.cx;
}

CSize CStatusBar::CalcFixedLayout(BOOL, BOOL horizontal)
{
    TEXTMETRIC metrics{};
    CClientDC dc(nullptr);
    CFont* former = dc.SelectObject(CFont::FromHandle(FontOf(m_hWnd)));
    dc.GetTextMetrics(&metrics);
    dc.SelectObject(former);
    const int edges = 2 * ::GetSystemMetrics(SM_CYEDGE) + BordersOf(m_hWnd).vertical;
    const int textRoom = static_cast<int>(metrics.tmHeight) + edges + m_cyTopBorder + m_cyBottomBorder;
    CSize size = CControlBar::CalcFixedLayout(TRUE, horizontal);
    size.cy = std::max({textRoom, m_nMinHeight, 0});
    return size;
}

void CStatusBar::UpdateEdges()
{
    if (!m_hWnd || m_panes.empty())
        return;
    CRect client;
    GetClientRect(&client);
    const ControlBorders borders = BordersOf(m_hWnd);
    const int margins = PaneMargins() + borders.between;
    const int grip = GetStyle() & SBARS_SIZEGRIP ? ::GetSystemMetrics(SM_CXVSCROLL) : 0;
    const int room = std::max(0, client.Width() - grip - 2 * borders.horizontal);
    const int fixed = std::accumulate(m_panes.begin(), m_panes.end(), 0,
                                      [margins](int sum, const Pane& pane)
                                      {
                                          return sum + (pane.style & SBPS_STRETCH ? 0 : pane.width + margins);
                                      });
    std::vector<int> edges;
    int edge = borders.horizontal;
    for (const Pane& pane : m_panes)
    {
        edge += pane.style & SBPS_STRETCH ? std::max(0, room - fixed) : pane.width + margins;
        edges.push_back(edge);
    }
    ::SendMessage(m_hWnd, SB_SETPARTS, edges.size(), reinterpret_cast<LPARAM>(edges.data()));
}

void CStatusBar::ShowPaneText(int index)
{
    if (!m_hWnd || !IsPane(index))
        return;
    const Pane& pane = m_panes[static_cast<std::size_t>(index)];
    const char* text = pane.style & (SBPS_DISABLED | SBPS_OWNERDRAW) ? "" : static_cast<const char*>(pane.text);
    DefWindowProc(SB_SETTEXT, static_cast<WPARAM>(index) | (pane.style & kControlStyles),
                  reinterpret_cast<LPARAM>(text));
}

void CStatusBar::OnPaint()
{
    Default();
}

void CStatusBar::OnSize(UINT type, int cx, int cy)
{
    CControlBar::OnSize(type, cx, cy);
    const vorn::StandingPanes standing(m_hWnd);
    UpdateEdges();
    standing.PaintRest();
}

LRESULT CStatusBar::OnSetText(WPARAM, LPARAM lParam)
{
    // The bar's text is that of its message line.
    const int index = CommandToIndex(ID_SEPARATOR);
    return index < 0 ? Default() : SetPaneText(index, reinterpret_cast<LPCTSTR>(lParam));
}

LRESULT CStatusBar::OnGetText(WPARAM wParam, LPARAM lParam)
{
    const int index = CommandToIndex(ID_SEPARATOR);
    if (index < 0)
        return Default();
    auto* buffer = reinterpret_cast<LPTSTR>(lParam);
    if (!buffer || wParam == 0)
        return 0;
    ::lstrcpyn(buffer, GetPaneText(index), static_cast<int>(wParam));
    return static_cast<LRESULT>(std::strlen(buffer));
}

LRESULT CStatusBar::OnGetTextLength(WPARAM, LPARAM)
{
    const int index = CommandToIndex(ID_SEPARATOR);
    return index < 0 ? Default() : GetPaneText(index).GetLength();
}

LRESULT CStatusBar::OnSetFont(WPARAM, LPARAM)
{
    const LRESULT result = Default();
    for (Pane& pane : m_panes)
        if (pane.id != ID_SEPARATOR)
            pane.width = TextWidth(pane.text);
    UpdateEdges();
    return result;
}
