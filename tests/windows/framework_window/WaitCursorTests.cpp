#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

TEST(WaitCursor, ShowsTheHourglassUntilTheLastOneEnds)
{
    const HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    const HCURSOR wait = ::LoadCursor(nullptr, IDC_WAIT);
    ::SetCursor(arrow);
    {
        CWaitCursor outer;
        EXPECT_EQ(::GetCursor(), wait);
        {
            const CWaitCursor inner;
            EXPECT_EQ(::GetCursor(), wait);
        }
        EXPECT_EQ(::GetCursor(), wait);
        ::SetCursor(arrow);
        outer.Restore();
        EXPECT_EQ(::GetCursor(), wait);
    }
    EXPECT_EQ(::GetCursor(), arrow);
}

TEST(WaitCursor, IgnoresAnEndTooMany)
{
    CWnd target;
    ::SetCursor(::LoadCursor(nullptr, IDC_ARROW));
    target.EndWaitCursor();
    target.BeginWaitCursor();
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_WAIT));
    target.EndWaitCursor();
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_ARROW));
}
