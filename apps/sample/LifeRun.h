#pragma once

#include <VornCommon.h>

class BareWindows;
class MainFrame;

/// Leads the application's life without a user, for seeing what one leaves behind: opens each window and each dialog
/// once, and closes it as soon as it has been painted. One object at a time.
class LifeRun
{
public:
    /// @param windows notes what is made meanwhile
    explicit LifeRun(BareWindows& windows);
    ~LifeRun();
    LifeRun(const LifeRun&) = delete;
    LifeRun& operator=(const LifeRun&) = delete;

    /// False when the startup dialog could not be shown.
    bool ShowStartup();

    /// All pages of the window, all dialogs of its menus, its bar docked and floating, and its flight log, which stays
    /// open.
    void OpenEverything(MainFrame& frame);

    /// Deals with all messages, and with what waits for a moment without any.
    static void Settle();

    /// How many dialogs were shown so far.
    int Dialogs() const;

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD);
    void LookAtDialog();
    bool Explore(HWND window);

    BareWindows& m_windows;
    UINT_PTR m_timer;
    MainFrame* m_frame = nullptr;
    HWND m_explored = nullptr; ///< the dialog whose pages have all been shown
    bool m_exploring = false;
    int m_dialogs = 0;
};
