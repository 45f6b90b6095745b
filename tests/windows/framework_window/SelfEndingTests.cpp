#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

namespace
{

/// Ends itself inside a message of its own.
class SelfEnding : public CWnd
{
public:
    ~SelfEnding() override
    {
        if (ended)
        {
            ++*ended;
        }
    }
    bool inCreation = false;
    int* ended = nullptr;
    int postNcDestroys = 0;

protected:
    void PostNcDestroy() override
    {
        ++postNcDestroys;
    }
    afx_msg int OnCreate(LPCREATESTRUCT create)
    {
        if (inCreation)
        {
            DestroyWindow();
            return 0;
        }
        return CWnd::OnCreate(create);
    }
    afx_msg LRESULT OnEnd(WPARAM, LPARAM)
    {
        delete this;
        return 33;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SelfEnding, CWnd)
ON_WM_CREATE()
ON_MESSAGE(WM_APP, &SelfEnding::OnEnd)
END_MESSAGE_MAP()

} // namespace

TEST(SelfEndingWindow, MayDeleteItsObjectInAHandler)
{
    int ended = 0;
    auto* window = new SelfEnding;
    window->ended = &ended;
    ASSERT_TRUE(CreatePopup(*window));
    const HWND handle = window->m_hWnd;
    EXPECT_EQ(::SendMessage(handle, WM_APP, 0, 0), 33) << "the answer arrives all the same";
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(::IsWindow(handle));
    EXPECT_EQ(CWnd::FromHandlePermanent(handle), nullptr);
}

TEST(SelfEndingWindow, DestroyedInItsCreationWasNotCreated)
{
    SelfEnding window;
    window.inCreation = true;
    EXPECT_FALSE(CreatePopup(window));
    EXPECT_EQ(window.m_hWnd, nullptr);
    EXPECT_EQ(window.postNcDestroys, 1);
    window.inCreation = false;
    EXPECT_TRUE(CreatePopup(window)) << "and may be tried again";
}
