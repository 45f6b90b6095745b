#pragma once

#include <windows.h>

#include <functional>

namespace vorn::test
{

/// Works on modal dialogs from outside: while the object lives, a timer of this thread looks for a
/// visible top-level window of the dialog class and hands it to the action, again and again until the
/// action returns true (then it has done its work, for instance posted IDOK). One dialog, one driver.
class DialogDriver
{
public:
    explicit DialogDriver(std::function<bool(HWND)> action);
    ~DialogDriver();
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    /// True once the action has returned true.
    bool Done() const
    {
        return m_done;
    }

private:
    static void CALLBACK OnTimer(HWND window, UINT message, UINT_PTR id, DWORD time);
    static BOOL CALLBACK OnWindow(HWND window, LPARAM driver);

    std::function<bool(HWND)> m_action;
    DialogDriver* m_outer;
    UINT_PTR m_timer;
    bool m_busy = false;
    bool m_done = false;
};

} // namespace vorn::test
