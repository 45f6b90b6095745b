#pragma once

#include <windows.h>

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
} // namespace vorn
