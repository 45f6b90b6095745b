#include "framework/window/CWinThread.h"

#include "framework/window/ThreadState.h"

#include <memory>
#include <process.h>

/// Life of a thread that has a CWinThread object.
struct AfxThreadStart
{
    static unsigned __stdcall Enter(void* parameter)
    {
        auto* thread = static_cast<CWinThread*>(parameter);
        vorn::ThreadState& state = vorn::CurrentThreadState();
        state.thread = thread;
        state.startedUp = true;
        const unsigned result = Live(*thread);
        Leave(TRUE);
        return result;
    }

    /// Ends the framework's part of the calling thread.
    static void Leave(BOOL deleteObject)
    {
        vorn::ThreadState& state = vorn::CurrentThreadState();
        CWinThread* thread = state.thread;
        vorn::FreeTemporaryObjects();
        if (thread && deleteObject)
        {
            thread->Delete();
        }
        state.thread = nullptr;
    }

private:
    static unsigned Live(CWinThread& thread)
    {
        if (thread.m_pfnThreadProc)
        {
            return thread.m_pfnThreadProc(thread.m_pThreadParams);
        }
        return static_cast<unsigned>(thread.InitInstance() ? thread.Run() : thread.ExitInstance());
    }
};

BOOL CWinThread::CreateThread(DWORD dwCreateFlags, UINT nStackSize, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    if (m_hThread)
    {
        return FALSE;
    }
    // Held back until the object knows its handle: the thread may end and delete the object at once.
    unsigned id = 0;
    const auto handle = reinterpret_cast<HANDLE>(
        ::_beginthreadex(lpSecurityAttrs, nStackSize, &AfxThreadStart::Enter, this, CREATE_SUSPENDED, &id));
    if (!handle)
    {
        return FALSE;
    }
    m_hThread = handle;
    m_nThreadID = id;
    if (!(dwCreateFlags & CREATE_SUSPENDED))
    {
        ::ResumeThread(handle);
    }
    return TRUE;
}

namespace
{

/// Starts a thread whose object was just made. The object is deleted when that fails.
CWinThread* Start(std::unique_ptr<CWinThread> thread, int priority, UINT stackSize, DWORD flags,
                  LPSECURITY_ATTRIBUTES security)
{
    if (!thread || !thread->CreateThread(flags | CREATE_SUSPENDED, stackSize, security))
    {
        return nullptr;
    }
    CWinThread* started = thread.release(); // it deletes itself when its thread ends
    started->SetThreadPriority(priority);
    if (!(flags & CREATE_SUSPENDED))
    {
        started->ResumeThread();
    }
    return started;
}

} // namespace

CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam, int nPriority, UINT nStackSize,
                           DWORD dwCreateFlags, LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    if (!pfnThreadProc)
    {
        return nullptr;
    }
    return Start(std::unique_ptr<CWinThread>(new CWinThread(pfnThreadProc, pParam)), // the constructor is protected
                 nPriority, nStackSize, dwCreateFlags, lpSecurityAttrs);
}

CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority, UINT nStackSize, DWORD dwCreateFlags,
                           LPSECURITY_ATTRIBUTES lpSecurityAttrs)
{
    if (!pThreadClass || !pThreadClass->IsDerivedFrom(RUNTIME_CLASS(CWinThread)))
    {
        return nullptr;
    }
    return Start(std::unique_ptr<CWinThread>(static_cast<CWinThread*>(pThreadClass->CreateObject())), nPriority,
                 nStackSize, dwCreateFlags, lpSecurityAttrs);
}

void AfxEndThread(UINT nExitCode, BOOL bDelete)
{
    AfxThreadStart::Leave(bDelete);
    ::_endthreadex(nExitCode);
}
