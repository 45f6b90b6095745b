#pragma once

#include <windows.h>

#include <functional>

/// Drives a modal dialog from outside: calls a step from the thread's message loop, by a timer, until it answers true.
/// A step that is not done after ten seconds fails the test and cancels every dialog of the thread.
class DialogDriver
{
public:
    using Step = std::function<bool()>;

    explicit DialogDriver(Step step);
    ~DialogDriver();
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    /// Whether the step answered true.
    bool IsDone() const;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR id, DWORD now);
    void Run();
    void GiveUp();

    Step m_step;
    UINT_PTR m_timer;
    DWORD m_deadline;
    bool m_done = false;
    bool m_running = false;
};

/// The visible dialog window of this thread with this title, or null.
HWND FindDialog(const char* title);
