#pragma once

/// @file
/// A thread with, if it wants one, a message loop.
#include "framework/window/CCmdTarget.h"

class CException;
class CWnd;

/// Controlling function of a worker thread.
using AFX_THREADPROC = UINT(__cdecl*)(LPVOID);

/// One thread. The application object is the main thread's; further threads come from
/// AfxBeginThread. A user-interface thread overrides InitInstance; a worker has a function.
class HOSTFRAMEWORK_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread();
    ~CWinThread() override;

    /// Starts the thread of an object made by the caller.
    /// @param dwCreateFlags CREATE_SUSPENDED or 0
    /// @param nStackSize bytes, 0 for the creator's size
    /// @return FALSE when the thread could not start or its InitInstance environment failed
    BOOL CreateThread(DWORD dwCreateFlags = 0, UINT nStackSize = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);

    CWnd* m_pMainWnd;   ///< main window: its end ends the message loop
    CWnd* m_pActiveWnd; ///< main window of an in-place container; null here
    BOOL m_bAutoDelete; ///< whether the object deletes itself when its thread ends (TRUE at first)
    HANDLE m_hThread;   ///< valid while the thread runs, and until destruction unless it deletes itself
    DWORD m_nThreadID;

    int GetThreadPriority();
    BOOL SetThreadPriority(int nPriority);
    /// @return the previous suspend count, 0xFFFFFFFF on failure
    DWORD SuspendThread();
    DWORD ResumeThread();
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam);

    virtual BOOL InitInstance();
    /// Runs the message loop until WM_QUIT, then returns ExitInstance.
    virtual int Run();
    /// Called before a message is translated and dispatched; TRUE swallows it. Walks from the
    /// message's window up to the main window.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// Takes one message from the queue and handles it. FALSE on WM_QUIT.
    virtual BOOL PumpMessage();
    /// Idle work. Count 0 updates the user interface, count 1 frees temporary objects.
    /// @return whether to be called again with the next count before a message comes
    virtual BOOL OnIdle(LONG lCount);
    /// Whether a message may change what idle work shows (all but repeated mouse moves, paints
    /// and caret blinks).
    virtual BOOL IsIdleMessage(MSG* pMsg);
    virtual int ExitInstance();
    /// Called for an exception that no handler caught. Reports it.
    /// @return what the window procedure answers
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    /// Hook for messages of menus, message boxes and dialogs (code MSGF_...).
    virtual BOOL ProcessMessageFilter(int code, LPMSG lpMsg);
    /// m_pMainWnd.
    virtual CWnd* GetMainWnd();
    /// Deletes the object if m_bAutoDelete.
    virtual void Delete();

    const MSG& GetLastPumpedMessage() const
    {
        return m_msgCur;
    }

protected:
    friend struct AfxThreadStart;
    friend HOSTFRAMEWORK_API CWinThread* AfxBeginThread(AFX_THREADPROC, LPVOID, int, UINT, DWORD,
                                                        LPSECURITY_ATTRIBUTES);
    CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam);

    /// Dispatches a message without window through the message map.
    BOOL DispatchThreadMessage(MSG* pMsg);

    MSG m_msgCur;          ///< message being handled by PumpMessage
    CPoint m_ptCursorLast; ///< last mouse move seen by IsIdleMessage
    UINT m_nMsgLast;
    LPVOID m_pThreadParams;
    AFX_THREADPROC m_pfnThreadProc;

    DECLARE_MESSAGE_MAP()
};

/// Starts a worker thread. The object deletes itself unless its m_bAutoDelete is cleared while
/// it is still suspended.
/// @return null on failure
HOSTFRAMEWORK_API CWinThread* AfxBeginThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam,
                                             int nPriority = THREAD_PRIORITY_NORMAL, UINT nStackSize = 0,
                                             DWORD dwCreateFlags = 0, LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
/// Starts a user-interface thread of a class with dynamic creation.
HOSTFRAMEWORK_API CWinThread* AfxBeginThread(CRuntimeClass* pThreadClass, int nPriority = THREAD_PRIORITY_NORMAL,
                                             UINT nStackSize = 0, DWORD dwCreateFlags = 0,
                                             LPSECURITY_ATTRIBUTES lpSecurityAttrs = nullptr);
/// Ends the calling thread.
HOSTFRAMEWORK_API void AfxEndThread(UINT nExitCode, BOOL bDelete = TRUE);
/// The calling thread's object: its own, or on the main thread the application's; else null.
HOSTFRAMEWORK_API CWinThread* AfxGetThread();
/// The main window of the calling thread, or null.
HOSTFRAMEWORK_API CWnd* AfxGetMainWnd();
