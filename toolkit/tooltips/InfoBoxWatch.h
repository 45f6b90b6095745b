#pragma once

#include <windows.h>

namespace vorn
{

/// Messages of a mouse button, inside windows and on their frames.
bool IsMouseButton(UINT message);
/// Those that a press begins; the second press of a double click is one.
bool IsMousePress(UINT message);

/// Tells an open box (WM_CANCELMODE) of the next press of a mouse button in any other window of the thread and of any
/// change of the keyboard's focus. There is one open box at a time: a second one ends the first.
class InfoBoxWatch
{
public:
    static void Start(HWND box);
    static void Stop(HWND box);

private:
    static LRESULT CALLBACK OnMouse(int code, WPARAM message, LPARAM details);
    static LRESULT CALLBACK OnFocus(int code, WPARAM window, LPARAM details);

    static HWND s_box;
    static HHOOK s_mouse;
    static HHOOK s_focus;
};

} // namespace vorn
