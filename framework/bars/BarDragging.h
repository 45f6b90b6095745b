#pragma once

/// @file
/// The user drags a bar between docks and floating frames; not public interface.
#include "framework/bars/core/DockDrag.h"
#include "framework/core/Geometry.h"

#include <windows.h>

#include <vector>

class CControlBar;

namespace vorn
{

/// The rectangle, on the screen, where a bar would come to lie: inverted lines over whatever is there.
class DragOutline
{
public:
    DragOutline();
    DragOutline(const DragOutline&) = delete;
    DragOutline& operator=(const DragOutline&) = delete;
    ~DragOutline();

    void Show(const CRect& rect, int thickness);
    void Hide();

private:
    void Change(const RECT* rect, int thickness);

    CRect m_shown{0, 0, 0, 0};
    int m_thickness = 0;
    bool m_locked = false;
};

/// One drag. Button up accepts; Escape, the other button and the loss of the capture leave all as it was; the control
/// key keeps the bar from docking.
class BarDragging
{
public:
    /// @param pressed where the button went down, on the screen
    BarDragging(CControlBar& bar, CPoint pressed);

    /// Returns when the drag is over. The bar's object may be gone then.
    void Run();

private:
    bool IsAlive() const;
    /// @return whether the drag goes on
    bool Handle(const MSG& message);
    void Follow(CPoint pointer);
    void ShowTarget();
    void Accept();
    std::vector<DockZone> Zones() const;
    DragSizes Sizes() const;

    CControlBar& m_bar;
    HWND m_window;
    CPoint m_pressed;
    CPoint m_pointer;
    CRect m_taken{0, 0, 0, 0};
    DragTarget m_target;
    bool m_moved = false;
    DragOutline m_outline;
};

} // namespace vorn
