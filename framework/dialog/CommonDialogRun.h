#pragma once

#include "framework/dialog/ModalOwner.h"

class CDialog;

namespace vorn
{
/// The running of one common dialog: as long as it lives, the next dialog window that calls CommonDialogHook is bound
/// to its object, and the top window above the dialog's owner is disabled. Runs nest.
class CommonDialogRun
{
public:
    CommonDialogRun(CDialog& dialog, CWnd* parent);
    ~CommonDialogRun();
    CommonDialogRun(const CommonDialogRun&) = delete;
    CommonDialogRun& operator=(const CommonDialogRun&) = delete;

    /// The window to name as owner in the dialog's record.
    HWND Owner() const;

private:
    friend UINT_PTR CALLBACK CommonDialogHook(HWND, UINT, WPARAM, LPARAM);

    CDialog& m_dialog;
    ModalOwner m_owner;
    CommonDialogRun* m_outer;
};

/// Hook procedure for the records of common dialogs.
UINT_PTR CALLBACK CommonDialogHook(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
} // namespace vorn
