#include "toolkit/tooltips/InfoBoxWatch.h"

namespace vorn
{

HWND InfoBoxWatch::s_box = nullptr;
HHOOK InfoBoxWatch::s_mouse = nullptr;
HHOOK InfoBoxWatch::s_focus = nullptr;

bool IsMousePress(UINT message)
{
    switch (message)
    {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
    case WM_XBUTTONDOWN:
    case WM_XBUTTONDBLCLK:
    case WM_NCLBUTTONDOWN:
    case WM_NCLBUTTONDBLCLK:
    case WM_NCRBUTTONDOWN:
    case WM_NCRBUTTONDBLCLK:
    case WM_NCMBUTTONDOWN:
    case WM_NCMBUTTONDBLCLK:
    case WM_NCXBUTTONDOWN:
    case WM_NCXBUTTONDBLCLK:
        return true;
    default:
        return false;
    }
}

bool IsMouseButton(UINT message)
{
    switch (message)
    {
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
    case WM_MBUTTONUP:
    case WM_XBUTTONUP:
    case WM_NCLBUTTONUP:
    case WM_NCRBUTTONUP:
    case WM_NCMBUTTONUP:
    case WM_NCXBUTTONUP:
        return true;
    default:
        return IsMousePress(message);
    }
}

void InfoBoxWatch::Start(HWND box)
{
    if (s_box != nullptr && s_box != box)
    {
        ::SendMessage(s_box, WM_CANCELMODE, 0, 0);
    }
    Stop(s_box);
    s_box = box;
    const DWORD thread = ::GetCurrentThreadId();
    s_mouse = ::SetWindowsHookEx(WH_MOUSE, OnMouse, nullptr, thread);
    s_focus = ::SetWindowsHookEx(WH_CBT, OnFocus, nullptr, thread);
}

void InfoBoxWatch::Stop(HWND box)
{
    if (s_box == nullptr || s_box != box)
    {
        return;
    }
    s_box = nullptr;
    ::UnhookWindowsHookEx(s_mouse);
    ::UnhookWindowsHookEx(s_focus);
}

// The next hook comes first: closing the box takes these hooks away.

LRESULT CALLBACK InfoBoxWatch::OnMouse(int code, WPARAM message, LPARAM details)
{
    const LRESULT result = ::CallNextHookEx(s_mouse, code, message, details);
    const HWND under = reinterpret_cast<const MOUSEHOOKSTRUCT*>(details)->hwnd;
    if (code == HC_ACTION && IsMousePress(static_cast<UINT>(message)) && s_box != nullptr && under != s_box)
    {
        ::SendMessage(s_box, WM_CANCELMODE, 0, 0);
    }
    return result;
}

LRESULT CALLBACK InfoBoxWatch::OnFocus(int code, WPARAM window, LPARAM details)
{
    const LRESULT result = ::CallNextHookEx(s_focus, code, window, details);
    if (code == HCBT_SETFOCUS && s_box != nullptr && reinterpret_cast<HWND>(window) != s_box)
    {
        ::SendMessage(s_box, WM_CANCELMODE, 0, 0);
    }
    return result;
}

} // namespace vorn
