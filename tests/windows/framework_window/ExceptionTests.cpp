#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>

namespace
{

class Throwing : public CWnd
{
public:
    std::function<void()> action;

protected:
    afx_msg LRESULT OnThrow(WPARAM, LPARAM)
    {
        action();
        return 5;
    }
    afx_msg void OnPaint()
    {
        action();
    }
    afx_msg void OnCommandThrow()
    {
        action();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Throwing, CWnd)
ON_MESSAGE(WM_APP, &Throwing::OnThrow)
ON_WM_PAINT()
ON_COMMAND(50, &Throwing::OnCommandThrow)
END_MESSAGE_MAP()

/// Hears of exceptions instead of showing them.
class App : public CWinApp
{
public:
    App() : CWinApp("Test")
    {
    }
    Events events;
    LRESULT answer = 0;
    bool callsBase = false;
    int boxes = 0;

    LRESULT ProcessWndProcException(CException* exception, const MSG* message) override
    {
        char text[80] = {};
        exception->GetErrorMessage(text, sizeof(text));
        events.push_back(With(exception->GetRuntimeClass()->m_lpszClassName, message->message) + ":" + text);
        return callsBase ? CWinApp::ProcessWndProcException(exception, message) : answer;
    }
    int DoMessageBox(LPCTSTR text, UINT, UINT) override
    {
        ++boxes;
        events.push_back(text);
        return IDOK;
    }
};

class Exceptions : public testing::Test
{
protected:
    Exceptions()
    {
        CreatePopup(window);
    }
    App app;
    Throwing window;
};

} // namespace

TEST_F(Exceptions, OfTheFrameworkReachTheApplication)
{
    window.action = []
    {
        AfxThrowNotSupportedException();
    };
    app.answer = 77;
    EXPECT_EQ(window.SendMessage(WM_APP), 77);
    ASSERT_EQ(app.events.size(), 1U);
    EXPECT_EQ(app.events[0].rfind("CNotSupportedException 32768:", 0), 0U) << app.events[0];
}

TEST_F(Exceptions, OfTheStandardLibraryReachTheApplicationWithTheirText)
{
    window.action = []
    {
        throw std::runtime_error("out of order");
    };
    EXPECT_EQ(window.SendMessage(WM_APP), 0);
    EXPECT_EQ(app.events, Events{"CException 32768:out of order"});
}

TEST_F(Exceptions, OfAnyOtherTypeReachTheApplication)
{
    window.action = []
    {
        throw 3;
    };
    EXPECT_EQ(window.SendMessage(WM_APP), 0);
    EXPECT_EQ(app.events, Events{"CException 32768:"});
}

TEST_F(Exceptions, LeaveTheCurrentMessageInOrder)
{
    class Outer : public CWnd
    {
    public:
        Throwing* inner = nullptr;
        UINT after = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_APP + 1)
            {
                inner->SendMessage(WM_APP);
                after = GetCurrentMessage()->message;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    window.action = []
    {
        AfxThrowUserException();
    };
    Outer outer;
    ASSERT_TRUE(CreatePopup(outer));
    outer.inner = &window;
    outer.SendMessage(WM_APP + 1);
    EXPECT_EQ(outer.after, static_cast<UINT>(WM_APP + 1));
}

TEST_F(Exceptions, InPaintingAreNotRepeatedForEver)
{
    int paints = 0;
    window.action = [&]
    {
        ++paints;
        AfxThrowResourceException();
    };
    app.callsBase = true;
    window.ShowWindow(SW_SHOWNOACTIVATE);
    window.UpdateWindow();
    paints = 0;
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_EQ(paints, 1);
    EXPECT_FALSE(window.GetUpdateRect(nullptr)) << "the window counts as painted";
}

TEST_F(Exceptions, OfCommandsAreToldAsFailedCommands)
{
    window.action = []
    {
        AfxThrowMemoryException();
    };
    app.callsBase = true;
    EXPECT_EQ(window.SendMessage(WM_COMMAND, 50), TRUE);
    EXPECT_EQ(app.boxes, 1);
}

TEST_F(Exceptions, WithoutDescriptionGetTheStandardText)
{
    window.action = []
    {
        throw 3;
    };
    app.callsBase = true;
    window.SendMessage(WM_APP);
    EXPECT_EQ(app.events.at(1), "An internal error occurred in the application.");
    window.SendMessage(WM_COMMAND, 50);
    EXPECT_EQ(app.events.at(3), "The command could not be carried out.");
}

TEST_F(Exceptions, OfTheUserAreNotShownAgain)
{
    window.action = []
    {
        AfxThrowUserException();
    };
    app.callsBase = true;
    window.SendMessage(WM_APP);
    EXPECT_EQ(app.boxes, 0);
}

TEST(ExceptionsWithoutApplication, EndInTheWindowProcedure)
{
    ASSERT_EQ(AfxGetApp(), nullptr);
    Throwing window;
    ASSERT_TRUE(CreatePopup(window));
    window.action = []
    {
        throw std::runtime_error("nobody listens");
    };
    EXPECT_EQ(window.SendMessage(WM_APP), 0);
    window.action = [] {};
    EXPECT_EQ(window.SendMessage(WM_APP), 5);
}
