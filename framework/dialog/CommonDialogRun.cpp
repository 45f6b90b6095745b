#include "framework/dialog/CommonDialogRun.h"

#include "framework/core/Exception.h"
#include "framework/dialog/CDialog.h"

namespace vorn
{
namespace
{
/// The innermost run whose dialog has no window yet.
thread_local CommonDialogRun* t_current = nullptr;
} // namespace

CommonDialogRun::CommonDialogRun(CDialog& dialog, CWnd* parent) : m_dialog(dialog), m_owner(parent), m_outer(t_current)
{
    t_current = this;
    m_owner.DisableTopOnly();
}

CommonDialogRun::~CommonDialogRun()
{
    t_current = m_outer;
}

HWND CommonDialogRun::Owner() const
{
    return m_owner.Handle();
}

UINT_PTR CALLBACK CommonDialogHook(HWND window, UINT message, WPARAM, LPARAM)
{
    if (message != WM_INITDIALOG || !t_current || t_current->m_dialog.m_hWnd)
        return 0;
    CDialog& dialog = t_current->m_dialog;
    if (!dialog.SubclassWindow(window))
        return 0;
    // The message itself passed before the window was bound; sent again it would initialise the system's part twice.
    try
    {
        return static_cast<UINT_PTR>(dialog.OnInitDialog());
    }
    catch (CException* error)
    {
        error->ReportError();
        error->Delete();
    }
    catch (...)
    {
        // Whatever it was must not pass through the system's dialog.
    }
    return 0;
}
} // namespace vorn
