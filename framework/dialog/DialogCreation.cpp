#include "framework/dialog/DialogCreation.h"

#include "framework/controls/ControlMessage.h"
#include "framework/dialog/LoadedDialogTemplate.h"
#include "framework/window/CWnd.h"

namespace vorn
{
namespace
{
/// The object's own window procedure handles everything. This one only makes the window a dialog with an
/// initialisation.
INT_PTR CALLBACK EmptyDialogProcedure(HWND, UINT message, WPARAM, LPARAM)
{
    return message == WM_INITDIALOG;
}
} // namespace

DialogCreation CreateDialogWindow(CWnd& dialog, const LoadedDialogTemplate& dialogTemplate, HWND owner)
{
    EnsureCommonControls();
    AfxHookWindowCreate(&dialog);
    const HWND window =
        ::CreateDialogIndirectParamA(dialogTemplate.Module(), dialogTemplate.Get(), owner, EmptyDialogProcedure, 0);
    const bool bound = AfxUnhookWindowCreate() != FALSE;
    return {window, bound};
}
} // namespace vorn
