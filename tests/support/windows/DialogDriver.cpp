#ifdef _WIN32
#include "tests/support/DialogDriver.h"

#include <gtest/gtest.h>

#include <map>

namespace
{
constexpr UINT kInterval = 10;         // milliseconds between steps
constexpr DWORD kPatience = 10 * 1000; // milliseconds for a driver's step

std::map<UINT_PTR, DialogDriver*>& Drivers()
{
    static std::map<UINT_PTR, DialogDriver*> drivers;
    return drivers;
}

bool IsPast(DWORD deadline)
{
    return static_cast<int>(::GetTickCount() - deadline) > 0;
}

BOOL CALLBACK CancelDialog(HWND window, LPARAM)
{
    ::PostMessageA(window, WM_COMMAND, IDCANCEL, 0);
    return TRUE;
}

struct Search
{
    const char* title;
    HWND found;
};

BOOL CALLBACK CompareTitle(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<Search*>(parameter);
    char className[16] = {};
    char title[128] = {};
    ::GetClassNameA(window, className, sizeof(className));
    ::GetWindowTextA(window, title, sizeof(title));
    if (::lstrcmpA(className, "#32770") == 0 && ::lstrcmpA(title, search.title) == 0 && ::IsWindowVisible(window))
        search.found = window;
    return search.found == nullptr;
}
} // namespace

DialogDriver::DialogDriver(Step step)
    : m_step(std::move(step)), m_timer(::SetTimer(nullptr, 0, kInterval, OnTimer)),
      m_deadline(::GetTickCount() + kPatience)
{
    Drivers()[m_timer] = this;
}

DialogDriver::~DialogDriver()
{
    ::KillTimer(nullptr, m_timer);
    Drivers().erase(m_timer);
}

bool DialogDriver::IsDone() const
{
    return m_done;
}

void CALLBACK DialogDriver::OnTimer(HWND, UINT, UINT_PTR id, DWORD)
{
    const auto driver = Drivers().find(id);
    if (driver != Drivers().end())
        driver->second->Run();
}

void DialogDriver::Run()
{
    // The step may open a dialog of its own, whose loop brings the timer here again.
    if (m_done || m_running)
        return;
    m_running = true;
    m_done = m_step();
    m_running = false;
    if (!m_done && IsPast(m_deadline))
        GiveUp();
}

void DialogDriver::GiveUp()
{
    m_done = true;
    ADD_FAILURE() << "the dialog did not come to the expected state";
    ::EnumThreadWindows(::GetCurrentThreadId(), CancelDialog, 0);
}

HWND FindDialog(const char* title)
{
    Search search{title, nullptr};
    ::EnumThreadWindows(::GetCurrentThreadId(), CompareTitle, reinterpret_cast<LPARAM>(&search));
    return search.found;
}
#endif
