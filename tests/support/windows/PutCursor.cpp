#include "tests/support/PutCursor.h"

#include "tests/support/PumpUntil.h"

#include <gtest/gtest.h>

namespace vorn::test
{

namespace
{
constexpr DWORD kStaysMs = 20;
} // namespace

void PutCursor(POINT point)
{
    DWORD since = ::GetTickCount();
    ::SetCursorPos(point.x, point.y);
    EXPECT_TRUE(PumpUntil(
        [&]
        {
            POINT present{};
            const bool there = ::GetCursorPos(&present) && point.x == present.x && point.y == present.y;
            if (!there)
            {
                ::SetCursorPos(point.x, point.y);
                since = ::GetTickCount();
            }
            return ::GetTickCount() - since >= kStaysMs;
        }));
}

} // namespace vorn::test
