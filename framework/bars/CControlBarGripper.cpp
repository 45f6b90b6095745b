#include "framework/bars/CControlBar.h"
#include "framework/gdi/CWindowDC.h"

// The gripper of a bar: a band beside the client area by which the bar is dragged.

namespace
{
constexpr int kBand = 9;      ///< pixels kept free of the client area
constexpr int kBefore = 3;    ///< from the bar's edge to the raised line
constexpr int kLine = 3;      ///< thickness of the line
constexpr int kEndMargin = 2; ///< before the line's ends
} // namespace

int CControlBar::GripperExtent() const
{
    return (m_dwStyle & (CBRS_GRIPPER | CBRS_FLOATING)) == CBRS_GRIPPER ? kBand : 0;
}

CSize CControlBar::WithGripper(CSize size, BOOL horizontal) const
{
    (horizontal ? size.cx : size.cy) += GripperExtent();
    return size;
}

void CControlBar::OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params)
{
    CWnd::OnNcCalcSize(calcValidRects, params);
    RECT& client = params->rgrc[0];
    LONG& begin = IsHorizontal() ? client.left : client.top;
    const LONG end = IsHorizontal() ? client.right : client.bottom;
    begin = begin + GripperExtent() > end ? end : begin + GripperExtent();
}

LRESULT CControlBar::OnNcHitTest(CPoint point)
{
    const LRESULT hit = CWnd::OnNcHitTest(point);
    // The gripper counts as free area.
    return hit == HTNOWHERE && GripperExtent() > 0 ? static_cast<LRESULT>(HTCLIENT) : hit;
}

void CControlBar::OnNcPaint()
{
    CWnd::OnNcPaint();
    const int extent = GripperExtent();
    if (extent == 0)
        return;
    CRect band;
    GetWindowRect(&band);
    band.OffsetRect(-band.left, -band.top);
    CRect line = band;
    if (IsHorizontal())
    {
        band.right = extent;
        line.SetRect(kBefore, kEndMargin, kBefore + kLine, line.bottom - kEndMargin);
    }
    else
    {
        band.bottom = extent;
        line.SetRect(kEndMargin, kBefore, line.right - kEndMargin, kBefore + kLine);
    }
    CWindowDC dc(this);
    dc.FillSolidRect(&band, ::GetSysColor(COLOR_BTNFACE));
    dc.DrawEdge(&line, BDR_RAISEDINNER, BF_RECT);
}
