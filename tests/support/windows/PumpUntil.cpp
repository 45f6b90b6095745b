#include "tests/support/PumpUntil.h"

namespace vorn::test
{

namespace
{

constexpr DWORD kWaitMilliseconds = 5;

bool DispatchOne()
{
    MSG message = {};
    if (PeekMessage(&message, nullptr, 0, 0, PM_REMOVE) == FALSE)
    {
        return false;
    }
    TranslateMessage(&message);
    DispatchMessage(&message);
    return true;
}

} // namespace

bool PumpUntil(const std::function<bool()>& condition, std::chrono::milliseconds deadline)
{
    const auto end = std::chrono::steady_clock::now() + deadline;
    while (!condition())
    {
        if (std::chrono::steady_clock::now() >= end)
        {
            return false;
        }
        if (!DispatchOne())
        {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, kWaitMilliseconds, QS_ALLINPUT);
        }
    }
    return true;
}

void PumpWaiting()
{
    while (DispatchOne())
    {
    }
}

} // namespace vorn::test
