
#include "framework/core/Exception.h"
#include "framework/window/CWnd.h"
#include "framework/window/ThreadState.h"
#include "framework/window/WindowAccess.h"

namespace
{

/// The input method's helper window may come up inside the creation of another window.
bool IsInputMethodWindow(HWND window)
{
    return (::GetClassLong(window, GCL_STYLE) & CS_IME) != 0;
}

/// Binds the waiting object. False when it could not be bound: the creation is then refused.
bool BindWaiting(vorn::ThreadState& state, HWND window)
{
    CWnd* waiting = state.creating;
    state.creating = nullptr; // windows created inside this creation belong to nobody yet
    state.created = window;
    try
    {
        AfxWindowAccess::Bind(*waiting, window);
        return true;
    }
    catch (CException* exception)
    {
        exception->Delete();
    }
    catch (...)
    {
        // Whatever it was must not pass through the system's code.
    }
    return false;
}

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam)
{
    vorn::ThreadState& state = vorn::CurrentThreadState();
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND && state.creating && !IsInputMethodWindow(window) && !BindWaiting(state, window))
    {
        return 1;
    }
    return ::CallNextHookEx(state.creationHook, code, wParam, lParam);
}

} // namespace

void AfxHookWindowCreate(CWnd* pWnd)
{
    vorn::ThreadState& state = vorn::CurrentThreadState();
    if (state.creationHookUses++ == 0)
    {
        state.creationHook = ::SetWindowsHookEx(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
    }
    state.creating = pWnd;
    state.created = nullptr;
}

BOOL AfxUnhookWindowCreate()
{
    vorn::ThreadState& state = vorn::CurrentThreadState();
    if (state.creationHookUses > 0 && --state.creationHookUses == 0)
    {
        ::UnhookWindowsHookEx(state.creationHook);
        state.creationHook = nullptr;
    }
    const bool bound = state.creating == nullptr;
    state.creating = nullptr;
    return bound;
}
