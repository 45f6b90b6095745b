#include "framework/window/UncaughtException.h"

#include "framework/window/CWinThread.h"
#include "framework/window/CWnd.h"
#include "framework/window/ModuleState.h"
#include "framework/window/ThreadState.h"
#include "framework/window/WindowMap.h"

#include <exception>

namespace
{

/// Makes a message the current one for a scope.
class CurrentMessage
{
public:
    CurrentMessage(vorn::ThreadState& state, const MSG& message) : m_state(state), m_before(state.currentMessage)
    {
        m_state.currentMessage = message;
    }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;
    ~CurrentMessage()
    {
        m_state.currentMessage = m_before;
    }

private:
    vorn::ThreadState& m_state;
    MSG m_before;
};

LRESULT Report(CException* exception, const MSG& message)
{
    CWinThread* thread = AfxGetThread();
    return thread ? thread->ProcessWndProcException(exception, &message) : vorn::DefaultAfterException(message);
}

/// No exception may pass through the system's code between the window's caller and us.
LRESULT CallSafely(CWnd& window, const MSG& message)
{
    try
    {
        return window.WindowProc(message.message, message.wParam, message.lParam);
    }
    catch (CException* exception)
    {
        const LRESULT result = Report(exception, message);
        exception->Delete();
        return result;
    }
    catch (const std::exception& exception)
    {
        vorn::UncaughtException wrapped(exception.what());
        return Report(&wrapped, message);
    }
    catch (...)
    {
        vorn::UncaughtException wrapped("");
        return Report(&wrapped, message);
    }
}

/// Messages of a window whose object was detached go on to the window's own procedure.
LRESULT CallOrphan(vorn::ThreadState& state, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto orphan = state.orphans.find(window);
    if (orphan == state.orphans.end())
    {
        return ::DefWindowProc(window, message, wParam, lParam);
    }
    const WNDPROC procedure = orphan->second;
    if (message == WM_NCDESTROY)
    {
        state.orphans.erase(orphan);
    }
    return ::CallWindowProc(procedure, window, message, wParam, lParam);
}

} // namespace

LRESULT vorn::DefaultAfterException(const MSG& message)
{
    if (message.message == WM_CREATE)
    {
        return -1; // the window is not created
    }
    if (message.message == WM_PAINT)
    {
        ::ValidateRect(message.hwnd, nullptr); // or it would be asked for again at once
    }
    return 0;
}

LRESULT AfxCallWndProc(CWnd* pWnd, HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    MSG message = {};
    message.hwnd = hWnd;
    message.message = nMsg;
    message.wParam = wParam;
    message.lParam = lParam;
    const CurrentMessage current(vorn::CurrentThreadState(), message);
    return CallSafely(*pWnd, message);
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    CWnd* window = CWnd::FromHandlePermanent(hWnd);
    return window ? AfxCallWndProc(window, hWnd, nMsg, wParam, lParam)
                  : CallOrphan(vorn::CurrentThreadState(), hWnd, nMsg, wParam, lParam);
}

const MSG* CWnd::GetCurrentMessage()
{
    MSG& message = vorn::CurrentThreadState().currentMessage;
    const DWORD position = ::GetMessagePos();
    message.time = static_cast<DWORD>(::GetMessageTime());
    message.pt.x = static_cast<short>(LOWORD(position));
    message.pt.y = static_cast<short>(HIWORD(position));
    return &message;
}

LRESULT CWnd::DefWindowProc(UINT nMsg, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC super = *GetSuperWndProcAddr();
    return super ? ::CallWindowProc(super, m_hWnd, nMsg, wParam, lParam)
                 : ::DefWindowProc(m_hWnd, nMsg, wParam, lParam);
}

LRESULT CWnd::Default()
{
    const MSG& message = vorn::CurrentThreadState().currentMessage;
    return DefWindowProc(message.message, message.wParam, message.lParam);
}
