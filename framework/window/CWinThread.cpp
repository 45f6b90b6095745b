#include "framework/window/CWinThread.h"

#include "framework/window/CWinApp.h"
#include "framework/window/CWnd.h"
#include "framework/window/MessageLookup.h"
#include "framework/window/ThreadState.h"
#include "framework/window/UncaughtException.h"

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

CWinThread::CWinThread() : CWinThread(nullptr, nullptr)
{
}

CWinThread::CWinThread(AFX_THREADPROC pfnThreadProc, LPVOID pParam)
    : m_pMainWnd(nullptr), m_pActiveWnd(nullptr), m_bAutoDelete(TRUE), m_hThread(nullptr), m_nThreadID(0), m_msgCur(),
      m_ptCursorLast(0, 0), m_nMsgLast(WM_NULL), m_pThreadParams(pParam), m_pfnThreadProc(pfnThreadProc)
{
}

CWinThread::~CWinThread()
{
    vorn::ThreadState& state = vorn::CurrentThreadState();
    if (state.thread == this)
    {
        state.thread = nullptr;
    }
    if (m_hThread)
    {
        ::CloseHandle(m_hThread);
    }
}

CWinThread* AfxGetThread()
{
    return vorn::CurrentThreadState().thread;
}

CWnd* AfxGetMainWnd()
{
    CWinThread* thread = AfxGetThread();
    return thread ? thread->GetMainWnd() : nullptr;
}

int CWinThread::GetThreadPriority()
{
    return ::GetThreadPriority(m_hThread);
}

BOOL CWinThread::SetThreadPriority(int nPriority)
{
    return ::SetThreadPriority(m_hThread, nPriority);
}

DWORD CWinThread::SuspendThread()
{
    return ::SuspendThread(m_hThread);
}

DWORD CWinThread::ResumeThread()
{
    return ::ResumeThread(m_hThread);
}

BOOL CWinThread::PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::PostThreadMessage(m_nThreadID, message, wParam, lParam);
}

BOOL CWinThread::InitInstance()
{
    return FALSE; // a user-interface thread has to say what it does
}

int CWinThread::ExitInstance()
{
    return static_cast<int>(m_msgCur.wParam);
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd;
}

void CWinThread::Delete()
{
    if (m_bAutoDelete)
    {
        delete this; // the object owns itself, as its interface says
    }
}

LRESULT CWinThread::ProcessWndProcException(CException*, const MSG* pMsg)
{
    return vorn::DefaultAfterException(*pMsg);
}

BOOL CWinThread::ProcessMessageFilter(int, LPMSG)
{
    return FALSE;
}

namespace
{

/// Whether the way from a window up its parents and owners comes by another window.
bool LeadsTo(HWND window, HWND other)
{
    while (window && window != other)
    {
        window = ::GetParent(window);
    }
    return window != nullptr;
}

} // namespace

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    if (!pMsg->hwnd && DispatchThreadMessage(pMsg))
    {
        return TRUE;
    }
    CWnd* mainWindow = GetMainWnd();
    const HWND main = mainWindow->GetSafeHwnd();
    const bool walkEndsThere = LeadsTo(pMsg->hwnd, main);
    if (CWnd::WalkPreTranslateTree(main, pMsg))
    {
        return TRUE;
    }
    // Messages of other top windows (modeless dialogs) may be the main window's accelerators.
    if (main && pMsg->hwnd && !walkEndsThere && CWnd::FromHandlePermanent(main) == mainWindow)
    {
        return mainWindow->PreTranslateMessage(pMsg);
    }
    return FALSE;
}

BOOL CWinThread::DispatchThreadMessage(MSG* pMsg)
{
    const AFX_MSGMAP_ENTRY* entry = vorn::FindMessageEntry(GetMessageMap(), pMsg->message);
    if (!entry)
    {
        return FALSE;
    }
    AfxMessageCall call;
    call.message = pMsg->message;
    call.wParam = pMsg->wParam;
    call.lParam = pMsg->lParam;
    entry->pfn(this, call);
    return TRUE;
}
