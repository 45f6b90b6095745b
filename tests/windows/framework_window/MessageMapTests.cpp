#include "framework/window/MessageLookup.h"
#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

namespace
{

constexpr UINT kMine = WM_APP + 1;
constexpr UINT kBoth = WM_APP + 2;
const UINT kRegistered = ::RegisterWindowMessage("VornTestRegisteredMessage");
const UINT kNeverSent = 0;

class Base : public CWnd
{
public:
    Events events;

protected:
    afx_msg LRESULT OnMine(WPARAM wParam, LPARAM lParam)
    {
        events.push_back("base mine");
        return static_cast<LRESULT>(wParam) + lParam;
    }
    afx_msg LRESULT OnBoth(WPARAM, LPARAM)
    {
        events.push_back("base both");
        return 1;
    }
    afx_msg LRESULT OnRegistered(WPARAM wParam, LPARAM)
    {
        events.push_back("base registered");
        return static_cast<LRESULT>(wParam) * 2;
    }
    afx_msg LRESULT OnNever(WPARAM, LPARAM)
    {
        events.push_back("never");
        return 1;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Base, CWnd)
ON_MESSAGE(kMine, &Base::OnMine)
ON_MESSAGE(kBoth, &Base::OnBoth)
ON_REGISTERED_MESSAGE(kRegistered, &Base::OnRegistered)
ON_REGISTERED_MESSAGE(kNeverSent, &Base::OnNever)
END_MESSAGE_MAP()

class Derived : public Base
{
protected:
    afx_msg LRESULT OnDerivedBoth(WPARAM wParam, LPARAM lParam)
    {
        events.push_back("derived both");
        return wParam ? OnBoth(wParam, lParam) : 2;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Base)
ON_MESSAGE(kBoth, &Derived::OnDerivedBoth)
END_MESSAGE_MAP()

/// A class template with a map, whose base is a class of another module.
template <typename Number>
class Templated : public CWnd
{
public:
    Number last = 0;

protected:
    afx_msg LRESULT OnMine(WPARAM wParam, LPARAM)
    {
        last = static_cast<Number>(wParam);
        return 5;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_TEMPLATE_MESSAGE_MAP(Templated, Number, CWnd)
ON_MESSAGE(kMine, &ThisClass::OnMine)
END_MESSAGE_MAP()

} // namespace

TEST(MessageMap, CallsTheHandlerWithItsArgumentsAndReturnsItsAnswer)
{
    Base window;
    ASSERT_TRUE(CreatePopup(window));
    EXPECT_EQ(window.SendMessage(kMine, 30, 4), 34);
    EXPECT_EQ(window.events, Events{"base mine"});
}

TEST(MessageMap, PrefersTheDerivedClass)
{
    Derived window;
    ASSERT_TRUE(CreatePopup(window));
    EXPECT_EQ(window.SendMessage(kBoth, 0), 2);
    EXPECT_EQ(window.SendMessage(kBoth, 1), 1);
    EXPECT_EQ(window.events, (Events{"derived both", "derived both", "base both"}));
}

TEST(MessageMap, FindsHandlersOfTheBaseClass)
{
    Derived window;
    ASSERT_TRUE(CreatePopup(window));
    EXPECT_EQ(window.SendMessage(kMine, 1, 2), 3);
    EXPECT_EQ(window.events, Events{"base mine"});
}

TEST(MessageMap, FindsRegisteredMessagesByTheirNumberAtRunTime)
{
    Derived window;
    ASSERT_TRUE(CreatePopup(window));
    ASSERT_GE(kRegistered, 0xC000U);
    EXPECT_EQ(window.SendMessage(kRegistered, 21), 42);
    EXPECT_EQ(window.SendMessage(WM_NULL), 0);
    EXPECT_EQ(window.events, Events{"base registered"}) << "an unregistered number takes no message";
}

namespace
{

UINT lateNumber = 0; // registered after the class's first messages

class LateListener : public CWnd
{
protected:
    afx_msg LRESULT OnLate(WPARAM, LPARAM)
    {
        return 77;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(LateListener, CWnd)
ON_REGISTERED_MESSAGE(lateNumber, &LateListener::OnLate)
END_MESSAGE_MAP()

} // namespace

TEST(MessageMap, HearsARegisteredMessageWhoseNumberCameLate)
{
    LateListener window;
    ASSERT_TRUE(CreatePopup(window));
    const UINT number = ::RegisterWindowMessage("VornTestLateNumber");
    EXPECT_EQ(window.SendMessage(number), 0);
    lateNumber = number;
    EXPECT_EQ(window.SendMessage(number), 77);
}

TEST(MessageMap, WorksInClassTemplates)
{
    Templated<short> window;
    ASSERT_TRUE(CreatePopup(window));
    EXPECT_EQ(window.SendMessage(kMine, 0x12345), 5);
    EXPECT_EQ(window.last, 0x2345);
}

TEST(MessageMap, LeavesOtherMessagesToTheDefault)
{
    Base window;
    ASSERT_TRUE(CreatePopup(window));
    window.SetWindowText("new text");
    CString text;
    window.GetWindowText(text);
    EXPECT_EQ(text, "new text");
    LRESULT result = 99;
    EXPECT_FALSE(window.OnWndMsg(WM_APP + 100, 0, 0, &result));
    EXPECT_EQ(result, 99);
    EXPECT_TRUE(window.OnWndMsg(kMine, 1, 1, nullptr)) << "the answer may go unread";
}

TEST(MessageMap, RemembersWhereAMessageIsHandledAndThatItIsNot)
{
    Derived window;
    ASSERT_TRUE(CreatePopup(window));
    window.SendMessage(kMine, 0, 0);
    window.SendMessage(WM_APP + 50);
    const long before = vorn::MessageSearchCount();
    for (int i = 0; i < 100; ++i)
    {
        window.SendMessage(kMine, 0, 0);
        window.SendMessage(WM_APP + 50);
    }
    // The two may share a slot of the cache; then they displace each other. They do not here.
    EXPECT_EQ(vorn::MessageSearchCount(), before);
    EXPECT_EQ(window.events.size(), 101U);
}

TEST(MessageMap, IsNotConfusedByMessagesThatShareACacheSlot)
{
    Derived window;
    ASSERT_TRUE(CreatePopup(window));
    for (UINT message = WM_APP; message < WM_APP + 0x800; ++message)
    {
        window.SendMessage(message, 1);
    }
    EXPECT_EQ(window.events, (Events{"base mine", "derived both", "base both"}));
    window.events.clear();
    for (UINT message = WM_APP + 0x7FF; message >= WM_APP; --message)
    {
        window.SendMessage(message, 1);
    }
    EXPECT_EQ(window.events, (Events{"derived both", "base both", "base mine"}));
}

TEST(MessageMap, KeepsClassesApartInTheCache)
{
    Base base;
    Derived derived;
    ASSERT_TRUE(CreatePopup(base));
    ASSERT_TRUE(CreatePopup(derived));
    for (int i = 0; i < 3; ++i)
    {
        EXPECT_EQ(base.SendMessage(kBoth, 0), 1);
        EXPECT_EQ(derived.SendMessage(kBoth, 0), 2);
    }
}

TEST(MessageMap, TellsTheCurrentMessageAndRestoresTheOuterOne)
{
    class Current : public CWnd
    {
    public:
        MSG inner = {};
        MSG outer = {};
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == kMine)
            {
                SendMessage(kBoth, 8, 9);
                outer = *GetCurrentMessage();
                return Default();
            }
            if (message == kBoth)
            {
                inner = *GetCurrentMessage();
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Current window;
    ASSERT_TRUE(CreatePopup(window));
    window.SendMessage(kMine, 3, 4);
    EXPECT_EQ(window.inner.message, kBoth);
    EXPECT_EQ(window.inner.wParam, 8U);
    EXPECT_EQ(window.inner.lParam, 9);
    EXPECT_EQ(window.inner.hwnd, window.m_hWnd);
    EXPECT_EQ(window.outer.message, kMine);
    EXPECT_EQ(window.outer.wParam, 3U);
}

TEST(MessageMap, RunsOnStacksAlignedToFourBytesOnly)
{
    class Aligned : public CWnd
    {
    public:
        bool good = true;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            alignas(16) volatile char block[16] = {};
            good = good && reinterpret_cast<std::uintptr_t>(&block[0]) % 16 == 0;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Aligned window;
    ASSERT_TRUE(CreatePopup(window));
    // Calls the window procedure with each alignment of the stack that the system may use.
    const auto call = [&]<int Bytes>(std::integral_constant<int, Bytes>)
    {
        volatile char* pad = static_cast<char*>(__builtin_alloca(Bytes));
        pad[0] = 0;
        ::CallWindowProc(AfxWndProc, window.m_hWnd, WM_APP, 0, 0);
    };
    call(std::integral_constant<int, 4>());
    call(std::integral_constant<int, 8>());
    call(std::integral_constant<int, 12>());
    call(std::integral_constant<int, 16>());
    EXPECT_TRUE(window.good);
}
