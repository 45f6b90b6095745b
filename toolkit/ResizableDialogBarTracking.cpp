#include "framework/frames/CFrameWnd.h"
#include "framework/gdi/CDC.h"
#include "toolkit/ResizableDialogBar.h"

#include <algorithm>

using vorn::BarPart;

// A drag of the bar's edge.
namespace
{

/// A line over what is on the screen, also of a window that is locked.
void InvertOn(HWND window, const CRect& screenRect)
{
    const HDC handle = ::GetDCEx(window, nullptr, DCX_WINDOW | DCX_CACHE | DCX_LOCKWINDOWUPDATE);
    if (handle == nullptr)
    {
        return;
    }
    CRect place(0, 0, 0, 0);
    ::GetWindowRect(window, &place);
    CRect rect = screenRect;
    rect.OffsetRect(-place.left, -place.top);
    ::InvertRect(handle, &rect);
    ::ReleaseDC(window, handle);
}

} // namespace

BOOL ResizableDialogBar::IsTracking() const
{
    return m_tracking;
}

void ResizableDialogBar::StartTracking()
{
    if (m_tracking || m_hWnd == nullptr)
    {
        return;
    }
    if (m_edge == BarPart::Inside)
    {
        m_edge = vorn::SizingEdgeOf(Side());
        ::GetCursorPos(&m_pressed);
    }
    GetWindowRect(&m_start);
    m_wanted = m_start.Size();
    m_tracking = true;
    SetCapture();
    m_focusBefore = ::SetFocus(m_hWnd); // Escape comes here
    ShowTracker(m_wanted);
}

void ResizableDialogBar::StopTracking(BOOL accept)
{
    if (!m_tracking)
    {
        return;
    }
    m_tracking = false; // first: the capture's end asks for an end again
    HideTracker();
    if (::GetCapture() == m_hWnd)
    {
        ::ReleaseCapture();
    }
    if (::GetFocus() == m_hWnd && ::IsWindow(m_focusBefore))
    {
        ::SetFocus(m_focusBefore);
    }
    if (accept && m_wanted != m_start.Size())
    {
        TakeSize(m_wanted);
    }
    m_edge = BarPart::Inside;
}

void ResizableDialogBar::TakeSize(CSize size)
{
    ValidateSize(&size, DragLimits());
    CPoint corner = m_start.TopLeft();
    corner.x += m_edge == BarPart::LeftEdge ? m_start.Width() - size.cx : 0;
    corner.y += m_edge == BarPart::TopEdge ? m_start.Height() - size.cy : 0;
    // Along a docked bar that is as long as its frame its own length stays what it was.
    CSize taken = IsFloating() ? size : m_docked;
    if (m_edge == BarPart::LeftEdge || m_edge == BarPart::RightEdge)
    {
        taken.cx = size.cx;
    }
    else
    {
        taken.cy = size.cy;
    }
    SetSizeInForce(taken);
    if (IsFloating() && corner != m_start.TopLeft() && GetDockingFrame() != nullptr)
    {
        const DWORD align = m_dwStyle & CBRS_ALIGN_ANY;
        GetDockingFrame()->FloatControlBar(this, corner, align);
    }
    LayOutFrame();
    WriteSizes();
}

/// A docked bar leaves the frame's client area nowhere.
MINMAXINFO ResizableDialogBar::DragLimits()
{
    MINMAXINFO limits = Limits();
    const CFrameWnd* const frame = GetDockingFrame();
    if (frame != nullptr && !IsFloating())
    {
        CRect client;
        frame->GetClientRect(&client);
        limits.ptMaxTrackSize.x = std::min<LONG>(limits.ptMaxTrackSize.x, client.Width());
        limits.ptMaxTrackSize.y = std::min<LONG>(limits.ptMaxTrackSize.y, client.Height());
    }
    return limits;
}

CSize ResizableDialogBar::SizeAt(CPoint pointer)
{
    const vorn::BarSize dragged =
        vorn::DraggedBarSize(m_edge, {m_start.Width(), m_start.Height()}, static_cast<int>(pointer.x - m_pressed.x),
                             static_cast<int>(pointer.y - m_pressed.y));
    CSize size(dragged.cx, dragged.cy);
    ValidateSize(&size, DragLimits());
    return size;
}

void ResizableDialogBar::ShowTracker(CSize size)
{
    const vorn::BarMargins line =
        vorn::TrackerLineOf(m_edge,
                            {static_cast<int>(m_start.left), static_cast<int>(m_start.top),
                             static_cast<int>(m_start.right), static_cast<int>(m_start.bottom)},
                            {static_cast<int>(size.cx), static_cast<int>(size.cy)});
    const CRect tracker(line.left, line.top, line.right, line.bottom);
    if (tracker == m_tracker)
    {
        return;
    }
    HideTracker();
    OnInvertTracker(tracker);
    m_tracker = tracker;
}

void ResizableDialogBar::HideTracker()
{
    if (!m_tracker.IsRectEmpty())
    {
        OnInvertTracker(m_tracker);
        m_tracker.SetRectEmpty();
    }
}

void ResizableDialogBar::OnInvertTracker(const CRect& rect)
{
    // A floating bar may grow beyond its frame.
    const CFrameWnd* const frame = IsFloating() ? nullptr : GetDockingFrame();
    InvertOn(frame != nullptr ? frame->m_hWnd : ::GetDesktopWindow(), rect);
}

void ResizableDialogBar::OnMouseMove(UINT flags, CPoint point)
{
    if (!m_tracking)
    {
        LayoutDialogBar::OnMouseMove(flags, point);
        return;
    }
    ClientToScreen(&point);
    m_wanted = SizeAt(point);
    ShowTracker(m_wanted);
}

void ResizableDialogBar::OnLButtonUp(UINT flags, CPoint point)
{
    if (!m_tracking)
    {
        LayoutDialogBar::OnLButtonUp(flags, point);
        return;
    }
    ClientToScreen(&point);
    m_wanted = SizeAt(point);
    StopTracking(TRUE);
}

void ResizableDialogBar::OnRButtonDown(UINT flags, CPoint point)
{
    if (m_tracking)
    {
        StopTracking(FALSE);
    }
    else
    {
        LayoutDialogBar::OnRButtonDown(flags, point);
    }
}

void ResizableDialogBar::OnKeyDown(UINT key, UINT repeat, UINT flags)
{
    if (m_tracking && key == VK_ESCAPE)
    {
        StopTracking(FALSE);
    }
    else
    {
        LayoutDialogBar::OnKeyDown(key, repeat, flags);
    }
}

BOOL ResizableDialogBar::PreTranslateMessage(MSG* message)
{
    // Before the dialog's own keys make a command of it.
    if (m_tracking && message->message == WM_KEYDOWN && message->wParam == VK_ESCAPE)
    {
        StopTracking(FALSE);
        return TRUE;
    }
    return LayoutDialogBar::PreTranslateMessage(message);
}

void ResizableDialogBar::OnSetFocus(CWnd* former)
{
    // A dialog hands the focus on to its first control; during a drag the keys are for the bar.
    if (!m_tracking)
    {
        LayoutDialogBar::OnSetFocus(former);
    }
}

void ResizableDialogBar::OnCaptureChanged(CWnd* other)
{
    if (other->GetSafeHwnd() != m_hWnd)
    {
        StopTracking(FALSE);
    }
    LayoutDialogBar::OnCaptureChanged(other);
}

void ResizableDialogBar::OnCancelMode()
{
    StopTracking(FALSE);
    LayoutDialogBar::OnCancelMode();
}
