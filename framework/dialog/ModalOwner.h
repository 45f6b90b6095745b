#pragma once

#include <windows.h>

#include <functional>

class CWnd;

namespace vorn
{
/// The windows that a modal dialog disables while it runs. Ended, at the latest, by the destructor: whatever happens
/// to the dialog, the user gets the owner back.
class ModalOwner
{
public:
    /// Looks the owner up; without parent it is the application's main window.
    explicit ModalOwner(CWnd* parent);
    ~ModalOwner();
    ModalOwner(const ModalOwner&) = delete;
    ModalOwner& operator=(const ModalOwner&) = delete;

    /// Null when there is no window to own the dialog.
    HWND Handle() const;
    /// Disables the owner, and the top window above it where that is another one.
    void Disable();
    /// Disables only the top window above the owner, for dialogs of the system, which disable their owner themselves.
    void DisableTopOnly();
    /// Enables again what was disabled, once.
    void Restore();
    /// Makes the owner the active window.
    void Activate() const;
    /// Said by the dialog's object when it is deleted while it still runs.
    void NoteDialogDeleted();
    bool IsDialogDeleted() const;

private:
    HWND m_owner = nullptr;
    HWND m_top = nullptr;
    bool m_ownerDisabled = false;
    bool m_topDisabled = false;
    bool m_dialogDeleted = false;
};

/// Runs a dialog or sheet with its owner disabled. On every way out, exceptions included, the owner is enabled again,
/// made active in the window's place, and the window destroyed, in this order: in another one the system would activate
/// a window of another program.
/// @param running the object's note of the owner, null before and afterwards
/// @param run makes the window and has its loop run
/// @return whether the object still lives
bool RunModally(CWnd& window, ModalOwner*& running, ModalOwner& owner, const std::function<void()>& run);
} // namespace vorn
