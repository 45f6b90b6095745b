#include "frame/TimerMgr.h"

#include "framework/window/CWnd.h"

#include <utility>

namespace
{
TimerMgr* g_instance = nullptr;
}

TimerMgr* TimerMgr::Inst()
{
    if (g_instance == nullptr)
    {
        g_instance = new TimerMgr; // lives until FreeInst, not until the library's end
    }
    return g_instance;
}

void TimerMgr::FreeInst()
{
    delete std::exchange(g_instance, nullptr);
}

UINT TimerMgr::GetNextTimerValue()
{
    return m_next++;
}

UINT TimerMgr::SetTimer(HWND window, UINT elapse)
{
    const UINT id = GetNextTimerValue();
    ::SetTimer(window, id, elapse, nullptr);
    return id;
}

UINT TimerMgr::SetTimer(CWnd* window, UINT elapse)
{
    return SetTimer(window != nullptr ? window->m_hWnd : nullptr, elapse);
}
