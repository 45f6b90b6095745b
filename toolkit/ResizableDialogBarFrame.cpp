#include "framework/gdi/CWindowDC.h"
#include "toolkit/ResizableDialogBar.h"

using vorn::BarPart;

// What the bar has around its client area: edges, gripper, cursors.
namespace
{

constexpr int kGripperLine = 3;   ///< thickness of each of its two lines
constexpr int kGripperMargin = 2; ///< before their ends

LRESULT HitOf(BarPart part)
{
    switch (part)
    {
    case BarPart::LeftEdge:
        return HTLEFT;
    case BarPart::RightEdge:
        return HTRIGHT;
    case BarPart::TopEdge:
        return HTTOP;
    case BarPart::BottomEdge:
        return HTBOTTOM;
    case BarPart::Gripper:
        return HTCAPTION;
    default:
        return HTCLIENT;
    }
}

BarPart EdgeAt(UINT hit)
{
    switch (hit)
    {
    case HTLEFT:
        return BarPart::LeftEdge;
    case HTRIGHT:
        return BarPart::RightEdge;
    case HTTOP:
        return BarPart::TopEdge;
    case HTBOTTOM:
        return BarPart::BottomEdge;
    default:
        return BarPart::Inside;
    }
}

/// Fills an edge, with its long sides raised.
void DrawEdgeStrip(CDC& dc, CRect strip, UINT sides)
{
    if (strip.Width() <= 0 || strip.Height() <= 0)
    {
        return;
    }
    dc.FillSolidRect(&strip, ::GetSysColor(COLOR_BTNFACE));
    dc.DrawEdge(&strip, BDR_RAISEDINNER, sides);
}

} // namespace

int ResizableDialogBar::GripperExtent() const
{
    return 0; // this class has its own
}

void ResizableDialogBar::OnNcCalcSize(BOOL calcValidRects, NCCALCSIZE_PARAMS* params)
{
    LayoutDialogBar::OnNcCalcSize(calcValidRects, params);
    RECT& client = params->rgrc[0];
    const vorn::BarMargins frame = vorn::BarFrameOf(Side(), m_gripper);
    client.left += frame.left;
    client.top += frame.top;
    client.right = client.right - frame.right > client.left ? client.right - frame.right : client.left;
    client.bottom = client.bottom - frame.bottom > client.top ? client.bottom - frame.bottom : client.top;
}

LRESULT ResizableDialogBar::OnNcHitTest(CPoint point)
{
    CRect window;
    GetWindowRect(&window);
    const vorn::BarSize size{window.Width(), window.Height()};
    const BarPart part = vorn::BarPartAt(Side(), m_gripper, size, static_cast<int>(point.x - window.left),
                                         static_cast<int>(point.y - window.top));
    return part == BarPart::Inside ? LayoutDialogBar::OnNcHitTest(point) : HitOf(part);
}

void ResizableDialogBar::OnNcLButtonDown(UINT hit, CPoint point)
{
    if (EdgeAt(hit) != BarPart::Inside)
    {
        m_edge = EdgeAt(hit);
        m_pressed = point;
        StartTracking();
    }
    else if (hit == HTCAPTION)
    {
        // A plain child of a frame stays where it is: the system would move it.
        if (IsDraggable())
        {
            DragBar(point);
        }
    }
    else
    {
        LayoutDialogBar::OnNcLButtonDown(hit, point);
    }
}

void ResizableDialogBar::OnNcLButtonDblClk(UINT hit, CPoint point)
{
    if (EdgeAt(hit) != BarPart::Inside)
    {
        StopTracking(FALSE);
        ResetSize();
    }
    else if (hit == HTCAPTION)
    {
        if (IsDraggable())
        {
            ToggleDocking();
        }
    }
    else
    {
        LayoutDialogBar::OnNcLButtonDblClk(hit, point);
    }
}

BOOL ResizableDialogBar::OnSetCursor(CWnd* window, UINT hit, UINT message)
{
    const BarPart edge = EdgeAt(hit);
    if (edge == BarPart::Inside || window->GetSafeHwnd() != m_hWnd)
    {
        return LayoutDialogBar::OnSetCursor(window, hit, message);
    }
    const bool acrossX = edge == BarPart::LeftEdge || edge == BarPart::RightEdge;
    ::SetCursor(::LoadCursor(nullptr, acrossX ? IDC_SIZEWE : IDC_SIZENS));
    return TRUE;
}

void ResizableDialogBar::OnNcPaint()
{
    Default();
    CRect window;
    GetWindowRect(&window);
    window.OffsetRect(-window.left, -window.top);
    CWindowDC dc(this);
    const vorn::BarMargins edges = vorn::BarFrameOf(Side(), false);
    if (m_gripper && !IsFloating())
    {
        DrawGripper(dc);
    }
    const CRect left(0, 0, edges.left, window.bottom);
    const CRect right(window.right - edges.right, 0, window.right, window.bottom);
    DrawEdgeStrip(dc, left, BF_LEFT | BF_RIGHT);
    DrawEdgeStrip(dc, right, BF_LEFT | BF_RIGHT);
    DrawEdgeStrip(dc, CRect(left.right, 0, right.left, edges.top), BF_TOP | BF_BOTTOM);
    DrawEdgeStrip(dc, CRect(left.right, window.bottom - edges.bottom, right.left, window.bottom), BF_TOP | BF_BOTTOM);
}

void ResizableDialogBar::DrawGripper(CDC& dc)
{
    CRect band(0, 0, 0, 0);
    GetWindowRect(&band);
    band.OffsetRect(-band.left, -band.top);
    const vorn::BarMargins edges = vorn::BarFrameOf(Side(), false);
    band.DeflateRect(edges.left, edges.top, edges.right, edges.bottom);
    const bool lying = IsHorz() != FALSE;
    (lying ? band.right : band.bottom) = (lying ? band.left : band.top) + vorn::kGripperBand;
    dc.FillSolidRect(&band, ::GetSysColor(COLOR_BTNFACE));
    CRect lines = band;
    lines.DeflateRect(lying ? 0 : kGripperMargin, lying ? kGripperMargin : 0);
    CRect first = lines;
    CRect second = lines;
    (lying ? first.right : first.bottom) = (lying ? lines.left : lines.top) + kGripperLine;
    (lying ? second.left : second.top) = (lying ? lines.right : lines.bottom) - kGripperLine;
    dc.DrawEdge(&first, BDR_RAISEDINNER, BF_RECT);
    dc.DrawEdge(&second, BDR_RAISEDINNER, BF_RECT);
}

void ResizableDialogBar::OnWindowPosChanged(WINDOWPOS* place)
{
    LayoutDialogBar::OnWindowPosChanged(place);
    if ((place->flags & SWP_NOSIZE) == 0)
    {
        // The edge and the gripper's ends have moved.
        RedrawWindow(nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE | RDW_NOCHILDREN | RDW_NOERASE);
    }
}
