#include "frame/TimerMgr.h"

#include "framework/include/afxwin.h"
#include "tests/support/PumpUntil.h"

#include <gtest/gtest.h>

#include <set>
#include <type_traits>

using vorn::test::PumpUntil;

namespace
{

// Ends the manager before and after, so that every test begins at the first identifier.
class Timers : public testing::Test
{
protected:
    Timers()
    {
        TimerMgr::FreeInst();
    }
    ~Timers() override
    {
        TimerMgr::FreeInst();
    }
};

// A window that notes which timers told it that their time is over.
class TimedWindow : public CWnd
{
public:
    TimedWindow()
    {
        CreateEx(0, AfxRegisterWndClass(0), "timed", WS_OVERLAPPED, CRect(0, 0, 10, 10), nullptr, 0);
    }
    ~TimedWindow() override
    {
        DestroyWindow();
    }

    bool Ticked(UINT_PTR timer) const
    {
        return m_ticked.count(timer) != 0;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_TIMER)
        {
            m_ticked.insert(wParam);
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }

private:
    std::set<UINT_PTR> m_ticked;
};

} // namespace

TEST_F(Timers, HaveIdentifiersFromAThousandUpwards)
{
    EXPECT_EQ(TimerMgr::Inst()->GetNextTimerValue(), 1000u);
    EXPECT_EQ(TimerMgr::Inst()->GetNextTimerValue(), 1001u);
}

TEST_F(Timers, ShareOneManagerUntilItIsFreed)
{
    TimerMgr* manager = TimerMgr::Inst();
    EXPECT_EQ(TimerMgr::Inst(), manager);
    manager->GetNextTimerValue();
    TimerMgr::FreeInst();
    TimerMgr::FreeInst();
    EXPECT_EQ(TimerMgr::Inst()->GetNextTimerValue(), 1000u);
}

TEST_F(Timers, ManagerIsNotCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<TimerMgr>);
    EXPECT_FALSE(std::is_copy_assignable_v<TimerMgr>);
}

TEST_F(Timers, TellTheirWindowByTheirIdentifier)
{
    TimedWindow window;
    const UINT first = TimerMgr::Inst()->SetTimer(&window, 10);
    const UINT second = TimerMgr::Inst()->SetTimer(window.m_hWnd, 10);
    EXPECT_EQ(first, 1000u);
    EXPECT_EQ(second, 1001u);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return window.Ticked(first) && window.Ticked(second);
        }));
}

TEST_F(Timers, GoOnRunningWithoutTheManager)
{
    TimedWindow window;
    const UINT timer = TimerMgr::Inst()->SetTimer(&window, 10);
    TimerMgr::FreeInst();
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            return window.Ticked(timer);
        }));
    EXPECT_TRUE(KillTimer(window.m_hWnd, timer));
}

TEST_F(Timers, WithoutAWindowUseUpAnIdentifierOfTheManagersOwn)
{
    EXPECT_EQ(TimerMgr::Inst()->SetTimer(static_cast<HWND>(nullptr), 60'000), 1000u);
    EXPECT_EQ(TimerMgr::Inst()->SetTimer(static_cast<CWnd*>(nullptr), 60'000), 1001u);
    EXPECT_EQ(TimerMgr::Inst()->GetNextTimerValue(), 1002u);
}

TEST_F(Timers, ThatDoNotStartUseUpAnIdentifier)
{
    TimedWindow window;
    const HWND gone = window.m_hWnd;
    window.DestroyWindow();
    EXPECT_EQ(TimerMgr::Inst()->SetTimer(gone, 10), 1000u);
    EXPECT_EQ(TimerMgr::Inst()->GetNextTimerValue(), 1001u);
}
