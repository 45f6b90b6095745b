#include "frame/PriorityBoost.h"

#include "framework/window/CWinThread.h"

namespace
{

HANDLE CurrentThread()
{
    const CWinThread* thread = AfxGetThread();
    return thread != nullptr && thread->m_hThread != nullptr ? thread->m_hThread : GetCurrentThread();
}

} // namespace

AppPriorityBoost::AppPriorityBoost(DWORD priorityClass)
    : m_process(GetCurrentProcess()), m_before(GetPriorityClass(m_process))
{
    SetPriorityClass(m_process, priorityClass);
}

AppPriorityBoost::~AppPriorityBoost()
{
    SetPriorityClass(m_process, m_before);
}

ThreadPriorityBoost::ThreadPriorityBoost(int priority)
    : m_thread(CurrentThread()), m_before(GetThreadPriority(m_thread))
{
    SetThreadPriority(m_thread, priority);
}

ThreadPriorityBoost::~ThreadPriorityBoost()
{
    SetThreadPriority(m_thread, m_before);
}
