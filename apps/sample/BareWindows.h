#pragma once

#include <windows.h>

#include <string>
#include <vector>

/// Notes which windows of the system's own classes a thread makes, and makes the same ones once more without anything
/// around them: what those leave behind is the system's doing.
class BareWindows
{
public:
    BareWindows();
    ~BareWindows();
    BareWindows(const BareWindows&) = delete;
    BareWindows& operator=(const BareWindows&) = delete;

    /// Forgets what was noted so far.
    void Clear();

    /// Notes which of them have a font by now. To be called while they are there.
    void NoteFonts();

    /// Makes what was noted, with a font and a text where it got them, and destroys it again, one window after the
    /// other.
    void MakeAgain() const;

    int Count() const;

private:
    struct Window
    {
        HWND window;
        std::string className;
        DWORD style;
        DWORD extendedStyle;
        bool hasFont;
    };

    static LRESULT CALLBACK OnCreation(int code, WPARAM wParam, LPARAM lParam);
    void Note(HWND window, const CREATESTRUCTA& create);

    HHOOK m_hook;
    std::vector<Window> m_windows;
};
