#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{

class Mortal : public CWnd
{
public:
    explicit Mortal(Events& events, const char* name = "") : m_events(events), m_name(name)
    {
    }

protected:
    afx_msg void OnDestroy()
    {
        m_events.push_back(m_name + "destroy");
        CWnd::OnDestroy();
    }
    afx_msg void OnNcDestroy()
    {
        m_events.push_back(m_name + "ncdestroy");
        EXPECT_NE(m_hWnd, nullptr);
        CWnd::OnNcDestroy();
    }
    void PostNcDestroy() override
    {
        EXPECT_EQ(m_hWnd, nullptr);
        m_events.push_back(m_name + "post");
    }
    DECLARE_MESSAGE_MAP()

    Events& m_events;
    std::string m_name;
};

BEGIN_MESSAGE_MAP(Mortal, CWnd)
ON_WM_DESTROY()
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

const Events kWholeEnd = {"destroy", "ncdestroy", "post"};

} // namespace

TEST(WindowDestruction, ByDestroyWindowRunsAllHandlersInOrder)
{
    Events events;
    Mortal window(events);
    ASSERT_TRUE(CreatePopup(window));
    const HWND handle = window.m_hWnd;
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(events, kWholeEnd);
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_FALSE(window.DestroyWindow()) << "nothing left to destroy";
}

TEST(WindowDestruction, BySystemCallIsTheSame)
{
    Events events;
    Mortal window(events);
    ASSERT_TRUE(CreatePopup(window));
    ::DestroyWindow(window.m_hWnd);
    EXPECT_EQ(events, kWholeEnd);
    EXPECT_EQ(window.m_hWnd, nullptr);
}

TEST(WindowDestruction, ByTheParentEndsChildrenToo)
{
    Events events;
    Mortal parent(events, "parent ");
    Mortal child(events, "child ");
    ASSERT_TRUE(CreatePopup(parent));
    ASSERT_TRUE(CreateChild(child, parent));
    parent.DestroyWindow();
    EXPECT_EQ(child.m_hWnd, nullptr);
    const Events expected = {"parent destroy", "child destroy",    "child ncdestroy",
                             "child post",     "parent ncdestroy", "parent post"};
    EXPECT_EQ(events, expected);
}

TEST(WindowDestruction, ByTheDestructorOfALivingWindowRunsNoDerivedHandlers)
{
    Events events;
    HWND handle = nullptr;
    {
        Mortal window(events);
        ASSERT_TRUE(CreatePopup(window));
        handle = window.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(events, Events());
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(WindowDestruction, ByDetachLeavesTheWindowAlive)
{
    Events events;
    HWND handle = nullptr;
    {
        Mortal window(events);
        ASSERT_TRUE(CreatePopup(window));
        handle = window.Detach();
        EXPECT_EQ(window.m_hWnd, nullptr);
        EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    }
    EXPECT_TRUE(::IsWindow(handle));
    EXPECT_EQ(events, Events());
    char text[16] = {};
    ::GetWindowText(handle, text, sizeof(text));
    EXPECT_STREQ(text, "popup") << "the window still answers";
    EXPECT_TRUE(::DestroyWindow(handle));
    EXPECT_EQ(events, Events());
}

TEST(WindowDestruction, MayDeleteTheObjectInPostNcDestroy)
{
    class SelfDeleting : public CWnd
    {
    public:
        explicit SelfDeleting(int& deaths) : m_deaths(deaths)
        {
        }
        ~SelfDeleting() override
        {
            ++m_deaths;
        }
        void PostNcDestroy() override
        {
            delete this;
        }

    private:
        int& m_deaths;
    };
    int deaths = 0;
    auto* first = new SelfDeleting(deaths);
    ASSERT_TRUE(CreatePopup(*first));
    EXPECT_TRUE(first->DestroyWindow());
    EXPECT_EQ(deaths, 1);

    CWnd parent;
    ASSERT_TRUE(CreatePopup(parent));
    auto* child = new SelfDeleting(deaths);
    ASSERT_TRUE(CreateChild(*child, parent));
    parent.DestroyWindow();
    EXPECT_EQ(deaths, 2);
}

TEST(WindowDestruction, WorksAlthoughAHandlerForgetsTheBase)
{
    class Forgetful : public CWnd
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_NCDESTROY ? 0 : CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Forgetful window;
    ASSERT_TRUE(CreatePopup(window));
    const HWND handle = window.m_hWnd;
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(WindowDestruction, ClosesByTheCloseMessage)
{
    Events events;
    Mortal window(events);
    ASSERT_TRUE(CreatePopup(window));
    window.SendMessage(WM_CLOSE);
    EXPECT_EQ(events, kWholeEnd);
}

TEST(WindowDestruction, LetsTheObjectBeUsedForANewWindow)
{
    Events events;
    Mortal window(events);
    ASSERT_TRUE(CreatePopup(window));
    window.DestroyWindow();
    events.clear();
    ASSERT_TRUE(CreatePopup(window));
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window);
    window.DestroyWindow();
    EXPECT_EQ(events, kWholeEnd);
}

TEST(WindowDestruction, OfASubclassedControlLetsTheControlCleanUp)
{
    CWnd parent;
    ASSERT_TRUE(CreatePopup(parent));
    Events events;
    Mortal edit(events);
    ASSERT_TRUE(edit.CreateEx(0, "EDIT", "x", WS_CHILD, CRect(0, 0, 80, 20), &parent, 9));
    edit.DestroyWindow();
    EXPECT_EQ(events, kWholeEnd);
    ASSERT_TRUE(CreatePopup(edit)) << "the control's procedure must not stay with the object";
    edit.DestroyWindow();
}

TEST(WindowDestruction, OfAnAttachedWindowForgetsIt)
{
    const PlainClass plain("PlainAttached", ::DefWindowProc);
    const HWND handle = plain.Create();
    CWnd window;
    ASSERT_TRUE(window.Attach(handle));
    EXPECT_TRUE(window.DestroyWindow());
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
    EXPECT_FALSE(::IsWindow(handle));
}

TEST(WindowDestruction, DestructorsOfPlaceMarksTouchNothing)
{
    EXPECT_EQ(CWnd::wndTop.m_hWnd, HWND_TOP);
    EXPECT_EQ(CWnd::wndBottom.m_hWnd, HWND_BOTTOM);
    EXPECT_EQ(CWnd::wndTopMost.m_hWnd, HWND_TOPMOST);
    EXPECT_EQ(CWnd::wndNoTopMost.m_hWnd, HWND_NOTOPMOST);
}
