#include "tests/support/PumpUntil.h"
#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

#include <atomic>

using vorn::test::PumpUntil;

namespace
{

std::atomic<CWinThread*> seenThread = nullptr;
std::atomic<int> ran = 0;

UINT __cdecl Work(LPVOID parameter)
{
    seenThread = AfxGetThread();
    ran = *static_cast<int*>(parameter);
    return 21;
}

/// A thread with a window and a message loop.
class WindowThread : public CWinThread
{
    DECLARE_DYNCREATE(WindowThread)

public:
    ~WindowThread() override
    {
        gone = true;
    }
    BOOL InitInstance() override
    {
        CreatePopup(window);
        m_pMainWnd = &window;
        ready = window.m_hWnd;
        return TRUE;
    }
    int ExitInstance() override
    {
        exited = true;
        return CWinThread::ExitInstance();
    }
    CWnd window;
    static inline std::atomic<HWND> ready = nullptr;
    static inline std::atomic<bool> exited = false;
    static inline std::atomic<bool> gone = false;
    static inline std::atomic<int> posted = 0;

protected:
    afx_msg void OnPosted(WPARAM wParam, LPARAM)
    {
        posted = static_cast<int>(wParam);
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(WindowThread, CWinThread)

BEGIN_MESSAGE_MAP(WindowThread, CWinThread)
ON_THREAD_MESSAGE(WM_APP + 3, &WindowThread::OnPosted)
END_MESSAGE_MAP()

} // namespace

TEST(Threads, RunAWorkerFunction)
{
    int parameter = 17;
    CWinThread* thread = AfxBeginThread(Work, &parameter, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    EXPECT_EQ(ran, 0);
    EXPECT_EQ(thread->GetThreadPriority(), THREAD_PRIORITY_BELOW_NORMAL);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    ASSERT_EQ(::WaitForSingleObject(thread->m_hThread, 5000), WAIT_OBJECT_0);
    EXPECT_EQ(ran, 17);
    EXPECT_EQ(seenThread, thread);
    DWORD status = 0;
    ::GetExitCodeThread(thread->m_hThread, &status);
    EXPECT_EQ(status, 21U);
    delete thread;
}

TEST(Threads, RefuseANullFunctionAndAForeignClass)
{
    EXPECT_EQ(AfxBeginThread(static_cast<AFX_THREADPROC>(nullptr), nullptr), nullptr);
    EXPECT_EQ(AfxBeginThread(static_cast<CRuntimeClass*>(nullptr)), nullptr);
    EXPECT_EQ(AfxBeginThread(RUNTIME_CLASS(CWnd)), nullptr);
}

TEST(Threads, HaveAMessageLoopThatEndsWithTheMainWindow)
{
    CWinThread* thread = AfxBeginThread(RUNTIME_CLASS(WindowThread));
    ASSERT_NE(thread, nullptr);
    ASSERT_TRUE(PumpUntil(
        []
        {
            return WindowThread::ready != nullptr;
        }));
    const HWND window = WindowThread::ready;
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr) << "the other thread's objects are not this one's";
    thread->PostThreadMessage(WM_APP + 3, 33, 0);
    EXPECT_TRUE(PumpUntil(
        []
        {
            return WindowThread::posted == 33;
        }));
    ::PostMessage(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(PumpUntil(
        []
        {
            return WindowThread::gone.load();
        }));
    EXPECT_TRUE(WindowThread::exited);
    EXPECT_FALSE(::IsWindow(window));
}

TEST(Threads, KnowTheObjectOfTheMainThreadFromTheApplication)
{
    EXPECT_EQ(AfxGetThread(), nullptr);
    EXPECT_EQ(AfxGetMainWnd(), nullptr);
    {
        CWinApp app("App");
        EXPECT_EQ(AfxGetThread(), &app);
        EXPECT_EQ(AfxGetApp(), &app);
        CWnd window;
        app.m_pMainWnd = &window;
        EXPECT_EQ(AfxGetMainWnd(), &window);
    }
    EXPECT_EQ(AfxGetThread(), nullptr);
    EXPECT_EQ(AfxGetApp(), nullptr);
}

namespace
{

class LoopThread : public CWinThread
{
public:
    Events events;
    int quitAtIdle = 100;
    BOOL OnIdle(LONG count) override
    {
        events.push_back(With("idle", count));
        if (--quitAtIdle == 0)
        {
            ::PostQuitMessage(12);
        }
        return CWinThread::OnIdle(count);
    }
};

} // namespace

namespace
{

class AskedWindow : public CWnd
{
public:
    int asked = 0;
    BOOL PreTranslateMessage(MSG* message) override
    {
        asked += message->message == WM_APP;
        return CWnd::PreTranslateMessage(message);
    }
};

/// How often the main window is asked before a message of @p window is dispatched.
int TimesAsked(CWinThread& thread, AskedWindow& main, const CWnd& window)
{
    main.asked = 0;
    MSG message = {};
    message.hwnd = window.m_hWnd;
    message.message = WM_APP;
    EXPECT_FALSE(thread.PreTranslateMessage(&message));
    return main.asked;
}

} // namespace

TEST(Threads, AskTheMainWindowOnceAboutEachMessage)
{
    CWinApp app("App");
    AskedWindow main;
    CWnd child;
    CWnd owned;
    CWnd ownedChild;
    CWnd other;
    ASSERT_TRUE(CreatePopup(main));
    ASSERT_TRUE(CreateChild(child, main));
    ASSERT_TRUE(CreatePopup(owned, main.m_hWnd));
    ASSERT_TRUE(CreateChild(ownedChild, owned));
    ASSERT_TRUE(CreatePopup(other));
    app.m_pMainWnd = &main;
    EXPECT_EQ(TimesAsked(app, main, main), 1);
    EXPECT_EQ(TimesAsked(app, main, child), 1);
    EXPECT_EQ(TimesAsked(app, main, owned), 1) << "on the way up the owners";
    EXPECT_EQ(TimesAsked(app, main, ownedChild), 1);
    EXPECT_EQ(TimesAsked(app, main, other), 1) << "last, for its accelerators";
    app.m_pMainWnd = nullptr;
}

TEST(Threads, CountIdleStepsUntilNobodyWantsMore)
{
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
    {
    }
    LoopThread thread;
    thread.quitAtIdle = 2;
    ::PostThreadMessage(::GetCurrentThreadId(), WM_APP, 0, 0);
    EXPECT_EQ(thread.Run(), 12) << "the exit status is WM_QUIT's";
    EXPECT_EQ(thread.events, (Events{"idle 0", "idle 1"}));
}

TEST(Threads, TellMessagesThatCallForIdleWork)
{
    LoopThread thread;
    MSG message = {};
    message.message = WM_KEYDOWN;
    EXPECT_TRUE(thread.IsIdleMessage(&message));
    message.message = WM_PAINT;
    EXPECT_FALSE(thread.IsIdleMessage(&message));
    message.message = 0x0118;
    EXPECT_FALSE(thread.IsIdleMessage(&message));
    message.message = WM_MOUSEMOVE;
    message.pt = {5, 5};
    EXPECT_TRUE(thread.IsIdleMessage(&message));
    EXPECT_FALSE(thread.IsIdleMessage(&message)) << "the mouse did not move";
    message.pt = {6, 5};
    EXPECT_TRUE(thread.IsIdleMessage(&message));
    message.message = WM_NCMOUSEMOVE;
    EXPECT_TRUE(thread.IsIdleMessage(&message));
}

TEST(Threads, UpdateTheUserInterfaceOfTheMainWindowWhenIdle)
{
    class Updated : public CWnd
    {
    public:
        int updates = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            updates += message == WM_IDLEUPDATECMDUI && wParam == TRUE;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    CWinApp app("App");
    Updated main;
    Updated child;
    Updated stranger;
    ASSERT_TRUE(CreatePopup(main));
    ASSERT_TRUE(CreateChild(child, main));
    ASSERT_TRUE(CreatePopup(stranger));
    app.m_pMainWnd = &main;
    app.OnIdle(0);
    EXPECT_EQ(main.updates, 0) << "not while it is hidden";
    main.ShowWindow(SW_SHOWNOACTIVATE);
    stranger.ShowWindow(SW_SHOWNOACTIVATE);
    app.OnIdle(0);
    EXPECT_EQ(main.updates, 1);
    EXPECT_EQ(child.updates, 1);
    EXPECT_EQ(stranger.updates, 0);
    app.OnIdle(1);
    EXPECT_EQ(main.updates, 1);
    app.m_pMainWnd = nullptr;
}
