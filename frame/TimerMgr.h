#pragma once

#include "frame/core/Export.h"

#include <windows.h>

class CWnd;

/// Gives every window timer of the process an identifier of its own, from 1000 upwards. For the user-interface thread.
class VORNCOMMON_API TimerMgr
{
public:
    /// The one manager, made on the first call.
    static TimerMgr* Inst();
    /// Destroys the manager: the next one starts at 1000 again. Timers that run go on running.
    static void FreeInst();

    TimerMgr(const TimerMgr&) = delete;
    TimerMgr& operator=(const TimerMgr&) = delete;

    /// An identifier that was not given before.
    UINT GetNextTimerValue();

    /// Starts a timer that sends @p window a WM_TIMER message every @p elapse milliseconds. Whether it started is not
    /// checked. A thread's timer, without a window, runs under an identifier of the system's own choice.
    /// @return the timer's identifier, used up in any case
    UINT SetTimer(HWND window, UINT elapse);
    UINT SetTimer(CWnd* window, UINT elapse);

private:
    TimerMgr() = default;

    UINT m_next = 1000;
};
