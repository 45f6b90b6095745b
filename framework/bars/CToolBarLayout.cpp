#include "framework/bars/CToolBar.h"
#include <algorithm>

// Size of a toolbar, lying and standing.

namespace
{
/// Share of its width that a separator takes in a column, as the system's control has it.
constexpr LONG kSeparatorThirds = 2;
} // namespace

CSize CToolBar::ButtonsSize(bool horizontal) const
{
    CSize size(0, 0);
    const bool asItIs = horizontal == !(m_dwStyle & CBRS_ORIENT_VERT);
    for (int i = 0; i < m_nCount; ++i)
    {
        CRect item;
        GetItemRect(i, &item);
        if (asItIs)
        {
            size.cx = std::max(size.cx, item.right);
            size.cy = std::max(size.cy, item.bottom);
            continue;
        }
        TBBUTTON button;
        GetButton(i, button);
        const bool isSeparator = (button.fsStyle & TBSTYLE_SEP) != 0;
        const LONG gap = static_cast<LONG>(button.iBitmap);
        if (horizontal)
        {
            size.cx += isSeparator ? gap : static_cast<LONG>(item.Width());
            size.cy = std::max(size.cy, isSeparator ? 0L : static_cast<LONG>(item.Height()));
        }
        else
        {
            size.cx = std::max(size.cx, isSeparator ? 0L : static_cast<LONG>(item.Width()));
            size.cy += isSeparator ? gap * kSeparatorThirds / 3 : static_cast<LONG>(item.Height());
        }
    }
    return size;
}

CSize CToolBar::CalcFixedLayout(BOOL stretch, BOOL horizontal)
{
    const CSize size = CControlBar::CalcFixedLayout(stretch, horizontal);
    CSize own = ButtonsSize(horizontal != FALSE);
    own.cx += m_cxLeftBorder + m_cxRightBorder;
    own.cy += m_cyTopBorder + m_cyBottomBorder;
    if (m_height && horizontal)
        own.cy = m_height;
    own = WithGripper(own, horizontal);
    return CSize(std::max(size.cx, own.cx), std::max(size.cy, own.cy));
}

void CToolBar::WrapButtons()
{
    const BYTE wrap = m_dwStyle & CBRS_ORIENT_VERT ? TBSTATE_WRAP : BYTE{0};
    for (int i = 0; i < m_nCount; ++i)
    {
        TBBUTTON button;
        if (!GetButton(i, button) || (button.fsState & TBSTATE_WRAP) == wrap)
            continue;
        button.fsState = static_cast<BYTE>((button.fsState & ~TBSTATE_WRAP) | wrap);
        ReplaceButton(i, button);
    }
}

void CToolBar::OnBarStyleChange(DWORD oldStyle, DWORD newStyle)
{
    if (!m_hWnd)
        return;
    ModifyStyle(TBSTYLE_TOOLTIPS, newStyle & CBRS_TOOLTIPS ? TBSTYLE_TOOLTIPS : 0U);
    if ((oldStyle ^ newStyle) & CBRS_ORIENT_ANY)
        WrapButtons();
}

bool CToolBar::IsFreeArea(CPoint point) const
{
    return ::SendMessage(m_hWnd, TB_HITTEST, 0, reinterpret_cast<LPARAM>(&point)) < 0;
}
