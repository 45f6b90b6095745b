#include "framework/window/CWinThread.h"

#include "framework/window/CWnd.h"
#include "framework/window/MessageLoop.h"
#include "framework/window/ThreadState.h"

#include <exception>

namespace
{

/// WM_SYSTIMER, by which the system blinks carets; the header has no name for it.
constexpr UINT kSystemTimer = 0x0118;

bool IsMouseMove(UINT message)
{
    return message == WM_MOUSEMOVE || message == WM_NCMOUSEMOVE;
}

/// Where a thread without object keeps what CWinThread's members keep.
struct BareLoop
{
    MSG message = {};
    UINT lastMouse = WM_NULL;
    POINT lastPoint = {};
};

BareLoop& Bare()
{
    thread_local BareLoop loop;
    return loop;
}

bool MovedOn(const MSG& message, UINT& lastMessage, POINT& lastPoint)
{
    if (message.message == lastMessage && message.pt.x == lastPoint.x && message.pt.y == lastPoint.y)
    {
        return false;
    }
    lastMessage = message.message;
    lastPoint = message.pt;
    return true;
}

bool CallsForIdle(const MSG& message, UINT& lastMessage, POINT& lastPoint)
{
    if (IsMouseMove(message.message))
    {
        return MovedOn(message, lastMessage, lastPoint);
    }
    return message.message != WM_PAINT && message.message != kSystemTimer;
}

bool PumpBare()
{
    MSG& message = Bare().message;
    if (::GetMessage(&message, nullptr, 0, 0) <= 0)
    {
        return false;
    }
    if (!CWnd::WalkPreTranslateTree(nullptr, &message))
    {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    return true;
}

BOOL CALLBACK UpdateTopWindow(HWND window, LPARAM)
{
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (object && object->IsWindowVisible() && (object->IsFrameWnd() || object == AfxGetMainWnd()))
    {
        AfxCallWndProc(object, window, WM_IDLEUPDATECMDUI, TRUE, 0);
        CWnd::SendMessageToDescendants(window, WM_IDLEUPDATECMDUI, TRUE, 0, TRUE, TRUE);
    }
    return TRUE;
}

} // namespace

namespace vorn
{

bool PumpMessage()
{
    CWinThread* thread = AfxGetThread();
    return thread ? thread->PumpMessage() != FALSE : PumpBare();
}

const MSG& LastPumpedMessage()
{
    const CWinThread* thread = AfxGetThread();
    return thread ? thread->GetLastPumpedMessage() : Bare().message;
}

bool IsIdleMessage(const MSG& message)
{
    MSG copy = message;
    CWinThread* thread = AfxGetThread();
    return thread ? thread->IsIdleMessage(&copy) != FALSE : CallsForIdle(copy, Bare().lastMouse, Bare().lastPoint);
}

bool HasMessage()
{
    MSG message;
    return ::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) != FALSE;
}

} // namespace vorn

BOOL CWinThread::PumpMessage()
{
    if (::GetMessage(&m_msgCur, nullptr, 0, 0) <= 0)
    {
        return FALSE;
    }
    // A handler may run a loop of its own, which leaves its last message in m_msgCur.
    MSG message = m_msgCur;
    if (!PreTranslateMessage(&message))
    {
        ::TranslateMessage(&message);
        ::DispatchMessage(&message);
    }
    m_msgCur = message;
    return TRUE;
}

BOOL CWinThread::IsIdleMessage(MSG* pMsg)
{
    return CallsForIdle(*pMsg, m_nMsgLast, m_ptCursorLast);
}

BOOL CWinThread::OnIdle(LONG lCount)
{
    if (lCount <= 0)
    {
        ::EnumThreadWindows(::GetCurrentThreadId(), UpdateTopWindow, 0);
    }
    else
    {
        vorn::FreeTemporaryObjects();
    }
    return lCount < 1;
}

int CWinThread::Run()
{
    const vorn::LoopScope scope;
    bool idle = true;
    LONG idleCount = 0;
    for (;;)
    {
        while (idle && !vorn::HasMessage())
        {
            idle = OnIdle(idleCount++) != FALSE;
        }
        do
        {
            if (!PumpMessage())
            {
                return ExitInstance();
            }
            if (IsIdleMessage(&m_msgCur))
            {
                idle = true;
                idleCount = 0;
            }
        } while (vorn::HasMessage());
    }
}
