#include "framework/bars/BarDragging.h"
#include "framework/bars/CDockBar.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/gdi/CDC.h"
#include "framework/include/afxres.h"
#include "framework/window/MessageLoop.h"
#include "framework/window/ThreadState.h"
#include <cstdlib>

namespace vorn
{
namespace
{
constexpr UINT kDockIds[] = {AFX_IDW_DOCKBAR_TOP, AFX_IDW_DOCKBAR_BOTTOM, AFX_IDW_DOCKBAR_LEFT, AFX_IDW_DOCKBAR_RIGHT};
constexpr int kThinOutline = 1; ///< of a docked bar; a floating frame's outline is as thick as its frame

/// Place of a mouse message on the screen.
CPoint PlaceOf(const MSG& message)
{
    POINT point{static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
    ::ClientToScreen(message.hwnd, &point);
    return point;
}

bool IsBeyondDragDistance(CPoint pressed, CPoint pointer)
{
    return std::abs(pointer.x - pressed.x) >= ::GetSystemMetrics(SM_CXDRAG) ||
           std::abs(pointer.y - pressed.y) >= ::GetSystemMetrics(SM_CYDRAG);
}
} // namespace

DragOutline::DragOutline() = default;

DragOutline::~DragOutline()
{
    Hide();
    if (m_locked)
        ::LockWindowUpdate(nullptr);
}

void DragOutline::Show(const CRect& rect, int thickness)
{
    // What is painted meanwhile would leave parts of the lines behind.
    m_locked = m_locked || ::LockWindowUpdate(::GetDesktopWindow());
    Change(&rect, thickness);
    m_shown = rect;
    m_thickness = thickness;
}

void DragOutline::Hide()
{
    if (m_thickness == 0)
        return;
    Change(nullptr, 0);
    m_thickness = 0;
    m_shown.SetRectEmpty();
}

void DragOutline::Change(const RECT* rect, int thickness)
{
    HDC screen = ::GetDCEx(::GetDesktopWindow(), nullptr, DCX_WINDOW | DCX_CACHE | DCX_LOCKWINDOWUPDATE);
    if (!screen)
        return;
    CDC dc;
    dc.Attach(screen);
    const CRect none(0, 0, 0, 0);
    dc.DrawDragRect(rect ? rect : &none, SIZE{thickness, thickness}, m_thickness ? &m_shown : nullptr,
                    SIZE{m_thickness, m_thickness});
    dc.Detach();
    ::ReleaseDC(::GetDesktopWindow(), screen);
}

BarDragging::BarDragging(CControlBar& bar, CPoint pressed)
    : m_bar(bar), m_window(bar.m_hWnd), m_pressed(pressed), m_pointer(pressed)
{
    ::GetWindowRect(m_window, &m_taken);
}

bool BarDragging::IsAlive() const
{
    return ::IsWindow(m_window) && CWnd::FromHandlePermanent(m_window) == &m_bar;
}

void BarDragging::Run()
{
    const LoopScope scope;
    ::SetCapture(m_window);
    bool goesOn = true;
    while (goesOn && ::GetCapture() == m_window)
    {
        MSG message{};
        if (::GetMessage(&message, nullptr, 0, 0) <= 0)
        {
            ::PostQuitMessage(static_cast<int>(message.wParam)); // for the loop around
            break;
        }
        goesOn = Handle(message);
    }
    m_outline.Hide();
    if (::GetCapture() == m_window)
        ::ReleaseCapture();
    if (!goesOn && m_moved && IsAlive())
        Accept();
}

bool BarDragging::Handle(const MSG& message)
{
    const auto cancel = [this]()
    {
        m_moved = false;
        return false;
    };
    switch (message.message)
    {
    case WM_LBUTTONUP:
        Follow(PlaceOf(message));
        return false;
    case WM_MOUSEMOVE:
        Follow(PlaceOf(message));
        return true;
    case WM_RBUTTONDOWN:
        return cancel();
    case WM_KEYDOWN:
        if (message.wParam == VK_ESCAPE)
            return cancel();
        Follow(m_pointer); // the control key
        return true;
    case WM_KEYUP:
        Follow(m_pointer);
        return true;
    default:
        ::DispatchMessage(&message);
        return true;
    }
}

void BarDragging::Follow(CPoint pointer)
{
    m_pointer = pointer;
    m_moved = m_moved || IsBeyondDragDistance(m_pressed, pointer);
    if (!m_moved || !IsAlive())
        return;
    const bool mayDock = ::GetKeyState(VK_CONTROL) >= 0;
    m_target = FindDragTarget(mayDock ? Zones() : std::vector<DockZone>(), Sizes(), m_taken, m_pressed, pointer);
    ShowTarget();
}

void BarDragging::ShowTarget()
{
    m_outline.Show(m_target.outline, m_target.dock ? kThinOutline : ::GetSystemMetrics(SM_CXFRAME));
}

std::vector<DockZone> BarDragging::Zones() const
{
    std::vector<DockZone> zones;
    CFrameWnd* frame = m_bar.GetDockingFrame();
    for (UINT id : kDockIds)
    {
        const auto* dock = frame ? DYNAMIC_DOWNCAST(CDockBar, frame->GetControlBar(id)) : nullptr;
        if (!dock || !(m_bar.m_dwDockStyle & dock->GetBarStyle() & CBRS_ALIGN_ANY))
            continue;
        DockZone zone{id, (dock->GetBarStyle() & CBRS_ORIENT_HORZ) != 0, {}};
        ::GetWindowRect(dock->m_hWnd, &zone.place);
        zones.push_back(zone);
    }
    return zones;
}

DragSizes BarDragging::Sizes() const
{
    DragSizes sizes;
    sizes.lying = m_bar.CalcDynamicLayout(-1, LM_HORZ | LM_HORZDOCK);
    sizes.standing = m_bar.CalcDynamicLayout(-1, LM_VERTDOCK);
    sizes.floating = m_bar.CalcDynamicLayout(-1, LM_HORZ | LM_MRUWIDTH);
    return sizes;
}

void BarDragging::Accept()
{
    CFrameWnd* frame = m_bar.GetDockingFrame();
    if (!frame)
        return;
    const RECT outline = m_target.outline;
    if (m_target.dock)
        frame->DockControlBar(&m_bar, m_target.dock, &outline);
    else
        frame->FloatControlBar(&m_bar, CPoint(outline.left, outline.top));
}

} // namespace vorn
