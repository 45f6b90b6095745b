#include "framework/include/afxwin.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <functional>
#include <string>

namespace
{

class BoxApp : public CWinApp
{
public:
    BoxApp() : CWinApp("Boxes")
    {
    }
    int DoMessageBox(LPCTSTR text, UINT type, UINT prompt) override
    {
        m_text = text;
        m_type = type;
        m_prompt = prompt;
        return IDRETRY;
    }
    CString m_text;
    UINT m_type = 0;
    UINT m_prompt = 0;
};

} // namespace

TEST(AppObject, HasItsNameWithoutAnyStartUp)
{
    const CWinApp app("Some Host");
    EXPECT_EQ(AfxGetApp(), &app);
    EXPECT_STREQ(app.m_pszAppName, "Some Host");
    EXPECT_STREQ(AfxGetAppName(), "Some Host");
    EXPECT_EQ(app.m_pszExeName, nullptr);
    EXPECT_EQ(app.m_nThreadID, ::GetCurrentThreadId());
    EXPECT_EQ(AfxGetThread(), &app);
}

TEST(AppObject, StandsForTheMainThread)
{
    CWinApp app("Host");
    EXPECT_EQ(app.m_nThreadID, ::GetCurrentThreadId());
    EXPECT_EQ(app.GetThreadPriority(), THREAD_PRIORITY_NORMAL);
    EXPECT_TRUE(app.SetThreadPriority(THREAD_PRIORITY_ABOVE_NORMAL));
    EXPECT_EQ(::GetThreadPriority(::GetCurrentThread()), THREAD_PRIORITY_ABOVE_NORMAL);
    EXPECT_TRUE(app.SetThreadPriority(THREAD_PRIORITY_NORMAL));
    EXPECT_FALSE(app.CreateThread()) << "its thread runs";
}

TEST(AppObject, WithoutNameIsCalledLikeTheProgram)
{
    const CWinApp app;
    EXPECT_EQ(app.m_pszAppName, nullptr);
    EXPECT_STREQ(AfxGetAppName(), "windows_framework_app_tests");
}

namespace
{
/// Notes what is asked of the hourglass.
class PatientApp : public CWinApp
{
public:
    PatientApp() : CWinApp("Patience")
    {
    }
    void DoWaitCursor(int code) override
    {
        m_codes += std::to_string(code) + " ";
    }
    std::string m_codes;
};

class PumpingApp : public CWinApp
{
public:
    PumpingApp() : CWinApp("Pump")
    {
    }
    using CWinThread::m_msgCur;
};
} // namespace

TEST(AppObject, ShowsTheHourglassThroughItsVirtualFunction)
{
    PatientApp app;
    {
        CWaitCursor wait;
        wait.Restore();
    }
    app.BeginWaitCursor();
    app.RestoreWaitCursor();
    app.EndWaitCursor();
    EXPECT_EQ("1 0 -1 1 0 -1 ", app.m_codes);
}

TEST(AppObject, LoadsTheSystemsCursorsAndIcons)
{
    const CWinApp app("Host");
    EXPECT_EQ(::LoadCursor(nullptr, IDC_CROSS), app.LoadStandardCursor(IDC_CROSS));
    EXPECT_EQ(::LoadIcon(nullptr, IDI_QUESTION), app.LoadStandardIcon(IDI_QUESTION));
    EXPECT_EQ(nullptr, app.LoadCursor(4711U)) << "nobody has it";
    EXPECT_EQ(nullptr, app.LoadIcon(4711U));
}

TEST(AppObject, PumpsOneMessageAtATimeUntilItIsToEnd)
{
    PumpingApp app;
    MSG former{};
    while (::PeekMessage(&former, nullptr, 0, 0, PM_REMOVE))
    {
        ::DispatchMessage(&former);
    }
    ::PostThreadMessage(::GetCurrentThreadId(), WM_APP + 7, 5, 6);
    EXPECT_TRUE(app.PumpMessage());
    EXPECT_EQ(static_cast<UINT>(WM_APP + 7), app.m_msgCur.message);
    EXPECT_EQ(5U, app.m_msgCur.wParam);
    ::PostQuitMessage(3);
    EXPECT_FALSE(app.PumpMessage());
    EXPECT_EQ(3U, app.m_msgCur.wParam);
}

TEST(AppObject, MayBeMissing)
{
    EXPECT_EQ(AfxGetApp(), nullptr);
    EXPECT_STREQ(AfxGetAppName(), "windows_framework_app_tests");
    EXPECT_EQ(AfxGetInstanceHandle(), ::GetModuleHandle(nullptr));
    EXPECT_EQ(AfxGetResourceHandle(), ::GetModuleHandle(nullptr));
}

TEST(AppObject, StandsInTheModuleThatIsNamed)
{
    const HINSTANCE framework = ::GetModuleHandle("HostFramework.dll");
    ASSERT_NE(nullptr, framework);
    AfxSetInstanceHandle(framework);
    EXPECT_EQ(framework, AfxGetInstanceHandle());
    EXPECT_EQ(framework, AfxGetResourceHandle()) << "unless another module is named for them";
    AfxSetResourceHandle(::GetModuleHandle("kernel32.dll"));
    EXPECT_EQ(::GetModuleHandle("kernel32.dll"), AfxGetResourceHandle());
    EXPECT_EQ(framework, AfxGetInstanceHandle());
    AfxSetResourceHandle(nullptr);
    AfxSetInstanceHandle(nullptr);
    EXPECT_EQ(::GetModuleHandle(nullptr), AfxGetInstanceHandle());
    EXPECT_EQ(::GetModuleHandle(nullptr), AfxGetResourceHandle());
}

TEST(AppObject, KeepsACopyOfItsName)
{
    char name[] = "Changing";
    const CWinApp app(name);
    name[0] = 'X';
    EXPECT_STREQ(AfxGetAppName(), "Changing");
}

TEST(AppObject, LetsHostsReplaceItsName)
{
    CWinApp app("Old");
    std::free(const_cast<char*>(app.m_pszAppName));
    app.m_pszAppName = ::_strdup("New");
    EXPECT_STREQ(AfxGetAppName(), "New");
}

TEST(AppObject, IsTheNewestOne)
{
    CWinApp first("First");
    {
        CWinApp second("Second");
        EXPECT_EQ(AfxGetApp(), &second);
    }
    EXPECT_EQ(AfxGetApp(), nullptr);
}

TEST(AppObject, IsCompletedByStartUp)
{
    CWinApp app;
    char line[] = "a b";
    ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, line, SW_SHOWNA));
    EXPECT_STREQ(app.m_pszExeName, "windows_framework_app_tests");
    EXPECT_STREQ(app.m_pszAppName, "windows_framework_app_tests") << "the program has no title in its string table";
    EXPECT_STREQ(app.m_pszProfileName, "windows_framework_app_tests.INI");
    EXPECT_EQ(app.m_lpCmdLine, line);
    EXPECT_EQ(app.m_nCmdShow, SW_SHOWNA);
    AfxWinTerm();
}

TEST(AppObject, ShowsMessagesThroughItsVirtualFunction)
{
    BoxApp app;
    EXPECT_EQ(AfxMessageBox("text", MB_RETRYCANCEL, 12), IDRETRY);
    EXPECT_EQ(app.m_text, "text");
    EXPECT_EQ(app.m_type, static_cast<UINT>(MB_RETRYCANCEL));
    EXPECT_EQ(app.m_prompt, 12U);
    EXPECT_EQ(AfxMessageBox(1002), IDRETRY);
    EXPECT_EQ(app.m_text, "program's own");
    EXPECT_EQ(app.m_prompt, 1002U) << "the text's number is the help context";
    AfxMessageBox(1002, MB_OK, 5);
    EXPECT_EQ(app.m_prompt, 5U);
}

namespace
{

/// Answers the next message box of this thread and tells what it said.
class BoxReader
{
public:
    explicit BoxReader(WPARAM answer) : m_answer(answer)
    {
        current = this;
        m_timer = ::SetTimer(nullptr, 0, 20, OnTimer);
    }
    BoxReader(const BoxReader&) = delete;
    BoxReader& operator=(const BoxReader&) = delete;
    ~BoxReader()
    {
        ::KillTimer(nullptr, m_timer);
        current = nullptr;
    }
    std::string title;
    std::string text;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        ::EnumThreadWindows(::GetCurrentThreadId(), OnWindow, 0);
    }
    static BOOL CALLBACK OnWindow(HWND window, LPARAM)
    {
        char name[16] = {};
        ::GetClassName(window, name, sizeof(name));
        if (std::strcmp(name, "#32770") != 0 || !::IsWindowVisible(window))
        {
            return TRUE;
        }
        char buffer[200] = {};
        ::GetWindowText(window, buffer, sizeof(buffer));
        current->title = buffer;
        ::GetDlgItemText(window, 0xFFFF, buffer, sizeof(buffer));
        current->text = buffer;
        ::PostMessage(window, WM_COMMAND, current->m_answer, 0);
        return FALSE;
    }
    static inline BoxReader* current = nullptr;
    WPARAM m_answer;
    UINT_PTR m_timer = 0;
};

} // namespace

TEST(AppObject, ShowsAMessageBoxUnderItsName)
{
    const CWinApp app("Title Here");
    const BoxReader reader(IDNO);
    EXPECT_EQ(AfxMessageBox("Is it so?", MB_YESNO), IDNO);
    EXPECT_EQ(reader.title, "Title Here");
    EXPECT_EQ(reader.text, "Is it so?");
}

TEST(AppObject, IsNotNeededForAMessageBox)
{
    const BoxReader reader(IDOK);
    EXPECT_EQ(AfxMessageBox(static_cast<LPCTSTR>(nullptr)), IDOK);
    EXPECT_EQ(reader.title, "windows_framework_app_tests");
    EXPECT_EQ(reader.text, "");
}

TEST(AppObject, ClosesTheMainWindowOnExit)
{
    class Main : public CWnd
    {
    public:
        int closes = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            closes += message == WM_CLOSE;
            return message == WM_CLOSE ? 0 : CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CWinApp app("Host");
    EXPECT_TRUE(app.OnCmdMsg(ID_APP_EXIT, CN_COMMAND, nullptr, nullptr)) << "harmless without main window";
    Main window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    app.m_pMainWnd = &window;
    EXPECT_TRUE(app.OnCmdMsg(ID_APP_EXIT, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ(window.closes, 1);
    app.m_pMainWnd = nullptr;
}

TEST(AppObject, NeverStartedIsNotToldToQuitByItsMainWindow)
{
    CWinApp app("Host");
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    app.m_pMainWnd = &window;
    window.DestroyWindow();
    EXPECT_EQ(app.m_pMainWnd, nullptr);
    MSG message;
    EXPECT_FALSE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE));
}

TEST(AppObject, RunEndsWithItsMainWindow)
{
    CWinApp app("Host");
    CWnd window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
    app.m_pMainWnd = &window;
    window.PostMessage(WM_CLOSE);
    EXPECT_EQ(app.Run(), 0);
    EXPECT_EQ(window.m_hWnd, nullptr);
}
