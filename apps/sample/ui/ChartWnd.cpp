#include "apps/sample/ui/ChartWnd.h"

#include <cmath>
#include <utility>

namespace
{

constexpr UINT_PTR kRestTimer = 1;
constexpr UINT kRestAfter = 120; // milliseconds without a movement
constexpr double kZoomStep = 1.25;
constexpr int kPanStep = 60; // pixels at 96 dpi

} // namespace

BEGIN_MESSAGE_MAP(ChartWnd, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_CAPTURECHANGED()
ON_WM_MOUSEWHEEL()
ON_WM_KEYDOWN()
ON_WM_TIMER()
END_MESSAGE_MAP()

ChartWnd::ChartWnd(vorn::chart::Chart& chart) : m_chart(chart)
{
}

BOOL ChartWnd::Create(CWnd& parent, UINT id)
{
    CClientDC dc(&parent);
    m_dotsPerInch = dc.GetDeviceCaps(LOGPIXELSY);
    return CWnd::Create(nullptr, "Chart", WS_CHILD | WS_TABSTOP, CRect(), &parent, id);
}

BOOL ChartWnd::PreCreateWindow(CREATESTRUCT& create)
{
    create.lpszClass =
        AfxRegisterWndClass(CS_DBLCLKS, LoadCursor(nullptr, IDC_CROSS), nullptr, nullptr); // every pixel is painted
    return CWnd::PreCreateWindow(create);
}

void ChartWnd::OnMoved(std::function<void()> moved)
{
    m_moved = std::move(moved);
}

int ChartWnd::Px(int at96) const
{
    return static_cast<int>(std::lround(at96 * m_dotsPerInch / 96));
}

void ChartWnd::OnPaint()
{
    CPaintDC dc(this);
    using Quality = vorn::chart::Chart::Quality;
    m_chart.Draw(dc, 0, 0, m_resting ? Quality::Smooth : Quality::Fast);
    if (!m_resting)
        SetTimer(kRestTimer, kRestAfter);
}

BOOL ChartWnd::OnEraseBkgnd(CDC*)
{
    return TRUE;
}

void ChartWnd::OnSize(UINT type, int width, int height)
{
    CWnd::OnSize(type, width, height);
    if (width <= 0 || height <= 0)
        return;
    m_chart.View().SetSize(width, height, m_dotsPerInch);
    Repaint();
}

void ChartWnd::Repaint()
{
    if (m_hWnd != nullptr)
        Invalidate(FALSE);
}

void ChartWnd::Moved()
{
    m_resting = false;
    Repaint();
    if (m_moved)
        m_moved();
}

void ChartWnd::OnTimer(UINT_PTR timer)
{
    CWnd::OnTimer(timer);
    if (timer != kRestTimer)
        return;
    KillTimer(kRestTimer);
    m_resting = true;
    Repaint();
}

std::optional<LatLon> ChartWnd::Pointed() const
{
    if (!m_pointer)
        return std::nullopt;
    return m_chart.View().ToPosition({static_cast<double>(m_pointer->x), static_cast<double>(m_pointer->y)});
}

void ChartWnd::OnLButtonDown(UINT flags, CPoint point)
{
    CWnd::OnLButtonDown(flags, point);
    SetFocus();
    m_grabbed = m_chart.View().ToPosition({static_cast<double>(point.x), static_cast<double>(point.y)});
    if (m_grabbed) // beyond the edge of the map there is nothing to drag
        SetCapture();
}

void ChartWnd::OnLButtonUp(UINT flags, CPoint point)
{
    CWnd::OnLButtonUp(flags, point);
    if (m_grabbed)
        ReleaseCapture();
}

void ChartWnd::OnCaptureChanged(CWnd* to)
{
    CWnd::OnCaptureChanged(to);
    m_grabbed.reset();
}

void ChartWnd::OnMouseMove(UINT flags, CPoint point)
{
    CWnd::OnMouseMove(flags, point);
    if (!m_pointer)
    {
        TRACKMOUSEEVENT leaving = {sizeof leaving, TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&leaving);
    }
    m_pointer = point;
    if (m_grabbed)
    {
        m_chart.View().Bring(*m_grabbed, {static_cast<double>(point.x), static_cast<double>(point.y)});
        Moved();
    }
    else if (m_moved)
    {
        m_moved();
    }
}

void ChartWnd::OnMouseLeave()
{
    CWnd::OnMouseLeave();
    m_pointer.reset();
    if (m_moved)
        m_moved();
}

BOOL ChartWnd::OnMouseWheel(UINT, short delta, CPoint point)
{
    ScreenToClient(&point);
    const double steps = static_cast<double>(delta) / WHEEL_DELTA;
    m_chart.View().ZoomAt({static_cast<double>(point.x), static_cast<double>(point.y)}, std::pow(kZoomStep, steps));
    Moved();
    return TRUE;
}

void ChartWnd::OnLButtonDblClk(UINT flags, CPoint point)
{
    CWnd::OnLButtonDblClk(flags, point);
    m_chart.View().ZoomAt({static_cast<double>(point.x), static_cast<double>(point.y)}, 2);
    Moved();
}

void ChartWnd::Zoom(double factor)
{
    const vorn::chart::ChartView& view = m_chart.View();
    m_chart.View().ZoomAt({view.Width() / 2.0, view.Height() / 2.0}, factor);
    Moved();
}

void ChartWnd::Pan(int dx, int dy)
{
    m_chart.View().Pan(Px(dx), Px(dy));
    Moved();
}

void ChartWnd::OnKeyDown(UINT key, UINT repeats, UINT flags)
{
    switch (key)
    {
    case VK_LEFT:
        return Pan(kPanStep, 0);
    case VK_RIGHT:
        return Pan(-kPanStep, 0);
    case VK_UP:
        return Pan(0, kPanStep);
    case VK_DOWN:
        return Pan(0, -kPanStep);
    case VK_ADD:
    case VK_OEM_PLUS:
        return Zoom(kZoomStep);
    case VK_SUBTRACT:
    case VK_OEM_MINUS:
        return Zoom(1 / kZoomStep);
    default:
        CWnd::OnKeyDown(key, repeats, flags);
    }
}
