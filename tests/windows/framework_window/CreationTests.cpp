#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

/// Writes down its messages and how its life went.
class Recorder : public CWnd
{
public:
    std::vector<UINT> messages;
    std::vector<bool> bound;
    int preSubclass = 0;
    int ends = 0;
    HWND handleInPreSubclass = nullptr;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        messages.push_back(message);
        bound.push_back(m_hWnd && FromHandlePermanent(m_hWnd) == this);
        return CWnd::WindowProc(message, wParam, lParam);
    }
    void PreSubclassWindow() override
    {
        ++preSubclass;
        handleInPreSubclass = m_hWnd;
    }
    void PostNcDestroy() override
    {
        ++ends;
        EXPECT_EQ(m_hWnd, nullptr);
    }
};

/// Fails in the way a test chooses.
class Failing : public Recorder
{
public:
    enum How
    {
        PreCreate,
        NcCreate,
        Create,
        ThrowInCreate,
        ThrowStandardInCreate,
        ThrowInPreSubclass
    };
    explicit Failing(How how) : m_how(how)
    {
    }
    BOOL PreCreateWindow(CREATESTRUCT& cs) override
    {
        return m_how != PreCreate && Recorder::PreCreateWindow(cs);
    }
    void PreSubclassWindow() override
    {
        if (m_how == ThrowInPreSubclass)
        {
            AfxThrowResourceException();
        }
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NCCREATE && m_how == NcCreate)
        {
            return FALSE;
        }
        if (message == WM_CREATE && m_how == ThrowInCreate)
        {
            AfxThrowMemoryException();
        }
        if (message == WM_CREATE && m_how == ThrowStandardInCreate)
        {
            throw std::runtime_error("no");
        }
        const LRESULT result = Recorder::WindowProc(message, wParam, lParam);
        return message == WM_CREATE && m_how == Create ? -1 : result;
    }

private:
    How m_how;
};

class FailingCreation : public testing::TestWithParam<Failing::How>
{
};

} // namespace

TEST(WindowCreation, BindsTheObjectBeforeTheFirstMessage)
{
    Recorder window;
    ASSERT_TRUE(CreatePopup(window));
    ASSERT_FALSE(window.messages.empty());
    EXPECT_EQ(window.messages[0], static_cast<UINT>(WM_NCCREATE));
    EXPECT_EQ(window.preSubclass, 1);
    EXPECT_EQ(window.handleInPreSubclass, window.m_hWnd);
    for (const bool bound : window.bound)
    {
        EXPECT_TRUE(bound);
    }
    window.DestroyWindow();
}

TEST(WindowCreation, SeesTheSizeQuestionOfOverlappedWindowsFirst)
{
    Recorder window;
    ASSERT_TRUE(window.CreateEx(0, AfxRegisterWndClass(0), "", WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr));
    EXPECT_EQ(window.messages.at(0), static_cast<UINT>(WM_GETMINMAXINFO));
    window.DestroyWindow();
}

TEST(WindowCreation, GivesAChildWithoutClassThePlainClass)
{
    CWnd parent;
    ASSERT_TRUE(CreatePopup(parent));
    CWnd child;
    ASSERT_TRUE(CreateChild(child, parent, 77));
    EXPECT_EQ(::GetParent(child.m_hWnd), parent.m_hWnd);
    EXPECT_EQ(child.GetDlgCtrlID(), 77);
    EXPECT_TRUE(child.GetStyle() & WS_CHILD);
    char name[64] = {};
    ::GetClassName(child.m_hWnd, name, sizeof(name));
    EXPECT_EQ(std::string(name).rfind("Afx:", 0), 0U);
    EXPECT_EQ(::GetClassLong(child.m_hWnd, GCL_STYLE), CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW);
}

TEST(WindowCreation, RefusesATopWindowWithoutClass)
{
    Recorder window;
    EXPECT_FALSE(window.CreateEx(0, nullptr, "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(window.ends, 1);
}

TEST(WindowCreation, RefusesASecondWindowForTheSameObject)
{
    Recorder window;
    ASSERT_TRUE(CreatePopup(window));
    const HWND first = window.m_hWnd;
    EXPECT_FALSE(CreatePopup(window));
    EXPECT_EQ(window.m_hWnd, first);
    EXPECT_EQ(window.ends, 0);
    window.DestroyWindow();
}

TEST(WindowCreation, FailsForAnUnknownClassWithOneEnd)
{
    Recorder window;
    EXPECT_FALSE(window.CreateEx(0, "NoSuchWindowClassAnywhere", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.ends, 1);
    EXPECT_TRUE(window.messages.empty());
}

TEST(WindowCreation, LeavesNoWaitingObjectBehindAfterAFailure)
{
    Recorder failed;
    EXPECT_FALSE(failed.CreateEx(0, "NoSuchWindowClassAnywhere", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    const PlainClass plain("PlainAfterFailure", ::DefWindowProc);
    const HWND other = plain.Create();
    EXPECT_EQ(CWnd::FromHandlePermanent(other), nullptr);
    EXPECT_EQ(failed.m_hWnd, nullptr);
    ::DestroyWindow(other);
}

TEST_P(FailingCreation, EndsInPostNcDestroyOnceAndMayBeTriedAgain)
{
    Failing window(GetParam());
    EXPECT_FALSE(CreatePopup(window));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.ends, 1);
    EXPECT_FALSE(CreatePopup(window));
    EXPECT_EQ(window.ends, 2);
}

INSTANTIATE_TEST_SUITE_P(EachWay, FailingCreation,
                         testing::Values(Failing::PreCreate, Failing::NcCreate, Failing::Create, Failing::ThrowInCreate,
                                         Failing::ThrowStandardInCreate, Failing::ThrowInPreSubclass));

namespace
{

/// Deletes itself at its end; the flag says so.
class SelfDeleting : public CWnd
{
public:
    SelfDeleting(bool& gone, bool failInCreate) : m_gone(gone), m_fail(failInCreate)
    {
    }
    ~SelfDeleting() override
    {
        m_gone = true;
    }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const bool fail = m_fail;
        const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
        return message == WM_CREATE && fail ? -1 : result;
    }
    void PostNcDestroy() override
    {
        delete this;
    }

private:
    bool& m_gone;
    bool m_fail;
};

} // namespace

TEST(WindowCreation, MayFailWithAnObjectThatDeletesItself)
{
    bool gone = false;
    auto* late = new SelfDeleting(gone, true);
    EXPECT_FALSE(CreatePopup(*late));
    EXPECT_TRUE(gone);

    gone = false;
    auto* early = new SelfDeleting(gone, false);
    EXPECT_FALSE(early->CreateEx(0, "NoSuchWindowClassAnywhere", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_TRUE(gone);
}

namespace
{

/// Creates windows while it is being created: a framework child and a plain one.
class Nesting : public CWnd
{
public:
    explicit Nesting(const PlainClass& plain) : m_plain(plain)
    {
    }
    CWnd child;
    HWND plainChild = nullptr;

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_NCCREATE)
        {
            plainTop = m_plain.Create();
        }
        if (message == WM_CREATE)
        {
            plainChild = m_plain.Create(m_hWnd, 5);
            CreateChild(child, *this, 6);
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
    HWND plainTop = nullptr;

private:
    const PlainClass& m_plain;
};

} // namespace

TEST(WindowCreation, BindsWindowsCreatedInsideACreationToTheirOwnObjects)
{
    const PlainClass plain("PlainInsideCreation", ::DefWindowProc);
    Nesting window(plain);
    ASSERT_TRUE(CreatePopup(window));
    EXPECT_EQ(CWnd::FromHandlePermanent(window.m_hWnd), &window);
    ASSERT_NE(window.plainTop, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.plainTop), nullptr);
    ASSERT_NE(window.plainChild, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.plainChild), nullptr);
    ASSERT_NE(window.child.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(window.child.m_hWnd), &window.child);
    EXPECT_EQ(window.GetDlgItem(6), &window.child);
    ::DestroyWindow(window.plainTop);
    window.DestroyWindow();
}

TEST(WindowCreation, FailsAfterNestedCreationsWithOneEndToo)
{
    class NestingAndFailing : public Failing
    {
    public:
        NestingAndFailing(How how, const PlainClass& plain) : Failing(how), m_plain(plain)
        {
        }
        CWnd inner;
        HWND plainTop = nullptr;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_NCCREATE)
            {
                CreatePopup(inner);
                plainTop = m_plain.Create();
            }
            return Failing::WindowProc(message, wParam, lParam);
        }

    private:
        const PlainClass& m_plain;
    };
    const PlainClass plain("PlainInsideFailure", ::DefWindowProc);
    for (const auto how : {Failing::NcCreate, Failing::Create})
    {
        NestingAndFailing window(how, plain);
        EXPECT_FALSE(CreatePopup(window));
        EXPECT_EQ(window.m_hWnd, nullptr);
        EXPECT_EQ(window.ends, 1);
        EXPECT_NE(window.inner.m_hWnd, nullptr);
        EXPECT_EQ(CWnd::FromHandlePermanent(window.plainTop), nullptr);
        ::DestroyWindow(window.plainTop);
    }
}

TEST(WindowCreation, ForgetsAFailedWindowThatAHandlerKeptFromTheBase)
{
    class Forgetful : public Failing
    {
    public:
        using Failing::Failing;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            return message == WM_NCDESTROY ? 0 : Failing::WindowProc(message, wParam, lParam);
        }
    };
    Forgetful window(Failing::Create);
    EXPECT_FALSE(CreatePopup(window));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.ends, 1);
}

TEST(WindowCreation, PutsTheFrameworkBeforeASystemControl)
{
    CWnd parent;
    ASSERT_TRUE(CreatePopup(parent));
    Recorder edit;
    ASSERT_TRUE(edit.CreateEx(0, "EDIT", "text", WS_CHILD, CRect(0, 0, 80, 20), &parent, 9));
    EXPECT_FALSE(edit.messages.empty());
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(text, "text");
    edit.SendMessage(EM_SETSEL, 0, 2);
    EXPECT_EQ(edit.SendMessage(EM_GETSEL), MAKELONG(0, 2)) << "the control still does its own work";
}

TEST(WindowCreation, HooksCreationFunctionsOfOthers)
{
    const PlainClass plain("PlainHooked", ::DefWindowProc);
    Recorder window;
    AfxHookWindowCreate(&window);
    const HWND handle = plain.Create();
    EXPECT_TRUE(AfxUnhookWindowCreate());
    EXPECT_EQ(window.m_hWnd, handle);
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), &window);
    window.DestroyWindow();
    EXPECT_EQ(window.ends, 1);

    AfxHookWindowCreate(&window);
    EXPECT_FALSE(AfxUnhookWindowCreate()) << "no window was created";
}
