#pragma once

#include <windows.h>

class CWnd;

namespace vorn
{
class LoadedDialogTemplate;

/// Outcome of CreateDialogWindow.
struct DialogCreation
{
    HWND window; ///< null on failure
    /// Whether a window was bound to the object, if only for a while: on failure the object then heard PostNcDestroy
    /// and may be gone; otherwise the caller calls PostNcDestroy.
    bool bound;
};

/// Creates, modeless, the window of a template and binds it to `dialog` before its first message. Serves every window
/// that is made from a template (dialogs, form views, dialog bars).
DialogCreation CreateDialogWindow(CWnd& dialog, const LoadedDialogTemplate& dialogTemplate, HWND owner);
} // namespace vorn
