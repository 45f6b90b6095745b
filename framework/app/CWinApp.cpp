#include "framework/window/CWinApp.h"

#include "framework/app/AppNames.h"
#include "framework/app/AppState.h"
#include "framework/core/Exception.h"
#include "framework/include/afxres.h"
#include "framework/window/CWnd.h"
#include "framework/window/ThreadState.h"

#include <cstdlib>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinApp, CWinThread)
ON_COMMAND(ID_APP_EXIT, &CWinApp::OnAppExit)
END_MESSAGE_MAP()

CWinApp::CWinApp(LPCTSTR lpszAppName)
    : m_hInstance(::GetModuleHandle(nullptr)), m_lpCmdLine(nullptr), m_nCmdShow(SW_SHOWNORMAL),
      m_pszAppName(vorn::CopyName(lpszAppName)), m_pszExeName(nullptr), m_pszHelpFilePath(nullptr),
      m_pszProfileName(nullptr), m_pszRegistryKey(nullptr)
{
    m_bAutoDelete = FALSE; // usually a static object
    m_nThreadID = ::GetCurrentThreadId();
    m_hThread = ::GetCurrentThread(); // stands for the thread without being a handle that must be closed
    vorn::CurrentThreadState().thread = this;
    vorn::SetApp(this);
}

CWinApp::~CWinApp()
{
    vorn::ForgetApp(this);
    for (LPCTSTR name : {m_pszAppName, m_pszExeName, m_pszHelpFilePath, m_pszProfileName, m_pszRegistryKey})
    {
        vorn::FreeName(name);
    }
}

BOOL CWinApp::InitApplication()
{
    return TRUE;
}

BOOL CWinApp::InitInstance()
{
    return TRUE;
}

int CWinApp::ExitInstance()
{
    return CWinThread::ExitInstance();
}

int CWinApp::Run()
{
    if (!m_pMainWnd)
    {
        AfxPostQuitMessage(0); // nothing could end the loop
    }
    return CWinThread::Run();
}

BOOL CWinApp::OnIdle(LONG lCount)
{
    return CWinThread::OnIdle(lCount);
}

LRESULT CWinApp::ProcessWndProcException(CException* e, const MSG* pMsg)
{
    const bool isCommand = pMsg->message == WM_COMMAND;
    if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) // there the user was told already
    {
        e->ReportError(MB_ICONEXCLAMATION | MB_SYSTEMMODAL,
                       isCommand ? AFX_IDP_COMMAND_FAILURE : AFX_IDP_INTERNAL_FAILURE);
    }
    return isCommand ? TRUE : CWinThread::ProcessWndProcException(e, pMsg);
}

BOOL CWinApp::SaveAllModified()
{
    return TRUE;
}

void CWinApp::CloseAllDocuments(BOOL)
{
}

void CWinApp::HideApplication()
{
    if (m_pMainWnd)
    {
        m_pMainWnd->ShowWindow(SW_HIDE);
        m_pMainWnd->ShowOwnedPopups(FALSE);
    }
}

void CWinApp::WinHelp(DWORD_PTR dwData, UINT nCmd)
{
    if (m_pMainWnd && m_pszHelpFilePath)
    {
        ::WinHelp(m_pMainWnd->GetSafeHwnd(), m_pszHelpFilePath, nCmd, dwData);
    }
}

void CWinApp::OnAppExit()
{
    if (m_pMainWnd)
    {
        m_pMainWnd->SendMessage(WM_CLOSE);
    }
}
