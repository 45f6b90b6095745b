#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

#include <thread>

namespace
{

constexpr UINT kProbe = WM_APP + 7;

Events events;
WNDPROC innerBefore = nullptr;

LRESULT CALLBACK PlainProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == kProbe)
    {
        events.push_back("plain");
        return 42;
    }
    return ::DefWindowProc(window, message, wParam, lParam);
}

LRESULT CALLBACK ForeignProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == kProbe)
    {
        events.push_back("foreign");
    }
    return ::CallWindowProc(innerBefore, window, message, wParam, lParam);
}

class Listener : public CWnd
{
public:
    explicit Listener(std::string name = "object", bool takes = false) : m_name(std::move(name)), m_takes(takes)
    {
    }
    int preSubclass = 0;

protected:
    void PreSubclassWindow() override
    {
        ++preSubclass;
        EXPECT_NE(m_hWnd, nullptr);
    }
    afx_msg LRESULT OnProbe(WPARAM, LPARAM)
    {
        events.push_back(m_name);
        return m_takes ? 7 : Default();
    }
    DECLARE_MESSAGE_MAP()

private:
    std::string m_name;
    bool m_takes;
};

BEGIN_MESSAGE_MAP(Listener, CWnd)
ON_MESSAGE(kProbe, &Listener::OnProbe)
END_MESSAGE_MAP()

/// Puts the foreign procedure before whatever the window has.
void SubclassForeign(HWND window)
{
    innerBefore = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ForeignProcedure)));
}

class Subclassing : public testing::Test
{
protected:
    Subclassing() : m_class("PlainSubclassed", PlainProcedure), window(m_class.Create())
    {
        events.clear();
    }
    ~Subclassing() override
    {
        if (::IsWindow(window))
        {
            ::DestroyWindow(window);
        }
    }
    LRESULT Probe() const
    {
        events.clear();
        return ::SendMessage(window, kProbe, 0, 0);
    }
    PlainClass m_class;
    HWND window;
};

} // namespace

TEST_F(Subclassing, PutsTheObjectBeforeTheWindow)
{
    Listener object;
    ASSERT_TRUE(object.SubclassWindow(window));
    EXPECT_EQ(object.preSubclass, 1);
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, (Events{"object", "plain"}));
    object.UnsubclassWindow();
}

TEST_F(Subclassing, LetsTheObjectKeepAMessageForItself)
{
    Listener object("object", true);
    ASSERT_TRUE(object.SubclassWindow(window));
    EXPECT_EQ(Probe(), 7);
    EXPECT_EQ(events, Events{"object"});
    object.UnsubclassWindow();
}

TEST_F(Subclassing, EndsWithUnsubclass)
{
    Listener object;
    ASSERT_TRUE(object.SubclassWindow(window));
    EXPECT_EQ(object.UnsubclassWindow(), window);
    EXPECT_EQ(object.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    EXPECT_EQ(reinterpret_cast<WNDPROC>(::GetWindowLongPtr(window, GWLP_WNDPROC)), &PlainProcedure);
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, Events{"plain"});
}

TEST_F(Subclassing, RunsBeforeAnEarlierForeignSubclass)
{
    SubclassForeign(window);
    Listener object;
    ASSERT_TRUE(object.SubclassWindow(window));
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, (Events{"object", "foreign", "plain"}));
    object.UnsubclassWindow();
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, (Events{"foreign", "plain"}));
}

TEST_F(Subclassing, RunsAfterALaterForeignSubclassAndMayGoBeforeIt)
{
    Listener object;
    ASSERT_TRUE(object.SubclassWindow(window));
    SubclassForeign(window);
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, (Events{"foreign", "object", "plain"}));
    object.UnsubclassWindow();
    EXPECT_EQ(Probe(), 42) << "the foreign procedure still stands before ours: the chain must hold";
    EXPECT_EQ(events, (Events{"foreign", "plain"}));
}

TEST_F(Subclassing, KeepsTheChainWhenTheObjectIsDetached)
{
    Listener object;
    ASSERT_TRUE(object.SubclassWindow(window));
    EXPECT_EQ(object.Detach(), window);
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, Events{"plain"});
}

TEST_F(Subclassing, GoesOnWhenAnotherObjectIsAttached)
{
    Listener first("first");
    Listener second("second");
    ASSERT_TRUE(first.SubclassWindow(window));
    first.Detach();
    ASSERT_TRUE(second.Attach(window));
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, (Events{"second", "plain"}));
    second.UnsubclassWindow();
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, Events{"plain"});
}

TEST_F(Subclassing, RefusesAWindowThatHasAnObject)
{
    Listener first("first");
    Listener second("second");
    ASSERT_TRUE(first.SubclassWindow(window));
    EXPECT_FALSE(second.SubclassWindow(window));
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_FALSE(second.Attach(window));
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, (Events{"first", "plain"}));
    first.UnsubclassWindow();
}

TEST_F(Subclassing, RefusesWhatIsNoWindow)
{
    Listener object;
    EXPECT_FALSE(object.SubclassWindow(nullptr));
    EXPECT_FALSE(object.SubclassWindow(reinterpret_cast<HWND>(0x1234567)));
    EXPECT_EQ(object.UnsubclassWindow(), nullptr);
    EXPECT_EQ(object.preSubclass, 0);
}

TEST_F(Subclassing, LetsAnExceptionOfThePreparationOut)
{
    class Unprepared : public CWnd
    {
        void PreSubclassWindow() override
        {
            AfxThrowResourceException();
        }
    };
    Unprepared object;
    bool thrown = false;
    try
    {
        object.SubclassWindow(window);
    }
    catch (CResourceException* exception)
    {
        exception->Delete();
        thrown = true;
    }
    EXPECT_TRUE(thrown);
    EXPECT_EQ(object.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window), nullptr);
    EXPECT_EQ(Probe(), 42);
}

TEST_F(Subclassing, RefusesAWindowOfAnotherThread)
{
    BOOL subclassed = TRUE;
    std::thread other(
        [&]
        {
            Listener object;
            subclassed = object.SubclassWindow(window);
        });
    other.join();
    EXPECT_FALSE(subclassed);
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, Events{"plain"});
}

TEST_F(Subclassing, AttachAloneHearsNoMessages)
{
    Listener object;
    ASSERT_TRUE(object.Attach(window));
    EXPECT_EQ(Probe(), 42);
    EXPECT_EQ(events, Events{"plain"});
    EXPECT_EQ(object.preSubclass, 0);
    object.Detach();
}

TEST_F(Subclassing, TakesADialogItemByNumber)
{
    const HWND item = m_class.Create(window, 12);
    Listener parent("parent");
    Listener object;
    ASSERT_TRUE(parent.Attach(window));
    EXPECT_FALSE(object.SubclassDlgItem(13, &parent));
    EXPECT_FALSE(object.SubclassDlgItem(12, nullptr));
    ASSERT_TRUE(object.SubclassDlgItem(12, &parent));
    EXPECT_EQ(object.m_hWnd, item);
    EXPECT_EQ(::SendMessage(item, kProbe, 0, 0), 42);
    EXPECT_EQ(events, (Events{"object", "plain"}));
    object.UnsubclassWindow();
    parent.Detach();
}

TEST_F(Subclassing, OfAWindowThatEndsEndsTheObject)
{
    class Ending : public Listener
    {
    public:
        int ends = 0;
        void PostNcDestroy() override
        {
            ++ends;
        }
    };
    Ending object;
    ASSERT_TRUE(object.SubclassWindow(window));
    ::DestroyWindow(window);
    EXPECT_EQ(object.ends, 1);
    EXPECT_EQ(object.m_hWnd, nullptr);
}
