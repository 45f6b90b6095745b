#include "tests/support/DialogDriver.h"

#include <cstring>
#include <utility>

namespace vorn::test
{

namespace
{

constexpr UINT kPeriodMilliseconds = 15;

DialogDriver* s_innermost = nullptr;

bool IsShownDialog(HWND window)
{
    char name[16] = "";
    GetClassNameA(window, name, sizeof name);
    return std::strcmp(name, "#32770") == 0 && IsWindowVisible(window) != FALSE;
}

} // namespace

DialogDriver::DialogDriver(std::function<bool(HWND)> action)
    : m_action(std::move(action)), m_outer(std::exchange(s_innermost, this)),
      m_timer(SetTimer(nullptr, 0, kPeriodMilliseconds, OnTimer))
{
}

DialogDriver::~DialogDriver()
{
    KillTimer(nullptr, m_timer);
    s_innermost = m_outer;
}

void CALLBACK DialogDriver::OnTimer(HWND, UINT, UINT_PTR id, DWORD)
{
    for (DialogDriver* driver = s_innermost; driver != nullptr; driver = driver->m_outer)
    {
        if (driver->m_timer == id && !driver->m_done && !driver->m_busy)
        {
            EnumThreadWindows(GetCurrentThreadId(), OnWindow, reinterpret_cast<LPARAM>(driver));
            return;
        }
    }
}

BOOL CALLBACK DialogDriver::OnWindow(HWND window, LPARAM parameter)
{
    auto& driver = *reinterpret_cast<DialogDriver*>(parameter);
    if (!IsShownDialog(window))
    {
        return TRUE;
    }
    driver.m_busy = true; // the action may run messages of its own
    driver.m_done = driver.m_action(window);
    driver.m_busy = false;
    return driver.m_done ? FALSE : TRUE;
}

} // namespace vorn::test
