
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
    CWnd* object = state.creations.back().waiting;
    state.creations.back() = {nullptr, window}; // windows created inside this creation belong to nobody yet
    try
    {
        AfxWindowAccess::Bind(*object, window);
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
    state.creations.back().window = nullptr;
    return false;
}

bool IsAwaited(const vorn::ThreadState& state, int code, HWND window)
{
    return code == HCBT_CREATEWND && !state.creations.empty() && state.creations.back().waiting &&
           !IsInputMethodWindow(window);
}

LRESULT CALLBACK CreationHook(int code, WPARAM wParam, LPARAM lParam)
{
    vorn::ThreadState& state = vorn::CurrentThreadState();
    const auto window = reinterpret_cast<HWND>(wParam);
    if (IsAwaited(state, code, window) && !BindWaiting(state, window))
    {
        return 1;
    }
    return ::CallNextHookEx(state.creationHook, code, wParam, lParam);
}

} // namespace

void AfxHookWindowCreate(CWnd* pWnd)
{
    vorn::ThreadState& state = vorn::CurrentThreadState();
    state.creations.push_back({pWnd, nullptr});
    if (state.creations.size() == 1)
    {
        state.creationHook = ::SetWindowsHookEx(WH_CBT, CreationHook, nullptr, ::GetCurrentThreadId());
    }
}

BOOL AfxUnhookWindowCreate()
{
    vorn::ThreadState& state = vorn::CurrentThreadState();
    if (state.creations.empty())
    {
        return FALSE;
    }
    const vorn::Creation creation = state.creations.back();
    state.creations.pop_back();
    state.lastCreated = creation.window;
    if (state.creations.empty())
    {
        ::UnhookWindowsHookEx(state.creationHook);
        state.creationHook = nullptr;
    }
    return creation.window != nullptr;
}
