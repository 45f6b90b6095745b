#include "framework/app/AppNames.h"
#include "framework/app/AppState.h"
#include "framework/include/afxres.h"
#include "framework/window/CWinApp.h"
#include "framework/window/CWnd.h"
#include "framework/window/MessageLoop.h"
#include "framework/window/ModuleState.h"
#include "framework/window/ThreadState.h"

/// Completes the application object at start-up.
struct AfxStartup
{
    static void SetHandles(CWinApp& app, HINSTANCE instance, LPTSTR commandLine, int showCommand)
    {
        app.m_hInstance = instance;
        app.m_lpCmdLine = commandLine;
        app.m_nCmdShow = showCommand;
        app.SetCurrentHandles();
    }
};

void CWinApp::SetCurrentHandles()
{
    const CString path = vorn::ModulePath(m_hInstance);
    const CString base = vorn::BaseName(path);
    if (!m_pszExeName)
    {
        m_pszExeName = vorn::CopyName(base);
    }
    if (!m_pszAppName)
    {
        CString title;
        m_pszAppName = vorn::CopyName(AfxLoadString(AFX_IDS_APP_TITLE, title) ? title : base);
    }
    if (!m_pszHelpFilePath)
    {
        const int dot = path.ReverseFind('.');
        m_pszHelpFilePath = vorn::CopyName((dot > path.ReverseFind('\\') ? path.Left(dot) : path) + ".HLP");
    }
    if (!m_pszProfileName)
    {
        m_pszProfileName = vorn::CopyName(m_pszRegistryKey ? CString(m_pszAppName) : base + ".INI");
    }
}

BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE, LPTSTR lpCmdLine, int nCmdShow)
{
    // The system's own boxes for missing disks and files only get in the way of ours.
    ::SetErrorMode(::SetErrorMode(0) | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    vorn::SetInstance(hInstance);
    vorn::CurrentThreadState().startedUp = true;
    if (CWinApp* app = AfxGetApp())
    {
        AfxStartup::SetHandles(*app, hInstance, lpCmdLine, nCmdShow);
    }
    return TRUE;
}

void AfxWinTerm()
{
    vorn::FreeTemporaryObjects();
    vorn::CurrentThreadState().startedUp = false;
}

namespace
{

int Live(CWinApp& app)
{
    if (!app.InitApplication())
    {
        return 1;
    }
    CWinThread* thread = AfxGetThread();
    if (thread->InitInstance())
    {
        return thread->Run();
    }
    if (thread->m_pMainWnd)
    {
        thread->m_pMainWnd->DestroyWindow();
    }
    return thread->ExitInstance();
}

} // namespace

int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow)
{
    CWinApp* app = AfxGetApp();
    if (!app || !AfxWinInit(hInstance, hPrevInstance, lpCmdLine, nCmdShow))
    {
        return 1;
    }
    const int status = Live(*app);
    AfxWinTerm();
    return status;
}

void AfxPostQuitMessage(int nExitCode)
{
    ::PostQuitMessage(nExitCode);
}

BOOL AfxPumpMessage()
{
    return vorn::PumpMessage();
}
