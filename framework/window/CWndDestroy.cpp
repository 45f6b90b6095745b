#include "framework/window/CWnd.h"

#include "framework/window/CWinApp.h"
#include "framework/window/ModuleState.h"
#include "framework/window/ThreadState.h"
#include "framework/window/WindowMap.h"

namespace
{

/// The object ends while its modal loop runs: the loop must not touch it again.
void LeaveModalFrames(const CWnd* window)
{
    for (auto* frame = vorn::CurrentThreadState().modal; frame; frame = frame->outer)
    {
        if (frame->window == window)
        {
            frame->window = nullptr;
        }
    }
}

} // namespace

CWnd::~CWnd()
{
    if (IsPlaceMark())
    {
        return;
    }
    if (m_nFlags & kStateModalLoop)
    {
        LeaveModalFrames(this);
    }
    if (m_hWnd)
    {
        // Virtual calls stop here: handlers of derived classes do not run.
        CWnd::DestroyWindow();
        ForgetWindow();
    }
}

BOOL CWnd::DestroyWindow()
{
    const HWND window = m_hWnd;
    if (!window)
    {
        return FALSE;
    }
    const bool permanent = FromHandlePermanent(window) == this;
    const BOOL destroyed = ::DestroyWindow(window);
    // This object may be gone now. It is certainly alive if the map still knows it: its own OnNcDestroy was not
    // reached (attached without subclassing, or the handler did not call the base).
    if (destroyed && permanent && FromHandlePermanent(window) == this)
    {
        ForgetWindow();
    }
    return destroyed;
}

void CWnd::OnNcDestroy()
{
    EndMainWindow();
    if (vorn::CurrentThreadState().toolTipOwner == m_hWnd)
    {
        CancelToolTips();
    }
    if (m_nFlags & kStateModalLoop)
    {
        if (m_nFlags & kStateContinueModal)
        {
            EndModalLoop(-1); // else it has its result already
        }
        // The window's own messages go with it; a loop that waits inside GetMessage must wake all the same.
        ::PostThreadMessage(::GetCurrentThreadId(), WM_NULL, 0, 0);
    }
    const HWND window = m_hWnd;
    WNDPROC* super = GetSuperWndProcAddr();
    const WNDPROC own = *super;
    Default();
    if (own && reinterpret_cast<WNDPROC>(::GetWindowLongPtr(window, GWLP_WNDPROC)) == &AfxWndProc)
    {
        ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(own));
    }
    ForgetWindow();
    m_hWndOwner = nullptr;
    PostNcDestroy();
}

void CWnd::PostNcDestroy()
{
}

/// The end of a thread's main window ends its message loop.
void CWnd::EndMainWindow()
{
    CWinThread* thread = AfxGetThread();
    if (!thread || thread->m_pMainWnd != this)
    {
        return;
    }
    thread->m_pMainWnd = nullptr;
    const vorn::ThreadState& state = vorn::CurrentThreadState();
    if (state.startedUp || state.loopDepth > 0)
    {
        AfxPostQuitMessage(0);
    }
}
