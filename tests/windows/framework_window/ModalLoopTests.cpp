#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

constexpr UINT kEnd = WM_APP + 20; // ends the loop with wParam

class Modal : public CWnd
{
public:
    Events events;
    int idleSteps = 0;
    int endAtIdle = -1; // which idle step ends the loop
    bool wantsMoreIdle = false;

    BOOL PreTranslateMessage(MSG* message) override
    {
        if (message->message == WM_APP + 30)
        {
            events.push_back("pretranslate");
            return message->wParam != 0;
        }
        return CWnd::PreTranslateMessage(message);
    }

protected:
    afx_msg LRESULT OnEnd(WPARAM result, LPARAM)
    {
        EndModalLoop(static_cast<int>(result));
        return 0;
    }
    afx_msg LRESULT OnKickIdle(WPARAM kind, LPARAM count)
    {
        EXPECT_EQ(kind, static_cast<WPARAM>(MSGF_DIALOGBOX));
        events.push_back(With("idle", count));
        if (idleSteps++ == endAtIdle)
        {
            EndModalLoop(IDOK);
        }
        return wantsMoreIdle && count < 2;
    }
    afx_msg LRESULT OnProbe(WPARAM, LPARAM)
    {
        events.push_back("probe");
        return 0;
    }
    afx_msg void OnShowWindow(BOOL show, UINT)
    {
        events.push_back(show ? "show" : "hide");
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Modal, CWnd)
ON_MESSAGE(kEnd, &Modal::OnEnd)
ON_MESSAGE(WM_KICKIDLE, &Modal::OnKickIdle)
ON_MESSAGE(WM_APP + 30, &Modal::OnProbe)
ON_WM_SHOWWINDOW()
END_MESSAGE_MAP()

class Owner : public CWnd
{
public:
    int idles = 0;

protected:
    afx_msg void OnEnterIdle(UINT why, CWnd* who)
    {
        EXPECT_EQ(why, static_cast<UINT>(MSGF_DIALOGBOX));
        EXPECT_NE(who, nullptr);
        ++idles;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Owner, CWnd)
ON_WM_ENTERIDLE()
END_MESSAGE_MAP()

class ModalLoops : public testing::Test
{
protected:
    ModalLoops()
    {
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        {
        }
        CreatePopup(modal);
        modal.events.clear();
    }
    Modal modal;
};

} // namespace

TEST_F(ModalLoops, EndWithTheResultGiven)
{
    modal.PostMessage(kEnd, 17);
    EXPECT_EQ(modal.RunModalLoop(), 17);
    EXPECT_TRUE(::IsWindow(modal.m_hWnd)) << "the loop does not destroy its window";
    modal.PostMessage(kEnd, 18);
    EXPECT_EQ(modal.RunModalLoop(), 18) << "and may run again";
}

TEST_F(ModalLoops, AskPreTranslateMessageBeforeDispatching)
{
    modal.PostMessage(WM_APP + 30, 1);
    modal.PostMessage(WM_APP + 30, 0);
    modal.PostMessage(kEnd);
    modal.RunModalLoop(MLF_NOKICKIDLE);
    EXPECT_EQ(modal.events, (Events{"pretranslate", "pretranslate", "probe"}));
}

TEST_F(ModalLoops, AskPreTranslateMessageOfParentsToo)
{
    CWnd child;
    ASSERT_TRUE(CreateChild(child, modal));
    child.PostMessage(WM_APP + 30, 1);
    modal.PostMessage(kEnd);
    modal.RunModalLoop(MLF_NOKICKIDLE);
    EXPECT_EQ(modal.events, Events{"pretranslate"});
}

TEST_F(ModalLoops, DoIdleWorkWhenTheQueueIsEmpty)
{
    modal.endAtIdle = 0;
    EXPECT_EQ(modal.RunModalLoop(), IDOK);
    EXPECT_EQ(modal.events, Events{"idle 0"});
}

TEST_F(ModalLoops, CountIdleStepsWhileTheWindowWantsMore)
{
    modal.wantsMoreIdle = true;
    modal.endAtIdle = 2;
    EXPECT_EQ(modal.RunModalLoop(), IDOK);
    EXPECT_EQ(modal.events, (Events{"idle 0", "idle 1", "idle 2"}));
}

TEST_F(ModalLoops, StartIdleWorkAnewAfterAMessage)
{
    class Poster : public Modal
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_KICKIDLE && idleSteps == 0)
            {
                PostMessage(WM_APP + 40);
            }
            return Modal::WindowProc(message, wParam, lParam);
        }
    };
    Poster poster;
    ASSERT_TRUE(CreatePopup(poster));
    poster.events.clear();
    poster.endAtIdle = 1;
    EXPECT_EQ(poster.RunModalLoop(), IDOK);
    EXPECT_EQ(poster.events, (Events{"idle 0", "idle 0"}));
}

TEST_F(ModalLoops, SendEnterIdleToTheOwnerUnlessTold)
{
    Owner owner;
    ASSERT_TRUE(CreatePopup(owner));
    Modal owned;
    ASSERT_TRUE(CreatePopup(owned, owner.m_hWnd));
    owned.endAtIdle = 0;
    owned.RunModalLoop();
    EXPECT_EQ(owner.idles, 1);
    owned.endAtIdle = 1;
    owned.RunModalLoop(MLF_NOIDLEMSG);
    EXPECT_EQ(owner.idles, 1);
}

TEST_F(ModalLoops, ShowTheWindowAtIdleWhenAsked)
{
    modal.endAtIdle = 0;
    EXPECT_FALSE(modal.IsWindowVisible());
    modal.RunModalLoop(MLF_SHOWONIDLE);
    EXPECT_TRUE(modal.IsWindowVisible());
    EXPECT_EQ(modal.events, (Events{"show", "idle 0"}));
}

TEST_F(ModalLoops, Nest)
{
    class Outer : public Modal
    {
    public:
        Modal inner;
        int innerResult = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP + 50)
            {
                CreatePopup(inner, m_hWnd);
                PostMessage(WM_APP + 30);
                inner.PostMessage(kEnd, 5);
                innerResult = inner.RunModalLoop();
                inner.DestroyWindow();
                PostMessage(kEnd, 6);
                return 0;
            }
            return Modal::WindowProc(message, wParam, lParam);
        }
    };
    Outer outer;
    ASSERT_TRUE(CreatePopup(outer));
    outer.PostMessage(WM_APP + 50);
    EXPECT_EQ(outer.RunModalLoop(MLF_NOKICKIDLE), 6);
    EXPECT_EQ(outer.innerResult, 5);
    EXPECT_EQ(outer.events.at(0), "pretranslate") << "the inner loop serves the outer window";
}

TEST_F(ModalLoops, HandQuitOnWithItsStatus)
{
    ::PostQuitMessage(44);
    EXPECT_EQ(modal.RunModalLoop(), -1);
    MSG message = {};
    ASSERT_TRUE(::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE));
    EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
    EXPECT_EQ(message.wParam, 44U);
}

TEST_F(ModalLoops, MayRunAgainAfterQuit)
{
    ::PostQuitMessage(1);
    EXPECT_EQ(modal.RunModalLoop(), -1);
    MSG message = {};
    ASSERT_TRUE(::PeekMessage(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    modal.PostMessage(kEnd, 19);
    EXPECT_EQ(modal.RunModalLoop(), 19);
}

TEST_F(ModalLoops, MayRunAgainAfterAnException)
{
    class Thrower : public Modal
    {
    public:
        bool throws = true;
        BOOL PreTranslateMessage(MSG* message) override
        {
            if (throws && message->message == WM_APP)
            {
                throw 5;
            }
            return Modal::PreTranslateMessage(message);
        }
    };
    Thrower thrower;
    ASSERT_TRUE(CreatePopup(thrower));
    thrower.PostMessage(WM_APP);
    EXPECT_THROW(thrower.RunModalLoop(), int);
    thrower.throws = false;
    thrower.PostMessage(kEnd, 20);
    EXPECT_EQ(thrower.RunModalLoop(), 20);
}

TEST_F(ModalLoops, KeepTheResultWhenTheWindowIsDestroyedAfterTheEnd)
{
    class Ender : public Modal
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
            {
                EndModalLoop(21);
                DestroyWindow();
                return 0;
            }
            return Modal::WindowProc(message, wParam, lParam);
        }
    };
    Ender ender;
    ASSERT_TRUE(CreatePopup(ender));
    ender.PostMessage(WM_APP);
    EXPECT_EQ(ender.RunModalLoop(), 21);
    EXPECT_EQ(ender.m_hWnd, nullptr);
}

namespace
{

/// Waits until the loop of another thread is idle, then has its window closed by a sent message.
DWORD WINAPI CloseByMessage(LPVOID window)
{
    ::SendMessage(static_cast<HWND>(window), WM_CLOSE, 0, 0);
    return 0;
}

} // namespace

TEST_F(ModalLoops, EndWhenAMessageSentByAnotherThreadDestroysTheWindow)
{
    class Starter : public Modal
    {
    public:
        HANDLE closer = nullptr;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_KICKIDLE && !closer)
            {
                closer = ::CreateThread(nullptr, 0, CloseByMessage, m_hWnd, 0, nullptr);
                return FALSE; // the loop goes on to wait for messages
            }
            return Modal::WindowProc(message, wParam, lParam);
        }
    };
    Starter starter;
    ASSERT_TRUE(CreatePopup(starter));
    // A loop that does not wake is ended after a while, with another result.
    const UINT_PTR timer = ::SetTimer(modal.m_hWnd, 1, 5000, nullptr);
    const DWORD began = ::GetTickCount();
    EXPECT_EQ(starter.RunModalLoop(), -1);
    EXPECT_LT(::GetTickCount() - began, 4000U) << "the loop must not wait for an unrelated message";
    ::KillTimer(modal.m_hWnd, timer);
    ::WaitForSingleObject(starter.closer, INFINITE);
    ::CloseHandle(starter.closer);
}

TEST_F(ModalLoops, EndWhenTheirWindowIsDestroyed)
{
    modal.PostMessage(WM_CLOSE);
    EXPECT_EQ(modal.RunModalLoop(), -1);
    EXPECT_EQ(modal.m_hWnd, nullptr);
}

TEST_F(ModalLoops, EndWhenTheirObjectIsDeleted)
{
    class SelfDeleting : public Modal
    {
        void PostNcDestroy() override
        {
            delete this;
        }
    };
    auto* window = new SelfDeleting;
    ASSERT_TRUE(CreatePopup(*window));
    window->PostMessage(WM_CLOSE);
    EXPECT_EQ(window->RunModalLoop(), -1);

    auto object = std::make_unique<Modal>();
    ASSERT_TRUE(CreatePopup(*object));
    class Killer : public CWnd
    {
    public:
        std::unique_ptr<Modal>* victim = nullptr;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
            {
                victim->reset();
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Killer killer;
    ASSERT_TRUE(CreatePopup(killer));
    killer.victim = &object;
    killer.PostMessage(WM_APP);
    EXPECT_EQ(object->RunModalLoop(), -1);
    EXPECT_EQ(object, nullptr);
}

TEST_F(ModalLoops, EndWhenTheObjectIsDeletedAsItIsShown)
{
    class EndsWhenShown : public Modal
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_SHOWWINDOW && wParam)
            {
                delete this;
                return 0;
            }
            return Modal::WindowProc(message, wParam, lParam);
        }
    };
    auto* window = new EndsWhenShown;
    ASSERT_TRUE(CreatePopup(*window));
    EXPECT_EQ(window->RunModalLoop(MLF_SHOWONIDLE), -1);
}

TEST_F(ModalLoops, RefuseToRunWithoutWindowOrTwice)
{
    Modal none;
    EXPECT_EQ(none.RunModalLoop(), -1);
    class Twice : public Modal
    {
    public:
        int second = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP)
            {
                second = RunModalLoop();
                EndModalLoop(3);
            }
            return Modal::WindowProc(message, wParam, lParam);
        }
    };
    Twice twice;
    ASSERT_TRUE(CreatePopup(twice));
    twice.PostMessage(WM_APP);
    EXPECT_EQ(twice.RunModalLoop(), 3);
    EXPECT_EQ(twice.second, -1);
}

TEST_F(ModalLoops, RunWithAnApplicationThatWasNeverStarted)
{
    class App : public CWinApp
    {
    public:
        App() : CWinApp("Host")
        {
        }
        int seen = 0;
        BOOL PreTranslateMessage(MSG* message) override
        {
            seen += message->message == kEnd;
            return CWinApp::PreTranslateMessage(message);
        }
    };
    App app;
    modal.PostMessage(kEnd, 9);
    EXPECT_EQ(modal.RunModalLoop(), 9);
    EXPECT_EQ(app.seen, 1);
}
